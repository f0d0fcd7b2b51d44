// SPDX-License-Identifier: GPL-3.0-or-later
// A group of controls under a title that folds it away and unfolds it. Whether a group is folded is remembered by its
// name, for all pages that have a group of that name. Main thread only.
#pragma once

#include <QToolButton>
#include <QWidget>

namespace zelto {

class FoldGroup : public QWidget {
    Q_OBJECT

  public:
    enum class AtFirst { Open, Folded };

    FoldGroup(const QString& name, const QString& title, AtFirst atFirst, QWidget* parent);

    // Becomes the parent of `content`, which is made after the group: Tab goes to the title first.
    void setContent(QWidget* content);

    bool isFolded() const { return isFolded_; }
    void setFolded(bool folded);

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show(bool folded);

    QString name_;
    AtFirst atFirst_;
    bool isFolded_ = false;
    QToolButton* title_;
    QWidget* content_ = nullptr;
};

}  // namespace zelto
