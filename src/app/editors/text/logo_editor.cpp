// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_editor.h"

#include "app/editors/controls/photo_reference.h"
#include "app/editors/controls/starting_place.h"
#include "app/editors/text/logo_group.h"
#include "app/editors/text/watermark_window_controller.h"

#include <QCoreApplication>

namespace zelto {
namespace {

class LogoEditor : public WatermarkWindowController {
    Q_DECLARE_TR_FUNCTIONS(zelto::LogoEditor)

  public:
    explicit LogoEditor(WatermarkController& controller);
};

LogoEditor::LogoEditor(WatermarkController& controller)
    : WatermarkWindowController(QStringLiteral("ImageEditor"), tr("Image"), controller) {
    FoldGroup& content = addGroup(QStringLiteral("Content"), tr("Content"));
    auto* file = new LogoFileGroup(binder(), this);
    content.setContent(file);
    addLook([this, file](QWidget* parent) { return new LogoGroup(binder(), file->sample(), parent); });
    addPlaceAndTiling();
    setFocusProxy(file->start());
}

void addLogo(const EditorCall& call) {
    chooseLogo(call.window, {}, [call](const Logo& logo) {
        Watermark record = WatermarkController::startingWatermark(watermark_type::Image);
        setLogo(record, logo.path, logo.bytes, logo.size);
        startLogoSize(record, photoReference(call.controller, call.photo));
        placeWhereSeen(record, call);
        call.put(record);
    });
}

}  // namespace

Editor logoEditor() {
    return {[](WatermarkController& controller) { return new LogoEditor(controller); }, addLogo};
}

}  // namespace zelto
