#include "pos/commission.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "members/texts.h"
#include "pos/rights.h"
#include "pos/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QMap>
#include <QSqlQuery>

#include <algorithm>

namespace medistock::pos {

namespace {

struct Employee
{
    QString code;
    QString name;
    int method = 0; // u_tcfs: 0 by amount, 1 by profit
    double rate = 0; // u_tc, percent
    double minimumProfit = 0; // u_zdlr
};

// Sums over ledger rows of one employee: quantity, amount, profit, the profit above the
// employee's minimum, and for goods commissions the goods' rate times quantity, amount, profit.
struct Sums
{
    double quantity = 0;
    double amount = 0;
    double profit = 0;
    double profitAbove = 0;
    double perPiece = 0;
    double byAmount = 0;
    double byProfit = 0;
};

// What the back office's receivables ledger holds for an employee.
struct Charged
{
    double charged = 0; // k_yfje
    double paid = 0; // k_sfje
};

struct Figures
{
    QMap<QString, Employee> employees;
    QMap<std::pair<QString, int>, Sums> pos; // (employee, g_tclb)
    QMap<QString, Charged> charged;
    QMap<QString, Sums> backOffice;
};

// The profit above the minimum per unit, or the whole profit where the employee has none.
const QString profitAbove = QStringLiteral(
    "sum(case when coalesce(y.u_zdlr,0)<>0 then (case when x.gl_dj-x.gl_cbj>y.u_zdlr then "
    "(x.gl_dj-x.gl_cbj-y.u_zdlr)*x.gl_sl else 0 end) else x.gl_lr end)");

Sums sumsOf(const QSqlQuery &q, int first)
{
    const auto n = [&](int i) { return q.value(first + i).toDouble(); };
    return { n(0), n(1), n(2), n(3), n(4), n(5), n(6) };
}

void readEmployees(core::Connection &db, Figures &f)
{
    db.forEach(QStringLiteral("select u_sn,u_name,coalesce(u_tcfs,0),coalesce(u_tc,0),"
                              "coalesce(u_zdlr,0) from jxc_user order by u_sn"),
        {}, [&](const QSqlQuery &q) {
            f.employees.insert(q.value(0).toString(),
                { q.value(0).toString(), q.value(1).toString(), q.value(2).toInt(),
                    q.value(3).toDouble(), q.value(4).toDouble() });
        });
}

void readPosSums(const shell::Session &session, const CommissionFilter &filter, Figures &f)
{
    QVariantList params;
    const QString where = posLedgerConditions(session, filter.range, filter.warehouse, params);
    params << QString();
    session.db().forEach(
        QStringLiteral("select h.u_sn,coalesce(w.g_tclb,0),sum(x.gl_sl),sum(x.gl_zje),"
                       "sum(x.gl_lr),%1,sum(x.gl_sl*coalesce(w.g_tc,0)),"
                       "sum(x.gl_zje*coalesce(w.g_tc,0)),sum(x.gl_lr*coalesce(w.g_tc,0)) from "
                       "jxc_goodslist x join jxc_posxsd h on h.gl_djh=x.gl_djh join jxc_user y on "
                       "y.u_sn=h.u_sn left join jxc_goods w on w.g_sn=x.g_sn where %2 and "
                       "coalesce(x.gl_bz,'')=? group by h.u_sn,coalesce(w.g_tclb,0)")
            .arg(profitAbove, where),
        params, [&](const QSqlQuery &q) {
            f.pos.insert({ q.value(0).toString(), q.value(1).toInt() }, sumsOf(q, 2));
        });
}

void readBackOffice(const shell::Session &session, const DateRange &range, Figures &f)
{
    core::Connection &db = session.db();
    db.forEach(QStringLiteral("select u_sn,sum(k_yfje),sum(k_sfje) from jxc_ysyfk where k_type=? "
                              "and k_rq>=? and k_rq<=? and u_sn is not null group by u_sn"),
        { QStringLiteral("kh"), range.from, range.end() }, [&](const QSqlQuery &q) {
            f.charged.insert(
                q.value(0).toString(), { q.value(1).toDouble(), q.value(2).toDouble() });
        });
    db.forEach(
        // From the employees' documents to their ledger rows, so that the ledger is read by
        // document number and never scanned.
        QStringLiteral("select y.u_sn,sum(x.gl_sl),sum(x.gl_zje),sum(x.gl_lr),%1 from jxc_user y "
                       "join (select gl_djh,u_sn,? as kind from jxc_lsxsd union all select "
                       "gl_djh,u_sn,? from jxc_xsthd) d on d.u_sn=y.u_sn join jxc_goodslist x on "
                       "x.gl_djh=d.gl_djh and x.gl_flag=d.kind where coalesce(x.gl_fdmc,'')<>? "
                       "and x.gl_kdrq>=? and x.gl_kdrq<=? and y.u_tcfs=? and y.u_tc>? group by "
                       "y.u_sn")
            .arg(profitAbove),
        { QStringLiteral("xs"), QStringLiteral("xt"), members::texts::retailBranchMark(),
            range.from, range.end(), 1, 0 },
        [&](const QSqlQuery &q) { f.backOffice.insert(q.value(0).toString(), sumsOf(q, 1)); });
}

class RowMaker
{
public:
    RowMaker(const shell::Session &session, const Employee &e)
        : m_params(session.params())
        , m_employee(e)
    { }

