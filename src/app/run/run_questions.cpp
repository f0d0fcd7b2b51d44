// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_questions.h"

#include "app/common/messages.h"
#include "platform/path_parts.h"
#include "platform/words.h"

#include <array>

namespace zelto {
namespace {

constexpr qsizetype MostNames = 5;  // that a question lists

QString listed(const QStringList& paths) {
    QStringList names;
    for (const QString& path : paths.mid(0, MostNames)) names.append(lastPathComponent(path));
    const qsizetype more = paths.size() - names.size();
    if (more > 0) names.append(Words::tr("and %Ln more", nullptr, static_cast<int>(more)));
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
    const int count = static_cast<int>(outputs.replacedPhotos.size());
    question_ = openMessageSheet(
        &window_,
        {QMessageBox::Warning,
         Words::tr("%Ln Photo(s) Would Be Replaced", nullptr, count),
         Words::tr("Their watermarked copies would take the place of the originals, which would be lost:\n%1")
             .arg(listed(outputs.replacedPhotos)),
         {Words::tr("Replace"), Words::tr("Choose Another Folder"), Words::tr("Cancel")},
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
    const QString text = Words::tr(
        "Some photos would get the same name, and each would take the place of the one before it. "
        "“Number” puts 1, "
        "2 and so on behind the name:\n%1");
    question_ =
        openMessageSheet(&window_,
                         {QMessageBox::Question,
                          Words::tr("%Ln Photo(s) Would Become %1", nullptr, static_cast<int>(outputs.photos))
                              .arg(Words::tr("%Ln File(s)", nullptr, static_cast<int>(outputs.files))),
                          text.arg(listed(outputs.sharedNames)),
                          {Words::tr("Number"), Words::tr("Replace"), Words::tr("Cancel")},
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
    const QString text = Words::tr(
        "“Replace” writes over what is there, “Number” puts 1, 2 and so on behind the new names, “Skip” "
        "leaves these "
        "photos out:\n%1");
    question_ =
        openMessageSheet(&window_,
                         {QMessageBox::Question,
                          Words::tr("%Ln File(s) Exist Already", nullptr, static_cast<int>(files.size())),
                          text.arg(listed(files)),
                          {Words::tr("Replace"), Words::tr("Number"), Words::tr("Skip"), Words::tr("Cancel")},
                          1,
                          3},
                         [this, folder, answered, Rules](int button) {
                             if (button == 3) return answered(Answer::Cancel);
                             chosen_[folder].existing = Rules.at(static_cast<std::size_t>(button));
                             answered(Answer::PlanAgain);
                         });
}

}  // namespace zelto
