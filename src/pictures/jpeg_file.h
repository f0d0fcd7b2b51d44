// SPDX-License-Identifier: GPL-3.0-or-later
// A JPEG file in libjpeg's hands, as everything that reads one begins: fed from a device, quiet, strict about lost
// pixels, bounded in time. Decoding it to pixels (jpeg_decoder.cpp) and taking its coefficients (jpeg_rewriter.cpp)
// build on it.
#pragma once

#include "pictures/exif_facts.h"
#include "pictures/libjpeg.h"
#include "pictures/picture_needs.h"

#include <QByteArray>
#include <QIODevice>
#include <QSize>

#include <array>
#include <csetjmp>
#include <optional>
#include <utility>

namespace zelto {

// Every call into libjpeg that can fail goes through guarded(), so that its way out of an error, a long jump, never
// passes over an object with a destructor.
class JpegFile {
  public:
    // `device` is open for reading, stands at the file's start and outlives this.
    explicit JpegFile(QIODevice& device);
    ~JpegFile() { jpeg_destroy_decompress(&info_); }
    Q_DISABLE_COPY_MOVE(JpegFile)

    // Whether there is a picture; to be called first.
    bool readHeader();

    // Pixels, and the coefficients of all blocks where they come in more than one scan. Some of libjpeg's rows are left
    // out: they are nothing beside the buffers of any other step.
    qint64 memoryToDecode();

    QSize storedSize() const {
        return {static_cast<int>(info_.image_width), static_cast<int>(info_.image_height)};
    }
    const ExifFacts& exif() const { return exif_; }
    // The embedded ICC profile, empty when there is none.
    QByteArray profile();
    // The profile its colours are meant in: the embedded one, or the one that the camera only names.
    QByteArray colors();
    // Dots per inch as stored, from the JFIF header or else from Exif; 0 where none is recorded.
    std::pair<double, double> resolution() const;

    // The blocks of 8 x 8 samples of all components together.
    qint64 blocks() const;
    // From here on reading fails where its scans would cost more time than any honest file takes.
    void limitScans();

    // Reads coefficients until the first `unitRows` rows of sampling units are there, of a file whose only scan has them
    // all; for any other, or where there are no more rows, to the end of the file. False for a damaged file.
    bool readCoefficients(JDIMENSION unitRows);

    // What follows what has been read so far. Nothing else can be read afterwards.
    QByteArray takeRest();

    jpeg_decompress_struct& info() { return info_; }

    template <class Step>
    bool guarded(Step step) {
        // NOLINTNEXTLINE(cert-err52-cpp): libjpeg's only way out of an error
        if (setjmp(errors_.escape) != 0) {
            if (errors_.manager.msg_code == JERR_OUT_OF_MEMORY) throw std::bad_alloc();
            return false;
        }
        step();
        return true;
    }

  private:
    // Feeds libjpeg from the device.
    struct Source {
        jpeg_source_mgr base;  // first, so that libjpeg's pointer to it is a pointer to the whole
        QIODevice* device;
        std::array<JOCTET, 1 << 16> buffer;
    };

    // libjpeg's progress report, which is asked between two rows of sampling units.
    struct Progress {
        jpeg_progress_mgr base;  // first, too
        qint64 scans;            // that may be begun
        JDIMENSION stopAtRow;    // to leave reading coefficients at; 0 for none
        std::jmp_buf stop;
    };

    static boolean fillBuffer(j_decompress_ptr info);
    static void skipInput(j_decompress_ptr info, long count);
    static void watchProgress(j_common_ptr info);

    ExifFacts readExif() const;

    qint64 fileBytes_;
    ExifFacts exif_;
    jpeg_decompress_struct info_{};
    Source source_{};
    JpegErrors errors_;
    Progress progress_{};
};

}  // namespace zelto
