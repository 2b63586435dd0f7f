#include "ui/pos/registration.h"

#include "pos/tillcash.h"
#include "shell/session.h"
#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/pos/reportscreen.h"
#include "ui/pos/tillscreen.h"

#include <QInputDialog>
#include <QPushButton>

namespace medistock::ui {

namespace {

// "入款"/"出款" on the till-cash list: the amount and a note, the operation's question, the list
// run again.
void addCashButton(PosReportScreen *screen, Workspace &workspace, pos::TillCash direction)
{
    const QString name
        = direction == pos::TillCash::In ? QStringLiteral("入款") : QStringLiteral("出款");
    auto *button = new QPushButton(name, screen);
    QObject::connect(button, &QPushButton::clicked, screen, [screen, &workspace, direction, name] {
        bool ok = false;
        const double amount = QInputDialog::getDouble(screen, name, QStringLiteral("金额"), 0, 0,
            1e9, workspace.session.params().amountDecimals(), &ok);
        if (!ok)
            return;
        const QString note = QInputDialog::getText(
            screen, name, QStringLiteral("备注"), QLineEdit::Normal, {}, &ok);
        if (ok && pos::recordTillCash(workspace.session, direction, amount, note))
            screen->run();
    });
    screen->addButton(button);
}

} // namespace

void registerPosScreens(ScreenRegistry &registry)
{
    registry.addTab(QStringLiteral("xsgl"), QStringLiteral("允许POS销售"),
        [](Workspace &workspace) { return new TillScreen(workspace); });
    const QStringList operations { QStringLiteral("POS销售流水账"),
        QStringLiteral("POS商品销售统计"), QStringLiteral("POS销售排行"),
        QStringLiteral("会员消费统计"), QStringLiteral("收银员收银统计"),
        QStringLiteral("收银员出入款管理"), QStringLiteral("POS销售提成") };
    const QList<PosReportKind> kinds = posReportKinds();
    for (int i = 0; i < operations.size(); ++i) {
        const PosReportKind kind = kinds[i];
        const bool cash = operations[i] == QStringLiteral("收银员出入款管理");
        registry.addTab(QStringLiteral("tjgl"), operations[i], [kind, cash](Workspace &workspace) {
            auto *screen = new PosReportScreen(workspace, kind);
            if (cash) {
                addCashButton(screen, workspace, pos::TillCash::In);
                addCashButton(screen, workspace, pos::TillCash::Out);
            }
            return screen;
        });
    }
}

} // namespace medistock::ui
