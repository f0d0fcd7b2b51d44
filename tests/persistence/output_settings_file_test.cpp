// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/output_settings_file.h"

#include "persistence/output_options_check.h"
#include "persistence/xml_document.h"
#include "platform/file_reference.h"
#include "platform/whole_file.h"
#include "support/testing.h"

namespace zelto {
namespace {

class OutputSettingsFile : public ::testing::Test {
  protected:
    void write(const QByteArray& elements) {
        ASSERT_TRUE(writeWholeFile(path_, "<OutputSettings>" + elements + "</OutputSettings>"));
    }

    OutputSettings full() const {
        OutputSettings s;
        s.options.OutputPath = folder_.path();
        s.options.OutputFolderData = fileReference(folder_.path());
        s.options.OutputFormat = QStringLiteral("tiff");
        s.options.JPEGQuality = 85;
        s.options.Rename = s.options.AspectRatio = s.options.CombineToSinglePDF = true;
        s.options.RenameFormat = QStringLiteral("[O]_[###]");
        s.options.ResizeType = resize_type::LongerSide;
        s.options.ResizeImage = s.options.DontEnlargeSmallImage = s.options.KeepDirectoryStructure = true;
        s.options.LongestsideSize = 1200;
        s.options.ExifDataToInclude = exif_data::ExcludeGeolocation;
        s.percentageWidth = 50;
        s.percentageHeight = 40;
        s.absoluteWidth = 800;
        s.absoluteHeight = 600;
        return s;
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(OutputSettingsFileName);
};

TEST_F(OutputSettingsFile, HoldsTheFieldsInTheirOrder) {
    OutputSettings s = full();
    s.options.OutputPath = QStringLiteral("/out");
    s.options.OutputFolderData = "/out";
    ASSERT_TRUE(saveOutputSettings(s, path_));
    EXPECT_EQ(readXmlFile(path_)->simplified().toStdString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?> <OutputSettings> <SavePath>/out</SavePath> "
              "<OutputFolderData>L291dA==</OutputFolderData> <OutputFormat>tiff</OutputFormat> "
              "<JpegQuality>85</JpegQuality> <Rename>1</Rename> <RenameFormat>[O]_[###]</RenameFormat> "
              "<Resize>1</Resize> <PreserveAspect>1</PreserveAspect> <ResizeMode>2</ResizeMode> "
              "<PercentageW>50</PercentageW> <PercentageH>40</PercentageH> <AbsoluteW>800</AbsoluteW> "
              "<AbsoluteH>600</AbsoluteH> <LongestSide>1200</LongestSide> "
              "<ExifDataToInclude>2</ExifDataToInclude> <DontEnlarge>1</DontEnlarge> "
              "<CombineToSinglePDF>1</CombineToSinglePDF> "
              "<MaintainDirectoryStructure>1</MaintainDirectoryStructure> </OutputSettings>");
}

TEST_F(OutputSettingsFile, ReadsEverythingBackButThePixelHeight) {
    for (const std::int64_t type : {resize_type::Percentage, resize_type::Pixels, resize_type::LongerSide}) {
        OutputSettings s = full();
        s.options.ResizeType = type;
        s.options.JpegLossless = type == resize_type::Pixels;  // an element that is not there where it is off
        if (type == resize_type::Percentage) s.options.ResizeWidth = 30, s.options.ResizeHeight = 20;
        if (type == resize_type::Pixels) s.options.ResizeWidth = 640, s.options.ResizeHeight = 480;
        ASSERT_TRUE(saveOutputSettings(s, path_));
        OutputSettings initial;
        initial.absoluteHeight = 7;
        const Result<OutputSettings> read = loadOutputSettings(path_, initial);
        ASSERT_TRUE(read) << read.error().message.toStdString();
        if (type == resize_type::Pixels) s.options.ResizeHeight = 7;
        EXPECT_EQ(read->options, s.options) << "type " << type;
        EXPECT_EQ(read->percentageWidth, type == resize_type::Percentage ? 30 : 50);
        EXPECT_EQ(read->percentageHeight, type == resize_type::Percentage ? 20 : 40);
        EXPECT_EQ(read->absoluteWidth, type == resize_type::Pixels ? 640 : 800);
        EXPECT_EQ(read->absoluteHeight, 7);
    }
}

TEST_F(OutputSettingsFile, LeavesOutWhatMakesNoSense) {
    write(
        "<ExifDataToInclude>7</ExifDataToInclude><ResizeMode>3</ResizeMode><OutputFormat>exe</OutputFormat>"
        "<JpegQuality>500</JpegQuality><PercentageW>-5</PercentageW><PercentageH>half</PercentageH>"
        "<AbsoluteW>-20</AbsoluteW><Unknown>1</Unknown><OutputFolderData>%%</OutputFolderData>");
    const OutputSettings initial = full();
    const Result<OutputSettings> read = loadOutputSettings(path_, initial);
    ASSERT_TRUE(read);
    OutputOptions expected = initial.options;
    expected.JPEGQuality = 100;
    EXPECT_EQ(read->options, expected);
    EXPECT_EQ(read->percentageWidth, 100);
    EXPECT_EQ(read->percentageHeight, 0);
    EXPECT_EQ(read->absoluteWidth, 0);
}

TEST_F(OutputSettingsFile, FolderReferenceOverridesThePathOnlyWhileItLeadsSomewhere) {
    for (const bool isThere : {true, false}) {
        const QString folder = isThere ? folder_.path() : QStringLiteral("/gone/too");
        write("<SavePath>/gone</SavePath><OutputFolderData>" + folder.toUtf8().toBase64() +
              "</OutputFolderData>");
        const Result<OutputSettings> read = loadOutputSettings(path_, {});
        EXPECT_EQ(read->options.OutputPath, isThere ? folder : QStringLiteral("/gone"));
        EXPECT_EQ(read->options.OutputFolderData, folder.toUtf8());
    }
}

TEST_F(OutputSettingsFile, MissingGivesTheInitialSettingsAndABrokenOneAnError) {
    EXPECT_EQ(loadOutputSettings(path_, full())->options, full().options);
    write("<Resize>");
    EXPECT_EQ(loadOutputSettings(path_, full()).error().code, ErrorCode::InvalidFile);
    // What a file leaves out is as both programs start.
    write("<Resize>1</Resize><OutputFormat>PDF</OutputFormat>");
    const OutputOptions options = loadOutputSettings(path_, startingOutputSettings())->options;
    EXPECT_EQ(options.ResizeWidth, 100);
    EXPECT_EQ(options.ResizeHeight, 100);
    EXPECT_EQ(options.OutputFormat, QStringLiteral("pdf")) << "formats are known in any letter case";
}

TEST(OutputOptionsCheck, NamesTheFirstThingThatKeepsARunFromStarting) {
    const QTemporaryDir folder;
    OutputOptions options;
    EXPECT_EQ(outputOptionsProblem(options)->title, QStringLiteral("Output path cannot be empty"));
    options.ResizeImage = true;
    options.ResizeType = resize_type::LongerSide;
    options.OutputPath = folder.filePath(QStringLiteral("missing"));
    EXPECT_EQ(outputOptionsProblem(options)->title, QStringLiteral("Output path not accessible"));
    options.OutputPath = folder.path();
    EXPECT_EQ(outputOptionsProblem(options)->title, QStringLiteral("Longer side cannot be empty"));
    options.ResizeImage = false;
    EXPECT_EQ(outputOptionsProblem(options), std::nullopt);
    options.ResizeImage = true;
    options.LongestsideSize = 1;
    EXPECT_EQ(outputOptionsProblem(options), std::nullopt);
}

}  // namespace
}  // namespace zelto
