// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/photo_strip.h"

#include "app/common/icons.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/window_actions.h"
#include "render/photo_filters.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <functional>

namespace zelto {
namespace {

QToolButton* makeButton(const QString& name, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setIconSize({16, 16});
    return button;
}

}  // namespace

// One thing that a photo may have.
struct PhotoStrip::Part {
    const char* objectName;
    const char* name;
    struct {
        const char* add;
        const char* edit;
        const char* remove;
        const char* switchOn;
        const char* switchOff;
    } told;
    Act edit;
    bool (*isThere)(const StackState&);
    bool (*isOn)(const StackState&);
    void (WatermarkController::*setOn)(bool);
    void (*remove)(WatermarkController&);
};

PhotoStrip::PhotoStrip(WatermarkController& watermarks, WindowActions& actions, QWidget* parent)
    : QWidget(parent), watermarks_(watermarks) {
    static constexpr Part Parts[] = {
        {"Filter",
         QT_TR_NOOP("Filter"),
         {QT_TR_NOOP("Add the filter"), QT_TR_NOOP("Edit the filter"), QT_TR_NOOP("Remove the filter"),
          QT_TR_NOOP("Switch the filter on"), QT_TR_NOOP("Switch the filter off")},
         Act::AddFilter,
         [](const StackState& state) { return filterOf(state.Stack) != 0; },
         [](const StackState& state) { return state.Stack.SelectedFilter != 0; },
         &WatermarkController::setFilterEnabled,
         [](WatermarkController& all) { all.removeFilter(); }},
        {"Effects",
         QT_TR_NOOP("Border"),
         {QT_TR_NOOP("Add border and shadow"), QT_TR_NOOP("Edit border and shadow"),
          QT_TR_NOOP("Remove border and shadow"), QT_TR_NOOP("Switch border and shadow on"),
          QT_TR_NOOP("Switch border and shadow off")},
         Act::AddEffects,
         [](const StackState& state) { return effectsOf(state.Stack).has_value(); },
         [](const StackState& state) { return state.Stack.Effects.has_value(); },
         &WatermarkController::setEffectsEnabled,
         [](WatermarkController& all) { all.removeEffects(); }},
        {"Copyright",
         QT_TR_NOOP("Copyright"),
         {QT_TR_NOOP("Add the copyright data"), QT_TR_NOOP("Edit the copyright data"),
          QT_TR_NOOP("Remove the copyright data"), QT_TR_NOOP("Switch the copyright data on"),
          QT_TR_NOOP("Switch the copyright data off")},
         Act::AddCopyright,
         [](const StackState& state) { return state.Metadata.has_value(); },
         [](const StackState& state) { return state.Metadata && state.Metadata->Enabled; },
         &WatermarkController::setMetadataEnabled,
         [](WatermarkController& all) { all.removeMetadata(); }},
    };
    setAccessibleName(tr("The photo as a whole"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 3, 6, 3);
    row->setSpacing(4);
    for (const Part& part : Parts) {
        const QString name = QString::fromLatin1(part.objectName);
        Cell cell{&part, makeButton(name + QStringLiteral("Eye"), this),
                  makeButton(name + QStringLiteral("Edit"), this),
                  makeButton(name + QStringLiteral("Remove"), this)};
        cell.remove->setIcon(lineIcon(QLatin1String("close")));
        cell.remove->setIconSize({12, 12});
        cell.remove->setToolTip(tr(part.told.remove));
        cell.remove->setAccessibleName(cell.remove->toolTip());
        cell.edit->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        const QAction* edit = actions[part.edit];
        connect(cell.edit, &QToolButton::clicked, edit, &QAction::trigger);
        const auto enable = [button = cell.edit, edit] { button->setEnabled(edit->isEnabled()); };
        connect(edit, &QAction::changed, cell.edit, enable);
        enable();
        connect(cell.eye, &QToolButton::clicked, this, [this, &part] {
            const bool isOn = part.isOn(watermarks_.document().state());
            std::invoke(part.setOn, watermarks_, !isOn);
        });
        connect(cell.remove, &QToolButton::clicked, this, [this, &part] { part.remove(watermarks_); });
        auto* chip = new QHBoxLayout;
        chip->setSpacing(0);
        for (QToolButton* button : {cell.eye, cell.edit, cell.remove}) chip->addWidget(button);
        row->addLayout(chip);
        cells_.push_back(cell);
    }
    row->addStretch(1);
    connect(&watermarks_.document(), &WatermarkDocument::changed, this, &PhotoStrip::follow);
    follow();
}

void PhotoStrip::follow() {
    const StackState& state = watermarks_.document().state();
    for (const Cell& cell : cells_) {
        const Part& part = *cell.part;
        const bool isThere = part.isThere(state);
        const bool isOn = part.isOn(state);
        cell.eye->setVisible(isThere);
        cell.remove->setVisible(isThere);
        cell.eye->setIcon(lineIcon(isOn ? QLatin1String("eye") : QLatin1String("eye-off")));
        cell.eye->setToolTip(tr(isOn ? part.told.switchOff : part.told.switchOn));
        cell.eye->setAccessibleName(cell.eye->toolTip());
        cell.edit->setIcon(isThere ? QIcon() : lineIcon(QLatin1String("add")));
        cell.edit->setText(tr(part.name));
        QString what = tr(isThere ? part.told.edit : part.told.add);
        if (isThere && part.edit == Act::AddFilter)
            what = tr("%1: %2").arg(what, GetFilterName(filterOf(state.Stack)));
        cell.edit->setToolTip(what);
        cell.edit->setAccessibleName(what);
    }
}

}  // namespace zelto
