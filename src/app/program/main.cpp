// SPDX-License-Identifier: GPL-3.0-or-later
// The window program: zelto [--setting NAME_OR_FILE] [PHOTO_OR_FOLDER...]
#include "app/common/icons.h"
#include "app/dialogs/standard_dialogs.h"
#include "app/editors/standard_editors.h"
#include "app/program/app_delegate.h"
#include "platform/languages.h"
#include "platform/process_setup.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char** argv) {
    zelto::prepareProcess();
    QApplication application(argc, argv);
    zelto::speakUsersLanguage();
    QApplication::setApplicationName(QStringLiteral("Zelto"));
    QApplication::setApplicationVersion(QStringLiteral(ZELTO_VERSION));
    QApplication::setWindowIcon(zelto::applicationIcon());

    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "Watermarks for batches of photos."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption setting(
        {QStringLiteral("s"), QStringLiteral("setting")},
        QApplication::translate("main", "Start with a saved setting or a setting file."),
        QStringLiteral("name or file"));
    parser.addOption(setting);
    parser.addPositionalArgument(
        QStringLiteral("photos"),
        QApplication::translate("main", "Photos, or folders of photos, to begin with."),
        QStringLiteral("[photos...]"));
    parser.process(application);

    zelto::StartRequest request;
    if (parser.isSet(setting)) request.setting = parser.value(setting);
    request.photos = parser.positionalArguments();
    zelto::AppDelegate delegate(zelto::standardDialogs(), zelto::standardEditors());
    delegate.start(request);
    return QApplication::exec();
}
