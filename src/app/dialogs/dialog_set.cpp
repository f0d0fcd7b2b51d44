// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/dialog_set.h"

#include "app/dialogs/version_check.h"

#include <QFileDialog>
#include <QMessageBox>

namespace zelto {
namespace {

QStringList choosePhotos(QWidget* parent, const QString& startFolder) {
    static const QString types =
        QStringLiteral("(*.jpg *.JPG *.gif *.GIF *.jpeg *.JPEG *.png *.PNG *.tif *.TIF *.tiff *.TIFF)");
    return QFileDialog::getOpenFileNames(parent, QFileDialog::tr("Add Photos"), startFolder,
                                         QFileDialog::tr("Photos") + QLatin1Char(' ') + types);
}

}  // namespace

DialogSet standardDialogs() {
    DialogSet dialogs;
    dialogs.choosePhotos = choosePhotos;
    dialogs.versionCheck = CheckLatestVersion;
    return dialogs;
}

void showAlert(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox alert(QMessageBox::Warning, title, title, QMessageBox::Ok, parent);
    alert.setInformativeText(text);
    alert.exec();
}

}  // namespace zelto
