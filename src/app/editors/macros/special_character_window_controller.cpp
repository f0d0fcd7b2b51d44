// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/macros/special_character_window_controller.h"

#include "macros/macro_list.h"

#include <QAbstractListModel>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <utility>

namespace zelto {

// Characters as list entries, each with its name as tool tip and accessible text.
class CharacterModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(characters_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const char32_t character = characters_.at(index.row());
        switch (role) {
            case Qt::DisplayRole:
                return QString::fromUcs4(&character, 1);
            case Qt::ToolTipRole:
            case Qt::AccessibleTextRole:
                return characterName(character);
            default:
                return {};
        }
    }

    char32_t at(int row) const { return characters_.at(row); }

    void set(QList<char32_t> characters) {
        beginResetModel();
        characters_ = std::move(characters);
        endResetModel();
    }

  private:
    QList<char32_t> characters_;
};

namespace {

// More than anybody looks through.
constexpr qsizetype MostFound = 1000;
constexpr int Columns = 7;  // as wide as the column of the window that it is opened over

// Draws a character in the middle of its cell.
class CellDelegate : public QStyledItemDelegate {
  public:
    explicit CellDelegate(QListView& list) : QStyledItemDelegate(&list), cell_(list.gridSize()) {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override {
        return cell_;
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = Qt::AlignCenter;
        option->showDecorationSelected = true;
    }

  private:
    QSize cell_;
};

QFont scaledFont(QFont font, double factor) {
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

QListView* makeList(QAbstractItemModel* model, QWidget* parent) {
    auto* list = new QListView(parent);
    list->setObjectName(QStringLiteral("items"));
    list->setAccessibleName(SpecialCharacterWindowController::tr("Characters"));
    list->setModel(model);
    list->setFont(scaledFont(list->font(), 1.4));
    const int side = 2 * list->fontMetrics().height();
    list->setViewMode(QListView::IconMode);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
    list->setLayoutMode(QListView::Batched);
    list->setUniformItemSizes(true);
    list->setGridSize({side, side});
    list->setItemDelegate(new CellDelegate(*list));
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list->setMinimumSize(Columns * side + 40, 8 * side + 8);
    return list;
}

}  // namespace

SpecialCharacterWindowController::SpecialCharacterWindowController(QWidget* parent)
    : QDialog(parent),
      model_(new CharacterModel(this)),
      search_(new QLineEdit(this)),
      list_(makeList(model_, this)),
      large_(new QLabel(this)),
      name_(new QLabel(this)),
      count_(new QLabel(this)),
      worker_([this](const Query& query) {
          QMetaObject::invokeMethod(
              this,
              [this, found = findCharacters(query.words, MostFound), number = query.number] {
                  take(found, number);
              },
              Qt::QueuedConnection);
      }) {
    setWindowTitle(tr("Special Characters"));
    for (const QString& character : specialCharacters()) items_ += character.front().unicode();
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(tr("Search by name or code: “arrow”, “U+2192”"));
    search_->setAccessibleName(tr("Search"));
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    large_->setObjectName(QStringLiteral("SelectedItem"));
    large_->setFont(scaledFont(large_->font(), 3.0));
    large_->setTextFormat(Qt::PlainText);
    large_->setAlignment(Qt::AlignCenter);
    large_->setFixedSize(2 * large_->fontMetrics().height(), large_->fontMetrics().height() + 8);
    name_->setObjectName(QStringLiteral("name"));
    name_->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    insert_ = buttons->addButton(tr("&Insert"), QDialogButtonBox::AcceptRole);
    insert_->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this,
            &SpecialCharacterWindowController::SetSpecialCharacter);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(search_, &QLineEdit::textChanged, this, &SpecialCharacterWindowController::search);
    connect(list_, &QListView::activated, this, &SpecialCharacterWindowController::SetSpecialCharacter);
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SpecialCharacterWindowController::SelectItem);

    auto* chosen = new QHBoxLayout;
    chosen->addWidget(large_);
    chosen->addWidget(name_, 1);
    chosen->addWidget(count_, 0, Qt::AlignTop);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(search_);
    rows->addWidget(list_, 1);
    rows->addLayout(chosen);
    rows->addWidget(buttons);
    search({});
}

SpecialCharacterWindowController::~SpecialCharacterWindowController() {
    worker_.stop();
}

QString SpecialCharacterWindowController::character() const {
    return list_->currentIndex().data().toString();
}

void SpecialCharacterWindowController::search(const QString& words) {
    ++asked_;
    if (words.trimmed().isEmpty()) {
        show(items_, {});
    } else {
        worker_.post({words, asked_});
    }
}

void SpecialCharacterWindowController::take(const FoundCharacters& found, quint64 number) {
    if (number != asked_) return;
    const qsizetype shown = found.characters.size();
    show(found.characters, found.total == 0 ? tr("No character has such a name")
                           : shown < found.total
                               ? tr("The first %L1 of %L2 found").arg(shown).arg(found.total)
                               : tr("%Ln found", nullptr, static_cast<int>(shown)));
}

void SpecialCharacterWindowController::show(const QList<char32_t>& characters, const QString& count) {
    model_->set(characters);
    count_->setText(count);
    list_->setCurrentIndex(model_->index(0));
    SelectItem(list_->currentIndex());
}

void SpecialCharacterWindowController::SelectItem(const QModelIndex& index) {
    insert_->setEnabled(index.isValid());
    large_->setText(index.data().toString());
    if (!index.isValid()) {
        name_->clear();
        return;
    }
    const char32_t character = model_->at(index.row());
    name_->setText(characterName(character) + QStringLiteral("\nU+") +
                   QStringLiteral("%1").arg(uint{character}, 4, 16, QLatin1Char('0')).toUpper());
}

void SpecialCharacterWindowController::SetSpecialCharacter() {
    if (!character().isEmpty()) accept();
}

// The arrow keys look around in what was found without leaving the search.
bool SpecialCharacterWindowController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == search_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            list_->setFocus();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace zelto
