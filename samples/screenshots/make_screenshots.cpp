// SPDX-License-Identifier: GPL-3.0-or-later
// make-screenshots                       lists the pictures there are, by name
// make-screenshots NAME SAMPLES FILE     takes one, with the sample photos and settings of a folder
#include "platform/languages.h"
#include "samples/screenshots/screenshot_scenes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using namespace zelto::samples;

namespace {

constexpr int RestMilliseconds = 900;  // until thumbnails and icons have come

// Takes the picture once the scene has been set for a while, and ends the program with all dialogs open.
void takeWhenSet(const ScreenshotScene& scene, Stage& stage, const QString& file) {
    auto* watch = new QTimer(qApp);
    QElapsedTimer sinceSet;
    watch->callOnTimeout([&scene, &stage, file, sinceSet]() mutable {
        if (!scene.isSet(stage)) {
            sinceSet.invalidate();
        } else if (!sinceSet.isValid()) {
            sinceSet.start();
        } else if (sinceSet.hasExpired(RestMilliseconds)) {
            const QImage picture = scene.shot == ScreenshotScene::Shot::Window   ? stage.picture()
                                   : scene.shot == ScreenshotScene::Shot::Dialog ? Stage::dialogPicture()
                                                                                 : stage.inspectorPicture();
            QApplication::exit(picture.save(file) ? 0 : 1);
        }
    });
    watch->start(50);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<ScreenshotScene>& scenes = screenshotScenes();
    if (argc == 1) {
        for (const ScreenshotScene& scene : scenes) std::puts(scene.name.c_str());
        return 0;
    }
    const auto scene = std::find_if(scenes.begin(), scenes.end(),
                                    [&](const ScreenshotScene& each) { return each.name == argv[1]; });
    if (argc != 4 || scene == scenes.end()) {
        std::fputs("usage: make-screenshots [NAME SAMPLES FILE]\n", stderr);
        return 2;
    }
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scene->scale));
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zelto"));
    QApplication::setQuitOnLastWindowClosed(false);
    zelto::speakLanguage(QLatin1String(scene->language));
    QLocale::setDefault(QLocale(QLatin1String(scene->language)));
    scene->look == ScreenshotScene::Look::Dark ? useDarkPalette() : useLightPalette();
    Stage stage(QString::fromLocal8Bit(argv[2]));
    QTimer::singleShot(0, &application, [&] {
        takeWhenSet(*scene, stage, QString::fromLocal8Bit(argv[3]));
        scene->set(stage);
    });
    return QApplication::exec();
}
