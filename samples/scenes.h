// SPDX-License-Identifier: GPL-3.0-or-later
// The scenes of the sample photos, painted by rule: the same pixels at every run.
#pragma once

#include <QImage>
#include <QSize>

namespace zelto::samples {

QImage paintHarbour(QSize size);     // boats at dusk
QImage paintMountains(QSize size);   // ridges above a lake
QImage paintBirches(QSize size);     // an upright wood
QImage paintPoppies(QSize size);     // saturated reds and greens
QImage paintDunes(QSize size);       // sand, in the last light
QImage paintNightCity(QSize size);   // lit windows
QImage paintAurora(QSize size);      // green curtains over snow
QImage paintLighthouse(QSize size);  // few flat colours
QImage paintBalloon(QSize size);     // cut out: transparent all around
QImage paintLogo(QSize size);        // a mark with transparent ground

}  // namespace zelto::samples
