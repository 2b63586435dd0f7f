#include "ui/loans/returndialog.h"

#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "documents/entry.h"
#include "loans/loansale.h"
#include "shell/session.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/loans/texts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// Columns after the price: deposit share, rent and refund, computed as the quantity is typed.
constexpr int depositColumn = 9;
constexpr int rentColumn = 10;
constexpr int refundColumn = 11;

const QStringList captions { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
    QStringLiteral("单位"), QStringLiteral("产品批号"), QStringLiteral("借货数量"),
    QStringLiteral("已还数量"), QStringLiteral("已售数量"), QStringLiteral("本次数量"),
    QStringLiteral("单价"), QStringLiteral("押金"), QStringLiteral("租金合计"),
    QStringLiteral("退回押金") };

QTableWidgetItem *fixedItem(const QString &text, bool number)
{
    auto *item = new QTableWidgetItem(text);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    if (number)
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

LoanReturnDialog::LoanReturnDialog(Workspace &workspace, const QString &loan,
    std::optional<qint64> line, Mode mode, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_mode(mode)
{
    setWindowTitle((mode == Mode::Sale ? lntexts::saleTitle : lntexts::returnTitle)
        + QStringLiteral("：") + loan);
    const QString today = workspace.session.clock().today().toString(Qt::ISODate);
    readSafely(workspace.session.ui(), [&] {
        const Result<loans::ReturnPlan> plan
            = loans::prepareReturn(workspace.session, loan, line, today);
        if (plan) {
            m_plan = plan.value();
            m_loaded = true;
        }
    });
    m_date = new DateField(this);
    m_date->setText(today);
    m_note = new QLineEdit(this);
    m_days = new QLabel(this);
    auto *form = new QFormLayout;
    form->addRow(mode == Mode::Sale ? lntexts::saleDate : lntexts::returnDate, m_date);
    form->addRow(lntexts::note, m_note);
    if (mode == Mode::Sale) {
        m_paid = new QLineEdit(this);
        m_paid->setAlignment(Qt::AlignRight);
        form->addRow(lntexts::paid, m_paid);
    }
    form->addRow(QString(), m_days);
    m_grid = new QTableWidget(this);
    m_grid->setColumnCount(int(captions.size()));
    m_grid->setHorizontalHeaderLabels(captions);
    m_grid->setColumnHidden(priceColumn, mode != Mode::Sale);
    m_grid->verticalHeader()->hide();
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(lntexts::confirm, QDialogButtonBox::AcceptRole);
    buttons->addButton(lntexts::cancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &LoanReturnDialog::confirm);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence(Qt::Key_F5), this), &QShortcut::activated, this,
        &LoanReturnDialog::confirm);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_grid, 1);
    layout->addWidget(buttons);
    fillGrid();
    connect(m_grid, &QTableWidget::itemChanged, this, &LoanReturnDialog::refreshFigures);
    connect(
        m_date->lineEdit(), &QLineEdit::editingFinished, this, &LoanReturnDialog::refreshFigures);
    resize(1100, 420);
    m_grid->setFocus();
    m_grid->setCurrentCell(0, quantityColumn);
}

void LoanReturnDialog::fillGrid()
{
    const shell::Parameters &params = m_workspace.session.params();
    m_grid->setRowCount(int(m_plan.lines.size()));
    for (int row = 0; row < m_plan.lines.size(); ++row) {
        const loans::OpenLine &l = m_plan.lines[row].loan;
        const QStringList texts { l.goods, l.goodsName, l.unit, l.batch };
        for (int c = 0; c < texts.size(); ++c)
            m_grid->setItem(row, c, fixedItem(texts[c], false));
        const double counts[] = { l.lent, l.returned, l.sold };
        for (int c = 0; c < 3; ++c)
            m_grid->setItem(row, 4 + c, fixedItem(core::plainNumber(counts[c]), true));
        auto *quantity = new QTableWidgetItem(core::plainNumber(l.open));
        quantity->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_grid->setItem(row, quantityColumn, quantity);
        double price = l.price;
        if (m_mode == Mode::Sale)
            readSafely(m_workspace.session.ui(),
                [&] { price = loans::proposedSalePrice(m_workspace.session, l.goods); });
        auto *priceItem = new QTableWidgetItem(QString::number(price, 'f', params.priceDecimals()));
        priceItem->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        if (m_mode != Mode::Sale)
            priceItem->setFlags(priceItem->flags() & ~Qt::ItemIsEditable);
        m_grid->setItem(row, priceColumn, priceItem);
        for (int c : { depositColumn, rentColumn, refundColumn })
            m_grid->setItem(row, c, fixedItem(QString(), true));
    }
    refreshFigures();
    m_grid->resizeColumnsToContents();
}

