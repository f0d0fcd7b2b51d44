// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/setting_file.h"

#include "persistence/xml_document.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::HasSubstr;

// The elements that hold no others as "path=text", a watermark's type as "Watermark@type", the paths within a
// watermark without its name.
void outline(const XmlElement& element, const QString& path, QStringList& lines) {
    if (!element.type.isNull()) lines.append(path + u'@' + element.type);
    if (element.children.empty()) lines.append(path + u'=' + element.text);
    const QString start = path.isEmpty() || !element.type.isNull() ? QString() : path + u'/';
    for (const XmlElement& child : element.children) outline(child, start + child.name, lines);
}

std::string outline(const WatermarkStack& stack) {
    const auto root = readXml(writeSettingDocument(stack), "WatermarkList"_L1, u"test"_s);
    QStringList lines;
    if (root) outline(*root, QString(), lines);
    return lines.join(u'|').toStdString();
}

WatermarkStack readBack(const QByteArray& document) {
    const Result<WatermarkStack> stack = readSettingDocument(document, u"test"_s);
    if (!stack) ADD_FAILURE() << stack.error().message.toStdString();
    return stack.value_or(WatermarkStack{});
}

// The only watermark of a document that holds one of `type` with these elements.
Watermark readOne(int type, const QByteArray& elements) {
    const WatermarkStack stack = readBack("<WatermarkList><Watermark Type=\"" + QByteArray::number(type) +
                                          "\">" + elements + "</Watermark></WatermarkList>");
    return stack.Watermarks.size() == 1 ? stack.Watermarks[0] : Watermark(-1);
}

// What every field is expected to be in a file, one "path=text" a field, "|" between them. The records are filled
// field by field in C++ so that a name that is wrong in writer and reader alike is noticed.
TEST(SettingFile, WritesTheElementsOfEachTypeInTheirOrder) {
    const auto common = [](Watermark w) {
        w.IsEnabled = false;
        w.Transparency = 0.25F;
        w.Rotation = -45;
        w.Position = CustomPosition;
        std::int64_t next = 1;
        for (std::int64_t* field :
             {&w.PaddingTop, &w.PaddingRight, &w.PaddingBottom, &w.PaddingLeft, &w.CustomPositionLeft,
              &w.CustomPositionTop, &w.HorizontalSpacing, &w.VerticalSpacing})
            *field = next++;
        w.HorizontalTiling = true;
        w.ImageProportionalResize = u"Longer Side"_s;
        return w;
    };
    Watermark text = common(Watermark(watermark_type::Text));
    text.Text = u"#1 <<AUTO:##1+1>> & more"_s;
    text.FontFamily = u"Serif"_s;
    text.FontSize = 40;
    text.FontBold = text.FontUnderline = text.Shadow = text.IsRelative = text.UseTransparentColor = true;
    text.TextColor = Color{1.0F, 0.5F, 0.0F, 1.0F};
    text.Alignment = 2;
    text.TextEffect = 3;
    text.FontRelativeSize = u"Height"_s;
    Watermark shape = common(Watermark(watermark_type::Shape));
    shape.ShapeType = shape_type::Polygon;
    shape.Sides = 6;
    shape.ResizeHeight = 0.5F;
    shape.Height = 150.5F;
    shape.ResizeHeightByPercent = true;
    shape.GradeintType = 5;
    Watermark qr = common(Watermark(watermark_type::QrCode));
    qr.Text = u"https://example.org/#top"_s;
    qr.ShadowColor.reset();
    Watermark image = common(Watermark(7));
    image.ImagePath = u"/logos/a.png"_s;
    image.ImageData = QByteArray("\x00\xFF\x10", 3);
    image.ResizeFormat = 2;
    image.PreserverAspectRatio = image.IsTransparent = true;
    image.Width = 64.0F;
    PhotoEffects effects{1, 2, 4, 3, Color::black(), std::nullopt, 5, 6, 360};

    const std::pair<WatermarkStack, QLatin1String> rows[] = {
        {{{text}, {}, 0, false},
         "Watermark@1|Text=&hash;1 <<AUTO:&hash;&hash;1+1>> & more|Font/Name=Serif|Font/Bold=1|Font/Italic=0|"
         "Font/Underline=1|Font/Strike=0|Font/Size=40|Font/IsRelative=1|Shadow=1|ShadowColor=|"
         "Color=NSCalibratedRGBColorSpace 1 0.5 0 1|Alignment=2|TextEffect=3|UseTransparentColor=1|"
         "ProportionalResize=2|"_L1},
        {{{shape}, {}, 0, false},
         "Watermark@2|ShapeType=3|Sides=6|ResizeHeight=0.500000|ResizeWidth=0.000000|Width=200.000000|"
         "Height=150.500000|SolidColor=NSCalibratedRGBColorSpace 1 1 1 1|"
         "FirstColor=NSCalibratedRGBColorSpace 1 1 1 1|SecondColor=NSCalibratedRGBColorSpace 0 0 0 1|"
         "SolidBackground=1|ResizeWidthByPercent=0|ResizeHeightByPercent=1|GradeintType=5|"_L1},
        {{{qr}, {}, 0, false},
         "Watermark@3|Text=https://example.org/#top|ResizeWidth=0.200000|ResizeFormat=0|ShadowColor=|"_L1},
        {{{image}, {}, 0, false},
         "Watermark@0|LogoPath=/logos/a.png|ImageData=AP8Q|Resize=0|ResizebyWidth=0|PreserverAspectRatio=1|"
         "ResizeFormat=2|ResizeHeight=0.000000|ResizeWidth=0.000000|Width=64.000000|Height=0.000000|"
         "IsTransparent=1|CreateBW=0|TransparentColor=|"_L1},
        {{{}, effects, 12, true},
         "Effects/Border/BorderColor=NSCalibratedRGBColorSpace 0 0 0 1|Effects/Border/TopBorderThickness=1|"
         "Effects/Border/LeftBorderThickness=2|Effects/Border/BottomBorderThickness=3|"
         "Effects/Border/RightBorderThickness=4|Effects/Border/ApplyWatermarkOnBorder=0|"
         "Effects/Shadow/ShadowColor=|Effects/Shadow/ShadowDirection=360|Effects/Shadow/ShadowSpread=5|"
         "Effects/Shadow/ShadowSize=6|Effects/Shadow/EnableShadow=1|SelectedFilter=12|Metadata=1"_L1},
    };
    const auto commonElements =
        "IsEnabled=0|Transparency=0.250000|Rotation=-45|Position=10|PaddingTop=1|PaddingRight=2|"
        "PaddingBottom=3|"
        "PaddingLeft=4|CustomPositionLeft=5|CustomPositionTop=6|HTiling=1|VTiling=0|HorizontalSpacing=7|"
        "VerticalSpacing=8|ProportionalResize=3|SelectedFilter=0"_L1;
    for (const auto& [stack, elements] : rows) {
        const QString expected = elements + (stack.Watermarks.empty() ? QString() : QString(commonElements));
        EXPECT_EQ(outline(stack), expected.toStdString());
    }
}