    // A row of an employee's own rate.
    CommissionRow rated(int flag, double sales, double base, double profit, double profitBase,
        double commissionBase) const
    {
        return make(flag, { sales, base, profit, profitBase, 0 },
            commissionBase * m_employee.rate * 0.01, m_employee.minimumProfit, m_employee.rate);
    }
    // A row of the goods' own rates.
    CommissionRow goods(int flag, const Sums &s, double quantity, double commission) const
    {
        const bool byProfit = flag == 5001;
        return make(flag,
            { s.amount, byProfit ? 0 : s.amount, s.profit, byProfit ? s.profit : 0, quantity },
            commission, 0, 0);
    }

private:
    struct Figures5
    {
        double sales, base, profit, profitBase, quantity;
    };
    CommissionRow make(
        int flag, const Figures5 &f, double commission, double minimum, double rate) const
    {
        return { m_employee.code, m_employee.name, texts::commissionKind(flag), flag,
            m_params.roundAmount(f.sales), m_params.roundAmount(f.base),
            m_params.roundAmount(f.profit), m_params.roundAmount(f.profitBase),
            m_params.roundQuantity(f.quantity), m_params.roundAmount(commission), minimum, rate };
    }

    const shell::Parameters &m_params;
    const Employee &m_employee;
};

QList<CommissionRow> employeeRows(
    const shell::Session &session, const Figures &f, const Employee &e)
{
    const RowMaker make(session, e);
    QList<CommissionRow> rows;
    const bool rated = e.rate > 0;
    const bool byProfit = e.method == 1;
    if (rated && f.pos.contains({ e.code, 0 })) {
        const Sums s = f.pos.value({ e.code, 0 });
        rows.append(byProfit ? make.rated(201, s.amount, 0, s.profit, s.profitAbove, s.profitAbove)
                             : make.rated(101, s.amount, s.amount, s.profit, 0, s.amount));
    }
    if (rated && (f.charged.contains(e.code) || (byProfit && f.backOffice.contains(e.code)))) {
        const Charged c = f.charged.value(e.code);
        const Sums s = f.backOffice.value(e.code);
        if (byProfit) {
            rows.append(
                make.rated(2001, c.charged, c.paid, s.profit, s.profitAbove, s.profitAbove));
        } else {
            rows.append(make.rated(1001, c.charged, c.paid, 0, 0, c.paid));
            const double outstanding = std::max(c.charged - c.paid, 0.0);
            rows.append(make.rated(1002, c.charged, outstanding, 0, 0, outstanding));
        }
    }
    if (const auto s = f.pos.constFind({ e.code, 1 }); s != f.pos.cend())
        rows.append(make.goods(3001, *s, s->quantity, s->perPiece));
    if (const auto s = f.pos.constFind({ e.code, 2 }); s != f.pos.cend())
        rows.append(make.goods(4001, *s, 0, s->byAmount * 0.01));
    if (const auto s = f.pos.constFind({ e.code, 3 }); s != f.pos.cend())
        rows.append(make.goods(5001, *s, 0, s->byProfit * 0.01));
    return rows;
}

void insertRow(core::Connection &db, const QString &operatorName, const CommissionRow &r)
{
    db.exec(QStringLiteral("insert into jxc_jxchz (g_sn,hz_txt1,hz_txt2,hz_flag,hz_kc,hz_kczje,"
                           "hz_rksl,hz_rkzje,hz_cksl,hz_ckzje,hz_glkc,hz_glkczje,a_name) values "
                           "(?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { r.employee, r.name, r.kind, QString::number(r.flag), r.sales, r.base, r.profit,
            r.profitBase, r.quantity, r.commission, r.minimumProfit, r.rate, operatorName });
}

QList<CommissionRow> readRows(core::Connection &db, const QString &operatorName)
{
    QList<CommissionRow> rows;
    db.forEach(QStringLiteral("select g_sn,hz_txt1,hz_txt2,hz_flag,hz_kc,hz_kczje,hz_rksl,hz_rkzje,"
                              "hz_cksl,hz_ckzje,hz_glkc,hz_glkczje from jxc_jxchz where a_name=? "
                              "order by g_sn,hz_flag"),
        { operatorName }, [&](const QSqlQuery &q) {
            const auto n = [&](int i) { return q.value(i).toDouble(); };
            rows.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toInt(), n(4), n(5), n(6), n(7), n(8), n(9), n(10), n(11) });
        });
    return rows;
}

} // namespace

Result<QList<CommissionRow>> posCommission(shell::Session &session, const CommissionFilter &filter)
{
    const Outcome allowed = shell::requireRight(session, "tjgl", rights::commission);
    if (!allowed)
        return allowed;
    const Outcome valid = checkRange(session, filter.range);
    if (!valid)
        return valid;
    QList<CommissionRow> rows;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QString operatorName = session.user().name;
        core::Transaction transaction(db);
        Figures figures;
        readEmployees(db, figures);
        readPosSums(session, filter, figures);
        readBackOffice(session, filter.range, figures);
        db.exec(QStringLiteral("delete from jxc_jxchz where a_name=?"), { operatorName });
        for (const Employee &e : std::as_const(figures.employees))
            for (const CommissionRow &row : employeeRows(session, figures, e))
                insertRow(db, operatorName, row);
        db.exec(QStringLiteral("delete from jxc_jxchz where a_name=? and hz_flag=? and hz_ckzje=0"),
            { operatorName, QStringLiteral("1002") });
        rows = readRows(db, operatorName);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return rows;
}

} // namespace medistock::pos
