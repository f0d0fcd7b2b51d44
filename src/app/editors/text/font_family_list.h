// SPDX-License-Identifier: GPL-3.0-or-later
// The installed font families, each written in its own face, and a field that finds them by a part of their
// names. Says so when the family it is loaded with is not installed. Main thread only.
#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;
class QSortFilterProxyModel;

namespace zelto {

class FontFamilyList : public QWidget {
    Q_OBJECT

  public:
    explicit FontFamilyList(QWidget* parent = nullptr);

    // Shows a family without telling anyone.
    void load(const QString& family);

    QLineEdit& search() { return *search_; }
    QListView& list() { return *list_; }

  Q_SIGNALS:
    void chosen(const QString& family);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void find(const QString& part);
    void showFamily();
    void choose(const QModelIndex& row);

    QString family_;
    QSortFilterProxyModel* found_;
    QLineEdit* search_;
    QListView* list_;
    QLabel* missing_;
    bool isShowing_ = false;  // the list moves by itself
};

}  // namespace zelto
