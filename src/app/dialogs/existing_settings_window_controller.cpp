// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/existing_settings_window_controller.h"

#include "app/common/messages.h"
#include "app/common/remembered_dialog.h"
#include "app/dialogs/setting_summary.h"
#include "persistence/setting_file.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace zelto {
namespace {

constexpr QSize StartSize(460, 380);
constexpr int NameRole = Qt::UserRole;
constexpr int SummaryLines = 3;

QString autoloadName() {
    return storedPreference(preference::AutoLoadSetting).value_or(QString());
}

}  // namespace

ExistingSettingsWindowController::ExistingSettingsWindowController(const SettingsLibrary& library,
                                                                   QWidget* parent)
    : QDialog(parent),
      library_(library),
      search_(new QLineEdit(this)),
      list_(new QListWidget(this)),
      summary_(new QLabel(this)),
      load_(new QPushButton(tr("&Load"), this)),
      autoload_(new QPushButton(this)),
      delete_(new QPushButton(tr("&Delete..."), this)),
      reader_([this, &library](const QString& name) {
          const QString summary =
              library.path(name)
                  .and_then([](const QString& path) { return LoadWatermarkSetting(path); })
                  .map(settingSummary)
                  .or_else([](const Error& error) { return Result<QString>(error.message); })
                  .value();
          QMetaObject::invokeMethod(this, [this, name, summary] { takeSummary(name, summary); });
      }) {
    setWindowTitle(tr("Saved Settings"));
    search_->setPlaceholderText(tr("Search"));
    search_->setClearButtonEnabled(true);
    search_->setAccessibleName(tr("Search"));
    search_->installEventFilter(this);
    list_->setAccessibleName(tr("Saved settings"));
    summary_->setWordWrap(true);
    summary_->setTextFormat(Qt::PlainText);
    summary_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    summary_->setMinimumHeight(fontMetrics().lineSpacing() * SummaryLines);

    auto* left = new QVBoxLayout;
    left->addWidget(search_);
    left->addWidget(list_, 1);
    auto* top = new QHBoxLayout;
    top->addLayout(left, 1);
    top->addLayout(makeButtons());
    auto* column = new QVBoxLayout(this);
    column->addLayout(top, 1);
    column->addWidget(summary_);
    connectControls();
    resize(StartSize);
    rememberSize(*this, preference::SavedSettingsSize);
    follow();
}

QLayout* ExistingSettingsWindowController::makeButtons() {
    auto* close = new QPushButton(tr("Close"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {load_, autoload_, delete_}) buttons->addWidget(button);
    buttons->addStretch(1);
    buttons->addWidget(close);
    for (QPushButton* button : {autoload_, delete_, close}) button->setAutoDefault(false);
    load_->setDefault(true);
    return buttons;
}

void ExistingSettingsWindowController::connectControls() {
    connect(search_, &QLineEdit::textChanged, this, &ExistingSettingsWindowController::search);
    connect(list_, &QListWidget::currentRowChanged, this, &ExistingSettingsWindowController::follow);
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(load_, &QPushButton::clicked, this, &QDialog::accept);
    connect(autoload_, &QPushButton::clicked, this, &ExistingSettingsWindowController::SetAutoload);
    connect(delete_, &QPushButton::clicked, this, &ExistingSettingsWindowController::DeleteSetting);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, list_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, delete_, [this] { delete_->click(); });
}

void ExistingSettingsWindowController::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // The alert of a folder that cannot be read stands over the dialog.
    QTimer::singleShot(0, this, &ExistingSettingsWindowController::listSettings);
}

bool ExistingSettingsWindowController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == search_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        for (const int moves : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
            if (key == moves) return QCoreApplication::sendEvent(list_, event);
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool ExistingSettingsWindowController::listSettings() {
    const Result<QStringList> names = library_.names();
    list_->clear();
    for (const QString& name : names.value_or(QStringList())) {
        auto* item = new QListWidgetItem(list_);
        item->setData(NameRole, name);
        item->setSizeHint(QSize(0, fontMetrics().height() * 3 / 2));
    }
    nameRows();
    search(search_->text());
    if (!names) showAlert(this, Words::tr("Setting Load Error"), names.error().message);
    return names.has_value();
}

void ExistingSettingsWindowController::nameRows() {
    const QString autoload = autoloadName();
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        const QString name = item->data(NameRole).toString();
        const bool isAutoload = name == autoload;
        item->setText(isAutoload ? tr("%1 (autoload)").arg(name) : name);
        QFont font = list_->font();
        font.setBold(isAutoload);
        item->setFont(font);
        item->setToolTip(isAutoload ? tr("Loaded when Zelto starts") : QString());
    }
}

void ExistingSettingsWindowController::search(const QString& text) {
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        item->setHidden(!item->data(NameRole).toString().contains(text, Qt::CaseInsensitive));
        if (first == nullptr && !item->isHidden()) first = item;
    }
    const QListWidgetItem* current = list_->currentItem();
    if (current == nullptr || current->isHidden()) list_->setCurrentItem(first);
    follow();
}

QString ExistingSettingsWindowController::selectedName() const {
    const QListWidgetItem* item = list_->currentItem();
    return item == nullptr ? QString() : item->data(NameRole).toString();
}

void ExistingSettingsWindowController::follow() {
    const QString name = selectedName();
    for (QPushButton* button : {load_, autoload_, delete_}) button->setEnabled(!name.isEmpty());
    autoload_->setText(!name.isEmpty() && name == autoloadName() ? tr("Remove Autoload")
                                                                 : tr("Set Autoload"));
    if (!name.isEmpty()) {
        reader_.post(name);
    } else if (list_->count() == 0) {
        summary_->setText(
            tr("There are no saved settings. File > Save Setting saves the watermarks you see."));
    } else {
        summary_->clear();
    }
}

void ExistingSettingsWindowController::takeSummary(const QString& name, const QString& summary) {
    if (name == selectedName()) summary_->setText(summary);
}

void ExistingSettingsWindowController::SetAutoload() {
    const QString name = selectedName();
    if (name == autoloadName()) {
        removePreference(preference::AutoLoadSetting);
    } else {
        setPreference(preference::AutoLoadSetting, name);
    }
    nameRows();
    follow();
}

void ExistingSettingsWindowController::DeleteSetting() {
    const QString name = selectedName();
    if (!confirm(this, Words::tr("Delete the Selected Setting?"),
                 Words::tr("Deleted Setting cannot be restored."))) {
        return;
    }
    const Result<void> removed = library_.remove(name);
    if (!removed) {
        showAlert(this, tr("Setting Delete Error"), removed.error().message);
        return;
    }
    if (name == autoloadName()) removePreference(preference::AutoLoadSetting);
    const int row = list_->currentRow();
    delete list_->takeItem(row);
    search(search_->text());
}

}  // namespace zelto
