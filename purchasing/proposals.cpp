#include "purchasing/proposals.h"

#include "core/connection.h"
#include "purchasing/kinds.h"
#include "shell/session.h"

#include <QSqlRecord>

namespace medistock::purchasing {

double proposedPurchasePrice(
    const shell::Session &session, const QString &goods, const QString &unit)
{
    core::Connection &db = session.db();
    const QSqlRecord row = db.firstRow(
        QStringLiteral(
            "select dw_name,g_scjj,g_jj from jxc_goods where g_sn=? order by id limit 1"),
        { goods });
    if (row.isEmpty())
        return 0;
    double factor = 1;
    double unitPreset = 0;
    if (!unit.isEmpty() && unit != row.value(0).toString()) {
        const QSqlRecord further
            = db.firstRow(QStringLiteral("select g_zhxs,g_jj from jxc_goodsdw where g_sn=? and "
                                         "dw_name=? order by id limit 1"),
                { goods, unit });
        if (further.isEmpty() || further.value(0).toDouble() <= 0)
            return 0;
        factor = further.value(0).toDouble();
        unitPreset = further.value(1).toDouble();
    }
    const double last = row.value(1).toDouble();
    double price = row.value(2).toDouble() * factor;
    if (last > 0)
        price = last * factor;
    else if (unitPreset > 0)
        price = unitPreset;
    return session.params().roundPrice(price);
}

QList<documents::ReturnableLine> returnableReceiptLines(
    const shell::Session &session, const QString &receipt, const QString &returnNumber)
{
    return documents::returnableLines(
        session, purchaseReceipt().entry, receiptReturnLinks(), receipt, returnNumber);
}

} // namespace medistock::purchasing
