// SPDX-License-Identifier: GPL-3.0-or-later
// The path of a folder: typed with completion, or chosen with a Browse button. Main thread only.
#pragma once

#include <QString>
#include <QWidget>

class QLineEdit;

namespace zelto {

class FolderField : public QWidget {
    Q_OBJECT

  public:
    // `chooserTitle` is that of the folder chooser.
    explicit FolderField(const QString& chooserTitle, QWidget* parent = nullptr);

    // The absolute path of what stands in the field: relative paths and "~" count from the home folder. Empty
    // for an empty field. The folder need not exist.
    QString path() const;
    void setPath(const QString& path);

    // Opens the folder chooser, at the path of the field where there is such a folder.
    void browse();

    QLineEdit& edit() { return *edit_; }

  Q_SIGNALS:
    void changed();
    // The chooser has put `path` into the field.
    void chosen(const QString& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QString chooserTitle_;
    QLineEdit* edit_;
};

}  // namespace zelto
