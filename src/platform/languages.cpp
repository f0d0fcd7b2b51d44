// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/languages.h"

#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QVariant>

// Resources of a static library register themselves only when they are asked to, outside any namespace.
static void registerTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace zelto {
namespace {

constexpr QLatin1String SourceLanguage("en");
constexpr const char* LanguageProperty = "spokenLanguage";  // of the application object

QString translationFile(const QString& language) {
    static const bool registered = (registerTranslations(), true);
    Q_UNUSED(registered)
    return QStringLiteral(":/translations/zelto_%1.qm").arg(language);
}

void install(const QString& file) {
    auto* const translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(file) || !QCoreApplication::installTranslator(translator)) delete translator;
}

// Whether the environment asks for no language at all; LANGUAGE does not count then.
bool isPlainLocale() {
    for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray locale = qgetenv(variable);
        if (!locale.isEmpty()) return locale == "C" || locale == "POSIX" || locale.startsWith("C.");
    }
    return true;
}

}  // namespace

QString spokenLanguage() {
    const QVariant spoken = QCoreApplication::instance()->property(LanguageProperty);
    return spoken.isValid() ? spoken.toString() : QString(SourceLanguage);
}

QString languageFor(const QStringList& wanted) {
    for (const QString& name : wanted) {
        const QString language = name.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
        if (QFile::exists(translationFile(language))) return language;
    }
    return SourceLanguage;
}

void speakLanguage(const QString& language) {
    for (QTranslator* const earlier :
         QCoreApplication::instance()->findChildren<QTranslator*>(Qt::FindDirectChildrenOnly)) {
        QCoreApplication::removeTranslator(earlier);
        delete earlier;
    }
    install(QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
            QStringLiteral("/qtbase_%1.qm").arg(language));
    install(translationFile(language));
    QCoreApplication::instance()->setProperty(LanguageProperty, language);
    // A program that only prints has no layout, and none of the object that keeps its direction.
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}

void speakUsersLanguage() {
    speakLanguage(isPlainLocale() ? QString(SourceLanguage) : languageFor(QLocale::system().uiLanguages()));
}

}  // namespace zelto
