#pragma once

#include "sales/entry.h"
#include "ui/documents/invoicefields.h"
#include "ui/documents/screenkind.h"

#include <memory>

class QComboBox;
class QLineEdit;

namespace medistock::ui {

struct ReturnSource;
class UncheckedDialog;

// What the sale and the customer return add to the shared document screen: the settlement mode,
// account and amount received (refunded) in the header, since a sale is usually paid at the
// counter as it is keyed; the customer's price proposed for every goods picked; their
// operations. The questions (negative stock, expired batches, prepayment, the save texts) are
// the operations' own. A change of a stored document keeps what its header holds besides the
// fields shown. With "显示商品成本价" the lines show their cost per line unit ("成本价", the
// warehouse's cost as of the document's date as the save takes it); a sale lets it be typed
// only with "允许修改销售成本价", and shows each goods' most per sale ("限售数量"). A sale's
// lines leave the production date out, which the batch brings along, so that the columns a
// clerk works with fit a 1366 pixels wide screen.
class SalesScreenKind : public DocumentScreenKind
{
public:
    SalesScreenKind(const shell::Session &session, const documents::DocumentKind &kind);

    const documents::DocumentKind &entry() const override { return m_entry; }
    // Price and amount columns are there only with "显示商品销售价".
    QList<LineField> lineFields() const override;
    void proposeFigures(const shell::Session &session, LineEntry &line, const QString &warehouse,
        const QString &date) const override;
    QString costColumn() const override;
    void loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const override;
    QList<std::pair<QString, QWidget *>> createHeaderFields(QWidget *parent) override;
    void loadHeader(const QSqlRecord &header) override;
    void clearHeader() override;
    void setHeaderReadOnly(bool readOnly) override;
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;

    // The settlement mode and account a taken-over order hands on.
    void takeHeader(const sales::SaleHeader &header);

    QComboBox *modeBox() const { return m_mode; }
    QComboBox *accountBox() const { return m_account; }
    QLineEdit *paidField() const { return m_paid; }

protected:
    // The header from the fields; refused (and told) when an amount is no number.
    Result<sales::SaleHeader> header(const shell::Session &session) const;
    // A return has no freight, packing or freight terms, and stores its amounts negated.
    bool isReturn() const;
    // An order keeps only the settlement mode, account and amount received.
    bool isOrder() const;
    bool isSale() const { return !isReturn() && !isOrder(); }
    bool showsCost() const;

    const shell::Session &m_session;
    const documents::DocumentKind &m_entry;
    sales::SaleHeader m_saved;
    QComboBox *m_mode = nullptr;
    QComboBox *m_account = nullptr;
    QLineEdit *m_paid = nullptr;
    InvoiceFreightFields m_invoice;
};

// "商品销售": lines leave from the batches proposed first-expiry-first or picked (F4); "xsgl" 1
// save, 7 check, 11 uncheck, 18 goods added to a saved unchecked sale, 19 delete.
class SaleScreenKind : public SalesScreenKind
{
public:
    explicit SaleScreenKind(const shell::Session &session);
    int checkRight() const override;
    int uncheckRight() const override;
    int addToSavedRight() const override { return 18; }
    bool outgoing() const override { return true; }
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("spxs"); }
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
    // "导入销售订单(F10)".
    void addActions(DocumentScreen &screen) override;
    // The unchecked sales with "审核所有(F6)" besides the check of one: every sale the list
    // shows, after one question, with the check right.
    void showList(DocumentScreen &screen) override;
};

// "顾客退货": goods come back into the warehouse, typed freely or taken from a checked sale's
// lines (F10), which limits them to what the sales line still holds; "xsgl" 2 save and delete,
// 8 check, 12 uncheck.
class SalesReturnScreenKind : public SalesScreenKind
{
public:
    explicit SalesReturnScreenKind(const shell::Session &session);
    int checkRight() const override;
    int uncheckRight() const override;
    // Goods come in: a free line types its batch; a line taken from a sale brings the sold one.
    bool outgoing() const override { return false; }
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("xsth"); }
    bool dueStoredNegated() const override { return true; }
    void loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
    void addActions(DocumentScreen &screen) override;
};

// "销售订单": what a customer ordered, to be taken over by sales ("导入销售订单"); it posts
// nothing, so its lines name no batch unless one is typed. "xsgl" 15 save and delete, 16 check.
// An order once checked is not unchecked: it has no uncheck button.
class SalesOrderScreenKind : public SalesScreenKind
{
public:
    explicit SalesOrderScreenKind(const shell::Session &session);
    int checkRight() const override;
    int uncheckRight() const override { return 0; }
    bool hasUncheck() const override { return false; }
    bool outgoing() const override { return false; }
    QList<LineField> enterFields() const override;
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("xsd"); }
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    // Never called: the screen offers no uncheck.
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
};

// A customer return's lines taken from a checked sale.
ReturnSource saleSource();

// The unchecked sales of the sale screen, with "审核所有(F6)".
std::unique_ptr<UncheckedDialog> uncheckedSalesDialog(DocumentScreen &screen);

} // namespace medistock::ui
