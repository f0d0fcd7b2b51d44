// SPDX-License-Identifier: GPL-3.0-or-later
// The rules for outputs whose names are taken, over lists of photos and a folder that holds files already.
#include "batch/batch_request.h"
#include "support/testing.h"

namespace zelto {
namespace {

QStringList words(const char* text) {
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

TEST(OutputPlan, GivesOutNamesByTheRules) {
    constexpr NameRule Replace = NameRule::Replace, Number = NameRule::Number, Skip = NameRule::Skip,
                       Fail = NameRule::Fail;
    struct Row {
        const char*
            photos;  // name by name; before it "-" for unchecked and "e" for elsewhere, each in a folder of its own
        const char* files;  // that the output folder holds
        NameRules rules;
        const char* outputs;   // "skip" and "fail" for those not written, "-" for unchecked ones
        const char* shared;    // output names told as shared
        const char* existing;  // output names told as existing
    };
    const Row rows[] = {
        {"a a b", "", {Replace, Replace}, "a a b", "a", ""},
        {"a a b a", "", {Number, Replace}, "a a1 b a2", "a", ""},
        {"a a a1 a", "", {Number, Replace}, "a a2 a1 a3", "a", ""},
        {"a a a", "", {Skip, Replace}, "a skip skip", "a", ""},
        {"a a", "", {Fail, Replace}, "a fail", "a", ""},
        {"a -a a", "", {Number, Replace}, "a - a1", "a", ""},
        {"ea a a", "", {Number, Replace}, "e a1 a2", "a", ""},
        {"a b", "a", {Replace, Replace}, "a b", "", "a"},
        {"a b", "a a1", {Replace, Number}, "a2 b", "", "a"},
        {"a b", "a", {Replace, Skip}, "skip b", "", "a"},
        {"a b", "a", {Replace, Fail}, "fail b", "", "a"},
        {"a a", "a1", {Number, Replace}, "a a1", "a", "a1"},
        {"a a", "a1", {Number, Number}, "a a2", "a", ""},
        {"a a", "a1", {Number, Skip}, "a skip", "a", "a1"},
        {"a a", "a", {Replace, Number}, "a1 a1", "a", "a"},
        {"a a", "a", {Replace, Skip}, "skip skip", "a", "a"},
        {"a a", "a", {Skip, Number}, "a1 skip", "a", "a"},
    };
    for (const Row& row : rows) {
        const QTemporaryDir folder;
        BatchRequest request;
        request.options.OutputPath = folder.path();
        request.options.OutputFormat = u"png"_s;
        request.names = row.rules;
        for (const QString& name : words(row.files))
            ASSERT_TRUE(QFile(folder.filePath(name + u".png"_s)).open(QIODevice::WriteOnly));
        for (const QString& photo : words(row.photos)) {
            const bool isElsewhere = photo.startsWith(u'e');
            const bool isChecked = !isElsewhere && !photo.startsWith(u'-');
            request.photos.push_back(
                {u"/in/%1/%2.jpg"_s.arg(request.photos.size()).arg(photo.mid(isChecked ? 0 : 1)), isChecked,
                 isElsewhere});
        }
        const QDateTime now = QDateTime::currentDateTime();
        const OutputPlan plan = planOutputs(request, now);
        const auto baseNames = [](QStringList paths) {
            for (QString& path : paths) path = QFileInfo(path).baseName();
            return paths.join(u' ').toStdString();
        };
        QStringList outputs;
        for (std::size_t i = 0; i < plan.outputs.size(); ++i) {
            const PlannedOutput& output = plan.outputs[i];
            const bool isWritten = output.fate == PlannedOutput::Fate::Write;
            EXPECT_EQ(output.reason.isEmpty(), isWritten);
            outputs.append(request.photos[i].isElsewhere ? u"e"_s
                           : !request.photos[i].checked  ? u"-"_s
                           : isWritten ? photoTask(request, runDestinations(request), output, i, now).output
                           : output.fate == PlannedOutput::Fate::Skip ? u"skip"_s
                                                                      : u"fail"_s);
        }
        const std::string about = row.photos + std::string(" over ") + row.files;
        EXPECT_EQ(baseNames(outputs), row.outputs) << about;
        EXPECT_EQ(baseNames(plan.sharedNames), row.shared) << about;
        EXPECT_EQ(baseNames(plan.existing), row.existing) << about;
    }
}

}  // namespace
}  // namespace zelto
