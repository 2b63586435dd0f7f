#pragma once

#include "core/interaction.h"
#include "tests/pos/postest.h"
#include "tests/ui/screenworkspace.h"
#include "ui/common/application.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/workspace.h"
#include "ui/pos/tilldialogs.h"
#include "ui/pos/tillscreen.h"

#include <QApplication>
#include <QDir>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace medistock::test {

// The till on screen over the POS fixture: amoxicillin 200001 at 12, vitamin C 200002 at 8 and
// masks 200003 at 3.50 to the customer; the member 张敏 with 100 on her card.
class TillScreenTest : public PosTest
{
protected:
    void SetUp() override
    {
        PosTest::SetUp();
        if (HasFatalFailure())
            return;
        layouts = layoutStore(folder());
        workspace = screenWorkspace(session(), db(), *layouts, folder());
        db().exec(QStringLiteral("update jxc_goods set g_lsj=12 where g_sn='200001'"));
        db().exec(QStringLiteral("update jxc_goods set g_lsj=8 where g_sn='200002'"));
        db().exec(QStringLiteral("update jxc_goods set g_lsj=3.5 where g_sn='200003'"));
        member = addMember(QStringLiteral("张敏"));
        ASSERT_TRUE(members::setMemberBalance(session(), member, 100, {}));
        card = text(member, QStringLiteral("hy_bh"));
        till = std::make_unique<ui::TillScreen>(*workspace);
        ui.clear();
    }

    void TearDown() override
    {
        till.reset();
        workspace.reset();
        layouts.reset();
        PosTest::TearDown();
    }

    // Runs `step` on the modal dialog the next key opens.
    static void onDialog(std::function<void(QWidget *)> step)
    {
        QTimer::singleShot(0, [step] { step(QApplication::activeModalWidget()); });
    }

    void key(int key) { QTest::keyClick(till->goodsField(), Qt::Key(key)); }

    void scan(const QString &code)
    {
        till->goodsField()->setText(code);
        key(Qt::Key_Return);
    }

    // Answers the number or text question the next key asks.
    void answer(int pressed, const QString &value)
    {
        onDialog([value](QWidget *w) {
            auto *dialog = qobject_cast<QInputDialog *>(w);
            ASSERT_NE(dialog, nullptr);
            if (dialog->inputMode() == QInputDialog::DoubleInput)
                dialog->setDoubleValue(value.toDouble());
            else
                dialog->setTextValue(value);
            dialog->accept();
        });
        key(pressed);
    }

    // Amoxicillin 3 at 12, vitamin C 2 at 8, a mask given away; the member's card read.
    void ringUpThreeLines()
    {
        scan(QStringLiteral("200001"));
        answer(Qt::Key_F4, QStringLiteral("3"));
        scan(QStringLiteral("200002"));
        answer(Qt::Key_F4, QStringLiteral("2"));
        scan(QStringLiteral("200003"));
        key(Qt::Key_F12);
        answer(Qt::Key_F2, card);
    }

    // The three lines sold to the member: 20 off her card, 10 by WeChat, 30 in cash (8 change).
    void sellWithSplit()
    {
        ringUpThreeLines();
        onDialog([](QWidget *w) {
            auto *pay = qobject_cast<ui::PaymentDialog *>(w);
            ASSERT_NE(pay, nullptr);
            pay->field(1)->setValue(20);
            pay->field(4)->setValue(10);
            pay->field(0)->setValue(30);
            pay->accept();
        });
        key(Qt::Key_Equal);
        ASSERT_EQ(till->lastNumber(), "XS25031410001") << ui.informed.join('\n').toStdString();
    }

    QStringList shownLines() const
    {
        QStringList lines;
        const QTableWidget *grid = till->lines();
        for (int r = 0; r < grid->rowCount(); ++r) {
            QStringList cells;
            for (int c : { 0, 3, 4, 5, 6, 7, 8 })
                cells.append(grid->item(r, c)->text());
            lines.append(cells.join(QLatin1Char('|')));
        }
        return lines;
    }

    std::unique_ptr<ui::GridLayouts> layouts;
    std::unique_ptr<ui::Workspace> workspace;
    std::unique_ptr<ui::TillScreen> till;
    QString member;
    QString card;
};

} // namespace medistock::test
