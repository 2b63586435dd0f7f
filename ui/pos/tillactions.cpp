// The till's actions that post: payment, hold and recall, the return of a sold receipt and the
// handover with its slip. Each leaves the sale on the screen untouched when the operation refuses.
#include "core/interaction.h"
#include "documents/goodslookup.h"
#include "pos/handover.h"
#include "pos/held.h"
#include "pos/returns.h"
#include "pos/till.h"
#include "shell/session.h"
#include "ui/common/picker.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/pos/handoverlist.h"
#include "ui/pos/texts.h"
#include "ui/pos/tilldialogs.h"
#include "ui/pos/tillscreen.h"

#include <QComboBox>
#include <QDateTime>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace medistock::ui {

void TillScreen::pay()
{
    shell::Session &session = m_workspace.session;
    if (m_lines.isEmpty())
        return session.ui().inform(postexts::noLines);
    // The balance as it stands now, not as it stood when the card was read.
    std::optional<members::Member> member;
    if (m_member)
        readSafely(
            session.ui(), [&] { member = members::readMember(session.db(), m_member->code); });
    PaymentDialog dialog(session, linesAmount(), member ? member->balance : -1, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    members::RetailDocument sale = document();
    sale.payment = dialog.payment();
    const Result<QString> sold = pos::sellAtTill(session, sale, m_heldNumber);
    if (!sold)
        return;
    m_lastNumber = sold.value();
    m_lastReceipt = m_lastNumber;
    m_status->setText(postexts::sold.arg(m_lastNumber,
        QString::number(sale.payment.counter.change, 'f', session.params().amountDecimals())));
    clearSale();
}

void TillScreen::hold()
{
    shell::Session &session = m_workspace.session;
    if (m_lines.isEmpty())
        return session.ui().inform(postexts::noLines);
    const Result<QString> held = pos::holdSale(session, document(), m_heldNumber);
    if (!held)
        return;
    m_lastNumber = held.value();
    m_status->setText(postexts::held.arg(m_lastNumber));
    clearSale();
}

void TillScreen::recall()
{
    shell::Session &session = m_workspace.session;
    if (!m_lines.isEmpty())
        return session.ui().inform(postexts::holdFirst);
    QList<pos::HeldSale> held;
    if (!readSafely(session.ui(), [&] { held = pos::heldSales(session); }))
        return;
    if (held.isEmpty())
        return session.ui().inform(postexts::noHeld);
    PickerDialog picker(
        postexts::recallTitle, postexts::heldCaptions.split(QLatin1Char('|')), {}, this);
    QList<PickRow> rows;
    for (const pos::HeldSale &h : held)
        rows.append({ { h.number, h.time, h.memberName, QString::number(h.lines),
            QString::number(h.amount, 'f', session.params().amountDecimals()) } });
    picker.setRows(rows);
    picker.setNumberColumns({ 3, 4 });
    if (picker.exec() != QDialog::Accepted || picker.chosenRow() < 0)
        return;
    const QString number = held[picker.chosenRow()].number;
    const Result<members::RetailDocument> sale = pos::recallSale(session, number);
    if (!sale)
        return;
    readSafely(session.ui(), [&] {
        for (const members::RetailLine &line : sale->lines)
            if (const auto goods = documents::goodsChoice(session, line.goods, {}))
                m_shown.insert(line.goods, { goods->name, goods->packing });
        m_member = sale->member.isEmpty() ? std::nullopt
                                          : members::readMember(session.db(), sale->member);
    });
    m_lines = sale->lines;
    m_heldNumber = number;
    refresh();
    m_grid->selectRow(0);
}

void TillScreen::returnReceipt()
{
    shell::Session &session = m_workspace.session;
    bool ok = false;
    const QString number = QInputDialog::getText(
        this, postexts::returnTitle, postexts::receiptPrompt, QLineEdit::Normal, {}, &ok)
                               .trimmed();
    if (!ok || number.isEmpty())
        return;
    const Result<pos::SoldReceipt> receipt = pos::readSoldReceipt(session, number);
    if (!receipt)
        return;
    ReturnDialog dialog(receipt.value(), session.params().quantityDecimals(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Result<members::RetailDocument> refund
        = pos::returnOf(session, receipt.value(), dialog.quantities());
    if (!refund)
        return;
    const Result<QString> posted = pos::returnAtTill(session, refund.value());
    if (!posted)
        return;
    m_lastNumber = posted.value();
    m_lastReceipt = m_lastNumber;
    m_status->setText(postexts::returned.arg(m_lastNumber,
        QString::number(-refund->payment.counter.cash, 'f', session.params().amountDecimals())));
    m_goods->setFocus();
}

void TillScreen::handOver()
{
    shell::Session &session = m_workspace.session;
    const QString now = session.clock().nowText();
    pos::ShiftFigures figures;
    if (!readSafely(
            session.ui(), [&] { figures = pos::shiftFigures(session, session.user().name, now); }))
        return;
    const QString slip = !m_workspace.print ? QString()
        : m_narrowPaper                     ? QStringLiteral("jbxp58")
                                            : QStringLiteral("jbxp");
    HandoverDialog dialog(session, figures, slip, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto done = pos::handOver(session, dialog.draft());
    if (!done)
        return;
    m_status->setText(postexts::handedOver.arg(
        QString::number(done->first.handed, 'f', session.params().amountDecimals())));
    if (m_workspace.print && !dialog.slipKey().isEmpty())
        m_workspace.print(
            m_workspace, this, PrintRequest { dialog.slipKey(), QString::number(done->first.id) });
    m_goods->setFocus();
}

void TillScreen::showHandovers()
{
    HandoverListDialog dialog(m_workspace, this);
    dialog.exec();
    m_goods->setFocus();
}

// The receipt of the last sale or return, with preview, on the paper `key` stands for.
void TillScreen::printReceipt(const QString &key)
{
    if (!m_workspace.print)
        return;
    if (m_lastReceipt.isEmpty())
        return m_workspace.session.ui().inform(postexts::printNothing);
    m_narrowPaper = key.endsWith(QLatin1String("58"));
    m_workspace.print(m_workspace, this, PrintRequest { key, m_lastReceipt });
    m_goods->setFocus();
}

} // namespace medistock::ui
