// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/processing_bar.h"

#include "app/common/elided_label.h"
#include "app/common/hearing.h"
#include "app/common/icons.h"

#include <QHBoxLayout>

namespace zelto {

ProcessingBar::ProcessingBar(QWidget* parent)
    : QWidget(parent),
      photo_(new ElidedLabel(this)),
      progress_(new QProgressBar(this)),
      pace_(new QLabel(this)),
      pause_(new QPushButton(this)),
      cancel_(new QPushButton(lineIcon(QLatin1String("stop")), tr("Cancel"), this)) {
    progress_->setAccessibleName(tr("Progress"));
    // Its words change while it runs; the buttons beside it are not to move.
    pace_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("%1 photos/s, %2 left").arg(888).arg(88888)));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 10, 6);
    row->addWidget(photo_, 1);
    row->addWidget(progress_, 2);
    row->addWidget(pace_);
    row->addWidget(pause_);
    row->addWidget(cancel_);
    setPaused(false);
    hide();
}

void ProcessingBar::begin(int rows) {
    progress_->setRange(0, rows);
    setProgress(0);
    setPhoto({});
    setPace({});
    announce(*this, tr("The run has begun: %Ln photo(s)", nullptr, rows));
}

void ProcessingBar::setProgress(int done, const QString& failed) {
    progress_->setFormat(failed.isEmpty() ? tr("%v of %m") : tr("%v of %m") + QStringLiteral(" · ") + failed);
    progress_->setValue(done);
}

void ProcessingBar::setPhoto(const QString& name) {
    photo_->setText(name);
}

void ProcessingBar::setPace(const QString& pace) {
    pace_->setText(pace);
}

void ProcessingBar::tell(const QString& state) {
    setPace(state);
    announce(*this, state);
}

void ProcessingBar::setPaused(bool paused) {
    pause_->setText(paused ? tr("Resume") : tr("Pause"));
    pause_->setIcon(lineIcon(paused ? QLatin1String("start") : QLatin1String("pause")));
}

}  // namespace zelto
