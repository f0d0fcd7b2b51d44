// SPDX-License-Identifier: GPL-3.0-or-later
// Running a whole program from a test.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace zelto {

struct ProgramRun {
    int exitStatus = -1;  // -1: did not start, was killed, or took longer than two minutes
    QByteArray output;
    QByteArray errors;
};

// Environment variables set for the program beside those of the test; a null value takes one away.
using ProgramEnvironment = QMap<QString, QString>;

ProgramRun runProgram(const QString& program, const QStringList& arguments,
                      const ProgramEnvironment& environment = {});

// The same, sending the program `signal` once `lines` lines have come on its standard error.
ProgramRun runAndSignal(const QString& program, const QStringList& arguments, int lines, int signal);

// Runs the program, kills it after so many milliseconds where it has not ended, and returns when everything it has
// started has ended too.
void runAndKill(const QString& program, const QStringList& arguments, int milliseconds);

}  // namespace zelto
