// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/window_actions.h"

#include "app/common/icons.h"
#include "platform/words.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

// When an action can be done.
enum Needs : unsigned {
    Nothing = 0,
    Photos = 1,         // at least one photo in the list
    Rows = 2,           // at least one row in the watermark list
    SelectedRow = 4,    // one of them is selected
    Idle = 8,           // no run under way
    SelectedMark = 16,  // a watermark is selected, not only the filter or the copyright data
    Picture = 32,       // a photo, or the sample photo, on the preview
    Stack = 64,         // something that could be saved
    Setting = 128,      // the stack has a name and may be loaded at start
    Run = 256,          // one that has not come to its end
    Failed = 512        // photos that a run could not write
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

const char* const FileMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&File");
const char* const EditMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&Edit");
const char* const PhotosMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&Photos");
const char* const WatermarksMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&Watermarks");
const char* const AddMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&Add");
const char* const ViewMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&View");
const char* const HelpMenu = QT_TRANSLATE_NOOP("zelto::WindowActions", "&Help");

const std::array Rows_ = {
    ActionRow{Act::SaveSettings, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Save Setting"), "save",
              "Ctrl+S", Stack | Idle},
    ActionRow{Act::SaveSettingsAs, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Save Setting &As..."),
              "", "Ctrl+Shift+S", Stack | Idle},
    ActionRow{Act::LoadAtStart, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Load at Start"), "", "",
              Setting | Idle, true},
    ActionRow{Act::ChooseStack, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Saved Stac&ks"),
              "stacks", "Ctrl+Shift+L", Idle},
    ActionRow{Act::OpenSettings, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Saved Se&ttings..."),
              "settings-list", "Ctrl+L", Idle, true},
    ActionRow{Act::ImportSettings, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Import Settings..."),
              "import", "", Idle},
    ActionRow{Act::ExportSettings, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Export Settings..."),
              "export", "", Idle, true},
    ActionRow{Act::Start, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Start &Watermarking..."),
              "start", "Ctrl+Return", Photos | Idle},
    ActionRow{Act::PauseRun, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Pause or Resume"), "pause",
              "Ctrl+P", Run},
    ActionRow{Act::CancelRun, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Cancel Watermarking"),
              "stop", "Ctrl+.", Run, true},
    ActionRow{Act::Quit, FileMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Quit"), "", "Ctrl+Q", Nothing},
    ActionRow{Act::AddPhotos, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Add Photos..."),
              "add-photos", "Ctrl+O", Idle},
    ActionRow{Act::AddFolder, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Add &Folder..."),
              "add-folder", "Ctrl+Shift+O", Idle, true},
    ActionRow{Act::RemovePhoto, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Remove Photo"),
              "remove", "Del", Photos | Idle},
    ActionRow{Act::RemoveAllPhotos, PhotosMenu,
              QT_TRANSLATE_NOOP("zelto::WindowActions", "Remove A&ll Photos"), "remove-all", "",
              Photos | Idle, true},
    ActionRow{Act::CheckAll, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Check All"), "check-all",
              "Ctrl+Shift+A", Photos | Idle},
    ActionRow{Act::UncheckAll, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Uncheck All"), "", "",
              Photos | Idle},
    ActionRow{Act::ToggleCheck, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Toggle Check Marks"),
              "", "Ctrl+Shift+T", Photos | Idle, true},
    ActionRow{Act::NextPhoto, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Next Photo"), "",
              "PgDown", Photos | Idle},
    ActionRow{Act::PreviousPhoto, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Previous Photo"),
              "", "PgUp", Photos | Idle},
    ActionRow{Act::FindPhotos, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "F&ind Photos"), "find",
              "Ctrl+F", Photos | Idle, true},
    ActionRow{Act::SortByName, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Sort by Name"), "", "",
              Photos | Idle},
    ActionRow{Act::SortByDate, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Sort by &Date Taken"),
              "", "", Photos | Idle, true},
    ActionRow{Act::RetryFailed, PhotosMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Retr&y Failed"), "",
              "", Failed | Idle},
    ActionRow{Act::AddText, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Text..."), "text", "Ctrl+T",
              Idle},
    ActionRow{Act::AddImage, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Image..."), "image",
              "Ctrl+I", Idle},
    ActionRow{Act::AddShape, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Shape..."), "shape", "",
              Idle},
    ActionRow{Act::AddQrCode, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&QR Code..."), "qr-code",
              "", Idle, true},
    ActionRow{Act::AddFilter, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Filter..."), "filter", "",
              Idle},
    ActionRow{Act::AddEffects, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Border and Shadow..."),
              "effects", "", Idle},
    ActionRow{Act::AddCopyright, AddMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Copyright..."),
              "copyright", "", Idle},
    ActionRow{Act::Cut, EditMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Cu&t"), "cut", "Ctrl+X",
              SelectedMark | Idle},
    ActionRow{Act::Copy, EditMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Copy"), "copy", "Ctrl+C",
              SelectedMark | Idle},
    ActionRow{Act::Paste, EditMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Paste"), "paste", "Ctrl+V",
              Idle},
    ActionRow{Act::DuplicateWatermark, EditMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Duplicate"),
              "duplicate", "Ctrl+D", SelectedMark | Idle},
    ActionRow{Act::EditWatermark, WatermarksMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Edit..."),
              "edit", "F2", SelectedRow | Idle},
    ActionRow{Act::RenameWatermark, WatermarksMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Re&name"),
              "rename", "Shift+F2", SelectedMark | Idle},
    ActionRow{Act::ToggleWatermark, WatermarksMenu,
              QT_TRANSLATE_NOOP("zelto::WindowActions", "&Show or Hide"), "eye", "Space", SelectedRow | Idle,
              true},
    ActionRow{Act::MoveUp, WatermarksMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Move &Up"), "move-up",
              "Alt+Up", SelectedMark | Idle},
    ActionRow{Act::MoveDown, WatermarksMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Move &Down"),
              "move-down", "Alt+Down", SelectedMark | Idle, true},
    ActionRow{Act::RemoveWatermark, WatermarksMenu,
              QT_TRANSLATE_NOOP("zelto::WindowActions", "&Remove Watermark"), "remove", "Del",
              SelectedRow | Idle},
    ActionRow{Act::RemoveAllWatermarks, WatermarksMenu,
              QT_TRANSLATE_NOOP("zelto::WindowActions", "Remove A&ll Watermarks"), "remove-all", "",
              Rows | Idle},
    ActionRow{Act::ZoomIn, ViewMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Zoom &In"), "zoom-in",
              "Ctrl++", Picture | Idle},
    ActionRow{Act::ZoomOut, ViewMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "Zoom &Out"), "zoom-out",
              "Ctrl+-", Picture | Idle, true},
    ActionRow{Act::FitToScreen, ViewMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Fit to Screen"),
              "zoom-fit", "Ctrl+0", Picture | Idle},
    ActionRow{Act::ActualSize, ViewMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Actual Size"),
              "zoom-actual", "Ctrl+1", Picture | Idle, true},
    ActionRow{Act::Contacts, ViewMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Contact View"), "contact",
              "F9", Photos | Idle},
    ActionRow{Act::Before, ViewMenu,
              QT_TRANSLATE_NOOP("zelto::WindowActions", "Show Without &Marks (Hold F8)"), "before", "",
              Photos | Idle, true},
    ActionRow{Act::FullScreen, ViewMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "F&ull Screen"),
              "full-screen", "F11", Photos | Idle},
    ActionRow{Act::Guide, HelpMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Guide"), "information", "F1",
              Nothing},
    ActionRow{Act::Tips, HelpMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&Tips"), "tips", "", Nothing},
    ActionRow{Act::VersionCheck, HelpMenu,
              QT_TRANSLATE_NOOP("zelto::WindowActions", "&Check for a New Version"), "", "", Nothing, true},
    ActionRow{Act::About, HelpMenu, QT_TRANSLATE_NOOP("zelto::WindowActions", "&About Zelto"), "", "",
              Nothing},
};

