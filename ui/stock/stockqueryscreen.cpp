#include "ui/stock/stockqueryscreen.h"

#include "documents/expiry.h"
#include "masterdata/goodsclass.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "stock/stockquery.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"
#include "ui/documents/screenkind.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QDialog>
#include <QHBoxLayout>
#include <QHash>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace medistock::ui {

void fillClasses(QComboBox *box, const shell::Session &session)
{
    readSafely(session.ui(), [&] {
        QHash<int, int> depth;
        for (const masterdata::GoodsClass &c : masterdata::goodsClasses(session.db())) {
            depth[c.cid] = c.pid == 0 ? 0 : depth.value(c.pid) + 1;
            box->addItem(QString(depth[c.cid] * 2, QLatin1Char(' ')) + c.name, c.code);
        }
    });
}

StockQueryScreen::StockQueryScreen(Workspace &workspace, QWidget *parent)
    : QueryScreen(workspace, sttexts::stockTitle, parent)
    , m_warehouse(new QComboBox(this))
    , m_class(new QComboBox(this))
    , m_search(new QLineEdit(this))
    , m_batches(new QCheckBox(sttexts::byBatch, this))
    , m_inStock(new QCheckBox(sttexts::inStockOnly, this))
    , m_expiring(new QSpinBox(this))
    , m_costs(shell::hasRight(workspace.session, QStringLiteral("qtcz"), 7))
{
    fillMasterBox(m_warehouse, workspace.session, "warehouse", true);
    fillClasses(m_class, workspace.session);
    m_search->setPlaceholderText(sttexts::searchHint);
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(180);
    m_inStock->setChecked(true);
    m_expiring->setRange(-1, 3650);
    m_expiring->setValue(-1);
    m_expiring->setSpecialValueText(sttexts::noLimit);
    addFilter(sttexts::search, m_search);
    addFilter(sttexts::warehouse, m_warehouse);
    addFilter(sttexts::goodsClass, m_class);
    addFilter(sttexts::expiringWithin, m_expiring);
    auto *switches = new QWidget(this);
    auto *row = new QHBoxLayout(switches);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_batches);
    row->addWidget(m_inStock);
    addFilter(QString(), switches);
    setPrintKey(QStringLiteral("kccx"));
    connect(m_batches, &QCheckBox::toggled, this, [this](bool on) {
        setMode(on);
        run();
    });
    connect(m_inStock, &QCheckBox::toggled, this, &QueryScreen::run);
    connect(this, &QueryScreen::activated, this, &StockQueryScreen::showLedger);
    setMode(false);
    run();
}

void StockQueryScreen::setMode(bool batches)
{
    m_batchMode = batches;
    const shell::Parameters &params = m_workspace.session.params();
    const QueryColumn quantity { sttexts::quantity, QueryColumn::Kind::Number,
        params.quantityDecimals(), true };
    QList<QueryColumn> columns { { sttexts::code },
        { sttexts::name, QueryColumn::Kind::Text, 0, false, 180 }, { sttexts::packing },
        { sttexts::unit, QueryColumn::Kind::Text, 0, false, 50 } };
    if (batches)
        columns += QList<QueryColumn> { { sttexts::warehouse }, { sttexts::batch },
            { sttexts::produced }, { sttexts::expiry },
            { sttexts::daysLeft, QueryColumn::Kind::Number, 0, false, 70 }, quantity };
    else
        columns += QList<QueryColumn> { { sttexts::maker, QueryColumn::Kind::Text, 0, false, 180 },
            { sttexts::warehouse }, quantity,
            { sttexts::book, QueryColumn::Kind::Number, params.quantityDecimals(), true } };
    if (m_costs)
        columns += QList<QueryColumn> { { sttexts::cost, QueryColumn::Kind::Number,
                                            params.priceDecimals() },
            { sttexts::value, QueryColumn::Kind::Number, params.amountDecimals(), true } };
    // The fields of the stock query's template (kccx); days left and the book stock do not print.
    const QHash<QString, QString> fields { { sttexts::code, QStringLiteral("g_sn") },
        { sttexts::name, QStringLiteral("g_name") },
        { sttexts::packing, QStringLiteral("gg_name") },
        { sttexts::unit, QStringLiteral("dw_name") }, { sttexts::maker, QStringLiteral("g_sccs") },
        { sttexts::warehouse, QStringLiteral("ck_name") },
        { sttexts::batch, QStringLiteral("t_ph") }, { sttexts::expiry, QStringLiteral("t_yxq") },
        { sttexts::quantity, QStringLiteral("kc_sl") }, { sttexts::cost, QStringLiteral("kc_cbj") },
        { sttexts::value, QStringLiteral("kc_je") } };
    for (QueryColumn &column : columns)
        column.field = fields.value(column.caption);
    setColumns(columns,
        QStringLiteral("库存查询/") + (batches ? QStringLiteral("批次") : QStringLiteral("仓库"))
            + (m_costs ? QStringLiteral("/成本") : QString()));
}

void StockQueryScreen::fetch()
{
    const bool batches = m_batches->isChecked() || m_expiring->value() >= 0;
    if (batches != m_batchMode) {
        const QSignalBlocker quiet(m_batches);
        m_batches->setChecked(batches);
        setMode(batches);
    }
    m_rowKeys.clear();
    if (batches)
        fetchBatches();
    else
        fetchWarehouses();
}

void StockQueryScreen::fetchWarehouses()
{
    stock::StockFilter filter { m_warehouse->currentData().toString(),
        m_class->currentData().toString(), m_search->text(), m_inStock->isChecked(), -1 };
    QList<QVariantList> rows;
    for (const stock::WarehouseStock &s : stock::stockByWarehouse(m_workspace.session, filter)) {
        QVariantList row { s.goods.code, s.goods.name, s.goods.packing, s.goods.unit, s.goods.maker,
            s.goods.warehouseName, s.quantity, s.book };
        if (m_costs)
            row << s.cost << s.value;
        rows.append(row);
        m_rowKeys.append({ s.goods.code, s.goods.warehouse });
    }
    setRows(rows);
}

void StockQueryScreen::fetchBatches()
{
    stock::StockFilter filter { m_warehouse->currentData().toString(),
        m_class->currentData().toString(), m_search->text(), m_inStock->isChecked(),
        m_expiring->value() };
    const QDate today = m_workspace.session.clock().today();
    QList<QVariantList> rows;
    QList<QColor> colours;
    for (const stock::BatchStock &s : stock::stockByBatch(m_workspace.session, filter)) {
        const QDate last
            = QDate::fromString(documents::expiryDay(s.expiry), QStringLiteral("yyyy-MM-dd"));
        const QVariant days = last.isValid() ? QVariant(today.daysTo(last)) : QVariant();
        QVariantList row { s.goods.code, s.goods.name, s.goods.packing, s.goods.unit,
            s.goods.warehouseName, s.batch, s.produced, s.expiry, days, s.quantity };
        if (m_costs)
            row << s.cost << s.value;
        rows.append(row);
        const bool expired = last.isValid() && last < today;
        const bool near = last.isValid() && !expired && today.daysTo(last) <= nearExpiryDays;
        colours.append(expired ? QColor(Qt::red) : near ? QColor(0xd0, 0x70, 0x00) : QColor());
        m_rowKeys.append({ s.goods.code, s.goods.warehouse });
    }
    setRows(rows, colours);
}

void StockQueryScreen::showLedger(int row)
{
    if (row < 0 || row >= m_rowKeys.size())
        return;
    showLedgerDialog(m_workspace, m_rowKeys[row].first, m_rowKeys[row].second, this);
}

} // namespace medistock::ui
