// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_clipboard.h"

#include "persistence/setting_file.h"
#include "platform/words.h"
#include "records/watermark_stack.h"

#include <QMimeData>

namespace zelto {
namespace {

// What a setting's document in a mail or an editor looks like.
bool looksLikeSetting(const QString& text) {
    constexpr qsizetype Head = 200;
    return text.left(Head).contains(QLatin1String("<WatermarkList"), Qt::CaseInsensitive);
}

}  // namespace

std::unique_ptr<QMimeData> watermarksAsMime(const std::vector<Watermark>& watermarks) {
    WatermarkStack stack;
    stack.Watermarks = watermarks;
    const QByteArray document = writeSettingDocument(stack);
    auto data = std::make_unique<QMimeData>();
    data->setData(WatermarksMimeType, document);
    data->setText(QString::fromUtf8(document));
    return data;
}

bool holdsWatermarks(const QMimeData& data) {
    return data.hasFormat(WatermarksMimeType) || (data.hasText() && looksLikeSetting(data.text()));
}

Result<std::vector<Watermark>> watermarksOf(const QMimeData& data) {
    const QByteArray document =
        data.hasFormat(WatermarksMimeType) ? data.data(WatermarksMimeType) : data.text().toUtf8();
    Result<WatermarkStack> stack = readSettingDocument(document, Words::tr("The clipboard"));
    if (!stack) return tl::unexpected(stack.error());
    if (stack->Watermarks.empty())
        return fail(ErrorCode::InvalidFile, Words::tr("There are no watermarks to paste."));
    return std::move(stack->Watermarks);
}

}  // namespace zelto
