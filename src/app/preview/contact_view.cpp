// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/contact_view.h"

#include "app/common/hearing.h"
#include "app/common/in_background.h"
#include "app/preview/contact_choice.h"
#include "app/preview/preview_paint.h"
#include "pictures/picture_reader.h"

#include <QFileInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

constexpr int Gap = 10;           // around and between cells, device-independent pixels
constexpr int MostLookedAt = 90;  // photos whose size is read before the choice

}  // namespace

ContactView::ContactView(std::function<PhotoRequest(int)> requestFor, QWidget* parent)
    : QWidget(parent), requestFor_(std::move(requestFor)) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(100, 80);
    setAccessibleName(tr("Contact view"));
    setAccessibleRole(*this, QAccessible::Canvas);
    const auto cellOf = [this](int place) -> Cell* {
        const auto index = static_cast<std::size_t>(place);
        return index < cells_.size() ? &cells_[index] : nullptr;
    };
    connect(&scenes_, &ContactScenes::made, this,
            [this, cellOf](int place, const QImage& picture, QSize photoSize, const QString& warnings) {
                Cell* cell = cellOf(place);
                if (cell == nullptr) return;
                *cell = {cell->row, cell->name, picture, photoSize, {}, warnings};
                update(cellRect(place));
            });
    connect(&scenes_, &ContactScenes::failed, this, [this, cellOf](int place, const QString& message) {
        Cell* cell = cellOf(place);
        if (cell == nullptr) return;
        *cell = {cell->row, cell->name, {}, {}, message, {}};
        update(cellRect(place));
    });
}

// ---- what is shown

void ContactView::showRows(const std::vector<int>& rows, int row) {
    row_ = row;
    const std::vector<int> candidates = spreadRows(rows, row, MostLookedAt);
    QStringList paths;
    for (const int candidate : candidates) paths.append(requestFor_(candidate).path);
    isChoosing_ = true;
    inBackground(
        this,
        [paths] {
            std::vector<QSize> sizes;
            for (const QString& path : paths) sizes.push_back(readPictureSize(path).value_or(QSize()));
            return sizes;
        },
        [this, candidates, row, choice = ++choice_](const std::vector<QSize>& sizes) {
            if (choice != choice_) return;
            const auto own = std::find(candidates.begin(), candidates.end(), row) - candidates.begin();
            std::vector<int> chosen;
            for (const int place : differentPhotos(sizes, static_cast<int>(own), MostPhotos))
                chosen.push_back(candidates[static_cast<std::size_t>(place)]);
            isChoosing_ = false;
            takeRows(chosen);
        });
}

void ContactView::takeRows(const std::vector<int>& rows) {
    cells_.clear();
    current_ = 0;
    for (const int row : rows) {
        if (row == row_) current_ = static_cast<int>(cells_.size());
        cells_.push_back({row, QFileInfo(requestFor_(row).path).fileName(), {}, {}, {}, {}});
    }
    showAll();
    update();
}

std::vector<PhotoRequest> ContactView::requests() const {
    std::vector<PhotoRequest> requests;
    for (const Cell& cell : cells_) requests.push_back(requestFor_(cell.row));
    return requests;
}

void ContactView::showAll() {
    const QSizeF size = cells_.empty() ? QSizeF(1, 1) : QSizeF(pictureRect(0).size());
    scenes_.show(requests(), (size * devicePixelRatioF()).toSize().expandedTo({1, 1}));
}

void ContactView::updateStack() {
    if (!cells_.empty()) scenes_.update(requests());
}

void ContactView::clear() {
    ++choice_;
    isChoosing_ = false;
    cells_.clear();
    scenes_.show({}, {1, 1});
}

// ---- places

int ContactView::columns() const {
    return std::max(1, static_cast<int>(std::ceil(std::sqrt(static_cast<double>(cells_.size())))));
}

int ContactView::captionHeight() const {
    return fontMetrics().height() + 6;
}

QRect ContactView::cellRect(int place) const {
    const int across = columns();
    const int down = std::max(1, (static_cast<int>(cells_.size()) + across - 1) / across);
    const int cellWidth = (width() - Gap) / across - Gap;
    const int cellHeight = (height() - Gap) / down - Gap;
    return {Gap + place % across * (cellWidth + Gap), Gap + place / across * (cellHeight + Gap),
            std::max(1, cellWidth), std::max(1, cellHeight)};
}

