// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/window_manual.h"

#include "options/manual_texts.h"

namespace zelto {

const ProgramManual& windowManual() {
    static const ProgramManual manual{
        .program = "zelto",
        .summary = QT_TRANSLATE_NOOP("Words", "puts watermarks on batches of photos, in a window"),
        .arguments = "[PHOTO_OR_FOLDER...]",
        .examples = {{"zelto", QT_TRANSLATE_NOOP("Words", "the window, with the stack of last time")},
                     {"zelto ~/Pictures/Trip",
                      QT_TRANSLATE_NOOP("Words", "with the photos of a folder in the list")},
                     {"zelto --setting Holiday *.jpg",
                      QT_TRANSLATE_NOOP("Words", "with a saved setting and some photos")}},
        .groups =
            {{QT_TRANSLATE_NOOP("Words", "Options"),
              {{"s", "setting", OptionValue::Setting, "NAME_OR_FILE", nullptr,
                QT_TRANSLATE_NOOP("Words",
                                  "start with a saved setting, or with the setting file of this path")},
               {nullptr, "new-window", OptionValue::None, nullptr, nullptr,
                QT_TRANSLATE_NOOP(
                    "Words",
                    "open a window of its own; otherwise the window that is open already takes the photos, "
                    "folders and setting")},
               {nullptr, "generate", OptionValue::Word, "WHAT", GeneratedKinds,
                QT_TRANSLATE_NOOP(
                    "Words",
                    "print the manual page (man), the completion for bash, zsh or fish, or all options in "
                    "markdown")},
               {"h", "help", OptionValue::None, nullptr, nullptr,
                QT_TRANSLATE_NOOP("Words", "print this help")},
               {"v", "version", OptionValue::None, nullptr, nullptr,
                QT_TRANSLATE_NOOP("Words", "print the version")}}}},
        .sections = {{QT_TRANSLATE_NOOP("Words", "Exit status"),
                      QT_TRANSLATE_NOOP("Words",
                                        "0: the window was closed.\n"
                                        "2: the command line cannot be used.")},
                     {QT_TRANSLATE_NOOP("Words", "Files"),
                      QT_TRANSLATE_NOOP(
                          "Words",
                          "~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.\n"
                          "~/.local/share/Zelto/Copyright.xml: your copyright data.")}},
        .seeAlso = "zelto-batch"};
    return manual;
}

}  // namespace zelto
