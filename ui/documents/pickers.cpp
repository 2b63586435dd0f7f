#include "ui/documents/pickers.h"

#include "core/rounding.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "shell/parameters.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/picker.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/texts.h"
#include "ui/masterdata/goodsdialog.h"

#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QSqlRecord>
#include <QTableWidget>

namespace medistock::ui {

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

bool isDisabled(const masterdata::MasterKind &kind, const QSqlRecord &row)
{
    return kind.disabledColumn && shell::readFlag(row.value(str(kind.disabledColumn)));
}

const masterdata::MasterKind &partyKind(documents::PartyTable table)
{
    return *masterdata::findMasterKind(table == documents::PartyTable::Customer
            ? QStringLiteral("customer")
            : QStringLiteral("supplier"));
}

QString number(double value, int decimals)
{
    return QString::number(core::roundTo(value, decimals), 'f', decimals);
}

} // namespace

QString partyLabel(documents::PartyTable table)
{
    return table == documents::PartyTable::Customer ? doctexts::customer : doctexts::supplier;
}

CodeNameField *makePartyField(
    const shell::Session &session, documents::PartyTable table, QWidget *parent)
{
    const masterdata::MasterKind &kind = partyKind(table);
    auto search = [&session, &kind](const QString &text) {
        QList<CodeNameField::Choice> choices;
        readSafely(session.ui(), [&] {
            for (const QSqlRecord &row : masterdata::searchMasterRows(session.db(), kind, text)) {
                if (isDisabled(kind, row))
                    continue;
                const QString code = row.value(str(kind.codeColumn)).toString();
                const QString name = row.value(str(kind.nameColumn)).toString();
                choices.append(
                    { code, name, { code, name, row.value(str(kind.mnemonicColumn)).toString() } });
            }
        });
        return choices;
    };
    return new CodeNameField(partyLabel(table),
        { doctexts::code, doctexts::name, doctexts::mnemonic }, search, session.ui(), parent);
}

void fillMasterBox(QComboBox *box, const shell::Session &session, const char *kindKey, bool withAll)
{
    const masterdata::MasterKind &kind = *masterdata::findMasterKind(str(kindKey));
    box->clear();
    if (withAll)
        box->addItem(
            qstrcmp(kindKey, "warehouse") == 0 ? texts::allWarehouses() : texts::all(), QString());
    readSafely(session.ui(), [&] {
        for (const QSqlRecord &row : masterdata::searchMasterRows(session.db(), kind, QString()))
            if (!isDisabled(kind, row))
                box->addItem(row.value(str(kind.nameColumn)).toString(),
                    row.value(str(kind.codeColumn)).toString());
    });
}

bool chooseCode(QComboBox *box, const QString &code)
{
    const int index = box->findData(code);
    if (index >= 0)
        box->setCurrentIndex(index);
    return index >= 0;
}

namespace {

QStringList goodsCaptions(bool costs, bool sales)
{
    QStringList captions { doctexts::lineCaption(int(LineField::Code)),
        doctexts::lineCaption(int(LineField::Name)), doctexts::packing, doctexts::unit,
        doctexts::maker, doctexts::stock };
    if (costs)
        captions.append(doctexts::purchasePrice);
    if (sales)
        captions.append(doctexts::salePrice);
    return captions;
}

PickRow goodsRow(
    const documents::GoodsChoice &g, const shell::Parameters &params, bool costs, bool sales)
{
    QStringList texts { g.code, g.name, g.packing, g.unit, g.maker,
        number(g.stock, params.quantityDecimals()) };
    const double purchase = g.lastPurchasePrice > 0 ? g.lastPurchasePrice : g.presetPurchasePrice;
    if (costs)
        texts.append(number(purchase * g.factor, params.priceDecimals()));
    if (sales)
        texts.append(number(g.presetSalePrice * g.factor, params.priceDecimals()));
    return { texts };
}

} // namespace

