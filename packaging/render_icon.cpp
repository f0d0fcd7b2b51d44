// SPDX-License-Identifier: GPL-3.0-or-later
// render-icon DRAWING.svg SIDE OUT.png     the drawing as a picture of SIDE x SIDE pixels; part of the build
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    const int side = argc == 4 ? QByteArray(argv[2]).toInt() : 0;
    if (side <= 0) {
        std::fputs("usage: render-icon DRAWING.svg SIDE OUT.png\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QFile::decodeName(argv[1]));
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    const QString out = QFile::decodeName(argv[3]);
    if (!drawing.isValid() || !QDir().mkpath(QFileInfo(out).path()) || !picture.save(out)) {
        std::fprintf(stderr, "render-icon: %s cannot be made of %s\n", argv[3], argv[1]);
        return 1;
    }
    return 0;
}
