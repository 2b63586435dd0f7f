#pragma once

#include "masterdata/masterrows.h"
#include "members/retail.h"
#include "members/settings.h"
#include "tests/support/accountset.h"

namespace medistock::test {

// Goods in warehouse "100001" (opening stock dated 2025-01-02): "200001" 阿莫西林胶囊 batch "B1"
// 100 boxes at 5; "200002" 维生素C片, special-points goods of 5 points a bottle, 50 at 2; "200003"
// 医用口罩, special-priced, 40 at 3; the gift "300001" 保温杯 (200 points) 10 at 18; the gift
// "300002" 环保袋 (50 points, average 4) without stock. One point per 10 yuan; "按积分升级" on.
class MembersTest : public SessionTest
{
protected:
    void SetUp() override;

    void receive(const QString &goods, double quantity, double price, const QString &batch = {});
    // Adds a member through the operation; fails the test when refused.
    QString addMember(const QString &name, const masterdata::Values &extra = {});
    void setPoints(
        double amountPerPoint, const std::function<void(members::PointsSettings &)> &more = {});

    // A retail line of the base unit.
    static members::RetailLine line(
        const QString &goods, double quantity, double price, const QString &batch = {});
    // A retail document in warehouse 100001 at 2025-03-14 10:00:00 paid in cash exactly.
    members::RetailDocument retail(const QString &member, const QList<members::RetailLine> &lines,
        members::RetailKind kind = members::RetailKind::Sale);
    // Posts it; fails the test when refused. Returns the number.
    QString post(const members::RetailDocument &document);

    // One column of a member, or of any row found by the where clause, as a number or text.
    double figure(const QString &member, const QString &column);
    QString text(const QString &member, const QString &column);
    QStringList rows(const QString &table, const QString &columns, const QString &where = {},
        const QVariantList &params = {});
    // The whole database without the log, for comparing before and after.
    QString snapshot();
};

} // namespace medistock::test
