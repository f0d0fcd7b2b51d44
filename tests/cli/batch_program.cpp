// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_program.h"

#include "persistence/setting_file.h"
#include "support/ink.h"
#include "support/records.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace zelto {
namespace {

constexpr int MarkSide = 10;
constexpr QRgb MarkColor = 0xFFFF0000;
constexpr QRgb PhotoColor = 0xFFD0D0D0;

}  // namespace

BatchProgram::BatchProgram() {
    useSetting({{boxRecord(MarkSide, MarkSide, 9)}, {}, 0, false});
}

void BatchProgram::useSetting(const WatermarkStack& stack) const {
    EXPECT_TRUE(SaveWatermarkSettings(stack, path(QStringLiteral("mark.zcs"))));
}

QString BatchProgram::path(const QString& name) const {
    return name.isEmpty() ? folder_.path() : folder_.filePath(name);
}

QString BatchProgram::makePhoto(const QString& name, QSize size) const {
    const QString file = path(QStringLiteral("in/") + name);
    QDir().mkpath(QFileInfo(file).path());
    QImage photo(size, QImage::Format_RGB32);
    photo.fill(PhotoColor);
    EXPECT_TRUE(photo.save(file)) << name.toStdString();
    return file;
}

QString BatchProgram::makeFile(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    QDir().mkpath(QFileInfo(file).path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << name.toStdString();
    return file.fileName();
}

BatchProgram::Files BatchProgram::filesBelow(const QString& folder) const {
    Files files;
    const QDir top(path(folder));
    QDirIterator iterator(top.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        QFile file(iterator.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        files.insert(top.relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

std::string BatchProgram::differences(const Files& one, const Files& other) {
    QStringList names = one.keys() + other.keys();
    names.removeDuplicates();
    names.removeIf([&](const QString& name) {
        return one.contains(name) && other.contains(name) && one[name] == other[name];
    });
    return names.join(u' ').toStdString();
}

::testing::AssertionResult BatchProgram::isMarked(const QImage& picture) {
    if (picture.isNull()) return ::testing::AssertionFailure() << "no picture";
    const auto isNear = [&](QPoint point, QRgb wanted) {
        // What a JPEG of quality 90 or a palette may do to a plain area.
        constexpr int Tolerance = 12;
        return largestDifference(picture.pixel(point), wanted) <= Tolerance;
    };
    const QPoint corner = picture.rect().bottomRight();
    for (const QPoint& point : {corner - QPoint(2, 2), corner - QPoint(MarkSide - 3, MarkSide - 3)}) {
        if (!isNear(point, MarkColor)) return ::testing::AssertionFailure() << "no mark at " << point.x();
    }
    for (const QPoint& point :
         {QPoint(2, 2), corner - QPoint(MarkSide + 3, 2), corner - QPoint(2, MarkSide + 3)}) {
        if (!isNear(point, PhotoColor)) return ::testing::AssertionFailure() << "a mark at " << point.x();
    }
    return ::testing::AssertionSuccess();
}

QStringList BatchProgram::withSetting(const QStringList& arguments) const {
    return QStringList{QStringLiteral("--setting"), path(QStringLiteral("mark.zcs")),
                       QStringLiteral("--output"), path(QStringLiteral("out"))} +
           arguments;
}

ProgramRun BatchProgram::run(const QStringList& arguments, const ProgramEnvironment& environment) const {
    return runBare(withSetting(arguments), environment);
}

ProgramRun BatchProgram::runBare(const QStringList& arguments, const ProgramEnvironment& environment) const {
    return runProgram(program(), arguments, environment);
}

QJsonObject BatchProgram::report(const QStringList& arguments, int exitStatus,
                                 const ProgramEnvironment& environment) const {
    const ProgramRun result = run(QStringList(QStringLiteral("--json")) + arguments, environment);
    EXPECT_EQ(result.exitStatus, exitStatus) << result.errors.toStdString();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(result.output, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << result.output.toStdString();
    return document.object();
}

}  // namespace zelto
