#include "core/connection.h"
#include "core/rounding.h"
#include "maintenance/checks.h"

namespace medistock::maintenance::detail {

namespace {

const accounts::RunningBook *const books[]
    = { &accounts::ledgerBook(), &accounts::invoiceBook(), &accounts::cashBook() };

// "客户 100001 某某" / "供货商 …" from a party kind and code.
QString partyLabel(core::Connection &db, const QString &kind, const QString &code)
{
    const bool customer = kind == QLatin1String("kh");
    const QString name
        = db.firstText(customer ? QStringLiteral("select kh_name from jxc_khxx where kh_sn=?")
                                : QStringLiteral("select ghs_name from jxc_ghsxx where ghs_sn=?"),
            { code });
    return (customer ? QStringLiteral("客户 ") : QStringLiteral("供货商 ")) + code
        + (name.isEmpty() ? QString() : QLatin1Char(' ') + name);
}

QString chainLabel(core::Connection &db, const BalanceDrift &drift)
{
    if (drift.book == &accounts::cashBook())
        return QStringLiteral("现金银行帐（帐户 %1）").arg(drift.chain.value(0).toString());
    const QString party
        = partyLabel(db, drift.chain.value(0).toString(), drift.chain.value(1).toString());
    if (drift.book == &accounts::invoiceBook())
        return QStringLiteral("发票登记（%1）").arg(party);
    return QStringLiteral("应收应付帐（%1）").arg(party);
}

} // namespace

QList<BalanceDrift> balanceDrifts(core::Connection &db, int &rowsChecked)
{
    QList<BalanceDrift> drifts;
    for (const accounts::RunningBook *book : books) {
        rowsChecked += db.firstValue(QStringLiteral("select count(*) from %1")
                                         .arg(QString::fromLatin1(book->table)))
                           .toInt();
        for (const QVariantList &chain : accounts::chainsOf(db, *book))
            for (const accounts::BalanceDrift &row : accounts::balanceDrifts(db, *book, chain))
                drifts.append({ book, chain, row.id, row.date, row.stored, row.computed });
    }
    return drifts;
}

QString describe(core::Connection &db, const BalanceDrift &drift)
{
    const QString table = QString::fromLatin1(drift.book->table);
    const QString number
        = db.firstText(QStringLiteral("select gl_djh from %1 where id=?").arg(table), { drift.id });
    return QStringLiteral("%1 %2 %3：余额 帐上 %4，重算 %5")
        .arg(chainLabel(db, drift), number, drift.date, core::plainNumber(drift.stored),
            core::plainNumber(drift.computed));
}

} // namespace medistock::maintenance::detail
