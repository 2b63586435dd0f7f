#pragma once

#include "members/giftitems.h"

#include <QDialog>

class QDateEdit;
class QDoubleSpinBox;
class QLineEdit;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// Adds (no code given) or changes a gift item: code (the next one when left empty), name,
// mnemonic (from the name when left empty) and points.
class GiftItemDialog : public QDialog
{
    Q_OBJECT
public:
    GiftItemDialog(const shell::Session &session, const members::GiftItem &item, bool isNew,
        QWidget *parent = nullptr);

    QLineEdit *nameField() const { return m_name; }
    QDoubleSpinBox *pointsField() const { return m_points; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    bool m_isNew;
    QLineEdit *m_code;
    QLineEdit *m_name;
    QLineEdit *m_mnemonic;
    QDoubleSpinBox *m_points;
};

// A purchase ("赠品进货") or a give-away ("赠品赠送", with the sale it went with) of one item.
class GiftMovementDialog : public QDialog
{
    Q_OBJECT
public:
    enum class Kind { Purchase, GiveAway };
    GiftMovementDialog(const shell::Session &session, Kind kind, const members::GiftItem &item,
        QWidget *parent = nullptr);

    QDoubleSpinBox *quantityField() const { return m_quantity; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    Kind m_kind;
    QString m_code;
    QDateEdit *m_date;
    QDoubleSpinBox *m_quantity;
    QLineEdit *m_sale;
    QLineEdit *m_note;
};

} // namespace medistock::ui
