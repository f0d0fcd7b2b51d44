// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/manual_texts.h"

#include "platform/words.h"

#include <array>
#include <utility>

namespace zelto {
namespace {

constexpr qsizetype LineWidth = 96;
constexpr qsizetype HelpColumn = 34;

// `text` in lines of at most LineWidth, all but the first of which begin `indent` columns in.
QString wrapped(const QString& text, qsizetype indent) {
    QString result;
    qsizetype column = indent;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const bool isFirst = column == indent;
        if (!isFirst && column + 1 + word.size() > LineWidth) {
            result += QLatin1Char('\n') + QString(indent, QLatin1Char(' '));
            column = indent;
        } else if (!isFirst) {
            result += QLatin1Char(' ');
            ++column;
        }
        result += word;
        column += word.size();
    }
    return result;
}

QString helpLine(const OptionText& option) {
    const QString names =
        (option.letter != nullptr ? QStringLiteral("  ") : QStringLiteral("      ")) + optionHeading(option);
    const QString gap = names.size() < HelpColumn ? QString(HelpColumn - names.size(), QLatin1Char(' '))
                                                  : QLatin1Char('\n') + QString(HelpColumn, QLatin1Char(' '));
    return names + gap + wrapped(Words::tr(option.help), HelpColumn) + QLatin1Char('\n');
}

// In a table of Markdown.
QString cell(const QString& text) {
    return QString(text)
        .replace(QLatin1Char('|'), QStringLiteral("\\|"))
        .replace(QLatin1Char('<'), QStringLiteral("\\<"));
}

}  // namespace

QString helpText(const ProgramManual& manual) {
    const auto program = QLatin1String(manual.program);
    QString text = program + QLatin1Char(' ') + Words::tr(manual.summary) + QStringLiteral(".\n\n") +
                   Words::tr("Examples") + QStringLiteral(":\n");
    for (const CommandExample& example : manual.examples) {
        text += QStringLiteral("  ") + QString::fromUtf8(example.command) + QStringLiteral("\n      ") +
                wrapped(Words::tr(example.meaning), 6) + QLatin1Char('\n');
    }
    text += QLatin1Char('\n') + Words::tr("Usage: %1").arg(program) + QStringLiteral(" [options] [--] ") +
            QLatin1String(manual.arguments) + QLatin1Char('\n');
    for (const OptionGroup& group : manual.groups) {
        text += QLatin1Char('\n') + Words::tr(group.title) + QStringLiteral(":\n");
        for (const OptionText& option : group.options) text += helpLine(option);
    }
    for (const ManualSection& section : manual.sections) {
        text += QLatin1Char('\n') + Words::tr(section.title) + QStringLiteral(":\n");
        for (const QString& line : Words::tr(section.text).split(QLatin1Char('\n')))
            text += QStringLiteral("  ") + wrapped(line, 2) + QLatin1Char('\n');
    }
    return text;
}

QByteArray optionsPage(const ProgramManual& manual) {
    const auto program = QLatin1String(manual.program);
    QString text = QStringLiteral("# ") + Words::tr("All options of %1").arg(program) +
                   QStringLiteral("\n`%1` %2.\n\n```\n%1 [options] [--] %3\n```\n")
                       .arg(program, Words::tr(manual.summary), QLatin1String(manual.arguments));
    text += QStringLiteral("\n## %1\n").arg(Words::tr("Examples"));
    for (const CommandExample& example : manual.examples) {
        const QString meaning = Words::tr(example.meaning);
        text += meaning.left(1).toUpper() + meaning.mid(1) + QStringLiteral(":\n```\n") +
                QString::fromUtf8(example.command) + QStringLiteral("\n```\n");
    }
    for (const OptionGroup& group : manual.groups) {
        text += QStringLiteral("\n## %1\n| %2 | %3 |\n|---|---|\n")
                    .arg(Words::tr(group.title), Words::tr("option"), Words::tr("meaning"));
        for (const OptionText& option : group.options)
            text +=
                QStringLiteral("| `%1` | %2 |\n").arg(optionHeading(option), cell(Words::tr(option.help)));
    }
    for (const ManualSection& section : manual.sections) {
        text += QStringLiteral("\n## %1\n").arg(Words::tr(section.title));
        for (const QString& line : Words::tr(section.text).split(QLatin1Char('\n')))
            text += QStringLiteral("- ") + line + QLatin1Char('\n');
    }
    return text.toUtf8();
}

QByteArray generatedText(const ProgramManual& manual, const QString& kind) {
    using Maker = QByteArray (*)(const ProgramManual&);
    static constexpr std::array<std::pair<const char*, Maker>, 5> makers = {{{"man", manualPage},
                                                                             {"bash", bashCompletion},
                                                                             {"zsh", zshCompletion},
                                                                             {"fish", fishCompletion},
                                                                             {"markdown", optionsPage}}};
    for (const auto& [word, make] : makers) {
        if (kind == QLatin1String(word)) return make(manual);
    }
    return {};
}

}  // namespace zelto
