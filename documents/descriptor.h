#pragma once

#include "core/textclean.h"

#include <QString>
#include <QStringList>

namespace medistock::documents {

// Where the party of a document comes from: suppliers (jxc_ghsxx), customers (jxc_khxx), or none
// (stock documents).
enum class PartyTable { None, Supplier, Customer };

// The columns of a document header. Every name is a column of `table`; an empty name means the
// table has no such column and the entry writes nothing there.
struct HeaderColumns
{
    const char *table = "";
    const char *number = ""; // "gl_djh", "j_sn" on purchase receipts
    const char *date = ""; // the document date "yyyy-MM-dd"
    const char *party = ""; // "ghs_sn" / "kh_sn"
    PartyTable partyTable = PartyTable::None;
    const char *warehouse
        = ""; // the warehouse the goods come into or leave ("ck_out" on transfers)
    const char *secondWarehouse = ""; // the receiving warehouse of a transfer ("ck_in")
    const char *employee = ""; // "u_sn"
    const char *operatorName = ""; // "a_name": who saved it
    const char *note = "";
    const char *status = ""; // 0 unchecked, 1 checked
    const char *checker = "";
    const char *checkDate = "";
    const char *due = ""; // the line totals less the discount, e.g. "j_yfje"
    const char *discount = ""; // the whole-document discount, e.g. "j_yhje"
};

// The columns of a document line.
struct LineColumns
{
    const char *table = "";
    const char *number = ""; // the header's number
    const char *goods = ""; // "g_sn"
    const char *unit = ""; // "dw_name": the unit the quantity is given in
    const char *factor = ""; // "g_zhxs": base units per unit
    const char *quantity = ""; // in the line's unit
    const char *baseQuantity = ""; // in base units ("jh_zsl")
    const char *price = ""; // per line unit, before tax
    const char *taxRate = ""; // percent
    const char *taxedPrice = "";
    const char *tax = "";
    const char *amount = ""; // before tax
    const char *total = ""; // including tax
    const char *discountRate = ""; // a factor: 1 is the full price, 0.9 a tenth off
    const char *remark = "";
    const char *batch = ""; // "t_ph"
    const char *produced = ""; // "t_scrq"
    const char *expiry = ""; // "t_yxq"
    const char *barcode = ""; // "g_sptm"
    const char *operatorName = ""; // "a_name": who entered the line
};

// One kind of goods document as the shared entry sees it: its tables, the cleaning its typed
// texts get, and the rights that guard saving and deleting it.
struct DocumentKind
{
    const char *prefix = ""; // the number's two letters, "CJ"
    const char *title = ""; // "采购进货单", used in the log
    HeaderColumns header;
    LineColumns lines;
    core::CleanStrength cleaning = core::CleanStrength::Medium;
    // Stock-taking counts may be 0; every other document refuses a zero quantity.
    bool zeroQuantityAllowed = false;
    const char *rightArea = ""; // "cggl"; empty when saving and deleting are not guarded
    int saveRight = 0; // position in the area's right string; 0 for no test
    int deleteRight = 0;
    // The log line of a save; nullptr for the shared wording
    // ("增加未审核<title><number>，共N种商品" for a new document, "修改未审核..." for a change).
    QString (*savedLog)(const QString &number, int goodsCount, bool isNew) = nullptr;
};

// The goods code of the whole-document discount line ("优惠商品"): it never moves stock.
QString discountGoods();

// The descriptor's names that are not columns of their tables, as "table.column"; empty when the
// descriptor fits the schema. Every descriptor is held to this by a test.
QStringList descriptorProblems(const DocumentKind &kind);

} // namespace medistock::documents
