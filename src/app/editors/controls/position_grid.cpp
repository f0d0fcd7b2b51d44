// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_grid.h"

#include "app/common/icons.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/tile_button.h"

#include <QGridLayout>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

constexpr std::array<const char*, 10> CellNames = {
    "",
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Top left"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Top centre"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Top right"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Middle left"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Centre"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Middle right"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Bottom left"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Bottom centre"),
    QT_TRANSLATE_NOOP("zelto::PositionGrid", "Bottom right"),
};

// A photo's outline with a filled mark at a cell.
QImage cellDrawing(int cell) {
    constexpr int Side = 96;
    constexpr int Mark = 26;
    QImage drawing(Side, Side, QImage::Format_ARGB32_Premultiplied);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF photo(6, 14, Side - 12, Side - 28);
    painter.setPen(QPen(QColor(0, 0, 0, 110), 4));
    painter.drawRoundedRect(photo, 6, 6);
    const QRectF inner = photo.adjusted(8, 8, -8 - Mark, -8 - Mark * 0.7);
    const int column = (cell - 1) % 3;
    const int row = (cell - 1) / 3;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(inner.x() + inner.width() * column / 2.0,
                                   inner.y() + inner.height() * row / 2.0, Mark, Mark * 0.7),
                            3, 3);
    return drawing;
}

}  // namespace

PositionGrid::PositionGrid(QWidget* parent) : QWidget(parent), cells_(new QButtonGroup(this)) {
    // A place on a photo does not follow the direction of reading.
    setLayoutDirection(Qt::LeftToRight);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    for (int tag = 1; tag <= 9; ++tag) {
        auto* button =
            new TileButton(lineIcon(cellDrawing(tag)), tr(CellNames.at(static_cast<std::size_t>(tag))), this);
        button->setObjectName(QStringLiteral("Cell%1").arg(tag));
        button->setMinimumSize(button->sizeHint());
        grid->addWidget(button, (tag - 1) / 3, (tag - 1) % 3);
        cells_->addButton(button, tag);
    }
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(3, 1);
    connect(cells_, &QButtonGroup::idToggled, this, [this](int tag, bool on) {
        keepOneTabStop();
        if (on) Q_EMIT chosen(tag);
    });
}

void PositionGrid::load(int cell) {
    if (cell == cells_->checkedId() || (cell < 1 && cells_->checkedId() < 1)) return;
    const QSignalBlocker quiet(cells_);
    binding::show(*cells_, cell);
    keepOneTabStop();
}

void PositionGrid::enableCells(const PositionControls& controls) {
    for (int tag = 1; tag <= 9; ++tag) cells_->button(tag)->setEnabled(controls.hasCell(tag));
    keepOneTabStop();
}

// The arrow keys go from cell to cell; Tab stops at the marked one or else at the first.
void PositionGrid::keepOneTabStop() {
    const QList<QAbstractButton*> cells = cells_->buttons();
    const QAbstractButton* stop = cells_->checkedButton();
    if (stop == nullptr) {
        const auto first =
            std::find_if(cells.begin(), cells.end(), [](const auto* cell) { return cell->isEnabled(); });
        if (first != cells.end()) stop = *first;
    }
    for (QAbstractButton* cell : cells) cell->setFocusPolicy(cell == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

}  // namespace zelto
