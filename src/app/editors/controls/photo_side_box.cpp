// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/photo_side_box.h"

#include "platform/words.h"
#include "records/watermark.h"

#include <QComboBox>

#include <array>

namespace zelto {
namespace {

struct SideTitle {
    QLatin1String side;
    MarkedText title;
};
constexpr std::array SideTitles = {
    SideTitle{photo_side::Width, MarkedText(QT_TRANSLATE_NOOP("Words", "Width"))},
    SideTitle{photo_side::Height, MarkedText(QT_TRANSLATE_NOOP("Words", "Height"))},
    SideTitle{photo_side::LongerSide, MarkedText(QT_TRANSLATE_NOOP("Words", "Longer Side"))},
};
static_assert(SideTitles.size() == std::size(photo_side::All));

}  // namespace

QComboBox* makePhotoSideBox(QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setAccessibleName(Words::tr("Side of the photo the size follows"));
    for (const SideTitle& row : SideTitles) box->addItem(row.title, QString(row.side));
    return box;
}

}  // namespace zelto
