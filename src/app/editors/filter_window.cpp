// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/filter_window.h"

#include "app/common/in_background.h"
#include "app/editors/controls/value_page.h"
#include "pictures/picture_reader.h"
#include "pictures/resample.h"
#include "render/photo_filters.h"

#include <QListWidget>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QThreadPool>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>

namespace zelto {
namespace {

constexpr int NoFilter = 0;
// In the order they are offered.
constexpr std::array Numbers = {NoFilter, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13};
constexpr QSize TileSize(92, 69);

// The filter that the photos have, and the one its row stands for.
struct FilterChoice {
    int applied = NoFilter;
    int chosen = NoFilter;

    bool operator==(const FilterChoice&) const = default;
};

// As high as all its tiles need: the page scrolls, the list does not.
class Tiles : public QListWidget {
  public:
    using QListWidget::QListWidget;

    QSize sizeHint() const override {
        return {TileSize.width() * 2, contentsSize().height() + 2 * frameWidth()};
    }
    QSize minimumSizeHint() const override { return {TileSize.width(), sizeHint().height()}; }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QListWidget::resizeEvent(event);
        doItemsLayout();
        updateGeometry();
    }
};

class FilterWindow : public ValuePage<FilterChoice> {
    Q_DECLARE_TR_FUNCTIONS(zelto::FilterWindow)

  public:
    explicit FilterWindow(WatermarkController& controller);
    ~FilterWindow() override { *cancelled_ = true; }

    void load() override;
    void showFor(const SelectedPhoto& photo) override;

  protected:
    FilterChoice value() const override;
    void put(const FilterChoice& choice) override;

  private:
    void choose(const QListWidgetItem* item);
    void makePictures(const QString& path);
    void showPicture(int row, const QImage& picture);

    QListWidget* tiles_;
    QString path_;  // of the photo in the tiles
    std::shared_ptr<std::atomic<bool>> cancelled_ = std::make_shared<std::atomic<bool>>(false);
};

FilterWindow::FilterWindow(WatermarkController& controller)
    : ValuePage(QStringLiteral("FilterWindow"), tr("Filter"), controller), tiles_(new Tiles(this)) {
    tiles_->setObjectName(QStringLiteral("Filters"));
    tiles_->setAccessibleName(tr("Filters"));
    tiles_->setViewMode(QListView::IconMode);
    tiles_->setMovement(QListView::Static);
    tiles_->setResizeMode(QListView::Adjust);
    tiles_->setUniformItemSizes(true);
    tiles_->setIconSize(TileSize);
    tiles_->setSpacing(2);
    tiles_->setFrameShape(QFrame::NoFrame);
    tiles_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPixmap blank(TileSize);
    blank.fill(Qt::transparent);
    for (const int number : Numbers) {
        auto* tile = new QListWidgetItem(QIcon(blank), GetFilterName(number), tiles_);
        tile->setData(Qt::UserRole, number);
        tile->setTextAlignment(Qt::AlignHCenter);
        tile->setSizeHint(TileSize + QSize(8, 8 + tiles_->fontMetrics().lineSpacing()));
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tiles_);
    setFocusProxy(tiles_);
    connect(tiles_, &QListWidget::currentItemChanged, this, &FilterWindow::choose);
}

FilterChoice FilterWindow::value() const {
    return {controller().document().state().Stack.SelectedFilter, controller().GetFilter()};
}

void FilterWindow::put(const FilterChoice& choice) {
    if (choice.chosen == NoFilter) {
        controller().removeFilter(visitStep());
    } else {
        controller().AddFilter(choice.chosen, visitStep());
        if (choice.applied != choice.chosen) controller().setFilterEnabled(false);
    }
}

void FilterWindow::load() {
    const auto at = std::find(Numbers.begin(), Numbers.end(), value().applied);
    const QSignalBlocker quiet(tiles_);
    tiles_->setCurrentRow(at == Numbers.end() ? 0 : static_cast<int>(at - Numbers.begin()));
}

void FilterWindow::choose(const QListWidgetItem* item) {
    const int number = item == nullptr ? NoFilter : item->data(Qt::UserRole).toInt();
    put({number, number});
}

void FilterWindow::showFor(const SelectedPhoto& photo) {
    if (photo.path == path_) return;
    path_ = photo.path;
    *cancelled_ = true;
    cancelled_ = std::make_shared<std::atomic<bool>>(false);
    if (!path_.isEmpty()) makePictures(path_);
}

// Reading the photo takes a while; the tiles fill as their pictures come.
void FilterWindow::makePictures(const QString& path) {
    const QPointer<FilterWindow> self(this);
    const QSize bound = TileSize * devicePixelRatioF();
    QThreadPool::globalInstance()->start([self, path, bound, cancelled = cancelled_] {
        Result<Picture> photo = readPicture(path);
        if (!photo || *cancelled) return;
        const QSize size = photo->image.size().scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1});
        const QImage small = resizedImage(photo->image, size);
        photo->image = {};
        for (std::size_t row = 0; row < Numbers.size() && !*cancelled; ++row) {
            const int number = Numbers[row];
            const QImage picture = number == NoFilter ? small : ApplyFilter(number, small);
            answerOnMainThread(self, [self, row, picture, cancelled] {
                if (!*cancelled) self->showPicture(static_cast<int>(row), picture);
            });
        }
    });
}

void FilterWindow::showPicture(int row, const QImage& picture) {
    QPixmap pixmap = QPixmap::fromImage(picture);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    QPixmap framed = pixmap;
    QPainter painter(&framed);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 8.0));
    painter.drawRect(QRectF(QPointF(), framed.deviceIndependentSize()));
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(framed, QIcon::Selected);  // a frame, for a tint would change the filter's colours
    tiles_->item(row)->setIcon(icon);
}

}  // namespace

Editor filterEditor() {
    return {[](WatermarkController& controller) { return new FilterWindow(controller); }, {}};
}

}  // namespace zelto
