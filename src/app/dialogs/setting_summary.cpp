// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/setting_summary.h"

#include "app/watermarks/watermark_list_model.h"
#include "platform/path_parts.h"
#include "platform/words.h"
#include "render/photo_filters.h"

#include <QStringList>

namespace zelto {
namespace {

constexpr std::size_t NamedWatermarks = 3;
constexpr qsizetype LongestLabel = 40;

QString shortLabel(const Watermark& watermark) {
    QString label = watermarkLabel(watermark).simplified();
    if (watermark.Type == watermark_type::Image) {
        label = label.isEmpty() ? Words::tr("Image") : lastPathComponent(label);
    } else if (watermark.Type == watermark_type::QrCode) {
        label = Words::tr("QR code");
    } else if (watermark.Type == watermark_type::Text) {
        label = Words::tr("“%1”").arg(label);
    }
    return label.size() > LongestLabel ? label.left(LongestLabel) + QStringLiteral("…") : label;
}

QString watermarksText(const std::vector<Watermark>& watermarks) {
    QStringList labels;
    for (const Watermark& watermark : watermarks) {
        if (static_cast<std::size_t>(labels.size()) == NamedWatermarks) break;
        labels.append(shortLabel(watermark));
    }
    const QString named = labels.join(QStringLiteral(", "));
    const std::size_t more = watermarks.size() - static_cast<std::size_t>(labels.size());
    return more == 0 ? named : Words::tr("%1 and %Ln more", nullptr, static_cast<int>(more)).arg(named);
}

}  // namespace

QString settingSummary(const WatermarkStack& stack) {
    QStringList parts;
    if (!stack.Watermarks.empty()) parts.append(watermarksText(stack.Watermarks));
    if (stack.SelectedFilter != 0)
        parts.append(Words::tr("Filter %1").arg(GetFilterName(stack.SelectedFilter)));
    if (stack.Effects) parts.append(Words::tr("Border and shadow"));
    if (stack.Metadata) parts.append(Words::tr("Copyright"));
    return parts.join(QStringLiteral(" · "));
}

}  // namespace zelto
