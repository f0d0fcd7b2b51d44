// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_program.h"

#include <QApplication>
#include <QSettings>

namespace {

// Every test starts as on the first day: without preferences and without files of the program.
class FirstDay : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo& /*test*/) override {
        QSettings preferences(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Zelto"),
                              QStringLiteral("Zelto"));
        preferences.clear();
        QDir home = QDir::home();
        for (const QString& left : home.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QDir(home.filePath(left)).removeRecursively();
        }
        for (const QString& left : home.entryList(QDir::Files)) home.remove(left);
    }
};

}  // namespace

int main(int argc, char** argv) {
    ::testing::UnitTest::GetInstance()->listeners().Append(new FirstDay);
    return zelto::runTestProgram<QApplication>(argc, argv);
}
