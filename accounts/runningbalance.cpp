#include "accounts/runningbalance.h"

#include "core/connection.h"

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
        "coalesce(k_qcje,0)+coalesce(k_yfje,0)-coalesce(k_sfje,0)", "k_type=? and k_ghskh=?" };
    return book;
}

const RunningBook &invoiceBook()
{
    static const RunningBook book { "jxc_fpdjb", "fp_ljje", "fp_rq",
        "coalesce(fp_qcje,0)+coalesce(fp_yfje,0)-coalesce(fp_kpje,0)",
        "fp_check<>0 and fp_type=? and fp_ghskh=?" };
    return book;
}

const RunningBook &cashBook()
{
    static const RunningBook book { "jxc_xjyh", "xj_ljje", "xj_rq", "coalesce(xj_je,0)",
        "xj_chk='1' and xj_kmmc=?" };
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

} // namespace medistock::accounts
