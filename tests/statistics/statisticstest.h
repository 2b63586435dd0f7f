#pragma once

#include "documents/entry.h"
#include "tests/support/accountset.h"

namespace medistock::test {

// Goods "200001" 阿莫西林胶囊 (盒, class "1001" 西药) and "200002" 板蓝根颗粒 (袋, class "100101"
// 中成药, under 西药), "200003" 维生素C片 (瓶, class "1002" 保健品) without business; the supplier
// "100002" 华东医药, the customers "100002" 华康药店 and "100003" 仁和诊所, the employees "100002"
// 小周 (5% of the sales amount) and "100003" 小李 (10% of the profit above 1 per unit), and the
// warehouse "100002" 分店仓库. Documents are saved and checked through their own modules, every
// question answered yes; negative stock is allowed.
class StatisticsTest : public SessionTest
{
public:
    // A line; with a batch number it also carries the production date 2024-12-01 and the
    // expiry 2027-11-30.
    struct Line
    {
        QString goods;
        QString quantity;
        QString price;
        QString batch {};
    };

protected:
    void SetUp() override;

    // Checked documents into or out of warehouse 100001 (unless one is given), returning the
    // number. A sale goes to customer 100002 by employee 100002 unless told otherwise.
    QString receipt(const QString &date, const QList<Line> &lines);
    QString purchaseReturn(const QString &date, const QList<Line> &lines);
    QString sale(const QString &date, const QList<Line> &lines,
        const QString &customer = QStringLiteral("100002"),
        const QString &employee = QStringLiteral("100002"));
    QString salesReturn(const QString &date, const QList<Line> &lines);
    QString loss(const QString &date, const QList<Line> &lines);
    QString overflow(const QString &date, const QList<Line> &lines);
    QString transfer(const QString &date, const QList<Line> &lines, const QString &to);

    // 100 boxes of 200001 at 10 and 50 bags of 200002 at 4 bought on 2025-01-05; 30 boxes at 15
    // and 10 bags at 6 sold on the 20th.
    void januaryBooks();

    // Rows of a select as "a|b|c".
    QStringList rows(const QString &sql, const QVariantList &params = {});
    // Everything except the log and the id counters.
    QString snapshot();
};

} // namespace medistock::test
