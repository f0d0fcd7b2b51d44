// SPDX-License-Identifier: GPL-3.0-or-later
// A room of src/ includes only from itself and from the rooms below it. That only the window knows widgets needs no
// test: nothing else is given their headers.
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

// Per room, the rooms it may include from beside itself. A name stands for all rooms inside it, too.
QMap<QString, QStringList> rooms() {
    const QString engine = u"records platform options pictures metadata macros persistence render batch "_s;
    const QString app = u"app/common app/photos app/watermarks app/preview app/window "_s;
    const std::pair<QString, QString> rows[] = {
        {u"records"_s, {}},
        {u"platform"_s, {}},
        {u"options"_s, u"platform"_s},
        {u"pictures"_s, u"platform"_s},
        {u"metadata"_s, u"records platform pictures"_s},
        {u"macros"_s, u"records platform pictures metadata"_s},
        {u"persistence"_s, u"records platform pictures"_s},
        {u"render"_s, u"records platform pictures metadata macros"_s},
        {u"batch"_s, u"records platform pictures metadata macros persistence render"_s},
        {u"cli"_s, engine},
        {u"app/common"_s, engine},
        {u"app/photos"_s, engine + u"app/common"_s},
        {u"app/watermarks"_s, engine + u"app/common app/photos"_s},
        {u"app/preview"_s, engine + u"app/common app/photos app/watermarks"_s},
        {u"app/window"_s, engine + u"app/common app/photos app/watermarks app/preview"_s},
        {u"app/editors/controls"_s, engine + app},
        {u"app/editors/macros"_s, engine + app + u"app/editors/controls"_s},
        {u"app/editors/text"_s, engine + app + u"app/editors/controls app/editors/macros"_s},
        {u"app/editors"_s, engine + app + u"app/editors"_s},
        {u"app/dialogs"_s, engine + app},
        {u"app/run"_s, engine + app},
        {u"app/program"_s, engine + u"app"_s},
    };
    QMap<QString, QStringList> table;
    for (const auto& [room, below] : rows) table[room] = below.split(u' ', Qt::SkipEmptyParts);
    return table;
}

// What `text`, a source file of `room`, includes and should not.
QStringList forbiddenIncludes(const QString& room, const QString& text) {
    static const QMap<QString, QStringList> table = rooms();
    static const QRegularExpression include(uR"re(^\s*#\s*include\s+"(?:\.\./)*([^"]+))re"_s,
                                            QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = include.globalMatch(text); match.hasNext();) {
        const auto line = match.next();
        const QString included = line.captured(1);
        const QString from = included.section(u'/', 0, -2);
        bool allowed = from == room || included.endsWith(u".moc"_s);
        for (const QString& below : table[room])
            allowed = allowed || from == below || (from.startsWith(below + u'/') && table.contains(from));
        if (!allowed) found.append(included);
    }
    return found;
}

TEST(Floors, EveryFileIncludesOnlyFromBelow) {
    ASSERT_EQ(forbiddenIncludes(u"render"_s,
                                u"#include \"render/a.h\"\n #include \"batch/b.h\"\n"
                                "#include \"macros/c.h\"\n"_s),
              QStringList(u"batch/b.h"_s));
    const QString root = QStringLiteral(ZELTO_SOURCE_DIR "/src/");
    int files = 0;
    QDirIterator sources(root, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << qPrintable(file.fileName());
        const QString room = file.fileName().mid(root.size()).section(u'/', 0, -2);
        ASSERT_TRUE(rooms().contains(room)) << qPrintable(file.fileName()) << " lies in no room";
        const QStringList found = forbiddenIncludes(room, QString::fromUtf8(file.readAll()));
        EXPECT_TRUE(found.isEmpty()) << qPrintable(file.fileName()) << " includes "
                                     << qPrintable(found.join(u' '));
        ++files;
    }
    EXPECT_GT(files, 20) << "the sources are not where they were looked for";
}

}  // namespace
}  // namespace zelto