QString LoanReturnDialog::cellText(int row, int column) const
{
    const QTableWidgetItem *item = m_grid->item(row, column);
    return item ? item->text().trimmed() : QString();
}

// The figures of each line for the typed quantity and date; a quantity or date that is no
// number or date leaves them empty (the save names what is wrong).
void LoanReturnDialog::refreshFigures()
{
    const QSignalBlocker blocker(m_grid);
    const QString date = normalizedDate(m_date->text());
    const int days = loans::loanDays(m_plan.loan.date, date);
    m_days->setText(lntexts::days + QString::number(days));
    const shell::Parameters &params = m_workspace.session.params();
    for (int row = 0; row < m_plan.lines.size(); ++row) {
        bool ok = false;
        const double quantity = cellText(row, quantityColumn).toDouble(&ok);
        const loans::ReturnLine figures
            = loans::returnLine(params, m_plan.lines[row].loan, ok ? quantity : 0, days);
        const double values[] = { figures.deposit, figures.rent, figures.refund };
        const int columns[] = { depositColumn, rentColumn, refundColumn };
        for (int i = 0; i < 3; ++i)
            m_grid->item(row, columns[i])
                ->setText(
                    ok ? QString::number(values[i], 'f', params.amountDecimals()) : QString());
    }
}

void LoanReturnDialog::confirm()
{
    shell::Session &session = m_workspace.session;
    const QString date = normalizedDate(m_date->text());
    if (m_mode == Mode::Return) {
        loans::ReturnDraft draft { m_plan.loan.number, date, m_note->text(), {} };
        for (int row = 0; row < m_plan.lines.size(); ++row)
            draft.lines.append({ m_plan.lines[row].loan.line, cellText(row, quantityColumn) });
        Result<QString> saved = Outcome::refused(QString());
        core::guarded(session.ui(), [&] {
            saved = loans::saveReturn(session, draft);
            return saved.outcome();
        });
        if (!saved)
            return;
        m_written = { saved.value() };
        session.ui().inform(lntexts::returned + saved.value());
        accept();
        return;
    }
    loans::LoanSaleDraft draft;
    draft.loan = m_plan.loan.number;
    draft.date = date;
    draft.note = m_note->text();
    for (int row = 0; row < m_plan.lines.size(); ++row)
        draft.lines.append({ m_plan.lines[row].loan.line, cellText(row, quantityColumn),
            cellText(row, priceColumn) });
    const QString paid = m_paid->text().trimmed();
    const Result<double> paidAmount
        = paid.isEmpty() ? Result<double>(0.0) : documents::readHeaderAmount(lntexts::paid, paid);
    if (!paidAmount) {
        session.ui().inform(paidAmount.message());
        return;
    }
    draft.header.paid = paidAmount.value();
    Result<loans::LoanSale> sold = Outcome::refused(QString());
    core::guarded(session.ui(), [&] {
        sold = loans::sellLoanedGoods(session, draft);
        return sold.outcome();
    });
    if (!sold)
        return;
    m_written = { sold.value().returnNumber, sold.value().saleNumber };
    session.ui().inform(lntexts::sold.arg(sold.value().returnNumber, sold.value().saleNumber));
    accept();
}

} // namespace medistock::ui
