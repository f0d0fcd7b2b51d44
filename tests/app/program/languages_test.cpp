// SPDX-License-Identifier: GPL-3.0-or-later
// The window with every page of its inspector and every dialog, in its languages and in one with longer texts, where
// what is not marked stays English: whether anything is cut or too pale, and what a screen reader is told.
#include "platform/languages.h"

#include "app/editor_fixture.h"

#include <QAbstractAnimation>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

#include <algorithm>
#include <map>

namespace zelto {
namespace {

// Says every text that the German translation knows in brackets and 40 per cent longer.
class LongLanguage : public QTranslator {
  public:
    LongLanguage() { EXPECT_TRUE(known_.load(u":/translations/zelto_de.qm"_s)); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* note, int number) const override {
        if (known_.translate(context, source, note, number).isEmpty()) return {};
        QString text = QString::fromUtf8(source);
        const QString inside = text.trimmed();  // a prefix or suffix of a number keeps its blank
        return text.replace(inside, u'[' + inside + QString(inside.size() * 2 / 5, u'~') + u']');
    }

  private:
    QTranslator known_;
};

struct Scene {
    const char* language;
    bool isDark = false;
    QSize size{1280, 720};
};
void PrintTo(const Scene& scene, std::ostream* out) {
    *out << scene.language << (scene.isDark ? ", dark, " : ", ") << scene.size.width() << " wide";
}

// Comes before the window, which speaks as it is made.
struct SpokenFirst : ::testing::WithParamInterface<Scene> {
    SpokenFirst() {
        const bool isLong = GetParam().language == std::string_view("long");
        speakLanguage(languageFor({QLatin1String(GetParam().language)}));
        if (isLong) QCoreApplication::installTranslator(&longLanguage.emplace());
        if (!GetParam().isDark) return;
        QPalette dark(QColor(45, 45, 48));
        dark.setColor(QPalette::Base, QColor(30, 30, 32));
        QApplication::setPalette(dark);
    }
    ~SpokenFirst() override {
        longLanguage.reset();
        speakLanguage(u"en"_s);
        QApplication::setPalette({});
    }
    std::optional<LongLanguage> longLanguage;
};

class Languages : public SpokenFirst, public EditorTest {
  protected:
    void look(QWidget& top, const std::string& where);
    void visit(Act act, const char* where);
};

QString textOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
    return {};
}

// Whether all but names of things and what Qt's own dialogs say is in brackets.
bool isMarked(const QWidget& widget, QString text) {
    static const QRegularExpression names(
        u"photo\\.png|Zelto|JPEG( "
        u"XL)?|[<]{2}[^>]*>>|#[0-9a-fA-F]+|\\[[^\\[\\]]*[\\]…]|(Ctrl|Shift|Alt)[\\w+]*|"
        "\\b(px|QR|EXIF|IPTC|F\\d+|Del|Space|Esc|Return|Pg\\w+|jpg|png|tif|bmp|gif|pdf|webp|avif|jxl|heic)\\b"_s);
    const auto* box = qobject_cast<const QDialogButtonBox*>(widget.parentWidget());
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (box != nullptr &&
        box->standardButton(const_cast<QAbstractButton*>(button)) != QDialogButtonBox::NoButton)
        return true;
    return !text.remove(names).remove(names).contains(QRegularExpression(u"\\p{L}{2,}"_s));
}

double luminance(QRgb color) {
    const auto linear = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// Of what lies on the most frequent colour, the strongest: a letter's edges are mixed with its ground. As WCAG 2 counts.
double contrastOf(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
    }
    const auto ground =
        luminance(std::ranges::max_element(counts, {}, [](auto& row) { return row.second; })->first);
    double most = 1;
    for (const auto& [color, count] : counts) {
        const double light = luminance(color);
        most = std::max(most, (std::max(light, ground) + 0.05) / (std::min(light, ground) + 0.05));
    }
    return most;
}

// What a screen reader is told of `item` and of all below it.
void listen(QAccessibleInterface* item, const std::string& where, int depth = 0) {
    using Role = QAccessible::Role;
    static const QList<Role> controls = {
        Role::PushButton,  Role::CheckBox,     Role::RadioButton, Role::ComboBox, Role::EditableText,
        Role::Dial,        Role::SpinBox,      Role::Slider,      Role::List,     Role::ListItem,
        Role::ProgressBar, Role::Dialog,       Role::ButtonMenu,  Role::MenuItem, Role::Canvas,
        Role::Graphic,     Role::ColorChooser, Role::Window};
    if (item == nullptr || !item->isValid() || depth > 40 || item->state().invisible) return;
    const auto* widget = qobject_cast<const QWidget*>(item->object());
    // What empties a field is Qt's own and nameless; Backspace does the same.
    if (widget != nullptr && widget->inherits("QLineEditIconButton")) return;
    // The field inside of a number or of a choice is told as the whole of it.
    const QObject* whole = widget != nullptr ? widget->parent() : nullptr;
    const auto isIn = [&](const char* name) { return whole != nullptr && whole->inherits(name); };
    const bool isPart = isIn("QAbstractSpinBox") || isIn("QComboBox") || isIn("QComboBoxPrivateContainer");
    const bool takesKeys = widget != nullptr && widget->isEnabled() && widget->focusProxy() == nullptr &&
                           (widget->focusPolicy() & Qt::TabFocus) != 0;
    if (!isPart && (takesKeys || controls.contains(item->role()))) {
        const std::string what =
            where + ": " + (widget != nullptr ? widget->metaObject()->className() : "an item");
        const QString name = item->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty()) << what << " has no name";
        EXPECT_FALSE(item->role() == Role::SpinBox && name.endsWith(u':'))
            << what << " has the name " << qPrintable(name);
        EXPECT_TRUE(!takesKeys || controls.contains(item->role()))
            << what << " has the role " << item->role();
    }
    for (int i = 0; i < std::min(item->childCount(), 60); ++i) listen(item->child(i), where, depth + 1);
}

