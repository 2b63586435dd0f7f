#pragma once

#include "members/member.h"
#include "members/retail.h"

#include <QHash>
#include <QWidget>

#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace medistock::ui {

struct Workspace;

// The till ("POS销售"): the cashier scans or types goods into one field that keeps the focus, and
// works the sale with the function keys the account set keeps for the till (付款结账, 修改数量,
// 修改折扣, 删除当前, 删除全部, 选择会员, 挂单, 解挂, 设为赠品), plus F5 退货 and F3 交班.
// Everything is posted by the pos operations; a refusal is shown as they word it and the sale
// on the screen stays as it was typed. The last receipt sold or returned prints with preview on
// 80 mm or 58 mm paper (posxp, posxp58); a held sale is not a receipt and does not print. The
// handover prints its slip (jbxp, jbxp58) with preview once saved, on the paper the receipts
// last printed on unless the cashier chooses otherwise; "交班记录" lists the handovers and prints
// any of them again. The
// cash drawer, the screen lock and the herbal doses are not built yet: their buttons are disabled
// with a tooltip.
class TillScreen : public QWidget
{
    Q_OBJECT
public:
    explicit TillScreen(Workspace &workspace, QWidget *parent = nullptr);

    QLineEdit *goodsField() const { return m_goods; }
    QTableWidget *lines() const { return m_grid; }
    QLabel *memberLabel() const { return m_memberLabel; }
    QLabel *totalsLabel() const { return m_totals; }
    QLabel *statusLabel() const { return m_status; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    // The sale as it would be posted now (payment empty).
    members::RetailDocument document() const;
    // The number of the last sale, return or held sale the screen posted.
    QString lastNumber() const { return m_lastNumber; }

public slots:
    void enterGoods();
    void changeQuantity();
    void changeDiscount();
    void toggleGift();
    void deleteCurrent();
    void deleteAll();
    void chooseMember();
    // Reads the member's card (card number, mobile or telephone); an empty text drops the member.
    // False, and the member kept, when no usable card is found.
    bool readCard(const QString &text);
    void pay();
    void hold();
    void recall();
    void returnReceipt();
    void handOver();
    void printReceipt(const QString &key);
    void showHandovers();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Shown
    {
        QString name;
        QString packing;
    };
    QPushButton *addKey(const QString &function, int key, void (TillScreen::*slot)());
    void addLine(const QString &code, const QString &unit, double factor, double quantity);
    void setMember(const std::optional<members::Member> &member);
    void reprice();
    void refresh();
    void clearSale();
    int currentLine() const;
    double linesAmount() const;

    Workspace &m_workspace;
    QComboBox *m_warehouse;
    QComboBox *m_employee;
    QLineEdit *m_goods;
    QTableWidget *m_grid;
    QLabel *m_memberLabel;
    QLabel *m_totals;
    QLabel *m_status;
    QList<members::RetailLine> m_lines;
    QHash<QString, Shown> m_shown; // by goods code
    std::optional<members::Member> m_member;
    QString m_heldNumber;
    QString m_lastNumber;
    QString m_lastReceipt; // the last sale or return, for the receipt print
    bool m_narrowPaper = false; // the receipts last printed on 58 mm paper
    QHash<int, std::function<void()>> m_keys; // Qt key (with the keypad bit cleared) -> action
};

} // namespace medistock::ui
