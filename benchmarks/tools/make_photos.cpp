// SPDX-License-Identifier: GPL-3.0-or-later
// Makes photo-like JPEGs to time whole runs on: make-photos FOLDER COUNT WIDTH HEIGHT. The scenes are those
// of the samples, painted once at the wanted size; each photo is one of them mirrored or turned upside down
// and with its own sensor noise, so that no two files are alike and all are as hard to encode as camera
// files.
#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "samples/scenes.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

using namespace zelto;

constexpr int NoiseAmplitude = 5;  // of 255, about what ISO 400 shows

QImage withNoise(QImage image, unsigned seed) {
    std::minstd_rand random(seed + 1U);
    for (int y = 0; y < image.height(); ++y) {
        uchar* bytes = image.scanLine(y);
        for (int i = 0; i < image.width() * 4; ++i) {
            const int noise = static_cast<int>(random() >> 16U) % (2 * NoiseAmplitude + 1) - NoiseAmplitude;
            bytes[i] = static_cast<uchar>(std::clamp(bytes[i] + noise, 0, 255));
        }
    }
    return image;
}

[[noreturn]] void stop(const QString& why) {
    std::fprintf(stderr, "make-photos: %s\n", qPrintable(why));
    std::exit(2);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (argc != 5) stop(QStringLiteral("usage: make-photos FOLDER COUNT WIDTH HEIGHT"));
    const QDir folder(arguments[1]);
    const int count = arguments[2].toInt();
    const QSize size(arguments[3].toInt(), arguments[4].toInt());
    if (count < 1 || size.isEmpty() || !folder.mkpath(QStringLiteral(".")))
        stop(QStringLiteral("cannot make that"));

    constexpr int SceneCount = 3;
    QImage (*const scenes[SceneCount])(QSize) = {samples::paintHarbour, samples::paintPoppies,
                                                 samples::paintBirches};
    std::vector<QImage> painted;
    for (int i = 0; i < std::min(count, SceneCount); ++i) painted.push_back(scenes[i](size));
    for (int i = 0; i < count; ++i) {
        const bool mirrored = (i / SceneCount) % 2 == 1;
        const bool upsideDown = (i / SceneCount / 2) % 2 == 1;
        const QImage photo =
            withNoise(painted[static_cast<std::size_t>(i % SceneCount)].mirrored(mirrored, upsideDown),
                      static_cast<unsigned>(i));
        const Result<QByteArray> bytes = encodePicture(photo, PictureFormat::Jpeg, {92, 300.0, 300.0});
        const QString path = folder.filePath(QStringLiteral("photo_%1.jpg").arg(i, 4, 10, QLatin1Char('0')));
        if (!bytes || !writeWholeFile(path, *bytes)) stop(path);
    }
    return 0;
}
