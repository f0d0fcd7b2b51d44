// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/my_global_instance.h"

#include "platform/application_folders.h"
#include "platform/preferences.h"

#include <QXmlStreamReader>

namespace zelto {

Result<void> MyGlobalInstance::findSettingDirectory() {
    const Result<QString> folder = applicationFolder(SettingsFolder);
    if (!folder) return tl::unexpected<Error>(folder.error());
    SettingDirectory = *folder;
    setPreference(preference::SettingDirectory, SettingDirectory);
    return {};
}

void MyGlobalInstance::SetFirstRunInfo() {
    const auto earlier = storedPreference(preference::FirstRun);
    FirstRun = !earlier;
    if (earlier) return;
    SettingDirectory = storedPreference(preference::SettingDirectory).value_or(SettingDirectory);
    setPreference(preference::FirstRun, false);
    setPreference(preference::ShowTips, true);
    flushPreferences();
}

void MyGlobalInstance::ReadTips(const QByteArray& document) {
    Tips.clear();
    QXmlStreamReader xml(document);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        const QString id = xml.attributes().value(QLatin1String("ID")).toString();
        Tips.insert(id, xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
    }
    if (xml.hasError()) Tips.clear();
    GetShuffledArray(Tips.size());
    CurrentTip = 0;
}

void MyGlobalInstance::GetShuffledArray(qint64 count, const Draw& draw) {
    Nums.clear();
    for (qint64 i = 0; i < count; ++i)
        Nums.insert(QString::number(i), QString::number(i + draw() % (count - i)));
}

QString MyGlobalInstance::GetCurrentTip(qint64 index) const {
    return Tips.value(Nums.value(QString::number(index)));
}

QString MyGlobalInstance::nextTip() {
    CurrentTip = CurrentTip + 1 >= Tips.size() ? 0 : CurrentTip + 1;
    return GetCurrentTip(CurrentTip);
}

}  // namespace zelto
