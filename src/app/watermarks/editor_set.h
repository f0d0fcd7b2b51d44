// SPDX-License-Identifier: GPL-3.0-or-later
// The editors of the watermark list, by what they edit. The rooms above fill the set; what no editor is installed for
// is not offered. Main thread only.
#pragma once

#include "app/watermarks/editor_page.h"

#include <functional>
#include <map>

namespace zelto {

class WatermarkController;
struct Watermark;

enum class EditorKind { Image, Text, Shape, QrCode, Filter, Effects, Copyright };

// What something new is made with.
struct EditorCall {
    WatermarkController& controller;
    SelectedPhoto photo;
    QWidget* window = nullptr;
    // Puts a new watermark into the list and opens it; may be called after the editor's `add` has returned.
    std::function<void(const Watermark&)> put;
};

struct Editor {
    // The page; whoever calls it becomes its owner. The controller outlives it.
    std::function<EditorPage*(WatermarkController&)> makePage;
    // Makes something new, which starts where it can be seen. For what belongs to the photo as a whole: switches it on
    // where it is not there yet, with visitStep(); may be empty.
    std::function<void(const EditorCall&)> add;
};

using EditorSet = std::map<EditorKind, Editor>;

}  // namespace zelto
