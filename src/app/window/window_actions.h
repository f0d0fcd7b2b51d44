// SPDX-License-Identifier: GPL-3.0-or-later
// Everything the window can do, as one table: its wording, icon, shortcut, its place in the menus, and when
// it can be done at all. What an action does is connected by the window. Main thread only.
#pragma once

#include <QAction>
#include <QObject>

#include <functional>
#include <initializer_list>
#include <map>

class QMenuBar;
class QMenu;
class QWidget;

namespace zelto {

enum class Act {
    SaveSettings,
    SaveSettingsAs,
    LoadAtStart,
    ChooseStack,
    OpenSettings,
    ImportSettings,
    ExportSettings,
    Start,
    PauseRun,
    CancelRun,
    Quit,
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
    RetryFailed,
    AddImage,
    AddText,
    AddShape,
    AddQrCode,
    AddFilter,
    AddEffects,
    AddCopyright,
    Cut,
    Copy,
    Paste,
    DuplicateWatermark,
    EditWatermark,
    RenameWatermark,
    ToggleWatermark,
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
    Guide,
    Tips,
    VersionCheck,
    About,
    Separator  // no action: what lies between two in a menu
};

// What the state of the window allows.
struct WindowState {
    bool hasPhotos = false;
    bool hasFailed = false;        // photos that a run could not write
    bool hasPicture = false;       // on the preview: a photo, or the sample photo
    bool hasStack = false;         // that could be saved
    bool hasSetting = false;       // the stack has a name
    bool hasRows = false;          // of the watermark list
    bool hasSelectedRow = false;   // of the watermark list
    bool hasSelectedMark = false;  // a selected row that is a watermark
    bool isIdle = false;           // no run is under way
    bool hasRun = false;           // one that can be paused or cancelled, or resumed
};

class WindowActions : public QObject {
    Q_OBJECT

  public:
    explicit WindowActions(QWidget* window);

    QAction* operator[](Act act) const { return actions_.at(act); }

    // Connects an action; one that is never connected stays disabled.
    void connectTo(Act act, std::function<void()> perform);
    // Whether an action is worth offering now; the tooltip of one that is not says why.
    void update(const WindowState& state);

    // Fills the menu bar; `undo` and `redo` are the history's own actions.
    void fill(QMenuBar& bar, QAction* undo, QAction* redo);
    // A menu of some of the actions; Act::Separator between them.
    QMenu* makeMenu(std::initializer_list<Act> acts, QWidget* parent) const;
    // The menu of what can be added to the watermark list.
    QMenu* addMenu() const { return addMenu_; }

  private:
    std::map<Act, QAction*> actions_;
    std::map<Act, QString> toolTips_;  // of what can be done
    std::map<Act, bool> connected_;
    QMenu* addMenu_;
};

}  // namespace zelto
