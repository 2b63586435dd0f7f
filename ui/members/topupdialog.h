#pragma once

#include <QDialog>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// "会员充值": the amount, how it was paid (cash follows the amount until the other ways are
// typed; the paid total is shown), the gift with its mode, instalment and amount, points given,
// and a note. Saving is one operation; a refusal is told and nothing typed is lost.
class TopUpDialog : public QDialog
{
    Q_OBJECT
public:
    TopUpDialog(const shell::Session &session, const QString &member, QWidget *parent = nullptr);

    QDoubleSpinBox *amountField() const { return m_amount; }
    QDoubleSpinBox *cashField() const { return m_cash; }
    QDoubleSpinBox *bankField() const { return m_bank; }
    QDoubleSpinBox *wechatField() const { return m_wechat; }
    QDoubleSpinBox *alipayField() const { return m_alipay; }
    QDoubleSpinBox *changeField() const { return m_change; }
    QComboBox *modeChoice() const { return m_mode; }
    QDoubleSpinBox *perField() const { return m_per; }
    QDoubleSpinBox *giftField() const { return m_gift; }
    QSpinBox *pointsField() const { return m_points; }
    QLabel *paidLabel() const { return m_paid; }
    // The number of the top-up once saved.
    QString savedNumber() const { return m_number; }

public slots:
    void save();

private:
    QDoubleSpinBox *money();
    void followAmount();
    void showPaid();
    void showGift();

    const shell::Session &m_session;
    QString m_member;
    QDoubleSpinBox *m_amount;
    QDoubleSpinBox *m_cash;
    QDoubleSpinBox *m_bank;
    QDoubleSpinBox *m_wechat;
    QDoubleSpinBox *m_alipay;
    QDoubleSpinBox *m_change;
    QComboBox *m_mode;
    QDoubleSpinBox *m_per;
    QDoubleSpinBox *m_gift;
    QSpinBox *m_points;
    QLineEdit *m_note;
    QLabel *m_paid;
    QString m_number;
};

} // namespace medistock::ui
