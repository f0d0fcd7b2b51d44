// SPDX-License-Identifier: GPL-3.0-or-later
// In the templates @ stands for the beginning of the names of a script's own functions: "_zelto_batch_". What users
// have named, settings above all, is compared and quoted by the shell, never expanded: it might hold a command.
#include "options/manual_texts.h"

#include <functional>

namespace zelto {
namespace {

// What `each` makes of every option, one after another.
QString forAll(const ProgramManual& manual, const std::function<QString(const OptionText&)>& each) {
    QString text;
    for (const OptionGroup& group : manual.groups) {
        for (const OptionText& option : group.options) text += each(option);
    }
    return text;
}

QByteArray script(const ProgramManual& manual, const char* shell, const QString& body) {
    const auto program = QLatin1String(manual.program);
    const QString prefix =
        QLatin1Char('_') + QString(program).replace(QLatin1Char('-'), QLatin1Char('_')) + QLatin1Char('_');
    const QString origin =
        QStringLiteral("# Completion for %1, made by: %2 --generate %1\n").arg(QLatin1String(shell), program);
    return (origin + QString(body).replace(QLatin1Char('@'), prefix)).toUtf8();
}

// In single quotes, where `escape` is what stands for such a quote inside.
QString quoted(const QString& text, const char* escape) {
    return QLatin1Char('\'') + QString(text).replace(QLatin1Char('\''), QLatin1String(escape)) +
           QLatin1Char('\'');
}

QString letterOption(const OptionText& option) {
    return option.letter != nullptr ? QLatin1Char('-') + QString(QLatin1String(option.letter)) : QString();
}

QString nameOption(const OptionText& option) {
    return QStringLiteral("--") + QLatin1String(option.name);
}

// --- bash

constexpr const char* BashFunctions = R"(@settings() {
    local name
    while IFS= read -r name; do
        [[ $name == "$cur"* ]] && COMPREPLY+=("$name")
    done < <(zelto-batch --list-settings --quiet 2>/dev/null)
}
@files() {
    local name
    while IFS= read -r name; do
        [[ -d $name || $name == $1 ]] && COMPREPLY+=("$name")
    done < <(compgen -f -- "$cur")
}
@words() {
    COMPREPLY+=($(compgen -W "$*" -- "$cur"))
}
@list() {
    local before=
    [[ $cur == *,* ]] && before=${cur%,*},
    COMPREPLY+=($(compgen -P "$before" -W "$*" -- "${cur##*,}"))
}
@complete() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
    COMPREPLY=()
    if [[ $cur == = ]]; then
        cur=
    elif [[ $prev == = ]]; then
        prev=${COMP_WORDS[COMP_CWORD-2]}
    fi
    cur=${cur//\\/}
    compopt -o filenames 2>/dev/null
    case $prev in
%1    esac
    if [[ $cur == -* ]]; then
        compopt +o filenames 2>/dev/null
        @words "%2"
    else
        @files '*'
    fi
}
complete -F @complete %3
)";

QString bashValue(const OptionText& option) {
    const auto words = QLatin1String(option.words);
    switch (option.kind) {
        case OptionValue::Setting:
            return QStringLiteral("@settings; @files '*.zcs'");
        case OptionValue::File:
            return QStringLiteral("@files '*.%1'").arg(words);
        case OptionValue::Folder:
            return QStringLiteral("@files ''");
        case OptionValue::Word:
            return QStringLiteral("@words %1").arg(words);
        case OptionValue::Words:
            return QStringLiteral("@list %1").arg(words);
        case OptionValue::Text:
        case OptionValue::None:
            break;
    }
    return QStringLiteral(":");
}

QString bashCase(const OptionText& option) {
    if (option.value == nullptr) return {};
    const QString letter = option.letter != nullptr ? letterOption(option) + QLatin1Char('|') : QString();
    return QStringLiteral("        %1%2) %3; return ;;\n").arg(letter, nameOption(option), bashValue(option));
}

// --- zsh

constexpr const char* ZshFunctions = R"(@settings() {
    local -a names
    names=("${(@f)$(zelto-batch --list-settings --quiet 2>/dev/null)}")
    compadd -a names
    _files -g '*.zcs'
}
@complete() {
    _arguments -s -S \
%1        '*:photo or folder:_files'
}
)";

