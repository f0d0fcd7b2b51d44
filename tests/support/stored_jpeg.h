// SPDX-License-Identifier: GPL-3.0-or-later
// A JPEG file as libjpeg itself reads it: coefficients, tables and process.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>

#include <array>
#include <vector>

namespace zelto {

struct StoredJpeg {
    using Block = std::array<short, 64>;
    struct Component {
        QSize blocks;
        QSize pixels;  // that a block covers
        Block table;   // for quantisation
        std::vector<Block> data;

        const Block& at(int x, int y) const {
            return data[std::size_t(y) * std::size_t(blocks.width()) + std::size_t(x)];
        }
        QRect pixelsOf(int x, int y) const {
            return {QPoint(x * pixels.width(), y * pixels.height()), pixels};
        }
    };

    QSize size;
    bool isProgressive = false;
    bool hasAdobeMarker = false;
    unsigned restartInterval = 0;
    std::vector<Component> components;  // none for a file that libjpeg does not read

    // The area that holds all pixels of blocks which differ from `other`'s in coefficients or table. All of it where
    // size, sampling, process, restarts or the Adobe marker differ.
    QRect differenceFrom(const StoredJpeg& other) const;
};

StoredJpeg storedJpeg(const QByteArray& file);

}  // namespace zelto
