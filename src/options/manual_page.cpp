// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/manual_texts.h"
#include "platform/words.h"

namespace zelto {
namespace {

// Text as groff takes it: nothing in it is a request, dashes can be copied, and letters beyond ASCII are named.
QString roff(const QString& text) {
    QString result;
    for (const char32_t letter : text.toUcs4()) {
        if (letter == U'\\') {
            result += QStringLiteral("\\e");
        } else if (letter == U'-') {
            result += QStringLiteral("\\-");
        } else if (letter == U'\'') {
            result += QStringLiteral("\\(aq");
        } else if (letter == U'.' && result.isEmpty()) {
            result += QStringLiteral("\\&.");
        } else if (letter < 0x80) {
            result += QChar(static_cast<char16_t>(letter));
        } else {
            result += QStringLiteral("\\[u%1]")
                          .arg(static_cast<uint>(letter), 4, 16, QLatin1Char('0'))
                          .toUpper()
                          .replace(QStringLiteral("[U"), QStringLiteral("[u"));
        }
    }
    return result;
}

QString roff(const char* text) {
    return roff(QString::fromUtf8(text));
}

QString translated(const char* text) {
    return roff(Words::tr(text));
}

QString bold(const QString& text) {
    return QStringLiteral("\\fB%1\\fR").arg(text);
}

// "-s, --setting NAME_OR_FILE" with its value in italics.
QString heading(const OptionText& option) {
    QString text;
    if (option.letter != nullptr)
        text = bold(roff(QStringLiteral("-") + QLatin1String(option.letter))) + QStringLiteral(", ");
    text += bold(roff(QStringLiteral("--") + QLatin1String(option.name)));
    if (option.value != nullptr) text += QStringLiteral(" \\fI%1\\fR").arg(roff(option.value));
    return text;
}

QString section(const QString& title) {
    return QStringLiteral(".SH \"%1\"\n").arg(roff(title.toUpper()));
}

}  // namespace

QByteArray manualPage(const ProgramManual& manual) {
    const QString program = roff(manual.program);
    QString page = QStringLiteral(".TH %1 1 \"\" \"Zelto " ZELTO_VERSION "\" \"%2\"\n")
                       .arg(program.toUpper(), roff(Words::tr("User Commands")));
    page += section(Words::tr("Name")) + program + QStringLiteral(" \\- ") + translated(manual.summary) +
            QLatin1Char('\n');
    page += section(Words::tr("Synopsis")) + bold(program) +
            QStringLiteral(" [\\fIoptions\\fR] [\\-\\-] \\fI%1\\fR\n").arg(roff(manual.arguments));
    page += section(Words::tr("Examples"));
    for (const CommandExample& example : manual.examples) {
        page += QStringLiteral(".TP\n") + bold(roff(example.command)) + QLatin1Char('\n') +
                translated(example.meaning) + QLatin1Char('\n');
    }
    page += section(Words::tr("Options"));
    for (const OptionGroup& group : manual.groups) {
        page += QStringLiteral(".SS \"%1\"\n").arg(translated(group.title));
        for (const OptionText& option : group.options)
            page += QStringLiteral(".TP\n") + heading(option) + QLatin1Char('\n') + translated(option.help) +
                    QLatin1Char('\n');
    }
    for (const ManualSection& more : manual.sections) {
        page += section(Words::tr(more.title));
        const char* separator = "";
        for (const QString& line : Words::tr(more.text).split(QLatin1Char('\n'))) {
            page += QLatin1String(separator) + roff(line) + QLatin1Char('\n');
            separator = ".PP\n";
        }
    }
    page += section(Words::tr("See also")) + QStringLiteral(".BR %1 (1)\n").arg(roff(manual.seeAlso));
    return page.toUtf8();
}

}  // namespace zelto
