// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/option_table.h"

#include <algorithm>

namespace zelto {

const OptionText* findOption(const ProgramManual& manual, const QString& name) {
    for (const OptionGroup& group : manual.groups) {
        for (const OptionText& option : group.options) {
            if (name == QLatin1String(option.name)) return &option;
        }
    }
    return nullptr;
}

QString optionHeading(const OptionText& option) {
    QString heading;
    if (option.letter != nullptr) heading = QStringLiteral("-%1, ").arg(QLatin1String(option.letter));
    heading += QStringLiteral("--") + QLatin1String(option.name);
    if (option.value != nullptr) heading += QLatin1Char(' ') + QLatin1String(option.value);
    return heading;
}

QString briefHelp(const OptionText& option) {
    const QString help = QString::fromUtf8(option.help);
    qsizetype end = help.size();
    for (const char* stop : {"; ", ": ", " (", ". "}) {
        if (const qsizetype found = help.indexOf(QLatin1String(stop)); found > 0) end = std::min(end, found);
    }
    return help.left(end);
}

}  // namespace zelto
