// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/setting_file.h"

#include "persistence/xml_document.h"
#include "support/testing.h"

namespace zelto {
namespace {

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
TEST(SettingFile, HoldsEveryFieldOfEachTypeInItsOrderAndReadsItBack) {
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
        w.HorizontalTiling = w.VerticalTiling = true;
        return w;
    };
    Watermark text = common(Watermark(watermark_type::Text));
    text.Text = u"#1 <<AUTO:##1+1>> ]]> &amp;\n"_s;
    text.FontFamily = u"Serif"_s;
    text.FontSize = 40;
    text.FontSizeFraction = 0.5F;
    text.FontBold = text.FontItalic = text.FontUnderline = text.FontStrikethrough = true;
    text.Shadow = text.IsRelative = text.UseTransparentColor = true;
    text.ShadowColor.reset();
    text.TextColor = Color{1.0F, 0.5F, 0.0F, 1.0F};
    text.Alignment = 2;
    text.TextEffect = 3;
    text.FontRelativeSize = u"Height"_s;
    Watermark shape = common(Watermark(watermark_type::Shape));
    shape.ShapeType = shape_type::Polygon;
    shape.Sides = 6;
    shape.ResizeHeight = 0.5F;
    shape.ResizeWidth = 0.75F;
    shape.Width = 250.5F;
    shape.Height = 150.5F;
    shape.SolidColor = Color{0.5F, 0.0F, 1.0F, 1.0F};
    shape.FirstColor = Color{0.0F, 0.5F, 1.0F, 1.0F};
    shape.SecondColor = Color{0.0F, 0.0F, 0.5F, 1.0F};
    shape.SolidBackground = false;
    shape.ResizeWidthByPercent = shape.ResizeHeightByPercent = true;
    shape.GradeintType = 5;
    Watermark qr = common(Watermark(watermark_type::QrCode));
    qr.Text = u"https://example.org/#top"_s;
    qr.ResizeWidth = 0.5F;
    qr.ResizeFormat = 1;
    qr.ShadowColor.reset();
    Watermark image = common(Watermark(watermark_type::Image));
    image.ImagePath = u"/logos/a.png"_s;
    image.ImageData = QByteArray("\x00\xFF\x10", 3);
    image.Resize = image.ResizebyWidth = image.PreserverAspectRatio = true;
    image.ResizeFormat = 2;
    image.ResizeHeight = 0.5F;
    image.ResizeWidth = 0.75F;
    image.Width = 64.0F;
    image.Height = 32.0F;
    image.IsTransparent = image.CreateBW = true;
    image.TransparentColor = Color::white();
    image.ImageProportionalResize = u"Longer Side"_s;
    text.PaddingTopShare = 0.0125F;
    text.PaddingRightShare = -0.02F;
    text.PaddingBottomShare = 0.0F;
    text.PaddingLeftShare = 1.5F;
    text.HorizontalSpacingShare = 0.25F;
    text.VerticalSpacingShare = 0.125F;
    PhotoEffects effects{1,     2,    4,     3,     Color::white(), std::nullopt, 5,     6,     360,
                         false, true, false, 0.01F, 0.02F,          0.03F,        0.04F, 0.05F, 0.06F};
    const std::pair<WatermarkStack, QLatin1String> rows[] = {
        {{{text}, {}, 0, false},
         "Watermark@1|Text=&hash;1 <<AUTO:&hash;&hash;1+1>> ]]> &amp;\n|Font/Name=Serif|"
         "Font/Bold=1|Font/Italic=1|Font/Underline=1|Font/Strike=1|Font/Size=40|Font/"
         "SizeFraction=0.500000|Font/IsRelative=1|Shadow=1|"
         "ShadowColor=|Color=NSCalibratedRGBColorSpace 1 0.5 0 1|Alignment=2|TextEffect=3|"
         "UseTransparentColor=1|ProportionalResize=2|"_L1},
        {{{shape}, {}, 0, false},
         "Watermark@2|ShapeType=3|Sides=6|ResizeHeight=0.500000|ResizeWidth=0.750000|Width=250.500000|"
         "Height=150.500000|SolidColor=NSCalibratedRGBColorSpace 0.5 0 1 1|"
         "FirstColor=NSCalibratedRGBColorSpace 0 0.5 1 1|SecondColor=NSCalibratedRGBColorSpace 0 0 0.5 1|"
         "SolidBackground=0|ResizeWidthByPercent=1|ResizeHeightByPercent=1|GradeintType=5|"_L1},
        {{{qr}, {}, 0, false},
         "Watermark@3|Text=https://example.org/#top|ResizeWidth=0.500000|ResizeFormat=1|ShadowColor=|"_L1},
        {{{image}, {}, 0, false},
         "Watermark@0|LogoPath=/logos/a.png|ImageData=AP8Q|Resize=1|ResizebyWidth=1|PreserverAspectRatio=1|"
         "ResizeFormat=2|ResizeHeight=0.500000|ResizeWidth=0.750000|Width=64.000000|Height=32.000000|"
         "IsTransparent=1|CreateBW=1|TransparentColor=NSCalibratedRGBColorSpace 1 1 1 1|"_L1},
        {{{}, effects, 12, true},
         "Effects/Border/BorderColor=NSCalibratedRGBColorSpace 1 1 1 1|Effects/Border/TopBorderThickness=1|"
         "Effects/Border/LeftBorderThickness=2|Effects/Border/BottomBorderThickness=3|"
         "Effects/Border/RightBorderThickness=4|Effects/Border/TopBorderThicknessShare=0.010000|"
         "Effects/Border/LeftBorderThicknessShare=0.020000|Effects/Border/"
         "BottomBorderThicknessShare=0.040000|"
         "Effects/Border/RightBorderThicknessShare=0.030000|Effects/Border/ApplyWatermarkOnBorder=1|"
         "Effects/Shadow/ShadowColor=|Effects/Shadow/ShadowDirection=360|Effects/Shadow/ShadowSpread=5|"
         "Effects/Shadow/ShadowSize=6|Effects/Shadow/ShadowSpreadShare=0.050000|"
         "Effects/Shadow/ShadowSizeShare=0.060000|Effects/Shadow/EnableShadow=0|SelectedFilter=12|Metadata=1"_L1},
    };
    const auto commonElements =
        "IsEnabled=0|Transparency=0.250000|Rotation=-45|Position=10|PaddingTop=1|PaddingRight=2|"
        "PaddingBottom=3|PaddingLeft=4|%2CustomPositionLeft=5|CustomPositionTop=6|HTiling=1|VTiling=1|"
        "HorizontalSpacing=7|VerticalSpacing=8|%3ProportionalResize=%1|SelectedFilter=0"_L1;
    const auto paddingShares =
        "PaddingTopShare=0.012500|PaddingRightShare=-0.020000|PaddingBottomShare=0.000000|"
        "PaddingLeftShare=1.500000|"_L1;
    const auto spacingShares = "HorizontalSpacingShare=0.250000|VerticalSpacingShare=0.125000|"_L1;
    for (const auto& [stack, elements] : rows) {
        QString expected = elements;
        if (!stack.Watermarks.empty()) {
            const std::int32_t type = stack.Watermarks[0].Type;
            const bool hasShares = type == watermark_type::Text;
            expected += QString(commonElements)
                            .arg(type == watermark_type::Image ? 3 : 1)
                            .arg(hasShares ? paddingShares : ""_L1, hasShares ? spacingShares : ""_L1);
        }
        EXPECT_EQ(outline(stack), expected.toStdString());
        EXPECT_EQ(readBack(writeSettingDocument(stack)), stack) << expected.toStdString();
    }
    WatermarkStack added{{text}, {}, 0, false, {effects, 12}};
    added.Watermarks[0].LabelName = u"Mine"_s;
    EXPECT_EQ(readBack(writeSettingDocument(added)), added);
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
                          "<ProportionalResize>9</ProportionalResize><Alignment>-1</Alignment>"
                          "<PaddingTopShare>wide</PaddingTopShare>"),
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
