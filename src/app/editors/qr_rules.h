// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a QR code will be of use: what it holds has to fit, and its squares have to be large and dark enough
// to be told apart. Pure; any thread.
#pragma once

#include "records/color.h"

#include <QCoreApplication>
#include <QSizeF>
#include <QString>

#include <optional>

namespace zelto {

class QrJudgement {
    Q_DECLARE_TR_FUNCTIONS(zelto::QrJudgement)

  public:
    // Of a code of `text`, its macros expanded, `side` pixels wide on a photo of `photo` pixels (empty where
    // there is none).
    QrJudgement(const QString& text, double side, QSizeF photo, const std::optional<Color>& background);

    // Whether there is something to mend before the code can be read.
    bool isProblem() const { return isProblem_; }
    // What is to be mended and how, or what the code is like.
    const QString& message() const { return message_; }

  private:
    void warn(const QString& message);

    bool isProblem_ = false;
    QString message_;
};

}  // namespace zelto
