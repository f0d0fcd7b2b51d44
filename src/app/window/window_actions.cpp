// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/window_actions.h"

#include "app/common/icons.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <utility>

namespace zelto {
namespace {

// When an action can be done.
enum Needs : unsigned {
    Nothing = 0,
    Photos = 1,       // at least one photo in the list
    Rows = 2,         // at least one row in the watermark list
    SelectedRow = 4,  // one of them is selected
    Idle = 8,         // no run under way
    Run = 256         // one that has not come to its end
};

struct ActionRow {
    Act act;
    const char* menu;
    const char* text;
    const char* icon;
    const char* shortcut;  // in portable text; empty for none
    unsigned needs;
    bool endsGroup = false;  // a separator follows in the menu
};

#define TEXT(text) QT_TRANSLATE_NOOP("zelto::WindowActions", text)
const char* const FileMenu = TEXT("&File");
const char* const EditMenu = TEXT("&Edit");
const char* const PhotosMenu = TEXT("&Photos");
const char* const WatermarksMenu = TEXT("&Watermarks");
const char* const AddMenu = TEXT("&Add");
const char* const ViewMenu = TEXT("&View");
const char* const HelpMenu = TEXT("&Help");

const std::array Rows_ = {
    ActionRow{Act::SaveSettings, FileMenu, TEXT("&Save Setting..."), "save", "Ctrl+S", Photos | Idle},
    ActionRow{Act::OpenSettings, FileMenu, TEXT("Saved Se&ttings..."), "settings-list", "Ctrl+L", Idle, true},
    ActionRow{Act::ImportSettings, FileMenu, TEXT("&Import Settings..."), "import", "", Idle},
    ActionRow{Act::ExportSettings, FileMenu, TEXT("&Export Settings..."), "export", "", Idle, true},
    ActionRow{Act::Start, FileMenu, TEXT("Start &Watermarking..."), "start", "Ctrl+Return", Photos | Idle},
    ActionRow{Act::PauseRun, FileMenu, TEXT("&Pause or Resume"), "pause", "Ctrl+P", Run},
    ActionRow{Act::CancelRun, FileMenu, TEXT("&Cancel Watermarking"), "stop", "Ctrl+.", Run, true},
    ActionRow{Act::Quit, FileMenu, TEXT("&Quit"), "", "Ctrl+Q", Nothing},
    ActionRow{Act::Paste, EditMenu, TEXT("&Paste"), "", "Ctrl+V", Idle},
    ActionRow{Act::AddPhotos, PhotosMenu, TEXT("&Add Photos..."), "add-photos", "Ctrl+O", Idle},
    ActionRow{Act::AddFolder, PhotosMenu, TEXT("Add &Folder..."), "add-folder", "Ctrl+Shift+O", Idle, true},
    ActionRow{Act::RemovePhoto, PhotosMenu, TEXT("&Remove Photo"), "remove", "Del", Photos | Idle},
    ActionRow{Act::RemoveAllPhotos, PhotosMenu, TEXT("Remove A&ll Photos"), "remove-all", "", Photos | Idle,
              true},
    ActionRow{Act::CheckAll, PhotosMenu, TEXT("&Check All"), "check-all", "Ctrl+Shift+A", Photos | Idle},
    ActionRow{Act::UncheckAll, PhotosMenu, TEXT("&Uncheck All"), "", "", Photos | Idle},
    ActionRow{Act::ToggleCheck, PhotosMenu, TEXT("&Toggle Check Marks"), "", "Ctrl+Shift+T", Photos | Idle,
              true},
    ActionRow{Act::NextPhoto, PhotosMenu, TEXT("&Next Photo"), "", "PgDown", Photos | Idle},
    ActionRow{Act::PreviousPhoto, PhotosMenu, TEXT("&Previous Photo"), "", "PgUp", Photos | Idle},
    ActionRow{Act::FindPhotos, PhotosMenu, TEXT("F&ind Photos"), "find", "Ctrl+F", Photos | Idle, true},
    ActionRow{Act::SortByName, PhotosMenu, TEXT("&Sort by Name"), "", "", Photos | Idle},
    ActionRow{Act::SortByDate, PhotosMenu, TEXT("Sort by &Date Taken"), "", "", Photos | Idle},
    ActionRow{Act::AddText, AddMenu, TEXT("&Text..."), "text", "Ctrl+T", Photos | Idle},
    ActionRow{Act::AddImage, AddMenu, TEXT("&Image..."), "image", "Ctrl+I", Photos | Idle},
    ActionRow{Act::AddShape, AddMenu, TEXT("&Shape..."), "shape", "", Photos | Idle},
    ActionRow{Act::AddQrCode, AddMenu, TEXT("&QR Code..."), "qr-code", "", Photos | Idle, true},
    ActionRow{Act::AddFilter, AddMenu, TEXT("&Filter..."), "filter", "", Photos | Idle},
    ActionRow{Act::AddEffects, AddMenu, TEXT("&Border and Shadow..."), "effects", "", Photos | Idle},
    ActionRow{Act::AddCopyright, AddMenu, TEXT("&Copyright..."), "copyright", "", Photos | Idle},
    ActionRow{Act::EditWatermark, WatermarksMenu, TEXT("&Edit..."), "edit", "F2", SelectedRow | Idle, true},
    ActionRow{Act::MoveUp, WatermarksMenu, TEXT("Move &Up"), "move-up", "Alt+Up",
              Photos | SelectedRow | Idle},
    ActionRow{Act::MoveDown, WatermarksMenu, TEXT("Move &Down"), "move-down", "Alt+Down",
              Photos | SelectedRow | Idle, true},
    ActionRow{Act::RemoveWatermark, WatermarksMenu, TEXT("&Remove Watermark"), "remove", "Del",
              Photos | SelectedRow | Idle},
    ActionRow{Act::RemoveAllWatermarks, WatermarksMenu, TEXT("Remove A&ll Watermarks"), "remove-all", "",
              Photos | Rows | Idle},
    ActionRow{Act::ZoomIn, ViewMenu, TEXT("Zoom &In"), "zoom-in", "Ctrl++", Photos | Idle},
    ActionRow{Act::ZoomOut, ViewMenu, TEXT("Zoom &Out"), "zoom-out", "Ctrl+-", Photos | Idle, true},
    ActionRow{Act::FitToScreen, ViewMenu, TEXT("&Fit to Screen"), "zoom-fit", "Ctrl+0", Photos | Idle},
    ActionRow{Act::ActualSize, ViewMenu, TEXT("&Actual Size"), "zoom-actual", "Ctrl+1", Photos | Idle, true},
    ActionRow{Act::Contacts, ViewMenu, TEXT("&Contact View"), "contact", "F9", Photos | Idle},
    ActionRow{Act::Before, ViewMenu, TEXT("Show Without &Marks (Hold F8)"), "before", "", Photos | Idle,
              true},
    ActionRow{Act::FullScreen, ViewMenu, TEXT("F&ull Screen"), "full-screen", "F11", Photos | Idle},
    ActionRow{Act::Tips, HelpMenu, TEXT("&Tips"), "tips", "F1", Nothing},
    ActionRow{Act::VersionCheck, HelpMenu, TEXT("&Check for a New Version"), "", "", Nothing, true},
    ActionRow{Act::About, HelpMenu, TEXT("&About Zelto"), "", "", Nothing},
};
#undef TEXT

bool isAllowed(unsigned needs, const WindowState& state) {
    return (!(needs & Photos) || state.hasPhotos) && (!(needs & Rows) || state.hasRows) &&
           (!(needs & SelectedRow) || state.hasSelectedRow) && (!(needs & Idle) || !state.isRunning) &&
           (!(needs & Run) || state.hasRun);
}

}  // namespace

WindowActions::WindowActions(QWidget* window) : QObject(window), addMenu_(new QMenu(tr(AddMenu), window)) {
    addMenu_->setIcon(lineIcon(QLatin1String("add")));
    for (const ActionRow& row : Rows_) {
        auto* action = new QAction(tr(row.text), this);
        if (*row.icon != '\0') action->setIcon(lineIcon(QLatin1String(row.icon)));
        action->setShortcut(QKeySequence(QLatin1String(row.shortcut), QKeySequence::PortableText));
        // Without the shortcut, which the menu shows, and without the mark of the mnemonic.
        QString plain = tr(row.text);
        plain.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(keys.isEmpty() ? plain : tr("%1 (%2)").arg(plain, keys));
        action->setEnabled(false);
        actions_[row.act] = action;
    }
    actions_[Act::Quit]->setMenuRole(QAction::QuitRole);
    actions_[Act::About]->setMenuRole(QAction::AboutRole);
    // One key for two lists: it belongs to the one that has the focus.
    for (const Act act : {Act::RemovePhoto, Act::RemoveWatermark}) {
        actions_[act]->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    }
}

void WindowActions::connectTo(Act act, std::function<void()> perform) {
    connected_[act] = true;
    connect(actions_.at(act), &QAction::triggered, this, [perform = std::move(perform)] { perform(); });
}

void WindowActions::update(const WindowState& state) {
    bool canAdd = false;
    for (const ActionRow& row : Rows_) {
        const bool enabled = connected_.count(row.act) > 0 && isAllowed(row.needs, state);
        actions_[row.act]->setEnabled(enabled);
        canAdd = canAdd || (row.menu == AddMenu && enabled);
    }
    addMenu_->menuAction()->setEnabled(canAdd);
}

void WindowActions::fill(QMenuBar& bar, QAction* undo, QAction* redo) {
    std::map<const char*, QMenu*> menus;
    for (const char* title : {FileMenu, EditMenu, PhotosMenu, WatermarksMenu, ViewMenu, HelpMenu}) {
        menus[title] = bar.addMenu(tr(title));
    }
    menus[AddMenu] = addMenu_;
    menus[WatermarksMenu]->addMenu(addMenu_);
    menus[EditMenu]->addActions({undo, redo});
    for (const ActionRow& row : Rows_) {
        menus[row.menu]->addAction(actions_[row.act]);
        if (row.endsGroup) menus[row.menu]->addSeparator();
    }
}

}  // namespace zelto
