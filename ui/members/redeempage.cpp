#include "ui/members/redeempage.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "members/member.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/members/texts.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QWidget *grouped(const QString &title, QWidget *content, QWidget *parent)
{
    auto *group = new QGroupBox(title, parent);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(content);
    return group;
}

QTableWidgetItem *rightAligned(const QString &text)
{
    auto *item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

RedeemPage::RedeemPage(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_card(new QLineEdit(this))
    , m_member(new QLabel(this))
    , m_warehouse(new QComboBox(this))
    , m_period(new QComboBox(this))
    , m_gifts(makeGrid(mbtexts::giftColumns, this))
    , m_lines(makeGrid(mbtexts::lineColumns, this))
    , m_totals(new QLabel(this))
{
    const shell::Session &session = workspace.session;
    readSafely(session.ui(), [&] {
        for (const QSqlRecord &row : masterdata::searchMasterRows(
                 session.db(), *masterdata::findMasterKind(QStringLiteral("warehouse")), {}))
            m_warehouse->addItem(row.value(QStringLiteral("ck_name")).toString(),
                row.value(QStringLiteral("ck_sn")));
    });
    for (const members::RedemptionPeriod period :
        { members::RedemptionPeriod::Unlimited, members::RedemptionPeriod::Day,
            members::RedemptionPeriod::Week, members::RedemptionPeriod::Month })
        m_period->addItem(members::periodName(period), int(period));
    m_lines->setEditTriggers(QAbstractItemView::AllEditTriggers);
    m_card->setMinimumWidth(180);

    auto *find = new QPushButton(mbtexts::find, this);
    auto *saveButton = new QPushButton(mbtexts::saveRedemption, this);
    auto *clearButton = new QPushButton(mbtexts::clear, this);
    connect(find, &QPushButton::clicked, this, &RedeemPage::findMember);
    connect(m_card, &QLineEdit::returnPressed, this, &RedeemPage::findMember);
    connect(saveButton, &QPushButton::clicked, this, &RedeemPage::save);
    connect(clearButton, &QPushButton::clicked, this, &RedeemPage::clear);
    connect(m_warehouse, &QComboBox::currentIndexChanged, this, &RedeemPage::loadGifts);
    connect(m_gifts, &QTableWidget::cellDoubleClicked, this, &RedeemPage::pickGift);
    connect(m_gifts, &QTableWidget::cellActivated, this, &RedeemPage::pickGift);
    connect(m_lines, &QTableWidget::cellChanged, this, &RedeemPage::quantityEdited);
    auto *f3 = new QShortcut(QKeySequence(Qt::Key_F3), this);
    f3->setContext(Qt::WidgetWithChildrenShortcut);
    connect(f3, &QShortcut::activated, this, &RedeemPage::save);

    auto *top = new QHBoxLayout;
    top->addWidget(new QLabel(mbtexts::findMember, this));
    top->addWidget(m_card);
    top->addWidget(find);
    top->addWidget(m_member, 1);
    auto *choices = new QHBoxLayout;
    choices->addWidget(new QLabel(mbtexts::warehouse, this));
    choices->addWidget(m_warehouse);
    choices->addWidget(new QLabel(mbtexts::period, this));
    choices->addWidget(m_period);
    choices->addStretch(1);
    choices->addWidget(m_totals);
    choices->addWidget(saveButton);
    choices->addWidget(clearButton);
    auto *split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(grouped(mbtexts::giftsGroup, m_gifts, this));
    split->addWidget(grouped(mbtexts::chosenGroup, m_lines, this));
    split->setSizes({ 620, 460 });
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(choices);
    layout->addWidget(split, 1);
    for (const auto &[column, width] :
        { std::pair { 0, 90 }, { 1, 70 }, { 2, 170 }, { 3, 50 }, { 4, 90 }, { 5, 70 }, { 6, 60 } })
        m_gifts->setColumnWidth(column, width);
    for (const auto &[column, width] :
        { std::pair { 0, 90 }, { 1, 150 }, { 2, 70 }, { 3, 60 }, { 4, 70 } })
        m_lines->setColumnWidth(column, width);
    loadGifts();
    showLines();
    setFocusProxy(m_card);
}

bool RedeemPage::findMember()
{
    std::optional<members::Member> found;
    readSafely(m_workspace.session.ui(),
        [&] { found = members::findMemberByCard(m_workspace.session.db(), m_card->text()); });
    if (!found) {
        m_draft.member.clear();
        m_member->clear();
        m_workspace.session.ui().inform(mbtexts::memberNotFound);
        return false;
    }
    m_draft.member = found->code;
    m_member->setText(
        mbtexts::memberFound(found->card, found->name, found->levelName, found->points));
    m_gifts->setFocus();
    if (m_gifts->rowCount() > 0 && m_gifts->currentRow() < 0)
        m_gifts->selectRow(0);
    return true;
}

void RedeemPage::loadGifts()
{
    m_offers.clear();
    readSafely(m_workspace.session.ui(), [&] {
        m_offers = members::giftsOffered(
            m_workspace.session.db(), m_warehouse->currentData().toString());
    });
    QList<QStringList> rows;
    for (const members::GiftOffer &g : std::as_const(m_offers))
        rows.append({ g.goods, g.mnemonic, g.name, g.unit, g.packing, core::plainNumber(g.points),
            core::plainNumber(g.stock) });
    fillGrid(m_gifts, rows);
    for (int r = 0; r < m_gifts->rowCount(); ++r)
        for (const int c : { 5, 6 })
            m_gifts->item(r, c)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void RedeemPage::pickGift(int row)
{
    if (row < 0 || row >= m_offers.size())
        return;
    m_draft.pick(m_offers.at(row));
    showLines();
}

void RedeemPage::showLines()
{
    m_showing = true;
    m_lines->setRowCount(int(m_draft.lines.size()));
    for (int r = 0; r < m_draft.lines.size(); ++r) {
        const members::RedemptionLine &line = m_draft.lines.at(r);
        const QStringList cells { line.goods, line.name, core::plainNumber(line.pointsPerUnit),
            core::plainNumber(line.quantity), core::plainNumber(line.points()) };
        for (int c = 0; c < cells.size(); ++c) {
            QTableWidgetItem *item
                = c >= 2 ? rightAligned(cells[c]) : new QTableWidgetItem(cells[c]);
            if (c != 3)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            m_lines->setItem(r, c, item);
        }
    }
    m_totals->setText(mbtexts::redemptionTotals(m_draft.quantity(), m_draft.points()));
    m_showing = false;
}

void RedeemPage::quantityEdited(int row, int column)
{
    if (m_showing || column != 3)
        return;
    bool ok = false;
    const double quantity = m_lines->item(row, column)->text().toDouble(&ok);
    m_draft.setQuantity(row, ok ? quantity : 0);
    showLines();
}

bool RedeemPage::save()
{
    if (m_draft.member.isEmpty()) {
        m_workspace.session.ui().inform(mbtexts::findMemberFirst);
        m_card->setFocus();
        return false;
    }
    m_draft.warehouse = m_warehouse->currentData().toString();
    m_draft.period = members::RedemptionPeriod(m_period->currentData().toInt());
    const Result<QString> number = members::saveRedemption(m_workspace.session, m_draft);
    if (!number)
        return false;
    m_workspace.session.ui().inform(mbtexts::redeemed(number.value()));
    emit saved(number.value());
    clear();
    return true;
}

void RedeemPage::clear()
{
    m_draft.lines.clear();
    m_draft.member.clear();
    m_card->clear();
    m_member->clear();
    loadGifts();
    showLines();
    m_card->setFocus();
}

} // namespace medistock::ui
