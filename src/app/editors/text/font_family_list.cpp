// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/font_family_list.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace zelto {
namespace {

// Writes a family's name in its own face; one that has no letters for it, in the list's.
class FaceDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
        return {option.fontMetrics.averageCharWidth() * 20, option.fontMetrics.height() * 8 / 5};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const QString family = index.data().toString();
        if (!QFontDatabase::writingSystems(family).contains(QFontDatabase::Latin)) return;
        option->font.setFamily(family);
        option->font.setPointSizeF(option->font.pointSizeF() * 1.15);
        option->fontMetrics = QFontMetrics(option->font);
    }
};

QStringList installedFamilies() {
    QStringList families = QFontDatabase::families();
    families.removeIf([](const QString& family) { return QFontDatabase::isPrivateFamily(family); });
    return families;
}

}  // namespace

FontFamilyList::FontFamilyList(QWidget* parent)
    : QWidget(parent),
      found_(new QSortFilterProxyModel(this)),
      search_(new QLineEdit(this)),
      list_(new QListView(this)),
      missing_(new QLabel(this)) {
    found_->setSourceModel(new QStringListModel(installedFamilies(), this));
    found_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    search_->setObjectName(QStringLiteral("searchFonts"));
    search_->setPlaceholderText(tr("Search fonts"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    list_->setObjectName(QStringLiteral("FontFamily"));
    list_->setAccessibleName(tr("Font"));
    list_->setModel(found_);
    list_->setItemDelegate(new FaceDelegate(list_));
    list_->setUniformItemSizes(true);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setFixedHeight(fontMetrics().height() * 7);
    missing_->setWordWrap(true);
    missing_->setTextFormat(Qt::PlainText);
    missing_->hide();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(search_);
    column->addWidget(list_, 1);
    column->addWidget(missing_);
    setFocusProxy(search_);

    connect(search_, &QLineEdit::textChanged, this, &FontFamilyList::find);
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, &FontFamilyList::choose);
}

void FontFamilyList::load(const QString& family) {
    if (family == family_) return;
    family_ = family;
    // What was looked for was another text's font.
    search_->clear();
    showFamily();
}

void FontFamilyList::find(const QString& part) {
    const QScopedValueRollback showing(isShowing_, true);
    found_->setFilterFixedString(part);
    showFamily();
}

void FontFamilyList::showFamily() {
    const QScopedValueRollback showing(isShowing_, true);
    const auto rowOf = [this](const QAbstractItemModel& model) {
        const auto exact = Qt::MatchFixedString | Qt::MatchCaseSensitive;
        return model.match(model.index(0, 0), Qt::DisplayRole, family_, 1, exact).value(0);
    };
    const QModelIndex row = rowOf(*found_);
    list_->setCurrentIndex(row);
    if (row.isValid()) list_->scrollTo(row);
    const bool isMissing = !family_.isEmpty() && !rowOf(*found_->sourceModel()).isValid();
    if (isMissing) {
        missing_->setText(tr("“%1” is not installed here; a standard font takes its place.").arg(family_));
    }
    missing_->setVisible(isMissing);
}

void FontFamilyList::choose(const QModelIndex& row) {
    if (isShowing_ || !row.isValid()) return;
    family_ = row.data().toString();
    missing_->hide();
    Q_EMIT chosen(family_);
}

// The arrow keys choose among what was found without leaving the search, Enter the first of it.
bool FontFamilyList::eventFilter(QObject* watched, QEvent* event) {
    if (watched != search_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isEnter && key != Qt::Key_Down && key != Qt::Key_Up) return QWidget::eventFilter(watched, event);
    const int row = list_->currentIndex().row();
    const int next = isEnter ? std::max(row, 0) : row + (key == Qt::Key_Down ? 1 : -1);
    list_->setCurrentIndex(found_->index(std::max(0, std::min(next, found_->rowCount() - 1)), 0));
    return true;
}

}  // namespace zelto
