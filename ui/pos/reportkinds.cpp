// The POS reports the screens offer, each wired to its report and its table.
#include "pos/commission.h"
#include "pos/rankings.h"
#include "pos/salesreports.h"
#include "pos/tillcash.h"
#include "ui/pos/reportscreen.h"

namespace medistock::ui {

namespace {

template<class Rows, class Table>
Result<pos::ReportTable> tableOf(const Result<Rows> &rows, Table table)
{
    if (!rows)
        return rows.outcome();
    return table(rows.value());
}

pos::SalesFilter salesFilter(const PosReportInputs &in)
{
    return { in.range, in.warehouse, in.text, {}, {} };
}

} // namespace

QList<PosReportKind> posReportKinds()
{
    PosReportKind journal { QStringLiteral("POS销售流水账"), QStringLiteral("POS流水账"), true,
        QStringLiteral("收银员"), false, {}, {},
        [](shell::Session &s, const PosReportInputs &in) {
            return tableOf(pos::salesJournal(s, salesFilter(in)), pos::journalTable);
        },
        {}, {}, { QStringLiteral("poslsz") } };
    PosReportKind goods { QStringLiteral("POS商品销售统计"), QStringLiteral("POS商品销售"), true,
        QStringLiteral("收银员"), false,
        { QStringLiteral("商品销售统计"), QStringLiteral("商品销售明细") }, {},
        [](shell::Session &s, const PosReportInputs &in) {
            if (in.view == 1)
                return tableOf(pos::salesLines(s, salesFilter(in)), pos::linesTable);
            return tableOf(pos::goodsSales(s, salesFilter(in)), pos::goodsSalesTable);
        },
        {}, {}, { QStringLiteral("postj"), QStringLiteral("posmxb") } };
    PosReportKind ranking { QStringLiteral("POS销售排行"), QStringLiteral("POS销售排行"), true, {},
        false,
        { QStringLiteral("按商品"), QStringLiteral("按商品类别"), QStringLiteral("按收银员") },
        { QStringLiteral("销售利润率"), QStringLiteral("销售数量"), QStringLiteral("总销售额"),
            QStringLiteral("销售利润") },
        [](shell::Session &s, const PosReportInputs &in) {
            const auto view = pos::RankingView(in.view);
            return tableOf(
                pos::salesRanking(s, { in.range, in.warehouse, view, pos::RankingOrder(in.order) }),
                [view](
                    const QList<pos::RankingRow> &rows) { return pos::rankingTable(rows, view); });
        },
        { QStringLiteral("gname"), QStringLiteral("gcname"), QStringLiteral("a_name") },
        QStringLiteral("zje"),
        { QStringLiteral("possxph1"), QStringLiteral("possxph2"), QStringLiteral("possxph3") } };
    PosReportKind members { QStringLiteral("会员消费统计"), QStringLiteral("会员消费统计"), true,
        QStringLiteral("姓名/简码/手机"), true, {}, {},
        [](shell::Session &s, const PosReportInputs &in) {
            return tableOf(pos::memberSales(s, { in.range, in.warehouse, in.level, {}, in.text }),
                pos::memberSalesTable);
        },
        {}, {}, {} };
    PosReportKind cashiers { QStringLiteral("收银员收银统计"), QStringLiteral("收银员收银统计"),
        true, QStringLiteral("收银员"), false, {}, {},
        [](shell::Session &s, const PosReportInputs &in) {
            return tableOf(
                pos::cashierTakings(s, { in.range, in.warehouse, in.text }), pos::cashierTable);
        },
        { QStringLiteral("a_name") }, QStringLiteral("sfje"), { QStringLiteral("possytj1") } };
    PosReportKind cash { QStringLiteral("POS 出入款管理"), QStringLiteral("POS出入款"), false,
        QStringLiteral("收银员"), false, {}, {},
        [](shell::Session &s, const PosReportInputs &in) {
            return tableOf(pos::tillCashRows(s, in.range, in.text), pos::tillCashTable);
        },
        {}, {}, { QStringLiteral("poscrk") } };
    PosReportKind commission { QStringLiteral("POS销售提成"), QStringLiteral("POS销售提成"), true,
        {}, false, {}, {},
        [](shell::Session &s, const PosReportInputs &in) {
            return tableOf(pos::posCommission(s, { in.range, in.warehouse }), pos::commissionTable);
        },
        {}, {}, { QStringLiteral("possytj2") } };
    return { journal, goods, ranking, members, cashiers, cash, commission };
}

} // namespace medistock::ui
