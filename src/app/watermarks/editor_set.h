// SPDX-License-Identifier: GPL-3.0-or-later
// The editors the watermark list opens, by what they edit. An editor is a function: it shows its dialog,
// keeps the document up to date through the controller while the user works, and returns when the dialog is
// closed. What no editor is installed for is not offered. Main thread only.
#pragma once

#include <QString>

#include <functional>
#include <map>

class QWidget;

namespace zelto {

class WatermarkController;

enum class EditorKind { Image, Text, Shape, QrCode, Filter, Effects, Copyright };

// What an editor is opened on. A watermark's editor takes the record at the controller's CurrentWatermark, or
// starts with the controller's startingWatermark() of its type when that is none, and hands each change to
// ReflectWatermark.
struct EditorCall {
    WatermarkController& controller;
    QString photoPath;  // the selected photo; empty for none
    qint64 photoRow = 0;
    QWidget* parent = nullptr;
};

using Editor = std::function<void(const EditorCall&)>;
using EditorSet = std::map<EditorKind, Editor>;

}  // namespace zelto
