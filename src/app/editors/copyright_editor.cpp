// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/copyright_editor.h"

#include "app/common/messages.h"
#include "app/editors/controls/fold_group.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/value_page.h"
#include "persistence/copyright_file.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QVBoxLayout>

#include <array>

namespace zelto {
namespace {

struct TextRow {
    const char* name;
    QString CopyRightMetaData::*text;
    const char* label;
    const char* example;
};
constexpr std::array RightsRows = {
    TextRow{"CopyrightText", &CopyRightMetaData::CopyrightText,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Notice:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "© Jane Doe")},
    TextRow{"CopyrightTextStatus", &CopyRightMetaData::CopyrightTextStatus,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Status:"), ""},
    TextRow{"CopyrightURL", &CopyRightMetaData::CopyrightURL,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Rights page:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "https://www.example.com/rights")},
    TextRow{"RightsUsageTerms", &CopyRightMetaData::RightsUsageTerms,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Terms of use:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "All rights reserved")},
};
constexpr std::array CreatorRows = {
    TextRow{"Creator", &CopyRightMetaData::Creator, QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Name:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Jane Doe")},
    TextRow{"CreatorJobTitle", &CopyRightMetaData::CreatorJobTitle,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Job title:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Photographer")},
    TextRow{"CreatorAddress", &CopyRightMetaData::CreatorAddress,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Address:"), ""},
    TextRow{"CreatorCity", &CopyRightMetaData::CreatorCity,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "City:"), ""},
    TextRow{"CreatorState", &CopyRightMetaData::CreatorState,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "State or province:"), ""},
    TextRow{"CreatorPostalCode", &CopyRightMetaData::CreatorPostalCode,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Postal code:"), ""},
    TextRow{"CreatorCountry", &CopyRightMetaData::CreatorCountry,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Country:"), ""},
    TextRow{"CreatorPhone", &CopyRightMetaData::CreatorPhone,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Phone:"), ""},
    TextRow{"CreatorMail", &CopyRightMetaData::CreatorMail,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "E-mail:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "jane@example.com")},
    TextRow{"CreatorWebsite", &CopyRightMetaData::CreatorWebsite,
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Website:"),
            QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "https://www.example.com")},
};
constexpr std::array Statuses = {QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Copyrighted"),
                                 QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Protected"),
                                 QT_TRANSLATE_NOOP("zelto::CopyrightEditor", "Unknown")};

using Metadata = std::optional<CopyRightMetaData>;

// Those that were kept, to be written again.
CopyRightMetaData keptMetadata() {
    CopyRightMetaData kept;
    // What cannot be read is replaced by what is entered now.
    static_cast<void>(
        copyrightFilePath().and_then([&kept](const QString& file) { return LoadMetadata(kept, file); }));
    kept.Enabled = true;
    return kept;
}

class CopyrightEditor : public ValuePage<Metadata> {
    Q_DECLARE_TR_FUNCTIONS(zelto::CopyrightEditor)

  public:
    explicit CopyrightEditor(WatermarkController& controller);

    // Keeps what was entered for the next time.
    void end() override;
    void load() override;

  protected:
    Metadata value() const override { return controller().Metadata(); }
    void put(const Metadata& metadata) override;

  private:
    template <class Rows>
    void addGroup(QVBoxLayout& column, const QString& name, const QString& title, const Rows& rows);
    QWidget* makeControl(const TextRow& row, QWidget* parent);
    void edit(const std::function<void(CopyRightMetaData&)>& edit);

    RecordBinder<CopyRightMetaData> binder_;
    bool isEdited_ = false;
};

CopyrightEditor::CopyrightEditor(WatermarkController& controller)
    : ValuePage(QStringLiteral("CopyrightEditor"), tr("Copyright"), controller),
      binder_([this](const auto& change) { edit(change); }) {
    auto* enabled = new QCheckBox(tr("Write these data into the photos"), this);
    enabled->setObjectName(QStringLiteral("Enabled"));
    binder_.bind(enabled, &CopyRightMetaData::Enabled);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(10, 0, 8, 6);
    head->addWidget(enabled);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    addGroup(*column, QStringLiteral("Rights"), tr("Rights"), RightsRows);
    addGroup(*column, QStringLiteral("Creator"), tr("Creator"), CreatorRows);
    column->addStretch();
    setFocusProxy(findChild<QLineEdit*>(QLatin1String(RightsRows.front().name)));
}

void CopyrightEditor::load() {
    binder_.load(value().value_or(CopyRightMetaData()));
}

void CopyrightEditor::put(const Metadata& metadata) {
    isEdited_ = true;
    controller().SetMetadata(metadata, visitStep());
}

void CopyrightEditor::edit(const std::function<void(CopyRightMetaData&)>& edit) {
    CopyRightMetaData changed = value().value_or(CopyRightMetaData());
    edit(changed);
    if (changed != value()) put(changed);
}

void CopyrightEditor::end() {
    if (!std::exchange(isEdited_, false) || !value()) return;
    const Result<void> saved = copyrightFilePath().and_then(
        [this](const QString& file) { return SaveCopyRightMetadata(*value(), file); });
    if (saved) return;
    openMessageSheet(window(), {.icon = QMessageBox::Warning,
                                .title = tr("The copyright data could not be kept for the next time"),
                                .text = saved.error().message});
}

template <class Rows>
void CopyrightEditor::addGroup(QVBoxLayout& column, const QString& name, const QString& title,
                               const Rows& rows) {
    auto* group = new FoldGroup(name, title, FoldGroup::AtFirst::Open, this);
    auto* content = new QWidget(this);
    auto* form = new QFormLayout(content);
    form->setContentsMargins(0, 0, 0, 0);
    for (const TextRow& row : rows) {
        QWidget* control = makeControl(row, content);
        control->setObjectName(QLatin1String(row.name));
        addRow(*form, tr(row.label), control);
    }
    group->setContent(content);
    column.addWidget(group);
}

QWidget* CopyrightEditor::makeControl(const TextRow& row, QWidget* parent) {
    if (row.text == &CopyRightMetaData::CopyrightTextStatus) {
        auto* statuses = new QComboBox(parent);
        statuses->addItem(tr("Not stated"), QString());
        for (const char* status : Statuses) statuses->addItem(tr(status), QString(QLatin1String(status)));
        // A word of another program stays as long as no other one is chosen.
        binder_.follow([statuses](const CopyRightMetaData& metadata) {
            statuses->setPlaceholderText(metadata.CopyrightTextStatus);
        });
        binder_.bind(statuses, row.text);
        return statuses;
    }
    auto* line = new QLineEdit(parent);
    line->setPlaceholderText(tr(row.example));
    line->setClearButtonEnabled(true);
    // An emptied text is absent: it is not written.
    binder_.bind(line, row.text, [text = row.text](CopyRightMetaData& metadata, const QString& typed) {
        metadata.*text = typed.isEmpty() ? QString() : typed;
    });
    return line;
}

}  // namespace

Editor copyrightEditor() {
    return {[](WatermarkController& controller) { return new CopyrightEditor(controller); },
            [](const EditorCall& call) {
                if (!call.controller.Metadata()) call.controller.SetMetadata(keptMetadata(), visitStep());
            }};
}

}  // namespace zelto
