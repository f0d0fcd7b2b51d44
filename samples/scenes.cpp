// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenes.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace zelto::samples {
namespace {

constexpr double Tau = 2.0 * std::numbers::pi;

// A number between 0 and 1 that belongs to a lattice point.
double lattice(int x, int y, unsigned seed) {
    unsigned h =
        static_cast<unsigned>(x) * 374761393U + static_cast<unsigned>(y) * 668265263U + seed * 2246822519U;
    h = (h ^ (h >> 13U)) * 1274126177U;
    return static_cast<double>((h ^ (h >> 16U)) & 0xffffU) / 65535.0;
}

double smooth(double t) {
    return t * t * (3.0 - 2.0 * t);
}

// Value noise at (x, y), from 0 to 1.
double noise(double x, double y, unsigned seed) {
    const int ix = static_cast<int>(std::floor(x));
    const int iy = static_cast<int>(std::floor(y));
    const double fx = smooth(x - ix);
    const double fy = smooth(y - iy);
    const double top = std::lerp(lattice(ix, iy, seed), lattice(ix + 1, iy, seed), fx);
    const double bottom = std::lerp(lattice(ix, iy + 1, seed), lattice(ix + 1, iy + 1, seed), fx);
    return std::lerp(top, bottom, fy);
}

// Five octaves of noise: clouds, hills, sand.
double fractal(double x, double y, unsigned seed) {
    double sum = 0.0;
    double weight = 0.5;
    for (unsigned octave = 0; octave < 5; ++octave, weight *= 0.5) {
        sum += weight * noise(x, y, seed + octave);
        x *= 2.03;
        y *= 2.03;
    }
    return sum;
}

QColor mix(const QColor& a, const QColor& b, double t) {
    t = std::clamp(t, 0.0, 1.0);
    return QColor::fromRgbF(std::lerp(a.redF(), b.redF(), static_cast<float>(t)),
                            std::lerp(a.greenF(), b.greenF(), static_cast<float>(t)),
                            std::lerp(a.blueF(), b.blueF(), static_cast<float>(t)));
}

// Colours every pixel by its place; u and v run from 0 to 1, v downward.
void shade(QImage& image, const std::function<QColor(double u, double v, const QColor& before)>& rule) {
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            row[x] =
                rule((x + 0.5) / image.width(), (y + 0.5) / image.height(), QColor::fromRgb(row[x])).rgb();
        }
    }
}

// What a sensor adds: fine noise, and corners a little darker.
QImage developed(QImage image, unsigned seed) {
    shade(image, [&](double u, double v, const QColor& before) {
        const double grain =
            (lattice(static_cast<int>(u * image.width()), static_cast<int>(v * image.height()), seed) - 0.5) *
            0.035;
        const double corner = 1.0 - 0.45 * std::pow(std::hypot(u - 0.5, v - 0.5), 2.5);
        const auto channel = [&](float c) {
            return static_cast<float>(std::clamp(c * corner + grain, 0.0, 1.0));
        };
        return QColor::fromRgbF(channel(before.redF()), channel(before.greenF()), channel(before.blueF()));
    });
    return image;
}

QImage canvas(QSize size) {
    return QImage(size, QImage::Format_RGB32);
}

// A painter whose unit square is the picture.
void prepare(QPainter& painter, const QImage& image) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(image.width(), image.height());
    painter.setPen(Qt::NoPen);
}

// A ridge from the left to the right edge at about height v, filled to the bottom.
QPainterPath ridge(double v, double relief, double frequency, unsigned seed) {
    QPainterPath path(QPointF(0.0, 1.0));
    for (int step = 0; step <= 400; ++step) {
        const double u = step / 400.0;
        path.lineTo(u, v - relief * (fractal(u * frequency, 0.5, seed) - 0.45));
    }
    path.lineTo(1.0, 1.0);
    path.closeSubpath();
    return path;
}

}  // namespace

