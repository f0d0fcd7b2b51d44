// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for the format of a date macro, with what each of its letters prints and a sample of the whole, and
// remembers the format that was confirmed last. Main thread only.
#pragma once

#include <QDateTime>
#include <QDialog>
#include <QList>
#include <QLocale>

class QComboBox;
class QLabel;

namespace zelto {

class DateFormatWindowControlller : public QDialog {
    Q_OBJECT

  public:
    // `macroName` is the macro to complete, such as "<<TODAYDATE>>"; `now` the moment of the sample.
    DateFormatWindowControlller(QString macroName, const QDateTime& now, QWidget* parent = nullptr);

    // The completed macro, once the dialog was accepted.
    const QString& MacroName() const { return macroName_; }

  private:
    void GetDatePreview();
    void SetMacroandClose();

    QString macroName_;
    QDateTime now_;
    QLocale locale_;
    QComboBox* dateFormat_;
    QLabel* dateFormatSample_;
    QList<QLabel*> legend_;
};

}  // namespace zelto