// Random records, holding in every field its type stores a value that the file can express.
class RandomRecords {
  public:
    Watermark watermark(std::int32_t type) {
        Watermark w(type);
        if (type == watermark_type::Text) {
            set(w.Text, w.FontFamily, w.FontSize, w.FontBold, w.FontItalic, w.FontUnderline,
                w.FontStrikethrough, w.IsRelative, w.Shadow, w.ShadowColor, w.TextColor,
                w.UseTransparentColor, w.TextEffect);
            w.Alignment = static_cast<std::uint64_t>(number(0, 4));
            w.FontRelativeSize = QStringList{u"Width"_s, u"Height"_s, u"Longer Side"_s}[number(0, 2)];
        } else if (type == watermark_type::Shape) {
            set(w.ShapeType, w.Sides, w.ResizeHeight, w.ResizeWidth, w.Width, w.Height, w.SolidColor,
                w.FirstColor, w.SecondColor, w.SolidBackground, w.ResizeWidthByPercent,
                w.ResizeHeightByPercent, w.GradeintType);
        } else if (type == watermark_type::QrCode) {
            set(w.Text, w.ResizeWidth, w.ResizeFormat, w.ShadowColor);
        } else {
            set(w.ImagePath, w.ImageData, w.Resize, w.ResizebyWidth, w.PreserverAspectRatio, w.ResizeFormat,
                w.ResizeHeight, w.ResizeWidth, w.Width, w.Height, w.IsTransparent, w.CreateBW,
                w.TransparentColor);
        }
        set(w.IsEnabled, w.HorizontalTiling, w.VerticalTiling, w.Position, w.Rotation, w.PaddingTop,
            w.PaddingRight, w.PaddingBottom, w.PaddingLeft, w.CustomPositionLeft, w.CustomPositionTop,
            w.HorizontalSpacing, w.VerticalSpacing);
        w.Transparency = static_cast<float>(number(0, 100)) / 100.0F;
        if (number(0, 1) == 1) w.ImageProportionalResize = number(0, 1) == 0 ? u"Height"_s : u"Longer Side"_s;
        return w;
    }

