// SPDX-License-Identifier: GPL-3.0-or-later
// Running numbers: what their fields hold, the macro composed from these, and the number a macro stands for at a row of
// the photo list. Any thread.
#pragma once

#include <QString>

#include <optional>

namespace zelto {

// The three fields a running number is composed of, as typed.
struct AutoNumberFields {
    QString digits = QStringLiteral("1");     // width of the whole number
    QString start = QStringLiteral("1");      // number of the first photo
    QString increment = QStringLiteral("1");  // from photo to photo
};

// What a field holds once `typed` has been typed into it: "1" where its number is below 1.
QString autoNumberField(const QString& typed);

// The macro of `fields`: digits 4, start 1, increment 1 give "<<AUTO:###1+1>>". A start number with more digits keeps
// them all. More than MaximumAutoDigits count as that many.
QString GenerateAutoMacro(const AutoNumberFields& fields);
inline constexpr qsizetype MaximumAutoDigits = 100;

// What shows the macro to the user.
QString autoMacroLabel(const QString& macro);

// The starting number when continuing from the last number used is switched on or off.
QString ContinueLastNumber(bool on, qint64 lastAutoNumber);

// A running number at one row.
struct AutoNumber {
    qint64 number = 0;
    QString text;  // padded with zeros to the macro's width
};

// What `macro`, the piece of a text taken for a running number (seven characters "<<AUTO:" and at least
// ">>"), stands for at `row` from 0: row x increment + start. Numbers beyond 64 bits become the nearest that
// fit.
AutoNumber autoNumberAt(const QString& macro, qint64 row);

// `text` with "0" put in front until it has `length` characters; never shortened.
QString AdjustLength(QString text, qsizetype length);

}  // namespace zelto
