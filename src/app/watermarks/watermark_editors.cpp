// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_editors.h"

#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_controller.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

// By `Watermark::Type`; an unknown type is shown as an image.
constexpr std::array EditorOfType = {EditorKind::Image, EditorKind::Text, EditorKind::Shape,
                                     EditorKind::QrCode};

EditorKind editorOf(const Watermark& watermark) {
    const auto type = static_cast<std::size_t>(watermark.Type);
    return watermark.Type >= 0 && type < EditorOfType.size() ? EditorOfType.at(type) : EditorKind::Image;
}

}  // namespace

WatermarkEditors::WatermarkEditors(WatermarkController& watermarks, const ImageListController& photos,
                                   EditorSet editors, QWidget* window)
    : watermarks_(watermarks), photos_(photos), editors_(std::move(editors)), window_(window) {}

void WatermarkEditors::WatermarkListDoubleClicked(int row) {
    const WatermarkListModel& rows = watermarks_.model();
    if (row < 0 || row >= rows.rowCount()) return;
    switch (rows.kindOf(row)) {
        case WatermarkListModel::RowKind::Filter:
            openNew(EditorKind::Filter);
            return;
        case WatermarkListModel::RowKind::Metadata:
            openNew(EditorKind::Copyright);
            return;
        case WatermarkListModel::RowKind::Watermark:
            break;
    }
    const int index = rows.watermarkOf(row);
    watermarks_.document().setCurrentWatermark(index);
    open(editorOf(watermarks_.GetWatermarkAtRow(index)));
}

void WatermarkEditors::editSelected() {
    WatermarkListDoubleClicked(watermarks_.selectedRow());
}

void WatermarkEditors::openNew(EditorKind kind) {
    watermarks_.resetCurrentWatermarkIndex();
    open(kind);
}

void WatermarkEditors::open(EditorKind kind) {
    const auto editor = editors_.find(kind);
    if (editor == editors_.end()) return;
    watermarks_.beginSession();
    editor->second({watermarks_, photos_.selectedPath(), std::max(0, photos_.selectedRow()), window_});
    watermarks_.beginSession();
    watermarks_.resetCurrentWatermarkIndex();
}

}  // namespace zelto
