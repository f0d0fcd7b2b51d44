// SPDX-License-Identifier: GPL-3.0-or-later
// What the window's actions do to the stack, beyond a single call of a controller: the clipboard, names, saving, the
// saved and the ready-made stacks, and the menus that a right click or the menu key opens. Main thread only.
#pragma once

#include <QString>

#include <functional>

class QMimeData;
class QWidget;

namespace zelto {

class MyGlobalInstance;
class PhotoListView;
class PreviewView;
class StackKeeper;
class WatermarkController;
class WatermarkPanel;
class WindowActions;
struct DialogSet;

struct StackParts {
    QWidget& window;
    WindowActions& actions;
    WatermarkController& watermarks;
    StackKeeper& keeper;
    WatermarkPanel& panel;
    PreviewView& preview;
    PhotoListView& photos;
    const DialogSet& dialogs;
    const MyGlobalInstance& shared;
    std::function<void(const QString& text)> tell;         // something that needs no answer
    std::function<bool(const QMimeData& data)> addPhotos;  // false where there is no photo among it
};

// Connects them for as long as the window lives.
void connectStack(const StackParts& parts);

}  // namespace zelto
