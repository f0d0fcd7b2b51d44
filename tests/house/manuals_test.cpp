// SPDX-License-Identifier: GPL-3.0-or-later
// What is told of the two programs' options in different places: help, manual page, completions, guide.
#include "support/run_program.h"
#include "support/testing.h"

#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>

namespace zelto {
namespace {

QByteArray generated(const QString& program, const QString& kind, const QString& language = u"en"_s) {
    const ProgramRun run = runProgram(program, {u"--generate"_s, kind},
                                      {{u"QT_QPA_PLATFORM"_s, u"none"_s},
                                       {u"LC_ALL"_s, {}},
                                       {u"LC_MESSAGES"_s, language},
                                       {u"LANGUAGE"_s, language}});
    EXPECT_EQ(run.exitStatus, 0) << kind.toStdString() << run.errors.toStdString();
    return run.output;
}

QString kept(const QTemporaryDir& folder, const QString& name, const QByteArray& text) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(text) == text.size());
    return file.fileName();
}

TEST(Manuals, EveryOptionIsToldEverywhere) {
    const QTemporaryDir folder;
    for (const QString& program :
         {QStringLiteral(ZELTO_BATCH_PROGRAM), QStringLiteral(ZELTO_WINDOW_PROGRAM)}) {
        const ProgramRun help = runProgram(program, {u"--help"_s}, {{u"QT_QPA_PLATFORM"_s, u"none"_s}});
        static const QRegularExpression heading(uR"(^ {2,6}(?:-\w, )?--([a-z-]+))"_s,
                                                QRegularExpression::MultilineOption);
        QStringList options;
        for (auto match = heading.globalMatch(QString::fromUtf8(help.output)); match.hasNext();)
            options.append(match.next().captured(1));
        ASSERT_TRUE(options.contains(u"setting"_s)) << help.errors.toStdString();
        // How a shell that is installed here reads its file without running it.
        const std::pair<QString, QStringList> readers[] = {
            {u"man"_s, {u"--warnings"_s, u"-E"_s, u"UTF-8"_s, u"-l"_s}},
            {u"bash"_s, {u"-n"_s}},
            {u"zsh"_s, {u"-n"_s}},
            {u"fish"_s, {u"-n"_s}},
            {u"markdown"_s, {}}};
        for (const auto& [kind, arguments] : readers) {
            const QByteArray text = generated(program, kind);
            const QString plain = QString::fromUtf8(text).remove(u"\\fR"_s).remove(u'\\');
            for (const QString& option : options) {
                const QRegularExpression told(uR"((--|-l )%1(?![a-z-]))"_s.arg(option));
                EXPECT_TRUE(plain.contains(told)) << option.toStdString() << " in " << kind.toStdString();
            }
            if (QStandardPaths::findExecutable(kind).isEmpty()) continue;
            const ProgramRun read = runProgram(kind, arguments + QStringList(kept(folder, kind, text)));
            EXPECT_EQ(read.exitStatus, 0) << kind.toStdString();
            EXPECT_EQ(read.errors, QByteArray()) << kind.toStdString();
        }
    }
    for (const auto& [name, language] : {std::pair("options.md", u"en"_s), {"de/options.md", u"de"_s}}) {
        QFile page(QStringLiteral(ZELTO_SOURCE_DIR "/docs/guide/") + QLatin1String(name));
        ASSERT_TRUE(page.open(QFile::ReadOnly));
        EXPECT_EQ(page.readAll().toStdString(),
                  generated(QStringLiteral(ZELTO_BATCH_PROGRAM), u"markdown"_s, language).toStdString())
            << "make it anew: LC_MESSAGES=" << qPrintable(language) << " LANGUAGE=" << qPrintable(language)
            << " zelto-batch --generate markdown > docs/guide/" << name;
    }
}

TEST(Manuals, BashCompletesValuesAndRunsNoName) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"Zelto/Settings"_s)));
    const QString name = u"My $(touch ran)"_s;
    kept(folder, u"Zelto/Settings/%1.zcs"_s.arg(name), "<Watermarks/>");
    const QString file =
        kept(folder, u"completion"_s, generated(QStringLiteral(ZELTO_BATCH_PROGRAM), u"bash"_s));
    const QString script =
        uR"(cd '%1'; zelto-batch() { '%2' "$@"; }; . '%3'
        try() { COMP_WORDS=(zelto-batch "$@"); COMP_CWORD=$#; _zelto_batch_complete; echo "${COMPREPLY[*]}"; }
        try --format w; try --extensions = png,we; try -s My; try --dry)"_s;
    const ProgramRun run =
        runProgram(u"bash"_s, {u"-c"_s, script.arg(folder.path(), QStringLiteral(ZELTO_BATCH_PROGRAM), file)},
                   {{u"XDG_DATA_HOME"_s, folder.path()}});
    EXPECT_EQ(run.output.toStdString(), "webp\npng,webp\n" + name.toStdString() + "\n--dry-run\n")
        << run.errors.toStdString();
    EXPECT_FALSE(QFile::exists(folder.filePath(u"ran"_s)));
}

}  // namespace
}  // namespace zelto
