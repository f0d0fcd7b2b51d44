// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/icons.h"

#include "app/common/window_resources.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <memory>
#include <utility>

namespace zelto {
namespace {

QString iconPath(QLatin1String name) {
    return windowResource(QStringLiteral("icons/") + name + QStringLiteral(".svg"));
}

QColor lineColor(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        default:
            return palette.color(QPalette::ButtonText);
    }
}

class LineIconEngine : public QIconEngine {
  public:
    explicit LineIconEngine(std::shared_ptr<QSvgRenderer> drawing, bool onAccent = false)
        : svg_(std::move(drawing)), onAccent_(onAccent) {}
    explicit LineIconEngine(QImage drawing) : image_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        QImage drawn(size, QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        if (svg_) {
            svg_->render(&painter);
        } else {
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(drawn.rect(), image_);
        }
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(drawn.rect(),
                         lineColor(onAccent_ && mode == QIcon::Normal ? QIcon::Selected : mode));
        painter.end();
        return QPixmap::fromImage(std::move(drawn));
    }

    QIconEngine* clone() const override { return new LineIconEngine(*this); }

  private:
    std::shared_ptr<QSvgRenderer> svg_;
    QImage image_;
    bool onAccent_ = false;
};

}  // namespace

QIcon lineIcon(QLatin1String name) {
    return QIcon(new LineIconEngine(std::make_shared<QSvgRenderer>(iconPath(name))));
}

QIcon accentIcon(QLatin1String name) {
    return QIcon(new LineIconEngine(std::make_shared<QSvgRenderer>(iconPath(name)), true));
}

QIcon lineIcon(const QImage& drawing) {
    return QIcon(new LineIconEngine(drawing));
}

QIcon colorIcon(QLatin1String name) {
    return QIcon(iconPath(name));
}

QIcon applicationIcon() {
    return colorIcon(QLatin1String("zelto"));
}

}  // namespace zelto
