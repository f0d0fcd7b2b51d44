// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/logo_editor.h"

#include "app/editors/controls/editor_dialog.h"
#include "app/editors/text/logo_group.h"
#include "app/editors/text/watermark_window_controller.h"

#include <QCoreApplication>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace zelto {
namespace {

class LogoEditor : public WatermarkWindowController {
    Q_DECLARE_TR_FUNCTIONS(zelto::LogoEditor)

  public:
    explicit LogoEditor(WatermarkSession& session);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    LogoGroup* logo_ = nullptr;
};

LogoEditor::LogoEditor(WatermarkSession& session)
    : WatermarkWindowController(QStringLiteral("ImageEditor"),
                                session.isNew() ? tr("Add Image") : tr("Edit Image"), session) {
    QTabWidget* pages = makePages();
    logo_ = new LogoGroup(binder(), this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pages);
    pages->addTab(makeLookPage(logo_), tr("Image"));
    pages->addTab(makePlacePage(), tr("Position"));
}

// A new logo starts with the choice of its file.
void LogoEditor::showEvent(QShowEvent* event) {
    WatermarkWindowController::showEvent(event);
    if (event->spontaneous() || !session().isNew() || session().isInList()) return;
    QTimer::singleShot(0, logo_, &LogoGroup::SelectImageWatermark);
}

}  // namespace

void editLogo(const EditorCall& call) {
    WatermarkSession session(call, watermark_type::Image, startLogo);
    runEditor(call, session, new LogoEditor(session));
}

}  // namespace zelto
