// SPDX-License-Identifier: GPL-3.0-or-later
#include "samples/screenshots/screenshot_scenes.h"

#include <QApplication>
#include <QPlainTextEdit>

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

// A page of the inspector, and the setting and photo it is shown with. `row` is a row of the watermark list; without
// one, `open` opens the page.
struct EditorScene {
    const char* name;
    void (*set)(Stage& stage);
    int row;
    void (WatermarkEditors::*open)() = nullptr;
};

constexpr EditorScene Editors[] = {
    {"text", setWindow, 2},
    {"logo", setWindow, 1},
    {"qr-code", setWindow, 3},
    {"shape", setFramed, 2},
    {"filter", setFramed, -1, &WatermarkEditors::OpenFilterWindow},
    {"effects", setFramed, -1, &WatermarkEditors::OpenEffectsSettings},
    {"copyright", setWindow, -1, &WatermarkEditors::OpenMetadataWindow},
};

// In a window so high that the whole page is seen.
void setEditor(Stage& stage, const EditorScene& editor) {
    stage.window().resize(1280, 1700);
    editor.set(stage);
    if (editor.open != nullptr) {
        (stage.window().editors().*editor.open)();
    } else {
        stage.openEditor(editor.row);
    }
}

bool isAtRest(Stage& stage) {
    return stage.isAtRest();
}

bool isRunning(Stage& stage) {
    return stage.isAtRest() && stage.window().processing().ProcessingIndicator()->value() == PhotosOfTheRun;
}

bool hasContacts(Stage& stage) {
    return stage.window().pages().contacts().isSettled();
}

bool hasDialog(Stage& /*stage*/) {
    const QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr && dialog->isVisible();
}

// ---- what the guide shows, step by step

void setTypedText(Stage& stage) {
    stage.addPhotos();
    stage.selectPhoto(QStringLiteral("mountains.jpg"));
    stage.window().editors().OpenTextWatermarkSettings();
    auto* text = stage.window().inspector().page()->findChild<QPlainTextEdit*>(QStringLiteral("Text"));
    text->setPlainText(QStringLiteral("© Ann Example"));
}

void setContacts(Stage& stage) {
    setWindow(stage);
    stage.window().pages().showContacts(true);
}

void setMacros(Stage& stage) {
    stage.window().resize(1280, 1000);
    setWindow(stage);
    stage.openEditor(2);
    stage.unfold(QStringLiteral("Macros"));
}

void setQrCode(Stage& stage) {
    stage.window().resize(1280, 1000);
    setWindow(stage);
    stage.openEditor(3);
}

void setNames(Stage& stage) {
    setWindow(stage);
    stage.openOutputOptions([](OutputOptions& options) {
        options.KeepDirectoryStructure = true;
        options.Rename = true;
        options.RenameFormat = QStringLiteral("<<EXIF:DateTimeOriginal[Y-M-D]>>_[O]_[###]");
    });
}

void setProofs(Stage& stage) {
    stage.addPhotos();
    stage.window().watermarks().addReadyMade(3);
    stage.openOutputOptions([](OutputOptions& options) {
        options.OutputFormat = QStringLiteral("pdf");
        options.CombineToSinglePDF = true;
        options.ResizeImage = true;
        options.ResizeType = resize_type::LongerSide;
        options.LongestsideSize = 1600;
    });
}

void addGuide(std::vector<ScreenshotScene>& scenes) {
    const auto add = [&scenes](const char* name, Shot shot, void (*set)(Stage&), bool (*isSet)(Stage&)) {
        for (const auto& [folder, language] : {std::pair("guide/", "en"), {"guide/de/", "de"}})
            scenes.push_back({std::string(folder) + name, Look::Light, 1.0, shot, set, isSet, language});
    };
    add("window", Shot::Window, setWindow, isAtRest);
    add("first-text", Shot::Window, setTypedText, isAtRest);
    add("first-options", Shot::Dialog, setOutputOptions, hasDialog);
    add("contacts", Shot::Window, setContacts, hasContacts);
    add("macros", Shot::Window, setMacros, isAtRest);
    add("qr-code", Shot::Window, setQrCode, isAtRest);
    add("names", Shot::Dialog, setNames, hasDialog);
    add("proofs", Shot::Dialog, setProofs, hasDialog);
}

// Every page in both palettes, at both sizes of a pixel.
void addEditors(std::vector<ScreenshotScene>& scenes) {
    for (const EditorScene& editor : Editors) {
        for (const Look look : {Look::Light, Look::Dark}) {
            for (const int percent : {100, 200}) {
                const std::string name = std::string("editor-") + editor.name +
                                         (look == Look::Dark ? "-dark-" : "-light-") +
                                         std::to_string(percent);
                scenes.push_back({name, look, percent / 100.0, Shot::Inspector,
                                  [&editor](Stage& stage) { setEditor(stage, editor); }, isAtRest});
            }
        }
    }
}

std::vector<ScreenshotScene> makeScenes() {
    std::vector<ScreenshotScene> scenes = {
        {"window", Look::Light, 1.0, Shot::Window, setWindow, isAtRest},
        {"window-editing", Look::Light, 1.0, Shot::Window,
         [](Stage& stage) {
             setWindow(stage);
             stage.openEditor(2);
         },
         isAtRest},
        {"window-dark", Look::Dark, 1.0, Shot::Window, setFramed, isAtRest},
        {"window-empty", Look::Light, 1.0, Shot::Window, [](Stage&) {}, isAtRest},
        {"window-running", Look::Light, 1.0, Shot::Window, setRunning, isRunning},
        {"window-error", Look::Dark, 1.0, Shot::Window, setError, hasDialog},
        {"output-options", Look::Light, 1.0, Shot::Dialog, setOutputOptions, hasDialog},
    };
    addEditors(scenes);
    addGuide(scenes);
    return scenes;
}

}  // namespace

const std::vector<ScreenshotScene>& screenshotScenes() {
    static const std::vector<ScreenshotScene> scenes = makeScenes();
    return scenes;
}

}  // namespace zelto::samples
