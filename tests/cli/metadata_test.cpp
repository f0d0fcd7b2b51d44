// SPDX-License-Identifier: GPL-3.0-or-later
// What the outputs of a run know of their photos, read back by exiftool.
#include "cli/batch_program.h"
#include "persistence/copyright_file.h"
#include "persistence/setting_file.h"
#include "support/exiftool.h"
#include "support/testing.h"

namespace zelto {
namespace {

class Metadata : public BatchProgram {
  protected:
    QString cameraPhoto(const QString& name) const {
        const QString photo = makePhoto(name);
        EXPECT_TRUE(writeTags(
            {u"-Model=Box"_s, u"-Artist=Ann"_s, u"-GPSLatitude=47"_s, u"-GPSLatitudeRef=N"_s}, {photo}));
        return photo;
    }
    QString copyrightFile(const QString& name, const QString& creator) const {
        CopyRightMetaData metadata;
        metadata.Enabled = true;
        metadata.Creator = creator;
        EXPECT_TRUE(SaveCopyRightMetadata(metadata, path(name)));
        return path(name);
    }
    // "model/artist/latitude", "-" for what is not there.
    static QString facts(const QString& file) {
        const ProgramRun run =
            runProgram(u"exiftool"_s, {u"-f"_s, u"-n"_s, u"-p"_s, u"$Model/$Artist/$GPSLatitude"_s, file});
        return QString::fromUtf8(run.output).trimmed();
    }
};

TEST_F(Metadata, IsCarriedAsChosen) {
    const QString photo = cameraPhoto(u"a.jpg"_s);
    const QString copyright = copyrightFile(u"Copyright.xml"_s, u"Bea"_s);
    struct Row {
        QStringList arguments;
        const char* facts;
    };
    const Row rows[] = {{{}, "Box/Ann/47"},
                        {{u"--metadata"_s, u"copyright"_s}, "-/Ann/-"},
                        {{u"--metadata"_s, u"no-gps"_s}, "Box/Ann/-"},
                        {{u"--metadata"_s, u"none"_s}, "-/-/-"},
                        {{u"--copyright"_s, copyright}, "Box/Bea/47"}};
    for (const Row& row : rows) {
        ASSERT_EQ(run(row.arguments + QStringList(photo)).exitStatus, 0);
        EXPECT_EQ(facts(path(u"out/a.jpg"_s)), QLatin1String(row.facts))
            << row.arguments.join(u' ').toStdString();
    }
}

TEST_F(Metadata, TheUsersOwnCopyrightIsWrittenWhereTheSettingAsksForIt) {
    const QString photo = cameraPhoto(u"a.jpg"_s);
    WatermarkStack stack = *LoadWatermarkSetting(path(u"mark.zcs"_s));
    stack.Metadata = true;
    ASSERT_TRUE(SaveWatermarkSettings(stack, path(u"asks.zcs"_s)));
    ASSERT_TRUE(QDir().mkpath(path(u"home/Zelto"_s)));
    copyrightFile(u"home/Zelto/Copyright.xml"_s, u"Cleo"_s);
    const ProgramEnvironment home = {{u"XDG_DATA_HOME"_s, path(u"home"_s)}};
    ASSERT_EQ(run({photo}, home).exitStatus, 0);
    EXPECT_EQ(facts(path(u"out/a.jpg"_s)), u"Box/Ann/47"_s);
    ASSERT_EQ(run({u"-s"_s, path(u"asks.zcs"_s), photo}, home).exitStatus, 0);
    EXPECT_EQ(facts(path(u"out/a.jpg"_s)), u"Box/Cleo/47"_s);
}

TEST_F(Metadata, SurvivesReplacingTheSourceAndBelongsToTheLastOfOneName) {
    const QString photo = cameraPhoto(u"a.jpg"_s);
    const QString other = makePhoto(u"sub/a.jpg"_s);
    ASSERT_TRUE(writeTags({u"-Model=Other"_s}, {other}));
    ASSERT_EQ(run({photo, other}).exitStatus, 0);
    EXPECT_EQ(facts(path(u"out/a.jpg"_s)), u"Other/-/-"_s);

    ASSERT_EQ(
        runBare({u"-s"_s, path(u"mark.zcs"_s), u"-o"_s, path(u"in"_s), u"--overwrite-originals"_s, photo})
            .exitStatus,
        0);
    EXPECT_TRUE(isMarked(QImage(photo)));
    EXPECT_EQ(facts(photo), u"Box/Ann/47"_s);
    EXPECT_EQ(QDir(path(u"in"_s)).entryList(QDir::Files | QDir::Hidden), QStringList(u"a.jpg"_s));
}

TEST_F(Metadata, AMissingOrFailingExiftoolIsAWarningAndFailsNoPhoto) {
    const QStringList photos = {cameraPhoto(u"a.jpg"_s), cameraPhoto(u"b.jpg"_s)};
    const QString rubbish =
        makeFile(u"rubbish"_s,
                 "#!/bin/sh\nwhile read -r line; do case $line in -execute*) head -c 3000 /dev/urandom;"
                 " echo; echo \"{ready${line#-execute}}\";; False) exit;; esac; done\n");
    const QString dying = makeFile(u"dying"_s, "#!/bin/sh\nexit 1\n");
    for (const QString& program : {rubbish, dying})
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    for (const QString& program : {path(u"missing"_s), rubbish, dying}) {
        const ProgramRun result = run(QStringList(u"--json"_s) + photos, {{u"ZELTO_EXIFTOOL"_s, program}});
        EXPECT_EQ(result.exitStatus, 0);
        EXPECT_EQ(result.output.count("\"kind\": \"metadata\""), photos.size())
            << result.output.toStdString();
        EXPECT_TRUE(isMarked(output(u"a.jpg"_s)));
        EXPECT_EQ(facts(path(u"out/b.jpg"_s)), u"-/-/-"_s);
    }
}

}  // namespace
}  // namespace zelto
