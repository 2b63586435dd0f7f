#include "ui/stock/alarmscreen.h"

#include "shell/session.h"
#include "stock/stockquery.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/stockqueryscreen.h"
#include "ui/stock/texts.h"

#include <QComboBox>
#include <QLineEdit>

namespace medistock::ui {

StockAlarmScreen::StockAlarmScreen(Workspace &workspace, QWidget *parent)
    : QueryScreen(workspace, sttexts::alarmTitle, parent)
    , m_warehouse(new QComboBox(this))
    , m_class(new QComboBox(this))
    , m_search(new QLineEdit(this))
{
    fillMasterBox(m_warehouse, workspace.session, "warehouse", true);
    fillClasses(m_class, workspace.session);
    m_search->setPlaceholderText(sttexts::searchHint);
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(180);
    addFilter(sttexts::search, m_search);
    addFilter(sttexts::warehouse, m_warehouse);
    addFilter(sttexts::goodsClass, m_class);
    const int q = workspace.session.params().quantityDecimals();
    const auto number = [q](const QString &caption, bool summed) {
        return QueryColumn { caption, QueryColumn::Kind::Number, q, summed, 80 };
    };
    setColumns({ { sttexts::code }, { sttexts::name, QueryColumn::Kind::Text, 0, false, 180 },
                   { sttexts::packing }, { sttexts::unit, QueryColumn::Kind::Text, 0, false, 50 },
                   { sttexts::maker, QueryColumn::Kind::Text, 0, false, 180 },
                   { sttexts::warehouse }, number(sttexts::quantity, true),
                   number(sttexts::minimum, false), number(sttexts::shortage, true) },
        QStringLiteral("库存报警查询"));
    connect(m_warehouse, &QComboBox::activated, this, &QueryScreen::run);
    connect(m_class, &QComboBox::activated, this, &QueryScreen::run);
    connect(this, &QueryScreen::activated, this, [this](int row) {
        if (row < 0 || row >= m_goods.size())
            return;
        showLedgerDialog(m_workspace, m_goods[row], m_warehouse->currentData().toString(), this);
    });
    run();
}

void StockAlarmScreen::fetch()
{
    stock::StockFilter filter;
    filter.warehouse = m_warehouse->currentData().toString();
    filter.classCode = m_class->currentData().toString();
    filter.text = m_search->text();
    QList<QVariantList> rows;
    m_goods.clear();
    for (const stock::StockAlarm &a : stock::stockAlarms(m_workspace.session, filter)) {
        rows.append({ a.goods.code, a.goods.name, a.goods.packing, a.goods.unit, a.goods.maker,
            filter.warehouse.isEmpty() ? m_warehouse->currentText() : a.goods.warehouseName,
            a.quantity, a.minimum, a.shortage });
        m_goods.append(a.goods.code);
    }
    setRows(rows);
}

} // namespace medistock::ui
