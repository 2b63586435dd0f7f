// The document screen's actions: new, save, check, uncheck, delete, open, and the state of the
// header and buttons that follows from them.
#include "ui/documents/documentscreen.h"

#include "core/capitals.h"
#include "core/interaction.h"
#include "core/lookups.h"
#include "core/rounding.h"
#include "documents/entry.h"
#include "documents/listing.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/documents/screenkind.h"
#include "ui/documents/texts.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace medistock::ui {

namespace {

QString numberText(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

// A stored number as a clerk would have typed it: no trailing zeros.
QString typedText(double value)
{
    return core::plainNumber(value);
}

} // namespace

QString DocumentScreen::date() const
{
    return m_date->text();
}

QString DocumentScreen::partyCode() const
{
    return m_party ? m_party->code() : QString();
}

QString DocumentScreen::warehouseCode() const
{
    return m_warehouse->currentData().toString();
}

bool DocumentScreen::allows(int position) const
{
    return position <= 0
        || shell::hasRight(
            m_workspace.session, QString::fromLatin1(m_kind->entry().rightArea), position);
}

void DocumentScreen::allowIf(QPushButton *button, int position, bool enabled)
{
    const bool right = allows(position);
    button->setEnabled(enabled && right);
    const shell::RightArea *area
        = shell::findRightArea(QString::fromLatin1(m_kind->entry().rightArea));
    button->setToolTip(right || !area
            ? QString()
            : shell::noRightText(QString::fromUtf8(area->operations[position - 1])));
}

void DocumentScreen::refreshButtons()
{
    const documents::DocumentKind &entry = m_kind->entry();
    const bool stored = !m_number.isEmpty();
    allowIf(m_saveButton, entry.saveRight, !m_checked);
    allowIf(m_checkButton, m_kind->checkRight(), !m_checked);
    allowIf(m_uncheckButton, m_kind->uncheckRight(), m_checked);
    allowIf(m_deleteButton, entry.deleteRight, stored && !m_checked);
    for (QPushButton *button : { m_checkButton, m_deleteButton })
        button->setVisible(m_kind->hasCheck());
    m_uncheckButton->setVisible(m_kind->hasUncheck());
    const bool adding = !m_checked && (!stored || allows(m_kind->addToSavedRight()));
    m_lines->setAddingAllowed(adding);
    allowIf(m_insertButton, stored ? m_kind->addToSavedRight() : 0, adding);
    m_deleteLineButton->setEnabled(!m_checked);
    for (QPushButton *action : std::as_const(m_editingActions))
        action->setEnabled(!m_checked);
    for (QPushButton *action : std::as_const(m_checkedActions))
        action->setEnabled(m_checked && stored);
}

void DocumentScreen::markModified()
{
    if (!m_loading && !m_checked)
        m_modified = true;
}

void DocumentScreen::refreshTotals()
{
    const shell::Parameters &params = m_workspace.session.params();
    const double total = m_lines->totalAmount();
    QString text = doctexts::totals(numberText(m_lines->totalQuantity(), params.quantityDecimals()),
        numberText(total, params.amountDecimals()));
    double due = total;
    if (m_discount) {
        due = params.roundAmount(total - m_discount->text().toDouble());
        text += QStringLiteral("　　")
            + doctexts::due(m_kind->dueLabel(), numberText(due, params.amountDecimals()));
    }
    m_totals->setText(text);
    m_capitals->setText(doctexts::capitals + core::amountInCapitals(due));
}

void DocumentScreen::setReadOnly(bool readOnly)
{
    if (m_party)
        m_party->setReadOnly(readOnly);
    m_warehouse->setEnabled(!readOnly);
    const bool dateChangeable = shell::hasRight(m_workspace.session, QStringLiteral("qtcz"), 8);
    m_date->setReadOnly(readOnly || !dateChangeable);
    if (m_employee)
        m_employee->setEnabled(!readOnly);
    for (QLineEdit *field : { m_note, m_discount })
        if (field)
            field->setReadOnly(readOnly);
    m_kind->setHeaderReadOnly(readOnly);
    m_lines->setEditable(!readOnly);
}

void DocumentScreen::resetHeader()
{
    m_loading = true;
    core::Connection &db = m_workspace.session.db();
    m_number.clear();
    m_checked = false;
    m_numberField->clear();
    m_date->setText(m_workspace.session.today());
    readSafely(m_workspace.session.ui(), [&] {
        if (m_party)
            m_party->setChoice(m_kind->entry().header.partyTable == documents::PartyTable::Customer
                    ? core::defaultCustomerCode(db)
                    : core::defaultSupplierCode(db),
                m_kind->entry().header.partyTable == documents::PartyTable::Customer
                    ? core::defaultCustomerName(db)
                    : core::defaultSupplierName(db));
        chooseCode(m_warehouse, core::defaultWarehouseCode(db));
        if (m_employee)
            chooseCode(m_employee, core::defaultEmployeeCode(db));
    });
    for (QLineEdit *field : { m_note, m_discount })
        if (field)
            field->clear();
    m_kind->clearHeader();
    m_lines->setLines({ LineEntry {} });
    m_status->setText(doctexts::status + doctexts::statusNew);
    setReadOnly(false);
    m_modified = false;
    m_loading = false;
    refreshButtons();
    refreshTotals();
}

bool DocumentScreen::mayDiscard()
{
    m_grid->finishEditing();
    return !m_modified || m_workspace.session.ui().ask(doctexts::discardChanges);
}

void DocumentScreen::newDocument()
{
    if (!mayDiscard())
        return;
    resetHeader();
    if (m_party)
        m_party->setFocus();
    else
        m_grid->goToNewLine();
}

void DocumentScreen::openDocument(const QString &number)
{
    if (!mayDiscard())
        return;
    readSafely(m_workspace.session.ui(), [&] { loadStored(number); });
}

void DocumentScreen::loadStored(const QString &number)
{
    const shell::Session &session = m_workspace.session;
    const documents::DocumentKind &entry = m_kind->entry();
    const std::optional<documents::DocumentRow> row
        = documents::findDocument(session, entry, number);
    const auto stored = documents::readDocument(session.db(), entry, number);
    if (!row || !stored)
        return;
    m_loading = true;
    m_number = number;
    m_checked = row->status == 1;
    m_numberField->setText(number);
    m_date->setText(row->date);
    if (m_party)
        m_party->setChoice(row->party, row->partyName);
    chooseCode(m_warehouse, row->warehouse);
    if (m_employee)
        chooseCode(m_employee, row->employee);
    if (m_note)
        m_note->setText(row->note);
    if (m_discount) {
        const double discount
            = stored->header.value(QString::fromLatin1(entry.header.discount)).toDouble();
        m_discount->setText(discount == 0 ? QString() : typedText(discount));
    }
    m_kind->loadHeader(stored->header);
    QList<LineEntry> lines;
    for (const documents::DocumentLineRow &line :
        documents::documentLines(session.db(), entry, number))
        lines.append(storedLine(line));
    m_lines->setLines(lines);
    m_status->setText(doctexts::status
        + (m_checked ? doctexts::statusChecked(row->checker, row->checkDate)
                     : doctexts::statusUnchecked));
    setReadOnly(m_checked);
    m_modified = false;
    m_loading = false;
    refreshButtons();
    refreshTotals();
}

LineEntry DocumentScreen::storedLine(const documents::DocumentLineRow &stored) const
{
    const shell::Session &session = m_workspace.session;
    // The goods as it is now (its stock in the header's warehouse), the line as stored.
    documents::GoodsChoice goods;
    goods.code = stored.goods;
    if (const auto now = documents::goodsChoice(session, stored.goods, warehouseCode()))
        goods = *now;
    goods.name = stored.goodsName;
    goods.packing = stored.packing;
    goods.baseUnit = stored.baseUnit;
    goods.unit = stored.unit;
    LineEntry line = LineEntry::of(goods, documents::unitChoices(session.db(), stored.goods));
    line.quantity = typedText(stored.quantity);
    line.price = typedText(stored.price);
    line.discountRate = stored.discountRate == 1 ? QString() : typedText(stored.discountRate);
    line.taxRate = stored.taxRate == 0 ? QString() : typedText(stored.taxRate);
    line.batch = stored.batch;
    line.produced = stored.produced;
    line.expiry = stored.expiry;
    line.remark = stored.remark;
    line.priceTyped = true;
    m_kind->loadLine(stored, line);
    return line;
}

documents::DocumentDraft DocumentScreen::draft(bool &valid) const
{
    documents::DocumentDraft d;
    valid = true;
    d.number = m_number;
    d.date = m_date->text();
    if (m_party)
        d.party = m_party->code().isEmpty() ? m_party->text().trimmed() : m_party->code();
    d.warehouse = warehouseCode();
    if (m_employee)
        d.employee = m_employee->currentData().toString();
    if (m_note)
        d.note = m_note->text();
    if (m_discount) {
        const Result<double> discount
            = documents::readHeaderAmount(doctexts::discount, m_discount->text());
        if (discount)
            d.discount = discount.value();
        else {
            m_workspace.session.ui().inform(discount.message());
            valid = false;
        }
    }
    d.lines = m_lines->drafts();
    // A typed cost goes to the operation as a number only; what is no number is told here.
    for (int row = 0; row < m_lines->rowCount() && valid; ++row) {
        const LineEntry &line = m_lines->line(row);
        if (!line.costTyped)
            continue;
        const Result<double> cost
            = documents::readLineNumber(row + 1, documents::LineNumber::Cost, line.cost);
        if (!cost) {
            m_workspace.session.ui().inform(cost.message());
            valid = false;
        }
    }
    return d;
}

bool DocumentScreen::save()
{
    m_grid->finishEditing();
    if (m_checked || !m_saveButton->isEnabled())
        return false;
    if (m_party && !m_party->resolve())
        return false;
    m_lines->removeBlankLines();
    bool valid = false;
    const documents::DocumentDraft d = draft(valid);
    if (!valid)
        return false;
    const Result<QString> saved = m_kind->save(m_workspace.session, d);
    if (!saved) {
        if (m_lines->rowCount() == 0)
            m_lines->appendBlank();
        return false;
    }
    m_modified = false;
    m_kind->afterSave(*this, saved.value());
    return true;
}

void DocumentScreen::check()
{
    m_grid->finishEditing();
    if (m_checked || !m_checkButton->isEnabled())
        return;
    if ((m_number.isEmpty() || m_modified) && !save())
        return;
    if (m_kind->check(m_workspace.session, m_number, this))
        openDocument(m_number);
}

void DocumentScreen::uncheck()
{
    if (!m_checked || !m_kind->hasUncheck() || !m_uncheckButton->isEnabled())
        return;
    if (m_kind->uncheck(m_workspace.session, m_number))
        openDocument(m_number);
}

void DocumentScreen::removeDocument()
{
    if (m_checked || m_number.isEmpty() || !m_deleteButton->isEnabled())
        return;
    if (!m_workspace.session.ui().ask(doctexts::deleteQuestion(m_kind->title(), m_number)))
        return;
    if (!m_kind->remove(m_workspace.session, m_number))
        return;
    m_modified = false;
    newDocument();
}

void DocumentScreen::showUnchecked()
{
    m_kind->showList(*this);
}

void DocumentScreen::addEditingAction(QPushButton *button, const QKeySequence &key)
{
    addBarAction(button, key);
    m_editingActions.append(button);
    button->setEnabled(!m_checked);
}

void DocumentScreen::addCheckedAction(QPushButton *button, const QKeySequence &key)
{
    addBarAction(button, key);
    m_checkedActions.append(button);
    button->setEnabled(m_checked && !m_number.isEmpty());
}

void DocumentScreen::addBarAction(QPushButton *button, const QKeySequence &key)
{
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    m_bar->insertWidget(m_bar->count() - 1, button);
    auto *shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, button, [button] {
        if (button->isEnabled())
            button->click();
    });
}

void DocumentScreen::closeEvent(QCloseEvent *event)
{
    if (mayDiscard()) {
        m_modified = false;
        event->accept();
    } else {
        event->ignore();
    }
}

} // namespace medistock::ui
