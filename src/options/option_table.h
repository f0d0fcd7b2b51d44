// SPDX-License-Identifier: GPL-3.0-or-later
// What a program says of its command line, said once. Reading the arguments, --help, the manual page, the completions
// of three shells and the page of the guide are all made from such a table, so that they cannot drift apart. Texts are
// the English source, marked with QT_TRANSLATE_NOOP("Words", "...").
#pragma once

#include <QString>

#include <vector>

namespace zelto {

// What the value of an option is, for those who complete it.
enum class OptionValue {
    None,  // the option is a switch
    Text,  // nothing that could be guessed
    File,  // OptionText::words names its extension
    Folder,
    Setting,  // a saved setting's name, or a setting file
    Word,     // one of OptionText::words
    Words     // some of them, with commas between
};

struct OptionText {
    const char* letter;  // null for an option that has only its name
    const char* name;    // without the dashes
    OptionValue kind;
    const char* value;  // what the value is called; null for a switch
    const char* words;  // with blanks between them; null where the kind has none
    const char* help;   // begins in lower case and ends without a full stop
};

struct OptionGroup {
    const char* title;
    std::vector<OptionText> options;
};

struct CommandExample {
    const char* command;  // can be copied into a shell
    const char* meaning;
};

// More to know, after the options.
struct ManualSection {
    const char* title;
    const char* text;  // one paragraph a line
};

struct ProgramManual {
    const char* program;
    const char* summary;    // what it does, in a few words, without a full stop
    const char* arguments;  // what follows the options, as the usage line shows it
    std::vector<CommandExample> examples;
    std::vector<OptionGroup> groups;
    std::vector<ManualSection> sections;
    const char* seeAlso;  // another manual page of section 1
};

// Null where there is none of that name.
const OptionText* findOption(const ProgramManual& manual, const QString& name);

// "-s, --setting NAME_OR_FILE"
QString optionHeading(const OptionText& option);

// The first words of its help, for a line beside others.
QString briefHelp(const OptionText& option);

}  // namespace zelto
