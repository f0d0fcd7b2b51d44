// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/window_places.h"

#include <QScreen>
#include <QSplitter>
#include <QWidget>

#include <algorithm>
#include <numeric>

namespace zelto {
namespace {

// What the window manager puts around a window.
constexpr QSize FrameRoom(8, 40);

}  // namespace

void restoreWindow(QWidget& window, const std::optional<QByteArray>& geometry, QSize size) {
    const QRect screen = window.screen()->availableGeometry();
    const QSize room = (screen.size() - FrameRoom).expandedTo(window.minimumSizeHint());
    window.resize(size.boundedTo(room));
    // Qt takes nothing from a screen of another size; what it takes lies on a screen.
    if (geometry) window.restoreGeometry(*geometry);
    if (!window.isMaximized() && !window.isFullScreen()) window.resize(window.size().boundedTo(room));
}

void restoreColumns(QSplitter& columns, const std::optional<QByteArray>& state, int width) {
    if (!state || !columns.restoreState(*state)) return;
    QList<int> sizes = columns.sizes();
    const int sum = std::accumulate(sizes.begin(), sizes.end(), 0);
    if (sizes.size() != 3 || sum <= width) return;
    const int sides = sizes.first() + sizes.last();
    const int mostOfSides = width / 2;
    if (sides > mostOfSides) {
        sizes.first() = sizes.first() * mostOfSides / sides;
        sizes.last() = mostOfSides - sizes.first();
    }
    sizes[1] = width - sizes.first() - sizes.last();
    columns.setSizes(sizes);
}

}  // namespace zelto
