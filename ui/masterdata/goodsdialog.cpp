#include "ui/masterdata/goodsdialog.h"

#include "core/interaction.h"
#include "masterdata/editing.h"
#include "masterdata/kinds.h"
#include "masterdata/numbers.h"
#include "masterdata/texts.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/masterdata/forms.h"
#include "ui/masterdata/texts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlRecord>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QString unitLabel(const char *column)
{
    return labelOf("jxc_goodsdw", column);
}

// A page with a grid above and a row of entry fields with add and remove buttons below.
QWidget *linePage(QWidget *parent, QTableWidget *grid,
    const QList<QPair<QString, QWidget *>> &entries, QPushButton *add, QPushButton *remove)
{
    auto *page = new QWidget(parent);
    auto *entryRow = new QGridLayout;
    for (int i = 0; i < entries.size(); ++i) {
        entryRow->addWidget(new QLabel(entries[i].first, page), 0, i);
        entryRow->addWidget(entries[i].second, 1, i);
    }
    entryRow->addWidget(add, 1, int(entries.size()));
    entryRow->addWidget(remove, 1, int(entries.size()) + 1);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(grid, 1);
    layout->addLayout(entryRow);
    return page;
}

QLineEdit *numberField(QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setAlignment(Qt::AlignRight);
    edit->setMaximumWidth(110);
    return edit;
}

} // namespace

GoodsDialog::GoodsDialog(
    const shell::Session &session, const QString &code, const QString &classCode, QWidget *parent)
    : MasterRowDialog(session, masterdata::goodsKind(), code, parent)
{
    addPage(buildUnitsPage(), mdtexts::unitsPage);
    addPage(buildBarcodesPage(), mdtexts::barcodesPage);
    addPage(buildPricesPage(), mdtexts::namedPricesPage);
    if (code.isEmpty()) {
        if (!classCode.isEmpty())
            lookup(QStringLiteral("gc_sn"))->setValue(classCode);
    } else {
        readSafely(session.ui(), [&] {
            m_units = masterdata::goodsUnits(session.db(), code);
            m_barcodes = masterdata::goodsBarcodes(session.db(), code);
            m_prices = masterdata::goodsPrices(session.db(), code);
        });
        if (!shell::hasRight(session, QStringLiteral("qtcz"), 19))
            for (const char *column : { "g_jj", "g_sj" })
                m_fields.lock(QString::fromLatin1(column));
        if (!shell::hasRight(session, QStringLiteral("qtcz"), 21))
            for (const char *column : { "g_tclb", "g_tc" })
                m_fields.lock(QString::fromLatin1(column));
    }
    showLines();
    enableEnterNavigation(this);
    resize(860, 560);
}

QWidget *GoodsDialog::buildUnitsPage()
{
    m_unitGrid = makeGrid({ unitLabel("dw_name"), unitLabel("g_zhxs"), unitLabel("g_sptm"),
                              unitLabel("g_jj"), unitLabel("g_sj") },
        this);
    m_unitGrid->setColumnWidth(2, 160);
    m_unitName = new LookupBox(true, this);
    m_unitName->setMinimumWidth(90);
    readSafely(m_session.ui(), [&] {
        for (const QSqlRecord &row : masterdata::searchMasterRows(
                 m_session.db(), *masterdata::findMasterKind(QStringLiteral("unit")), QString()))
            m_unitName->addChoice(row.value(QStringLiteral("dw_name")).toString(),
                row.value(QStringLiteral("dw_name")).toString());
    });
    m_unitName->setEditText(QString());
    m_unitFactor = numberField(this);
    m_unitBarcode = new QLineEdit(this);
    m_unitPurchase = numberField(this);
    m_unitSale = numberField(this);
    auto *add = new QPushButton(mdtexts::addLine, this);
    auto *remove = new QPushButton(mdtexts::removeLine, this);
    connect(add, &QPushButton::clicked, this, &GoodsDialog::addUnit);
    connect(remove, &QPushButton::clicked, this, &GoodsDialog::removeUnit);
    return linePage(this, m_unitGrid,
        { { unitLabel("dw_name"), m_unitName }, { unitLabel("g_zhxs"), m_unitFactor },
            { unitLabel("g_sptm"), m_unitBarcode }, { unitLabel("g_jj"), m_unitPurchase },
            { unitLabel("g_sj"), m_unitSale } },
        add, remove);
}

QWidget *GoodsDialog::buildBarcodesPage()
{
    const QString barcode = labelOf("jxc_goodstm", "g_sptm");
    const QString remark = labelOf("jxc_goodstm", "g_tmbz");
    m_barcodeGrid = makeGrid({ barcode, remark }, this);
    m_barcodeGrid->setColumnWidth(0, 180);
    m_barcode = new QLineEdit(this);
    m_barcodeRemark = new QLineEdit(this);
    auto *add = new QPushButton(mdtexts::addLine, this);
    auto *remove = new QPushButton(mdtexts::removeLine, this);
    connect(add, &QPushButton::clicked, this, &GoodsDialog::addBarcode);
    connect(remove, &QPushButton::clicked, this, &GoodsDialog::removeBarcode);
    return linePage(
        this, m_barcodeGrid, { { barcode, m_barcode }, { remark, m_barcodeRemark } }, add, remove);
}

