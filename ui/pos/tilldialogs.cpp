#include "ui/pos/tilldialogs.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "shell/operators.h"
#include "shell/session.h"
#include "ui/common/texts.h"
#include "ui/pos/texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QDoubleSpinBox *moneyField(int decimals, double maximum, QWidget *parent)
{
    auto *field = new QDoubleSpinBox(parent);
    field->setDecimals(decimals);
    field->setRange(0, maximum);
    field->setAlignment(Qt::AlignRight);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setMinimumWidth(140);
    return field;
}

QDialogButtonBox *okCancel(QDialog *dialog)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("确定"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("取消"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

QString money(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

} // namespace

PaymentDialog::PaymentDialog(
    const shell::Session &session, double linesAmount, double cardBalance, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_linesAmount(linesAmount)
    , m_due(new QLabel(this))
    , m_change(new QLabel(this))
{
    setWindowTitle(postexts::payTitle);
    const int places = session.params().amountDecimals();
    auto *form = new QFormLayout;
    QFont big = m_due->font();
    big.setPointSize(big.pointSize() * 2);
    m_due->setFont(big);
    m_change->setFont(big);
    form->addRow(postexts::receivable, m_due);
    const QStringList names = ways();
    for (int way = 0; way < names.size(); ++way) {
        const double maximum = way == 1 ? std::max(0.0, cardBalance) : 1e9;
        QDoubleSpinBox *field = moneyField(places, maximum, this);
        if (way == 1 && cardBalance < 0)
            field->setEnabled(false);
        m_fields.append(field);
        form->addRow(names[way], field);
        connect(field, &QDoubleSpinBox::valueChanged, this, &PaymentDialog::update);
    }
    form->addRow(postexts::change, m_change);
    m_fields[0]->setValue(linesAmount);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(okCancel(this));
    m_fields[0]->setFocus();
    m_fields[0]->selectAll();
    update();
}

QStringList PaymentDialog::ways()
{
    return { postexts::cash, postexts::card, postexts::bankCard, postexts::insurance,
        postexts::wechat, postexts::alipay, postexts::roundingOff };
}

double PaymentDialog::due() const
{
    return core::roundTo(m_linesAmount - m_fields[6]->value(), m_session.params().amountDecimals());
}

double PaymentDialog::others() const
{
    double sum = 0;
    for (int way = 1; way < 6; ++way)
        sum += m_fields[way]->value();
    return sum;
}

void PaymentDialog::update()
{
    const int places = m_session.params().amountDecimals();
    m_due->setText(money(due(), places));
    const double change = m_fields[0]->value() + others() - due();
    m_change->setText(money(std::max(0.0, change), places));
}

members::RetailPayment PaymentDialog::payment() const
{
    members::RetailPayment p;
    p.counter.cash = m_fields[0]->value();
    p.card = m_fields[1]->value();
    p.counter.bankCard = m_fields[2]->value();
    p.counter.insurance = m_fields[3]->value();
    p.counter.wechat = m_fields[4]->value();
    p.counter.alipay = m_fields[5]->value();
    p.roundingOff = m_fields[6]->value();
    p.counter.change = core::roundTo(
        std::max(0.0, p.counter.cash + others() - due()), m_session.params().amountDecimals());
    return p;
}

void PaymentDialog::accept()
{
    const int places = m_session.params().amountDecimals();
    const double shortBy = core::roundTo(due() - m_fields[0]->value() - others(), places);
    if (shortBy > 0) {
        m_session.ui().inform(postexts::shortPaid.arg(money(shortBy, places)));
        return;
    }
    if (core::roundTo(others() - due(), places) > 0) {
        m_session.ui().inform(postexts::overPaid.arg(money(due(), places)));
        return;
    }
    QDialog::accept();
}

ReturnDialog::ReturnDialog(const pos::SoldReceipt &receipt, int quantityDecimals, QWidget *parent)
    : QDialog(parent)
    , m_grid(new QTableWidget(int(receipt.lines.size()), 7, this))
{
    setWindowTitle(postexts::returnTitle + QStringLiteral("：") + receipt.number);
    m_grid->setHorizontalHeaderLabels(postexts::returnCaptions.split(QLatin1Char('|')));
    for (int row = 0; row < receipt.lines.size(); ++row) {
        const pos::SoldLine &sold = receipt.lines[row];
        const QStringList texts { sold.line.goods, sold.name + sold.line.giftMarker, sold.line.unit,
            QString::number(sold.line.price, 'f', 2),
            QString::number(sold.line.quantity, 'f', quantityDecimals),
            QString::number(sold.returnable(), 'f', quantityDecimals),
            QString::number(0.0, 'f', quantityDecimals) };
        for (int column = 0; column < texts.size(); ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            if (column < 6)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            if (column >= 3)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_grid->setItem(row, column, item);
        }
    }
    m_grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_grid->setCurrentCell(0, 6);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_grid);
    layout->addWidget(okCancel(this));
    resize(760, 320);
}

QList<double> ReturnDialog::quantities() const
{
    QList<double> quantities;
    for (int row = 0; row < m_grid->rowCount(); ++row)
        quantities.append(m_grid->item(row, 6)->text().toDouble());
    return quantities;
}

HandoverDialog::HandoverDialog(const shell::Session &session, const pos::ShiftFigures &f,
    const QString &slipKey, QWidget *parent)
    : QDialog(parent)
    , m_next(new QComboBox(this))
    , m_up(moneyField(session.params().amountDecimals(), 1e9, this))
    , m_down(moneyField(session.params().amountDecimals(), 1e9, this))
    , m_note(new QLineEdit(this))
    , m_slip(new QComboBox(this))
{
    setWindowTitle(postexts::handoverTitle);
    const int p = session.params().amountDecimals();
    auto *figures
        = new QLabel(postexts::shift.arg(f.from.isEmpty() ? postexts::firstShift : f.from, f.to)
                         .arg(f.sales)
                         .arg(money(f.salesAmount, p))
                         .arg(f.returns)
                         .arg(money(f.returnsAmount, p), money(f.takings, p), money(f.cash, p),
                             money(f.card, p), money(f.bankCard, p), money(f.insurance, p),
                             money(f.wechat, p), money(f.alipay, p), money(f.cashIn, p))
                         .arg(money(f.cashOut, p), money(f.openingFloat, p), money(f.drawer(), p)),
            this);
    for (const shell::OperatorRow &row : shell::listOperators(session.db()))
        if (!row.locked)
            m_next->addItem(row.name);
    m_next->setCurrentText(session.user().name);
    m_up->setValue(std::max(0.0, f.drawer()));
    auto *form = new QFormLayout;
    form->addRow(postexts::nextCashier, m_next);
    form->addRow(postexts::handedUp, m_up);
    form->addRow(postexts::leftForNext, m_down);
    form->addRow(postexts::note, m_note);
    m_slip->addItem(postexts::slip80, QStringLiteral("jbxp"));
    m_slip->addItem(postexts::slip58, QStringLiteral("jbxp58"));
    m_slip->addItem(postexts::noSlip, QString());
    m_slip->setCurrentIndex(slipKey.isEmpty() ? 2 : std::max(0, m_slip->findData(slipKey)));
    m_slip->setEnabled(!slipKey.isEmpty());
    if (slipKey.isEmpty())
        m_slip->setToolTip(texts::printingNotBuilt());
    form->addRow(postexts::printSlip, m_slip);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(figures);
    layout->addLayout(form);
    layout->addWidget(okCancel(this));
    m_next->setFocus();
}

pos::HandoverDraft HandoverDialog::draft() const
{
    return { m_next->currentText(), m_up->value(), m_down->value(), m_note->text() };
}

QString HandoverDialog::slipKey() const
{
    return m_slip->currentData().toString();
}

} // namespace medistock::ui
