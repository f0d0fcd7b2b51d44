// SPDX-License-Identifier: GPL-3.0-or-later
// The list of macros an editor shows beside its text: each with what it prints for the selected photo, found
// by typing a part of either, and inserted by a double click or the button below, by way of the dialog of its
// format where it has one. Also the way to the special characters. Main thread only.
#pragma once

#include "app/watermarks/editor_page.h"
#include "macros/photo_macros.h"

#include <QDialog>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>

class QLineEdit;
class QModelIndex;
class QPlainTextEdit;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTreeView;

namespace zelto {

enum class MacroGesture;

class MacroController : public QWidget {
    Q_OBJECT

  public:
    // Takes what was picked.
    using Insert = std::function<void(const QString& text)>;

    explicit MacroController(Insert insert, QWidget* parent = nullptr);
    // Inserts at the cursor of `text`, which outlives it.
    explicit MacroController(QPlainTextEdit& text, QWidget* parent = nullptr);

    // The photo whose values are shown. They are found out once the list is seen.
    void showFor(const SelectedPhoto& photo);

    // Does what choosing the selected row does.
    void InsertMacro();
    void MacrolistDoubleClicked(const QModelIndex& row);
    void OpenSpecialCharwindow();

    // Whether the values of the photo are there; they are found out in the background.
    bool isComplete() const { return isComplete_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void layOut();
    void read();
    void AddMacroItem(const Macro& macro, const QString& value);
    void take(const PhotoMacros& macros);
    void choose(const QModelIndex& row, MacroGesture gesture);
    template <class Dialog, class Picked>
    void openBeside(Dialog* dialog, Picked picked);

    Insert insert_;
    QList<Macro> macros_;
    QStandardItemModel* rows_;
    QSortFilterProxyModel* found_;
    QLineEdit* search_;
    QTreeView* list_;
    QPushButton* insertButton_;
    SelectedPhoto photo_;
    std::optional<SelectedPhoto> read_;  // the photo that was asked for last
    QPointer<QDialog> dialog_;           // that asks for a format or a character
    bool isComplete_ = false;
};

}  // namespace zelto
