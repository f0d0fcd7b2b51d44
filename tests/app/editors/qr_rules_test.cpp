// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/qr_rules.h"

#include "render/qr_code.h"
#include "render/tiling.h"
#include "support/qr_reader.h"

#include <QBuffer>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace zelto {
namespace {

constexpr QSizeF Photo(1000, 800);

TEST(QrRules, WhatStandsInTheWayOfReadingIsTold) {
    struct Row {
        int length;
        double side;
        QSizeF photo;
        std::optional<Color> background;
        bool isProblem;
        const char* message;
    };
    const Row rows[] = {
        {0, 200.0, Photo, Color::white(), true, "Type what"},
        {20, 200.0, Photo, Color::white(), false, "25 × 25 squares of 7.2 pixels"},
        {2953, 700.0, Photo, Color::white(), false, "177 × 177 squares of 3.5 pixels"},
        {2954, 800.0, Photo, Color::white(), true, "2954 bytes, 2953 fit"},
        {20, 60.0, Photo, Color::white(), true, "84 pixels (8.4% of this photo's width)"},
        {20, 60.0, {}, Color::white(), true, "at least 84 pixels."},
        {20, 0.0, Photo, Color::white(), true, "Too small"},
        {20, 801.0, Photo, Color::white(), true, "Larger than the photo"},
        {20, 801.0, {}, Color::white(), false, "25 × 25"},
        {20, 200.0, Photo, Color{0.5F, 0.1F, 0.1F}, true, "too dark"},
        {20, 200.0, Photo, std::nullopt, false, "bright parts"},
    };
    for (const Row& row : rows) {
        const QrJudgement judgement(QString(row.length, QLatin1Char('x')), row.side, row.photo,
                                    row.background);
        EXPECT_EQ(judgement.isProblem(), row.isProblem) << row.message;
        EXPECT_TRUE(judgement.message().contains(QString::fromUtf8(row.message)))
            << qPrintable(judgement.message());
    }
}

// The size asked for must be enough: on a compressed photo, by another reader.
TEST(QrRules, TheSmallestSizeCanBeReadFromAJpeg) {
    for (const int length : {10, 60, 150, 300}) {
        QString text = QStringLiteral("https://example.com/");
        while (text.size() < length) text += QLatin1Char('a' + static_cast<char>(text.size() % 26));
        const QString told = QrJudgement(text, 10.0, {}, Color::white()).message();
        const int needed =
            QRegularExpression(QStringLiteral("([0-9]+) pixels")).match(told).captured(1).toInt();
        EXPECT_FALSE(QrJudgement(text, needed + 2, {}, Color::white()).isProblem());
        QImage photo(needed + 200, needed + 200, QImage::Format_RGB32);
        photo.fill(QColor(200, 210, 190));
        const QImage code =
            pictureOf(*qrImageForString(text, needed, Color::white()), QSizeF(needed, needed));
        for (int y = 0; y < code.height(); ++y) {
            for (int x = 0; x < code.width(); ++x) photo.setPixel(x + 100, y + 100, code.pixel(x, y));
        }
        QBuffer file;
        file.open(QBuffer::ReadWrite);
        ASSERT_TRUE(photo.save(&file, "JPG", 75));
        EXPECT_EQ(readQrCodes(QImage::fromData(file.data())), QStringList(text)) << length;
    }
}

}  // namespace
}  // namespace zelto
