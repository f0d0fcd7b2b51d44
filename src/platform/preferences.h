// SPDX-License-Identifier: GPL-3.0-or-later
// The user's small persistent choices, kept from one start to the next. Any thread.
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <type_traits>

namespace zelto {

// A key and the type of what it holds.
template <class Value>
struct Preference {
    QLatin1String key;
};

// Every key there is.
namespace preference {
inline constexpr Preference<bool> ShowTips{QLatin1String("ShowTips")};
inline constexpr Preference<bool> FirstRun{QLatin1String("FirstRun")};
inline constexpr Preference<QString> SettingDirectory{QLatin1String("SettingDirectory")};
inline constexpr Preference<QString> AutoLoadSetting{QLatin1String("AutoLoadSetting")};  // a setting's name
// The setting file that held the stack on screen when the window closed; empty for an empty stack.
inline constexpr Preference<QString> StackAtClose{QLatin1String("Window/Stack")};
inline constexpr Preference<QString> LastImageDirectory{QLatin1String("LastImageDirectory")};
inline constexpr Preference<QString> LastLogoDirectory{QLatin1String("LastLogoDirectory")};
inline constexpr Preference<QString> LastOutDirectory{QLatin1String("LastOutDirectory")};
inline constexpr Preference<QByteArray> LastOutDirectoryData{QLatin1String("LastOutDirectoryData")};
inline constexpr Preference<qint64> LastAutoNumber{QLatin1String("LastAutoNumber")};
inline constexpr Preference<QString> LastDateFormat{QLatin1String("LastDateFormat")};
inline constexpr Preference<QString> VersionAddress{QLatin1String("VersionAddress")};
inline constexpr Preference<QString> DownloadAddress{QLatin1String("DownloadAddress")};
inline constexpr Preference<QByteArray> WindowGeometry{QLatin1String("Window/Geometry")};
inline constexpr Preference<QByteArray> WindowColumns{QLatin1String("Window/Columns")};
inline constexpr Preference<QByteArray> WindowStackColumn{QLatin1String("Window/StackColumn")};
// By the name of a group of the inspector, whether it is folded.
inline constexpr Preference<QVariantMap> FoldedGroups{QLatin1String("Inspector/Folded")};
inline constexpr Preference<QVariantMap> LastTextStyle{QLatin1String("Editors/LastText")};
inline constexpr Preference<QStringList> RecentColors{
    QLatin1String("Editors/RecentColors")};  // as "#rrggbbaa"
inline constexpr Preference<QString> LastAddedFolder{QLatin1String("AddFolder/Folder")};
inline constexpr Preference<bool> AddsSubFolders{QLatin1String("AddFolder/SubFolders")};
inline constexpr Preference<QString> LastSettingsFolder{QLatin1String("Settings/LastFolder")};  // of a copy
inline constexpr Preference<QSize> SavedSettingsSize{QLatin1String("Settings/Size")};
inline constexpr Preference<QSize> OutputOptionsSize{QLatin1String("OutputOptions/Size")};
}  // namespace preference

namespace detail {
QVariant preferenceValue(QLatin1String key);
void setPreferenceValue(QLatin1String key, const QVariant& value);  // an invalid value removes the key
}  // namespace detail

// What is stored; nothing where there is none.
template <class Value>
std::optional<Value> storedPreference(const Preference<Value>& preference) {
    const QVariant value = detail::preferenceValue(preference.key);
    if (!value.isValid() || !value.canConvert<Value>()) return std::nullopt;
    return value.value<Value>();
}

template <class Value>
void setPreference(const Preference<Value>& preference, const std::type_identity_t<Value>& value) {
    detail::setPreferenceValue(preference.key, QVariant::fromValue(value));
}

template <class Value>
void removePreference(const Preference<Value>& preference) {
    detail::setPreferenceValue(preference.key, {});
}

// Makes sure that what was set is on disk.
void flushPreferences();

}  // namespace zelto
