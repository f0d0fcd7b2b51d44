// SPDX-License-Identifier: GPL-3.0-or-later
// A length in pixels or as a share of the photo's shorter side, for the fields of length_field.h. Several of them have
// one unit, which a list beside them chooses; what a share is on the selected photo stands under its field. Main thread
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
    LengthUnit(const QString& name, QWidget* parent = nullptr);

    void load(bool isShare) { setCurrentIndex(isShare ? 1 : 0); }
    void showReference(QSizeF area) { area_ = area; }
    // The area that lengths are converted by: one of an ordinary size where there is no photo.
    QSizeF area() const { return area_.isEmpty() ? QSizeF(6000, 4000) : area_; }

  Q_SIGNALS:
    void chosen(bool isShare);

  private:
    QSizeF area_;
};

// Tells all boxes and units of a page what area their shares are of.
void showReferenceIn(const QWidget& page, QSizeF area);

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

// Binds the list of units to the lengths it is for. They stay what they are on the selected photo.
template <class Record, class Fields>
void bindUnit(RecordBinder<Record>& binder, LengthUnit* unit, const Fields& fields) {
    binder.bind(
        unit,
        [fields](const Record& record) {
            bool isShare = false;
            for (const LengthField<Record>& field : fields) isShare = isShare || record.*field.Share;
            return isShare;
        },
        [fields, unit](Record& record, bool isShare) {
            for (const LengthField<Record>& field : fields) {
                record.*field.Pixels = lengthOn(record, field, unit->area());
                (record.*field.Share).reset();
                if (isShare)
                    record.*field.Share = shareOf(static_cast<double>(record.*field.Pixels), unit->area());
            }
        });
}

}  // namespace zelto
