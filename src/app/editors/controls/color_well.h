// SPDX-License-Identifier: GPL-3.0-or-later
// A button that shows a colour with its transparency and opens a panel below its row to choose another; each colour
// looked at is told at once, and Escape in the panel brings back the first one. Main thread only.
#pragma once

#include "records/color.h"

#include <QToolButton>

#include <optional>

namespace zelto {

class ColorPanel;

class ColorWell : public QToolButton {
    Q_OBJECT

  public:
    // `title` is the button's accessible name.
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
    void changeEvent(QEvent* event) override;

  private:
    void openPanel(bool open);
    void choose(const Color& color);

    std::optional<Color> color_;
    std::optional<Color> before_;  // the colour when the panel was opened
    ColorPanel* panel_ = nullptr;  // made when it is first opened
};

}  // namespace zelto
