#include "ui/stock/ledgerscreen.h"

#include "documents/goodslookup.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "stock/stockquery.h"
#include "stock/texts.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/pickers.h"
#include "ui/stock/texts.h"

#include <QComboBox>
#include <QDialog>
#include <QHash>
#include <QVBoxLayout>

namespace medistock::ui {

CodeNameField *makeGoodsField(const shell::Session &session, QWidget *parent)
{
    auto search = [&session](const QString &text) {
        QList<CodeNameField::Choice> choices;
        readSafely(session.ui(), [&] {
            for (const documents::GoodsChoice &g : documents::findGoods(session, text, QString()))
                choices.append(
                    { g.code, g.name, { g.code, g.name, g.packing, g.baseUnit, g.maker } });
        });
        return choices;
    };
    auto *field = new CodeNameField(sttexts::goods,
        { sttexts::code, sttexts::name, sttexts::packing, sttexts::unit, sttexts::maker }, search,
        session.ui(), parent);
    field->setMinimumWidth(200);
    return field;
}

GoodsLedgerScreen::GoodsLedgerScreen(Workspace &workspace, QWidget *parent)
    : QueryScreen(workspace, sttexts::ledgerTitle, parent)
    , m_goods(makeGoodsField(workspace.session, this))
    , m_warehouse(new QComboBox(this))
    , m_kind(new QComboBox(this))
    , m_from(new DateField(this))
    , m_to(new DateField(this))
    , m_costs(shell::hasRight(workspace.session, QStringLiteral("qtcz"), 7))
{
    fillMasterBox(m_warehouse, workspace.session, "warehouse", true);
    addFilter(sttexts::goods, m_goods);
    addFilter(sttexts::warehouse, m_warehouse);
    m_kind->addItem(sttexts::allKinds, QString());
    for (const QString &kind : stock::ledgerKinds())
        m_kind->addItem(stock::ledgerKindName(kind), kind);
    addFilter(sttexts::kind, m_kind);
    addFilter(texts::dateFrom(), m_from);
    addFilter(texts::dateTo(), m_to);
    setPrintKey(QStringLiteral("kcbd"));
    const shell::Parameters &params = workspace.session.params();
    const int q = params.quantityDecimals();
    // Widths that keep every column in view at 1366 pixels.
    const auto text = [](const QString &caption, int width) {
        return QueryColumn { caption, QueryColumn::Kind::Text, 0, false, width };
    };
    const auto number = [](const QString &caption, int decimals, bool summed = false) {
        return QueryColumn { caption, QueryColumn::Kind::Number, decimals, summed, 76 };
    };
    QList<QueryColumn> columns { text(sttexts::warehouse, 80), text(sttexts::date, 86),
        text(sttexts::kind, 86), text(sttexts::number, 118), text(sttexts::party, 190),
        text(sttexts::batch, 80), text(sttexts::expiry, 86), number(sttexts::in, q, true),
        number(sttexts::out, q, true) };
    if (m_costs)
        columns += QList<QueryColumn> { number(sttexts::price, params.priceDecimals()),
            number(sttexts::amount, params.amountDecimals()) };
    columns.append(number(sttexts::balance, q));
    if (m_costs)
        columns += QList<QueryColumn> { number(sttexts::average, params.priceDecimals()),
            number(sttexts::balanceValue, params.stockValueDecimals()) };
    // The fields of the ledger's template (kcbd).
    const QHash<QString, QString> fields { { sttexts::warehouse, QStringLiteral("ck_name") },
        { sttexts::date, QStringLiteral("rq") }, { sttexts::kind, QStringLiteral("djlx") },
        { sttexts::number, QStringLiteral("gl_djh") }, { sttexts::party, QStringLiteral("wldw") },
        { sttexts::batch, QStringLiteral("t_ph") }, { sttexts::expiry, QStringLiteral("t_yxq") },
        { sttexts::in, QStringLiteral("rk_sl") }, { sttexts::out, QStringLiteral("ck_sl") },
        { sttexts::price, QStringLiteral("dj") }, { sttexts::amount, QStringLiteral("je") },
        { sttexts::balance, QStringLiteral("jc_sl") },
        { sttexts::average, QStringLiteral("jc_dj") },
        { sttexts::balanceValue, QStringLiteral("jc_je") } };
    for (QueryColumn &column : columns)
        column.field = fields.value(column.caption);
    setColumns(
        columns, QStringLiteral("商品明细帐") + (m_costs ? QStringLiteral("/成本") : QString()));
    connect(this, &QueryScreen::activated, this, &GoodsLedgerScreen::openSource);
}

void GoodsLedgerScreen::showGoods(const QString &goods, const QString &warehouse)
{
    readSafely(m_workspace.session.ui(), [&] {
        if (const auto found = documents::goodsChoice(m_workspace.session, goods, QString()))
            m_goods->setChoice(found->code, found->name);
    });
    chooseCode(m_warehouse, warehouse);
    run();
}

void GoodsLedgerScreen::fetch()
{
    m_sources.clear();
    setWindowTitle(sttexts::ledgerOf(m_goods->text()));
    if (m_goods->code().isEmpty()) {
        setRows({});
        return;
    }
    QList<QVariantList> rows;
    for (const stock::LedgerEntry &e : stock::goodsLedger(m_workspace.session, m_goods->code(),
             m_warehouse->currentData().toString(), m_from->text(), m_to->text(),
             m_kind->currentData().toString())) {
        const double signedQuantity = e.in > 0 ? e.in : -e.out;
        QVariantList row { e.warehouseName, e.date, stock::ledgerKindText(e.kind, signedQuantity),
            e.number, e.partyName, e.batch, e.expiry, e.in, e.out };
        if (m_costs)
            row << e.price << e.amount;
        row << e.running.quantity;
        if (m_costs)
            row << e.running.average << e.running.value;
        rows.append(row);
        m_sources.append({ e.kind, e.number });
    }
    setRows(rows);
}

void showLedgerDialog(
    Workspace &workspace, const QString &goods, const QString &warehouse, QWidget *parent)
{
    QDialog dialog(parent);
    auto *ledger = new GoodsLedgerScreen(workspace, &dialog);
    ledger->showGoods(goods, warehouse);
    dialog.setWindowTitle(ledger->windowTitle());
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(ledger);
    dialog.resize(1280, 640);
    dialog.exec();
}

void GoodsLedgerScreen::openSource(int row)
{
    if (row < 0 || row >= m_sources.size() || !m_workspace.openScreen)
        return;
    const QString &kind = m_sources[row].first;
    const int position = kind == QLatin1String("cj") ? 1 : kind == QLatin1String("ct") ? 2 : 0;
    if (position == 0)
        return;
    if (auto *screen
        = qobject_cast<DocumentScreen *>(m_workspace.openScreen(QStringLiteral("cggl"), position)))
        screen->openDocument(m_sources[row].second);
}

} // namespace medistock::ui
