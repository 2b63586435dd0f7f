#include "maintenance/verify.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "maintenance/checks.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "statistics/jxc.h"
#include "stock/ledger.h"
#include "stock/stores.h"

#include <QSet>
#include <QSqlRecord>

#include <cmath>

namespace medistock::maintenance {

namespace detail {

bool same(double stored, double computed)
{
    return std::abs(stored - computed) <= 0.000000005 * std::max(1.0, std::abs(computed));
}

QString goodsLabel(core::Connection &db, const QString &goods)
{
    const QString name
        = db.firstText(QStringLiteral("select g_name from jxc_goods where g_sn=?"), { goods });
    return QStringLiteral("商品 ") + goods + (name.isEmpty() ? QString() : QLatin1Char(' ') + name);
}

QString warehouseLabel(core::Connection &db, const QString &warehouse)
{
    const QString name
        = db.firstText(QStringLiteral("select ck_name from jxc_ckxx where ck_sn=?"), { warehouse });
    return QStringLiteral("仓库 ") + warehouse
        + (name.isEmpty() ? QString() : QLatin1Char(' ') + name);
}

} // namespace detail

namespace {

using namespace detail;
using Area = Finding::Area;

constexpr int steps = 5;

QString cancelledText()
{
    return QStringLiteral("库存核对已取消。");
}

// What the checks found, kept raw so that a repair mends exactly that.
struct Drifts
{
    QList<StockDrift> stock;
    QList<LedgerDrift> ledger;
    QList<BalanceDrift> balances;
};

void checkIntegrity(core::Connection &db, VerifyReport &report)
{
    if (db.dialect() != core::Dialect::Sqlite) {
        report.notes.append(QStringLiteral("数据库完整性由 PostgreSQL 服务器自行保证，未检查。"));
        return;
    }
    for (const QSqlRecord &row : db.rows(QStringLiteral("pragma integrity_check"))) {
        const QString text = row.value(0).toString();
        if (text != QLatin1String("ok"))
            report.findings.append(
                { Area::Integrity, QStringLiteral("数据库完整性检查：") + text, false });
    }
}

// The purchase-sales-stock difference over the whole ledger, as its screen shows it.
void checkDifferences(const shell::Session &session, VerifyReport &report)
{
    if (!shell::hasRight(session, QStringLiteral("tjgl"), 13)) {
        report.notes.append(QStringLiteral("没有“进销存统计”的权限，未做进销存差额核对。"));
        return;
    }
    core::Connection &db = session.db();
    const QSqlRecord span = db.firstRow(QStringLiteral(
        "select min(substr(gl_kdrq,1,10)),max(substr(gl_kdrq,1,10)) from jxc_goodslist"));
    if (span.isEmpty() || span.value(0).toString().isEmpty())
        return;
    const QString last = std::max(span.value(1).toString(), session.today());
    const statistics::JxcRequest request { { span.value(0).toString(), last }, {},
        statistics::Valuation::Cost };
    if (!statistics::buildJxcSummary(session, request))
        return;
    for (const statistics::JxcRow &row : statistics::jxcDifferences(session)) {
        const double expected = row.openingAmount + row.inAmount - row.outAmount;
        report.differences.append({ Area::Difference,
            QStringLiteral("进销存差额（%1）：期初加入库减出库 %2，流水账结存金额 %3，差额：%4")
                .arg(goodsLabel(db, row.goods),
                    core::plainNumber(session.params().roundAmount(expected)),
                    core::plainNumber(row.closingAmount), core::plainNumber(row.difference)),
            false });
    }
}

Drifts findDrifts(const shell::Session &session, VerifyReport &report)
{
    core::Connection &db = session.db();
    Drifts drifts;
    drifts.stock = stockDrifts(db);
    drifts.ledger = ledgerDrifts(session, report.ledgerRows);
    drifts.balances = balanceDrifts(db, report.balanceRows);
    for (const StockDrift &d : drifts.stock)
        report.findings.append({ d.area, describe(db, d), true });
    for (const LedgerDrift &d : drifts.ledger)
        report.findings.append({ Area::Ledger, describe(db, d), true });
    for (const BalanceDrift &d : drifts.balances)
        report.findings.append({ Area::Balance, describe(db, d), true });
    return drifts;
}

Result<VerifyReport> runChecks(const shell::Session &session, const VerifyProgress &progress)
{
    VerifyReport report;
    const auto goOn = [&](int done) { return !progress || progress(done, steps); };
    checkIntegrity(session.db(), report);
    if (!goOn(1))
        return Outcome::refused(cancelledText());
    findDrifts(session, report);
    if (!goOn(4))
        return Outcome::refused(cancelledText());
    checkDifferences(session, report);
    if (!goOn(5))
        return Outcome::refused(cancelledText());
    return report;
}

void mendStock(const shell::Session &session, const StockDrift &d, QStringList &changes)
{
    const double delta = d.ledger - d.stored;
    if (d.area == Area::Warehouse) {
        stock::applyWarehouseStock(session, { d.key.goods, d.key.warehouse, delta, 0, 0, 0 });
    } else if (d.area == Area::Batch) {
        if (delta > 0)
            stock::addBatchStock(session, d.key, delta);
        else
            stock::subtractBatchStock(session, d.key, -delta);
    } else if (!session.db().exists(
                   QStringLiteral("select 1 from jxc_goods where g_sn=?"), { d.key.goods })) {
        changes.append(describe(session.db(), d) + QStringLiteral("：没有该商品，未修复"));
        return;
    } else {
        stock::applyGoodsTotals(session, d.key.goods, delta, 0, 0);
    }
    changes.append(
        describe(session.db(), d) + QStringLiteral("：库存改为 ") + core::plainNumber(d.ledger));
}

QStringList mend(const shell::Session &session, const Drifts &drifts)
{
    core::Connection &db = session.db();
    QStringList changes;
    QSet<QString> chains;
    for (const LedgerDrift &d : drifts.ledger) {
        const QString chain = d.goods + QChar(0) + d.warehouse;
        if (!chains.contains(chain)) {
            chains.insert(chain);
            const stock::RerunSummary rerun = stock::rerunLedger(session, d.id, false);
            changes.append(
                QStringLiteral("流水账（%1，%2）：从 %3 起重算，改写 %4 行")
                    .arg(goodsLabel(db, d.goods), warehouseLabel(db, d.warehouse), d.date)
                    .arg(rerun.rowsRewritten));
        }
    }
    QSet<QString> balances;
    for (const BalanceDrift &d : drifts.balances) {
        QStringList key { QString::fromLatin1(d.book->table) };
        for (const QVariant &v : d.chain)
            key.append(v.toString());
        if (balances.contains(key.join(QChar(0))))
            continue;
        balances.insert(key.join(QChar(0)));
        const QString before = describe(db, d);
        accounts::rerunFrom(db, *d.book, d.chain, d.date);
        changes.append(before + QStringLiteral("：从 %1 起重算余额").arg(d.date));
    }
    for (const StockDrift &d : drifts.stock)
        mendStock(session, d, changes);
    return changes;
}

} // namespace

Result<VerifyReport> verifyBooks(const shell::Session &session, const VerifyProgress &progress)
{
    const Outcome allowed = shell::requireRight(session, "kcgl", 17);
    if (!allowed)
        return allowed;
    try {
        return runChecks(session, progress);
    } catch (const core::DbError &error) {
        session.ui().inform(error.message());
        return Outcome::failed(error.message());
    }
}

QStringList reportLines(const VerifyReport &report)
{
    QStringList lines;
    for (const Finding &finding : report.findings)
        lines.append(finding.text);
    if (lines.isEmpty())
        lines.append(QStringLiteral("没有发现问题。"));
    if (!report.differences.isEmpty())
        lines.append(QStringLiteral("进销存差额核对（可用进销存统计的“出库成本价同步”处理）："));
    for (const Finding &difference : report.differences)
        lines.append(difference.text);
    return lines + report.notes;
}

Result<QStringList> repairBooks(const shell::Session &session)
{
    const Result<VerifyReport> checked = verifyBooks(session);
    if (!checked)
        return checked.outcome();
    const auto repairable = std::count_if(checked->findings.begin(), checked->findings.end(),
        [](const Finding &f) { return f.repairable; });
    if (repairable == 0)
        return QStringList();
    if (!session.ui().ask(
            QStringLiteral("核对发现 %1 处可以修复的问题。\r\n是否重算流水账和往来余额，"
                           "并按流水账修正库存？")
                .arg(repairable)))
        return QStringList();
    QStringList changes;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        VerifyReport again;
        changes = mend(session, findDrifts(session, again));
        session.log(QStringLiteral("库存核对修复 %1 处").arg(changes.size()));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return changes;
}

} // namespace medistock::maintenance
