// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of src/ includes only from itself and from the floors below it, and only the window knows widgets.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace zelto {
namespace {

// Per folder, the folders it may include from.
const QMap<QString, QStringList>& floors() {
    static const QStringList engine = {QStringLiteral("records"), QStringLiteral("platform"),
                                       QStringLiteral("macros"),  QStringLiteral("persistence"),
                                       QStringLiteral("render"),  QStringLiteral("batch")};
    static const QMap<QString, QStringList> table = {
        {QStringLiteral("records"), {}},
        {QStringLiteral("platform"), {}},
        {QStringLiteral("macros"), engine.mid(0, 2)},
        {QStringLiteral("persistence"), engine.mid(0, 2)},
        {QStringLiteral("render"), engine.mid(0, 3)},
        {QStringLiteral("batch"), engine.mid(0, 5)},
        {QStringLiteral("app"), engine},
        {QStringLiteral("cli"), engine},
    };
    return table;
}

// What `text`, a source file of `folder`, includes and should not; empty when all is well.
QStringList forbiddenIncludes(const QString& folder, const QString& text) {
    static const QRegularExpression ours(QStringLiteral(R"re(^\s*#\s*include\s+"(?:\.\./)*(\w+)/)re"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression widgets(
        QStringLiteral(
            R"re(^\s*#\s*include\s+<(QtWidgets\b|Q(?:Application|Widget|Dialog|MainWindow|MessageBox|)re"
            R"re(Table|Tree|List(?:View|Widget)|Label|LineEdit|PushButton|Layout|Action)\b))re"),
        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = ours.globalMatch(text); match.hasNext();) {
        const QString included = match.next().captured(1);
        if (floors().contains(included) && included != folder && !floors().value(folder).contains(included)) {
            found.append(included);
        }
    }
    if (folder != QLatin1String("app")) {
        for (auto match = widgets.globalMatch(text); match.hasNext();) found.append(match.next().captured(1));
    }
    return found;
}

TEST(Floors, AnIncludeFromAboveOrAcrossIsFound) {
    struct Row {
        const char* folder;
        const char* text;
        QStringList found;
    };
    const Row rows[] = {
        {"render", "#include \"macros/macro_expander.h\"\n#include <QImage>\n", {}},
        {"render", "\n  #include \"batch/image_list.h\"\n", {QStringLiteral("batch")}},
        {"records", "#include \"../platform/result.h\"\n", {QStringLiteral("platform")}},
        {"cli", "#include \"app/main_window.h\"\n", {QStringLiteral("app")}},
        {"batch", "#include <QApplication>\n", {QStringLiteral("QApplication")}},
        {"app", "#include <QApplication>\n", {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(forbiddenIncludes(QLatin1String(row.folder), QLatin1String(row.text)), row.found)
            << row.text;
    }
}

TEST(Floors, EveryFileIncludesOnlyFromBelow) {
    const QString root = QStringLiteral(ZELTO_SOURCE_DIR "/src/");
    int files = 0;
    QDirIterator sources(root, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << qPrintable(file.fileName());
        const QString folder = file.fileName().mid(root.size()).section(QLatin1Char('/'), 0, 0);
        ASSERT_TRUE(floors().contains(folder)) << qPrintable(folder) << " stands on no floor";
        const QStringList found = forbiddenIncludes(folder, QString::fromUtf8(file.readAll()));
        EXPECT_TRUE(found.isEmpty()) << qPrintable(file.fileName()) << " includes from "
                                     << qPrintable(found.join(QStringLiteral(", ")));
        ++files;
    }
    EXPECT_GT(files, 20) << "the sources are not where they were looked for";
}

}  // namespace
}  // namespace zelto
