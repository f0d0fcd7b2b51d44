// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/macros/macro_controller.h"

#include "app/common/in_background.h"
#include "app/editors/macros/auto_number_window_controller.h"
#include "app/editors/macros/date_format_window_controller.h"
#include "app/editors/macros/special_character_window_controller.h"
#include "macros/macro_list.h"
#include "platform/dates.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

// A value of several lines, or of a thousand numbers, in one line.
QString lineOf(const QString& value) {
    constexpr qsizetype Longest = 200;
    const QString line = value.simplified();
    return line.size() > Longest ? line.first(Longest) + QStringLiteral("…") : line;
}

}  // namespace

MacroController::MacroController(Insert insert, QWidget* parent)
    : QWidget(parent),
      insert_(std::move(insert)),
      rows_(new QStandardItemModel(0, 2, this)),
      found_(new QSortFilterProxyModel(this)),
      search_(new QLineEdit(this)),
      list_(new QTreeView(this)),
      insertButton_(new QPushButton(tr("Insert Macro"), this)) {
    layOut();
    take({fixedMacros(), {}});
}

MacroController::MacroController(QPlainTextEdit& text, QWidget* parent)
    : MacroController(
          [&text](const QString& picked) {
              text.insertPlainText(picked);
              text.setFocus();
          },
          parent) {}

void MacroController::showFor(const SelectedPhoto& photo) {
    photo_ = photo;
    if (isVisible()) read();
}

void MacroController::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    read();
}

void MacroController::read() {
    if (read_ == photo_) return;
    read_ = photo_;
    isComplete_ = false;
    inBackground(
        this,
        [photo = photo_] {
            return macrosOfPhoto(photo.path, photo.row, QDateTime::currentDateTime(), userDateLocale());
        },
        [this, photo = photo_](const PhotoMacros& macros) {
            if (read_ != photo) return;
            take(macros);
            isComplete_ = true;
        });
}

void MacroController::layOut() {
    rows_->setHorizontalHeaderLabels({tr("Macro"), tr("On this photo")});
    found_->setSourceModel(rows_);
    found_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    found_->setFilterKeyColumn(-1);

    search_->setObjectName(QStringLiteral("searchMacros"));
    search_->setPlaceholderText(tr("Search macros and values"));
    search_->setAccessibleName(tr("Search macros"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& part) {
        found_->setFilterFixedString(part);
        if (!list_->currentIndex().isValid()) list_->setCurrentIndex(found_->index(0, 0));
    });
    search_->installEventFilter(this);

    list_->setObjectName(QStringLiteral("macros"));
    list_->setAccessibleName(tr("Macros"));
    list_->setModel(found_);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setAlternatingRowColors(true);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->header()->setSectionsMovable(false);
    list_->setFixedHeight(fontMetrics().height() * 9);
    list_->installEventFilter(this);
    connect(list_, &QTreeView::doubleClicked, this, &MacroController::MacrolistDoubleClicked);
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& row) { insertButton_->setEnabled(row.isValid()); });

    insertButton_->setObjectName(QStringLiteral("InsertMacro"));
    insertButton_->setAutoDefault(false);
    connect(insertButton_, &QPushButton::clicked, this, &MacroController::InsertMacro);
    auto* characters = new QPushButton(tr("Special Character…"), this);
    characters->setObjectName(QStringLiteral("SpecialCharacter"));
    characters->setAutoDefault(false);
    connect(characters, &QPushButton::clicked, this, &MacroController::OpenSpecialCharwindow);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(insertButton_);
    buttons->addWidget(characters);
    buttons->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(search_);
    column->addWidget(list_);
    column->addLayout(buttons);
}

// Enter inserts, and does not reach the button that closes the editor; the arrow keys go from the search to
// what was found.
bool MacroController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            InsertMacro();
            return true;
        }
        if (watched == search_ && (key == Qt::Key_Down || key == Qt::Key_Up)) {
            list_->setFocus();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void MacroController::AddMacroItem(const Macro& macro, const QString& value) {
    macros_ += macro;
    auto* label = new QStandardItem(macro.MacroText);
    auto* shown = new QStandardItem(lineOf(value));
    shown->setToolTip(value);
    label->setToolTip(macro.MacroName);
    rows_->appendRow({label, shown});
}

void MacroController::take(const PhotoMacros& macros) {
    const int row = found_->mapToSource(list_->currentIndex()).row();
    macros_.clear();
    rows_->removeRows(0, rows_->rowCount());
    for (qsizetype i = 0; i < macros.list.size(); ++i) {
        AddMacroItem(macros.list[i], macros.values.value(i));
    }
    list_->resizeColumnToContents(0);
    const QModelIndex kept = found_->mapFromSource(rows_->index(std::max(row, 0), 0));
    list_->setCurrentIndex(kept.isValid() ? kept : found_->index(0, 0));
}

void MacroController::InsertMacro() {
    choose(list_->currentIndex(), MacroGesture::InsertMacro);
}

void MacroController::MacrolistDoubleClicked(const QModelIndex& row) {
    choose(row, MacroGesture::DoubleClick);
}

void MacroController::choose(const QModelIndex& row, MacroGesture gesture) {
    if (!row.isValid()) return;
    const int index = found_->mapToSource(row).row();
    const QString token = macros_.at(index).MacroName;
    switch (macroAction(macros_, index, gesture)) {
        case MacroAction::InsertToken:
            insert_(token);
            return;
        case MacroAction::OpenDateFormat:
            openBeside(new DateFormatWindowControlller(token, QDateTime::currentDateTime(), this),
                       &DateFormatWindowControlller::MacroName);
            return;
        case MacroAction::OpenAutoNumber:
            openBeside(new AutoNumberWindowController(this), &AutoNumberWindowController::MacroName);
            return;
    }
}

void MacroController::OpenSpecialCharwindow() {
    openBeside(new SpecialCharacterWindowController(this), &SpecialCharacterWindowController::character);
}

// Over the column that this list stands in, so that the photo stays in view; everything else can be used meanwhile.
template <class Dialog, class Picked>
void MacroController::openBeside(Dialog* dialog, Picked picked) {
    delete dialog_;
    dialog_ = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, picked] { insert_((dialog->*picked)()); });
    dialog->adjustSize();
    const QWidget* column = parentWidget() != nullptr ? parentWidget() : this;
    const QPoint corner = column->mapToGlobal(QPoint());
    const QRect screen = this->screen()->availableGeometry();
    const QSize size = dialog->sizeHint();
    dialog->move(
        std::clamp(corner.x(), screen.left(), std::max(screen.left(), screen.right() - size.width())),
        std::clamp(corner.y(), screen.top(), std::max(screen.top(), screen.bottom() - size.height())));
    dialog_->show();
    dialog_->activateWindow();
}

void MacroController::hideEvent(QHideEvent* event) {
    if (!event->spontaneous()) delete dialog_;
    QWidget::hideEvent(event);
}

}  // namespace zelto
