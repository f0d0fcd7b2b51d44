// SPDX-License-Identifier: GPL-3.0-or-later
// A room of src/ includes only from itself and from the rooms below it, and only the window knows widgets.
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

#include <map>

namespace zelto {
namespace {

// Per room, the rooms it may include from beside itself. A name stands for all rooms inside it, too.
const std::map<QString, QStringList>& rooms() {
    static const auto table = [] {
        const QStringList engine = {QStringLiteral("records"),  QStringLiteral("platform"),
                                    QStringLiteral("pictures"), QStringLiteral("metadata"),
                                    QStringLiteral("macros"),   QStringLiteral("persistence"),
                                    QStringLiteral("render"),   QStringLiteral("batch")};
        const QStringList app = {QStringLiteral("app/common"), QStringLiteral("app/photos"),
                                 QStringLiteral("app/watermarks"), QStringLiteral("app/preview"),
                                 QStringLiteral("app/window")};
        const QString controls = QStringLiteral("app/editors/controls");
        const QString macros = QStringLiteral("app/editors/macros");
        const QString text = QStringLiteral("app/editors/text");
        const QStringList groundToMacros = engine.mid(0, 5);
        std::map<QString, QStringList> allowed = {
            {QStringLiteral("records"), {}},
            {QStringLiteral("platform"), {}},
            {QStringLiteral("pictures"), {QStringLiteral("platform")}},
            {QStringLiteral("metadata"), engine.mid(0, 3)},
            {QStringLiteral("macros"), engine.mid(0, 4)},
            {QStringLiteral("persistence"), engine.mid(0, 3)},
            {QStringLiteral("render"), groundToMacros},
            {QStringLiteral("batch"), engine.mid(0, 7)},
            {QStringLiteral("cli"), engine},
            {controls, engine + app},
            {macros, engine + app + QStringList{controls}},
            {text, engine + app + QStringList{controls, macros}},
            {QStringLiteral("app/editors"), engine + app + QStringList{controls, macros, text}},
            {QStringLiteral("app/dialogs"), engine + app},
            {QStringLiteral("app/run"), engine + app},
            {QStringLiteral("app/program"), engine + QStringList{QStringLiteral("app")}},
        };
        for (qsizetype i = 0; i < app.size(); ++i) allowed[app[i]] = engine + app.mid(0, i);
        return allowed;
    }();
    return table;
}

// The room of "room/file.h"; empty for what lies in none.
QString roomOf(const QString& path) {
    QString room = path.section(QLatin1Char('/'), 0, -2);
    return rooms().count(room) > 0 ? room : QString();
}

// What `text`, a source file of `room`, includes and should not.
QStringList forbiddenIncludes(const QString& room, const QString& text) {
    static const QRegularExpression include(
        QStringLiteral(R"re(^\s*#\s*include\s+(["<])(?:\.\./)*([^">]+))re"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression widgets(QStringLiteral(
        "^(QtWidgets/"
        ".*|Q(Application|Widget|Dialog|MainWindow|MessageBox|Table.*|Tree.*|List(View|Widget)|Label|"
        "LineEdit|PushButton|(Box|HBox|VBox|Grid|Form)Layout|Action))$"));
    QStringList found;
    for (auto match = include.globalMatch(text); match.hasNext();) {
        const auto line = match.next();
        const QString included = line.captured(2);
        if (line.captured(1) == QLatin1String("<")) {
            if (!room.startsWith(QLatin1String("app")) && widgets.match(included).hasMatch())
                found.append(included);
            continue;
        }
        if (included.endsWith(QLatin1String(".moc"))) continue;
        const QString from = roomOf(included);
        bool allowed = from == room;
        for (const QString& below : rooms().at(room)) {
            allowed = allowed || from == below || from.startsWith(below + QLatin1Char('/'));
        }
        if (from.isEmpty() || !allowed) found.append(included);
    }
    return found;
}

TEST(Floors, EveryFileIncludesOnlyFromBelow) {
    ASSERT_EQ(forbiddenIncludes(QStringLiteral("render"),
                                QStringLiteral("#include \"render/a.h\"\n #include \"batch/b.h\"\n"
                                               "#include <QLabel>\n#include \"macros/c.h\"\n")),
              QStringList({QStringLiteral("batch/b.h"), QStringLiteral("QLabel")}));
    const QString root = QStringLiteral(ZELTO_SOURCE_DIR "/src/");
    int files = 0;
    QDirIterator sources(root, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << qPrintable(file.fileName());
        const QString room = roomOf(file.fileName().mid(root.size()));
        ASSERT_FALSE(room.isEmpty()) << qPrintable(file.fileName()) << " lies in no room";
        const QStringList found = forbiddenIncludes(room, QString::fromUtf8(file.readAll()));
        EXPECT_TRUE(found.isEmpty()) << qPrintable(file.fileName()) << " includes "
                                     << qPrintable(found.join(QStringLiteral(", ")));
        ++files;
    }
    EXPECT_GT(files, 20) << "the sources are not where they were looked for";
}

}  // namespace
}  // namespace zelto
