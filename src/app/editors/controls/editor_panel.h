// SPDX-License-Identifier: GPL-3.0-or-later
// An editor without the window around it. It shows what it edits whenever that has changed and performs edits at once;
// whatever holds it (a dialog, a column beside the photo) adds the buttons and ends the session. Main thread only.
#pragma once

#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/watermark_session.h"

#include <QFormLayout>
#include <QWidget>

namespace zelto {

class EditorPanel : public QWidget {
    Q_OBJECT

  public:
    // `name` stands for this kind of editor where its place is remembered. The control that is to have the keyboard at
    // first is the panel's focus proxy.
    EditorPanel(const QString& name, const QString& title);

    // Shows anew what is edited.
    virtual void load() = 0;

  Q_SIGNALS:
    // The user has chosen and need not see the panel any longer.
    void done();
};

// The panel of one watermark, with controls bound to its record. The session outlives it.
class RecordPanel : public EditorPanel {
    Q_OBJECT

  public:
    RecordPanel(const QString& name, const QString& title, WatermarkSession& session);

    void load() final { LoadWatermarkSettings(); }

  protected:
    WatermarkSession& session() const { return session_; }
    RecordBinder<Watermark>& binder() { return binder_; }

  private:
    void LoadWatermarkSettings() { binder_.load(session_.record()); }

    WatermarkSession& session_;
    RecordBinder<Watermark> binder_;
};

// Adds a row whose label, with a mnemonic, is the buddy and the accessible name of its control.
void addRow(QFormLayout& form, const QString& label, QWidget* control);

}  // namespace zelto
