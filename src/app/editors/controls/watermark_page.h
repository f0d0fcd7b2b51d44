// SPDX-License-Identifier: GPL-3.0-or-later
// The page of one watermark, with controls that are bound to its record, in groups that fold. Main thread only.
#pragma once

#include "app/editors/controls/fold_group.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/value_page.h"
#include "records/watermark.h"

#include <QSizeF>
#include <QVBoxLayout>

namespace zelto {

class WatermarkPage : public ValuePage<Watermark> {
    Q_OBJECT

  public:
    void begin(int index) override;
    // A text that is left empty goes, once whoever ended the visit is done.
    void end() override;
    void load() override { LoadWatermarkSettings(); }
    void showFor(const SelectedPhoto& photo) override;

  protected:
    WatermarkPage(const QString& name, const QString& title, WatermarkController& controller);

    Watermark value() const override;
    void put(const Watermark& record) override;
    void edit(const std::function<void(Watermark&)>& edit);
    RecordBinder<Watermark>& binder() { return binder_; }

    const SelectedPhoto& photo() const { return photo_; }
    // The area in pixels that shares of "the photo" refer to has become another; empty without a photo.
    virtual void showReference(QSizeF /*reference*/) {}

    // Adds a group below those that are there.
    FoldGroup& addGroup(const QString& name, const QString& title);

  private:
    void LoadWatermarkSettings() { binder_.load(value()); }
    void updateReference();

    RecordBinder<Watermark> binder_;
    QVBoxLayout* column_;
    SelectedPhoto photo_;
};

}  // namespace zelto
