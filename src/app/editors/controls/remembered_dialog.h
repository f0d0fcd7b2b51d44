// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog that opens where and as large as it was the last time. Main thread only.
#pragma once

#include <QDialog>

namespace zelto {

class RememberedDialog : public QDialog {
    Q_OBJECT

  public:
    // `name` stands for this kind of dialog where its place is remembered.
    RememberedDialog(const QString& name, const QString& title, QWidget* parent);

    void done(int result) override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void place();
};

}  // namespace zelto
