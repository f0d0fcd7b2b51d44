// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/photo_list_view.h"

#include "app/photos/image_list_controller.h"
#include "app/photos/photo_delegate.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace zelto {
namespace {

constexpr int SettleMilliseconds = 40;
constexpr int RowsAhead = 6;  // whose thumbnails are made before they are seen

}  // namespace

PhotoListView::PhotoListView(ImageListController& photos, QWidget* parent)
    : QListView(parent), photos_(photos) {
    setModel(&photos_.model());
    setSelectionModel(&photos_.selection());
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Photos"));
    setItemDelegate(new PhotoDelegate(
        thumbnails_,
        [this](const QModelIndex& index) {
            photos_.setApplyWatermark({index.row()}, index.data(Qt::CheckStateRole).toInt() != Qt::Checked);
        },
        this));
    connect(this, &QListView::doubleClicked, &photos_,
            [this](const QModelIndex& index) { photos_.ImageListDoubleClicked(index.row()); });
    connect(&photos_, &ImageListController::filtered, this, &PhotoListView::hideFilteredOut);
    settled_.setSingleShot(true);
    settled_.setInterval(SettleMilliseconds);
    connect(&settled_, &QTimer::timeout, this, &PhotoListView::wantVisible);
    // A file may have been changed, or mended, by another program meanwhile.
    connect(selectionModel(), &QItemSelectionModel::currentChanged, &settled_, qOverload<>(&QTimer::start));
    connect(&thumbnails_, &ThumbnailLoader::made, viewport(), qOverload<>(&QWidget::update));
    connect(model(), &QAbstractItemModel::rowsInserted, &settled_, qOverload<>(&QTimer::start));
    connect(model(), &QAbstractItemModel::rowsRemoved, &settled_, qOverload<>(&QTimer::start));
    connect(model(), &QAbstractItemModel::layoutChanged, this, [this] {
        scrollTo(currentIndex());
        settled_.start();
    });
    connect(model(), &QAbstractItemModel::modelReset, &settled_, qOverload<>(&QTimer::start));
}

QRect PhotoListView::checkBoxRect(int row) const {
    return PhotoDelegate::checkBoxRect(visualRect(model()->index(row, 0)), layoutDirection());
}

void PhotoListView::setReadOnly(bool readOnly) {
    isReadOnly_ = readOnly;
    setAutoScroll(!readOnly);
}

void PhotoListView::follow(int row) {
    const bool isSeen =
        !currentIndex().isValid() || viewport()->rect().intersects(visualRect(currentIndex()));
    photos_.ChangeImage(QString::number(row));
    if (isSeen) scrollTo(currentIndex());
}

// Whatever a row shows, it keeps its height: nothing is laid out anew, as the list view would do for all rows.
void PhotoListView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
    QAbstractItemView::dataChanged(first, last, roles);
}

// With all its rows the list view forgets which ones were hidden.
void PhotoListView::reset() {
    QListView::reset();
    hideFilteredOut();
}

void PhotoListView::hideFilteredOut() {
    for (int row = 0; row < photos_.count(); ++row) {
        if (isRowHidden(row) == photos_.isShown(row)) setRowHidden(row, !photos_.isShown(row));
    }
    settled_.start();
}

void PhotoListView::keyPressEvent(QKeyEvent* event) {
    if (isReadOnly_) {
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && currentIndex().isValid()) {
        std::vector<int> rows;
        for (const QModelIndex& index : selectedIndexes()) rows.push_back(index.row());
        photos_.setApplyWatermark(rows, currentIndex().data(Qt::CheckStateRole).toInt() != Qt::Checked);
        return;
    }
    QListView::keyPressEvent(event);
}

void PhotoListView::mousePressEvent(QMouseEvent* event) {
    if (!isReadOnly_) QListView::mousePressEvent(event);
}

void PhotoListView::mouseMoveEvent(QMouseEvent* event) {
    if (!isReadOnly_) QListView::mouseMoveEvent(event);
}

void PhotoListView::mouseReleaseEvent(QMouseEvent* event) {
    if (!isReadOnly_) QListView::mouseReleaseEvent(event);
}

void PhotoListView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!isReadOnly_) QListView::mouseDoubleClickEvent(event);
}

void PhotoListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (photos_.showsAllPhotos() || photos_.count() == 0 || indexAt({1, 1}).isValid()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     tr("No photo has “%1” in its name").arg(photos_.soughtName()));
}

void PhotoListView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    settled_.start();
}

void PhotoListView::scrollContentsBy(int dx, int dy) {
    QListView::scrollContentsBy(dx, dy);
    settled_.start();
}

void PhotoListView::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    settled_.start();
}

void PhotoListView::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) settled_.start();
}

void PhotoListView::wantVisible() {
    const std::vector<int> rows = photos_.shownRows();
    const int last = static_cast<int>(rows.size()) - 1;
    if (last < 0 || !isVisible()) {
        return;
    }
    const int height = std::max(1, sizeHintForRow(rows.front()));
    const int first = verticalScrollBar()->value() / height;
    const int end = (verticalScrollBar()->value() + viewport()->height()) / height;
    QStringList paths;
    const auto add = [&](int place) {
        if (place < 0 || place > last) return;
        const int row = rows[static_cast<std::size_t>(place)];
        paths.append(model()->index(row, 0).data(PhotoListModel::PathRole).toString());
    };
    for (int place = first; place <= end; ++place) add(place);
    for (int more = 1; more <= RowsAhead; ++more) {
        add(end + more);
        add(first - more);
    }
    const QSizeF size = QSizeF(PhotoDelegate::ThumbnailSize) * devicePixelRatioF();
    thumbnails_.want(paths, size.toSize());
}

}  // namespace zelto
