// SPDX-License-Identifier: GPL-3.0-or-later
// Everything the window can do, as one table: its wording, icon, shortcut, its place in the menus, and when
// it can be done at all. What an action does is connected by the window. Main thread only.
#pragma once

#include <QAction>
#include <QObject>

#include <functional>
#include <map>

class QMenuBar;
class QMenu;
class QWidget;

namespace zelto {

enum class Act {
    SaveSettings,
    OpenSettings,
    ImportSettings,
    ExportSettings,
    Start,
    PauseRun,
    CancelRun,
    Quit,
    Paste,
    AddPhotos,
    AddFolder,
    RemovePhoto,
    RemoveAllPhotos,
    CheckAll,
    UncheckAll,
    ToggleCheck,
    NextPhoto,
    PreviousPhoto,
    FindPhotos,
    SortByName,
    SortByDate,
    AddImage,
    AddText,
    AddShape,
    AddQrCode,
    AddFilter,
    AddEffects,
    AddCopyright,
    EditWatermark,
    MoveUp,
    MoveDown,
    RemoveWatermark,
    RemoveAllWatermarks,
    ZoomIn,
    ZoomOut,
    FitToScreen,
    ActualSize,
    Contacts,
    Before,
    FullScreen,
    Tips,
    VersionCheck,
    About
};

// What the state of the window allows.
struct WindowState {
    bool hasPhotos = false;
    bool hasRows = false;         // of the watermark list
    bool hasSelectedRow = false;  // of the watermark list
    bool isRunning = false;
    bool hasRun = false;  // one that can be paused or cancelled, or resumed
};

class WindowActions : public QObject {
    Q_OBJECT

  public:
    explicit WindowActions(QWidget* window);

    QAction* operator[](Act act) const { return actions_.at(act); }

    // Connects an action; one that is never connected stays disabled.
    void connectTo(Act act, std::function<void()> perform);
    // Whether an action is worth offering now.
    void update(const WindowState& state);

    // Fills the menu bar; `undo` and `redo` are the history's own actions.
    void fill(QMenuBar& bar, QAction* undo, QAction* redo);
    // The menu of what can be added to the watermark list.
    QMenu* addMenu() const { return addMenu_; }

  private:
    std::map<Act, QAction*> actions_;
    std::map<Act, bool> connected_;
    QMenu* addMenu_;
};

}  // namespace zelto