QRect ContactView::pictureRect(int place) const {
    return cellRect(place).adjusted(4, 4, -4, -captionHeight());
}

int ContactView::placeAt(QPoint point) const {
    for (int place = 0; place < static_cast<int>(cells_.size()); ++place) {
        if (cellRect(place).contains(point)) return place;
    }
    return -1;
}

void ContactView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!cells_.empty()) showAll();
}

// ---- hands

void ContactView::mouseMoveEvent(QMouseEvent* event) {
    const int place = placeAt(event->position().toPoint());
    if (place == hovered_) return;
    hovered_ = place;
    setCursor(place < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    update();
}

void ContactView::leaveEvent(QEvent* event) {
    hovered_ = -1;
    update();
    QWidget::leaveEvent(event);
}

void ContactView::mouseReleaseEvent(QMouseEvent* event) {
    const int place = placeAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && place >= 0)
        Q_EMIT chosen(cells_[static_cast<std::size_t>(place)].row);
}

void ContactView::keyPressEvent(QKeyEvent* event) {
    const int last = static_cast<int>(cells_.size()) - 1;
    int place = current_;
    switch (event->key()) {
        case Qt::Key_Left:
            --place;
            break;
        case Qt::Key_Right:
            ++place;
            break;
        case Qt::Key_Up:
            place -= columns();
            break;
        case Qt::Key_Down:
            place += columns();
            break;
        case Qt::Key_Home:
            place = 0;
            break;
        case Qt::Key_End:
            place = last;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (current_ <= last) Q_EMIT chosen(cells_[static_cast<std::size_t>(current_)].row);
            return;
        case Qt::Key_Escape:
            Q_EMIT closed();
            return;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    if (place < 0 || place > last) return;
    current_ = place;
    update();
}

bool ContactView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int place = placeAt(help->pos());
    const QString text = place < 0 ? QString() : cells_[static_cast<std::size_t>(place)].warnings;
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

// ---- painting

void ContactView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintBackground(painter, size(), palette());
    for (int place = 0; place < static_cast<int>(cells_.size()); ++place) paintCell(painter, place);
}

void ContactView::paintCell(QPainter& painter, int place) const {
    const Cell& cell = cells_[static_cast<std::size_t>(place)];
    const QRect rect = cellRect(place);
    const bool isOwn = cell.row == row_;
    const bool hasKeyboard = place == current_ && hasFocus();
    painter.setRenderHint(QPainter::Antialiasing);
    if (place == hovered_ || hasKeyboard) {
        QColor back = palette().color(QPalette::Highlight);
        back.setAlphaF(hasKeyboard ? 0.35F : 0.2F);
        painter.setPen(hasKeyboard ? QPen(palette().color(QPalette::Highlight), 2.0) : QPen(Qt::NoPen));
        painter.setBrush(back);
        painter.drawRoundedRect(rect, 5, 5);
    }
    const QRect area = pictureRect(place);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(font());
    if (cell.picture.isNull()) {
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                         cell.message.isEmpty() ? tr("Loading...") : cell.message);
    } else {
        QRectF seen(QPointF(), QSizeF(cell.picture.size().scaled(area.size() * devicePixelRatioF(),
                                                                 Qt::KeepAspectRatio)) /
                                   devicePixelRatioF());
        seen.moveCenter(QRectF(area).center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(seen, cell.picture);
    }
    QFont captionFont = font();
    captionFont.setBold(isOwn);
    painter.setFont(captionFont);
    QString size;
    if (!cell.photoSize.isEmpty())
        size = tr("%1 \u00d7 %2").arg(cell.photoSize.width()).arg(cell.photoSize.height());
    QRect caption(rect.left() + 6, area.bottom() + 1, rect.width() - 12, captionHeight() - 1);
    if (!cell.warnings.isEmpty()) {
        const int side = fontMetrics().height();
        style()
            ->standardIcon(QStyle::SP_MessageBoxWarning)
            .paint(&painter,
                   QRect(caption.left(), caption.top() + (caption.height() - side) / 2, side, side));
        caption.setLeft(caption.left() + side + 4);
    }
    const QFontMetrics metrics(captionFont);
    const int sizeWidth = metrics.horizontalAdvance(size);
    painter.drawText(caption, Qt::AlignRight | Qt::AlignVCenter, size);
    painter.drawText(caption.adjusted(0, 0, -sizeWidth - 8, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(cell.name, Qt::ElideMiddle, caption.width() - sizeWidth - 8));
}

}  // namespace zelto
