#include "ui/accounts/ledgerscreen.h"

#include "accounts/moneylists.h"
#include "accounts/texts.h"
#include "core/interaction.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QShortcut>
#include <QTabWidget>

namespace medistock::ui {

namespace {

QueryColumn money(const QString &caption, bool summed = true, const QString &field = {})
{
    return { caption, QueryColumn::Kind::Number, 2, summed, 0, field };
}

QueryColumn text(const QString &caption, const QString &field, int width = 0)
{
    return { caption, QueryColumn::Kind::Text, 0, false, width, field };
}

QString ledgerTitle(accounts::PartyKind kind)
{
    return kind == accounts::PartyKind::Customer ? QStringLiteral("应收帐表")
                                                 : QStringLiteral("应付帐表");
}

} // namespace

LedgerRowsScreen::LedgerRowsScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent)
    : MoneyListScreen(workspace, ledgerTitle(kind) + QStringLiteral("明细"), parent)
    , m_kind(kind)
{
    addRangeFilters();
    fromField()->setText(session().clock().today().addYears(-1).toString(Qt::ISODate));
    setRunKey(QKeySequence());
    namespace t = accounts::texts;
    // The fields are those the statement prints the rows as.
    setColumns({ text(QStringLiteral("日期"), QStringLiteral("k_rq")),
                   text(QStringLiteral("单据号"), QStringLiteral("gl_djh"), 120),
                   text(QStringLiteral("摘要"), QStringLiteral("k_djtxt"), 130),
                   money(QStringLiteral("期初金额"), true, QStringLiteral("k_qcje")),
                   money(t::dueField(kind), true, QStringLiteral("k_yfje")),
                   money(t::paidField(kind), true, QStringLiteral("k_sfje")),
                   money(t::discountField(), true, QStringLiteral("k_yhje")),
                   money(QStringLiteral("余额"), false, QStringLiteral("k_ljje")),
                   text(QStringLiteral("账户"), QStringLiteral("k_fkfs")),
                   text(QStringLiteral("关联单据"), QStringLiteral("gl_djh2")),
                   text(QStringLiteral("业务员"), QStringLiteral("u_name")),
                   text(QStringLiteral("操作员"), QStringLiteral("a_name")),
                   text(QStringLiteral("备注"), QStringLiteral("k_note"), 160) },
        QStringLiteral("ledger-rows-") + accounts::partyKindCode(kind));
}

void LedgerRowsScreen::showParty(const QString &party, const QString &name)
{
    m_party = party;
    m_partyName = name;
    run();
}

PrintRequest LedgerRowsScreen::printRequest() const
{
    if (m_party.isEmpty())
        return {};
    PrintRequest request = MoneyListScreen::printRequest();
    request.key = m_kind == accounts::PartyKind::Customer ? QStringLiteral("khdzd")
                                                          : QStringLiteral("ghsdzd");
    request.variables = { { QStringLiteral("partyName"), m_partyName } };
    return request;
}

void LedgerRowsScreen::fetch()
{
    QList<QVariantList> rows;
    if (!m_party.isEmpty()) {
        accounts::MoneyFilter filter = baseFilter();
        filter.party = m_party;
        for (const accounts::LedgerRow &r : accounts::ledgerRows(session().db(), m_kind, filter))
            rows.append({ r.date, r.number, r.text, r.opening, r.due, r.paid, r.discount, r.balance,
                r.account, r.link, r.salesmanName, r.operatorName, r.note });
    }
    setRows(rows);
}

