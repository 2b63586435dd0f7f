#pragma once

#include "stock/ledger.h"
#include "stock/movement.h"
#include "stock/stores.h"
#include "tests/support/accountset.h"

#include <QList>
#include <QString>

namespace medistock::test {

// The stock engine's rows as the documents that come later will write them: goods, a second
// warehouse, purchase receipts (header and lines, inserted directly) and sale lines.
class StockTest : public SessionTest
{
protected:
    void SetUp() override;

    struct Goods
    {
        QString code;
        QString name;
        double average = 0; // g_pjjj
        double price = 0; // g_jj
        QString fixedCost = QStringLiteral("0"); // g_gdcbj
        double saleLimit = 0; // g_xzsl
    };
    void addGoods(const Goods &goods);

    struct Line
    {
        QString goods;
        double quantity = 0; // jh_sl / ls_sl
        double price = 0; // jh_dj per line unit
        double factor = 1; // base units per line unit
        QString batch = QStringLiteral("B1");
        QString expiry = QStringLiteral("2027-12-31");
        QString produced = QStringLiteral("2024-12-01");
        qint64 planLine = 0; // id3
    };
    // A receipt header marked checked (the check writes the status before the stock posting)
    // with its lines; amounts are price x quantity, without tax or discount.
    void addReceipt(const QString &number, const QString &date, const QList<Line> &lines,
        const QString &warehouse = QStringLiteral("100001"));
    // Lines of a document kind's line table, for the checks ("XS" and "CT").
    void addSaleLines(const QString &number, const QList<Line> &lines);
    void addReturnLines(const QString &number, const QList<Line> &lines);

    // The receipt's header as its check hands it to the stock posting.
    stock::PostingHeader receiptHeader(const QString &number);
    // Posts through the engine's steps, each in its own transaction.
    int postReceipt(const QString &number);
    void reverseReceipt(const QString &number);
    // A sale row "xs" posted the way a sales check uses the steps: ledger row, warehouse stock,
    // rerun, goods totals, batch stock. Returns the ledger row's id.
    qint64 postSale(const QString &number, const QString &date, const Line &line,
        const QString &warehouse = QStringLiteral("100001"));
    // A bare ledger row, rerun from itself.
    qint64 postRow(const QString &kind, const QString &date, const QString &goods, double quantity,
        double amount, double price, const QString &warehouse = QStringLiteral("100001"));

    // Running columns of one goods and warehouse in ledger order: "kind sqsl sqje kc pjjj kczje".
    QStringList runningColumns(
        const QString &goods, const QString &warehouse = QStringLiteral("100001"));
    double number(const QString &sql, const QVariantList &params = {});
    stock::BatchKey batchOf(const QString &goods, const Line &line,
        const QString &warehouse = QStringLiteral("100001")) const;
};

} // namespace medistock::test
