// SPDX-License-Identifier: GPL-3.0-or-later
// For tests of the editors of texts and logos: records to edit, and the preview compared with what is written.
#pragma once

#include "app/editors/editor_test.h"
#include "render/composition.h"

#include <QImage>

namespace zelto {

class EditorWindowTest : public EditorTest {
  public:
    // Puts a record into the list, as a step that is over.
    void add(const Watermark& record) {
        window.watermarks().resetCurrentWatermarkIndex();
        window.watermarks().ReflectWatermark(record);
        window.watermarks().resetCurrentWatermarkIndex();
    }

    const Watermark& record(int index = 0) { return records().at(static_cast<std::size_t>(index)); }
    std::size_t count() { return records().size(); }

    // Has `drive` work in the editor of a row of the watermark list.
    template <class Drive>
    void editRow(int row, const Drive& drive) {
        window.watermarkList().setCurrentIndex(window.watermarks().model().index(row));
        edit(Act::EditWatermark, drive);
    }

    // Whether the preview comes to show, pixel for pixel, what would be written now.
    ::testing::AssertionResult showsWhatIsWritten() {
        const QImage onScreen = seen();
        const PhotoRequest request = window.preview().finalRequest();
        Result<PhotoScene> scene = buildPhotoScene(request);
        if (!scene) return ::testing::AssertionFailure() << "the photo cannot be read";
        const QImage written = MakeWatermarkImage(std::move(*scene), *request.stack);
        const QRect region = window.previewView().geometry().visibleRegion().rect;
        if (onScreen.convertToFormat(QImage::Format_RGB32) ==
            written.copy(region).convertToFormat(QImage::Format_RGB32)) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "it shows something else";
    }
};

}  // namespace zelto
