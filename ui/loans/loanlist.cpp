#include "ui/loans/loanlist.h"

#include "loans/loanreturn.h"
#include "loans/queries.h"
#include "shell/session.h"
#include "ui/common/datefield.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"

#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace medistock::ui {

LoanListScreen::LoanListScreen(DocumentScreen &screen, QWidget *parent)
    : QueryScreen(screen.workspace(), QStringLiteral("借货查询"), parent)
    , m_screen(screen)
    , m_list(new QComboBox(this))
    , m_from(new DateField(this))
    , m_to(new DateField(this))
    , m_text(new QLineEdit(this))
    , m_uncheck(new QPushButton(QStringLiteral("取消审核(F6)"), this))
{
    const shell::Session &session = screen.workspace().session;
    const QDate today = session.clock().today();
    m_list->addItems({ QStringLiteral("借货查询"), QStringLiteral("还货查询") });
    m_from->setText(today.addMonths(-1).toString(Qt::ISODate));
    m_to->setText(today.toString(Qt::ISODate));
    m_text->setPlaceholderText(QStringLiteral("单号、备注、客户名称或简码"));
    addFilter(QStringLiteral("查询"), m_list);
    addFilter(QStringLiteral("开始日期"), m_from);
    addFilter(QStringLiteral("结束日期"), m_to);
    addFilter(QStringLiteral("查找"), m_text);
    m_uncheck->setShortcut(QKeySequence(Qt::Key_F6));
    m_uncheck->setToolTip(QStringLiteral("取消审核选中的还货单"));
    addButton(m_uncheck);
    const int places = session.params().quantityDecimals();
    const int amounts = session.params().amountDecimals();
    const auto sum = [](const QString &caption, int decimals) {
        return QueryColumn { caption, QueryColumn::Kind::Number, decimals, true };
    };
    setColumns({ { QStringLiteral("单据号"), QueryColumn::Kind::Text, 0, false, 130 },
                   { QStringLiteral("日期"), QueryColumn::Kind::Text, 0, false, 90 },
                   { QStringLiteral("客户"), QueryColumn::Kind::Text, 0, false, 160 },
                   { QStringLiteral("仓库") }, sum(QStringLiteral("借货数量"), places),
                   sum(QStringLiteral("还货数量"), places), sum(QStringLiteral("销售数量"), places),
                   sum(QStringLiteral("金额"), amounts), sum(QStringLiteral("押金"), amounts),
                   sum(QStringLiteral("租金"), amounts), sum(QStringLiteral("退回押金"), amounts),
                   { QStringLiteral("业务员") }, { QStringLiteral("审核人") },
                   { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 160 } },
        QStringLiteral("借货查询"));
    connect(m_list, &QComboBox::currentIndexChanged, this, &QueryScreen::run);
    connect(m_uncheck, &QPushButton::clicked, this, &LoanListScreen::uncheckReturn);
    connect(this, &QueryScreen::activated, this, [this](int row) {
        if (row < 0 || m_list->currentIndex() != 0)
            return;
        m_screen.openDocument(model()->value(row, 0).toString());
        emit opened();
    });
}

QString LoanListScreen::currentNumber() const
{
    const int row = currentRow();
    return row < 0 ? QString() : model()->value(row, 0).toString();
}

void LoanListScreen::fetch()
{
    const bool returns = m_list->currentIndex() == 1;
    m_uncheck->setEnabled(returns);
    const loans::LoanQuery query { returns ? loans::LoanList::Returns : loans::LoanList::Loans,
        normalizedDate(m_from->text()), normalizedDate(m_to->text()), QString(),
        m_text->text().trimmed() };
    QList<QVariantList> rows;
    for (const loans::LoanRow &r : loans::listLoans(m_workspace.session, query))
        rows.append({ r.number, r.date, r.customerName, r.warehouseName, r.lent, r.returned, r.sold,
            r.amount, r.deposit, r.rent, r.refund, r.employeeName, r.checker, r.note });
    setRows(rows);
}

void LoanListScreen::uncheckReturn()
{
    const QString number = currentNumber();
    if (number.isEmpty() || m_list->currentIndex() != 1)
        return;
    if (loans::uncheckReturn(m_workspace.session, number))
        run();
}

LoanListDialog::LoanListDialog(DocumentScreen &screen)
    : QDialog(&screen)
    , m_list(new LoanListScreen(screen, this))
{
    setWindowTitle(QStringLiteral("借货查询"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    resize(1200, 560);
    connect(m_list, &LoanListScreen::opened, this, &QDialog::accept);
    m_list->run();
}

} // namespace medistock::ui
