#include "masterdata/parties.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "masterdata/texts.h"
#include "shell/session.h"

#include <optional>

namespace medistock::masterdata {

namespace {

// Looks the names of the codes up in a master table; empty optional when one is unknown.
std::optional<QStringList> namesOf(
    core::Connection &db, const QString &sql, const QStringList &codes, QString &unknown)
{
    QStringList names;
    for (const QString &code : codes) {
        const QVariant name = db.firstValue(sql, { code });
        if (!name.isValid()) {
            unknown = code;
            return std::nullopt;
        }
        names.append(name.toString());
    }
    return names;
}

Outcome setList(const shell::Session &session, const QString &label, const QString &ownerSql,
    const QString &owner, const QString &nameSql, const QString &itemLabel,
    const QStringList &codes, const QString &updateSql)
{
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        if (!db.exists(ownerSql, { owner }))
            return core::refuse(session.ui(), texts::notFound(label, owner));
        QString unknown;
        const auto names = namesOf(db, nameSql, codes, unknown);
        if (!names)
            return core::refuse(session.ui(), texts::notFound(itemLabel, unknown));
        core::Transaction transaction(db);
        db.exec(updateSql, { commaList(codes), commaList(*names), owner });
        session.log(QStringLiteral("修改%1%2的%3").arg(label, owner, itemLabel));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace

QString commaList(const QStringList &items)
{
    QString text;
    for (const QString &item : items)
        text += item + QLatin1Char(',');
    return text;
}

QStringList splitCommaList(const QString &text)
{
    return text.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

Outcome setWarehouseOperators(
    const shell::Session &session, const QString &warehouse, const QStringList &operatorCodes)
{
    return setList(session, QStringLiteral("仓库"),
        QStringLiteral("select 1 from jxc_ckxx where ck_sn=?"), warehouse,
        QStringLiteral("select a_name from jxc_admin where a_sn=?"), QStringLiteral("操作员"),
        operatorCodes, QStringLiteral("update jxc_ckxx set ck_asn=?,ck_aname=? where ck_sn=?"));
}

Outcome setCustomerEmployees(
    const shell::Session &session, const QString &customer, const QStringList &employeeCodes)
{
    return setList(session, QStringLiteral("客户"),
        QStringLiteral("select 1 from jxc_khxx where kh_sn=?"), customer,
        QStringLiteral("select u_name from jxc_user where u_sn=?"), QStringLiteral("业务员"),
        employeeCodes, QStringLiteral("update jxc_khxx set kh_usn=?,kh_uname=? where kh_sn=?"));
}

} // namespace medistock::masterdata
