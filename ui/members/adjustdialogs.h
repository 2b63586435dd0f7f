#pragma once

#include <QDialog>

class QDoubleSpinBox;
class QLineEdit;
class QSpinBox;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// "会员积分调整": the member's points and lifetime points set by hand, with the reason; the
// change is kept in the member's history and the level follows the lifetime points.
class PointsAdjustDialog : public QDialog
{
    Q_OBJECT
public:
    PointsAdjustDialog(
        const shell::Session &session, const QString &member, QWidget *parent = nullptr);

    QSpinBox *pointsField() const { return m_points; }
    QSpinBox *lifetimeField() const { return m_lifetime; }
    QLineEdit *reasonField() const { return m_reason; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    QString m_member;
    QSpinBox *m_points;
    QSpinBox *m_lifetime;
    QLineEdit *m_reason;
};

// "会员储值调整": the card balance set by hand, with the reason.
class BalanceAdjustDialog : public QDialog
{
    Q_OBJECT
public:
    BalanceAdjustDialog(
        const shell::Session &session, const QString &member, QWidget *parent = nullptr);

    QDoubleSpinBox *balanceField() const { return m_balance; }
    QLineEdit *reasonField() const { return m_reason; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    QString m_member;
    QDoubleSpinBox *m_balance;
    QLineEdit *m_reason;
};

} // namespace medistock::ui
