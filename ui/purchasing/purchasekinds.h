#pragma once

#include "purchasing/entry.h"
#include "ui/documents/invoicefields.h"
#include "ui/documents/screenkind.h"

class QComboBox;
class QLineEdit;

namespace medistock::purchasing {
struct PurchaseKind;
}

namespace medistock::ui {

struct ReturnSource;

// A purchase return's lines taken from a checked receipt.
ReturnSource receiptSource();

// What the purchase receipt and return add to the shared document screen: their own header
// fields, the purchase price proposal, the check dialog "单据审核确认" and their operations. The
// paid amount, settlement mode and account are confirmed in the check dialog; a change of the
// document keeps what its last check dialog (or the command line) left there.
class PurchaseScreenKind : public DocumentScreenKind
{
public:
    explicit PurchaseScreenKind(const purchasing::PurchaseKind &kind);

    const documents::DocumentKind &entry() const override;
    int checkRight() const override;
    int uncheckRight() const override;
    QList<std::pair<QString, QWidget *>> createHeaderFields(QWidget *parent) override;
    void loadHeader(const QSqlRecord &header) override;
    void clearHeader() override;
    void setHeaderReadOnly(bool readOnly) override;
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    QLineEdit *freightField() const { return m_invoice.freightField(); }

protected:
    // The purchase header from the fields; refused (and told) when an amount is no number.
    Result<purchasing::PurchaseHeader> header(const shell::Session &session) const;

    const purchasing::PurchaseKind &m_kind;
    purchasing::PurchaseHeader m_saved; // what the document holds besides the fields shown
    QLineEdit *m_supplierNumber = nullptr;
    InvoiceFreightFields m_invoice;
};

// "采购进货": lines come in with their batch typed; "cggl" 1 save, 6 check, 10 uncheck,
// 16 goods added to a saved unchecked receipt, 17 delete, 18 a new goods from the picker.
class ReceiptScreenKind : public PurchaseScreenKind
{
public:
    ReceiptScreenKind();
    int addToSavedRight() const override { return 16; }
    int newGoodsRight() const override { return 18; }
    bool outgoing() const override { return false; }
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("cgjh"); }
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
};

// "采购退货": lines leave from the warehouse's batches, typed freely or taken from a checked
// receipt's lines (F10), which limits them to what the receipt line still holds; "cggl" 2 save
// and delete, 7 check, 11 uncheck.
class ReturnScreenKind : public PurchaseScreenKind
{
public:
    ReturnScreenKind();
    bool outgoing() const override { return true; }
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("cgth"); }
    void loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
    void addActions(DocumentScreen &screen) override;
};

} // namespace medistock::ui
