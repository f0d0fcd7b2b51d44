// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_window.h"

#include "app/dialogs/standard_dialogs.h"
#include "app/hands.h"
#include "platform/path_parts.h"
#include "support/test_pictures.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTest>

namespace zelto {
namespace {

constexpr int Patience = 20000;  // milliseconds

}  // namespace

class RunWindow::GatedWriter : public OutputWriter {
  public:
    GatedWriter(Settings settings, Gate* gate) : OutputWriter(std::move(settings)), gate_(gate) {}

    Result<void> commit(const PhotoTask& task, PreparedPhoto photo) override {
        if (gate_ != nullptr) {
            ++gate_->arrived;
            gate_->open.acquire();
        }
        return OutputWriter::commit(task, std::move(photo));
    }

  private:
    Gate* gate_;
};

RunWindow::RunWindow() {
    EXPECT_TRUE(shared.findSettingDirectory());
    DialogSet dialogs = standardDialogs();
    dialogs.outputOptions = [this](QWidget*, ImageListController&, WatermarkController&, bool) {
        ++asked;
        return std::optional(options);
    };
    window = std::make_unique<MainWindow>(shared, dialogs, EditorSet());
    RunParts parts = standardRunParts();
    parts.makeProcessor = [this](OutputWriter::Settings settings) {
        return std::make_unique<GatedWriter>(std::move(settings), isGated_ ? &gate_ : nullptr);
    };
    parts.results = {[this](const QString& file) { opened = file; },
                     [this](const QStringList& paths) { revealed = paths; }};
    run_ = std::make_unique<RunController>(*window, shared, std::move(parts));
    window->resize(1280, 860);
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));

    QDir().mkpath(path(QStringLiteral("in")));
    options.OutputPath = path(QStringLiteral("out"));
    QDir().mkpath(options.OutputPath);
    options.OutputFolderData = options.OutputPath.toUtf8();
    options.OutputFormat = SameAsSourceFormat;
}

RunWindow::~RunWindow() {
    destroyRun();
}

void RunWindow::destroyRun() {
    gate_.open.release(1000);
    run_.reset();
}

void RunWindow::addPhotos(const QString& kinds, QSize size) {
    QStringList paths;
    for (const QChar kind : kinds) {
        paths.append(path(QStringLiteral("in/photo%1.png").arg(paths.size())));
        if (kind == QLatin1Char('b')) {
            QFile file(paths.last());
            ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("no picture") > 0);
        } else {
            ASSERT_TRUE(drawnScene(size).save(paths.last()));
        }
    }
    window->photos().AddImages(paths);
    for (int row = 0; row < kinds.size(); ++row) {
        if (kinds[row] == QLatin1Char('u')) window->photos().setApplyWatermark({row}, false);
    }
}

void RunWindow::start() {
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("StartWatermark")), Qt::LeftButton);
}

void RunWindow::startGated() {
    isGated_ = true;
    start();
    EXPECT_TRUE(waitUntilHeld(1));
}

bool RunWindow::waitUntilHeld(int photos) const {
    return QTest::qWaitFor([&] { return gate_.arrived >= photos; }, Patience);
}

QString RunWindow::statuses() const {
    QString letters;
    const PhotoListModel& model = window->photos().model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const int status = model.index(row).data(PhotoListModel::StatusRole).toInt();
        letters += QStringLiteral(".wx").at(status);
    }
    return letters;
}

bool RunWindow::waitFor(const QString& wanted) const {
    return QTest::qWaitFor([&] { return statuses() == wanted; }, Patience);
}

QString RunWindow::pace() const {
    return window->processing().findChild<QLabel*>()->text();
}

QMessageBox* RunWindow::message() {
    const auto shown = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() != nullptr; }, Patience));
    return shown();
}

QStringList RunWindow::buttons(const QMessageBox& message) {
    QStringList texts;
    for (const QAbstractButton* button : message.buttons()) texts.append(button->text());
    return texts;
}

void RunWindow::answer(const QString& button) {
    const QMessageBox* box = message();
    ASSERT_NE(box, nullptr);
    for (QAbstractButton* each : box->buttons()) {
        if (each->text() != button) continue;
        QTest::mouseClick(each, Qt::LeftButton);
        return;
    }
    FAIL() << "no button " << qPrintable(button);
}

QString RunWindow::summary() {
    ResultBar& bar = window->result();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }, Patience));
    const QString text = bar.accessibleDescription();
    for (auto* button : bar.findChildren<QPushButton*>()) {
        if (button->isVisible() && withoutMnemonic(button->text()).startsWith(QLatin1String("Open")))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    bar.hide();
    return text;
}

QStringList RunWindow::outputs() const {
    return QDir(options.OutputPath).entryList(QDir::Files, QDir::Name);
}

}  // namespace zelto