// What an action may need, and what is said where it is not so; the first of these counts.
struct Need {
    Needs need;
    bool WindowState::*isMet;
    const char* whyNot;
};

constexpr Need AllNeeds[] = {
    {Idle, &WindowState::isIdle,
     QT_TRANSLATE_NOOP("zelto::WindowActions", "Not while photos are being watermarked")},
    {Run, &WindowState::hasRun, QT_TRANSLATE_NOOP("zelto::WindowActions", "No photos are being watermarked")},
    {Photos, &WindowState::hasPhotos, QT_TRANSLATE_NOOP("zelto::WindowActions", "Add photos first")},
    {Picture, &WindowState::hasPicture,
     QT_TRANSLATE_NOOP("zelto::WindowActions", "Add photos or a watermark first")},
    {Failed, &WindowState::hasFailed, QT_TRANSLATE_NOOP("zelto::WindowActions", "No photo has failed")},
    {Rows, &WindowState::hasRows, QT_TRANSLATE_NOOP("zelto::WindowActions", "There are no watermarks yet")},
    {SelectedRow, &WindowState::hasSelectedRow,
     QT_TRANSLATE_NOOP("zelto::WindowActions", "Select a watermark first")},
    {SelectedMark, &WindowState::hasSelectedMark,
     QT_TRANSLATE_NOOP("zelto::WindowActions", "Select a watermark first")},
    {Stack, &WindowState::hasStack,
     QT_TRANSLATE_NOOP("zelto::WindowActions", "There is nothing to save yet")},
    {Setting, &WindowState::hasSetting,
     QT_TRANSLATE_NOOP("zelto::WindowActions", "Save these watermarks under a name first")},
};

