// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/image_properties.h"

#include "metadata/exif_dictionary.h"
#include "metadata/iptc_dictionary.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <exiv2/exiv2.hpp>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(metadataLog, "zelto.metadata", QtInfoMsg)

void logMessage(int, const char* message) {
    qCDebug(metadataLog) << QByteArray(message).trimmed().constData();
}

// exiv2's XMP parser keeps state of its own: one photo is read at a time, and it is set up before the first.
std::mutex& parserMutex() {
    static std::mutex mutex;
    static const bool ready = [] {
        Exiv2::LogMsg::setHandler(logMessage);
        Exiv2::enableBMFF(true);  // HEIC, AVIF, JPEG XL and some raw files
        return Exiv2::XmpParser::initialize();
    }();
    Q_UNUSED(ready)
    return mutex;
}

}  // namespace

ImageProperties readImageProperties(const QString& path) {
    const QFileInfo file(path);
    // exiv2 would wait for a pipe, and take a relative path such as "http:x" for an address.
    if (!file.isFile()) return {};
    ImageProperties properties;
    std::mutex& mutex = parserMutex();
    try {
        const auto image =
            Exiv2::ImageFactory::open(QFile::encodeName(file.absoluteFilePath()).toStdString());
        try {
            const std::lock_guard lock(mutex);
            image->readMetadata();
        } catch (const std::exception& error) {
            qCDebug(metadataLog) << path << error.what();
        }
        properties.exif = exifDictionary(image->exifData());
        properties.iptc = iptcDictionary(image->iptcData(), image->xmpData());
    } catch (const std::exception& error) {
        qCDebug(metadataLog) << path << error.what();
    }
    return properties;
}

const ImageProperties& LazyImageProperties::get() const {
    std::call_once(once_, [this] { properties_ = readImageProperties(path_); });
    return properties_;
}

}  // namespace zelto
