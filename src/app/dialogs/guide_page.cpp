// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/guide_page.h"

#include <QFontMetrics>
#include <QImage>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace zelto {
namespace {

constexpr double Margin = 24.0;
constexpr double LinePercent = 130.0;

// Text that is read line by line needs more room between the lines than a control has.
void setApart(QTextDocument& document) {
    QTextBlockFormat format;
    format.setLineHeight(LinePercent, QTextBlockFormat::ProportionalHeight);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
    document.setDocumentMargin(Margin);
}

}  // namespace

GuidePage::GuidePage(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(true);
    setFrameShape(QFrame::NoFrame);
}

void GuidePage::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    QTextBrowser::doSetSource(url, type);
    setApart(*document());
}

QVariant GuidePage::loadResource(int type, const QUrl& name) {
    const QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return loaded;
    QImage picture;
    if (!picture.loadFromData(loaded.toByteArray())) return loaded;
    // The pictures are taken at one pixel a dot; on a finer screen they keep all they have.
    const double ratio = devicePixelRatioF();
    const int most = qRound(MostPictureWidth * ratio);
    if (picture.width() > most) picture = picture.scaledToWidth(most, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(std::max(1.0, picture.width() / double(MostPictureWidth)));
    return picture;
}

}  // namespace zelto
