// SPDX-License-Identifier: GPL-3.0-or-later
// Picks a character that keyboards lack: one of a table of the most used ones, or any of Unicode by its name.
// Main thread only.
#pragma once

#include "app/common/newest_worker.h"
#include "platform/character_names.h"

#include <QDialog>
#include <QList>

class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;
class QPushButton;

namespace zelto {

class CharacterModel;

class SpecialCharacterWindowController : public QDialog {
    Q_OBJECT

  public:
    explicit SpecialCharacterWindowController(QWidget* parent = nullptr);
    ~SpecialCharacterWindowController() override;

    // The character chosen, as text; empty for none.
    QString character() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Query {
        QString words;
        quint64 number = 0;
    };

    void search(const QString& words);
    void take(const FoundCharacters& found, quint64 number);
    void show(const QList<char32_t>& characters, const QString& count);
    void SelectItem(const QModelIndex& index);
    void SetSpecialCharacter();

    QList<char32_t> items_;  // the table
    CharacterModel* model_;
    QLineEdit* search_;
    QListView* list_;
    QLabel* large_;
    QLabel* name_;
    QLabel* count_;
    QPushButton* insert_;
    quint64 asked_ = 0;
    NewestWorker<Query> worker_;
};

}  // namespace zelto
