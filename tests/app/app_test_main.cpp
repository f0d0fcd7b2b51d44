// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_program.h"

#include <QApplication>

int main(int argc, char** argv) {
    return zelto::runTestProgram<QApplication>(argc, argv);
}
