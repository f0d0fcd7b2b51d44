// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/stack_work.h"

#include "app/common/messages.h"
#include "app/common/my_global_instance.h"
#include "app/photos/photo_list_view.h"
#include "app/preview/preview_view.h"
#include "app/watermarks/ready_made_stacks.h"
#include "app/watermarks/watermark_clipboard.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/dialog_set.h"
#include "app/window/stack_gallery.h"
#include "app/window/stack_head.h"
#include "app/window/stack_keeper.h"
#include "app/window/watermark_panel.h"
#include "app/window/window_actions.h"
#include "persistence/settings_library.h"
#include "platform/words.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>

namespace zelto {
namespace {

// What watermarks may take of the photo on show; empty without one.
QSizeF areaOf(const PreviewView& preview) {
    return preview.shown() ? QSizeF(preview.shown()->scene.referenceRect.size()) : QSizeF();
}

// ---- the clipboard

void paste(const StackParts& parts) {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) return;
    if (holdsWatermarks(*data)) {
        const Result<void> pasted = parts.watermarks.paste(*data, areaOf(parts.preview));
        if (!pasted) showAlert(&parts.window, Words::tr("Paste Error"), pasted.error().message);
    } else if (!parts.addPhotos(*data)) {
        parts.tell(Words::tr("There are neither watermarks nor photos on the clipboard."));
    }
}

// ---- saved and ready-made stacks

void saveStack(const StackParts& parts) {
    if (!parts.keeper.save()) {
        parts.dialogs.saveSettings(&parts.window, parts.watermarks);
    } else if (!parts.keeper.isChanged()) {
        parts.tell(Words::tr("“%1” is saved.").arg(parts.keeper.name()));
    }
}

void chooseStack(const StackParts& parts) {
    auto* popup = new SavedStacksPopup(parts.shared.SettingDirectory, parts.keeper.name(), &parts.window);
    QObject::connect(popup, &SavedStacksPopup::chosen, &parts.window, [parts](const QString& name) {
        const Result<void> loaded =
            SettingsLibrary(parts.shared.SettingDirectory).path(name).and_then([&parts](const QString& path) {
                return parts.watermarks.LoadWatermarkSetting(path);
            });
        if (!loaded) showAlert(&parts.window, Words::tr("Setting Load Error"), loaded.error().message);
    });
    popup->openBelow(parts.panel.head().name());
}

void addReadyMadeMenu(const StackParts& parts) {
    QMenu* menu = parts.actions.addMenu()->addMenu(Words::tr("&Ready-Made"));
    int place = 0;
    for (const ReadyMadeStack& stack : readyMadeStacks()) {
        QAction* action = menu->addAction(stack.name);
        action->setToolTip(stack.tip);
        QObject::connect(action, &QAction::triggered, &parts.watermarks,
                         [&watermarks = parts.watermarks, place] { watermarks.addReadyMade(place); });
        ++place;
    }
    menu->setToolTipsVisible(true);
}

// ---- menus

void openMenuOn(QAbstractScrollArea& view, QMenu* menu) {
    QWidget* area = view.viewport();
    area->setContextMenuPolicy(Qt::NoContextMenu);  // the event goes on to the view
    view.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&view, &QWidget::customContextMenuRequested, menu,
                     [&view, menu](QPoint place) { menu->popup(view.mapToGlobal(place)); });
}

void makeMenus(const StackParts& parts) {
    const WindowActions& actions = parts.actions;
    const auto stackMenu = [&](QWidget* parent) {
        QMenu* menu =
            actions.makeMenu({Act::EditWatermark, Act::RenameWatermark, Act::ToggleWatermark, Act::Separator,
                              Act::Cut, Act::Copy, Act::Paste, Act::DuplicateWatermark, Act::Separator,
                              Act::MoveUp, Act::MoveDown, Act::Separator, Act::RemoveWatermark},
                             parent);
        menu->insertMenu(menu->actions().first(), actions.addMenu());
        menu->insertSeparator(menu->actions().at(1));
        return menu;
    };
    openMenuOn(parts.panel.list(), stackMenu(&parts.panel));
    QMenu* onPreview = stackMenu(&parts.preview);
    onPreview->addSeparator();
    for (const Act act : {Act::FitToScreen, Act::ActualSize, Act::FullScreen})
        onPreview->addAction(actions[act]);
    openMenuOn(parts.preview, onPreview);
    openMenuOn(parts.photos,
               actions.makeMenu({Act::AddPhotos, Act::AddFolder, Act::Paste, Act::Separator, Act::CheckAll,
                                 Act::UncheckAll, Act::ToggleCheck, Act::RetryFailed, Act::Separator,
                                 Act::FullScreen, Act::Separator, Act::RemovePhoto, Act::RemoveAllPhotos},
                                &parts.photos));
}

}  // namespace

void connectStack(const StackParts& parts) {
    WindowActions& actions = parts.actions;
    const auto on = [&actions, &watermarks = parts.watermarks](Act act, auto member) {
        actions.connectTo(act, [&watermarks, member] { (watermarks.*member)(); });
    };
    on(Act::MoveUp, &WatermarkController::MoveWatermarkUp);
    on(Act::MoveDown, &WatermarkController::MoveWatermarkDown);
    on(Act::RemoveWatermark, &WatermarkController::RemoveSelectedWatermarks);
    on(Act::RemoveAllWatermarks, &WatermarkController::RemoveAllWatermarks);
    on(Act::ToggleWatermark, &WatermarkController::toggleSelected);
    on(Act::Copy, &WatermarkController::copySelected);
    on(Act::Cut, &WatermarkController::cutSelected);
    actions.connectTo(Act::Paste, [parts] { paste(parts); });
    actions.connectTo(Act::DuplicateWatermark,
                      [parts] { parts.watermarks.duplicateSelected(areaOf(parts.preview)); });
    actions.connectTo(Act::RenameWatermark, [&list = parts.panel.list()] { list.renameSelected(); });
    actions.connectTo(Act::ChooseStack, [parts] { chooseStack(parts); });
    actions.connectTo(Act::LoadAtStart,
                      [&keeper = parts.keeper] { keeper.setLoadedAtStart(!keeper.isLoadedAtStart()); });
    if (parts.dialogs.saveSettings) {
        actions.connectTo(Act::SaveSettings, [parts] { saveStack(parts); });
        actions.connectTo(Act::SaveSettingsAs,
                          [parts] { parts.dialogs.saveSettings(&parts.window, parts.watermarks); });
    }
    // The mark that is selected on the photo can be taken away and copied from there too.
    for (const Act act : {Act::RemoveWatermark, Act::Cut, Act::Copy}) parts.preview.addAction(actions[act]);
    addReadyMadeMenu(parts);
    makeMenus(parts);
    QObject::connect(&parts.watermarks, &WatermarkController::told, &parts.window, parts.tell);
}

}  // namespace zelto
