// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/filter_window.h"

#include "app/common/in_background.h"
#include "app/editors/controls/editor_dialog.h"
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
constexpr QSize TileSize(152, 114);
constexpr int Columns = 4;  // that are seen at first
constexpr int Rows = 4;

class Tiles : public QListWidget {
  public:
    using QListWidget::QListWidget;

    QSize sizeHint() const override {
        const QSize cell = sizeHintForIndex(model()->index(0, 0)) + QSize(spacing(), spacing());
        const int scrollBar = verticalScrollBar()->sizeHint().width();
        return {Columns * cell.width() + scrollBar + 3 * spacing(), Rows * cell.height() + 2 * spacing()};
    }
};

class FilterWindow : public EditorPanel {
    Q_DECLARE_TR_FUNCTIONS(zelto::FilterWindow)

  public:
    FilterWindow(const EditorCall& call, EditorSession& session);
    ~FilterWindow() override { *cancelled_ = true; }

    void load() override;

  private:
    void choose(const QListWidgetItem* item);
    void makePictures(const QString& path);
    void showPicture(int row, const QImage& picture);

    EditorSession& session_;
    QListWidget* tiles_;
    std::shared_ptr<std::atomic<bool>> cancelled_ = std::make_shared<std::atomic<bool>>(false);
};

FilterWindow::FilterWindow(const EditorCall& call, EditorSession& session)
    : EditorPanel(QStringLiteral("FilterWindow"), tr("Filter")), session_(session), tiles_(new Tiles(this)) {
    tiles_->setObjectName(QStringLiteral("Filters"));
    tiles_->setAccessibleName(tr("Filters"));
    tiles_->setViewMode(QListView::IconMode);
    tiles_->setMovement(QListView::Static);
    tiles_->setResizeMode(QListView::Adjust);
    tiles_->setUniformItemSizes(true);
    tiles_->setIconSize(TileSize);
    tiles_->setSpacing(6);
    QPixmap blank(TileSize);
    blank.fill(Qt::transparent);
    for (const int number : Numbers) {
        auto* tile = new QListWidgetItem(QIcon(blank), GetFilterName(number), tiles_);
        tile->setData(Qt::UserRole, number);
        tile->setTextAlignment(Qt::AlignHCenter);
        tile->setSizeHint(TileSize + QSize(12, 12 + tiles_->fontMetrics().lineSpacing()));
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tiles_);
    setFocusProxy(tiles_);
    connect(tiles_, &QListWidget::currentItemChanged, this, &FilterWindow::choose);
    connect(tiles_, &QListWidget::itemDoubleClicked, this, &EditorPanel::done);
    if (!call.photoPath.isEmpty()) makePictures(call.photoPath);
}

void FilterWindow::load() {
    const int chosen = session_.controller().document().state().Stack.SelectedFilter;
    const auto at = std::find(Numbers.begin(), Numbers.end(), chosen);
    const QSignalBlocker quiet(tiles_);
    tiles_->setCurrentRow(at == Numbers.end() ? 0 : static_cast<int>(at - Numbers.begin()));
}

void FilterWindow::choose(const QListWidgetItem* item) {
    const int number = item == nullptr ? NoFilter : item->data(Qt::UserRole).toInt();
    if (number == NoFilter) {
        session_.controller().removeFilter(EditorSession::step());
    } else {
        session_.controller().AddFilter(number, EditorSession::step());
    }
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
            answerOnMainThread(self,
                               [self, row, picture] { self->showPicture(static_cast<int>(row), picture); });
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

void chooseFilter(const EditorCall& call) {
    EditorSession session(call);
    runEditor(call, session, new FilterWindow(call, session));
}

}  // namespace zelto
