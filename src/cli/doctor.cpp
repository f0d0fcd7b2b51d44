// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/doctor.h"

#include "batch/look_ahead.h"
#include "cli/printable.h"
#include "cli/saved_settings.h"
#include "metadata/exiftool_pool.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_writer.h"
#include "platform/machine_limits.h"
#include "platform/words.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <QStorageInfo>

#include <array>

namespace zelto {
namespace {

constexpr auto ExiftoolPatience = std::chrono::seconds(10);
constexpr qint64 LittleRoom = qint64{100} << 20;

QString size(qint64 bytes) {
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

class Examination {
  public:
    void found(const QString& what, const QString& value) { add(Words::tr("ok"), what, value); }
    void missing(const QString& what, const QString& value) {
        add(Words::tr("missing"), what, value);
        findings_.isAllThere = false;
    }
    Findings take() { return std::move(findings_); }

  private:
    void add(const QString& state, const QString& what, const QString& value) {
        constexpr qsizetype StateColumn = 9;
        constexpr qsizetype ValueColumn = 20;
        findings_.text += state.leftJustified(StateColumn) + what.leftJustified(ValueColumn) +
                          QLatin1Char(' ') + printable(value) + QLatin1Char('\n');
    }

    Findings findings_;
};

void examineExiftool(Examination& examination) {
    const QString program = exiftoolProgram();
    ExiftoolPool pool(1, program);
    const Result<QString> version = pool.run({QStringLiteral("-ver")}, ExiftoolPatience);
    const QString place = QFileInfo(program).canonicalFilePath();
    if (version) {
        examination.found(Words::tr("exiftool"), QStringLiteral("%1, %2").arg(version->trimmed(), place));
    } else {
        examination.missing(Words::tr("exiftool"),
                            Words::tr("%1; photos would be written without their metadata. Install exiftool "
                                      "(Debian: libimage-exiftool-perl)")
                                .arg(version.error().message));
    }
}

void examineFormats(Examination& examination) {
    QStringList read = {QStringLiteral("JPEG, PNG, TIFF, GIF, BMP")};
    if (heifLibrary() != nullptr) read.append(QStringLiteral("HEIC, AVIF"));
    if (webpLibrary() != nullptr) read.append(QStringLiteral("WebP"));
    if (jxlLibrary() != nullptr) read.append(QStringLiteral("JPEG XL"));
    if (rawLibrary() != nullptr) read.append(Words::tr("previews in raw files"));
    examination.found(Words::tr("formats read"), read.join(QStringLiteral(", ")));

    static constexpr std::array formats = {"jpg", "png",  "tiff", "gif",  "bmp",
                                           "pdf", "webp", "avif", "heic", "jxl"};
    QStringList written;
    QStringList others;
    for (const char* format : formats)
        (pictureFormatForExtension(QString(QLatin1String(format))) ? written : others)
            .append(QLatin1String(format));
    const QString list = written.join(QStringLiteral(", "));
    examination.found(Words::tr("formats written"), others.isEmpty()
                                                        ? list
                                                        : Words::tr("%1; this machine has no encoder for %2")
                                                              .arg(list, others.join(QStringLiteral(", "))));
}

// A folder that is to be written into; one that is missing will be made where its parents allow it.
void examineFolder(Examination& examination, const QString& what, const QString& folder,
                   const QString& more = {}) {
    QString present = QDir(folder).absolutePath();
    while (!QFileInfo::exists(present)) present = QFileInfo(present).path();
    const qint64 room = QStorageInfo(present).bytesAvailable();
    if (!QFileInfo(present).isDir() || !QFileInfo(present).isWritable()) {
        examination.missing(what, Words::tr("“%1” cannot be written to; choose another folder or mend its "
                                            "permissions")
                                      .arg(present));
    } else if (room < LittleRoom) {
        examination.missing(what, Words::tr("%1: only %2 are free; make room").arg(folder, size(room)));
    } else {
        examination.found(what, Words::tr("%1, %2 free").arg(folder, size(room)) + more);
    }
}

}  // namespace

Findings examineMachine(const QString& outputFolder) {
    Examination examination;
    examination.found(QStringLiteral("zelto-batch"), QStringLiteral(ZELTO_VERSION));
    examineExiftool(examination);
    examineFormats(examination);
    const qsizetype fonts = QFontDatabase::families().size();
    if (fonts > 0) {
        examination.found(Words::tr("fonts"), Words::tr("%Ln families", nullptr, static_cast<int>(fonts)));
    } else {
        examination.missing(Words::tr("fonts"), Words::tr("none is installed (Debian: fonts-dejavu)"));
    }
    const Result<SavedSettings> saved = savedSettings();
    const int settings = saved ? static_cast<int>(saved->names.size()) : 0;
    examineFolder(examination, Words::tr("settings"), saved ? saved->folder : QString(),
                  QStringLiteral(", ") + Words::tr("%Ln saved", nullptr, settings));
    examineFolder(examination, Words::tr("temporary files"), QDir::tempPath());
    if (!outputFolder.isEmpty()) examineFolder(examination, Words::tr("output"), outputFolder);
    const LookAheadLimits limits = LookAheadLimits::forThisMachine();
    examination.found(Words::tr("memory"), Words::tr("%1, of which a run holds at most %2 in photos")
                                               .arg(size(availableMemory()), size(limits.memoryBudget)));
    examination.found(Words::tr("jobs"), Words::tr("%Ln photos at a time", nullptr, limits.jobs));
    return examination.take();
}

}  // namespace zelto
