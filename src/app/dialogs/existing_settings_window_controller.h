// SPDX-License-Identifier: GPL-3.0-or-later
// The list of saved settings: to load one, to delete some, and to choose which one is loaded at start-up. Main
// thread only.
#pragma once

#include "app/common/newest_worker.h"
#include "persistence/settings_library.h"

#include <QDialog>
#include <QString>

#include <optional>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace zelto {

class ExistingSettingsWindowController : public QDialog {
    Q_OBJECT

  public:
    explicit ExistingSettingsWindowController(const SettingsLibrary& library, QWidget* parent = nullptr);

    // The name of the selected setting, which is to be loaded once the dialog is accepted; empty for none.
    QString selectedName() const;

    // Marks the selected setting to be loaded at start-up, or takes the mark away.
    void SetAutoload();
    void DeleteSetting();

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLayout* makeButtons();
    void connectControls();
    // Fills the list from the folder. False when that cannot be read, and the user has been told.
    bool listSettings();
    void nameRows();
    void search(const QString& text);
    void follow();
    void takeSummary(const QString& name, const QString& summary);

    const SettingsLibrary& library_;
    QLineEdit* search_;
    QListWidget* list_;
    QLabel* summary_;
    QPushButton* load_;
    QPushButton* autoload_;
    QPushButton* delete_;
    NewestWorker<QString> reader_;  // of the setting whose summary is wanted; it must go first
};

}  // namespace zelto