QWidget *GoodsDialog::buildPricesPage()
{
    m_priceGrid = makeGrid({ mdtexts::priceName, mdtexts::price }, this);
    m_priceName = new QLineEdit(this);
    m_price = numberField(this);
    auto *add = new QPushButton(mdtexts::addLine, this);
    auto *remove = new QPushButton(mdtexts::removeLine, this);
    connect(add, &QPushButton::clicked, this, &GoodsDialog::addPrice);
    connect(remove, &QPushButton::clicked, this, &GoodsDialog::removePrice);
    return linePage(this, m_priceGrid,
        { { mdtexts::priceName, m_priceName }, { mdtexts::price, m_price } }, add, remove);
}

void GoodsDialog::showLines()
{
    QList<QStringList> units;
    for (const masterdata::GoodsUnit &unit : std::as_const(m_units))
        units.append({ unit.unit, numberText(unit.factor), unit.barcode,
            numberText(unit.purchasePrice), numberText(unit.salePrice) });
    fillGrid(m_unitGrid, units);
    QList<QStringList> barcodes;
    for (const masterdata::GoodsBarcode &barcode : std::as_const(m_barcodes))
        barcodes.append({ barcode.barcode, barcode.remark });
    fillGrid(m_barcodeGrid, barcodes);
    QList<QStringList> prices;
    for (const auto &price : std::as_const(m_prices))
        prices.append({ price.first, numberText(price.second) });
    fillGrid(m_priceGrid, prices);
}

bool GoodsDialog::readNumber(
    const QLineEdit *field, const char *table, const char *column, double &number) const
{
    const Result<double> read = masterdata::readMasterNumber(
        QString::fromLatin1(table), QString::fromLatin1(column), field->text());
    if (!read) {
        m_session.ui().inform(read.message());
        return false;
    }
    number = read.value();
    return true;
}

void GoodsDialog::addUnit()
{
    masterdata::GoodsUnit unit;
    unit.unit = m_unitName->currentText().trimmed();
    unit.barcode = m_unitBarcode->text().trimmed();
    if (unit.unit.isEmpty()) {
        m_session.ui().inform(masterdata::texts::nameRequired(unitLabel("dw_name")));
        return;
    }
    if (!readNumber(m_unitFactor, "jxc_goodsdw", "g_zhxs", unit.factor)
        || !readNumber(m_unitPurchase, "jxc_goodsdw", "g_jj", unit.purchasePrice)
        || !readNumber(m_unitSale, "jxc_goodsdw", "g_sj", unit.salePrice))
        return;
    m_units.append(unit);
    showLines();
    m_unitName->setEditText(QString());
    for (QLineEdit *field : { m_unitFactor, m_unitBarcode, m_unitPurchase, m_unitSale })
        field->clear();
    m_unitName->setFocus();
}

void GoodsDialog::removeUnit()
{
    const int row = chosenRow(m_unitGrid);
    if (row >= 0 && row < m_units.size()) {
        m_units.removeAt(row);
        showLines();
    }
}

void GoodsDialog::addBarcode()
{
    const QString text = m_barcode->text().trimmed();
    if (text.isEmpty()) {
        m_session.ui().inform(masterdata::texts::nameRequired(labelOf("jxc_goodstm", "g_sptm")));
        return;
    }
    m_barcodes.append({ 0, text, m_barcodeRemark->text().trimmed() });
    showLines();
    m_barcode->clear();
    m_barcodeRemark->clear();
    m_barcode->setFocus();
}

void GoodsDialog::removeBarcode()
{
    const int row = chosenRow(m_barcodeGrid);
    if (row >= 0 && row < m_barcodes.size()) {
        m_barcodes.removeAt(row);
        showLines();
    }
}

void GoodsDialog::addPrice()
{
    const QString name = m_priceName->text().trimmed();
    double price = 0;
    if (name.isEmpty()) {
        m_session.ui().inform(masterdata::texts::nameRequired(mdtexts::priceName));
        return;
    }
    if (!readNumber(m_price, "jxc_goodsprice", "gp_price", price))
        return;
    // A name given again changes that price, as saving would.
    m_prices.removeIf([&](const QPair<QString, double> &p) { return p.first == name; });
    m_prices.append({ name, price });
    showLines();
    m_priceName->clear();
    m_price->clear();
    m_priceName->setFocus();
}

void GoodsDialog::removePrice()
{
    const int row = chosenRow(m_priceGrid);
    if (row >= 0 && row < m_prices.size()) {
        m_prices.removeAt(row);
        showLines();
    }
}

Result<QString> GoodsDialog::write(const masterdata::Values &values)
{
    return masterdata::saveGoods(m_session, { m_key, values, m_units, m_barcodes, m_prices });
}

} // namespace medistock::ui