GoodsPickerDialog::GoodsPickerDialog(Workspace &workspace, const QString &text,
    const QString &warehouse, const QString &area, int newGoodsRight, QWidget *parent)
    : PickerDialog(texts::choiceTitle(doctexts::goods),
        goodsCaptions(shell::hasRight(workspace.session, QStringLiteral("qtcz"), 7),
            shell::hasRight(workspace.session, QStringLiteral("qtcz"), 9)),
        {}, parent)
    , m_workspace(workspace)
    , m_warehouse(warehouse)
{
    const shell::Session &session = workspace.session;
    const bool costs = shell::hasRight(session, QStringLiteral("qtcz"), 7);
    const bool sales = shell::hasRight(session, QStringLiteral("qtcz"), 9);
    setSearch([this, costs, sales](const QString &filter) {
        const shell::Session &s = m_workspace.session;
        readSafely(s.ui(), [&] { m_shown = documents::findGoods(s, filter, m_warehouse); });
        QList<PickRow> rows;
        for (const documents::GoodsChoice &g : std::as_const(m_shown))
            rows.append(goodsRow(g, s.params(), costs, sales));
        return rows;
    });
    for (const auto &[column, width] : { std::pair { 0, 96 }, { 1, 180 }, { 2, 100 }, { 3, 44 },
             { 4, 170 }, { 5, 64 }, { 6, 64 } })
        grid()->setColumnWidth(column, width);
    setNumberColumns({ 5, 6, 7 });
    if (newGoodsRight > 0 && shell::hasRight(session, area, newGoodsRight)) {
        auto *add = new QPushButton(doctexts::newGoods, this);
        add->setAutoDefault(false);
        connect(add, &QPushButton::clicked, this, &GoodsPickerDialog::addGoods);
        auto *key = new QShortcut(QKeySequence(Qt::Key_F7), this);
        connect(key, &QShortcut::activated, this, &GoodsPickerDialog::addGoods);
        addButton(add);
    }
    setFilterText(text);
}

void GoodsPickerDialog::addGoods()
{
    GoodsDialog dialog(m_workspace.session, {}, {}, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    readSafely(m_workspace.session.ui(), [&] {
        m_added = documents::goodsChoice(m_workspace.session, dialog.savedKey(), m_warehouse);
    });
    if (m_added)
        accept();
}

std::optional<documents::GoodsChoice> GoodsPickerDialog::chosen() const
{
    if (m_added)
        return m_added;
    if (chosenRow() < 0 || chosenRow() >= m_shown.size())
        return std::nullopt;
    return m_shown.at(chosenRow());
}

std::optional<documents::GoodsChoice> pickGoods(Workspace &workspace, const QString &text,
    const QString &warehouse, const QString &area, int newGoodsRight, QWidget *parent)
{
    GoodsPickerDialog picker(workspace, text, warehouse, area, newGoodsRight, parent);
    if (picker.exec() != QDialog::Accepted)
        return std::nullopt;
    return picker.chosen();
}

std::optional<BatchChoice> pickBatch(const QList<BatchChoice> &choices, QWidget *parent)
{
    PickerDialog picker(texts::choiceTitle(doctexts::batch),
        { doctexts::lineCaption(int(LineField::Batch)),
            doctexts::lineCaption(int(LineField::Expiry)),
            doctexts::lineCaption(int(LineField::Produced)), doctexts::stock,
            doctexts::statusColumn },
        {}, parent);
    QList<PickRow> rows;
    int proposed = 0;
    for (int i = 0; i < choices.size(); ++i) {
        const BatchChoice &c = choices[i];
        const QString state = c.expired ? doctexts::expired
            : c.nearExpiry              ? doctexts::nearExpiry
                                        : QString();
        const QColor colour = c.expired ? QColor(Qt::red)
            : c.nearExpiry              ? QColor(0xd0, 0x70, 0x00)
                                        : QColor();
        rows.append(
            { { c.batch, c.expiry, c.produced, core::plainNumber(c.stock), state }, colour });
        if (c.proposed)
            proposed = i;
    }
    picker.setNumberColumns({ 3 });
    picker.setRows(rows);
    picker.setCurrentRow(proposed);
    picker.resize(620, 320);
    if (picker.exec() != QDialog::Accepted || picker.chosenRow() < 0)
        return std::nullopt;
    return choices.at(picker.chosenRow());
}

} // namespace medistock::ui
