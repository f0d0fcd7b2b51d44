// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/stack_gallery.h"

#include "app/common/in_background.h"
#include "app/watermarks/ready_made_stacks.h"
#include "app/watermarks/stack_picture.h"
#include "persistence/setting_file.h"
#include "persistence/settings_library.h"
#include "platform/preferences.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace zelto {
namespace {

constexpr QSize PictureSize(150, 100);
constexpr int Columns = 2;
constexpr int RowsAtOnce = 3;
constexpr int NameRole = Qt::UserRole;
constexpr int Spacing = 8;  // between ready-made stacks

QIcon pictureIcon(QImage picture, double ratio) {
    picture.setDevicePixelRatio(ratio);
    return QIcon(QPixmap::fromImage(std::move(picture)));
}

// What stands there until the picture has come.
QIcon blankIcon(QSize size, const QPalette& palette) {
    QPixmap blank(size);
    blank.fill(palette.color(QPalette::AlternateBase));
    return QIcon(blank);
}

// Draws its pictures when it is first seen. Where there is little room they get smaller, and the names stay.
class ReadyMadeBlock : public QWidget {
  public:
    ReadyMadeBlock(QSize pictureSize, int columns, QWidget* parent)
        : QWidget(parent), size_(pictureSize), columns_(columns) {}

    void add(QToolButton* button) { buttons_.push_back(button); }

    QSize sizeHint() const override { return {QWidget::sizeHint().width(), heightWith(size_.height())}; }
    QSize minimumSizeHint() const override {
        constexpr int LeastPicture = 24;
        return {QWidget::minimumSizeHint().width(), heightWith(LeastPicture)};
    }

  protected:
    void showEvent(QShowEvent* event) override {
        QWidget::showEvent(event);
        if (!std::exchange(isDrawn_, true)) drawNext(0);
    }

    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        const int room = size_.height() - (heightWith(size_.height()) - height() + rows() - 1) / rows();
        const int pictureHeight = std::clamp(room, 1, size_.height());
        const QSize fitted(size_.width() * pictureHeight / size_.height(), pictureHeight);
        for (QToolButton* button : buttons_) {
            constexpr int Margins = 12;
            button->setIconSize(fitted);
            button->setText(fontMetrics().elidedText(button->accessibleName(), Qt::ElideRight,
                                                     button->width() - Margins));
        }
    }

  private:
    int rows() const { return (static_cast<int>(buttons_.size()) + columns_ - 1) / columns_; }
    int heightWith(int pictureHeight) const {
        constexpr int Frame = 10;  // of a button, and between picture and name
        return rows() * (pictureHeight + fontMetrics().height() + Frame) + (rows() - 1) * Spacing;
    }
    void drawNext(std::size_t place) {
        if (place >= buttons_.size()) return;
        const double ratio = devicePixelRatioF();
        const auto draw = [make = readyMadeStacks()[place].make, bound = size_ * ratio] {
            return stackPicture(make(), bound);
        };
        inBackground(this, draw, [this, place, ratio](const QImage& picture) {
            if (!picture.isNull()) buttons_[place]->setIcon(pictureIcon(picture, ratio));
            drawNext(place + 1);
        });
    }

    QSize size_;
    int columns_;
    std::vector<QToolButton*> buttons_;
    bool isDrawn_ = false;
};

}  // namespace