QImage paintHarbour(QSize size) {
    QImage image = canvas(size);
    const QColor zenith(38, 44, 92);
    const QColor glow(252, 158, 92);
    const auto sky = [&](double u, double v) {
        const double cloud = std::pow(fractal(u * 3.0, v * 9.0, 3), 2.2);
        return mix(mix(zenith, glow, std::pow(v / 0.55, 1.6)), QColor(255, 214, 170), cloud * 0.9);
    };
    shade(image, [&](double u, double v, const QColor&) {
        if (v < 0.55) return sky(u, v);
        const double wave = 0.012 * (v - 0.5) * std::sin(v * 900.0 + 9.0 * fractal(u * 14.0, v * 60.0, 5));
        const double glitter = std::pow(fractal(u * 26.0, v * 190.0, 9), 6.0) * 3.0;
        return mix(mix(sky(u + wave * 6.0, 1.1 - v + wave), QColor(12, 28, 54), 0.38), QColor(255, 232, 190),
                   glitter);
    });
    QPainter painter(&image);
    prepare(painter, image);
    painter.setBrush(QColor(34, 30, 58));
    painter.drawPath(ridge(0.56, 0.16, 5.0, 21).intersected([] {
        QPainterPath p;
        p.addRect(0, 0, 1, 0.552);
        return p;
    }()));
    const QColor hulls[] = {QColor(178, 58, 52), QColor(236, 232, 220), QColor(44, 96, 142),
                            QColor(222, 170, 66)};
    for (int boat = 0; boat < 7; ++boat) {
        const double scale = 0.6 + 0.14 * boat;
        const double u = 0.08 + 0.9 * lattice(boat, 1, 77);
        const double v = 0.58 + 0.045 * boat;
        painter.save();
        painter.translate(u, v);
        painter.scale(0.075 * scale, 0.075 * scale * size.width() / size.height());
        painter.setBrush(hulls[boat % 4]);
        painter.drawPolygon(QPolygonF({{-1.0, -0.25}, {1.15, -0.25}, {0.8, 0.12}, {-0.8, 0.12}}));
        painter.setBrush(QColor(255, 248, 235, 235));
        if (boat % 2 == 0) painter.drawPolygon(QPolygonF({{0.05, -2.5}, {0.05, -0.4}, {1.0, -0.4}}));
        painter.drawRect(QRectF(-0.6, -0.62, 0.55, 0.37));
        painter.setBrush(QColor(40, 34, 40));
        painter.drawRect(QRectF(-0.02, -2.6, 0.05, 2.4));
        painter.setBrush(QColor(20, 20, 40, 90));
        painter.drawEllipse(QRectF(-1.0, 0.1, 2.0, 0.28));
        painter.restore();
    }
    painter.end();
    return developed(image, 1);
}

QImage paintMountains(QSize size) {
    QImage image = canvas(size);
    shade(image, [](double u, double v, const QColor&) {
        const double cloud = std::clamp(fractal(u * 4.0, v * 7.0, 31) * 2.2 - 0.95, 0.0, 1.0);
        return mix(mix(QColor(70, 130, 196), QColor(212, 230, 240), v / 0.6), QColor(255, 255, 255), cloud);
    });
    QPainter painter(&image);
    prepare(painter, image);
    for (int layer = 0; layer < 5; ++layer) {
        painter.setBrush(mix(QColor(146, 170, 196), QColor(30, 62, 48), layer / 4.0));
        painter.drawPath(ridge(0.36 + 0.075 * layer, 0.42 - 0.065 * layer, 3.0 + 2.2 * layer,
                               40U + 7U * static_cast<unsigned>(layer)));
    }
    painter.end();
    const QImage shore = image.copy();
    shade(image, [&](double u, double v, const QColor& before) {
        if (v < 0.72) {
            const double rock = fractal(u * 60.0, v * 60.0, 55) - 0.5;
            return mix(before, rock > 0 ? QColor(255, 255, 255) : QColor(0, 10, 20), std::abs(rock) * 0.35);
        }
        const double ripple = 0.006 * std::sin(v * 700.0) * fractal(u * 9.0, v * 40.0, 61);
        const double x = std::clamp(u + ripple, 0.0, 0.999) * shore.width();
        const double y = std::clamp(1.44 - v + ripple, 0.0, 0.719) * shore.height();
        return mix(shore.pixelColor(static_cast<int>(x), static_cast<int>(y)), QColor(20, 60, 92), 0.35);
    });
    return developed(image, 2);
}

