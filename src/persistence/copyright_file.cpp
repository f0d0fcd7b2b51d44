// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/copyright_file.h"

#include "persistence/xml_fields.h"
#include "platform/application_folders.h"
#include "platform/whole_file.h"

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;
using zelto::toText;

constexpr auto CopyrightRoot = "Copyright"_L1;
// A switch that only the text "False" turns off, so that the "0" this program writes reads back as switched on.
template <class Bool>
struct OnUnlessFalse {
    Bool& value;
};
template <class Bool>
OnUnlessFalse(Bool&) -> OnUnlessFalse<Bool>;

template <class Bool>
QString toText(const OnUnlessFalse<Bool>& on) {
    return toText(on.value);
}
void fromText(const QString& text, OnUnlessFalse<bool> on) {
    on.value = text != QLatin1String("False");
}

template <class Io, class M>
void copyrightFields(Io& io, M& m) {
    io.field("CopyrightText"_L1, m.CopyrightText);
    io.field("CopyrightTextStatus"_L1, m.CopyrightTextStatus);
    io.field("CopyrightURL"_L1, m.CopyrightURL);
    io.field("Creator"_L1, m.Creator);
    io.field("CreatorAddress"_L1, m.CreatorAddress);
    io.field("CreatorCity"_L1, m.CreatorCity);
    io.field("CreatorCountry"_L1, m.CreatorCountry);
    io.field("CreatorJobTitle"_L1, m.CreatorJobTitle);
    io.field("CreatorMail"_L1, m.CreatorMail);
    io.field("CreatorPhone"_L1, m.CreatorPhone);
    io.field("CreatorPostalCode"_L1, m.CreatorPostalCode);
    io.field("CreatorState"_L1, m.CreatorState);
    io.field("CreatorWebsite"_L1, m.CreatorWebsite);
    io.field("RightsUsageTerms"_L1, m.RightsUsageTerms);
    io.field("Enabled"_L1, OnUnlessFalse{m.Enabled});
}

}  // namespace

Result<QString> copyrightFilePath() {
    return applicationFolder(ZeltoFolder).map([](const QString& folder) {
        return folder + CopyrightFileName;
    });
}

Result<void> SaveCopyRightMetadata(const CopyRightMetaData& metadata, const QString& path) {
    return writeWholeFile(path, writeXml(CopyrightRoot, [&metadata](QXmlStreamWriter& writer) {
                              FieldWriter fields(writer);
                              copyrightFields(fields, metadata);
                          }));
}

Result<void> LoadMetadata(CopyRightMetaData& metadata, const QString& path) {
    const Result<XmlElement> root = readXmlFile(path).and_then(
        [&path](const QByteArray& document) { return readXml(document, CopyrightRoot, path); });
    if (!root) {
        if (root.error().code == ErrorCode::NotFound) return {};
        return tl::unexpected(root.error());
    }
    FieldReader fields(*root);
    copyrightFields(fields, metadata);
    return {};
}

Result<CopyRightMetaData> copyrightToUse(const QString& path) {
    CopyRightMetaData metadata;
    metadata.Enabled = true;
    return LoadMetadata(metadata, path).map([&metadata] { return metadata; });
}

}  // namespace zelto
