#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

#include <utility>

class QComboBox;
class QLineEdit;
class QWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// An amount field of a header: right-aligned, showing nothing for 0 so that an untouched
// document shows no noise.
QLineEdit *headerAmountField(QWidget *parent);
QString headerAmountText(double value);

// What the invoice and freight fields hold.
struct InvoiceFreight
{
    QString invoiceNumber;
    double invoiceAmount = 0;
    double freight = 0;
    double packing = 0;
    QString freightTerms; // "我方付运费", "对方付运费" or empty
};

// The invoice and freight fields a sale's and a purchase's header share: 发票号 and 发票金额, and
// where the kind posts freight, 运费, 包装费 and 付费方式.
class InvoiceFreightFields
{
public:
    // Creates the fields over `parent` and appends them with their labels.
    void create(QWidget *parent, bool withFreight, QList<std::pair<QString, QWidget *>> &fields);
    void load(const InvoiceFreight &values);
    void clear();
    void setReadOnly(bool readOnly);
    // What the fields hold over `values` (a kind without freight keeps those); an amount that is
    // no number is told and refused, as the command line refuses it.
    Outcome read(const shell::Session &session, InvoiceFreight &values) const;

    // The same for a document header with these five members (a sale's, a purchase's).
    template<class Header> void loadFrom(const Header &h)
    {
        load({ h.invoiceNumber, h.invoiceAmount, h.freight, h.packing, h.freightTerms });
    }
    template<class Header> Outcome readInto(const shell::Session &session, Header &h) const
    {
        InvoiceFreight values { h.invoiceNumber, h.invoiceAmount, h.freight, h.packing,
            h.freightTerms };
        const Outcome outcome = read(session, values);
        if (outcome) {
            h.invoiceNumber = values.invoiceNumber;
            h.invoiceAmount = values.invoiceAmount;
            h.freight = values.freight;
            h.packing = values.packing;
            h.freightTerms = values.freightTerms;
        }
        return outcome;
    }

    QLineEdit *freightField() const { return m_freight; }

private:
    QLineEdit *m_invoiceNumber = nullptr;
    QLineEdit *m_invoiceAmount = nullptr;
    QLineEdit *m_freight = nullptr;
    QLineEdit *m_packing = nullptr;
    QComboBox *m_freightTerms = nullptr;
};

} // namespace medistock::ui
