// SPDX-License-Identifier: GPL-3.0-or-later
#include "samples/screenshots/stage.h"

#include "app/dialogs/standard_dialogs.h"
#include "app/editors/controls/fold_group.h"
#include "app/editors/standard_editors.h"
#include "persistence/output_settings_file.h"
#include "platform/application_folders.h"
#include "platform/path_parts.h"
#include "platform/preferences.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace zelto::samples {
namespace {

// Where the pictures say the photos lie.
const QDir ShownFolder(QStringLiteral("/tmp/zelto"));

// Buttons of dialogs without the pictures that only show where a desktop has no theme.
class PlainButtons : public QProxyStyle {
  public:
    PlainButtons() : QProxyStyle(QStringLiteral("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

struct PaletteRow {
    QPalette::ColorRole role;
    QRgb color;
    QRgb disabled;
};

void usePalette(std::initializer_list<PaletteRow> rows) {
    QApplication::setStyle(new PlainButtons);
    QPalette palette;
    for (const PaletteRow& row : rows) {
        palette.setColor(row.role, QColor(row.color));
        palette.setColor(QPalette::Disabled, row.role, QColor(row.disabled));
    }
    QApplication::setPalette(palette);
}

// Writes as many photos as are let through, at a pace that can be told.
class SlowWriter : public OutputWriter {
  public:
    SlowWriter(Settings settings, std::shared_ptr<std::atomic<int>> letThrough)
        : OutputWriter(std::move(settings)), letThrough_(std::move(letThrough)) {}

    Result<void> commit(const PhotoTask& task, PreparedPhoto photo) override {
        using namespace std::chrono_literals;
        while (*letThrough_ <= 0) std::this_thread::sleep_for(20ms);
        --*letThrough_;
        return OutputWriter::commit(task, std::move(photo));
    }

  private:
    std::shared_ptr<std::atomic<int>> letThrough_;
};

// A dialog's frame and shadow, which a desktop would give it.
void paintLifted(QPainter& painter, const QImage& dialog, const QRect& place) {
    constexpr int Reach = 16;
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = Reach; i > 0; --i) {
        painter.setBrush(QColor(0, 0, 0, 9));
        painter.drawRoundedRect(place.adjusted(-i, -i + 4, i, i + 4), i, i);
    }
    painter.drawImage(place, dialog);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QColor(0, 0, 0, 90));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

QImage grabbed(QWidget& widget) {
    return widget.grab().toImage();
}

}  // namespace

void useLightPalette() {
    usePalette({{QPalette::Window, 0xFFF3F3F4, 0xFFF3F3F4},
                {QPalette::WindowText, 0xFF1F2328, 0xFF9A9EA4},
                {QPalette::Base, 0xFFFFFFFF, 0xFFF8F8F9},
                {QPalette::AlternateBase, 0xFFF5F5F6, 0xFFF5F5F6},
                {QPalette::Text, 0xFF1F2328, 0xFF9A9EA4},
                {QPalette::PlaceholderText, 0xFF8A8F96, 0xFFB9BCC0},
                {QPalette::Button, 0xFFF3F3F4, 0xFFF3F3F4},
                {QPalette::ButtonText, 0xFF1F2328, 0xFF9A9EA4},
                {QPalette::ToolTipBase, 0xFFFFFFFF, 0xFFFFFFFF},
                {QPalette::ToolTipText, 0xFF1F2328, 0xFF1F2328},
                {QPalette::Highlight, 0xFF2F6FD0, 0xFFB5BAC2},
                {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF}});
}

void useDarkPalette() {
    usePalette({{QPalette::Window, 0xFF2A2C30, 0xFF2A2C30},
                {QPalette::WindowText, 0xFFE6E7E9, 0xFF7D8187},
                {QPalette::Base, 0xFF1F2124, 0xFF26282B},
                {QPalette::AlternateBase, 0xFF26282B, 0xFF26282B},
                {QPalette::Text, 0xFFE6E7E9, 0xFF7D8187},
                {QPalette::PlaceholderText, 0xFF8D9197, 0xFF63666B},
                {QPalette::Button, 0xFF35383D, 0xFF2E3034},
                {QPalette::ButtonText, 0xFFE6E7E9, 0xFF7D8187},
                {QPalette::ToolTipBase, 0xFF35383D, 0xFF35383D},
                {QPalette::ToolTipText, 0xFFE6E7E9, 0xFFE6E7E9},
                {QPalette::Highlight, 0xFF3D7BD9, 0xFF55595F},
                {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFE6E7E9}});
}

Stage::Stage(const QString& samples) : samples_(samples), letThrough_(std::make_shared<std::atomic<int>>(0)) {
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
        qputenv(variable, QFile::encodeName(home_.path()));
    }
    QDir(ShownFolder).removeRecursively();
    photos_ = QDir(ShownFolder.filePath(QStringLiteral("Summer")));
    photos_.mkpath(QStringLiteral("."));
    if (!shared_.findSettingDirectory()) qFatal("there is no place for settings");

