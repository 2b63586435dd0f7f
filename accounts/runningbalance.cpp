#include "accounts/runningbalance.h"

#include "core/connection.h"
#include "core/rounding.h"

#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace medistock::accounts {

namespace {

QString name(const char *text)
{
    return QString::fromLatin1(text);
}

// "select <balance> from <table> where <chain> <more> order by <date> desc,id desc limit 1"
QString lastRowSql(const RunningBook &book, const QString &more)
{
    return QStringLiteral("select %1 from %2 where %3%4 order by %5 desc,id desc limit 1")
        .arg(name(book.balance), name(book.table), name(book.chain), more, name(book.date));
}

double firstNumber(core::Connection &connection, const QString &sql, const QVariantList &params)
{
    return connection.firstValue(sql, params).toDouble();
}

} // namespace

const RunningBook &ledgerBook()
{
    static const RunningBook book { "jxc_ysyfk", "k_ljje", "k_rq",
        "coalesce(k_qcje,0)+coalesce(k_yfje,0)-coalesce(k_sfje,0)", "k_type=? and k_ghskh=?",
        "k_type,k_ghskh" };
    return book;
}

const RunningBook &invoiceBook()
{
    static const RunningBook book { "jxc_fpdjb", "fp_ljje", "fp_rq",
        "coalesce(fp_qcje,0)+coalesce(fp_yfje,0)-coalesce(fp_kpje,0)",
        "fp_check<>0 and fp_type=? and fp_ghskh=?", "fp_type,fp_ghskh" };
    return book;
}

const RunningBook &cashBook()
{
    static const RunningBook book { "jxc_xjyh", "xj_ljje", "xj_rq", "coalesce(xj_je,0)",
        "xj_chk='1' and xj_kmmc=?", "xj_kmmc" };
    return book;
}

double balanceAsOf(core::Connection &connection, const RunningBook &book, const QVariantList &chain,
    const QString &date, qint64 beforeId)
{
    QVariantList params = chain;
    params.append(date);
    QString more = QStringLiteral(" and %1<=?").arg(name(book.date));
    if (beforeId != 0) {
        more += QStringLiteral(" and id<?");
        params.append(beforeId);
    }
    return firstNumber(connection, lastRowSql(book, more), params);
}

double lastBalance(core::Connection &connection, const RunningBook &book, const QVariantList &chain)
{
    return firstNumber(connection, lastRowSql(book, QString()), chain);
}

double rerunFrom(core::Connection &connection, const RunningBook &book, const QVariantList &chain,
    const QString &date)
{
    QVariantList params = chain;
    params.append(date);
    const double opening = firstNumber(
        connection, lastRowSql(book, QStringLiteral(" and %1<?").arg(name(book.date))), params);

    // One statement walks the chain from the date: the window sum runs in date-then-id order,
    // which is the order the rows are read in everywhere else. Balances are kept to the eight
    // places their columns declare, so binary remainders never pile up along the chain.
    const QString table = name(book.table);
    const QString balance = name(book.balance);
    const QString update
        = QStringLiteral(
            "update %1 set %2=w.bal from (select id,round(?+sum(%3) over (order by %4,id rows "
            "between unbounded preceding and current row)+0.000000001,8) as bal from %1 where %5 "
            "and %4>=?) as w "
            "where %1.id=w.id and (%1.%2 is null or %1.%2<>w.bal)")
              .arg(table, balance, name(book.delta), name(book.date), name(book.chain));
    QVariantList updateParams { opening };
    updateParams.append(chain);
    updateParams.append(date);
    connection.exec(update, updateParams);

    const QVariant last = connection.firstValue(
        lastRowSql(book, QStringLiteral(" and %1>=?").arg(name(book.date))), params);
    return last.isValid() ? last.toDouble() : opening;
}

QList<QVariantList> chainsOf(core::Connection &connection, const RunningBook &book)
{
    const QString keys = name(book.keys);
    const int count = int(keys.count(QLatin1Char(',')) + 1);
    QList<QVariantList> chains;
    connection.forEach(
        QStringLiteral("select %1 from %2 group by %1 order by %1").arg(keys, name(book.table)), {},
        [&](const QSqlQuery &q) {
            QVariantList chain;
            for (int i = 0; i < count; ++i)
                chain.append(q.value(i).toString());
            chains.append(chain);
        });
    return chains;
}

QList<BalanceDrift> balanceDrifts(
    core::Connection &connection, const RunningBook &book, const QVariantList &chain)
{
    QList<BalanceDrift> drifts;
    double sum = 0;
    connection.forEach(QStringLiteral("select id,%1,%2,%3 from %4 where %5 order by %1,id")
                           .arg(name(book.date), name(book.delta), name(book.balance),
                               name(book.table), name(book.chain)),
        chain, [&](const QSqlQuery &q) {
            sum += q.value(2).toDouble();
            const double computed = core::roundTo(sum, 8);
            const double stored = q.value(3).toDouble();
            if (q.value(3).isNull() || std::abs(stored - computed) > 0.000001)
                drifts.append({ q.value(0).toLongLong(), q.value(1).toString(), stored, computed });
        });
    return drifts;
}

} // namespace medistock::accounts
