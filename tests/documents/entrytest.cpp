#include "tests/documents/entrytest.h"

#include "tests/support/documentrows.h"

#include <QSqlRecord>

namespace medistock::test {

using documents::DocumentKind;
using documents::PartyTable;

const DocumentKind &fullKind()
{
    static const DocumentKind kind { .prefix = "CJ",
        .title = "采购进货单",
        .header = { .table = "jxc_jhd",
            .number = "j_sn",
            .date = "j_jhrq",
            .party = "ghs_sn",
            .partyTable = PartyTable::Supplier,
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "j_note",
            .status = "j_status",
            .checker = "j_checker",
            .checkDate = "j_chkrq",
            .due = "j_yfje",
            .discount = "j_yhje" },
        .lines = { .table = "jxc_jhsp",
            .number = "j_sn",
            .goods = "g_sn",
            .unit = "dw_name",
            .quantity = "jh_sl",
            .baseQuantity = "jh_zsl",
            .price = "jh_dj",
            .taxRate = "jh_tax",
            .taxedPrice = "jh_taxdj",
            .tax = "jh_taxje",
            .amount = "jh_je",
            .total = "jh_zje",
            .discountRate = "jh_dzl",
            .remark = "jh_bz",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .barcode = "g_sptm",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "cggl",
        .saveRight = 1,
        .deleteRight = 17 };
    return kind;
}

const DocumentKind &plainKind()
{
    static const DocumentKind kind { .prefix = "BS",
        .title = "报损单",
        .header = { .table = "jxc_bsd",
            .number = "gl_djh",
            .date = "bs_bsrq",
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "bs_note",
            .status = "bs_status",
            .checker = "bs_checker",
            .checkDate = "bs_chkrq" },
        .lines = { .table = "jxc_bssp",
            .number = "gl_djh",
            .goods = "g_sn",
            .quantity = "bs_sl",
            .price = "bs_dj",
            .total = "bs_zje",
            .remark = "bs_note",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Full };
    return kind;
}

void EntryTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    addGoods(db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
    addGoodsUnit(db(), QStringLiteral("200001"), QStringLiteral("件"), 20, QStringLiteral("6901"));
    addGoods(db(),
        { .code = QStringLiteral("200002"),
            .name = QStringLiteral("板蓝根颗粒"),
            .unit = QStringLiteral("袋") });
    addGoods(db(),
        { .code = QStringLiteral("200003"), .name = QStringLiteral("停用药品"), .disabled = true });
    addSupplier(db(), QStringLiteral("100002"), QStringLiteral("华东医药"));
    addSupplier(db(), QStringLiteral("100003"), QStringLiteral("停用供货商"), true);
    addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
}

documents::LineDraft EntryTest::line(
    const QString &goods, const QString &quantity, const QString &price, const QString &unit) const
{
    documents::LineDraft l;
    l.goods = goods;
    l.quantity = quantity;
    l.price = price;
    l.unit = unit;
    l.batch = QStringLiteral("B1");
    l.produced = QStringLiteral("2024-12-01");
    l.expiry = QStringLiteral("2027-11-30");
    return l;
}

documents::DocumentDraft EntryTest::draft(const QList<documents::LineDraft> &lines) const
{
    documents::DocumentDraft d;
    d.date = QStringLiteral("2025-03-14");
    d.party = QStringLiteral("100002");
    d.warehouse = QStringLiteral("100001");
    d.lines = lines;
    return d;
}

QString EntryTest::save(const documents::DocumentDraft &draft)
{
    const Result<QString> saved = documents::saveDocument(session(), fullKind(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    return saved.ok() ? saved.value() : QString();
}

QStringList EntryTest::rows(
    const QString &table, const QString &columns, const QString &where, const QVariantList &params)
{
    QStringList lines;
    const QString sql
        = QStringLiteral("select %1 from %2%3 order by id")
              .arg(columns, table, where.isEmpty() ? QString() : QStringLiteral(" where ") + where);
    for (const QSqlRecord &row : db().rows(sql, params)) {
        QStringList values;
        for (int i = 0; i < row.count(); ++i)
            values.append(row.value(i).toString());
        lines.append(values.join(QLatin1Char('|')));
    }
    return lines;
}

} // namespace medistock::test
