#include "ui/stock/stockkinds.h"

#include "documents/goodslookup.h"
#include "shell/session.h"
#include "stock/costs.h"
#include "stock/documents/entry.h"
#include "stock/documents/kinds.h"
#include "stock/documents/lossoverflow.h"
#include "stock/documents/transfer.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/pickers.h"
#include "ui/stock/texts.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSqlRecord>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// The label before a header field reads `text`.
void relabel(QWidget *field, const QString &text)
{
    for (QLabel *label : field->parentWidget()->findChildren<QLabel *>())
        if (label->buddy() == field)
            label->setText(text + QStringLiteral("："));
}

ListFilters transferFilters()
{
    ListFilters filters;
    filters.party = false;
    return filters;
}

// A transfer has no party, and keeps its value only as the lines' totals: the list's party and
// amount columns and the lines' amount before tax would stay empty or 0, so they are hidden.
void hideEmptyColumns(DocumentListScreen &list)
{
    const QList<QueryColumn> &columns = list.model()->columns();
    for (int column = 0; column < columns.size(); ++column)
        if (columns[column].caption == QStringLiteral("供货商")
            || columns[column].caption == QStringLiteral("金额"))
            list.grid()->setColumnHidden(column, true);
    QTableWidget *lines = list.linesGrid();
    for (int column = 0; column < lines->columnCount(); ++column)
        if (lines->horizontalHeaderItem(column)
            && lines->horizontalHeaderItem(column)->text() == QStringLiteral("金额"))
            lines->setColumnHidden(column, true);
}

} // namespace

TransferListDialog::TransferListDialog(DocumentScreen &screen)
    : QDialog(&screen)
    , m_list(new DocumentListScreen(screen.workspace(), sttexts::transferQuery,
          { { &stock::transferEntry(), QStringLiteral("kcgl"), 1, QStringLiteral("kcdb") } },
          transferFilters(), this))
{
    setWindowTitle(sttexts::transferQuery);
    m_list->setOpener([this, &screen](const ListedKind &, const QString &number) {
        accept();
        screen.openDocument(number);
    });
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    resize(1100, 600);
    m_list->run();
    hideEmptyColumns(*m_list);
}

Outcome StockScreenKind::check(shell::Session &session, const QString &number, QWidget *)
{
    return m_check(session, number);
}

Outcome StockScreenKind::uncheck(shell::Session &session, const QString &number)
{
    return m_uncheck(session, number);
}

Outcome StockScreenKind::remove(shell::Session &session, const QString &number)
{
    return documents::deleteDocument(session, entry(), number);
}

void StockScreenKind::addActions(DocumentScreen &screen)
{
    m_screen = &screen;
}

void StockScreenKind::findScreen(QWidget *parent)
{
    for (QWidget *up = parent; up && !m_screen; up = up->parentWidget())
        m_screen = qobject_cast<DocumentScreen *>(up);
}

double StockScreenKind::unitFactor(
    const shell::Session &session, const documents::GoodsChoice &goods, const QString &unit)
{
    if (unit == goods.unit)
        return goods.factor;
    for (const documents::UnitChoice &choice : documents::unitChoices(session.db(), goods.code))
        if (choice.unit == unit)
            return choice.factor;
    return 1;
}

double StockScreenKind::costOnScreen(
    const shell::Session &session, const documents::GoodsChoice &goods, const QString &unit) const
{
    const double factor = unitFactor(session, goods, unit);
    if (!m_screen)
        return goods.average * factor;
    return stock::costAsOf(session, goods.code, m_screen->warehouseCode(), m_screen->date())
        * factor;
}

TransferScreenKind::TransferScreenKind()
    : StockScreenKind(stock::transferRights(), stock::checkTransfer, stock::uncheckTransfer)
{ }

const documents::DocumentKind &TransferScreenKind::entry() const
{
    return stock::transferEntry();
}

QList<LineField> TransferScreenKind::lineFields() const
{
    return { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Unit,
        LineField::Batch, LineField::Produced, LineField::Expiry, LineField::Quantity,
        LineField::Price, LineField::Amount, LineField::Stock };
}

QString TransferScreenKind::dueLabel() const
{
    return sttexts::transferAmount;
}