LedgerScreen::LedgerScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent)
    : MoneyListScreen(workspace, ledgerTitle(kind), parent)
    , m_kind(kind)
    , m_search(new QLineEdit(this))
    , m_owingOnly(new QCheckBox(QStringLiteral("只显示有余额的"), this))
    , m_ledger(new LedgerRowsScreen(workspace, kind, this))
{
    m_search->setClearButtonEnabled(true);
    addFilter(QStringLiteral("查找"), m_search);
    addFilter(QString(), m_owingOnly);
    connect(m_owingOnly, &QCheckBox::toggled, this, &QueryScreen::run);
    const QString who = accounts::texts::partyWord(kind);
    addOperation(QStringLiteral("重新计算"), Qt::Key_F6, [this] { recalculate(); });
    setColumns({ { who + QStringLiteral("编号") },
                   { who + QStringLiteral("名称"), QueryColumn::Kind::Text, 0, false, 220 },
                   money(kind == accounts::PartyKind::Customer ? QStringLiteral("应收余额")
                                                               : QStringLiteral("应付余额")) },
        QStringLiteral("ledger-balances-") + accounts::partyKindCode(kind));
    setDetail(m_ledger);
    connect(this, &QueryScreen::currentRowChanged, this, [this](int) { showCurrentParty(); });
    setPrintKey(m_kind == accounts::PartyKind::Customer ? QStringLiteral("khdzd")
                                                        : QStringLiteral("ghsdzd"));
    // One F8 for the window: the ledger's own would make the key ambiguous inside it.
    for (QShortcut *shortcut : m_ledger->findChildren<QShortcut *>())
        if (shortcut->key() == QKeySequence(Qt::Key_F8))
            shortcut->setEnabled(false);
}

void LedgerScreen::showCurrentParty()
{
    const int row = currentRow();
    const bool chosen = row >= 0 && row < m_rows.size();
    m_ledger->showParty(
        chosen ? m_rows[row].party : QString(), chosen ? m_rows[row].name : QString());
}

PrintRequest LedgerScreen::printRequest() const
{
    return m_ledger->printRequest();
}

QString LedgerScreen::currentParty() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rows.size() ? m_rows[row].party : QString();
}

void LedgerScreen::fetch()
{
    m_rows = accounts::partyBalances(
        session().db(), m_kind, m_search->text().trimmed(), m_owingOnly->isChecked());
    QList<QVariantList> rows;
    for (const accounts::PartyBalance &p : m_rows)
        rows.append({ p.party, p.name, p.balance });
    setRows(rows);
    showCurrentParty();
}

void LedgerScreen::recalculate()
{
    const int row = currentRow();
    const bool chosen = row >= 0 && row < m_rows.size();
    recalculateParties(m_kind == accounts::PartyKind::Customer ? QStringLiteral("重新计算应收款")
                                                               : QStringLiteral("重新计算应付款"),
        m_kind, chosen ? m_rows[row].party : QString(), chosen ? m_rows[row].name : QString(),
        session().clock().today().addYears(-1).toString(Qt::ISODate),
        accounts::recalculateAllLedgers);
}

WrittenOffScreen::WrittenOffScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent)
    : MoneyListScreen(workspace, QStringLiteral("抹零金额"), parent)
    , m_kind(kind)
{
    addRangeFilters();
    m_party = addPartyFilter(kind);
    const QString who = accounts::texts::partyWord(kind);
    setColumns({ { QStringLiteral("日期") },
                   { QStringLiteral("单据号"), QueryColumn::Kind::Text, 0, false, 120 },
                   { kind == accounts::PartyKind::Customer ? QStringLiteral("收款单")
                                                           : QStringLiteral("付款单"),
                       QueryColumn::Kind::Text, 0, false, 120 },
                   { who + QStringLiteral("编号") },
                   { who + QStringLiteral("名称"), QueryColumn::Kind::Text, 0, false, 180 },
                   money(accounts::texts::writtenOffField()), { QStringLiteral("操作员") },
                   { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 220 } },
        QStringLiteral("written-off-") + accounts::partyKindCode(kind));
}

void WrittenOffScreen::fetch()
{
    accounts::MoneyFilter filter = baseFilter();
    filter.party = m_party->code();
    QList<QVariantList> rows;
    for (const accounts::LedgerRow &r : accounts::writtenOffRows(session().db(), m_kind, filter))
        rows.append(
            { r.date, r.number, r.link, r.party, r.partyName, -r.due, r.operatorName, r.note });
    setRows(rows);
}

QTabWidget *ledgerWindow(Workspace &workspace, accounts::PartyKind kind)
{
    auto *tabs = new QTabWidget;
    auto *balances = new LedgerScreen(workspace, kind, tabs);
    tabs->addTab(balances, ledgerTitle(kind));
    tabs->addTab(new WrittenOffScreen(workspace, kind, tabs), QStringLiteral("抹零金额"));
    tabs->setFocusProxy(balances);
    balances->run();
    return tabs;
}

} // namespace medistock::ui
