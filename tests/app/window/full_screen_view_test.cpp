// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/full_screen_view.h"

#include "app/run/run_window.h"
#include "support/records.h"

#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace zelto {
namespace {

TEST_F(RunWindow, TheFullScreenShowsThePhotoUntilAKeyOrItsButtonIsPressed) {
    addPhotos(QStringLiteral("gg"));
    window->watermarks().ReflectWatermark(boxRecord(20, 20, 1, Color::black()));
    window->watermarks().AddEffects(PhotoEffects());
    for (const bool byKey : {true, false}) {
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(window.get(), Qt::Key_F11);
        QPointer<FullScreenView> view;
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<FullScreenView*>(each)) view = found;
        }
        ASSERT_TRUE(view);
        EXPECT_TRUE(view->isFullScreen());
        ASSERT_TRUE(QTest::qWaitFor([&] { return !view->picture().isNull(); }, 10000));
        const PhotoRequest request = window->preview().finalRequest();
        EXPECT_EQ(view->picture(), MakeWatermarkImage(*buildPhotoScene(request), *request.stack));
        QTest::keyClick(view, byKey ? Qt::Key_PageDown : Qt::Key_Left);
        EXPECT_EQ(window->photos().selectedRow(), byKey ? 1 : 0);
        if (byKey) {
            QTest::keyClick(view, Qt::Key_A);
        } else {
            QTest::mouseClick(view->findChild<QToolButton*>(QStringLiteral("ExitFullScreen")),
                              Qt::LeftButton);
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return view.isNull(); }, 10000));
    }
    for (const char* left : {"file.png", "effect.png"}) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return QDir::home().exists(QLatin1String(left)); }, 10000)) << left;
    }
}

}  // namespace
}  // namespace zelto
