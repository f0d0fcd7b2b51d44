// SPDX-License-Identifier: GPL-3.0-or-later
// Command lines that cannot be used: exit status 2, a word about what is wrong, and nothing written.
#include "cli/batch_program.h"

#include <QDir>
#include <QFile>

namespace zelto {
namespace {

using Options = BatchProgram;

QStringList words(const char* line) {
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST_F(Options, AValueThatMakesNoSenseIsNamed) {
    const QString photo = makePhoto(QStringLiteral("a.png"));
    struct Row {
        const char* arguments;
        const char* complaint;
    };
    const Row rows[] = {
        {"--bogus", "bogus"},
        {"--quality 101", "--quality"},
        {"--quality high", "--quality"},
        {"-q -1", "--quality"},
        {"--format exe", "--format"},
        {"--metadata some", "--metadata"},
        {"--extensions png,exe", "exe"},
        {"--jobs 0", "--jobs"},
        {"-j -2", "--jobs"},
        {"--resize-pixels 800", "--resize-pixels"},
        {"--resize-pixels -8x6", "--resize-pixels"},
        {"--resize-percent 50x50%", "--resize-percent"},
        {"--longest-side -1", "--longest-side"},
        {"--longest-side 9 --resize-pixels 9x9", "another way to resize"},
        {"--resize-percent 9x9 --resize-pixels 9x9", "another way to resize"},
        {"--rename=", "--rename"},
        {"--shard 2/2", "--shard"},
        {"--shard -1/2", "--shard"},
        {"--shard 1", "--shard"},
        {"--shard auto", "ZELTO_SHARD"},
        {"--shard auto/2", "JOB_COMPLETION_INDEX"},
        {"--combine-pdf", "--format pdf"},
        {"--combine-pdf --format pdf --shard 0/2", "--shard"},
        {"--on-repeated-failure ask", "--on-repeated-failure"},
    };
    for (const Row& row : rows) {
        const ProgramRun result = run(words(row.arguments) + QStringList(photo));
        EXPECT_EQ(result.exitStatus, 2) << row.arguments;
        EXPECT_TRUE(result.errors.contains(row.complaint))
            << row.arguments << ": " << result.errors.toStdString();
        EXPECT_TRUE(result.output.isEmpty()) << row.arguments;
    }
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("out"))));
}

TEST_F(Options, WhatIsMissingOrCannotBeReadIsNamed) {
    const QString photo = makePhoto(QStringLiteral("a.png"));
    const QString out = path(QStringLiteral("out"));
    const QString setting = path(QStringLiteral("mark.zcs"));
    const QString broken = makeFile(QStringLiteral("broken.zcs"), "<Watermarks>\n<Watermark>\n");
    QDir().mkpath(path(QStringLiteral("empty")));
    struct Row {
        QStringList arguments;
        const char* complaint;
    };
    const Row rows[] = {
        {{}, "--setting"},
        {{QStringLiteral("-s"), setting, photo}, "--output"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), out}, "photos or folders"},
        {{QStringLiteral("-s"), QStringLiteral("Nobody"), QStringLiteral("-o"), out, photo}, "Nobody"},
        {{QStringLiteral("-s"), QStringLiteral("../mark"), QStringLiteral("-o"), out, photo}, "../mark"},
        {{QStringLiteral("-s"), broken, QStringLiteral("-o"), out, photo}, "broken.zcs"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), out, path(QStringLiteral("none.jpg"))},
         "none.jpg"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), out, path(QStringLiteral("empty"))},
         "no photo"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), photo, photo}, "a.png"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), photo + QStringLiteral("/x"), photo},
         "cannot be made"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), out, QStringLiteral("--options"), broken,
          photo},
         "broken.zcs"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), out, QStringLiteral("--options"), out, photo},
         "out"},
        {{QStringLiteral("-s"), setting, QStringLiteral("-o"), out, QStringLiteral("--copyright"), out,
          photo},
         "copyright"},
    };
    for (const Row& row : rows) {
        const std::string line = row.arguments.join(QLatin1Char(' ')).toStdString();
        const ProgramRun result = runBare(row.arguments);
        EXPECT_EQ(result.exitStatus, 2) << line;
        EXPECT_TRUE(result.errors.contains(row.complaint)) << line << ": " << result.errors.toStdString();
    }
    EXPECT_FALSE(QFile::exists(out));
}

TEST_F(Options, HelpAndVersionNeedNothing) {
    const ProgramRun help = runBare({QStringLiteral("--help")});
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_LT(help.output.indexOf("Examples"), help.output.indexOf("Options:")) << "examples first";
    for (const char* option : {"--setting", "--shard", "--on-repeated-failure", "Exit status"}) {
        EXPECT_TRUE(help.output.contains(option)) << option;
    }
    const ProgramRun version = runBare({QStringLiteral("--version")});
    EXPECT_EQ(version.output, "zelto-batch " ZELTO_VERSION "\n");
}

TEST_F(Options, ASettingIsFoundByItsNameOrItsPath) {
    const QString photo = makePhoto(QStringLiteral("a.png"));
    const QString home = path(QStringLiteral("home"));
    ASSERT_TRUE(QDir().mkpath(home + QStringLiteral("/Zelto/Settings")));
    ASSERT_TRUE(
        QFile::copy(path(QStringLiteral("mark.zcs")), home + QStringLiteral("/Zelto/Settings/My mark.zcs")));
    const QStringList arguments = {QStringLiteral("-s"), QStringLiteral("My mark"), QStringLiteral("-o"),
                                   path(QStringLiteral("out")), photo};
    EXPECT_EQ(runBare(arguments, {{QStringLiteral("XDG_DATA_HOME"), home}}).exitStatus, 0);
    EXPECT_TRUE(isMarked(output(QStringLiteral("a.png"))));
    EXPECT_EQ(QDir(home + QStringLiteral("/Zelto/Settings")).entryList(QDir::Files),
              QStringList(QStringLiteral("My mark.zcs")))
        << "a run saves no setting of its own";
    const ProgramRun unknown =
        run({QStringLiteral("-s"), QStringLiteral("mark"), photo}, {{QStringLiteral("XDG_DATA_HOME"), home}});
    EXPECT_TRUE(unknown.errors.contains("My mark")) << "the names there are help";
}

}  // namespace
}  // namespace zelto
