// SPDX-License-Identifier: GPL-3.0-or-later
// Command lines that cannot be used: exit status 2, a word about what is wrong, and nothing written.
#include "cli/batch_program.h"
#include "support/testing.h"

namespace zelto {
namespace {

using Options = BatchProgram;

TEST_F(Options, AValueThatMakesNoSenseIsNamed) {
    const QString photo = makePhoto(u"a.png"_s);
    const std::pair<const char*, const char*> rows[] = {
        {"--bogus", "bogus"},
        {"--metdata all", "did you mean “--metadata”"},
        {"--format jepg", "did you mean “jpg”"},
        {"--list-fonts --help-me", "--help-me"},
        {"--list-fonts --list-settings", "together"},
        {"--quality 101", "--quality"},
        {"-q -1", "--quality"},
        {"--format exe", "--format"},
        {"--metadata some", "--metadata"},
        {"--extensions png,exe", "exe"},
        {"--jobs 0", "--jobs"},
        {"--resize-pixels 800", "--resize-pixels"},
        {"--resize-percent 50x50%", "--resize-percent"},
        {"--longest-side -1", "--longest-side"},
        {"--longest-side 9 --resize-pixels 9x9", "another way to resize"},
        {"--rename=", "--rename"},
        {"--shard 2/2", "--shard"},
        {"--shard 1", "--shard"},
        {"--shard auto", "ZELTO_SHARD"},
        {"--shard auto/2", "JOB_COMPLETION_INDEX"},
        {"--combine-pdf", "--format pdf"},
        {"--combine-pdf --format pdf --shard 0/2", "--shard"},
        {"--watch", "--watch takes folders"},
        {"--watch --shard 0/2", "--shard"},
        {"--watch --rename [#]", "--existing"},
        {"--watch --format pdf --combine-pdf", "--combine-pdf"},
        {"--on-repeated-failure ask", "--on-repeated-failure"},
    };
    for (const auto& [arguments, complaint] : rows) {
        const ProgramRun result = run(words(arguments) + QStringList(photo));
        EXPECT_EQ(result.exitStatus, 2) << arguments;
        EXPECT_TRUE(result.errors.contains(complaint)) << arguments << ": " << result.errors.toStdString();
        EXPECT_TRUE(result.output.isEmpty()) << arguments;
    }
    EXPECT_FALSE(QFile::exists(path(u"out"_s)));
}

TEST_F(Options, WhatIsMissingOrCannotBeReadIsNamed) {
    makePhoto(u"a.png"_s);
    makeFile(u"broken.zcs"_s, "<Watermarks>\n<Watermark>\n");
    QDir().mkpath(path(u"empty"_s));
    // Words that begin with "@" are paths below the test's folder.
    const std::pair<const char*, const char*> rows[] = {
        {"", "--setting"},
        {"-s @mark.zcs @in/a.png", "--output"},
        {"-s @mark.zcs -o @out", "photos or folders"},
        {"-s Nobody -o @out @in/a.png", "Nobody"},
        {"-s ../mark -o @out @in/a.png", "../mark"},
        {"-s @broken.zcs -o @out @in/a.png", "broken.zcs"},
        {"-s @mark.zcs -o @out @none.jpg", "none.jpg"},
        {"-s @mark.zcs -o @out @empty", "no photo"},
        {"-s @mark.zcs -o @in/a.png @in/a.png", "a.png"},
        {"-s @mark.zcs -o @in --watch @in", "again and again"},
        {"-s @mark.zcs -o @. --keep-structure --watch @in", "--keep-structure"},
        {"-s @mark.zcs -o @in/a.png/x @in/a.png", "cannot be made"},
        {"-s @mark.zcs -o @out --options @broken.zcs @in/a.png", "broken.zcs"},
        {"-s @mark.zcs -o @out --options @out @in/a.png", "out"},
        {"-s @mark.zcs -o @out --copyright @out @in/a.png", "copyright"},
    };
    for (const auto& [line, complaint] : rows) {
        QStringList arguments = words(line);
        for (QString& argument : arguments)
            if (argument.startsWith(u'@')) argument = path(argument.mid(1));
        const ProgramRun result = runBare(arguments);
        EXPECT_EQ(result.exitStatus, 2) << line;
        EXPECT_TRUE(result.errors.contains(complaint)) << line << ": " << result.errors.toStdString();
    }
    EXPECT_FALSE(QFile::exists(path(u"out"_s)));
}

TEST_F(Options, HelpAndVersionNeedNothing) {
    const ProgramRun help = runBare({u"--help"_s});
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_LT(help.output.indexOf("Examples"), help.output.indexOf("--setting NAME")) << "examples first";
    for (const char* option : {"--setting", "--shard", "--on-repeated-failure", "Exit status"})
        EXPECT_TRUE(help.output.contains(option)) << option;
    EXPECT_TRUE(runBare({u"--version"_s}).output.startsWith("zelto-batch " ZELTO_VERSION "\nWith libheif "));
}

TEST_F(Options, ASettingIsFoundByItsNameOrItsPath) {
    const QString photo = makePhoto(u"a.png"_s);
    const QString home = path(u"home"_s);
    ASSERT_TRUE(QDir().mkpath(home + u"/Zelto/Settings"_s));
    ASSERT_TRUE(QFile::copy(path(u"mark.zcs"_s), home + u"/Zelto/Settings/My mark.zcs"_s));
    const QStringList arguments = {u"-s"_s, u"My mark"_s, u"-o"_s, path(u"out"_s), photo};
    EXPECT_EQ(runBare(arguments, {{u"XDG_DATA_HOME"_s, home}}).exitStatus, 0);
    EXPECT_TRUE(isMarked(output(u"a.png"_s)));
    EXPECT_EQ(QDir(home + u"/Zelto/Settings"_s).entryList(QDir::Files), QStringList(u"My mark.zcs"_s))
        << "a run saves no setting of its own";
    const ProgramRun unknown = run({u"-s"_s, u"mark"_s, photo}, {{u"XDG_DATA_HOME"_s, home}});
    EXPECT_TRUE(unknown.errors.contains("My mark")) << "the names there are help";
    EXPECT_EQ(runBare({u"--list-settings"_s}, {{u"XDG_DATA_HOME"_s, home}}).output, "My mark\n");
    EXPECT_EQ(runBare({u"--list-settings"_s}, {{u"XDG_DATA_HOME"_s, path(u"none"_s)}}).output, "");
    EXPECT_FALSE(QFile::exists(path(u"none"_s))) << "who only asks makes no folders";
}

TEST_F(Options, ASettingAndTheMachineAreToldInWords) {
    const QByteArray setting = runBare({u"--print-setting"_s, path(u"mark.zcs"_s)}).output;
    for (const char* fact : {"1. Rectangle", "10 pixels", "#ff0000", "bottom right"})
        EXPECT_TRUE(setting.contains(fact)) << fact << " in " << setting.toStdString();
    EXPECT_EQ(runBare({u"--doctor"_s}).exitStatus, 0);
    const ProgramRun ill = runBare({u"--doctor"_s}, {{u"ZELTO_EXIFTOOL"_s, path(u"none"_s)}});
    EXPECT_EQ(ill.exitStatus, 1);
    EXPECT_TRUE(ill.output.contains("libimage-exiftool-perl")) << ill.output.toStdString();
}

TEST_F(Options, OptionsThatArePrintedComeBackFromTheirFile) {
    const QString photo = makePhoto(u"a.png"_s);
    const QByteArray printed = runBare({u"--print-options"_s, u"-f"_s, u"jpg"_s, u"--longest-side"_s, u"32"_s,
                                        u"-o"_s, path(u"made"_s)})
                                   .output;
    const ProgramRun result =
        runBare({u"-s"_s, path(u"mark.zcs"_s), u"--options"_s, makeFile(u"kept.xml"_s, printed), photo});
    EXPECT_EQ(result.exitStatus, 0) << result.errors.toStdString();
    EXPECT_EQ(QImage(path(u"made/a.jpg"_s)).width(), 32);
}

}  // namespace
}  // namespace zelto
