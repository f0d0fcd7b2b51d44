// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/copyright_editor.h"

#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/record_binder.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/dialog_set.h"
#include "persistence/copyright_file.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
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
#define TEXT(text) QT_TRANSLATE_NOOP("zelto::CopyrightEditor", text)
constexpr std::array RightsRows = {
    TextRow{"CopyrightText", &CopyRightMetaData::CopyrightText, TEXT("&Notice:"), TEXT("© Jane Doe")},
    TextRow{"CopyrightTextStatus", &CopyRightMetaData::CopyrightTextStatus, TEXT("&Status:"), ""},
    TextRow{"CopyrightURL", &CopyRightMetaData::CopyrightURL, TEXT("Rights &page:"),
            TEXT("https://www.example.com/rights")},
    TextRow{"RightsUsageTerms", &CopyRightMetaData::RightsUsageTerms, TEXT("&Terms of use:"),
            TEXT("All rights reserved")},
};
constexpr std::array CreatorRows = {
    TextRow{"Creator", &CopyRightMetaData::Creator, TEXT("N&ame:"), TEXT("Jane Doe")},
    TextRow{"CreatorJobTitle", &CopyRightMetaData::CreatorJobTitle, TEXT("&Job title:"),
            TEXT("Photographer")},
    TextRow{"CreatorAddress", &CopyRightMetaData::CreatorAddress, TEXT("A&ddress:"), ""},
    TextRow{"CreatorCity", &CopyRightMetaData::CreatorCity, TEXT("Cit&y:"), ""},
    TextRow{"CreatorState", &CopyRightMetaData::CreatorState, TEXT("Stat&e or province:"), ""},
    TextRow{"CreatorPostalCode", &CopyRightMetaData::CreatorPostalCode, TEXT("Posta&l code:"), ""},
    TextRow{"CreatorCountry", &CopyRightMetaData::CreatorCountry, TEXT("Co&untry:"), ""},
    TextRow{"CreatorPhone", &CopyRightMetaData::CreatorPhone, TEXT("P&hone:"), ""},
    TextRow{"CreatorMail", &CopyRightMetaData::CreatorMail, TEXT("E-&mail:"), TEXT("jane@example.com")},
    TextRow{"CreatorWebsite", &CopyRightMetaData::CreatorWebsite, TEXT("We&bsite:"),
            TEXT("https://www.example.com")},
};
#undef TEXT
constexpr std::array Statuses = {"Copyrighted", "Protected", "Unknown"};

// The data of the stack; where it has none, those that were kept, to be written again.
CopyRightMetaData startingMetadata(const WatermarkController& watermarks) {
    if (watermarks.Metadata()) return *watermarks.Metadata();
    CopyRightMetaData kept;
    // What cannot be read is replaced by what is entered now.
    static_cast<void>(
        copyrightFilePath().and_then([&kept](const QString& file) { return LoadMetadata(kept, file); }));
    kept.Enabled = true;
    return kept;
}

class CopyrightEditor : public RememberedDialog {
    Q_DECLARE_TR_FUNCTIONS(zelto::CopyrightEditor)

  public:
    explicit CopyrightEditor(const EditorCall& call);

    void accept() override;

  private:
    template <class Rows>
    void addRows(QFormLayout& form, const QString& title, const Rows& rows);
    QWidget* makeControl(const TextRow& row);

    WatermarkController& watermarks_;
    CopyRightMetaData metadata_;
    RecordBinder<CopyRightMetaData> binder_;
};

CopyrightEditor::CopyrightEditor(const EditorCall& call)
    : RememberedDialog(QStringLiteral("CopyrightEditor"), tr("Copyright"), call.parent),
      watermarks_(call.controller),
      metadata_(startingMetadata(watermarks_)),
      binder_([this](const auto& edit) { edit(metadata_); }) {
    auto* enabled = new QCheckBox(tr("&Write these data into the photos"), this);
    enabled->setObjectName(QStringLiteral("Enabled"));
    binder_.bind(enabled, &CopyRightMetaData::Enabled);
    auto* form = new QFormLayout;
    addRows(*form, tr("Rights"), RightsRows);
    addRows(*form, tr("Creator"), CreatorRows);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(enabled);
    column->addLayout(form, 1);
    column->addWidget(buttons);
    binder_.load(metadata_);
}

template <class Rows>
void CopyrightEditor::addRows(QFormLayout& form, const QString& title, const Rows& rows) {
    auto* heading = new QLabel(title, this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    form.addRow(heading);
    for (const TextRow& row : rows) {
        QWidget* control = makeControl(row);
        control->setObjectName(QLatin1String(row.name));
        addRow(form, tr(row.label), control);
    }
}

QWidget* CopyrightEditor::makeControl(const TextRow& row) {
    if (row.text == &CopyRightMetaData::CopyrightTextStatus) {
        auto* statuses = new QComboBox(this);
        statuses->addItem(tr("Not stated"), QString());
        for (const char* status : Statuses) statuses->addItem(tr(status), QString(QLatin1String(status)));
        // A word of another program stays as long as no other one is chosen.
        statuses->setPlaceholderText(metadata_.CopyrightTextStatus);
        binder_.bind(statuses, row.text);
        return statuses;
    }
    auto* line = new QLineEdit(this);
    line->setMinimumWidth(line->fontMetrics().averageCharWidth() * 42);
    line->setPlaceholderText(tr(row.example));
    line->setClearButtonEnabled(true);
    // An emptied text is absent: it is not written.
    binder_.bind(line, row.text, [text = row.text](CopyRightMetaData& metadata, const QString& typed) {
        metadata.*text = typed.isEmpty() ? QString() : typed;
    });
    return line;
}

void CopyrightEditor::accept() {
    const Result<void> saved = copyrightFilePath().and_then(
        [this](const QString& file) { return SaveCopyRightMetadata(metadata_, file); });
    if (!saved) {
        showAlert(this, tr("The copyright data could not be kept"), saved.error().message);
        return;
    }
    watermarks_.SetMetadata(metadata_);
    RememberedDialog::accept();
}

}  // namespace

void editCopyright(const EditorCall& call) {
    CopyrightEditor(call).exec();
}

}  // namespace zelto
