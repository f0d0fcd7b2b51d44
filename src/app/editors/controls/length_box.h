// SPDX-License-Identifier: GPL-3.0-or-later
// A length in pixels or as a share of the photo's shorter side, for the fields of length_field.h. Several of them share a
// unit, which a list beside them chooses; a share is followed by the pixels it is on the selected photo. Main thread
// only.
#pragma once

#include "app/editors/controls/number_field.h"
#include "app/editors/controls/record_binder.h"
#include "records/length_field.h"
#include "render/lengths.h"

#include <QComboBox>
#include <QLabel>
#include <QSizeF>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

namespace zelto {

struct PhotoLength {
    std::int64_t pixels = 0;
    std::optional<float> share;
};

class LengthBox : public QWidget {
    Q_OBJECT

  public:
    // `pixels` is what the number is when it is in pixels. A share may point outward where pixels may.
    LengthBox(const NumberKind& pixels, const QString& name, QWidget* parent = nullptr);

    NumberField& number() { return *number_; }

    // Shows a length without telling anyone.
    void load(const PhotoLength& length);
    // The area whose shorter side the share is of; empty where there is no photo.
    void showReference(QSizeF area);

  Q_SIGNALS:
    void chosen(const zelto::PhotoLength& length);

  private:
    void showNote();

    const NumberKind pixels_;
    NumberField* number_;
    QLabel* note_;
    PhotoLength length_;
    QSizeF area_;
};

// Pixels or shares, for several lengths at once.
class LengthUnit : public QComboBox {
    Q_OBJECT

  public:
    explicit LengthUnit(QWidget* parent = nullptr);

    void load(bool isShare) { setCurrentIndex(isShare ? 1 : 0); }

  Q_SIGNALS:
    void chosen(bool isShare);
};

// Binds a box to a length of a record. `set` does more than take the length where that is wanted.
template <class Record, class Set>
void bindLength(RecordBinder<Record>& binder, LengthBox* box, const LengthField<Record>& field, Set set) {
    binder.bind(
        box,
        [field](const Record& record) {
            return PhotoLength{record.*field.Pixels, record.*field.Share};
        },
        set);
}
template <class Record>
void bindLength(RecordBinder<Record>& binder, LengthBox* box, const LengthField<Record>& field) {
    bindLength(binder, box, field, [field](Record& record, const PhotoLength& length) {
        record.*field.Pixels = length.pixels;
        record.*field.Share = length.share;
    });
}

// Binds the list of units to the lengths it is for. The lengths stay what they are on the photo; `area` points to the
// area that their shares are of, which outlives the list.
template <class Record, class Fields>
void bindUnit(RecordBinder<Record>& binder, LengthUnit* unit, const Fields& fields, const QSizeF* area) {
    binder.bind(
        unit,
        [fields](const Record& record) {
            bool isShare = false;
            for (const LengthField<Record>& field : fields) isShare = isShare || record.*field.Share;
            return isShare;
        },
        [fields, area](Record& record, bool isShare) {
            // Where there is no photo to go by, one of an ordinary size.
            const QSizeF on = area->isEmpty() ? QSizeF(6000, 4000) : *area;
            for (const LengthField<Record>& field : fields) {
                record.*field.Pixels = lengthOn(record, field, on);
                (record.*field.Share).reset();
                if (isShare) record.*field.Share = shareOf(static_cast<double>(record.*field.Pixels), on);
            }
        });
}

}  // namespace zelto