QImage paintBirches(QSize size) {
    QImage image = canvas(size);
    shade(image, [](double u, double v, const QColor&) {
        const double leaves = fractal(u * 14.0, v * 18.0, 71);
        const QColor light = mix(QColor(250, 224, 120), QColor(120, 150, 60), leaves * 1.4 - 0.1);
        return mix(light, QColor(92, 66, 34), std::clamp((v - 0.72) * 4.0 + (leaves - 0.5), 0.0, 1.0));
    });
    QPainter painter(&image);
    prepare(painter, image);
    for (int tree = 0; tree < 16; ++tree) {
        const double near = tree / 15.0;
        const double width = 0.012 + 0.05 * near * near;
        const double u = lattice(tree, 3, 81);
        const double foot = 0.72 + 0.24 * near;
        QLinearGradient bark(u, 0.0, u + width, 0.0);
        bark.setColorAt(0.0, mix(QColor(240, 236, 224), QColor(206, 200, 160), 1.0 - near));
        bark.setColorAt(1.0, mix(QColor(120, 116, 112), QColor(170, 164, 130), 1.0 - near));
        painter.setBrush(bark);
        painter.drawPolygon(
            QPolygonF({{u + width * 0.2, 0.0}, {u + width * 0.8, 0.0}, {u + width, foot}, {u, foot}}));
        painter.setBrush(QColor(38, 34, 32, 60 + static_cast<int>(150 * near)));
        for (int mark = 0; mark < 26; ++mark) {
            const double v = foot * lattice(mark, tree, 83);
            const double length = width * (0.2 + 0.5 * lattice(mark, tree, 84));
            painter.drawRect(QRectF(u + (mark % 2 ? 0.02 : 0.98 - length / width) * width, v, length,
                                    0.0022 + 0.003 * near));
        }
    }
    for (int leaf = 0; leaf < 900; ++leaf) {
        painter.setBrush(mix(QColor(214, 120, 30, 255), QColor(250, 206, 80), lattice(leaf, 0, 91)));
        const double v = 0.76 + 0.24 * lattice(leaf, 2, 91);
        const double r = 0.002 + 0.008 * (v - 0.7);
        painter.drawEllipse(QPointF(lattice(leaf, 1, 91), v), r * 1.5, r * size.width() / size.height());
    }
    painter.end();
    return developed(image, 3);
}

QImage paintPoppies(QSize size) {
    QImage image = canvas(size);
    shade(image, [](double u, double v, const QColor&) {
        if (v < 0.34)
            return mix(QColor(86, 158, 224), QColor(226, 240, 246),
                       v / 0.34 + 0.5 * std::pow(fractal(u * 5.0, v * 9.0, 101), 3.0));
        const double blade = fractal(u * (240.0 - 180.0 * v), v * 30.0, 103);
        return mix(QColor(24, 92, 26), QColor(150, 196, 54), blade * 1.3 - 0.15);
    });
    QPainter painter(&image);
    prepare(painter, image);
    for (int flower = 0; flower < 420; ++flower) {
        const double depth = std::pow(flower / 419.0, 1.4);
        const double v = 0.35 + 0.68 * depth;
        const double r = 0.003 + 0.03 * depth;
        const double u = lattice(flower, 0, 107);
        painter.save();
        painter.translate(u, v);
        painter.scale(r, r * size.width() / size.height());
        for (int petal = 0; petal < 4; ++petal) {
            painter.rotate(90.0 + 14.0 * lattice(flower, petal, 109));
            painter.setBrush(mix(QColor(252, 46, 22), QColor(178, 8, 14), lattice(petal, flower, 113)));
            painter.drawEllipse(QPointF(0.45, 0.0), 0.6, 0.75);
        }
        painter.setBrush(QColor(28, 18, 26));
        painter.drawEllipse(QPointF(0, 0), 0.26, 0.26);
        painter.restore();
    }
    painter.end();
    return developed(image, 4);
}

QImage paintDunes(QSize size) {
    QImage image = canvas(size);
    shade(image, [](double u, double v, const QColor&) {
        return mix(QColor(74, 96, 150), QColor(250, 196, 140),
                   v / 0.5 + 0.15 * fractal(u * 2.0, v * 12.0, 121));
    });
    QPainter painter(&image);
    prepare(painter, image);
    painter.setBrush(QColor(255, 238, 196));
    painter.drawEllipse(QPointF(0.72, 0.36), 0.035, 0.035 * size.width() / size.height());
    for (int dune = 0; dune < 6; ++dune) {
        const double v = 0.44 + 0.1 * dune;
        QPainterPath path = ridge(v, 0.22, 1.6 + 0.5 * dune, 131U + 5U * static_cast<unsigned>(dune));
        QLinearGradient sand(0.0, v - 0.1, 0.3, v + 0.35);
        sand.setColorAt(0.0, mix(QColor(246, 176, 110), QColor(222, 132, 62), dune / 5.0));
        sand.setColorAt(1.0, mix(QColor(126, 70, 66), QColor(96, 46, 40), dune / 5.0));
        painter.setBrush(sand);
        painter.drawPath(path);
    }
    painter.end();
    shade(image, [](double u, double v, const QColor& before) {
        if (v < 0.46) return before;
        const double ripple = std::sin((v * 260.0 + 16.0 * fractal(u * 6.0, v * 6.0, 151)) * (1.6 - v));
        return mix(before, ripple > 0 ? QColor(255, 214, 160) : QColor(70, 30, 30),
                   std::abs(ripple) * 0.16 * v);
    });
    return developed(image, 5);
}

