// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for the width, start and increment of a running number and shows the macro that they make and the first
// numbers it prints. Main thread only.
#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zelto {

class AutoNumberWindowController : public QDialog {
    Q_OBJECT

  public:
    explicit AutoNumberWindowController(QWidget* parent = nullptr);

    // The macro composed of the fields.
    const QString& MacroName() const { return macroName_; }

  private:
    void fieldDidChange(QLineEdit& field);
    void GenerateAutoMacro();
    void ContinueLastNumber(bool on);

    QLineEdit* txtDigits_;
    QLineEdit* txtStartingNumber_;
    QLineEdit* txtIncrement_;
    QCheckBox* chkContinue_;
    QLabel* lblMacro_;
    QLabel* sample_;
    QPushButton* btnInsertMacro_;
    QString macroName_;
};

}  // namespace zelto
