// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/arguments.h"

#include "options/nearest_word.h"
#include "platform/words.h"

#include <QCommandLineParser>

namespace zelto {
namespace {

QCommandLineOption qtOption(const OptionText& option) {
    QStringList names;
    if (option.letter != nullptr) names.append(QLatin1String(option.letter));
    names.append(QLatin1String(option.name));
    QCommandLineOption result(names);
    if (option.value == nullptr) return result;
    result.setValueName(QLatin1String(option.value));
    // Lets a value follow its letter at once, as in -j4.
    if (option.letter != nullptr) result.setFlags(QCommandLineOption::ShortOptionStyle);
    return result;
}

QString dashed(const QString& name) {
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

QString unknownOption(const ProgramManual& manual, const QString& name) {
    QStringList names;
    for (const OptionGroup& group : manual.groups) {
        for (const OptionText& option : group.options) names.append(QLatin1String(option.name));
    }
    const QString meant = nearestWord(name, names);
    return meant.isEmpty()
               ? Words::tr("there is no option “%1”").arg(dashed(name))
               : Words::tr("there is no option “%1”; did you mean “%2”?").arg(dashed(name), dashed(meant));
}

}  // namespace

Result<GivenArguments> readArguments(const ProgramManual& manual, const QStringList& arguments) {
    QCommandLineParser parser;
    for (const OptionGroup& group : manual.groups) {
        for (const OptionText& option : group.options) parser.addOption(qtOption(option));
    }
    // The parser takes the first argument for the program's name.
    if (!parser.parse(QStringList(QLatin1String(manual.program)) + arguments)) {
        const QStringList unknown = parser.unknownOptionNames();
        return fail(ErrorCode::InvalidValue,
                    unknown.isEmpty() ? parser.errorText() : unknownOption(manual, unknown.first()));
    }
    GivenArguments given;
    given.others = parser.positionalArguments();
    for (const OptionGroup& group : manual.groups) {
        for (const OptionText& option : group.options) {
            const QString name = QLatin1String(option.name);
            if (!parser.isSet(name)) continue;
            given.options.push_back({name, option.value != nullptr ? parser.value(name) : QString()});
        }
    }
    return given;
}

}  // namespace zelto
