#pragma once

// The sales screens' fixture: three boxed goods with level-1 prices and barcodes, a level-1
// customer, stock bought in; helpers that open the screens and key lines as a clerk does.
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "tests/support/businessrows.h"
#include "tests/support/documentrows.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/documents/documentscreen.h"
#include "ui/sales/salekinds.h"

#include <QTest>

namespace medistock::test {

class SaleScreenTest : public UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        // 10000001 阿莫西林胶囊 (AMXLJN), 10000002 板蓝根颗粒 and 10000003 感冒灵颗粒 with
        // barcodes; level 1 prices below the standard ones. 华康药店 (HKYD, 100002) buys at
        // level 1.
        test::addBoxedGoods(session(),
            { QStringLiteral("阿莫西林胶囊"), QStringLiteral("板蓝根颗粒"),
                QStringLiteral("感冒灵颗粒") });
        const std::tuple<const char *, double, double, const char *> prices[]
            = { { "10000001", 12, 11.5, "" }, { "10000002", 8, 7.6, "6901234500021" },
                  { "10000003", 15, 14, "6901234500038" } };
        for (const auto &[goods, standard, level1, barcode] : prices)
            db().exec(QStringLiteral("update jxc_goods set g_sj=?,g_sj1=?,g_sptm=? where g_sn=?"),
                { standard, level1, QString::fromLatin1(barcode), QString::fromLatin1(goods) });
        masterdata::addMasterRow(session(), *masterdata::findMasterKind(QStringLiteral("customer")),
            { { QStringLiteral("kh_name"), QStringLiteral("华康药店") } });
        db().exec(QStringLiteral("update jxc_khxx set kt_sn='1001' where kh_name=?"),
            { QStringLiteral("华康药店") });
        setParameter(QStringLiteral("cs_cs013"), 1);
        receiveStock();
        ui.clear();
    }

    // Bought in at 5: 阿莫西林胶囊 in A1 (expiring first) and A2, the others in one batch each.
    void receiveStock()
    {
        masterdata::addMasterRow(session(), *masterdata::findMasterKind(QStringLiteral("supplier")),
            { { QStringLiteral("ghs_name"), QStringLiteral("华东医药") } });
        purchasing::PurchaseDraft draft;
        draft.entry.date = QStringLiteral("2025-03-01");
        draft.entry.party = QStringLiteral("100002");
        draft.entry.warehouse = QStringLiteral("100001");
        for (const auto &[goods, batch, expiry] :
            { std::tuple { "10000001", "A1", "2025-10-31" }, { "10000001", "A2", "2026-12-31" },
                { "10000002", "B1", "2026-06-30" }, { "10000003", "G1", "2026-03-31" } }) {
            documents::LineDraft line;
            line.goods = QString::fromLatin1(goods);
            line.quantity = QStringLiteral("20");
            line.price = QStringLiteral("5");
            line.batch = QString::fromLatin1(batch);
            line.expiry = QString::fromLatin1(expiry);
            draft.entry.lines.append(line);
        }
        const QString receipt = purchasing::savePurchaseReceipt(session(), draft).value();
        ASSERT_TRUE(purchasing::checkPurchaseReceipt(session(), receipt).ok());
    }

    std::unique_ptr<ui::DocumentScreen> open(std::unique_ptr<ui::DocumentScreenKind> kind)
    {
        auto screen = std::make_unique<ui::DocumentScreen>(workspace(), std::move(kind));
        screen->resize(1366, 700);
        screen->show();
        screen->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
        screen->setFocus();
        Keyboard::settle();
        return screen;
    }

    std::unique_ptr<ui::DocumentScreen> openSale()
    {
        return open(std::make_unique<ui::SaleScreenKind>(workspace().session));
    }

    // A line by its goods text, the batch proposed kept, the quantity typed, the price kept.
    void keyLine(const QString &goods, const QString &quantity)
    {
        keys.type(goods);
        keys.press(Qt::Key_Return);
        keys.press(Qt::Key_Return);
        keys.type(quantity);
        keys.press(Qt::Key_Return);
        keys.press(Qt::Key_Return);
    }

    std::unique_ptr<ui::DocumentScreen> openReturn()
    {
        return open(std::make_unique<ui::SalesReturnScreenKind>(workspace().session));
    }

    // A checked sale to 华康药店 of 10 阿莫西林胶囊 from A2 and 5 板蓝根颗粒, paid in full.
    QString checkedSale()
    {
        sales::SaleDraft draft;
        draft.entry.date = QStringLiteral("2025-03-14");
        draft.entry.party = QStringLiteral("100002");
        draft.entry.warehouse = QStringLiteral("100001");
        for (const auto &[goods, quantity, batch, expiry] :
            { std::tuple { "10000001", "10", "A2", "2026-12-31" },
                { "10000002", "5", "B1", "2026-06-30" } }) {
            documents::LineDraft line;
            line.goods = QString::fromLatin1(goods);
            line.quantity = QString::fromLatin1(quantity);
            line.batch = QString::fromLatin1(batch);
            line.expiry = QString::fromLatin1(expiry);
            draft.entry.lines.append(line);
        }
        draft.header.paid = 153;
        ui.setDefaultAnswer(true);
        const QString number = sales::saveSale(session(), draft).value();
        EXPECT_TRUE(sales::checkSale(session(), number).ok());
        ui.clear();
        return number;
    }

    QString cell(const ui::DocumentScreen &screen, int row, ui::LineField field)
    {
        return screen.lines()->index(row, screen.lines()->columnOf(field)).data().toString();
    }

    double batchStock(const QString &goods, const QString &batch)
    {
        return db()
            .firstValue(
                QStringLiteral("select t_sl from jxc_tkc where g_sn=? and t_ph=? and ck_sn=?"),
                { goods, batch, QStringLiteral("100001") })
            .toDouble();
    }

    Keyboard keys;
};

} // namespace medistock::test
