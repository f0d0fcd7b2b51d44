// SPDX-License-Identifier: GPL-3.0-or-later
// Edits a stack over thousands of photos for as long as asked, as a user does who keeps the window open all day, and
// writes a row of figures every few seconds: window-soak FOLDER_OF_PHOTOS MINUTES TABLE.csv
#include "app/dialogs/standard_dialogs.h"
#include "app/editors/standard_editors.h"
#include "app/window/main_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace zelto {
namespace {

double megabytesInUse() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QFile::ReadOnly)) return 0.0;
    static const QRegularExpression line(QStringLiteral("VmRSS:\\s*(\\d+)"));
    return line.match(QString::fromUtf8(status.readAll())).captured(1).toDouble() / 1024.0;
}

qsizetype entriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

class Soak {
  public:
    Soak(const QStringList& photos, QFile& table)
        : window_(shared_, standardDialogs(), standardEditors()), table_(&table) {
        window_.resize(1280, 800);
        window_.show();
        window_.photos().AddImages(photos);
        table_ << "minutes,program_MiB,open_files,threads,edits_per_second,undo_steps,longest_edit_ms\n";
        Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
        text.Text = QStringLiteral("Zelto <<IMGNAME>>");
        text.FontSize = 40;
        window_.watermarks().ReflectWatermark(text);
    }

    void run(double minutes) {
        constexpr qint64 RowEvery = 15'000;
        QElapsedTimer clock;
        clock.start();
        qint64 nextRow = RowEvery;
        int edits = 0;
        qint64 longest = 0;
        while (static_cast<double>(clock.elapsed()) < minutes * 60'000.0) {
            QElapsedTimer edit;
            edit.start();
            doSomething();
            QCoreApplication::processEvents();
            longest = std::max(longest, edit.elapsed());
            ++edits;
            rest(random_.bounded(50, 450));
            if (clock.elapsed() < nextRow) continue;
            table_ << static_cast<double>(clock.elapsed()) / 60'000.0 << ',' << megabytesInUse() << ','
                   << entriesOf(QStringLiteral("/proc/self/fd")) << ','
                   << entriesOf(QStringLiteral("/proc/self/task")) << ',' << edits * 1000.0 / RowEvery << ','
                   << window_.document().history().count() << ',' << longest << '\n';
            table_.flush();
            nextRow += RowEvery;
            edits = 0;
            longest = 0;
        }
    }

  private:
    static void rest(int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
        }
    }

    void doSomething() {
        constexpr int MostWatermarks = 12;
        WatermarkController& watermarks = window_.watermarks();
        const int count = window_.document().count();
        switch (random_.bounded(12)) {
            case 0:
            case 1:
            case 2:
                window_.photos().ChangeImage(QString::number(random_.bounded(window_.photos().count())));
                break;
            case 3:
                if (count < MostWatermarks) {
                    Watermark added = WatermarkController::startingWatermark(random_.bounded(1, 4));
                    added.Text = QStringLiteral("added");
                    added.Position = random_.bounded(1, 10);
                    window_.document().setCurrentWatermark(WatermarkDocument::NoWatermark);
                    watermarks.ReflectWatermark(added);
                }
                break;
            case 4:
                if (count > 1) watermarks.RemoveWatermark(random_.bounded(count));
                break;
            case 5:
                window_.document().history().undo();
                break;
            case 6:
                window_.document().history().redo();
                break;
            case 7:
                watermarks.AddFilter(random_.bounded(0, 8));
                break;
            case 8:
                window_.actions()[random_.bounded(2) == 0 ? Act::ZoomIn : Act::FitToScreen]->trigger();
                break;
            case 9:
                typeIntoEditor();
                break;
            case 10:
                if (count > 0) {
                    const int index = random_.bounded(count);
                    Watermark placed = watermarks.GetWatermarkAtRow(index);
                    placed.Position = random_.bounded(1, 10);
                    placed.PaddingLeft = random_.bounded(300);
                    watermarks.placeWatermark(index, placed, QStringLiteral("Place"));
                }
                break;
            default: {
                if (count == 0) break;
                const int index = random_.bounded(count);
                Watermark changed = window_.document().watermarks()[static_cast<std::size_t>(index)];
                changed.Rotation = random_.bounded(-180, 180);
                window_.document().setCurrentWatermark(index);
                watermarks.ReflectWatermark(changed);
            }
        }
    }

    // Opens the page of a text and types a word.
    void typeIntoEditor() {
        const auto& stack = window_.document().watermarks();
        const auto text = std::find_if(stack.begin(), stack.end(), [](const Watermark& watermark) {
            return watermark.Type == watermark_type::Text;
        });
        if (text == stack.end()) return;
        window_.watermarks().selectWatermark(static_cast<int>(text - stack.begin()));
        window_.actions()[Act::EditWatermark]->trigger();
        auto* field = window_.inspector().findChild<QPlainTextEdit*>(QStringLiteral("Text"));
        field->clear();
        for (int letter = 0; letter < 8; ++letter) {
            rest(15);
            QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
            QApplication::sendEvent(field, &key);
        }
    }

    MyGlobalInstance shared_;
    MainWindow window_;
    QTextStream table_;
    QRandomGenerator random_{1};
};

}  // namespace
}  // namespace zelto

int main(int argc, char** argv) {
    const QTemporaryDir home;
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile table(arguments.value(3));
    const QDir folder(arguments.value(1));
    QStringList photos = folder.entryList(QDir::Files);
    for (QString& photo : photos) photo = folder.filePath(photo);
    if (arguments.size() != 4 || photos.isEmpty() || !table.open(QFile::WriteOnly)) {
        std::fprintf(stderr, "usage: window-soak FOLDER_OF_PHOTOS MINUTES TABLE.csv\n");
        return 2;
    }
    zelto::Soak(photos, table).run(arguments[2].toDouble());
    return 0;
}
