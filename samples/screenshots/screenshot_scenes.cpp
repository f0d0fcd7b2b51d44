// SPDX-License-Identifier: GPL-3.0-or-later
#include "samples/screenshots/screenshot_scenes.h"

#include <QApplication>

namespace zelto::samples {
namespace {

using Look = ScreenshotScene::Look;
using Shot = ScreenshotScene::Shot;

constexpr int PhotosOfTheRun = 4;

void setWindow(Stage& stage) {
    stage.addPhotos();
    stage.loadSetting(QStringLiteral("Sample.zcs"));
    stage.selectPhoto(QStringLiteral("mountains.jpg"));
}

void setFramed(Stage& stage) {
    stage.addPhotos();
    stage.loadSetting(QStringLiteral("Framed.zcs"));
    stage.selectPhoto(QStringLiteral("poppies.jpg"));
}

void setRunning(Stage& stage) {
    setWindow(stage);
    stage.startRun(PhotosOfTheRun);
}

void setError(Stage& stage) {
    stage.addPhotos(true);
    stage.loadSetting(QStringLiteral("Sample.zcs"));
    stage.finishRun();
    Stage::when(
        [&stage] {
            return !stage.window().processing().isVisible() &&
                   stage.window().actions()[Act::Start]->isEnabled();
        },
        [&stage] { stage.doubleClickPhoto(QStringLiteral("meadow.jpg")); });
}

void setOutputOptions(Stage& stage) {
    setWindow(stage);
    stage.openOutputOptions();
}

void setTextEditor(Stage& stage) {
    constexpr int TitleRow = 2;
    setWindow(stage);
    stage.openEditor(TitleRow);
}

void setShapeEditor(Stage& stage) {
    constexpr int PolygonRow = 2;
    setFramed(stage);
    stage.openEditor(PolygonRow);
}

bool isAtRest(Stage& stage) {
    return stage.isAtRest();
}

bool isRunning(Stage& stage) {
    return stage.isAtRest() && stage.window().processing().ProcessingIndicator()->value() == PhotosOfTheRun;
}

bool hasDialog(Stage& /*stage*/) {
    const QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr && dialog->isVisible();
}

}  // namespace

const std::vector<ScreenshotScene>& screenshotScenes() {
    static const std::vector<ScreenshotScene> scenes = {
        {"window", Look::Light, 1.0, Shot::Window, setWindow, isAtRest},
        {"window-dark", Look::Dark, 1.0, Shot::Window, setFramed, isAtRest},
        {"window-empty", Look::Light, 1.0, Shot::Window, [](Stage&) {}, isAtRest},
        {"window-running", Look::Light, 1.0, Shot::Window, setRunning, isRunning},
        {"window-error", Look::Dark, 1.0, Shot::Window, setError, hasDialog},
        {"output-options", Look::Light, 1.0, Shot::Dialog, setOutputOptions, hasDialog},
        {"text-editor", Look::Light, 1.0, Shot::Dialog, setTextEditor, hasDialog},
        {"text-editor-dark", Look::Dark, 2.0, Shot::Dialog, setTextEditor, hasDialog},
        {"shape-editor", Look::Light, 1.0, Shot::Dialog, setShapeEditor, hasDialog},
        {"shape-editor-dark", Look::Dark, 2.0, Shot::Dialog, setShapeEditor, hasDialog},
    };
    return scenes;
}

}  // namespace zelto::samples