void checkMnemonics(QStringList texts, const QList<QAction*>& actions, const std::string& where) {
    for (const QAction* action : actions) texts.append(action->text());
    QHash<QKeySequence, QString> taken;
    for (const QString& text : texts) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (key.isEmpty()) continue;
        EXPECT_FALSE(taken.contains(key))
            << where << ": " << qPrintable(taken[key]) << " and " << qPrintable(text);
        taken[key] = text;
    }
}

void Languages::look(QWidget& top, const std::string& where) {
    QCoreApplication::processEvents();
    for (const auto* animation : top.findChildren<QAbstractAnimation*>())
        EXPECT_EQ(animation->duration(), 0) << where << ": something moves by itself";
    const QImage seen = top.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCoreApplication::sendPostedEvents(nullptr,
                                       QEvent::LayoutRequest);  // a photo may just have told its size
    QStringList mnemonics;
    for (QWidget* widget : top.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &top ||
            qobject_cast<QToolBar*>(widget->parentWidget()))
            continue;
        const QString text = textOf(*widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto* combo = qobject_cast<const QComboBox*>(widget);
        const std::string what =
            where + ": “" + text.toStdString() + "” (" + widget->metaObject()->className() + ") ";
        if (longLanguage && (where != "tips" || label == nullptr)) {
            QStringList all = {text, widget->toolTip(), widget->accessibleName(),
                               widget->accessibleDescription()};
            for (int i = 0; combo != nullptr && !combo->isEditable() && i < combo->count(); ++i)
                all.append(combo->itemText(i));
            for (const QString& each : all)
                EXPECT_TRUE(isMarked(*widget, each)) << what << "“" << qPrintable(each) << "” is not marked";
        }
        if (text.isEmpty()) continue;
        if (widget->isEnabled()) mnemonics.append(text);
        const bool wraps = label != nullptr && label->wordWrap();
        const int wanted = wraps ? label->heightForWidth(label->width()) : widget->minimumSizeHint().width();
        const int given = wraps ? label->height() : widget->width();
        EXPECT_LE(wanted, given + 1) << what << "is cut";
        const QRect place(widget->mapTo(&top, QPoint()), widget->size());
        const bool isWhole =
            seen.rect().contains(place) && widget->visibleRegion().boundingRect() == widget->rect();
        if (!widget->isEnabled() || !isWhole || qobject_cast<QGroupBox*>(widget)) continue;
        const double contrast = contrastOf(seen.copy(place));
        const auto* tool = qobject_cast<const QToolButton*>(widget);
        const bool isPicture = tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
        EXPECT_GE(contrast, isPicture && !tool->icon().isNull() ? 3.0 : 4.5) << what;
    }
    checkMnemonics(mnemonics, &top == &window ? window.menuBar()->actions() : QList<QAction*>(), where);
    listen(QAccessible::queryAccessibleInterface(&top), where);
}

void Languages::visit(Act act, const char* where) {
    const auto came = whenAnyOpened([&](QWidget& dialog) {
        look(dialog, where);
        dialog.close();
        return true;
    });
    window.actions()[act]->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return *came; })) << where;
}

TEST_P(Languages, EveryPlaceIsMarkedHasRoomAndCanBeReadAndHeard) {
    window.resize(GetParam().size);
    look(window, "the empty stack");
    const std::pair<Act, const char*> pages[] = {
        {Act::AddText, "text"},     {Act::AddShape, "shape"},     {Act::AddQrCode, "QR code"},
        {Act::AddFilter, "filter"}, {Act::AddEffects, "effects"}, {Act::AddCopyright, "copyright"}};
    for (const auto& [act, where] : pages) edit(act, [&, where = where](QWidget&) { look(window, where); });
    const std::pair<Act, const char*> dialogs[] = {{Act::Start, "output options"},
                                                   {Act::AddFolder, "add folder"},
                                                   {Act::OpenSettings, "settings"},
                                                   {Act::SaveSettingsAs, "save"},
                                                   {Act::ImportSettings, "import"},
                                                   {Act::ExportSettings, "export"},
                                                   {Act::Tips, "tips"}};
    for (const auto& [act, where] : dialogs) visit(act, where);
    window.actions()[Act::Contacts]->trigger();
    look(window, "contact view");
    for (const QMenu* menu : window.menuBar()->findChildren<QMenu*>())
        checkMnemonics({}, menu->actions(), "menu " + menu->title().toStdString());
    for (const QAction* action : window.menuBar()->actions())
        EXPECT_TRUE(!longLanguage || isMarked(window, action->text())) << qPrintable(action->text());
    if (QApplication::isRightToLeft()) {
        edit(Act::AddText, [](QWidget& page) {
            const auto left = [&](const char* cell) { return control(page, cell).mapToGlobal(QPoint()).x(); };
            EXPECT_LT(left("Cell1"), left("Cell3")) << "the photo's left is left everywhere";
        });
    }
    EXPECT_EQ(QApplication::isRightToLeft(), GetParam().language == std::string_view("ar"));
}

INSTANTIATE_TEST_SUITE_P(Scenes, Languages,
                         ::testing::Values(Scene{"long"}, Scene{"long", false, {558, 350}}, Scene{"de"},
                                           Scene{"ar"}, Scene{"en", true}));

}  // namespace
}  // namespace zelto