QString zshAction(const OptionText& option) {
    const auto words = QLatin1String(option.words);
    switch (option.kind) {
        case OptionValue::Setting:
            return QStringLiteral("@settings");
        case OptionValue::File:
            return QStringLiteral("_files -g \"*.%1\"").arg(words);
        case OptionValue::Folder:
            return QStringLiteral("_files -/");
        case OptionValue::Word:
            return QStringLiteral("(%1)").arg(words);
        case OptionValue::Words:
            return QStringLiteral("_values -s , %1 %2").arg(QLatin1String(option.value), words);
        case OptionValue::Text:
        case OptionValue::None:
            break;
    }
    return QStringLiteral(" ");
}

QString zshArgument(const OptionText& option) {
    QString help = briefHelp(option);
    for (const char* special : {"\\", "[", "]", ":"})
        help.replace(QLatin1String(special), QLatin1Char('\\') + QString(QLatin1String(special)));
    const bool hasValue = option.value != nullptr;
    const QString rest = QStringLiteral("[%1]%2").arg(
        help,
        hasValue ? QStringLiteral(":%1:%2").arg(QLatin1String(option.value), zshAction(option)) : QString());
    const QString name = nameOption(option) + (hasValue ? QStringLiteral("=") : QString());
    if (option.letter == nullptr) return QStringLiteral("        %1 \\\n").arg(quoted(name + rest, "'\\''"));
    return QStringLiteral("        '(%1 %2)'{%1%3,%4}%5 \\\n")
        .arg(letterOption(option), nameOption(option), hasValue ? QStringLiteral("+") : QString(), name,
             quoted(rest, "'\\''"));
}

// --- fish

QString fishValue(const OptionText& option) {
    const auto words = QLatin1String(option.words);
    switch (option.kind) {
        case OptionValue::Setting:
            return QStringLiteral(
                " -x -a '(zelto-batch --list-settings --quiet 2>/dev/null; __fish_complete_suffix .zcs)'");
        case OptionValue::File:
            return QStringLiteral(" -r -k -a '(__fish_complete_suffix .%1)'").arg(words);
        case OptionValue::Folder:
            return QStringLiteral(" -x -a '(__fish_complete_directories)'");
        case OptionValue::Word:
            return QStringLiteral(" -x -a '%1'").arg(words);
        case OptionValue::Words:
            return QStringLiteral(" -x -a '(__fish_append , %1)'").arg(words);
        case OptionValue::Text:
            return QStringLiteral(" -x");
        case OptionValue::None:
            break;
    }
    return {};
}

QString fishLine(const QString& program, const OptionText& option) {
    const QString letter =
        option.letter != nullptr ? QStringLiteral(" -s ") + QLatin1String(option.letter) : QString();
    return QStringLiteral("complete -c %1%2 -l %3%4 -d %5\n")
        .arg(program, letter, QLatin1String(option.name), fishValue(option),
             quoted(briefHelp(option).replace(QLatin1Char('\\'), QStringLiteral("\\\\")), "\\'"));
}

}  // namespace

QByteArray bashCompletion(const ProgramManual& manual) {
    const QString names = forAll(manual, [](const OptionText& option) {
        return (option.letter != nullptr ? letterOption(option) + QLatin1Char(' ') : QString()) +
               nameOption(option) + QLatin1Char(' ');
    });
    return script(manual, "bash",
                  QString::fromUtf8(BashFunctions)
                      .arg(forAll(manual, bashCase), names.trimmed(), QLatin1String(manual.program)));
}

QByteArray zshCompletion(const ProgramManual& manual) {
    const QString first = QStringLiteral("#compdef %1\n").arg(QLatin1String(manual.program));
    const QString functions = QString::fromUtf8(ZshFunctions).arg(forAll(manual, zshArgument));
    return first.toUtf8() + script(manual, "zsh", functions + QStringLiteral("@complete \"$@\"\n"));
}

QByteArray fishCompletion(const ProgramManual& manual) {
    const QString program = QLatin1String(manual.program);
    return script(manual, "fish",
                  forAll(manual, [&](const OptionText& option) { return fishLine(program, option); }));
}

}  // namespace zelto
