// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/window_manual.h"

#include "options/manual_texts.h"

#define TEXT(text) QT_TRANSLATE_NOOP("zelto::Words", text)

namespace zelto {

const ProgramManual& windowManual() {
    static const ProgramManual manual{
        .program = "zelto",
        .summary = TEXT("puts watermarks on batches of photos, in a window"),
        .arguments = "[PHOTO_OR_FOLDER...]",
        .examples = {{"zelto", TEXT("the window, with the stack of last time")},
                     {"zelto ~/Pictures/Trip", TEXT("with the photos of a folder in the list")},
                     {"zelto --setting Holiday *.jpg", TEXT("with a saved setting and some photos")}},
        .groups =
            {{TEXT("Options"),
              {{"s", "setting", OptionValue::Setting, "NAME_OR_FILE", nullptr,
                TEXT("start with a saved setting, or with the setting file of this path")},
               {nullptr, "new-window", OptionValue::None, nullptr, nullptr,
                TEXT("open a window of its own; otherwise the window that is open already takes the photos, "
                     "folders and setting")},
               {nullptr, "generate", OptionValue::Word, "WHAT", GeneratedKinds,
                TEXT("print the manual page (man), the completion for bash, zsh or fish, or all options in "
                     "markdown")},
               {"h", "help", OptionValue::None, nullptr, nullptr, TEXT("print this help")},
               {"v", "version", OptionValue::None, nullptr, nullptr, TEXT("print the version")}}}},
        .sections = {{TEXT("Exit status"), TEXT("0: the window was closed.\n"
                                                "2: the command line cannot be used.")},
                     {TEXT("Files"),
                      TEXT("~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.\n"
                           "~/.local/share/Zelto/Copyright.xml: your copyright data.")}},
        .seeAlso = "zelto-batch"};
    return manual;
}

}  // namespace zelto
