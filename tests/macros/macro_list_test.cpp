// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/macro_list.h"

#include "macros/macro_expander.h"
#include "support/testing.h"

namespace zelto {
namespace {

TEST(MacroList, OffersOnlyTokensTheExpanderKnows) {
    MacroContext context;
    context.photoPath = u"/a/b.jpg"_s;
    context.pixelSize = {4, 3};
    const QList<Macro> list = fixedMacros();
    ASSERT_EQ(list.size(), 12);
    for (const Macro& macro : list) {
        EXPECT_FALSE(ParseMacros(macro.MacroName, context).text.contains(u"<<"_s))
            << macro.MacroName.toStdString();
    }
}

TEST(MacroList, OffersAPhotosValuesNestedOnesIncluded) {
    ImageProperties properties;
    properties.exif = {{u"FNumber"_s, 2.8}, {u"DateTimeOriginal"_s, u"x"_s}};
    properties.iptc = {{u"City"_s, u"Bern"_s},
                       {u"CreatorContactInfo"_s, QVariantMap{{u"CiAdrCity"_s, u"Bern"_s}}},
                       {u"Keywords"_s, QVariantList{}}};
    const QList<Macro> expected = {{u"<<EXIF:DateTimeOriginal>>"_s, u"EXIF:DateTimeOriginal"_s},
                                   {u"<<EXIF:FNumber>>"_s, u"EXIF:FNumber"_s},
                                   {u"<<IPTC:City>>"_s, u"IPTC:City"_s},
                                   {u"<<IPTC:CiAdrCity>>"_s, u"IPTC:CiAdrCity"_s},
                                   {u"<<IPTC:Keywords>>"_s, u"IPTC:Keywords"_s}};
    EXPECT_EQ(metadataMacros(properties), expected);
    EXPECT_TRUE(metadataMacros({}).isEmpty());
}

TEST(MacroList, AsksForADateFormatWhereADateIsChosen) {
    QList<Macro> list = fixedMacros();
    const qsizetype first = list.size();
    for (const QString& token :
         {u"<<EXIF:DateTimeOriginal>>"_s, u"<<EXIF:DateTimeDigitized>>"_s, u"<<IPTC:DateCreated>>"_s,
          u"<<IPTC:TimeCreated>>"_s, u"<<EXIF:datetimeoriginal>>"_s}) {
        list.append({token, token});
    }
    struct Row {
        qsizetype row;
        MacroAction insert, doubleClick;
    };
    constexpr MacroAction Token = MacroAction::InsertToken, Date = MacroAction::OpenDateFormat,
                          Number = MacroAction::OpenAutoNumber;
    const Row rows[] = {{0, Number, Number},       {1, Date, Date},           {2, Token, Token},
                        {6, Date, Date},           {7, Date, Date},           {8, Token, Token},
                        {first, Date, Date},       {first + 1, Date, Date},   {first + 2, Date, Token},
                        {first + 3, Token, Token}, {first + 4, Token, Token}, {-1, Token, Token},
                        {first + 5, Token, Token}};
    for (const Row& row : rows) {
        EXPECT_EQ(macroAction(list, row.row, MacroGesture::InsertMacro), row.insert) << row.row;
        EXPECT_EQ(macroAction(list, row.row, MacroGesture::DoubleClick), row.doubleClick) << row.row;
    }
}

}  // namespace
}  // namespace zelto
