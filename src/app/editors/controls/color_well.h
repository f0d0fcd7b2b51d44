// SPDX-License-Identifier: GPL-3.0-or-later
// A button that shows a colour with its transparency and lets the user choose another; each colour looked at
// in the colour dialog is told at once, and cancelling the dialog brings back the first one. Main thread only.
#pragma once

#include "records/color.h"

#include <QColorDialog>
#include <QPointer>
#include <QToolButton>

#include <optional>

namespace zelto {

class ColorWell : public QToolButton {
    Q_OBJECT

  public:
    // `title` is that of the dialog and the button's accessible name.
    explicit ColorWell(const QString& title, QWidget* parent = nullptr);

    // None shows as a field crossed out.
    const std::optional<Color>& color() const { return color_; }
    // Shows a colour without telling anyone.
    void load(const std::optional<Color>& color);

    QSize sizeHint() const override;

  Q_SIGNALS:
    void chosen(const zelto::Color& color);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void openDialog();
    void choose(const Color& color);

    std::optional<Color> color_;
    QPointer<QColorDialog> dialog_;
};

}  // namespace zelto
