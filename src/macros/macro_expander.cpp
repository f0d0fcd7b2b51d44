// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/macro_expander.h"

#include "macros/date_format.h"
#include "macros/exif_words.h"
#include "macros/macro_scanner.h"
#include "macros/metadata_value.h"
#include "platform/dates.h"
#include "platform/file_times.h"
#include "platform/path_parts.h"

#include <QLoggingCategory>

#include <cmath>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(macroLog, "zelto.macros")

using namespace Qt::StringLiterals;

// What the macros know of the photo; what costs a look at the file is read when a macro first asks for it.
class Photo {
  public:
    explicit Photo(const MacroContext& context) : context_(context) {}

    const MacroContext& context() const { return context_; }

    QString fileName() const { return lastPathComponent(context_.photoPath); }

    const FileTimes& fileTimes() {
        if (!fileTimes_) fileTimes_ = readFileTimes(context_.photoPath);
        return *fileTimes_;
    }

    const ImageProperties& properties() {
        if (!properties_) properties_ = context_.properties;
        if (!properties_) properties_ = std::make_shared<LazyImageProperties>(context_.photoPath);
        return properties_->get();
    }

    QString shortDate(const QDateTime& moment) const { return formatShortDate(moment, context_.locale); }

  private:
    const MacroContext& context_;
    std::optional<FileTimes> fileTimes_;
    std::shared_ptr<const LazyImageProperties> properties_;
};

QString folder(const QString& path, const QString& fileName) {
    // Every occurrence goes, a folder of the same name included.
    return fileName.isEmpty() ? path : QString(path).remove(fileName);
}

// A whole number, in single precision: 299.99999999 is 300.
QString dotsPerInch(double dpi) {
    return QString::number(std::ceil(static_cast<float>(dpi)), 'f', 0);
}

struct PlainMacro {
    QLatin1String token;
    QString (*value)(Photo&);
};

constexpr PlainMacro PlainMacros[] = {
    {"<<IMGNAME>>"_L1, [](Photo& photo) { return withoutPathExtension(photo.fileName()); }},
    {"<<IMGNAMEEXT>>"_L1, [](Photo& photo) { return photo.fileName(); }},
    {"<<FOLDER>>"_L1, [](Photo& photo) { return folder(photo.context().photoPath, photo.fileName()); }},
    {"<<FULLPATH>>"_L1, [](Photo& photo) { return photo.context().photoPath; }},
    {"<<CREATEDATE>>"_L1, [](Photo& photo) { return photo.shortDate(photo.fileTimes().created); }},
    {"<<MODDATE>>"_L1, [](Photo& photo) { return photo.shortDate(photo.fileTimes().modified); }},
    {"<<TODAYDATE>>"_L1, [](Photo& photo) { return photo.shortDate(photo.context().now); }},
    {"<<PHOTOWIDTH>>"_L1, [](Photo& photo) { return QString::number(photo.context().pixelSize.width()); }},
    {"<<PHOTOHEIGHT>>"_L1, [](Photo& photo) { return QString::number(photo.context().pixelSize.height()); }},
    {"<<PHOTODPIX>>"_L1, [](Photo& photo) { return dotsPerInch(photo.context().dpiX); }},
    {"<<PHOTODPIY>>"_L1, [](Photo& photo) { return dotsPerInch(photo.context().dpiY); }},
};

struct DatedMacro {
    QLatin1String prefix;
    QDateTime (*moment)(Photo&);
};

constexpr DatedMacro DatedMacros[] = {
    {"<<TODAYDATE["_L1, [](Photo& photo) { return photo.context().now; }},
    {"<<CREATEDATE["_L1, [](Photo& photo) { return photo.fileTimes().created; }},
    {"<<MODDATE["_L1, [](Photo& photo) { return photo.fileTimes().modified; }},
};

struct MetadataMacro {
    QLatin1String prefix;
    const QVariantMap& (*dictionary)(Photo&);
    std::optional<QDateTime> (*parseDate)(const QString&);
};

constexpr MetadataMacro MetadataMacros[] = {
    {"<<EXIF:"_L1, [](Photo& photo) -> const QVariantMap& { return photo.properties().exif; },
     parsePhotoDateTime},
    {"<<IPTC:"_L1, [](Photo& photo) -> const QVariantMap& { return photo.properties().iptc; },
     parsePhotoDate},
};

// The first "[...]" of `text`, brackets included; empty where there is none.
QString bracketed(const QString& text) {
    const qsizetype open = text.indexOf(u'[');
    const qsizetype close = open < 0 ? -1 : text.indexOf(u']', open);
    return close < 0 ? QString() : text.sliced(open, close + 1 - open);
}

