// SPDX-License-Identifier: GPL-3.0-or-later
// A JPEG file that libjpeg writes into memory, as everything that writes one begins.
#pragma once

#include "pictures/libjpeg.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace zelto {

// Every call into libjpeg goes through guarded(), whose step may hold nothing that needs a destructor: an error leaves
// it by a long jump.
class JpegCompressor {
  public:
    JpegCompressor();
    ~JpegCompressor() { jpeg_destroy_compress(&codec_); }
    Q_DISABLE_COPY_MOVE(JpegCompressor)

    // Whether the step came to its end; `codec` is ready to be set up at the first.
    template <class Step>
    bool guarded(Step step) {
        // NOLINTNEXTLINE(cert-err52-cpp): libjpeg's only way out of an error
        if (setjmp(errors_.escape) != 0) return false;
        step(codec_);
        return true;
    }

    // The file, once jpeg_finish_compress() has been called.
    QByteArray takeFile() { return std::move(destination_.bytes); }
    // What there is of a file that has been begun.
    QByteArray takeBeginning() {
        endOutput(&codec_);
        return takeFile();
    }
    // What libjpeg said of the step that failed.
    QString message() const { return QString::fromLatin1(errors_.message.data()); }

  private:
    // Lets libjpeg write straight into a QByteArray.
    struct Destination {
        jpeg_destination_mgr base{};  // first, so that libjpeg's pointer to it is a pointer to the whole
        QByteArray bytes;
    };

    static void growBy(j_compress_ptr codec, qsizetype used, qsizetype room);
    static void startOutput(j_compress_ptr codec);
    static boolean growOutput(j_compress_ptr codec);
    static void endOutput(j_compress_ptr codec);

    JpegErrors errors_;
    Destination destination_;
    jpeg_compress_struct codec_{};
};

// Dots per inch for the JFIF header.
void setJfifDensity(jpeg_compress_struct& codec, double dpiX, double dpiY);

}  // namespace zelto
