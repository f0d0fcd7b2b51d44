// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/remembered_dialog.h"

#include <QScreen>
#include <QShowEvent>

namespace zelto {

RememberedDialog::RememberedDialog(const QString& name, const QString& title, QWidget* parent)
    : QDialog(parent) {
    setObjectName(name);
    setWindowTitle(title);
}

void RememberedDialog::done(int result) {
    QVariantMap places = storedPreference(preference::EditorPlaces).value_or(QVariantMap());
    places.insert(objectName(), saveGeometry());
    setPreference(preference::EditorPlaces, places);
    QDialog::done(result);
}

void RememberedDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) place();
    QDialog::showEvent(event);
}

// The first time it stands at the right edge of the window, which leaves most of the photo free.
void RememberedDialog::place() {
    const QVariantMap places = storedPreference(preference::EditorPlaces).value_or(QVariantMap());
    if (restoreGeometry(places.value(objectName()).toByteArray())) return;
    resize(sizeHint().boundedTo(screen()->availableSize()));
    if (parentWidget() == nullptr) return;
    constexpr int Margin = 16;
    const QWidget* window = parentWidget()->window();
    move(window->frameGeometry().right() - width() - Margin, window->mapToGlobal(QPoint(0, 4 * Margin)).y());
}

void rememberSize(QDialog& dialog, const Preference<QSize>& size) {
    if (const auto stored = storedPreference(size)) dialog.resize(*stored);
    QObject::connect(&dialog, &QDialog::finished, &dialog,
                     [&dialog, size] { setPreference(size, dialog.size()); });
}

}  // namespace zelto
