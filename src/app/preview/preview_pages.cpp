// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/preview_pages.h"

#include "app/photos/image_list_controller.h"
#include "app/preview/photo_cache.h"
#include "app/preview/photo_preview.h"
#include "app/watermarks/watermark_document.h"

namespace zelto {

PreviewPages::PreviewPages(ImageListController& photos, WatermarkDocument& document, PhotoPreview& preview,
                           PreviewView& canvas, QWidget* parent)
    : QStackedWidget(parent),
      photos_(photos),
      preview_(preview),
      canvas_(canvas),
      contacts_(new ContactView([this](int row) { return requestFor(row); }, this)) {
    addWidget(&canvas_);
    addWidget(contacts_);
    connect(contacts_, &ContactView::chosen, this, [this](int row) {
        showContacts(false);
        photos_.ChangeImage(QString::number(row));
    });
    connect(contacts_, &ContactView::closed, this, [this] { showContacts(false); });
    connect(&document, &WatermarkDocument::changed, this, [this](const StackChange& change) {
        const bool isSeen = change.list || !change.records.empty() || change.filter || change.effects;
        if (showsContacts() && isSeen) contacts_->updateStack();
    });
    const auto showAnew = [this] {
        if (showsContacts()) showRows();
    };
    connect(&photos_, &ImageListController::photoSelected, this, showAnew);
    connect(&photos_.model(), &QAbstractItemModel::rowsInserted, this, showAnew);
    connect(&photos_.model(), &QAbstractItemModel::rowsRemoved, this, showAnew);
}

PhotoRequest PreviewPages::requestFor(int row) const {
    const PhotoRequest request = preview_.requestFor(row);
    return isBare_ ? withoutWatermarks(request) : request;
}

void PreviewPages::setBare(bool isBare) {
    isBare_ = isBare;
    preview_.setBare(isBare);
    if (showsContacts()) contacts_->updateStack();
}

bool PreviewPages::showsContacts() const {
    return currentWidget() == contacts_;
}

void PreviewPages::showContacts(bool on) {
    if (on == showsContacts() || (on && photos_.count() == 0)) return;
    const bool hadFocus = currentWidget()->hasFocus();
    setCurrentWidget(on ? static_cast<QWidget*>(contacts_) : &canvas_);
    if (on) {
        showRows();
    } else {
        contacts_->clear();
    }
    if (on || hadFocus) currentWidget()->setFocus();
    Q_EMIT contactsShown(on);
}

// The photos that are to be written; all of them where none is.
void PreviewPages::showRows() {
    if (photos_.count() == 0) {
        showContacts(false);
        return;
    }
    std::vector<int> rows;
    std::vector<int> all;
    for (int row = 0; row < photos_.count(); ++row) {
        all.push_back(row);
        const bool isSelected = row == photos_.selectedRow();
        if (isSelected || photos_.images()[static_cast<std::size_t>(row)].ApplyWatermark) rows.push_back(row);
    }
    contacts_->showRows(rows.size() > 1 ? rows : all, photos_.selectedRow());
}

}  // namespace zelto
