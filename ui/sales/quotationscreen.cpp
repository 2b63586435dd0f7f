#include "ui/sales/quotationscreen.h"

#include "core/interaction.h"
#include "shell/session.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/sales/texts.h"

#include <QComboBox>
#include <QDate>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

namespace medistock::ui {

QuotationScreen::QuotationScreen(Workspace &workspace, QWidget *parent)
    : QueryScreen(workspace, sltexts::quotations, parent)
    , m_side(new QComboBox(this))
    , m_from(new DateField(this))
    , m_to(new DateField(this))
    , m_party(new QLineEdit(this))
    , m_goods(new QLineEdit(this))
{
    const QDate today = workspace.session.clock().today();
    m_side->addItems({ sltexts::ourQuotations, sltexts::supplierQuotations });
    m_from->setText(today.addYears(-1).addDays(1).toString(Qt::ISODate));
    m_to->setText(today.toString(Qt::ISODate));
    m_party->setPlaceholderText(sltexts::partyNameHint);
    m_goods->setPlaceholderText(sltexts::goodsHint);
    addFilter(sltexts::quotationSide, m_side);
    addFilter(sltexts::from, m_from);
    addFilter(sltexts::to, m_to);
    addFilter(sltexts::partyName, m_party);
    addFilter(sltexts::goods, m_goods);
    const auto button = [this](const QString &text, void (QuotationScreen::*slot)()) {
        auto *b = new QPushButton(text, this);
        connect(b, &QPushButton::clicked, this, slot);
        addButton(b);
        return b;
    };
    QPushButton *add = button(sltexts::addQuotation, &QuotationScreen::addQuotations);
    button(sltexts::changeQuotation, &QuotationScreen::changeCurrent);
    QPushButton *remove = button(sltexts::deleteQuotation, &QuotationScreen::deleteCurrent);
    auto *addKey = new QShortcut(QKeySequence(Qt::Key_F2), this);
    connect(addKey, &QShortcut::activated, add, &QPushButton::click);
    auto *removeKey = new QShortcut(QKeySequence(Qt::Key_Delete), grid());
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, &QShortcut::activated, remove, &QPushButton::click);
    connect(this, &QueryScreen::activated, this, [this](int) { changeCurrent(); });
    connect(m_side, &QComboBox::currentIndexChanged, this, [this] {
        setSideColumns();
        run();
    });
    setSideColumns();
}

sales::QuotationSide QuotationScreen::side() const
{
    return m_side->currentIndex() == 0 ? sales::QuotationSide::Customer
                                       : sales::QuotationSide::Supplier;
}

void QuotationScreen::setSideColumns()
{
    const bool customer = side() == sales::QuotationSide::Customer;
    const int prices = m_workspace.session.params().priceDecimals();
    setColumns(
        { { sltexts::goodsCode, QueryColumn::Kind::Text, 0, false, 90 },
            { sltexts::goodsName, QueryColumn::Kind::Text, 0, false, 200 },
            { sltexts::quotedPrice, QueryColumn::Kind::Number, prices },
            { sltexts::quotedOn, QueryColumn::Kind::Text, 0, false, 90 },
            { customer ? sltexts::customer : sltexts::supplier, QueryColumn::Kind::Text, 0, false,
                200 },
            { sltexts::salesman }, { sltexts::note, QueryColumn::Kind::Text, 0, false, 200 } },
        customer ? QStringLiteral("我方报价") : QStringLiteral("供货商报价"));
}

void QuotationScreen::fetch()
{
    const sales::QuotationFilter filter { m_from->text(), m_to->text(), m_party->text().trimmed(),
        m_goods->text().trimmed() };
    m_rows = sales::findQuotations(m_workspace.session, side(), filter);
    QList<QVariantList> rows;
    for (const sales::Quotation &q : std::as_const(m_rows))
        rows.append({ q.goods, q.goodsName, q.price, q.date, q.partyName, q.employeeName, q.note });
    setRows(rows);
}

const sales::Quotation *QuotationScreen::current() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rows.size() ? &m_rows[row] : nullptr;
}

void QuotationScreen::addQuotations()
{
    QuotationDialog dialog(m_workspace, side(), this);
    if (dialog.exec() == QDialog::Accepted)
        run();
}

void QuotationScreen::changeCurrent()
{
    const sales::Quotation *chosen = current();
    if (!chosen)
        return;
    const sales::Quotation q = *chosen;
    const QString title = (side() == sales::QuotationSide::Customer ? sltexts::ourPriceTitle
                                                                    : sltexts::supplierPriceTitle)
        + q.goodsName;
    const int prices = m_workspace.session.params().priceDecimals();
    QuotationPriceDialog dialog(
        title, QString::number(q.price, 'f', prices), q.note, &q.date, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (sales::changeQuotation(
            m_workspace.session, side(), q.id, dialog.price(), dialog.date(), dialog.note()))
        run();
}

void QuotationScreen::deleteCurrent()
{
    const sales::Quotation *chosen = current();
    if (!chosen)
        return;
    const qint64 id = chosen->id;
    if (!m_workspace.session.ui().ask(sltexts::deleteQuotationQuestion(chosen->goodsName)))
        return;
    if (sales::deleteQuotation(m_workspace.session, side(), id))
        run();
}

} // namespace medistock::ui
