#pragma once

#include "members/retail.h"
#include "pos/handover.h"
#include "pos/returns.h"

#include <QDialog>
#include <QList>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// "付款结账": the amount due split over the ways of paying. Cash starts at the amount due, so
// Enter alone takes it in cash; change is what the cash gives over the amount due. Only cash
// gives change: the other ways together may not exceed what is due. The stored-value card is
// offered only to a member, up to the card balance (the posting holds the balance again).
class PaymentDialog : public QDialog
{
    Q_OBJECT
public:
    // `linesAmount`: the lines' amounts before rounding off; `cardBalance` < 0: no member.
    PaymentDialog(const shell::Session &session, double linesAmount, double cardBalance,
        QWidget *parent = nullptr);

    members::RetailPayment payment() const;
    QDoubleSpinBox *field(int way) const { return m_fields.at(way); } // in the order of ways()
    static QStringList ways();
    QLabel *changeLabel() const { return m_change; }

public slots:
    void accept() override;

private:
    double due() const;
    double others() const;
    void update();

    const shell::Session &m_session;
    double m_linesAmount;
    QList<QDoubleSpinBox *> m_fields; // cash, card, bank card, insurance, WeChat, Alipay, rounding
    QLabel *m_due;
    QLabel *m_change;
};

// The return of a sold receipt: its lines with what is left to give back and a column for the
// quantity returned now.
class ReturnDialog : public QDialog
{
    Q_OBJECT
public:
    ReturnDialog(const pos::SoldReceipt &receipt, int quantityDecimals, QWidget *parent = nullptr);

    QList<double> quantities() const;
    QTableWidget *grid() const { return m_grid; }

private:
    QTableWidget *m_grid;
};

// "交班": the shift's figures, the next cashier and the count split into what is handed up and
// what stays in the drawer, and the slip printed once the handover is saved: 80 mm, 58 mm or
// none ("打印交班小票"). Without printing the choice is disabled, with its tooltip, on "不打印".
class HandoverDialog : public QDialog
{
    Q_OBJECT
public:
    // `slipKey`: the slip proposed, "jbxp" or "jbxp58"; empty when printing is not available.
    HandoverDialog(const shell::Session &session, const pos::ShiftFigures &figures,
        const QString &slipKey = {}, QWidget *parent = nullptr);

    pos::HandoverDraft draft() const;
    // The slip to print after the handover ("jbxp", "jbxp58"), empty for none.
    QString slipKey() const;
    QComboBox *nextBox() const { return m_next; }
    QDoubleSpinBox *handedUpField() const { return m_up; }
    QDoubleSpinBox *leftField() const { return m_down; }
    QComboBox *slipBox() const { return m_slip; }

private:
    QComboBox *m_next;
    QDoubleSpinBox *m_up;
    QDoubleSpinBox *m_down;
    QLineEdit *m_note;
    QComboBox *m_slip;
};

} // namespace medistock::ui
