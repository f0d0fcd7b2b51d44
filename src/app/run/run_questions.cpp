// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_questions.h"

#include "app/common/messages.h"
#include "platform/path_parts.h"

#include <QCoreApplication>

#include <array>

namespace zelto {
namespace {

constexpr qsizetype MostNames = 5;  // that a question lists

QString tr(const char* text) {
    return QCoreApplication::translate("zelto::RunQuestions", text);
}

QString listed(const QStringList& paths) {
    QStringList names;
    for (const QString& path : paths.mid(0, MostNames)) names.append(lastPathComponent(path));
    const qsizetype more = paths.size() - names.size();
    if (more > 0) names.append(tr("and %1 more").arg(more));
    return names.join(QLatin1Char('\n'));
}

}  // namespace

NameRules RunQuestions::rulesFor(const QString& folder) const {
    const Chosen chosen = chosen_.value(folder);
    const NameRules unanswered;
    return {chosen.sameName.value_or(unanswered.sameName), chosen.existing.value_or(unanswered.existing)};
}

void RunQuestions::ask(const OutputPlan& outputs, const QString& folder, const Answered& answered) {
    const Chosen chosen = chosen_.value(folder);
    QStringList others = outputs.existing;
    for (const QString& photo : outputs.replacedPhotos) others.removeAll(photo);
    if (!outputs.replacedPhotos.isEmpty() && !mayReplacePhotos_) {
        askAboutPhotos(outputs, folder, answered);
    } else if (!outputs.sharedNames.isEmpty() && !chosen.sameName) {
        askAboutSharedNames(outputs, folder, answered);
    } else if (!others.isEmpty() && !chosen.existing) {
        askAboutExistingFiles(others, folder, answered);
    } else {
        answered(Answer::Start);
    }
}

void RunQuestions::askAboutPhotos(const OutputPlan& outputs, const QString& folder,
                                  const Answered& answered) {
    enum Button { Replace, ChooseAnotherFolder, Cancel };
    const qsizetype count = outputs.replacedPhotos.size();
    question_ = openMessageSheet(
        &window_,
        {QMessageBox::Warning,
         count == 1 ? tr("A Photo Would Be Replaced") : tr("%1 Photos Would Be Replaced").arg(count),
         tr("Their watermarked copies would take the place of the originals, which would be lost:\n%1")
             .arg(listed(outputs.replacedPhotos)),
         {tr("Replace"), tr("Choose Another Folder"), tr("Cancel")},
         Cancel,
         Cancel},
        [this, outputs, folder, answered](int button) {
            mayReplacePhotos_ = button == Replace;
            if (button == Replace) {
                ask(outputs, folder, answered);
            } else {
                answered(button == Cancel ? Answer::Cancel : Answer::ChooseAnotherFolder);
            }
        });
}

void RunQuestions::askAboutSharedNames(const OutputPlan& outputs, const QString& folder,
                                       const Answered& answered) {
    constexpr std::array Rules = {NameRule::Number, NameRule::Replace};
    const QString text =
        tr("Some photos would get the same name, and each would take the place of the one before it. "
           "“Number” puts 1, "
           "2 and so on behind the name:\n%1");
    question_ =
        openMessageSheet(&window_,
                         {QMessageBox::Question,
                          tr("%1 Photos Would Become %2")
                              .arg(outputs.photos)
                              .arg(outputs.files == 1 ? tr("1 File") : tr("%1 Files").arg(outputs.files)),
                          text.arg(listed(outputs.sharedNames)),
                          {tr("Number"), tr("Replace"), tr("Cancel")},
                          0,
                          2},
                         [this, folder, answered, Rules](int button) {
                             if (button == 2) return answered(Answer::Cancel);
                             chosen_[folder].sameName = Rules.at(static_cast<std::size_t>(button));
                             answered(Answer::PlanAgain);
                         });
}

void RunQuestions::askAboutExistingFiles(const QStringList& files, const QString& folder,
                                         const Answered& answered) {
    constexpr std::array Rules = {NameRule::Replace, NameRule::Number, NameRule::Skip};
    const QString text =
        tr("“Replace” writes over what is there, “Number” puts 1, 2 and so on behind the new names, “Skip” "
           "leaves these "
           "photos out:\n%1");
    question_ = openMessageSheet(
        &window_,
        {QMessageBox::Question,
         files.size() == 1 ? tr("A File Exists Already") : tr("%1 Files Exist Already").arg(files.size()),
         text.arg(listed(files)),
         {tr("Replace"), tr("Number"), tr("Skip"), tr("Cancel")},
         1,
         3},
        [this, folder, answered, Rules](int button) {
            if (button == 3) return answered(Answer::Cancel);
            chosen_[folder].existing = Rules.at(static_cast<std::size_t>(button));
            answered(Answer::PlanAgain);
        });
}

}  // namespace zelto