// What `found`, such as "<<EXIF:DateTimeOriginal[D.M.Y]>>", prints. Empty where the photo has no such value.
QString metadataMacroText(const MetadataMacro& macro, const QString& found, Photo& photo) {
    const QString inside = found.sliced(macro.prefix.size()).remove(">>"_L1);
    const QString format = bracketed(inside);
    const QString key = format.isEmpty() ? inside : inside.first(inside.indexOf(u'['));
    const std::optional<QString> value = GetStringValue(metadataValue(macro.dictionary(photo), key), key);
    if (!value) return {};
    const QString text = GetExifValue(*value, key);
    const std::optional<QDateTime> date = format.isEmpty() ? std::nullopt : macro.parseDate(text);
    if (!date) return text;
    return formatDate(*date, GetDateFormatFromMacro(format).remove(u'[').remove(u']'),
                      photo.context().locale);
}

// Beyond what any watermark holds. Names that hold macros, in a text that holds many, would multiply without
// end.
constexpr qsizetype LongestText = 1 << 20;

// Raised inside an expansion that cannot go on; ParseMacros catches it.
struct CannotExpand {
    QString reason;
};

// The steps of one expansion, in the order they are called. `text_` is the working text, `input_` the text as
// given: dates and running numbers are found there.
class Expansion {
  public:
    Expansion(const QString& input, const MacroContext& context)
        : input_(input), text_(input), photo_(context), context_(context) {}

    void checkLength() const {
        if (text_.size() > LongestText) throw CannotExpand{u"it has %1 characters"_s.arg(text_.size())};
    }

    void expandPlainMacros() {
        for (const PlainMacro& macro : PlainMacros) {
            if (text_.contains(macro.token)) replaceEvery(text_, macro.token, macro.value(photo_));
        }
    }

    void expandDates() {
        for (const DatedMacro& macro : DatedMacros) {
            for (const MacroMatch& match : findEnclosed(input_, macro.prefix, "]>>"_L1)) {
                const QString found = input_.sliced(match.position, match.length);
                const QString format = QString(found).remove(macro.prefix).remove("]>>"_L1);
                replaceEvery(text_, found, formatUserDate(macro.moment(photo_), format, context_.locale));
            }
        }
    }

    void expandRunningNumbers() {
        for (const MacroMatch& match : findRunningNumbers(input_)) {
            // The place is the one in the text as given, even where earlier macros have moved what stood
            // there.
            if (match.position + match.length > text_.size()) {
                throw CannotExpand{
                    u"the running number at %1 lies behind the expanded text's end"_s.arg(match.position)};
            }
            const QString piece = text_.sliced(match.position, match.length);
            const AutoNumber value = autoNumberAt(piece, context_.row);
            replaceEvery(text_, piece, value.text);
            if (context_.batchRunning && context_.row + 1 == context_.listSize)
                lastAutoNumber_ = value.number;
        }
    }

    void expandMetadata() {
        for (const MetadataMacro& macro : MetadataMacros) {
            QString expanded = text_;
            for (const MacroMatch& match : findEnclosed(text_, macro.prefix, ">>"_L1)) {
                const QString found = text_.sliced(match.position, match.length);
                replaceEvery(expanded, found, metadataMacroText(macro, found, photo_));
            }
            text_ = std::move(expanded);
        }
    }

    MacroExpansion take() { return {std::move(text_), lastAutoNumber_}; }

  private:
    template <class Text>
    static void replaceEvery(QString& text, const Text& from, const QString& to) {
        if (to.size() > from.size() &&
            text.size() + text.count(from) * (to.size() - from.size()) > LongestText) {
            throw CannotExpand{u"the text would grow beyond %1 characters"_s.arg(LongestText)};
        }
        text.replace(from, to);
    }

    const QString& input_;
    QString text_;
    Photo photo_;
    const MacroContext& context_;
    std::optional<qint64> lastAutoNumber_;
};

}  // namespace

MacroExpansion ParseMacros(const QString& text, const MacroContext& context) {
    if (!text.contains("<<"_L1)) return {text, std::nullopt};
    Expansion expansion(text, context);
    try {
        expansion.checkLength();
        expansion.expandPlainMacros();
        expansion.expandDates();
        expansion.expandRunningNumbers();
        expansion.expandMetadata();
    } catch (const CannotExpand& failure) {
        qCWarning(macroLog).noquote()
            << "A watermark text of" << context.photoPath << "is only partly expanded:" << failure.reason;
    }
    return expansion.take();
}

}  // namespace zelto
