// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a file of this repository.
#pragma once

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace zelto {

inline QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

}  // namespace zelto
