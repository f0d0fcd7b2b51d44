// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/editor_dialog.h"

#include "platform/preferences.h"

#include <QDialogButtonBox>
#include <QShowEvent>
#include <QVBoxLayout>

namespace zelto {

EditorDialog::EditorDialog(const EditorCall& call, EditorSession& session, const QString& name,
                           const QString& title)
    : QDialog(call.parent), session_(session) {
    setObjectName(name);
    setWindowTitle(title);
    auto* buttons = new QDialogButtonBox(this);
    revert_ = buttons->addButton(tr("&Revert"), QDialogButtonBox::ResetRole);
    revert_->setObjectName(QStringLiteral("Revert"));
    revert_->setToolTip(tr("Take back everything that was changed since this window was opened"));
    revert_->setAutoDefault(false);
    QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
    close->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(revert_, &QPushButton::clicked, this, [this] { session_.revert(); });
    connect(&session_, &EditorSession::changed, this, &EditorDialog::reload);
}

void EditorDialog::setContent(QWidget* content) {
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, content, 1);
}

void EditorDialog::run() {
    reload();
    exec();
}

void EditorDialog::done(int result) {
    keepPlace();
    QDialog::done(result);
    disconnect(&session_, nullptr, this, nullptr);
    session_.finish();
}

void EditorDialog::reload() {
    load();
    revert_->setEnabled(session_.hasChanged());
}

void EditorDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) place();
    QDialog::showEvent(event);
}

// Where it was last time; the first time at the right edge of the window, which leaves most of the photo free.
void EditorDialog::place() {
    const QVariantMap places = storedPreference(preference::EditorPlaces).value_or(QVariantMap());
    if (restoreGeometry(places.value(objectName()).toByteArray())) return;
    adjustSize();
    if (parentWidget() == nullptr) return;
    constexpr int Margin = 16;
    const QWidget* window = parentWidget()->window();
    const QRect frame = window->frameGeometry();
    move(frame.right() - width() - Margin, window->mapToGlobal(QPoint(0, 4 * Margin)).y());
}

void EditorDialog::keepPlace() const {
    QVariantMap places = storedPreference(preference::EditorPlaces).value_or(QVariantMap());
    places.insert(objectName(), saveGeometry());
    setPreference(preference::EditorPlaces, places);
}

void addRow(QFormLayout& form, const QString& label, QWidget* control) {
    form.addRow(label, control);
    if (!control->accessibleName().isEmpty()) return;
    control->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
}

}  // namespace zelto
