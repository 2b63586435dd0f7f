#include "tests/support/documentrows.h"

#include "core/connection.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "shell/session.h"

#include <gtest/gtest.h>

namespace medistock::test {

void addGoods(core::Connection &connection, const GoodsRow &goods)
{
    connection.exec(
        QStringLiteral("insert into jxc_goods (g_sn,g_name,g_jm,dw_name,g_kc,g_pjjj,g_jj,g_gdcbj,"
                       "g_xzsl,g_cgpl,g_xspl,g_scjj,ghs_sn,g_jy,g_sptm) "
                       "values (?,?,?,?,0,?,0,0,0,0,0,0,'',?,?)"),
        { goods.code, goods.name, QStringLiteral("YP"), goods.unit, goods.average,
            goods.disabled ? 1 : 0, goods.barcode });
}

void addGoodsUnit(core::Connection &connection, const QString &goods, const QString &unit,
    double factor, const QString &barcode)
{
    connection.exec(QStringLiteral("insert into jxc_goodsdw (g_sn,dw_name,g_zhxs,g_sptm) values "
                                   "(?,?,?,?)"),
        { goods, unit, factor, barcode });
}

void addSupplier(
    core::Connection &connection, const QString &code, const QString &name, bool forbidden)
{
    connection.exec(QStringLiteral("insert into jxc_ghsxx (ghs_sn,ghs_name,ghs_lwje,ghs_default,"
                                   "ghs_forbid) values (?,?,0,0,?)"),
        { code, name, forbidden ? 1 : 0 });
}

void addCustomer(
    core::Connection &connection, const QString &code, const QString &name, bool forbidden)
{
    connection.exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_lwje,kh_default,"
                                   "kh_forbid) values (?,?,0,0,?)"),
        { code, name, forbidden ? 1 : 0 });
}

void addWarehouse(core::Connection &connection, const QString &code, const QString &name)
{
    connection.exec(QStringLiteral("insert into jxc_ckxx (ck_sn,ck_name,ck_default) values "
                                   "(?,?,0)"),
        { code, name });
}

void addEmployee(core::Connection &connection, const QString &code, const QString &name)
{
    connection.exec(QStringLiteral("insert into jxc_user (u_sn,u_name,u_cgpl,u_xspl,u_jy) values "
                                   "(?,?,0,0,0)"),
        { code, name });
}

void addOperatorWithRights(
    shell::Session &session, const QString &name, const QHash<QString, QString> &strings)
{
    shell::RoleDraft draft;
    draft.name = name + QStringLiteral("的角色");
    for (const shell::RightArea &area : shell::rightAreas()) {
        const QString given = strings.value(QString::fromLatin1(area.column));
        QList<bool> ticked;
        for (qsizetype i = 0; i < qsizetype(area.operations.size()); ++i)
            ticked.append(i < given.size() && given.at(i) == QLatin1Char('1'));
        draft.ticked.insert(QString::fromLatin1(area.column), ticked);
    }
    const auto role = shell::saveRole(session, draft);
    ASSERT_TRUE(role.ok()) << role.message().toStdString();
    const auto added = shell::addOperator(session, name, role.value());
    ASSERT_TRUE(added.ok()) << added.message().toStdString();
}

} // namespace medistock::test