// Why an action with these needs cannot be done; null where it can.
const char* whyNot(unsigned needs, const WindowState& state) {
    const auto* unmet = std::find_if(std::begin(AllNeeds), std::end(AllNeeds), [&](const Need& each) {
        return (needs & each.need) != 0 && !(state.*each.isMet);
    });
    return unmet == std::end(AllNeeds) ? nullptr : unmet->whyNot;
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
        action->setToolTip(keys.isEmpty() ? plain : Words::tr("%1 (%2)").arg(plain, keys));
        action->setEnabled(false);
        actions_[row.act] = action;
    }
    actions_[Act::Quit]->setMenuRole(QAction::QuitRole);
    actions_[Act::About]->setMenuRole(QAction::AboutRole);
    actions_[Act::LoadAtStart]->setCheckable(true);
    actions_[Act::RemoveAllWatermarks]->setToolTip(
        Words::tr("Remove the watermarks, the filter and the copyright data; border and shadow stay"));
    for (const auto& [act, action] : actions_) toolTips_[act] = action->toolTip();
    // Keys that mean something else elsewhere belong to the list that has the focus.
    for (const Act act :
         {Act::RemovePhoto, Act::RemoveWatermark, Act::Cut, Act::Copy, Act::ToggleWatermark}) {
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
        const char* const reason = whyNot(row.needs, state);
        const bool enabled = connected_.count(row.act) > 0 && reason == nullptr;
        actions_[row.act]->setEnabled(enabled);
        const QString& tip = toolTips_[row.act];
        actions_[row.act]->setToolTip(reason == nullptr ? tip : tip + QLatin1Char('\n') + tr(reason));
        canAdd = canAdd || (row.menu == AddMenu && enabled);
    }
    addMenu_->menuAction()->setEnabled(canAdd);
}

QMenu* WindowActions::makeMenu(std::initializer_list<Act> acts, QWidget* parent) const {
    auto* menu = new QMenu(parent);
    for (const Act act : acts) {
        if (act == Act::Separator) {
            menu->addSeparator();
        } else {
            menu->addAction(actions_.at(act));
        }
    }
    return menu;
}

void WindowActions::fill(QMenuBar& bar, QAction* undo, QAction* redo) {
    std::map<const char*, QMenu*> menus;
    for (const char* title : {FileMenu, EditMenu, PhotosMenu, WatermarksMenu, ViewMenu, HelpMenu}) {
        menus[title] = bar.addMenu(tr(title));
    }
    menus[AddMenu] = addMenu_;
    menus[WatermarksMenu]->addMenu(addMenu_);
    menus[EditMenu]->addActions({undo, redo});
    menus[EditMenu]->addSeparator();
    for (const ActionRow& row : Rows_) {
        menus[row.menu]->addAction(actions_[row.act]);
        if (row.endsGroup) menus[row.menu]->addSeparator();
    }
}

}  // namespace zelto
