// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/processing_bar.h"

#include "app/icons.h"

#include <QHBoxLayout>

namespace zelto {

ProcessingBar::ProcessingBar(QWidget* parent)
    : QWidget(parent),
      photo_(new QLabel(this)),
      progress_(new QProgressBar(this)),
      pause_(new QPushButton(this)),
      cancel_(new QPushButton(lineIcon(QLatin1String("stop")), tr("Cancel"), this)) {
    progress_->setAccessibleName(tr("Progress"));
    progress_->setFormat(tr("%v of %m"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 10, 6);
    row->addWidget(photo_, 1);
    row->addWidget(progress_, 2);
    row->addWidget(pause_);
    row->addWidget(cancel_);
    setPaused(false);
    hide();
}

void ProcessingBar::begin(int rows) {
    progress_->setRange(0, rows);
    setProgress(0, {});
}

void ProcessingBar::setProgress(int done, const QString& photo) {
    progress_->setValue(done);
    photo_->setText(photo);
}

void ProcessingBar::setPaused(bool paused) {
    pause_->setText(paused ? tr("Resume") : tr("Pause"));
    pause_->setIcon(lineIcon(paused ? QLatin1String("start") : QLatin1String("pause")));
}

}  // namespace zelto
