#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// "积分设置": the amount per point, whether the card's part earns, the remainder carried, the
// multiple points of a date range and the birthday points.
class PointsSettingsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit PointsSettingsDialog(const shell::Session &session, QWidget *parent = nullptr);

    QLineEdit *amountField() const { return m_amount; }
    QCheckBox *cardEarnsBox() const { return m_cardEarns; }
    QCheckBox *remainderBox() const { return m_remainder; }
    QSpinBox *multipleField() const { return m_multiple; }
    QLineEdit *fromField() const { return m_from; }
    QLineEdit *toField() const { return m_to; }
    QSpinBox *birthdayField() const { return m_birthday; }
    QRadioButton *aroundBirthdayButton() const { return m_around; }
    QSpinBox *daysField() const { return m_days; }

public slots:
    void save();

private:
    QWidget *multipleGroup();
    QWidget *birthdayGroup();

    const shell::Session &m_session;
    QLineEdit *m_amount;
    QCheckBox *m_cardEarns;
    QCheckBox *m_remainder;
    QSpinBox *m_multiple;
    QLineEdit *m_from;
    QLineEdit *m_to;
    QSpinBox *m_birthday;
    QRadioButton *m_only;
    QRadioButton *m_around;
    QSpinBox *m_days;
};

} // namespace medistock::ui