    DialogSet dialogs = standardDialogs();
    const QString output = home_.filePath(QStringLiteral("out"));
    QDir().mkpath(output);
    dialogs.outputOptions = [output](auto&&...) {
        OutputOptions options;
        options.OutputPath = output;
        options.OutputFolderData = output.toUtf8();
        options.OutputFormat = SameAsSourceFormat;
        options.JPEGQuality = 90;
        return std::optional(options);
    };
    window_ = std::make_unique<MainWindow>(shared_, dialogs, standardEditors());
    RunParts parts{[this](OutputWriter::Settings settings) {
                       return std::make_unique<SlowWriter>(std::move(settings), letThrough_);
                   },
                   {[](const QString&) {}, [](const QStringList&) {}}};
    run_ = std::make_unique<RunController>(*window_, shared_, std::move(parts));
    window_->resize(1280, 800);
    window_->move(0, 0);
    window_->show();
    window_->activateWindow();
}

Stage::~Stage() {
    *letThrough_ = 1000;
    run_.reset();
    QDir(ShownFolder).removeRecursively();
}

void Stage::addPhotos(bool broken) {
    QStringList paths;
    for (const char* name :
         {"harbour.jpg", "mountains.jpg", "poppies.jpg", "birches.jpg", "travel/night-city.jpg", "aurora.jpg",
          "travel/dunes.tiff", "balloon.png", "travel/lighthouse.gif"}) {
        const QString source = samples_.filePath(QStringLiteral("photos/") + QLatin1String(name));
        paths.append(photos_.filePath(lastPathComponent(source)));
        QFile::copy(source, paths.last());
    }
    if (broken) {
        paths.insert(3, photos_.filePath(QStringLiteral("meadow.jpg")));
        QFile file(paths[3]);
        if (file.open(QFile::WriteOnly)) file.write("cut off");
    }
    window_->photos().AddImages(paths);
}

int Stage::rowOf(const QString& name) {
    const std::vector<Image>& images = window_->photos().images();
    for (std::size_t row = 0; row < images.size(); ++row) {
        if (lastPathComponent(images[row].ImagePath) == name) return static_cast<int>(row);
    }
    return 0;
}

void Stage::selectPhoto(const QString& name) {
    window_->photos().ChangeImage(QString::number(rowOf(name)));
}

void Stage::loadSetting(const QString& name) {
    const Result<void> loaded = window_->watermarks().LoadWatermarkSetting(samples_.filePath(name));
    if (!loaded) qFatal("%s", qPrintable(loaded.error().message));
    window_->document().history().clear();
    window_->watermarks().selection().clear();
}

void Stage::startRun(int photos) {
    window_->controller().StartWatermarking();
    auto* pace = new QTimer(window_.get());
    pace->callOnTimeout([this, pace, left = photos]() mutable {
        ++*letThrough_;
        if (--left == 0) pace->stop();
    });
    pace->start(220);
}

void Stage::finishRun() {
    *letThrough_ = 1000;
    window_->controller().StartWatermarking();
}

void Stage::doubleClickPhoto(const QString& name) {
    selectPhoto(name);
    window_->photos().ImageListDoubleClicked(rowOf(name));
}

void Stage::openOutputOptions(const std::function<void(OutputOptions&)>& change) {
    const QString shownOutput = ShownFolder.filePath(QStringLiteral("Watermarked"));
    OutputSettings settings = startingOutputSettings();
    settings.options.OutputPath = shownOutput;
    settings.options.OutputFolderData = shownOutput.toUtf8();
    change(settings.options);
    const auto kept = applicationFolder(ZeltoFolder).and_then([&](const QString& folder) {
        return saveOutputSettings(settings, folder + OutputSettingsFileName);
    });
    if (!kept) qFatal("the options cannot be kept");
    setPreference(preference::LastOutDirectory, shownOutput);
    setPreference(preference::LastOutDirectoryData, shownOutput.toUtf8());
    QDir().mkpath(shownOutput);
    standardDialogs().outputOptions(window_.get(), window_->photos(), window_->watermarks(), false);
}

void Stage::when(std::function<bool()> condition, std::function<void()> act) {
    auto* timer = new QTimer(qApp);
    timer->callOnTimeout([timer, condition = std::move(condition), act = std::move(act)] {
        if (!condition()) return;
        timer->stop();
        timer->deleteLater();
        act();
    });
    timer->start(50);
}

bool Stage::isAtRest() const {
    return window_->photos().count() == 0 || window_->preview().isSettled();
}

QImage Stage::picture() const {
    QImage picture = grabbed(*window_);
    QPainter painter(&picture);
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (!each->isVisible() || !each->isModal()) continue;
        QRect place(QPoint(), each->size());
        place.moveCenter(window_->rect().center());
        paintLifted(painter, grabbed(*each), place);
    }
    return picture;
}

void Stage::unfold(const QString& group) {
    if (auto* found = window_->inspector().findChild<FoldGroup*>(group + QStringLiteral("Group")))
        found->setFolded(false);
}

QImage Stage::inspectorPicture() {
    Inspector& inspector = window_->inspector();
    const EditorPage& page = *inspector.page();
    const int end = page.mapTo(&inspector, QPoint(0, page.minimumSizeHint().height())).y();
    return inspector.grab(QRect(0, 0, inspector.width(), std::min(end, inspector.height()))).toImage();
}

QImage Stage::dialogPicture() {
    return grabbed(*QApplication::activeModalWidget());
}

}  // namespace zelto::samples