QList<std::pair<QString, QWidget *>> TransferScreenKind::createHeaderFields(QWidget *parent)
{
    m_in = new QComboBox(parent);
    findScreen(parent);
    fillMasterBox(m_in, m_screen->workspace().session, "warehouse");
    return { { sttexts::receivingWarehouse, m_in } };
}

void TransferScreenKind::loadHeader(const QSqlRecord &header)
{
    chooseCode(m_in, header.value(QStringLiteral("ck_in")).toString());
}

void TransferScreenKind::clearHeader()
{
    // Another warehouse than the issuing one, which starts as the first.
    m_in->setCurrentIndex(m_in->count() > 1 ? 1 : 0);
}

void TransferScreenKind::setHeaderReadOnly(bool readOnly)
{
    m_in->setEnabled(!readOnly);
}

double TransferScreenKind::proposePrice(const shell::Session &session,
    const documents::GoodsChoice &goods, const QString &unit, const QString &) const
{
    return costOnScreen(session, goods, unit);
}

Result<QString> TransferScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    documents::DocumentDraft transfer = draft;
    transfer.secondWarehouse = m_in->currentData().toString();
    return stock::saveTransfer(session, transfer);
}

void TransferScreenKind::addActions(DocumentScreen &screen)
{
    StockScreenKind::addActions(screen);
    relabel(screen.warehouseBox(), sttexts::issuingWarehouse);
    auto *list = new QPushButton(sttexts::transferQuery + QStringLiteral("(Ctrl+F)"), &screen);
    QObject::connect(list, &QPushButton::clicked, &screen, [&screen] {
        TransferListDialog dialog(screen);
        dialog.exec();
    });
    screen.addBarAction(list, QKeySequence(Qt::CTRL | Qt::Key_F));
}

LossOverflowScreenKind::LossOverflowScreenKind(bool loss)
    : StockScreenKind(stock::lossOverflowRights(), loss ? stock::checkLoss : stock::checkOverflow,
        loss ? stock::uncheckLoss : stock::uncheckOverflow)
    , m_loss(loss)
{ }

const documents::DocumentKind &LossOverflowScreenKind::entry() const
{
    return m_loss ? stock::lossEntry() : stock::overflowEntry();
}

QList<LineField> LossOverflowScreenKind::lineFields() const
{
    return { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Batch,
        LineField::Produced, LineField::Expiry, LineField::Quantity, LineField::Price,
        LineField::Amount, LineField::Stock, LineField::Remark };
}

QString LossOverflowScreenKind::dueLabel() const
{
    return m_loss ? sttexts::lossAmount : sttexts::overflowAmount;
}

QString LossOverflowScreenKind::printKey() const
{
    return m_loss ? QStringLiteral("spbs") : QStringLiteral("spby");
}

double LossOverflowScreenKind::proposePrice(const shell::Session &session,
    const documents::GoodsChoice &goods, const QString &, const QString &) const
{
    return costOnScreen(session, goods, goods.baseUnit);
}

Result<QString> LossOverflowScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    return m_loss ? stock::saveLoss(session, draft) : stock::saveOverflow(session, draft);
}

LossOverflowScreen::LossOverflowScreen(Workspace &workspace, QWidget *parent)
    : QTabWidget(parent)
    , m_loss(new DocumentScreen(workspace, std::make_unique<LossOverflowScreenKind>(true)))
    , m_overflow(new DocumentScreen(workspace, std::make_unique<LossOverflowScreenKind>(false)))
{
    setWindowTitle(sttexts::lossOverflowTitle);
    addTab(m_loss, sttexts::lossPage);
    addTab(m_overflow, sttexts::overflowPage);
    setFocusProxy(m_loss);
}

void LossOverflowScreen::closeEvent(QCloseEvent *event)
{
    // Each page is asked as if it were closed itself, without hiding it.
    for (DocumentScreen *screen : { m_loss, m_overflow }) {
        QCloseEvent asked;
        QCoreApplication::sendEvent(screen, &asked);
        if (!asked.isAccepted()) {
            setCurrentWidget(screen);
            event->ignore();
            return;
        }
    }
    event->accept();
}

} // namespace medistock::ui
