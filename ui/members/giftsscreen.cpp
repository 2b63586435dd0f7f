#include "ui/members/giftsscreen.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/members/giftdialogs.h"
#include "ui/members/redeempage.h"
#include "ui/members/texts.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QDateEdit *dateEdit(QDate date, QWidget *parent)
{
    auto *edit = new QDateEdit(date, parent);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    edit->setCalendarPopup(true);
    edit->setMinimumWidth(120);
    return edit;
}

// A row of buttons, each calling a slot of the page.
template<class Page>
QHBoxLayout *buttonRow(
    Page *page, std::initializer_list<std::pair<QString, void (Page::*)()>> buttons)
{
    auto *row = new QHBoxLayout;
    for (const auto &[text, slot] : buttons) {
        auto *button = new QPushButton(text, page);
        button->setAutoDefault(false);
        QObject::connect(button, &QPushButton::clicked, page, slot);
        row->addWidget(button);
    }
    return row;
}

void alignNumbers(QTableWidget *grid, std::initializer_list<int> columns)
{
    for (int r = 0; r < grid->rowCount(); ++r)
        for (const int c : columns)
            if (QTableWidgetItem *item = grid->item(r, c))
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace

RedemptionsPage::RedemptionsPage(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_from(dateEdit(
          workspace.session.clock().today().addDays(1 - workspace.session.clock().today().day()),
          this))
    , m_to(dateEdit(workspace.session.clock().today(), this))
    , m_grid(makeGrid(mbtexts::redemptionColumns, this))
{
    auto *top = new QHBoxLayout;
    top->addWidget(new QLabel(mbtexts::from, this));
    top->addWidget(m_from);
    top->addWidget(new QLabel(mbtexts::to, this));
    top->addWidget(m_to);
    top->addLayout(buttonRow<RedemptionsPage>(this,
        { { mbtexts::query, &RedemptionsPage::reload },
            { mbtexts::deleteRedemption, &RedemptionsPage::deleteChosen } }));
    top->addStretch(1);
    auto *f5 = new QShortcut(QKeySequence(Qt::Key_F5), this);
    f5->setContext(Qt::WidgetWithChildrenShortcut);
    connect(f5, &QShortcut::activated, this, &RedemptionsPage::reload);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_grid, 1);
    m_grid->setColumnWidth(0, 130);
    m_grid->setColumnWidth(1, 150);
    workspace.rememberColumns(m_grid, QStringLiteral("赠品管理/兑换记录"));
    reload();
}

void RedemptionsPage::reload()
{
    readSafely(m_workspace.session.ui(), [&] {
        m_rows = members::listRedemptions(m_workspace.session.db(),
            m_from->date().toString(Qt::ISODate), m_to->date().toString(Qt::ISODate));
    });
    QList<QStringList> rows;
    for (const members::RedemptionRow &r : std::as_const(m_rows))
        rows.append({ r.number, r.time, r.card, r.memberName, r.warehouse,
            core::plainNumber(r.quantity), core::plainNumber(r.points), r.operatorName, r.note });
    fillGrid(m_grid, rows);
    alignNumbers(m_grid, { 5, 6 });
}

void RedemptionsPage::deleteChosen()
{
    const int row = chosenRow(m_grid);
    if (row < 0 || row >= m_rows.size()) {
        m_workspace.session.ui().inform(mbtexts::chooseRedemptionFirst);
        return;
    }
    if (members::deleteRedemption(m_workspace.session, m_rows.at(row).number))
        reload();
}

GiftItemsPage::GiftItemsPage(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_items(makeGrid(mbtexts::itemColumns, this))
    , m_movements(makeGrid(mbtexts::movementColumns, this))
{
    auto *buttons = buttonRow<GiftItemsPage>(this,
        { { mbtexts::add, &GiftItemsPage::addItem }, { mbtexts::edit, &GiftItemsPage::editItem },
            { mbtexts::remove, &GiftItemsPage::deleteItem },
            { mbtexts::purchase, &GiftItemsPage::addPurchase },
            { mbtexts::giveAway, &GiftItemsPage::addGiveAway },
            { mbtexts::deleteMovement, &GiftItemsPage::deleteMovement } });
    buttons->addStretch(1);
    connect(m_items, &QTableWidget::currentCellChanged, this, &GiftItemsPage::showMovements);
    connect(m_items, &QTableWidget::cellDoubleClicked, this, &GiftItemsPage::editItem);
    for (const auto &[key, slot] : { std::pair { Qt::Key_F2, &GiftItemsPage::editItem },
             std::pair { Qt::Key_Insert, &GiftItemsPage::addItem } }) {
        auto *shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    }
    auto *split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(m_items);
    split->addWidget(m_movements);
    split->setSizes({ 480, 600 });
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(split, 1);
    for (const auto &[column, width] :
        { std::pair { 0, 80 }, { 1, 160 }, { 2, 80 }, { 3, 70 }, { 4, 60 } })
        m_items->setColumnWidth(column, width);
    m_movements->setColumnWidth(2, 130);
    reload();
}

void GiftItemsPage::reload()
{
    const int current = m_items->currentRow();
    QList<QStringList> rows;
    readSafely(m_workspace.session.ui(), [&] {
        m_list = members::listGiftItems(m_workspace.session.db());
        for (const members::GiftItem &item : std::as_const(m_list))
            rows.append({ item.code, item.name, item.mnemonic, core::plainNumber(item.points),
                core::plainNumber(members::giftBalance(m_workspace.session.db(), item.code)) });
    });
    fillGrid(m_items, rows);
    alignNumbers(m_items, { 3, 4 });
    if (!rows.isEmpty())
        m_items->selectRow(std::clamp(current, 0, int(rows.size()) - 1));
    showMovements();
}

void GiftItemsPage::showMovements()
{
    const int row = m_items->currentRow();
    m_register.clear();
    if (row >= 0 && row < m_list.size())
        readSafely(m_workspace.session.ui(), [&] {
            m_register = members::giftRegister(m_workspace.session.db(), m_list.at(row).code);
        });
    QList<QStringList> rows;
    for (const members::GiftMovement &m : std::as_const(m_register))
        rows.append(
            { m.kind, m.date, m.number, core::plainNumber(m.quantity), m.note, m.operatorName });
    fillGrid(m_movements, rows);
    alignNumbers(m_movements, { 3 });
}

QString GiftItemsPage::chosenItem()
{
    const int row = m_items->currentRow();
    if (row < 0 || row >= m_list.size()) {
        m_workspace.session.ui().inform(mbtexts::chooseItemFirst);
        return QString();
    }
    return m_list.at(row).code;
}

void GiftItemsPage::addItem()
{
    GiftItemDialog dialog(m_workspace.session, {}, true, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void GiftItemsPage::editItem()
{
    if (chosenItem().isEmpty())
        return;
    GiftItemDialog dialog(m_workspace.session, m_list.at(m_items->currentRow()), false, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void GiftItemsPage::deleteItem()
{
    const QString code = chosenItem();
    if (code.isEmpty() || !m_workspace.session.ui().ask(mbtexts::deleteQuestion(code)))
        return;
    if (members::deleteGiftItem(m_workspace.session, code))
        reload();
}

void GiftItemsPage::addPurchase()
{
    if (chosenItem().isEmpty())
        return;
    GiftMovementDialog dialog(m_workspace.session, GiftMovementDialog::Kind::Purchase,
        m_list.at(m_items->currentRow()), this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void GiftItemsPage::addGiveAway()
{
    if (chosenItem().isEmpty())
        return;
    GiftMovementDialog dialog(m_workspace.session, GiftMovementDialog::Kind::GiveAway,
        m_list.at(m_items->currentRow()), this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void GiftItemsPage::deleteMovement()
{
    const int row = m_movements->currentRow();
    if (row < 0 || row >= m_register.size() || m_register.at(row).sort == 2) {
        m_workspace.session.ui().inform(row >= 0 && row < m_register.size()
                ? mbtexts::redemptionsElsewhere
                : mbtexts::chooseMovementFirst);
        return;
    }
    const members::GiftMovement &m = m_register.at(row);
    const QString what = m.kind + (m.number.isEmpty() ? m.date : m.number);
    if (!m_workspace.session.ui().ask(mbtexts::deleteQuestion(what)))
        return;
    const Outcome done = m.sort == 1 ? members::deleteGiftPurchase(m_workspace.session, m.id)
                                     : members::deleteGiveAway(m_workspace.session, m.number);
    if (done)
        reload();
}

GiftsScreen::GiftsScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_pages(new QTabWidget(this))
    , m_redeem(new RedeemPage(workspace, this))
    , m_redemptions(new RedemptionsPage(workspace, this))
    , m_items(new GiftItemsPage(workspace, this))
{
    m_pages->addTab(m_redeem, mbtexts::redeemPage);
    m_pages->addTab(m_redemptions, mbtexts::redemptionsPage);
    m_pages->addTab(m_items, mbtexts::giftItemsPage);
    connect(m_redeem, &RedeemPage::saved, m_redemptions, &RedemptionsPage::reload);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pages);
    setFocusProxy(m_redeem);
}

} // namespace medistock::ui
