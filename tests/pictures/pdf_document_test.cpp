// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/pdf_document.h"

#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "support/ink.h"
#include "support/run_program.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QBuffer>

#include <algorithm>

namespace zelto {
namespace {

// A device that is full after so many bytes.
class FullDevice : public QIODevice {
  public:
    explicit FullDevice(qint64 room) : room_(room) { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

  protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override {
        if (room_ == 0) {
            setErrorString(QStringLiteral("no room"));
            return -1;
        }
        const qint64 taken = std::min(size, room_);
        room_ -= taken;
        return taken;
    }

  private:
    qint64 room_;
};

class PdfTest : public ::testing::Test {
  protected:
    // What a program of poppler says of the document, or makes from it.
    std::string poppler(const char* program, const char* arguments, const QByteArray& document,
                        const QStringList& target = {}) {
        const QString path = folder_.filePath(QStringLiteral("document.pdf"));
        EXPECT_TRUE(writeWholeFile(path, document));
        const ProgramRun run = runProgram(
            QLatin1String(program), QString::fromLatin1(arguments).split(u' ') + QStringList(path) + target);
        EXPECT_EQ(run.exitStatus, 0) << program;
        EXPECT_EQ(run.errors, "");
        return run.output.simplified().toStdString();
    }

    std::string facts(const QByteArray& document) { return poppler("pdfinfo", "-l 99", document); }

    // The only page as it is seen, one pixel a point.
    QImage page(const QByteArray& document) {
        const QString target = folder_.filePath(QStringLiteral("page"));
        poppler("pdftocairo", "-r 72 -png -singlefile", document, {target});
        return QImage(target + QStringLiteral(".png")).convertToFormat(QImage::Format_RGB32);
    }

    const QTemporaryDir folder_;
};

TEST_F(PdfTest, PageIsThePictureOnePointAPixel) {
    for (const QSize size : {QSize(1, 1), QSize(301, 187)}) {
        QImage opaque = drawnScene(size);
        for (int x = 0; x < size.width(); x += 2) opaque.setPixel(x, size.height() / 2, qRgb(255, 0, 0));
        for (const QImage& picture : {opaque, opaque.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                                      drawnSceneWithAlpha(size)}) {
            const QByteArray document = encodePicture(picture, PictureFormat::Pdf, {.quality = 5}).value();
            EXPECT_THAT(facts(document), HasSubstr("size: " + std::to_string(size.width()) + " x " +
                                                   std::to_string(size.height()) + " pts"));
            // No more than JPEG's finest tables leave, however low the quality asked for JPEG files is.
            EXPECT_LE(largestDifference(page(document), onWhite(picture)), 24)
                << size.width() << ' ' << picture.format();
        }
    }
}

TEST_F(PdfTest, PagesFollowEachOtherAtTheirOwnSizesAndAreWrittenOneByOne) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    PdfDocument document(buffer);
    qint64 before = 0;
    for (int i = 0; i < 12; ++i) {
        const QSize size(100 + i, 80);
        ASSERT_TRUE(
            document.addPage(*encodePdfPage(i % 2 == 0 ? drawnScene(size) : drawnSceneWithAlpha(size))));
        EXPECT_GT(buffer.size(), before + 500);
        before = buffer.size();
    }
    EXPECT_FALSE(encodePdfPage(QImage()));
    QImage wide(28800, 2, QImage::Format_RGB32);
    wide.fill(Qt::blue);
    EXPECT_THAT(encodePicture(wide, PictureFormat::Pdf, {})->toStdString(),
                ::testing::AllOf(HasSubstr("/MediaBox [0 0 14400 1]"), HasSubstr("/UserUnit 2 ")));
    ASSERT_TRUE(document.finish());
    const std::string found = facts(buffer.data());
    EXPECT_THAT(found, HasSubstr("Pages: 12"));
    for (int i = 0; i < 12; ++i) {
        EXPECT_THAT(found, HasSubstr("Page " + std::to_string(i + 1) + " size: " + std::to_string(100 + i) +
                                     " x 80"));
    }
}

TEST_F(PdfTest, SaysWhenItCannotBeWrittenOrHasNoPages) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_EQ(PdfDocument(buffer).finish().error().code, ErrorCode::InvalidValue);

    const QImage picture = drawnScene({60, 40});
    const qsizetype whole = encodePicture(picture, PictureFormat::Pdf, {}).value().size();
    for (const qint64 room : {qint64{0}, qint64{100}, qint64{whole / 2}, qint64{whole - 1}}) {
        FullDevice device(room);
        PdfDocument document(device);
        const Result<void> added = document.addPage(*encodePdfPage(picture));
        const Result<void> finished = document.finish();
        EXPECT_TRUE(room == whole - 1 || !added) << room;
        ASSERT_FALSE(finished) << room;
        EXPECT_EQ(finished.error().code, ErrorCode::CannotWrite);
        EXPECT_THAT(finished.error().message.toStdString(), HasSubstr("no room"));
    }
}

}  // namespace
}  // namespace zelto