QImage paintNightCity(QSize size) {
    QImage image = canvas(size);
    shade(image, [](double u, double v, const QColor&) {
        const double star =
            std::pow(lattice(static_cast<int>(u * 1500), static_cast<int>(v * 1000), 161), 900.0);
        return mix(mix(QColor(6, 8, 24), QColor(86, 52, 92), std::pow(v, 2.0)), QColor(255, 255, 255), star);
    });
    QPainter painter(&image);
    prepare(painter, image);
    for (int house = 0; house < 46; ++house) {
        const double near = house / 45.0;
        const double width = 0.03 + 0.05 * lattice(house, 0, 163);
        const double u = 1.05 * lattice(house, 1, 163) - 0.04;
        const double top = 0.28 + 0.42 * lattice(house, 2, 163) + 0.12 * near;
        painter.setBrush(mix(QColor(44, 36, 66), QColor(10, 12, 22), near));
        painter.drawRect(QRectF(u, top, width, 1.0 - top));
        const int columns = 4 + static_cast<int>(width * 60);
        const int rows = static_cast<int>((1.0 - top) * 52);
        for (int i = 0; i < columns * rows; ++i) {
            const double lit = lattice(i, house, 167);
            if (lit < 0.62) continue;
            painter.setBrush(
                mix(QColor(255, 196, 96), QColor(190, 222, 255), std::pow(lattice(i, house, 169), 4.0)));
            painter.drawRect(QRectF(u + width * (0.12 + 0.8 * (i % columns) / columns),
                                    top + 0.012 + (1.0 - top) * (i / columns) / rows, width * 0.4 / columns,
                                    0.008));
        }
    }
    painter.end();
    return developed(image, 6);
}

QImage paintAurora(QSize size) {
    QImage image = canvas(size);
    shade(image, [](double u, double v, const QColor&) {
        QColor sky = mix(QColor(6, 12, 36), QColor(22, 44, 74), v);
        for (unsigned band = 0; band < 3; ++band) {
            const double foot = 0.34 + 0.09 * band + 0.16 * (fractal(u * 2.4, band, 181U + band) - 0.5);
            const double height = 0.34 * (0.4 + fractal(u * 30.0, band * 3.0, 191U + band));
            const double t = (foot - v) / height;
            if (t > 0.0 && t < 1.0)
                sky = mix(sky, mix(QColor(90, 255, 150), QColor(170, 80, 220), t), (1.0 - t) * 0.62);
        }
        const double star =
            std::pow(lattice(static_cast<int>(u * 1600), static_cast<int>(v * 1000), 197), 700.0);
        return mix(sky, QColor(255, 255, 255), star);
    });
    QPainter painter(&image);
    prepare(painter, image);
    painter.setBrush(QColor(150, 190, 206));
    painter.drawPath(ridge(0.78, 0.16, 4.0, 199));
    for (int tree = 0; tree < 60; ++tree) {
        const double u = lattice(tree, 0, 211);
        const double v = 0.77 + 0.2 * lattice(tree, 1, 211);
        const double h = 0.07 + 0.22 * (v - 0.74);
        painter.setBrush(QColor(10, 26, 30));
        for (int tier = 0; tier < 4; ++tier) {
            const double y = v - h * tier * 0.24;
            const double w = h * 0.2 * (1.0 - tier * 0.2);
            painter.drawPolygon(QPolygonF({{u - w, y}, {u + w, y}, {u, y - h * 0.4}}));
        }
    }
    painter.end();
    return developed(image, 7);
}

