// SPDX-License-Identifier: GPL-3.0-or-later
// What a run came to: a bar at the foot of the window with the counts and what can be done next. It holds up nothing and
// stays until it is closed or another run begins. Main thread only.
#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;

namespace zelto {

class ElidedLabel;

struct RunResult {
    QString counts;   // "67 written, 3 failed, 2 warned"
    QString message;  // the end in words
    int failed = 0;
    int warned = 0;
    QString open;  // what can be opened, as on a button; empty for nothing
};

class ResultBar : public QWidget {
    Q_OBJECT

  public:
    explicit ResultBar(QWidget* parent = nullptr);

    void tell(const RunResult& result);

  Q_SIGNALS:
    // What its buttons ask for.
    void showTroubles();
    void retryFailed();
    void openResults();

  private:
    QLabel* sign_;
    QLabel* counts_;
    ElidedLabel* message_;
    QPushButton* show_;
    QPushButton* retry_;
    QPushButton* open_;
};

}  // namespace zelto
