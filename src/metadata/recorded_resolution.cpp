// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/recorded_resolution.h"

#include "pictures/exif_facts.h"
#include "pictures/resolution.h"

#include <QByteArrayView>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <vector>

namespace zelto {
namespace {

constexpr uchar StartOfScan = 0xDA;
constexpr uchar App0 = 0xE0;
constexpr uchar App1 = 0xE1;

quint16 word(QByteArrayView bytes, qsizetype at) {
    return qFromBigEndian<quint16>(bytes.data() + at);
}

// The density of a JFIF segment's content; 0 where it states no unit.
double jfifDpi(QByteArrayView jfif) {
    const char unit = jfif[7];
    const double density = word(jfif, 8);
    if (unit == 1) return density;
    return unit == 2 ? density * 2.54 : 0.0;
}

std::vector<double> jpegResolutions(QByteArrayView file) {
    std::vector<double> found;
    qsizetype at = 2;
    while (at + 4 <= file.size() && static_cast<uchar>(file[at]) == 0xFF) {
        const auto marker = static_cast<uchar>(file[at + 1]);
        const qsizetype length = word(file, at + 2);
        if (marker == StartOfScan || length < 2 || at + 2 + length > file.size()) break;
        const QByteArrayView content = file.sliced(at + 4, length - 2);
        if (marker == App0 && content.size() >= 12 && content.startsWith(QByteArrayView("JFIF\0", 5))) {
            found.push_back(jfifDpi(content));
        } else if (marker == App1 && content.startsWith(QByteArrayView("Exif\0\0", 6))) {
            found.push_back(readExifFacts(content.sliced(6)).dpiX);
        }
        at += 2 + length;
    }
    return found;
}

bool isJpeg(QByteArrayView file) {
    return file.startsWith("\xFF\xD8");
}

// The whole file in memory's address space; nothing of it is read before it is looked at.
class MappedFile {
  public:
    explicit MappedFile(const QString& path) : file_(path) {
        if (!file_.open(QIODevice::ReadOnly)) return;
        const uchar* data = file_.map(0, file_.size());
        if (data != nullptr) bytes_ = QByteArrayView(data, file_.size());
    }
    QByteArrayView bytes() const { return bytes_; }

  private:
    QFile file_;
    QByteArrayView bytes_;
};

}  // namespace

bool recordsResolution(const QString& path, double dpi) {
    const MappedFile file(path);
    std::vector<double> stated =
        isJpeg(file.bytes()) ? jpegResolutions(file.bytes()) : std::vector{readExifFacts(file.bytes()).dpiX};
    if (stated.empty()) stated.push_back(DefaultDpi);
    constexpr double WholeDotsPerCentimetre = 1.28;
    return std::all_of(stated.begin(), stated.end(), [dpi](double value) {
        return std::abs(intendedDpi(value) - dpi) <= WholeDotsPerCentimetre;
    });
}

bool isJpegFile(const QString& path) {
    return isJpeg(MappedFile(path).bytes());
}

}  // namespace zelto
