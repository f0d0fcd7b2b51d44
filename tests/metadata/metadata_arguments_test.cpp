// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_arguments.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

QStringList words(const char* text) {
    return QString::fromUtf8(text).split(u' ');
}

MetadataRequest request(std::int64_t choice) {
    return {QStringLiteral("/o.jpg"), QStringLiteral("/s.jpg"), choice, 299.5, std::nullopt};
}

TEST(MetadataArguments, ListsOfTheFourChoices) {
    const std::pair<std::int64_t, const char*> rows[] = {
        {0, "-overwrite_original -all= -tagsfromfile /s.jpg -Orientation=1 -n /o.jpg"},
        {1,
         "-overwrite_original -all= -tagsfromfile /s.jpg -Artist -Copyright -by-line -by-linetitle "
         "-Copyrightnotice "
         "-AuthorsPosition -Webstatement -Creator -Rights -Usageterms -CreatorCountry -CreatorCity "
         "-CreatorWorkEmail -CreatorWorkURL -CreatorPostalCode -CreatorWorkTelephone -CreatorRegion "
         "-CreatorAddress -CopyRightStatus -jfif:Xresolution -jfif:Yresolution -jfif:Xresolution=299.500000 "
         "-jfif:Yresolution=299.500000 -Xresolution=299.500000 -Yresolution=299.500000 -Orientation=1 -n "
         "-jfif:Xresolution=299.500000 -jfif:Yresolution=299.500000 /o.jpg"},
        {2,
         "-overwrite_original -all= -tagsfromfile /s.jpg -Orientation=1 -n -geotag= "
         "-jfif:Xresolution=299.500000 "
         "-jfif:Yresolution=299.500000 /o.jpg"},
        {3, "-overwrite_original -all= -jfif:Xresolution=299.500000 -jfif:Yresolution=299.500000 /o.jpg"},
    };
    for (const auto& [choice, list] : rows)
        EXPECT_EQ(metadataArguments(request(choice)), words(list)) << choice;
}

TEST(MetadataArguments, CopyrightFieldsComeBeforeTheOrientationWhereTheyAreWritten) {
    const auto q = [](const char* text) { return QString::fromLatin1(text); };
    const CopyRightMetaData c{true,         q("text"),    q("Copyrighted"), q("url"),     q("terms"),
                              q("creator"), q("address"), q("city"),        q("country"), q("job"),
                              q("mail"),    q("phone"),   q("code"),        q("state"),   q("site")};
    MetadataRequest r = request(0);
    r.copyright = c;
    EXPECT_EQ(
        metadataArguments(r),
        words("-overwrite_original -all= -tagsfromfile /s.jpg -Artist=creator -by-line=creator "
              "-Creator=creator -Rights=creator -Copyright=text -Copyrightnotice=text -by-linetitle=job "
              "-AuthorsPosition=job -CreatorWorkURL=site -Webstatement=url -Usageterms=terms "
              "-CreatorCountry=country -CreatorCity=city -CreatorWorkEmail=mail -CreatorPostalCode=code "
              "-CreatorWorkTelephone=phone -CreatorRegion=state -CreatorAddress=address "
              "-CopyRightStatus=Protected -Orientation=1 -n /o.jpg"));
    r.copyright->Enabled = false;
    EXPECT_EQ(metadataArguments(r), metadataArguments(request(0)));
    r.copyright = c;
    r.exifDataToInclude = 3;
    EXPECT_EQ(metadataArguments(r), metadataArguments(request(3)));
}

TEST(MetadataArguments, SecondCommandOnlyWhereTheFirstMissesItsAim) {
    MetadataRequest protectedOne = request(0);
    protectedOne.copyright.emplace().Enabled = true;
    EXPECT_EQ(mendArguments(protectedOne, {}), QStringList());
    protectedOne.copyright->CopyrightTextStatus = QStringLiteral("Copyrighted");
    MetadataRequest disabled = protectedOne;
    disabled.copyright->Enabled = false;
    MetadataRequest otherWord = protectedOne;
    otherWord.copyright->CopyrightTextStatus = QStringLiteral("Mine");
    MetadataRequest excluded = protectedOne;
    excluded.exifDataToInclude = 3;
    const char* const inches =
        "-overwrite_original -jfif:Xresolution=299.500000 -jfif:Yresolution=299.500000 "
        "-jfif:ResolutionUnit=inches";
    const char* const tiffInches =
        "-ifd0:Xresolution=299.500000 -ifd0:Yresolution=299.500000 "
        "-ifd0:ResolutionUnit=inches /o.jpg";
    const struct {
        MetadataRequest request;
        MetadataFaults faults;
        std::string list;
    } rows[] = {
        {request(0), {}, ""},
        {request(2), {}, ""},
        {request(0),
         {.pictures = true},
         "-overwrite_original -xmp:Thumbnails= -xmp:ThumbnailImage= "
         "-xmp:PageImage= -xmp:ImageData= -xmp:DepthImage= -PreviewImage= "
         "-JpgFromRaw= -OtherImage= /o.jpg"},
        {protectedOne, {}, "-overwrite_original -xmp-plus:CopyrightStatus#=CS-PRO /o.jpg"},
        {disabled, {}, ""},
        {otherWord, {}, ""},
        {excluded, {}, ""},
        {request(0), {.resolution = true}, std::string(inches) + ' ' + tiffInches},
        {request(3), {.resolution = true}, std::string(inches) + " /o.jpg"},
        {request(3), {.resolution = true, .isJpeg = false}, std::string("-overwrite_original ") + tiffInches},
    };
    for (const auto& row : rows)
        EXPECT_EQ(mendArguments(row.request, row.faults).join(u' ').toStdString(), row.list);
}

}  // namespace
}  // namespace zelto
