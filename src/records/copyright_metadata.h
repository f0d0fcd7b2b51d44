// SPDX-License-Identifier: GPL-3.0-or-later
// The copyright and creator texts written into output files. Absent texts are null and are not written.
#pragma once

#include <QString>

namespace zelto {

struct CopyRightMetaData {
    bool Enabled = false;
    QString CopyrightText;
    QString CopyrightTextStatus;  // "Copyrighted", "Protected" or "Unknown"
    QString CopyrightURL;
    QString RightsUsageTerms;
    QString Creator;
    QString CreatorAddress;
    QString CreatorCity;
    QString CreatorCountry;
    QString CreatorJobTitle;
    QString CreatorMail;
    QString CreatorPhone;
    QString CreatorPostalCode;
    QString CreatorState;
    QString CreatorWebsite;

    bool operator==(const CopyRightMetaData&) const = default;
};

}  // namespace zelto
