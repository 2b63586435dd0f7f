#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::members {

// The points settings "积分设置": the one row of jxc_jfsz, read whenever a rule needs it (one
// workstation's change reaches the others at their next posting). The columns that no rule reads
// (jf_djjf, jf_jsrjf ...) are kept as they stand.
struct PointsSettings
{
    double amountPerPoint = 0; // jf_mfje "每积一分的消费金额"; 0 (or empty) switches points off
    bool cardEarnsPoints = true; // jf_jfgz: "0" leaves the part paid from the card out
    bool carryRemainder = false; // jf_yelj: the remainder below one point counts next time
    int multiple = 0; // jf_dbjf: the factor of the date range, 0 = off
    QString multipleFrom; // jf_dbrq1 "yyyy-MM-dd", inclusive
    QString multipleTo; // jf_dbrq2, compared as text with the sale time
    int birthdayFactor = 0; // jf_srjfbs, 0 = off
    int birthdayRule = 0; // jf_srjflx: 0 the birthday itself, 1 within birthdayDays either side
    int birthdayDays = 0; // jf_srjfts

    bool pointsOff() const { return amountPerPoint == 0; }
};

PointsSettings loadPointsSettings(core::Connection &connection);

// Sets one setting by its column name from typed text; the refusal's message (not told) names
// what is wrong.
Outcome applyPointsSetting(PointsSettings &settings, const QString &column, const QString &value);

// The column names applyPointsSetting takes, in the order of the settings form.
QStringList pointsSettingColumns();
// The value of a setting as text, as applyPointsSetting reads it back.
QString pointsSettingText(const PointsSettings &settings, const QString &column);

// Checks and writes the settings (right "会员管理"); one transaction, logged.
Outcome savePointsSettings(const shell::Session &session, const PointsSettings &settings);

} // namespace medistock::members
