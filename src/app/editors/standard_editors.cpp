// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/standard_editors.h"

#include "app/editors/copyright_editor.h"
#include "app/editors/effects_editor.h"
#include "app/editors/filter_window.h"
#include "app/editors/qr_code_editor.h"
#include "app/editors/shape_editor.h"
#include "app/editors/text/logo_editor.h"
#include "app/editors/text/text_editor.h"

namespace zelto {

EditorSet standardEditors() {
    return {
        {EditorKind::Image, logoEditor()},          {EditorKind::Text, textEditor()},
        {EditorKind::Shape, shapeEditor()},         {EditorKind::QrCode, qrCodeEditor()},
        {EditorKind::Filter, filterEditor()},       {EditorKind::Effects, effectsEditor()},
        {EditorKind::Copyright, copyrightEditor()},
    };
}

}  // namespace zelto
