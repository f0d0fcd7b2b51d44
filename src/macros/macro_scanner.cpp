// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/macro_scanner.h"

#include <algorithm>

namespace zelto {
namespace {

bool isLineEnd(QChar c) {
    return (c >= u'\n' && c <= u'\r') || c == QChar(0x85) || c == QChar(0x2028) || c == QChar(0x2029);
}

qsizetype lineEndAfter(QStringView text, qsizetype position) {
    return std::find_if(text.begin() + position, text.end(), isLineEnd) - text.begin();
}

// Where `prefix`, which starts with "<<", next stands in any case; -1 for nowhere.
qsizetype findPrefix(QStringView text, QLatin1String prefix, qsizetype from) {
    while ((from = text.indexOf(QLatin1String("<<"), from)) >= 0) {
        if (text.sliced(from).startsWith(prefix, Qt::CaseInsensitive)) return from;
        ++from;
    }
    return -1;
}

template <class Belongs>
qsizetype skipWhile(QStringView text, qsizetype position, Belongs belongs) {
    while (position < text.size() && belongs(text[position])) ++position;
    return position;
}

}  // namespace

QList<MacroMatch> findEnclosed(QStringView text, QLatin1String prefix, QLatin1String suffix) {
    QList<MacroMatch> matches;
    qsizetype lineEnd = 0;
    qsizetype from = 0;
    while ((from = findPrefix(text, prefix, from)) >= 0) {
        const qsizetype inside = from + prefix.size();
        if (inside > lineEnd) lineEnd = lineEndAfter(text, inside);
        const qsizetype length = text.first(lineEnd).sliced(inside).indexOf(suffix);
        if (length < 0) {
            // A later prefix of this line has no suffix either.
            from = lineEnd;
            continue;
        }
        const qsizetype end = inside + length + suffix.size();
        matches.append({from, end - from});
        from = end;
    }
    return matches;
}

QList<MacroMatch> findRunningNumbers(QStringView text) {
    constexpr QLatin1String Prefix("<<AUTO:");
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    QList<MacroMatch> matches;
    qsizetype from = 0;
    while ((from = findPrefix(text, Prefix, from)) >= 0) {
        qsizetype end = from + Prefix.size();
        end = skipWhile(text, end, [](QChar c) { return c == u'#'; });
        end = skipWhile(text, end, isDigit);
        end = skipWhile(text, end, [](QChar c) { return c == u'+'; });
        end = skipWhile(text, end, isDigit);
        if (text.sliced(end).startsWith(QLatin1String(">>"))) {
            end += 2;
            matches.append({from, end - from});
        }
        from = end;
    }
    return matches;
}

}  // namespace zelto
