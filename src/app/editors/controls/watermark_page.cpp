// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/watermark_page.h"

#include "app/editors/controls/length_box.h"
#include "app/editors/controls/photo_reference.h"

#include <QLabel>

namespace zelto {
namespace {

bool isEmptied(const Watermark& record) {
    return !record.Text.isNull() && record.Text.isEmpty();
}

}  // namespace

WatermarkPage::WatermarkPage(const QString& name, const QString& title, WatermarkController& controller)
    : ValuePage(name, title, controller),
      binder_([this](const auto& change) { edit(change); }),
      column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    column_->addStretch();
}

FoldGroup& WatermarkPage::addGroup(const QString& name, const QString& title) {
    auto* group = new FoldGroup(name, title, FoldGroup::AtFirst::Open, this);
    column_->insertWidget(column_->count() - 1, group);
    return *group;
}

void WatermarkPage::begin(int index) {
    ValuePage::begin(index);
    updateReference();
}

void WatermarkPage::end() {
    if (!controller().document().contains(index()) || !isEmptied(value())) return;
    const auto remove = [&watermarks = controller(), at = index(), emptied = value()] {
        if (!watermarks.document().contains(at) || !(watermarks.GetWatermarkAtRow(at) == emptied)) return;
        watermarks.document().setCurrentWatermark(at);
        watermarks.ReflectWatermark(emptied);
    };
    QMetaObject::invokeMethod(&controller(), remove, Qt::QueuedConnection);
}

void WatermarkPage::showFor(const SelectedPhoto& photo) {
    photo_ = photo;
    updateReference();
}

void WatermarkPage::updateReference() {
    const QSizeF reference = photoReference(controller(), photo_);
    showReferenceIn(*this, reference);
    showReference(reference);
}

Watermark WatermarkPage::value() const {
    return controller().document().contains(index()) ? controller().GetWatermarkAtRow(index())
                                                     : Watermark(watermark_type::Text);
}

void WatermarkPage::put(const Watermark& record) {
    if (!controller().document().contains(index())) return;
    controller().document().setCurrentWatermark(index());
    controller().UpdateWatermark(record, visitStep());
}

void WatermarkPage::edit(const std::function<void(Watermark&)>& edit) {
    const Watermark before = value();
    Watermark after = before;
    edit(after);
    if (!(after == before)) put(after);
}

void nameAfterLabel(const QString& label, QWidget& control) {
    if (!control.accessibleName().isEmpty()) return;
    QString name = label;
    control.setAccessibleName(name.remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    if (QWidget* part = control.focusProxy(); part != nullptr && part->accessibleName().isEmpty())
        part->setAccessibleName(control.accessibleName());
}

void addRow(QFormLayout& form, const QString& label, QWidget* control) {
    auto* shown = new QLabel(label, control->parentWidget());
    shown->setBuddy(control);
    shown->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);  // in the middle of tall rows
    form.addRow(shown, control);
    nameAfterLabel(label, *control);
}

}  // namespace zelto
