// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dates.h"

#include <unicode/simpletz.h>
#include <unicode/smpdtfmt.h>

#include <memory>

namespace zelto {
namespace {

// Longer than any date a photo carries: what exceeds it is not a date, however long it takes to say so.
constexpr qsizetype LongestDate = 64;

icu::UnicodeString toIcu(QStringView text) {
    return icu::UnicodeString(text.utf16(), static_cast<int32_t>(text.size()));
}

QString fromIcu(const icu::UnicodeString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

icu::Locale icuLocale(const QLocale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale result = locale.language() == QLocale::C
                             ? icu::Locale("en_US_POSIX")
                             : icu::Locale::forLanguageTag(locale.bcp47Name().toStdString(), status);
    result.setKeywordValue("calendar", "gregorian", status);
    return result;
}

std::unique_ptr<icu::SimpleDateFormat> makeFormat(const icu::UnicodeString& pattern,
                                                  const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
    if (U_FAILURE(status)) return nullptr;
    return format;
}

// Making a formatter costs a hundred times what using it does, and a thread seldom changes its locale.
struct LocaleFormat {
    QLocale locale;
    std::unique_ptr<icu::SimpleDateFormat> format;
    std::unique_ptr<icu::Calendar> calendar;  // set to the moment printed
    QString shortPattern;
};

LocaleFormat& formatOf(const QLocale& locale) {
    static thread_local LocaleFormat cached;
    if (cached.format && cached.locale == locale) return cached;
    const icu::Locale target = icuLocale(locale);
    cached.locale = locale;
    cached.format = makeFormat({}, target);
    cached.calendar.reset(cached.format ? cached.format->getCalendar()->clone() : nullptr);
    const std::unique_ptr<icu::DateFormat> style(
        icu::DateFormat::createDateInstance(icu::DateFormat::kShort, target));
    icu::UnicodeString pattern;
    if (const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(style.get()))
        simple->toPattern(pattern);
    cached.shortPattern = fromIcu(pattern);
    return cached;
}

bool isPatternLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

// One run of a pattern letter, printed; as it stands where ICU knows no such field or has nothing to print
// for it.
QString formatField(LocaleFormat& with, QStringView field) {
    with.format->applyPattern(toIcu(field));
    icu::UnicodeString printed;
    UErrorCode status = U_ZERO_ERROR;
    with.format->format(*with.calendar, printed, nullptr, status);
    return U_FAILURE(status) || printed.isEmpty() ? field.toString() : fromIcu(printed);
}

QString formatPattern(LocaleFormat& with, QStringView pattern) {
    QString result;
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar c = pattern[i];
        if (c == u'\'') {
            const bool apostrophe = i + 1 < pattern.size() && pattern[i + 1] == u'\'';
            if (apostrophe)
                result += c;
            else
                quoted = !quoted;
            i += apostrophe ? 2 : 1;
        } else if (quoted || !isPatternLetter(c)) {
            result += c;
            ++i;
        } else {
            qsizetype end = i + 1;
            while (end < pattern.size() && pattern[end] == c) ++end;
            result += formatField(with, pattern.sliced(i, end - i));
            i = end;
        }
    }
    return result;
}

// The locale of what cameras write: ASCII digits, no words.
struct ParseFormats {
    std::unique_ptr<icu::SimpleDateFormat> twelveHours = make(u"yyyy:MM:dd hh:mm:ss");
    std::unique_ptr<icu::SimpleDateFormat> fullDay = make(u"yyyy:MM:dd HH:mm:ss");
    std::unique_ptr<icu::SimpleDateFormat> date = make(u"yyyyMMdd");

    static std::unique_ptr<icu::SimpleDateFormat> make(const char16_t* pattern) {
        auto format = makeFormat(pattern, icu::Locale("en_US_POSIX@calendar=gregorian"));
        if (format) format->setTimeZone(*icu::TimeZone::getGMT());
        return format;
    }
};

ParseFormats& parseFormats() {
    static thread_local ParseFormats formats;
    return formats;
}

std::optional<UDate> parse(icu::SimpleDateFormat* format, const icu::UnicodeString& text, bool lenient) {
    if (!format) return std::nullopt;
    format->setLenient(lenient);
    icu::ParsePosition position(0);
    const UDate moment = format->parse(text, position);
    // An empty text is read to its end too.
    if (text.isEmpty() || position.getErrorIndex() >= 0 || position.getIndex() != text.length())
        return std::nullopt;
    return moment;
}

QDateTime utc(UDate moment) {
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(moment), Qt::UTC);
}

}  // namespace

QString formatDate(const QDateTime& moment, QStringView pattern, const QLocale& locale) {
    LocaleFormat& with = formatOf(locale);
    if (!moment.isValid() || !with.format || !with.calendar) return {};
    // A zone of the moment's own offset prints Qt's clock whatever ICU takes the system's zone to be. Qt asks the
    // system anew for the offset of each local time, so it is asked once.
    const int offset = moment.offsetFromUtc() * 1000;
    const qint64 clock = QDateTime(moment.date(), moment.time(), Qt::UTC).toMSecsSinceEpoch();
    UErrorCode status = U_ZERO_ERROR;
    with.calendar->adoptTimeZone(new icu::SimpleTimeZone(offset, icu::UnicodeString()));
    with.calendar->setTime(static_cast<UDate>(clock - offset), status);
    return U_FAILURE(status) ? QString() : formatPattern(with, pattern);
}

QString formatShortDate(const QDateTime& moment, const QLocale& locale) {
    return formatDate(moment, formatOf(locale).shortPattern, locale);
}

std::optional<QDateTime> parsePhotoDateTime(const QString& text) {
    if (text.size() > LongestDate) return std::nullopt;
    const ParseFormats& formats = parseFormats();
    const icu::UnicodeString given = toIcu(text);
    if (const auto moment = parse(formats.twelveHours.get(), given, false)) return utc(*moment);
    const auto moment = parse(formats.fullDay.get(), given, true);
    if (!moment) return std::nullopt;
    icu::UnicodeString again;
    if (formats.fullDay->format(*moment, again) != given) return std::nullopt;
    return utc(*moment);
}

std::optional<QDateTime> parsePhotoDate(const QString& text) {
    if (text.size() > LongestDate) return std::nullopt;
    const auto moment = parse(parseFormats().date.get(), toIcu(text), false);
    if (!moment) return std::nullopt;
    return utc(*moment);
}

QLocale userDateLocale() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty()) return QLocale(name);
    }
    return QLocale::system();
}

}  // namespace zelto
