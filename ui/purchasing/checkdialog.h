#pragma once

#include "purchasing/checking.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace medistock::ui {

// "单据审核确认" of a purchase receipt or return: the document's number, date, employee, amount
// due, supplier, warehouse, operator and (on a receipt) the supplier's number as saved, and the
// paid (received) amount, settlement mode, account and note to confirm. "审核通过(F5)" accepts,
// "取消(Esc)" closes. The focus starts in the paid amount.
class PurchaseCheckDialog : public QDialog
{
    Q_OBJECT
public:
    // Reads the document; false from loaded() when it is not there (the read's error was told).
    PurchaseCheckDialog(const shell::Session &session, const purchasing::PurchaseKind &kind,
        const QString &number, QWidget *parent = nullptr);

    bool loaded() const { return m_loaded; }
    // What the operator confirmed, for the check operation.
    purchasing::CheckInput input() const;

    QLineEdit *paidField() const { return m_paid; }
    QComboBox *modeBox() const { return m_mode; }
    QComboBox *accountBox() const { return m_account; }
    QLineEdit *noteField() const { return m_note; }
    // The read-only value shown beside a label ("应付金额").
    QString shown(const QString &label) const;

public slots:
    void approve();

private:
    QLineEdit *readOnly(const QString &text);

    const shell::Session &m_session;
    bool m_loaded = false;
    QString m_paidLabel;
    QLineEdit *m_paid = nullptr;
    QComboBox *m_mode = nullptr;
    QComboBox *m_account = nullptr;
    QLineEdit *m_note = nullptr;
    QList<std::pair<QString, QLineEdit *>> m_shown;
};

} // namespace medistock::ui
