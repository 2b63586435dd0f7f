#include "members/settings.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QDate>
#include <QSqlRecord>

namespace medistock::members {

namespace {

const char *const columns[] = { "jf_mfje", "jf_jfgz", "jf_yelj", "jf_dbjf", "jf_dbrq1", "jf_dbrq2",
    "jf_srjfbs", "jf_srjflx", "jf_srjfts" };

// What the settings form calls each setting, for the messages.
QString labelOf(const QString &column)
{
    const std::pair<const char *, const char *> labels[] = { { "jf_mfje", "每积一分的消费金额" },
        { "jf_jfgz", "储值卡付款部分参与积分" }, { "jf_yelj", "积分后的消费余额累计到下次消费" },
        { "jf_dbjf", "积分倍数" }, { "jf_dbrq1", "多倍积分开始日期" },
        { "jf_dbrq2", "多倍积分结束日期" }, { "jf_srjfbs", "生日积分倍数" },
        { "jf_srjflx", "生日积分方式" }, { "jf_srjfts", "生日前后天数" } };
    for (const auto &[name, label] : labels)
        if (column == QLatin1String(name))
            return QString::fromUtf8(label);
    return column;
}

bool isDate(const QString &text)
{
    return QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
}

bool readBool(const QString &text, bool &ok)
{
    ok = true;
    if (text == QLatin1String("1") || text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (text == QLatin1String("0")
        || text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    ok = false;
    return false;
}

Outcome wholeNumber(const QString &column, const QString &text, int &target)
{
    bool ok = false;
    const int value = text.trimmed().isEmpty() ? 0 : text.trimmed().toInt(&ok);
    if ((!ok && !text.trimmed().isEmpty()) || value < 0)
        return Outcome::refused(texts::settingNotWholeNumber(labelOf(column), text));
    target = value;
    return Outcome::done();
}

// What the form cannot check field by field: the range of the multiple points.
Outcome checkTogether(const PointsSettings &s)
{
    if (s.multiple == 0)
        return Outcome::done();
    if (!isDate(s.multipleFrom) || !isDate(s.multipleTo))
        return Outcome::refused(texts::multipleRangeRequired());
    if (s.multipleFrom > s.multipleTo)
        return Outcome::refused(texts::multipleRangeReversed());
    return Outcome::done();
}

} // namespace

PointsSettings loadPointsSettings(core::Connection &connection)
{
    const QSqlRecord r = connection.firstRow(
        QStringLiteral("select jf_mfje,jf_jfgz,jf_yelj,jf_dbjf,jf_dbrq1,jf_dbrq2,jf_srjfbs,"
                       "jf_srjflx,jf_srjfts from jxc_jfsz order by id limit 1"));
    PointsSettings s;
    if (r.isEmpty())
        return s;
    s.amountPerPoint = r.value(0).toDouble();
    s.cardEarnsPoints = r.value(1).isNull() || r.value(1).toString() != QLatin1String("0");
    s.carryRemainder = r.value(2).toInt() != 0
        || r.value(2).toString().compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    s.multiple = r.value(3).toInt();
    s.multipleFrom = r.value(4).toString();
    s.multipleTo = r.value(5).toString();
    s.birthdayFactor = r.value(6).toInt();
    s.birthdayRule = r.value(7).toInt();
    s.birthdayDays = r.value(8).toInt();
    return s;
}

QStringList pointsSettingColumns()
{
    QStringList list;
    for (const char *column : columns)
        list.append(QString::fromLatin1(column));
    return list;
}

QString pointsSettingText(const PointsSettings &s, const QString &column)
{
    const auto flag = [](bool on) { return on ? QStringLiteral("1") : QStringLiteral("0"); };
    if (column == QLatin1String("jf_mfje"))
        return core::plainNumber(s.amountPerPoint);
    if (column == QLatin1String("jf_jfgz"))
        return flag(s.cardEarnsPoints);
    if (column == QLatin1String("jf_yelj"))
        return flag(s.carryRemainder);
    if (column == QLatin1String("jf_dbjf"))
        return QString::number(s.multiple);
    if (column == QLatin1String("jf_dbrq1"))
        return s.multipleFrom;
    if (column == QLatin1String("jf_dbrq2"))
        return s.multipleTo;
    if (column == QLatin1String("jf_srjfbs"))
        return QString::number(s.birthdayFactor);
    if (column == QLatin1String("jf_srjflx"))
        return QString::number(s.birthdayRule);
    if (column == QLatin1String("jf_srjfts"))
        return QString::number(s.birthdayDays);
    return QString();
}

Outcome applyPointsSetting(PointsSettings &s, const QString &column, const QString &value)
{
    const QString text = value.trimmed();
    bool ok = true;
    if (column == QLatin1String("jf_mfje")) {
        const double amount = text.isEmpty() ? 0 : text.toDouble(&ok);
        if (!ok || amount < 0)
            return Outcome::refused(texts::amountPerPointInvalid(value));
        s.amountPerPoint = amount;
    } else if (column == QLatin1String("jf_jfgz") || column == QLatin1String("jf_yelj")) {
        const bool on = readBool(text, ok);
        if (!ok)
            return Outcome::refused(texts::settingNotFlag(labelOf(column), value));
        (column == QLatin1String("jf_jfgz") ? s.cardEarnsPoints : s.carryRemainder) = on;
    } else if (column == QLatin1String("jf_dbrq1") || column == QLatin1String("jf_dbrq2")) {
        if (!text.isEmpty() && !isDate(text))
            return Outcome::refused(texts::settingNotDate(labelOf(column), value));
        (column == QLatin1String("jf_dbrq1") ? s.multipleFrom : s.multipleTo) = text;
    } else if (column == QLatin1String("jf_dbjf")) {
        return wholeNumber(column, text, s.multiple);
    } else if (column == QLatin1String("jf_srjfbs")) {
        return wholeNumber(column, text, s.birthdayFactor);
    } else if (column == QLatin1String("jf_srjfts")) {
        return wholeNumber(column, text, s.birthdayDays);
    } else if (column == QLatin1String("jf_srjflx")) {
        if (text != QLatin1String("0") && text != QLatin1String("1"))
            return Outcome::refused(texts::birthdayRuleInvalid(value));
        s.birthdayRule = text.toInt();
    } else {
        return Outcome::refused(texts::unknownSetting(column));
    }
    return Outcome::done();
}

Outcome savePointsSettings(const shell::Session &session, const PointsSettings &s)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    const Outcome valid = checkTogether(s);
    if (!valid)
        return core::refuse(session.ui(), valid.message());
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        const QVariantList values { s.amountPerPoint, s.cardEarnsPoints ? 1 : 0,
            s.carryRemainder ? 1 : 0, s.multiple, s.multipleFrom, s.multipleTo, s.birthdayFactor,
            s.birthdayRule, s.birthdayDays };
        const QString set = QStringLiteral(
            "jf_mfje=?,jf_jfgz=?,jf_yelj=?,jf_dbjf=?,jf_dbrq1=?,jf_dbrq2=?,jf_srjfbs=?,jf_srjflx=?,"
            "jf_srjfts=?");
        if (db.exec(QStringLiteral("update jxc_jfsz set ") + set, values) == 0)
            db.exec(QStringLiteral("insert into jxc_jfsz (jf_mfje,jf_jfgz,jf_yelj,jf_dbjf,jf_dbrq1,"
                                   "jf_dbrq2,jf_srjfbs,jf_srjflx,jf_srjfts) values "
                                   "(?,?,?,?,?,?,?,?,?)"),
                values);
        session.log(texts::settingsSavedLog());
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::members