    PhotoEffects effects() {
        PhotoEffects e;
        set(e.TopThickness, e.LeftThickness, e.RightThickness, e.BottomThickness, e.BlurRadius, e.Distance,
            e.Direction, e.BorderColor, e.ShadowColor, e.ApplyWatermarkOnBorder, e.EnableShadow);
        return e;
    }

    qint64 number(qint64 from, qint64 to) { return std::uniform_int_distribution<qint64>(from, to)(random_); }

  private:
    template <class... Fields>
    void set(Fields&... fields) {
        (fill(fields), ...);
    }
    void fill(bool& field) { field = number(0, 1) == 1; }
    void fill(std::int64_t& field) { field = number(-1'000'000'000, 1'000'000'000); }
    void fill(std::int32_t& field) {
        field = static_cast<std::int32_t>(number(-2'000'000'000, 2'000'000'000));
    }
    void fill(QByteArray& field) {
        for (qint64 n = number(0, 300); n > 0; --n) field.append(static_cast<char>(number(0, 255)));
    }
    void fill(float& field) { field = static_cast<float>(number(0, 100'000)) / 64.0F; }
    void fill(std::optional<Color>& field) {
        const auto component = [this] { return static_cast<float>(number(0, 1'000'003)) / 1'000'003.0F; };
        field.reset();
        if (number(0, 4) > 0) field = Color{component(), component(), component(), component()};
    }
    void fill(QString& field) {
        static const QStringList pieces = {
            u"#"_s,      u"\n"_s, u"\r"_s,    u" "_s,     u"<<AUTO:###1+1>>"_s,
            u"]]>"_s,    u"\""_s, u"&amp;"_s, u"%1"_s,    u"<<EXIF:FNumber>>"_s,
            u"\u00E9"_s, u"📷"_s,  u"\x1D"_s,  u"&#x1D;"_s};
        for (qint64 n = number(0, 8); n > 0; --n) field += pieces[number(0, pieces.size() - 1)];
    }

    std::mt19937_64 random_{2};
};

TEST(SettingFile, ReadsBackWhatItWrote) {
    RandomRecords random;
    for (int round = 0; round < 300; ++round) {
        WatermarkStack stack;
        for (qint64 n = random.number(0, 5); n > 0; --n) {
            stack.Watermarks.push_back(random.watermark(static_cast<std::int32_t>(random.number(0, 3))));
        }
        if (random.number(0, 1) == 1) stack.Effects = random.effects();
        stack.SelectedFilter = static_cast<int>(random.number(0, 20));
        stack.Metadata = random.number(0, 1) == 1;
        const QByteArray document = writeSettingDocument(stack);
        ASSERT_EQ(readBack(document), stack) << document.toStdString();
    }
}

TEST(SettingFile, WhatAFileCannotExpressReadsBackAsTheNearestItCan) {
    Watermark text(watermark_type::Text);
    text.Text = u"&hash;"_s;
    text.FontRelativeSize = u"Fixed"_s;
    Watermark image(watermark_type::Image);
    image.ImageProportionalResize = u"Proportional"_s;
    Watermark shape(watermark_type::Shape);
    shape.ImageProportionalResize = u"Width"_s;
    const WatermarkStack back =
        readBack(writeSettingDocument({{text, image, shape, Watermark(7)}, {}, 0, false}));
    ASSERT_EQ(back.Watermarks.size(), 4U);
    EXPECT_EQ(back.Watermarks[0].Text, u"#"_s);
    EXPECT_EQ(back.Watermarks[0].FontRelativeSize, u"Width"_s);
    EXPECT_EQ(back.Watermarks[1].ImageProportionalResize, u"Width"_s);
    EXPECT_EQ(back.Watermarks[2], Watermark(watermark_type::Shape));
    EXPECT_EQ(back.Watermarks[3].Type, watermark_type::Image);
}

TEST(SettingFile, AcceptsTheKeysAndFormsOfOlderFiles) {
    const WatermarkStack stack = readBack(R"(<?xml version="1.0"?><Watermarklist>
        <Watermark type="1"><TextAlign>2</TextAlign><UseTransParentColor>True</UseTransParentColor>
          <Color> #FF000080 </Color><Font><Bold>True</Bold><Italic>False</Italic></Font>
          <Text>A&amp;hash;B &lt;&lt;AUTO:&amp;hash;&amp;hash;1+2&amp;gt;&amp;gt; &lt;&lt;X&amp;gt;&amp;gt;</Text>
        </Watermark>
        <Watermark type="2"><IsGradient>True</IsGradient><GradientType>3</GradientType></Watermark>
        <Watermark type="2"><SolidBackground>1</SolidBackground><IsGradient>1</IsGradient></Watermark>
        <Watermark type="0"><ResizeImage>1</ResizeImage><UseTransParentColor>1</UseTransParentColor></Watermark>
        <Watermark type="3"><Text>A&amp;hash;B</Text></Watermark>
        </Watermarklist>)");
    ASSERT_EQ(stack.Watermarks.size(), 5U);
    const Watermark& text = stack.Watermarks[0];
    EXPECT_EQ(text.Text, u"A#B <<AUTO:##1+2>> <<X&gt;&gt;"_s);
    EXPECT_EQ(text.Alignment, 2U);
    EXPECT_TRUE(text.UseTransparentColor && text.FontBold && !text.FontItalic);
    EXPECT_EQ(text.TextColor, (Color{1.0F, 0.0F, 0.0F, static_cast<float>(128 / 255.0)}));
    EXPECT_FALSE(stack.Watermarks[1].SolidBackground);
    EXPECT_EQ(stack.Watermarks[1].GradeintType, 3);
    EXPECT_TRUE(stack.Watermarks[2].SolidBackground) << "today's element wins over the older one";
    EXPECT_TRUE(stack.Watermarks[3].Resize && stack.Watermarks[3].IsTransparent);
    EXPECT_EQ(stack.Watermarks[4].Text, u"A&hash;B"_s);
}

TEST(SettingFile, KeepsTheConstructedValueOfWhatIsMissingOrUnreadable) {
    for (const int type : {0, 1, 2, 3}) {
        EXPECT_EQ(readOne(type, "<Unknown><Width>7</Width></Unknown>"), Watermark(type));
        EXPECT_EQ(readOne(type,
                          "<Width>wide</Width><Height/><Position>NaN</Position><IsEnabled>maybe</IsEnabled>"
                          "<ProportionalResize>9</ProportionalResize><Alignment>-1</Alignment>"),
                  Watermark(type));
    }
    EXPECT_EQ(readOne(watermark_type::QrCode, "<ShadowColor> </ShadowColor>").ShadowColor, std::nullopt);
    const WatermarkStack stack =
        readBack("<WatermarkList><Effects/><SelectedFilter/><Metadata/></WatermarkList>");
    EXPECT_EQ(stack, (WatermarkStack{{}, PhotoEffects{}, 0, true}));
}

TEST(SettingFile, ClampsNumbersBeyondAllMeasure) {
    Watermark expected(2);
    expected.Width = 1e9F;
    expected.Height = -1e9F;
    expected.Rotation = 1'000'000'000;
    expected.Sides = -1'000'000'000;
    expected.Position = std::numeric_limits<std::int32_t>::max();
    expected.Transparency = 1.0F;
    EXPECT_EQ(readOne(2,
                      "<Width>inf</Width><Height>-1e300</Height><Rotation>99999999999999999999</Rotation>"
                      "<Position>5000000000</Position><Transparency>12</Transparency>"
                      "<Sides>-9223372036854775808</Sides>"),
              expected);
}

TEST(SettingFile, NamesFileAndLineOfAWatermarkWithoutType) {
    for (const QByteArray tag : {"<Watermark/>", "<Watermark Type=\"logo\"/>"}) {
        const Error error =
            readSettingDocument("<WatermarkList>\n\n" + tag + "</WatermarkList>", u"mine.zcs"_s).error();
        EXPECT_EQ(error.code, ErrorCode::InvalidFile);
        EXPECT_THAT(error.message.toStdString(), HasSubstr("mine.zcs, line 3"));
    }
}

TEST(SettingFile, OnDiskIsWrittenOnlyForAStackThatHoldsSomething) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.zcs"_s);
    const WatermarkStack stack{{Watermark(watermark_type::Shape)}, {}, 3, false};
    EXPECT_TRUE(SaveWatermarkSettings(WatermarkStack{{}, {}, 3, true}, path));
    EXPECT_EQ(LoadWatermarkSetting(path).error().code, ErrorCode::NotFound);
    EXPECT_TRUE(SaveWatermarkSettings(stack, path));
    EXPECT_EQ(LoadWatermarkSetting(path), stack);
    EXPECT_EQ(LoadWatermarkSetting(folder.path()).error().code, ErrorCode::NotFound);
    EXPECT_FALSE(SaveWatermarkSettings(stack, folder.filePath(u"missing/a.zcs"_s)));
}

}  // namespace
}  // namespace zelto
