// SPDX-License-Identifier: GPL-3.0-or-later
// One batch as several runs: together they write the files of a single run, byte for byte.
#include "cli/batch_program.h"
#include "support/testing.h"

#include <QJsonArray>

namespace zelto {
namespace {

class Shards : public BatchProgram {
  protected:
    Shards() {
        for (int i = 0; i < 7; ++i) makePhoto(u"%1.png"_s.arg(i), {30 + i, 20});
        makeFile(u"in/3.jpg"_s, "no photo");
    }
    QStringList arguments(const QString& shard) const {
        return {u"--shard"_s, shard, u"--rename"_s, u"[O]_[##]"_s, path(u"in"_s)};
    }
};

TEST_F(Shards, TogetherWriteWhatOneRunWrites) {
    run(arguments(u"0/1"_s));
    const auto whole = filesBelow(u"out"_s);
    ASSERT_EQ(whole.size(), 7);
    QDir(path(u"out"_s)).removeRecursively();
    QStringList indices;
    for (const QString& shard : {u"0/3"_s, u"1/3"_s, u"2/3"_s}) {
        // The damaged photo is the fourth of the list and so the first shard's.
        const QJsonObject report = this->report(arguments(shard), shard == u"0/3"_s ? 1 : 0);
        QStringList own;
        for (const QJsonValue& photo : report["photos"_L1].toArray()) {
            own.append(QString::number(photo["index"_L1].toInt()));
        }
        indices.append(own.join(u','));
    }
    EXPECT_EQ(indices, QStringList({u"0,3,6"_s, u"1,4,7"_s, u"2,5"_s}));
    EXPECT_EQ(differences(filesBelow(u"out"_s), whole), "");
}

TEST_F(Shards, ReportsAreMergedIntoThatOfOneRun) {
    const auto reportFile = [&](const QString& shard, const char* name) {
        return makeFile(QLatin1String(name), run(QStringList(u"--json"_s) + arguments(shard)).output);
    };
    const QStringList parts = {reportFile(u"1/3"_s, "1.json"), reportFile(u"0/3"_s, "0.json"),
                               reportFile(u"2/3"_s, "2.json")};
    const QByteArray whole = run(QStringList(u"--json"_s) + arguments(u"0/1"_s)).output;
    const auto merged = [&](const QStringList& files) {
        return runBare(QStringList(u"--merge-reports"_s) + files);
    };
    EXPECT_EQ(merged(parts).output.toStdString(), whole.toStdString());
    EXPECT_EQ(merged(parts).exitStatus, 1) << "one photo is damaged";
    QByteArray interrupted = run(QStringList(u"--json"_s) + arguments(u"2/3"_s)).output;
    interrupted.replace("\"interrupted\": false", "\"interrupted\": true");
    const QString broken = makeFile(u"broken.json"_s, interrupted);
    EXPECT_EQ(merged({parts[0], parts[1], broken}).exitStatus, 130);
    const std::pair<QStringList, const char*> refused[] = {
        {parts.mid(0, 2), "2/3"},
        {parts + parts.mid(2), "2/3 is there twice"},
        {parts.mid(1) + QStringList(reportFile(u"1/4"_s, "4.json")), "1/4"},
        {{path(u"mark.zcs"_s)}, "mark.zcs"},
        {{}, "name the reports"},
    };
    for (const auto& [files, complaint] : refused) {
        const ProgramRun result = merged(files);
        EXPECT_EQ(result.exitStatus, 2) << complaint;
        EXPECT_TRUE(result.errors.contains(complaint)) << result.errors.toStdString();
    }
}

TEST_F(Shards, RunUnderGnuParallelAsTheExampleSays) {
    const QString odd = path(u"it's $HOME; \"the\" folder"_s);
    ASSERT_TRUE(QDir().rename(path(u"in"_s), odd));
    const QStringList options = {u"--rename"_s, u"[O] & [##]"_s};
    run(options + QStringList(odd));
    const auto whole = filesBelow(u"out"_s);
    ASSERT_EQ(whole.size(), 7);

    const QString script = QStringLiteral(ZELTO_EXAMPLES "/many-machines/gnu-parallel.sh");
    ProgramEnvironment environment = {{u"ZELTO_BATCH"_s, program()}, {u"SHARDS"_s, u"3"_s}};
    const QStringList arguments =
        QStringList{path(u"mark.zcs"_s), path(u"sharded"_s), odd, u"--"_s, u"--json"_s} + options;
    const auto shardsRun = [&] {
        const ProgramRun result = runProgram(script, arguments, environment);
        EXPECT_EQ(result.exitStatus, 1) << "one shard has a damaged photo: " << result.errors.toStdString();
        EXPECT_EQ(differences(filesBelow(u"sharded"_s), whole), "");
        return result.output.count("\"version\"");
    };
    EXPECT_EQ(shardsRun(), 3);
    environment.insert(u"RESUME"_s, u"1"_s);
    EXPECT_EQ(shardsRun(), 1);
}

TEST_F(Shards, AreToldByTheEnvironment) {
    struct Row {
        const char* shard;
        ProgramEnvironment environment;
        const char* written;  // null: refused
    };
    const ProgramEnvironment slurm = {{u"SLURM_ARRAY_TASK_ID"_s, u"12"_s},
                                      {u"SLURM_ARRAY_TASK_MIN"_s, u"10"_s},
                                      {u"SLURM_ARRAY_TASK_COUNT"_s, u"4"_s}};
    ProgramEnvironment stepped = slurm;
    stepped.insert(u"SLURM_ARRAY_TASK_STEP"_s, u"2"_s);
    ProgramEnvironment both = slurm;
    both.insert(u"ZELTO_SHARD"_s, u"7/8"_s);
    ProgramEnvironment beyond = slurm;
    beyond.insert(u"SLURM_ARRAY_TASK_ID"_s, u"14"_s);
    const Row rows[] = {
        {"auto", {{u"ZELTO_SHARD"_s, u"2/4"_s}}, "2_03.png 5_07.png"},
        {"auto", both, "6_08.png"},
        {"auto", slurm, "2_03.png 5_07.png"},
        {"auto", stepped, "1_02.png 4_06.png"},
        {"auto", beyond, nullptr},
        {"auto", {{u"ZELTO_SHARD"_s, u"4/4"_s}}, nullptr},
        {"auto/5", {{u"JOB_COMPLETION_INDEX"_s, u"0"_s}}, "0_01.png 4_06.png"},
        {"auto/5", {{u"JOB_COMPLETION_INDEX"_s, u"5"_s}}, nullptr},
        {"9/10", {}, ""},
    };
    for (const Row& row : rows) {
        QDir(path(u"out"_s)).removeRecursively();
        const ProgramRun result = run(arguments(QLatin1String(row.shard)), row.environment);
        const std::string name = row.shard + (" " + result.errors).toStdString();
        EXPECT_EQ(outputs().join(u' '), QLatin1String(row.written)) << name;
        EXPECT_EQ(result.exitStatus, row.written ? 0 : 2) << name;
    }
}

}  // namespace
}  // namespace zelto
