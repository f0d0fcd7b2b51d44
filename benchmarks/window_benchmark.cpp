// SPDX-License-Identifier: GPL-3.0-or-later
// How long the window keeps a user waiting, from what he does until the screen has been painted. Photos are JPEG
// files of 24 megapixels, seen as a whole in a window of 1280 x 800.
#include "app/dialogs/standard_dialogs.h"
#include "app/editors/standard_editors.h"
#include "app/window/main_window.h"
#include "pictures/picture_reader.h"
#include "support/test_pictures.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace zelto {
namespace {

constexpr QSize PhotoSize(6000, 4000);

class Window {
  public:
    explicit Window(int photos, EditorSet editors = {})
        : window_(shared_, standardDialogs(), std::move(editors)) {
        window_.resize(1280, 800);
        window_.show();
        addPhotos(photos, PhotoSize);
        settle();
    }

    void addPhotos(int photos, QSize size) {
        const QByteArray bytes = jpegBytes(drawnScene(size), {.fullChroma = false});
        QStringList paths;
        for (int i = 0; i < photos; ++i) {
            paths.append(folder_.filePath(QStringLiteral("%1 %2.jpg").arg(size.width()).arg(i)));
            QFile file(paths.last());
            if (file.open(QFile::WriteOnly)) file.write(bytes);
        }
        window_.photos().AddImages(paths);
    }

    MainWindow& operator*() { return window_; }
    MainWindow* operator->() { return &window_; }

    // Runs the program until everything asked for is on the screen.
    void settle() {
        while (!window_.preview().isSettled()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window_.previewView().viewport()->repaint();
    }

    // Lets the neighbours of the photo on show be made ready.
    static void waitInBackground(int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds) {
            QCoreApplication::processEvents();
            QThread::msleep(5);
        }
    }

  private:
    MyGlobalInstance shared_;
    QTemporaryDir folder_;
    MainWindow window_;
};

// Another photo, not made ready before; "toDecode" is the time it takes in units of decoding alone.
void AnotherPhoto(benchmark::State& state) {
    constexpr int Step = 3;  // past the neighbours, which are made ready
    Window window(6 * Step + 1);
    Window::waitInBackground(1500);
    double shown = 0.0;
    double decoded = 0.0;
    int row = 0;
    for (auto _ : state) {
        row += Step;
        QElapsedTimer timer;
        timer.start();
        window->photos().ChangeImage(QString::number(row));
        window.settle();
        const double seconds = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
        Window::waitInBackground(1500);
        timer.restart();
        benchmark::DoNotOptimize(readPicture(window->photos().images()[row].ImagePath));
        decoded += static_cast<double>(timer.nsecsElapsed()) * 1e-9;
        shown += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["toDecode"] = shown / decoded;
}
BENCHMARK(AnotherPhoto)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(6);

// The next photo, made ready while the one before was looked at.
void NextPhoto(benchmark::State& state) {
    Window window(8);
    int row = 0;
    for (auto _ : state) {
        Window::waitInBackground(1500);
        QElapsedTimer timer;
        timer.start();
        window->photos().ChangeImage(QString::number(++row % 8));
        window.settle();
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    }
}
BENCHMARK(NextPhoto)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(7);

// A photo that is selected while one of 150 megapixels is being loaded; "toHuge" is the time it takes in units of
// loading that one.
void PhotoAfterAHugeOne(benchmark::State& state) {
    constexpr QSize HugeSize(15000, 10000);
    double shown = 0.0;
    double huge = 0.0;
    for (auto _ : state) {
        Window window(1);
        window.addPhotos(1, HugeSize);
        Window::waitInBackground(3000);
        QElapsedTimer timer;
        timer.start();
        window->photos().ChangeImage(QStringLiteral("1"));
        Window::waitInBackground(50);
        const qint64 before = timer.nsecsElapsed();
        window->photos().ChangeImage(QStringLiteral("0"));
        window.settle();
        const double seconds = static_cast<double>(timer.nsecsElapsed() - before) * 1e-9;
        state.SetIterationTime(seconds);
        shown += seconds;
        window->photos().ChangeImage(QStringLiteral("1"));
        window.settle();
        huge += static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    }
    state.counters["toHuge"] = shown / huge;
}
BENCHMARK(PhotoAfterAHugeOne)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(2);

// A letter typed into a text watermark; the median of a hundred.
void TypedLetter(benchmark::State& state) {
    Window window(1);
    Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
    text.FontFamily = QStringLiteral("DejaVu Sans");
    text.FontSize = 160;
    text.TextColor = Color::white();
    text.Position = 9;
    text.Shadow = state.range(0) != 0;
    text.ShadowColor = Color::black();
    text.Text = QStringLiteral("©");
    window->watermarks().ReflectWatermark(text);
    window->document().setCurrentWatermark(0);
    if (state.range(1) != 0) window->previewView().ActualSize();
    window.settle();
    std::vector<double> times;
    for (auto _ : state) {
        text.Text =
            QStringLiteral("© Zelto ") + QString(static_cast<int>(times.size()) % 20, QLatin1Char('x'));
        QElapsedTimer timer;
        timer.start();
        window->watermarks().ReflectWatermark(text, QStringLiteral("Text"));
        window.settle();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        state.SetIterationTime(times.back());
    }
    std::nth_element(times.begin(), times.begin() + 50, times.end());
    state.counters["median_ms"] = times[50] * 1e3;
}
BENCHMARK(TypedLetter)
    ->ArgNames({"shadow", "actualSize"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 1})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(100);

// The same in the inspector: from the key until the screen shows it, the inspector itself included.
void LetterTypedIntoInspector(benchmark::State& state) {
    Window window(1, standardEditors());
    if (state.range(0) != 0) window->previewView().ActualSize();
    window.settle();
    window->editors().OpenTextWatermarkSettings();
    auto* text = window->inspector().findChild<QPlainTextEdit*>(QStringLiteral("Text"));
    Window::waitInBackground(1500);
    std::vector<double> times;
    for (auto _ : state) {
        if (times.size() % 20 == 0) text->clear();
        window.settle();
        QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QElapsedTimer timer;
        timer.start();
        QApplication::sendEvent(text, &key);
        text->viewport()->repaint();
        window.settle();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        state.SetIterationTime(times.back());
    }
    std::nth_element(times.begin(), times.begin() + 50, times.end());
    state.counters["median_ms"] = times[50] * 1e3;
}
BENCHMARK(LetterTypedIntoInspector)
    ->ArgName("actualSize")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(100);

// A mark dragged across the photo: from a movement of the mouse until the screen shows it; the median of a hundred.
void DraggedMark(benchmark::State& state) {
    Window window(1);
    Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
    text.FontFamily = QStringLiteral("DejaVu Sans");
    text.FontSize = 300;
    text.TextColor = Color::white();
    text.Position = 1;
    text.Text = QStringLiteral("© Zelto");
    window->watermarks().ReflectWatermark(text);
    window.settle();
    QWidget* canvas = window->previewView().viewport();
    const auto send = [&](QEvent::Type type, QPointF at) {
        QMouseEvent event(type, at, canvas->mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas, &event);
    };
    const ViewGeometry& view = window->previewView().geometry();
    const QPointF start = view.toView(QPointF(600, 200)) / canvas->devicePixelRatioF();
    send(QEvent::MouseButtonPress, start);
    std::vector<double> times;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const auto step = static_cast<double>(times.size());
        send(QEvent::MouseMove, start + QPointF(20.0 + 3.0 * step, 20.0 + 2.0 * step));
        window.settle();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        state.SetIterationTime(times.back());
    }
    send(QEvent::MouseButtonRelease, start);
    std::nth_element(times.begin(), times.begin() + 50, times.end());
    state.counters["median_ms"] = times[50] * 1e3;
}
BENCHMARK(DraggedMark)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100);