SavedStacksPopup::SavedStacksPopup(const QString& folder, const QString& current, QWidget* parent)
    : QFrame(parent, Qt::Popup), folder_(folder), list_(new QListWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Saved stacks"));
    list_->setObjectName(QStringLiteral("SavedStacks"));
    list_->setAccessibleName(tr("Saved stacks"));
    list_->setViewMode(QListView::IconMode);
    list_->setMovement(QListView::Static);
    list_->setResizeMode(QListView::Adjust);
    list_->setUniformItemSizes(true);
    list_->setWordWrap(true);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setIconSize(PictureSize);
    const QSize cell(PictureSize.width() + 16, PictureSize.height() + fontMetrics().height() + 18);
    list_->setGridSize(cell);
    list_->setFrameShape(QFrame::NoFrame);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(list_);

    const QStringList names = SettingsLibrary(folder_).names().value_or(QStringList());
    const QString atStart = storedPreference(preference::AutoLoadSetting).value_or(QString());
    for (const QString& name : names) {
        auto* item = new QListWidgetItem(blankIcon(PictureSize, palette()),
                                         name == atStart ? tr("%1 (at start)").arg(name) : name, list_);
        item->setData(NameRole, name);
        item->setToolTip(name == atStart ? tr("%1\nLoaded when Zelto starts").arg(name) : name);
        if (name != current) continue;
        QFont bold = list_->font();
        bold.setBold(true);
        item->setFont(bold);
        list_->setCurrentItem(item);
    }
    if (names.isEmpty()) {
        auto* none = new QLabel(tr("There are no saved stacks yet.\nSave keeps the one you see."), this);
        none->setAlignment(Qt::AlignCenter);
        none->setMargin(16);
        column->addWidget(none);
        list_->hide();
        return;
    }
    if (list_->currentRow() < 0) list_->setCurrentRow(0);
    const int rows = std::min(RowsAtOnce, (list_->count() + Columns - 1) / Columns);
    list_->setFixedSize(Columns * cell.width() + 20, rows * cell.height() + 6);
    connect(list_, &QListWidget::itemClicked, this, &SavedStacksPopup::choose);
    // Enter; a click has closed the popup already.
    connect(list_, &QListWidget::itemActivated, this, &SavedStacksPopup::choose);
    setFocusProxy(list_);
    drawNext(0);
}

void SavedStacksPopup::openBelow(QWidget& anchor) {
    adjustSize();
    const QRect screen = anchor.screen()->availableGeometry();
    QPoint place = anchor.mapToGlobal(QPoint(0, anchor.height() + 2));
    place.setX(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - width())));
    place.setY(std::clamp(place.y(), screen.top(), std::max(screen.top(), screen.bottom() - height())));
    move(place);
    show();
    list_->setFocus();
}

void SavedStacksPopup::choose() {
    const QListWidgetItem* item = list_->currentItem();
    if (item == nullptr || !isVisible()) return;
    const QString name = item->data(NameRole).toString();
    close();
    Q_EMIT chosen(name);
}

void SavedStacksPopup::drawNext(int row) {
    if (row >= list_->count()) return;
    const double ratio = devicePixelRatioF();
    const auto draw = [folder = folder_, name = list_->item(row)->data(NameRole).toString(),
                       bound = PictureSize * ratio] {
        return SettingsLibrary(folder)
            .path(name)
            .and_then([](const QString& path) { return LoadWatermarkSetting(path); })
            .map([bound](const WatermarkStack& stack) { return stackPicture(stack, bound); })
            .value_or(QImage());
    };
    inBackground(this, draw, [this, row, ratio](const QImage& picture) {
        if (!picture.isNull()) list_->item(row)->setIcon(pictureIcon(picture, ratio));
        drawNext(row + 1);
    });
}

QWidget* makeReadyMadeButtons(int columns, QSize pictureSize, const std::function<void(int place)>& chosen,
                              QWidget* parent) {
    auto* block = new ReadyMadeBlock(pictureSize, columns, parent);
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Spacing);
    int place = 0;
    for (const ReadyMadeStack& stack : readyMadeStacks()) {
        auto* button = new QToolButton(block);
        button->setObjectName(QStringLiteral("ReadyMade%1").arg(place));
        button->setText(stack.name);
        button->setToolTip(stack.tip);
        button->setAccessibleName(stack.name);
        button->setAccessibleDescription(stack.tip);
        button->setAutoRaise(true);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize(pictureSize);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
        button->setIcon(blankIcon(pictureSize, block->palette()));
        QObject::connect(button, &QToolButton::clicked, block, [chosen, place] { chosen(place); });
        grid->addWidget(button, place / columns, place % columns);
        block->add(button);
        ++place;
    }
    return block;
}

}  // namespace zelto
