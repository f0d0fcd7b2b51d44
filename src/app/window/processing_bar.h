// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of a run under way: its progress, and the buttons to pause and to cancel it. Hidden while
// there is no run. Main thread only.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

namespace zelto {

class ElidedLabel;

class ProcessingBar : public QWidget {
    Q_OBJECT

  public:
    explicit ProcessingBar(QWidget* parent = nullptr);

    // Progress counts the rows of the list that have had their turn; `failed` says how many of them failed.
    void begin(int rows);
    void setProgress(int done, const QString& failed = {});
    // The photo in hand; shortened where there is no room for its name.
    void setPhoto(const QString& name);
    // How fast it goes.
    void setPace(const QString& pace);
    // Why it does not go on, or that it does again; users who hear the window hear it.
    void tell(const QString& state);
    // Whether the first button resumes a paused run or pauses a running one.
    void setPaused(bool paused);

    QPushButton* PauseOrResumeProcessing() const { return pause_; }
    QPushButton* CancelProcessing() const { return cancel_; }
    QProgressBar* ProcessingIndicator() const { return progress_; }

  private:
    ElidedLabel* photo_;
    QProgressBar* progress_;
    QLabel* pace_;
    QPushButton* pause_;
    QPushButton* cancel_;
};

}  // namespace zelto
