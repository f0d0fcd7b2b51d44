// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/copyright_file.h"

#include "persistence/xml_document.h"
#include "platform/application_folders.h"
#include "platform/whole_file.h"

#include <array>

namespace zelto {
namespace {

constexpr QLatin1String RootName("Copyright");
constexpr QLatin1String EnabledName("Enabled");

struct TextField {
    QLatin1String name;
    QString CopyRightMetaData::*text;
};

// The texts, in the order of their elements.
constexpr std::array<TextField, 14> TextFields = {{
    {QLatin1String("CopyrightText"), &CopyRightMetaData::CopyrightText},
    {QLatin1String("CopyrightTextStatus"), &CopyRightMetaData::CopyrightTextStatus},
    {QLatin1String("CopyrightURL"), &CopyRightMetaData::CopyrightURL},
    {QLatin1String("Creator"), &CopyRightMetaData::Creator},
    {QLatin1String("CreatorAddress"), &CopyRightMetaData::CreatorAddress},
    {QLatin1String("CreatorCity"), &CopyRightMetaData::CreatorCity},
    {QLatin1String("CreatorCountry"), &CopyRightMetaData::CreatorCountry},
    {QLatin1String("CreatorJobTitle"), &CopyRightMetaData::CreatorJobTitle},
    {QLatin1String("CreatorMail"), &CopyRightMetaData::CreatorMail},
    {QLatin1String("CreatorPhone"), &CopyRightMetaData::CreatorPhone},
    {QLatin1String("CreatorPostalCode"), &CopyRightMetaData::CreatorPostalCode},
    {QLatin1String("CreatorState"), &CopyRightMetaData::CreatorState},
    {QLatin1String("CreatorWebsite"), &CopyRightMetaData::CreatorWebsite},
    {QLatin1String("RightsUsageTerms"), &CopyRightMetaData::RightsUsageTerms},
}};

}  // namespace

Result<QString> copyrightFilePath() {
    return applicationFolder(ZeltoFolder).map([](const QString& folder) {
        return folder + CopyrightFileName;
    });
}

Result<void> SaveCopyRightMetadata(const CopyRightMetaData& metadata, const QString& path) {
    return writeWholeFile(path, writeXml(RootName, [&metadata](QXmlStreamWriter& writer) {
                              for (const TextField& field : TextFields) {
                                  writeXmlElement(writer, field.name, metadata.*field.text);
                              }
                              writeXmlElement(writer, EnabledName, QString::number(int{metadata.Enabled}));
                          }));
}

Result<void> LoadMetadata(CopyRightMetaData& metadata, const QString& path) {
    const Result<XmlElement> root = readXmlFile(path).and_then(
        [&path](const QByteArray& document) { return readXml(document, RootName, path); });
    if (!root) {
        if (root.error().code == ErrorCode::NotFound) return {};
        return tl::unexpected(root.error());
    }
    for (const XmlElement& element : root->children) {
        if (element.name == EnabledName) metadata.Enabled = element.text != QLatin1String("False");
        for (const TextField& field : TextFields) {
            if (element.name == field.name) metadata.*field.text = element.text;
        }
    }
    return {};
}

}  // namespace zelto