// An edit with the contact view open, until all nine photos show it: a text that is tiled over the photo, a logo-sized
// shape and a text in a corner; the median of fifty.
void ContactEdit(benchmark::State& state) {
    Window window(9);
    for (int i = 0; i < 3; ++i) {
        Watermark text =
            WatermarkController::startingWatermark(i == 1 ? watermark_type::Shape : watermark_type::Text);
        text.FontFamily = QStringLiteral("DejaVu Sans");
        text.FontSize = 160;
        text.TextColor = Color::white();
        text.Position = 9;
        text.Shadow = i == 2;
        text.ShadowColor = Color::black();
        text.Width = text.Height = 900.0F;
        text.Text = i == 1 ? QString() : QStringLiteral("© Zelto");
        text.HorizontalTiling = text.VerticalTiling = i == 0;
        text.Rotation = i == 0 ? 30 : 0;
        window->watermarks().AddNewWatermark(text);
    }
    window->pages().showContacts(true);
    const ContactView& contacts = window->pages().contacts();
    const auto settle = [&] {
        while (!contacts.isSettled() || contacts.cells().empty())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        window->pages().contacts().repaint();
    };
    settle();
    window.settle();
    std::vector<double> times;
    for (auto _ : state) {
        Watermark changed = window->watermarks().GetWatermarkAtRow(state.range(0) == 0 ? 2 : 0);
        changed.Text =
            QStringLiteral("© Zelto ") + QString(static_cast<int>(times.size()) % 20, QLatin1Char('x'));
        QElapsedTimer timer;
        timer.start();
        window->watermarks().placeWatermark(state.range(0) == 0 ? 2 : 0, changed, QStringLiteral("Edit"));
        settle();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
        state.SetIterationTime(times.back());
        window.settle();
    }
    std::nth_element(times.begin(), times.begin() + 25, times.end());
    state.counters["median_ms"] = times[25] * 1e3;
}
BENCHMARK(ContactEdit)
    ->ArgName("tiled")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(50);

// Photos added to the list and selected, until the list shows them.
void AddedPhotos(benchmark::State& state) {
    QStringList paths;
    for (int i = 0; i < state.range(0); ++i)
        paths.append(QStringLiteral("/photos/2024/%1/IMG_%2.jpg").arg(i / 500).arg(i));
    for (auto _ : state) {
        MyGlobalInstance shared;
        MainWindow window(shared, standardDialogs(), EditorSet());
        window.show();
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        window.photos().bring(paths);
        QCoreApplication::processEvents();
        window.photoList().viewport()->repaint();
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    }
}
BENCHMARK(AddedPhotos)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

// From nothing to a window that can be used.
void StartedWindow(benchmark::State& state) {
    for (auto _ : state) {
        MyGlobalInstance shared;
        MainWindow window(shared, standardDialogs(), EditorSet());
        window.show();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(StartedWindow)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zelto
