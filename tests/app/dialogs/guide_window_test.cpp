// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/guide_window.h"

#include "app/hands.h"
#include "platform/languages.h"
#include "support/testing.h"

#include <QTextBlock>
#include <QTextBrowser>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

// The first picture of the page as wide as it is shown; 0 for none.
double pictureWidth(QTextBrowser& page) {
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
            if (!picture.isValid()) continue;
            return page.document()
                ->resource(QTextDocument::ImageResource, QUrl(picture.name()))
                .value<QImage>()
                .deviceIndependentSize()
                .width();
        }
    }
    return 0.0;
}

TEST(Guide, OpensOnceWithItsPicturesAndItsLinksLeadThereAndBack) {
    QWidget window;
    openGuide(&window);
    openGuide(&window);
    const auto guides = window.findChildren<GuideWindow*>();
    ASSERT_EQ(guides.size(), 1);
    GuideWindow& guide = *guides.first();
    QTextBrowser& page = guide.page();
    EXPECT_TRUE(guide.isVisible() && page.toPlainText().startsWith(u"Zelto"_s));
    EXPECT_NEAR(pictureWidth(page), 760.0, 1.0) << "no wider than the text";
    EXPECT_FALSE(button(guide, "Back").isEnabled());
    // Tab goes from link to link.
    QTest::keyClick(&page, Qt::Key_Tab);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_TRUE(page.toPlainText().startsWith(u"Your first watermark"_s))
        << page.source().fileName().toStdString();
    click(guide, "Back");
    EXPECT_TRUE(page.toPlainText().startsWith(u"Zelto"_s));
    QTest::keyClick(&guide, Qt::Key_Escape);
    EXPECT_FALSE(guide.isVisible());
    speakLanguage(u"de"_s);
    guide.showPage(u"qr-codes.md"_s);
    speakLanguage(u"en"_s);
    EXPECT_TRUE(page.toPlainText().contains(u"Ein Code kann von jedem Foto"_s));
    EXPECT_NEAR(pictureWidth(page), 760.0, 1.0);
}

}  // namespace
}  // namespace zelto
