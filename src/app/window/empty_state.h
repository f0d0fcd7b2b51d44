// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the place of the preview while there is neither a photo nor a watermark: the two ways to begin, with
// photos or with the watermarks; and the bar above the sample photo, while that stands in for photos. Main thread only.
#pragma once

#include <QWidget>

#include <functional>

class QAction;
class QLabel;
class QPushButton;

namespace zelto {

class EmptyState : public QWidget {
    Q_OBJECT

  public:
    // `addReadyMade` gets the place of a stack in readyMadeStacks().
    EmptyState(QAction* addPhotos, QAction* addFolder, const std::function<void(int place)>& addReadyMade,
               QWidget* parent = nullptr);
    // Shows a tip below everything else; `next` gives the one after it.
    void showTip(const QString& tip, const std::function<QString()>& next);

  private:
    QWidget* tipLine_;
    QLabel* tip_;
    QPushButton* nextTip_;
};

// Says that the photo below it is only a sample.
QWidget* makeSampleBar(QAction* addPhotos, QWidget* parent);

}  // namespace zelto
