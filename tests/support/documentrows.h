#pragma once

#include <QHash>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::test {

// Master rows that goods documents are entered against, written directly with every counter a
// posting adds to already 0.

struct GoodsRow
{
    QString code {};
    QString name {};
    QString unit = QStringLiteral("盒"); // dw_name, the base unit
    double average = 0; // g_pjjj
    bool disabled = false; // g_jy
    QString barcode {}; // g_sptm
};
void addGoods(core::Connection &connection, const GoodsRow &goods);
// A further unit of the goods with its factor (base units per unit) in jxc_goodsdw.
void addGoodsUnit(core::Connection &connection, const QString &goods, const QString &unit,
    double factor, const QString &barcode = {});
void addSupplier(
    core::Connection &connection, const QString &code, const QString &name, bool forbidden = false);
void addCustomer(
    core::Connection &connection, const QString &code, const QString &name, bool forbidden = false);
void addWarehouse(core::Connection &connection, const QString &code, const QString &name);
void addEmployee(core::Connection &connection, const QString &code, const QString &name);

// An operator with a role of his own whose right strings are given per area ("cggl" ->
// "000001"); areas not given have no right at all. Adds through the session's operator.
void addOperatorWithRights(
    shell::Session &session, const QString &name, const QHash<QString, QString> &strings);

} // namespace medistock::test
