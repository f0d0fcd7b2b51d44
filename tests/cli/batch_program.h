// SPDX-License-Identifier: GPL-3.0-or-later
// zelto-batch with a folder of its own: photos in, a setting that leaves an unmistakable mark, and what came out.
#pragma once

#include "records/watermark_stack.h"
#include "support/run_program.h"
#include "support/testing.h"

#include <QImage>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

namespace zelto {

class BatchProgram : public ::testing::Test {
  protected:
    BatchProgram();

    // "" is the temporary folder itself.
    QString path(const QString& name) const;
    // A light grey photo at in/NAME, in the format of its extension. Returns its path.
    QString makePhoto(const QString& name, QSize size = {64, 48}) const;
    QString makeFile(const QString& name, const QByteArray& bytes) const;
    // What lies below a folder, hidden files included, by its path in there.
    using Files = QMap<QString, QByteArray>;
    Files filesBelow(const QString& folder) const;
    // The names of the files that only one of the two has, or that differ.
    static std::string differences(const Files& one, const Files& other);
    // The files below out/, sorted.
    QStringList outputs() const { return filesBelow(QStringLiteral("out")).keys(); }
    QImage output(const QString& name) const { return QImage(path(QStringLiteral("out/") + name)); }
    // Whether the mark, a red square of 10 pixels, stands in the bottom right corner of a picture.
    static ::testing::AssertionResult isMarked(const QImage& picture);

    // Makes another stack the setting of the runs to come.
    void useSetting(const WatermarkStack& stack) const;
    // Runs with the setting and the output folder out/, then `arguments`.
    ProgramRun run(const QStringList& arguments, const ProgramEnvironment& environment = {}) const;
    ProgramRun runBare(const QStringList& arguments, const ProgramEnvironment& environment = {}) const;
    QStringList withSetting(const QStringList& arguments) const;
    // The report of a run with --json, which must end with `exitStatus`.
    QJsonObject report(const QStringList& arguments, int exitStatus,
                       const ProgramEnvironment& environment = {}) const;

    // "a b" as two of them.
    static QStringList words(const char* line) {
        return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

    static QString program() { return QStringLiteral(ZELTO_BATCH_PROGRAM); }

  private:
    const QTemporaryDir folder_;
};

}  // namespace zelto
