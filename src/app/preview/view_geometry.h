// SPDX-License-Identifier: GPL-3.0-or-later
// Where a picture lies in the preview and which part of it is seen. The window and the thread that composes the picture
// both work it out here, so they agree on every pixel. Picture coordinates are photo
// pixels, view coordinates device pixels of the viewport; both grow downward from the top left.
#pragma once

#include <QLineF>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

namespace zelto {

// The whole pixels a picture of `picture` pixels is shown on at `scale`, at least one on each side. The picture is
// stretched to fill them, by less than a pixel.
QSize scaledSize(QSize picture, double scale);

// The picture at one scale, cut to what is seen of it and a margin around that.
struct ViewRegion {
    double scale = 1.0;  // device pixels per photo pixel
    QRect rect;          // device pixels from the top left of the scaled picture

    bool operator==(const ViewRegion&) const = default;
};

struct ViewGeometry {
    static constexpr double SmallestScale = 0.01;
    static constexpr double LargestScale = 32.0;

    QSize viewport;            // device pixels
    QSize picture;             // photo pixels
    bool fitToScreen = true;   // the whole picture as large as it can be seen
    double chosenScale = 1.0;  // used where it is not to fit
    QPoint scroll;             // device pixels of the scaled picture left of and above the viewport

    bool operator==(const ViewGeometry&) const = default;

    double scale() const;
    QSize scaledSize() const;
    QPoint largestScroll() const;
    QPoint clampedScroll() const;
    // View position of the picture's top left corner; a picture smaller than the viewport stands in its
    // middle.
    QPoint origin() const;

    QPointF toPicture(QPointF view) const;
    QPointF toView(QPointF inPicture) const;
    QRectF toView(const QRectF& inPicture) const;
    QLineF toView(const QLineF& inPicture) const { return {toView(inPicture.p1()), toView(inPicture.p2())}; }

    // The same at `newScale` (within the limits), the picture's point under `view` staying where it is.
    ViewGeometry zoomedAbout(double newScale, QPointF view) const;

    // What is seen, and the same with a margin for scrolling.
    ViewRegion visibleRegion() const;
    ViewRegion comfortableRegion() const;
};

// Where `inPicture` lies in the picture scaled by `scale`, rounded outward and with room for the neighbouring
// pixels that smooth scaling mixes in.
QRect scaledRect(const QRect& inPicture, double scale);

}  // namespace zelto
