// SPDX-License-Identifier: GPL-3.0-or-later
// What the keyboard reaches: Tab and Shift+Tab through the window with each page of the inspector, and mnemonics.
#include "app/editor_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>

#include <algorithm>
#include <map>
#include <set>

namespace zelto {
namespace {

class FocusOrder : public EditorTest {
  protected:
    static std::string describe(const QWidget* widget) {
        const QString name = widget->objectName().isEmpty() ? widget->accessibleName() : widget->objectName();
        return qPrintable(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + name);
    }

    // What Tab is to stop at.
    std::set<const QWidget*> stops() {
        std::set<const QWidget*> stops;
        for (const QWidget* each : window.findChildren<QWidget*>()) {
            const bool takes = (each->focusPolicy() & Qt::TabFocus) != 0 && each->focusProxy() == nullptr;
            if (takes && each->isVisible() && each->isEnabled()) stops.insert(each);
        }
        return stops;
    }

    // From where the focus is, all the way round.
    std::vector<const QWidget*> walk(Qt::KeyboardModifiers shift) {
        std::vector<const QWidget*> stops;
        constexpr std::size_t Most = 200;
        do {
            stops.push_back(window.focusWidget());
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab, shift);
            QCoreApplication::processEvents();
        } while (window.focusWidget() != stops.front() && stops.size() < Most);
        return stops;
    }

    void expectAllReached(const char* where) {
        const std::vector<const QWidget*> order = walk(Qt::NoModifier);
        const std::set<const QWidget*> reached(order.begin(), order.end());
        for (const QWidget* each : stops())
            EXPECT_TRUE(reached.count(each)) << where << ": " << describe(each);
        std::vector<const QWidget*> back = walk(Qt::ShiftModifier);
        std::reverse(back.begin() + 1, back.end());
        EXPECT_TRUE(back == order) << where << ": Shift+Tab goes another way";
        const QWidget* page = window.inspector().page();
        for (std::size_t i = 1; page != nullptr && i < order.size(); ++i) {
            if (!page->isAncestorOf(order[i]) || !page->isAncestorOf(order[i - 1])) continue;
            const QPoint before = order[i - 1]->mapTo(page, order[i - 1]->rect().bottomRight());
            const QPoint now = order[i]->mapTo(page, order[i]->rect().bottomRight());
            EXPECT_TRUE(now.y() + order[i]->height() > before.y() || now.x() > before.x())
                << where << ": back up from " << describe(order[i - 1]) << " to " << describe(order[i]);
        }
        EXPECT_TRUE(goesThroughColumns(order)) << where;
    }

    // From the photos over the preview to the stack and the inspector; what stands above and below them apart.
    bool goesThroughColumns(const std::vector<const QWidget*>& order) {
        const QWidget* columns[] = {window.photoList().parentWidget(), window.previewView().parentWidget(),
                                    window.watermarkList().parentWidget(), &window.inspector()};
        std::vector<std::ptrdiff_t> places;
        for (const QWidget* stop : order) {
            const auto* column =
                std::find_if(std::begin(columns), std::end(columns),
                             [stop](const QWidget* each) { return each->isAncestorOf(stop); });
            if (column != std::end(columns)) places.push_back(column - columns);
        }
        std::rotate(places.begin(), std::is_sorted_until(places.begin(), places.end()), places.end());
        return std::is_sorted(places.begin(), places.end());
    }

    void expectMnemonicsToDiffer(const char* where) {
        std::map<QKeySequence, std::string> taken;
        for (const QAction* menu : window.menuBar()->actions())
            taken[QKeySequence::mnemonic(menu->text())] = qPrintable(menu->text());
        for (const QWidget* each : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(each);
            if (!each->isVisible() || (label != nullptr && label->buddy() == nullptr)) continue;
            const QString text =
                each->property(qobject_cast<const QGroupBox*>(each) ? "title" : "text").toString();
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (key.isEmpty()) continue;
            EXPECT_TRUE(taken.emplace(key, qPrintable(text)).second)
                << where << ": " << qPrintable(text) << " and " << taken[key];
        }
    }
};

TEST_F(FocusOrder, TabGoesThroughEveryPageAndBack) {
    const QString logo = makeLogo();
    addLogo(logo);
    struct Page {
        const char* name;
        Act act;
    };
    for (const auto& [name, act] : {Page{"text", Act::AddText}, Page{"shape", Act::AddShape},
                                    Page{"code", Act::AddQrCode}, Page{"filter", Act::AddFilter},
                                    Page{"border", Act::AddEffects}, Page{"copyright", Act::AddCopyright}}) {
        window.actions()[act]->trigger();
        ASSERT_TRUE(waitForPreview());
        if (act == Act::AddText) press(*window.inspector().page(), "MacrosTitle", Qt::Key_Right);
        expectAllReached(name);
        expectMnemonicsToDiffer(name);
    }
    window.watermarks().selectWatermark(0);
    expectAllReached("logo");
    expectMnemonicsToDiffer("logo");
    leave();
    expectAllReached("nothing selected");
    window.photos().RemoveAllImages();
    window.watermarks().RemoveAllWatermarks();
    window.watermarks().removeEffects();
    window.result().tell({.counts = QStringLiteral("1 failed"),
                          .message = {},
                          .failed = 1,
                          .open = QStringLiteral("Open Fol&der")});
    expectAllReached("welcome");
    expectMnemonicsToDiffer("welcome");
}

}  // namespace
}  // namespace zelto
