// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/printable.h"

#include <algorithm>
#include <array>

namespace zelto {
namespace {

struct Range {
    char16_t first;
    char16_t last;
};

constexpr std::array<Range, 6> Escaped = {{{0x0000, 0x001F},
                                           {0x007F, 0x009F},
                                           {0x200E, 0x200F},
                                           {0x2028, 0x2029},
                                           {0x202A, 0x202E},
                                           {0x2066, 0x2069}}};

bool isEscaped(QChar c) {
    return std::any_of(Escaped.begin(), Escaped.end(),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

QString escape(char16_t c) {
    return QStringLiteral("\\u%1").arg(QString::number(c, 16).toUpper(), 4, QLatin1Char('0'));
}

}  // namespace

QString printable(const QString& text) {
    if (std::none_of(text.begin(), text.end(), isEscaped)) return text;
    QString shown;
    for (const QChar c : text) shown += isEscaped(c) ? escape(c.unicode()) : QString(c);
    return shown;
}

QByteArray printableJson(const QByteArray& document) {
    constexpr char Delete = '\x7F';
    constexpr char LeadOfC1 = '\xC2';  // the first of two UTF-8 bytes; the second is the code itself
    QByteArray shown;
    shown.reserve(document.size());
    for (qsizetype i = 0; i < document.size(); ++i) {
        const auto next = i + 1 < document.size() ? static_cast<unsigned char>(document[i + 1]) : 0;
        if (document[i] == Delete) {
            shown += escape(u'\x7F').toLatin1();
        } else if (document[i] == LeadOfC1 && next >= 0x80 && next <= 0x9F) {
            shown += escape(next).toLatin1();
            ++i;
        } else {
            shown += document[i];
        }
    }
    return shown;
}

}  // namespace zelto
