#pragma once

#include "members/redemption.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace medistock::ui {

struct Workspace;

// "兑换赠品": find the member by card number, mobile or telephone (Enter), choose the warehouse
// and how often a member may redeem, pick gifts from the warehouse's list (double-click or Enter;
// again for one more), change a quantity in the chosen lines (0 removes the line), and save (F3).
class RedeemPage : public QWidget
{
    Q_OBJECT
public:
    explicit RedeemPage(Workspace &workspace, QWidget *parent = nullptr);

    QLineEdit *cardField() const { return m_card; }
    QComboBox *warehouseChoice() const { return m_warehouse; }
    QComboBox *periodChoice() const { return m_period; }
    QTableWidget *giftGrid() const { return m_gifts; }
    QTableWidget *lineGrid() const { return m_lines; }
    QLabel *memberLabel() const { return m_member; }
    QLabel *totalsLabel() const { return m_totals; }
    const members::RedemptionDraft &draft() const { return m_draft; }

public slots:
    bool findMember();
    void pickGift(int row);
    bool save();
    void clear();

signals:
    void saved(const QString &number);

private:
    void loadGifts();
    void showLines();
    void quantityEdited(int row, int column);

    Workspace &m_workspace;
    QLineEdit *m_card;
    QLabel *m_member;
    QComboBox *m_warehouse;
    QComboBox *m_period;
    QTableWidget *m_gifts;
    QTableWidget *m_lines;
    QLabel *m_totals;
    QList<members::GiftOffer> m_offers;
    members::RedemptionDraft m_draft;
    bool m_showing = false;
};

} // namespace medistock::ui