QImage paintLighthouse(QSize size) {
    QImage image = canvas(size);
    image.fill(QColor(120, 190, 220));
    QPainter painter(&image);
    prepare(painter, image);
    painter.setBrush(QColor(250, 240, 210));
    painter.drawEllipse(QPointF(0.78, 0.2), 0.08, 0.08 * size.width() / size.height());
    painter.setBrush(QColor(255, 255, 255));
    for (int cloud = 0; cloud < 9; ++cloud) {
        painter.drawEllipse(QPointF(0.08 + 0.045 * cloud, 0.2 + 0.03 * (cloud % 3)), 0.06, 0.04);
    }
    painter.setBrush(QColor(36, 110, 160));
    painter.drawPath(ridge(0.76, 0.02, 9.0, 221));
    painter.setBrush(QColor(74, 84, 92));
    painter.drawPath(ridge(0.9, 0.5, 2.0, 223).intersected([] {
        QPainterPath p;
        p.addEllipse(QPointF(0.36, 1.0), 0.42, 0.34);
        return p;
    }()));
    for (int stripe = 0; stripe < 6; ++stripe) {
        const double v = 0.3 + 0.075 * stripe;
        const double w = 0.034 + 0.005 * stripe;
        painter.setBrush(stripe % 2 ? QColor(248, 248, 244) : QColor(204, 52, 48));
        painter.drawPolygon(QPolygonF(
            {{0.36 - w, v}, {0.36 + w, v}, {0.36 + w + 0.005, v + 0.0755}, {0.36 - w - 0.005, v + 0.0755}}));
    }
    painter.setBrush(QColor(40, 46, 56));
    painter.drawRect(QRectF(0.315, 0.285, 0.09, 0.018));
    painter.setBrush(QColor(255, 226, 110));
    painter.drawRect(QRectF(0.335, 0.225, 0.05, 0.06));
    painter.setBrush(QColor(204, 52, 48));
    painter.drawPolygon(QPolygonF({{0.325, 0.226}, {0.395, 0.226}, {0.36, 0.165}}));
    painter.end();
    return image;
}

QImage paintBalloon(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    prepare(painter, image);
    QPainterPath envelope(QPointF(0.5, 0.04));
    envelope.cubicTo(0.98, 0.04, 0.98, 0.46, 0.58, 0.74);
    envelope.lineTo(0.42, 0.74);
    envelope.cubicTo(0.02, 0.46, 0.02, 0.04, 0.5, 0.04);
    painter.setClipPath(envelope);
    const QColor silks[] = {QColor(214, 64, 54), QColor(248, 196, 72), QColor(52, 118, 176),
                            QColor(244, 238, 226)};
    for (int gore = 0; gore < 12; ++gore) {
        const double left = 0.5 - 0.42 * std::cos(Tau * gore / 24.0);
        const double right = 0.5 - 0.42 * std::cos(Tau * (gore + 1) / 24.0);
        painter.setBrush(silks[gore % 4]);
        painter.drawRect(QRectF(left, 0.0, right - left + 0.002, 0.8));
    }
    QRadialGradient light(0.36, 0.24, 0.62);
    light.setColorAt(0.0, QColor(255, 255, 255, 96));
    light.setColorAt(0.5, QColor(255, 255, 255, 0));
    light.setColorAt(1.0, QColor(20, 10, 50, 150));
    painter.setBrush(light);
    painter.drawRect(QRectF(0, 0, 1, 0.8));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(60, 44, 36), 0.004));
    for (const double u : {0.43, 0.47, 0.53, 0.57})
        painter.drawLine(QPointF(u, 0.74), QPointF(0.5 + (u - 0.5) * 0.8, 0.87));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(132, 84, 44));
    painter.drawRoundedRect(QRectF(0.44, 0.86, 0.12, 0.1), 0.012, 0.012);
    painter.setBrush(QColor(92, 56, 28));
    painter.drawRect(QRectF(0.435, 0.855, 0.13, 0.016));
    return image;
}

QImage paintLogo(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    prepare(painter, image);
    QPainterPath ring;
    ring.addEllipse(QPointF(0.5, 0.5), 0.48, 0.48);
    ring.addEllipse(QPointF(0.5, 0.5), 0.4, 0.4);
    painter.setBrush(QColor(255, 255, 255, 240));
    painter.drawPath(ring);
    for (int blade = 0; blade < 6; ++blade) {
        painter.save();
        painter.translate(0.5, 0.5);
        painter.rotate(60.0 * blade);
        painter.setBrush(blade % 2 ? QColor(248, 184, 64, 235) : QColor(255, 255, 255, 225));
        painter.drawPolygon(QPolygonF({{0.0, -0.37}, {0.32, -0.185}, {0.145, -0.085}, {0.0, -0.165}}));
        painter.restore();
    }
    return image;
}

}  // namespace zelto::samples
