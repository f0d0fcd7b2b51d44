// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the sample photos, the sample logo and the sample settings anew: make-samples FOLDER, where FOLDER is
// this one. Needs exiftool for the camera tags. Not part of the ordinary build.
#include "persistence/setting_file.h"
#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "sample_settings.h"
#include "scenes.h"

#include <QColorSpace>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QProcess>
#include <QTransform>

#include <cstdio>

namespace zelto::samples {
namespace {

enum class Storage { Plain, TurnedForOrientation6, AdobeRgb };

struct Sample {
    const char* file;
    QImage (*paint)(QSize);
    QSize size;
    Storage storage;
    QStringList tags;  // arguments of exiftool
};

const QStringList& cameraTags() {
    static const QStringList tags = {
        QStringLiteral("-Make=Zelto"),
        QStringLiteral("-Model=Sample 1"),
        QStringLiteral("-FNumber=5.6"),
        QStringLiteral("-ISO=200"),
        QStringLiteral("-FocalLength=35"),
        QStringLiteral("-ExifIFD:ExifVersion=0230"),
        QStringLiteral("-MeteringMode#=5"),
        QStringLiteral("-ExposureProgram#=3"),
        QStringLiteral("-XResolution=300"),
        QStringLiteral("-YResolution=300"),
        QStringLiteral("-ResolutionUnit=inches"),
        QStringLiteral("-IPTC:By-line=Zelto sample studio"),
    };
    return tags;
}

QList<Sample> allSamples() {
    const QSize wide(1500, 1000);
    return {
        {"harbour.jpg",
         paintHarbour,
         wide,
         Storage::Plain,
         {QStringLiteral("-DateTimeOriginal=2024:09:14 19:42:10"), QStringLiteral("-ExposureTime=1/60"),
          QStringLiteral("-Keywords=harbour"), QStringLiteral("-Keywords=dusk"),
          QStringLiteral("-IPTC:City=Lysekil"), QStringLiteral("-GPSLatitude=58.2743"),
          QStringLiteral("-GPSLatitudeRef=N"), QStringLiteral("-GPSLongitude=11.4358"),
          QStringLiteral("-GPSLongitudeRef=E")}},
        {"mountains.jpg",
         paintMountains,
         wide,
         Storage::Plain,
         {QStringLiteral("-DateTimeOriginal=2024:06:02 06:15:44"), QStringLiteral("-ExposureTime=1/250"),
          QStringLiteral("-Keywords=lake"), QStringLiteral("-IPTC:City=Vent")}},
        {"birches.jpg",
         paintBirches,
         QSize(1000, 1500),
         Storage::TurnedForOrientation6,
         {QStringLiteral("-DateTimeOriginal=2024:10:20 11:03:27"), QStringLiteral("-ExposureTime=1/125"),
          QStringLiteral("-Orientation#=6"), QStringLiteral("-Keywords=wood"),
          QStringLiteral("-IPTC:City=Kuhmo")}},
        {"poppies.jpg",
         paintPoppies,
         wide,
         Storage::AdobeRgb,
         {QStringLiteral("-DateTimeOriginal=2024:05:30 14:20:05"), QStringLiteral("-ExposureTime=1/500"),
          QStringLiteral("-Keywords=flowers"), QStringLiteral("-IPTC:City=Castelluccio")}},
        {"aurora.jpg",
         paintAurora,
         wide,
         Storage::Plain,
         {QStringLiteral("-DateTimeOriginal=2025:01:18 23:51:30"), QStringLiteral("-ExposureTime=8"),
          QStringLiteral("-Keywords=night"), QStringLiteral("-IPTC:City=Abisko")}},
        {"travel/night-city.jpg",
         paintNightCity,
         wide,
         Storage::Plain,
         {QStringLiteral("-DateTimeOriginal=2025:03:07 21:08:59"), QStringLiteral("-ExposureTime=1/15"),
          QStringLiteral("-Keywords=city"), QStringLiteral("-IPTC:City=Lyon")}},
        {"travel/dunes.tiff",
         paintDunes,
         QSize(900, 600),
         Storage::Plain,
         {QStringLiteral("-DateTimeOriginal=2025:02:11 17:33:12"), QStringLiteral("-ExposureTime=1/320"),
          QStringLiteral("-IPTC:City=Douz")}},
        {"travel/lighthouse.gif", paintLighthouse, QSize(720, 480), Storage::Plain, {}},
        {"balloon.png", paintBalloon, QSize(900, 1200), Storage::Plain, {}},
    };
}

void require(bool done, const QString& what) {
    if (done) return;
    std::fprintf(stderr, "make-samples: %s\n", qPrintable(what));
    std::exit(1);
}

// Qt writes no GIF, so that one goes through the program's own encoder.
void saveGif(const QImage& image, const QString& path) {
    const Result<QByteArray> bytes = encodePicture(image, PictureFormat::Gif, {});
    require(bytes.has_value() && writeWholeFile(path, *bytes).has_value(), path);
}

void save(const QImage& image, const QString& path) {
    if (path.endsWith(QLatin1String(".gif"))) return saveGif(image, path);
    QImageWriter writer(path);
    const bool tiff = path.endsWith(QLatin1String(".tiff"));
    writer.setQuality(path.endsWith(QLatin1String(".jpg")) ? 86 : -1);
    if (tiff) writer.setCompression(1);
    require(writer.write(image), path + QLatin1String(": ") + writer.errorString());
}

void saveSetting(const WatermarkStack& stack, const QString& path) {
    require(SaveWatermarkSettings(stack, path).has_value(), path);
}

void make(const Sample& sample, const QDir& folder) {
    const QString path = folder.filePath(QLatin1String(sample.file));
    require(QDir().mkpath(QFileInfo(path).path()), path);
    QImage image = sample.paint(sample.size);
    if (sample.storage == Storage::TurnedForOrientation6) image = image.transformed(QTransform().rotate(-90));
    if (sample.storage == Storage::AdobeRgb) {
        image.setColorSpace(QColorSpace::SRgb);
        image.convertToColorSpace(QColorSpace::AdobeRgb);
    }
    save(image, path);
    if (sample.tags.isEmpty()) return;
    const QStringList arguments = QStringList{QStringLiteral("-overwrite_original"), QStringLiteral("-q")} +
                                  cameraTags() + sample.tags + QStringList{path};
    require(QProcess::execute(QStringLiteral("exiftool"), arguments) == 0,
            path + QLatin1String(": exiftool failed"));
}

}  // namespace
}  // namespace zelto::samples

int main(int argc, char** argv) {
    using namespace zelto::samples;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    require(argc == 2, QStringLiteral("name the folder of the samples"));
    const QDir folder(QFile::decodeName(argv[1]));
    for (const Sample& sample : allSamples()) make(sample, QDir(folder.filePath(QStringLiteral("photos"))));
    save(paintLogo(QSize(320, 320)), folder.filePath(QStringLiteral("logo.png")));
    QFile logo(folder.filePath(QStringLiteral("logo.png")));
    require(logo.open(QFile::ReadOnly), logo.fileName());
    saveSetting(everydayStack(logo.readAll()), folder.filePath(QStringLiteral("Sample.zcs")));
    saveSetting(framedStack(), folder.filePath(QStringLiteral("Framed.zcs")));
    return 0;
}
