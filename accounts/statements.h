#pragma once

#include <QList>
#include <QString>
#include <QVariantList>

namespace medistock::shell {
class Session;
}

// The statements "往来账务(客户)" and "往来账务(供货商)": read-only queries over the checked
// document headers and the goods journal jxc_goodslist that every check fills. The journal keeps
// the party of every row in ghs_sn, customers included. Every tab returns typed rows; the screens
// add the totals and the export.
namespace medistock::accounts {

// The filters every tab shares.
struct StatementFilter
{
    QString from {}; // "yyyy-MM-dd"
    QString to {}; // "yyyy-MM-dd": the whole day counts (compared with " 23:59:59" appended)
    QString party {}; // one customer or supplier; empty for all of them
    QString text {}; // the tab's search text; empty for no search
    bool descending = false; // the date order of the document lists and journal rows
};

// The warehouse restriction of the statements and the document lists: with operators bound to
// warehouses (cs_cgyh "1") an operator other than "100001" sees only rows of the warehouses whose
// ck_asn names his code. `clause(alias)` is " and <alias>.ck_asn like ?" then, else empty.
class WarehouseRestriction
{
public:
    explicit WarehouseRestriction(const shell::Session &session);
    bool active() const { return !m_pattern.isEmpty(); }
    QString clause(const QString &alias) const;
    QVariantList params() const;

private:
    QString m_pattern;
};

// A checked document of the party in "客户所有单据" / "供货商所有单据", with its amounts as
// stored: a return's are negative where its document stores them so.
struct StatementDocument
{
    QString number; // djh
    QString date; // rq
    double due = 0; // yfje
    double paid = 0; // sfje
    double unpaid = 0; // wfje: due - paid - discount - paid back
    double discount = 0; // yhje (0 on returns)
    QString kind; // "商品销售付款", "销售退货支出", "进货支付", "退货还款"
    QString sort; // dsort: "1" sale or receipt, "2" return; a day's sales come first
    QString note;
    QString operatorName;
    QString party;
    QString partyName;
    QString partyShort; // kh_jm / ghs_jm
    QString salesman; // u_name
    QString warehouse; // ck_name
    QString checker;
    QString checkDate;
    double paidBack = 0; // hkje
    double freight = 0; // 0 on returns
    double packing = 0;
    QString freightMode; // empty on returns
};

// Sales (ls_status 1) and customer returns (th_status 1) dated in the range, of the customer
// when one is chosen, the number containing the search text; ordered by date, sort, number (or
// date and number descending, the sort still ascending).
QList<StatementDocument> customerDocuments(
    const shell::Session &session, const StatementFilter &filter);
// Purchase receipts (j_status 1) and purchase returns (th_status 1), alike.
QList<StatementDocument> supplierDocuments(
    const shell::Session &session, const StatementFilter &filter);

// "费用汇总表": per party and freight mode, the documents with freight or packing above 0 in the
// range; ordered by party code. The search text matches the party's code, name or short code.
struct FreightSummary
{
    QString party;
    QString partyName;
    QString freightMode;
    double due = 0;
    double paid = 0;
    double discount = 0;
    double freight = 0;
    double packing = 0;
    double quantity = 0; // of the documents' lines
};
QList<FreightSummary> customerFreight(const shell::Session &session, const StatementFilter &filter);
QList<FreightSummary> supplierFreight(const shell::Session &session, const StatementFilter &filter);

// A journal row as the statements show it.
struct JournalLine
{
    qint64 id = 0;
    QString date; // gl_kdrq
    QString number; // gl_djh
    QString kind; // gl_flag
    QString goods;
    QString goodsName;
    QString unit;
    QString packing; // gg_name
    QString batch;
    QString expiry;
    QString produced;
    QString party;
    QString partyName;
    QString warehouse; // ck_name
    double quantity = 0; // gl_sl as stored, or turned positive for a return's line detail
    double price = 0; // gl_dj
    double amount = 0; // gl_zje, likewise
    double beforeTax = 0; // gl_je
    double tax = 0; // gl_taxje
    double profit = 0; // gl_lr
    double profitRate = 0; // percent of gl_je, 2 places; 0 where gl_je is 0
};

// The lines of one document, in journal order, with the caption of its warehouse: "  出货仓库："
// for goods going out (sale, purchase return), "  入货仓库：" for goods coming in. A return's
// quantities and amounts are turned positive.
struct DocumentLines
{
    QString caption;
    QList<JournalLine> lines;
};
DocumentLines statementDocumentLines(const shell::Session &session, const QString &number);

// Sums per goods with the goods' catalogue columns.
struct GoodsTotals
{
    QString goods;
    QString goodsName;
    QString unit;
    double stock = 0; // g_kc
    QString packing; // gg_name
    QString approval; // color_name
    QString maker; // g_sccs
    QString remark; // g_bz
    QString goodsShort; // g_jm
    double quantity = 0;
    double amount = 0; // gl_zje
    double beforeTax = 0; // gl_je
    double tax = 0;
    double profit = 0;
    double profitRate = 0; // "供货商商品销售情况": sum(gl_lr)/sum(gl_je) in percent, 2 places
    QString lastDate; // "供货商供货情况": the last delivery
};

// "客户消费情况表": sales and customer returns ("xs", "xt"; returns count negative) of the range,
// per goods in the goods' id order; the text matches g_sn, g_name or g_jm.
QList<GoodsTotals> customerGoods(const shell::Session &session, const StatementFilter &filter);
// Its detail rows, ordered by date, number, id (descending with the date order).
QList<JournalLine> customerJournal(const shell::Session &session, const StatementFilter &filter);
// Its months: sales only ("xs"), by the month "yyyy-MM" of the date.
struct MonthTotals
{
    QString month;
    double quantity = 0;
    double amount = 0;
    double profit = 0;
};
QList<MonthTotals> customerMonths(const shell::Session &session, const StatementFilter &filter);

// "客户消费分析": sales and returns of the range grouped by customer type (kt_name of jxc_khtype)
// or by region (z_name, "无地区" when empty). `choice` is "所有类型" / "所有地区" (or empty) for
// all, else a text the type or region name contains.
struct GroupTotals
{
    QString group;
    double quantity = 0;
    double amount = 0;
    double profit = 0;
    double beforeTax = 0;
    double tax = 0;
};
QList<GroupTotals> byCustomerType(
    const shell::Session &session, const StatementFilter &filter, const QString &choice);
QList<GroupTotals> byRegion(
    const shell::Session &session, const StatementFilter &filter, const QString &choice);

// "客户流失分析": customers whose last sale or return lies more than `days` days before today
// (customers without any are not listed), with their totals of the range; by customer code.
struct LostCustomer
{
    QString customer;
    QString customerName;
    QString lastDate;
    double quantity = 0;
    double amount = 0;
    double profit = 0;
};
QList<LostCustomer> lostCustomers(
    const shell::Session &session, const StatementFilter &filter, int days);

// "供货商供货情况": purchase receipts and returns ("cj", "ct") of the range per goods that are
// neither the discount line nor disabled, with the last date, by goods code; the text matches
// the goods.
QList<GoodsTotals> supplierDeliveries(const shell::Session &session, const StatementFilter &filter);
QList<JournalLine> supplierDeliveryJournal(
    const shell::Session &session, const StatementFilter &filter);
// "供货商商品销售情况": sales and returns of the goods whose catalogue supplier is the party,
// per goods with the profit rate; its detail rows by date descending.
QList<GoodsTotals> supplierGoodsSales(const shell::Session &session, const StatementFilter &filter);
QList<JournalLine> supplierGoodsSalesJournal(
    const shell::Session &session, const StatementFilter &filter);

} // namespace medistock::accounts
