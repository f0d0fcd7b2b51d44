// SPDX-License-Identifier: GPL-3.0-or-later
// What nearly every test uses: googletest and its matchers, Qt's literals, files, and folders that are gone when the
// test ends. Precompiled for all test programs.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

}  // namespace zelto
