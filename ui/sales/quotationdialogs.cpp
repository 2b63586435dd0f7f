// The dialogs of "报价管理": goods gathered with their prices for one party, and one price asked.
#include "core/interaction.h"
#include "documents/goodslookup.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"
#include "ui/sales/quotationscreen.h"
#include "ui/sales/texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

QuotationDialog::QuotationDialog(Workspace &workspace, sales::QuotationSide side, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_side(side)
    , m_party(makePartyField(workspace.session,
          side == sales::QuotationSide::Customer ? documents::PartyTable::Customer
                                                 : documents::PartyTable::Supplier,
          this))
    , m_date(new DateField(this))
    , m_employee(new QComboBox(this))
    , m_goods(new QLineEdit(this))
    , m_lines(new QTableWidget(0, 4, this))
{
    const bool customer = side == sales::QuotationSide::Customer;
    const shell::Session &session = workspace.session;
    setWindowTitle(customer ? sltexts::ourQuotations : sltexts::supplierQuotations);
    m_date->setText(session.clock().today().toString(Qt::ISODate));
    fillMasterBox(m_employee, session, "employee");
    m_employee->insertItem(0, QString(), QString());
    m_employee->setCurrentIndex(0);
    m_goods->setPlaceholderText(sltexts::goodsHint);
    m_lines->setHorizontalHeaderLabels(
        { sltexts::goodsCode, sltexts::goodsName, sltexts::quotedPrice, sltexts::note });
    m_lines->horizontalHeader()->setStretchLastSection(true);
    m_lines->setColumnWidth(1, 220);
    m_lines->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_lines->setSelectionBehavior(QAbstractItemView::SelectRows);

    auto *form = new QFormLayout;
    form->addRow(customer ? sltexts::customer : sltexts::supplier, m_party);
    form->addRow(sltexts::quotedOn, m_date);
    form->addRow(sltexts::salesman, m_employee);
    form->addRow(sltexts::goods, m_goods);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(sltexts::saveQuotations, QDialogButtonBox::AcceptRole);
    buttons->addButton(sltexts::cancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QuotationDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QuotationDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_lines);
    layout->addWidget(buttons);

    auto *saveKey = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(saveKey, &QShortcut::activated, this, &QuotationDialog::accept);
    connect(m_party, &CodeNameField::entered, m_goods, [this] { m_goods->setFocus(); });
    connect(m_goods, &QLineEdit::returnPressed, this, &QuotationDialog::takeGoods);
    resize(760, 480);
    // Rows an earlier dialog left behind are not this party's.
    readSafely(session.ui(), [&] { sales::clearQuotationWork(session); });
    m_party->setFocus();
}

void QuotationDialog::takeGoods()
{
    const QString text = m_goods->text().trimmed();
    if (text.isEmpty())
        return;
    shell::Session &session = m_workspace.session;
    QList<documents::GoodsChoice> found;
    if (!readSafely(session.ui(), [&] { found = documents::findGoods(session, text, {}); }))
        return;
    std::optional<documents::GoodsChoice> chosen;
    if (found.size() == 1)
        chosen = found.first();
    else
        chosen = pickGoods(m_workspace, text, {}, QStringLiteral("rcgl"), 0, this);
    if (!chosen)
        return;
    const QString title = (m_side == sales::QuotationSide::Customer ? sltexts::ourPriceTitle
                                                                    : sltexts::supplierPriceTitle)
        + chosen->name;
    QuotationPriceDialog price(title, QString(), QString(), nullptr, this);
    if (price.exec() != QDialog::Accepted)
        return;
    if (!sales::addQuotationWorkRow(session, chosen->code, price.price(), price.note()))
        return;
    const int row = m_lines->rowCount();
    m_lines->insertRow(row);
    const QStringList cells { chosen->code, chosen->name, price.price(), price.note() };
    for (int column = 0; column < cells.size(); ++column)
        m_lines->setItem(row, column, new QTableWidgetItem(cells[column]));
    m_lines->item(row, 2)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_goods->clear();
    m_goods->setFocus();
}

void QuotationDialog::accept()
{
    shell::Session &session = m_workspace.session;
    const Result<int> added = sales::addQuotations(
        session, m_side, m_party->code(), m_date->text(), m_employee->currentData().toString());
    if (added)
        QDialog::accept();
}

void QuotationDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return;
    QDialog::keyPressEvent(event);
}

void QuotationDialog::reject()
{
    const shell::Session &session = m_workspace.session;
    readSafely(session.ui(), [&] { sales::clearQuotationWork(session); });
    QDialog::reject();
}

QuotationPriceDialog::QuotationPriceDialog(const QString &title, const QString &price,
    const QString &note, const QString *date, QWidget *parent)
    : QDialog(parent)
    , m_price(new QLineEdit(price, this))
    , m_note(new QLineEdit(note, this))
{
    setWindowTitle(title);
    m_price->setAlignment(Qt::AlignRight);
    auto *form = new QFormLayout(this);
    form->addRow(sltexts::quotedPrice, m_price);
    if (date) {
        m_date = new DateField(this);
        m_date->setText(*date);
        form->addRow(sltexts::quotedOn, m_date);
    }
    form->addRow(sltexts::note, m_note);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(sltexts::confirm);
    buttons->button(QDialogButtonBox::Cancel)->setText(sltexts::cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    // Enter in the price takes it; the note is reached with Tab when wanted.
    connect(m_price, &QLineEdit::returnPressed, this, &QDialog::accept);
    setMinimumWidth(360);
    m_price->selectAll();
    m_price->setFocus();
}

QString QuotationPriceDialog::price() const
{
    return m_price->text().trimmed();
}

QString QuotationPriceDialog::note() const
{
    return m_note->text().trimmed();
}

QString QuotationPriceDialog::date() const
{
    return m_date ? m_date->text() : QString();
}

} // namespace medistock::ui
