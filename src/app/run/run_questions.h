// SPDX-License-Identifier: GPL-3.0-or-later
// What has to be asked before a run may begin: whether it may replace photos of the list, and what is to become of
// outputs whose names are taken. What is answered about names counts for that output folder as long as the window is
// open. Main thread only.
#pragma once

#include "batch/output_plan.h"

#include <QHash>
#include <QMessageBox>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>

namespace zelto {

class RunQuestions {
  public:
    enum class Answer { Start, PlanAgain, ChooseAnotherFolder, Cancel };
    using Answered = std::function<void(Answer)>;

    // The questions are shown over `window`, which outlives them.
    explicit RunQuestions(QWidget& window) : window_(window) {}

    // The rules for names that have been chosen for an output folder.
    NameRules rulesFor(const QString& folder) const;

    // Forgets that photos of the list may be replaced: that is asked at every start.
    void begin() { mayReplacePhotos_ = false; }
    // Asks the next question that the outputs of a run into `folder` raise, and calls `answered` later; at once where
    // nothing is left to ask.
    void ask(const OutputPlan& outputs, const QString& folder, const Answered& answered);

    // The question on show; null for none.
    QMessageBox* question() const { return question_; }

  private:
    struct Chosen {
        std::optional<NameRule> sameName;
        std::optional<NameRule> existing;
    };

    void askAboutPhotos(const OutputPlan& outputs, const QString& folder, const Answered& answered);
    void askAboutSharedNames(const OutputPlan& outputs, const QString& folder, const Answered& answered);
    void askAboutExistingFiles(const QStringList& files, const QString& folder, const Answered& answered);

    QWidget& window_;
    QHash<QString, Chosen> chosen_;  // by output folder
    bool mayReplacePhotos_ = false;
    QPointer<QMessageBox> question_;
};

}  // namespace zelto
