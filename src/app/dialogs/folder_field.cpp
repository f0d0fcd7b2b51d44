// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/folder_field.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace zelto {

FolderField::FolderField(const QString& chooserTitle, QWidget* parent)
    : QWidget(parent), chooserTitle_(chooserTitle), edit_(new QLineEdit(this)) {
    auto* completer = new QCompleter(this);
    auto* folders = new QFileSystemModel(completer);
    folders->setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    folders->setOption(QFileSystemModel::DontWatchForChanges);
    folders->setRootPath(QString());
    completer->setModel(folders);
    edit_->setCompleter(completer);
    completer->popup()->installEventFilter(this);
    edit_->setLayoutDirection(Qt::LeftToRight);  // paths are the same everywhere
    edit_->setAccessibleName(tr("Folder"));
    setFocusProxy(edit_);

    auto* browse = new QPushButton(tr("&Browse..."), this);
    browse->setAutoDefault(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(edit_, 1);
    row->addWidget(browse);
    connect(edit_, &QLineEdit::textChanged, this, &FolderField::changed);
    connect(browse, &QPushButton::clicked, this, &FolderField::browse);
}

QString FolderField::path() const {
    const QString text = edit_->text();
    if (text.isEmpty()) return text;
    if (text == QLatin1String("~")) return QDir::homePath();
    return QDir::home().absoluteFilePath(text.startsWith(QLatin1String("~/")) ? text.mid(2) : text);
}

void FolderField::setPath(const QString& path) {
    edit_->setText(path);
}

void FolderField::browse() {
    const QString start = QFileInfo(path()).isDir() ? path() : QDir::homePath();
    const QString folder = QFileDialog::getExistingDirectory(this, chooserTitle_, start);
    if (folder.isEmpty()) return;
    setPath(folder);
    Q_EMIT chosen(folder);
}

// Enter takes the folder that is chosen among the completions; with none, it means what it means in the field.
bool FolderField::eventFilter(QObject* watched, QEvent* event) {
    QAbstractItemView* popup = edit_->completer()->popup();
    const bool isKey = watched == popup && event->type() == QEvent::KeyPress;
    if (!isKey || popup->currentIndex().isValid()) return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Tab) return false;
    popup->hide();
    QCoreApplication::sendEvent(edit_, event);
    return true;
}

}  // namespace zelto
