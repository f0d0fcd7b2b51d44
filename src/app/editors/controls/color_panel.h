// SPDX-License-Identifier: GPL-3.0-or-later
// A colour to be chosen within the inspector, where it covers nothing of the photo: a field of shades with strips for
// hue and opacity, the colour in hexadecimal, usual and recent colours, and any colour seen in the window. Each colour
// looked at is told at once. Main thread only.
#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

class QLineEdit;
class QPainter;
class QToolButton;

namespace zelto {

class ColorStrip;
class ColorField;
class NumberField;

// The ground that is seen through colours that are not opaque.
void paintSeeThroughGround(QPainter& painter, const QRect& area);

class ColorPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ColorPanel(QWidget* parent = nullptr);
    ~ColorPanel() override;

    // Shows a colour without telling anyone.
    void load(const QColor& color);

  Q_SIGNALS:
    void chosen(const QColor& color);
    // Enter or Escape was pressed: the choice is over, with Escape to be taken back.
    void finished(bool cancelled);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QLayout* makeNumbers();
    QLayout* makeSwatches();
    void showSwatches();
    void choose(const QColor& color);
    void take(const QColor& color);
    void remember();
    void pickFromWindow(bool on);

    QColor color_;
    bool isChosen_ = false;  // since it was opened
    int hue_ = 0;            // greys have none of their own: the one chosen last
    ColorField* field_;
    ColorStrip* hueStrip_;
    ColorStrip* opacityStrip_;
    QLineEdit* hex_ = nullptr;
    NumberField* opacity_ = nullptr;
    QToolButton* pick_ = nullptr;
    QList<QToolButton*> swatches_;
};

}  // namespace zelto
