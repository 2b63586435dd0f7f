#pragma once

#include "members/giftitems.h"
#include "members/redemption.h"

#include <QWidget>

class QDateEdit;
class QTabWidget;
class QTableWidget;

namespace medistock::ui {

struct Workspace;
class RedeemPage;

// "兑换赠品" and what comes after it: the redemptions of a date range, newest first, each of which
// can be deleted (points and gifts back).
class RedemptionsPage : public QWidget
{
    Q_OBJECT
public:
    explicit RedemptionsPage(Workspace &workspace, QWidget *parent = nullptr);

    QTableWidget *grid() const { return m_grid; }
    QDateEdit *fromField() const { return m_from; }

public slots:
    void reload();
    void deleteChosen();

private:
    Workspace &m_workspace;
    QDateEdit *m_from;
    QDateEdit *m_to;
    QTableWidget *m_grid;
    QList<members::RedemptionRow> m_rows;
};

// "赠品资料": the gift items with what each has in hand, and the chosen item's register of
// purchases, redemptions and give-aways.
class GiftItemsPage : public QWidget
{
    Q_OBJECT
public:
    explicit GiftItemsPage(Workspace &workspace, QWidget *parent = nullptr);

    QTableWidget *itemGrid() const { return m_items; }
    QTableWidget *movementGrid() const { return m_movements; }

public slots:
    void reload();
    void addItem();
    void editItem();
    void deleteItem();
    void addPurchase();
    void addGiveAway();
    void deleteMovement();

private:
    QString chosenItem();
    void showMovements();

    Workspace &m_workspace;
    QTableWidget *m_items;
    QTableWidget *m_movements;
    QList<members::GiftItem> m_list;
    QList<members::GiftMovement> m_register;
};

// "赠品管理": redeeming gifts for points, the redemptions, and the gift items.
class GiftsScreen : public QWidget
{
    Q_OBJECT
public:
    explicit GiftsScreen(Workspace &workspace, QWidget *parent = nullptr);

    QTabWidget *pages() const { return m_pages; }
    RedeemPage *redeemPage() const { return m_redeem; }
    RedemptionsPage *redemptionsPage() const { return m_redemptions; }
    GiftItemsPage *giftItemsPage() const { return m_items; }

private:
    QTabWidget *m_pages;
    RedeemPage *m_redeem;
    RedemptionsPage *m_redemptions;
    GiftItemsPage *m_items;
};

} // namespace medistock::ui
