// SPDX-License-Identifier: GPL-3.0-or-later
// The icons of the window. Line icons are drawn in the text colour of the palette in force, at whatever size
// and screen scale they are asked for, so that they are crisp and readable in light and dark themes. Main
// thread only.
#pragma once

#include <QIcon>
#include <QImage>
#include <QLatin1String>

namespace zelto {

// A line icon by its name, such as "zoom-in".
QIcon lineIcon(QLatin1String name);

// The same from a picture whose alpha is the drawing.
QIcon lineIcon(const QImage& drawing);

// The same in the colour of selected text, for grounds of the accent colour.
QIcon accentIcon(QLatin1String name);

// An icon in its own colours, such as "written".
QIcon colorIcon(QLatin1String name);

QIcon applicationIcon();

}  // namespace zelto
