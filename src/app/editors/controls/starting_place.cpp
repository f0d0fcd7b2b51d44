// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/starting_place.h"

#include "app/editors/controls/photo_reference.h"
#include "app/editors/controls/position_rules.h"
#include "app/watermarks/watermark_controller.h"
#include "render/lengths.h"

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

// In the order they are taken: the corners, from the usual one on, before the places between them.
constexpr int Cells[] = {9, 7, 3, 1, 8, 2, 5, 4, 6};
constexpr float Margin = 0.025F;  // of the photo's shorter side
constexpr std::int64_t MarginWithoutPhoto = 40;

// The first place where nothing stands; where all are taken, the one with the fewest.
int freeCell(const std::vector<Watermark>& stack) {
    const auto standing = [&stack](int cell) {
        return std::count_if(stack.begin(), stack.end(), [cell](const Watermark& watermark) {
            return watermark.Position == cell && !watermark.HorizontalTiling && !watermark.VerticalTiling;
        });
    };
    return *std::min_element(std::begin(Cells), std::end(Cells),
                             [&](int a, int b) { return standing(a) < standing(b); });
}

}  // namespace

void placeWhereSeen(Watermark& record, const EditorCall& call) {
    const std::uint64_t alignment = record.Alignment;
    setPresetPosition(record, freeCell(call.controller.document().watermarks()));
    if (record.Type != watermark_type::Text) record.Alignment = alignment;  // which it has no use for
    const QSizeF photo = photoReference(call.controller, call.photo);
    const std::int64_t pixels =
        photo.isEmpty() ? MarginWithoutPhoto
                        : std::llround(relativeLength(Margin, std::min(photo.width(), photo.height())));
    const int column = (record.Position - 1) % 3;
    const int row = (record.Position - 1) / 3;
    const auto keepFree = [&record, pixels](const length_field::WatermarkLength& padding, bool isAtThatEdge) {
        record.*padding.Pixels = isAtThatEdge ? pixels : 0;
        record.*padding.Share = isAtThatEdge ? Margin : 0.0F;
    };
    keepFree(length_field::PaddingLeft, column == 0);
    keepFree(length_field::PaddingRight, column == 2);
    keepFree(length_field::PaddingTop, row == 0);
    keepFree(length_field::PaddingBottom, row == 2);
}

}  // namespace zelto
