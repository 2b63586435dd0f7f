#pragma once

#include "ui/documents/screenkind.h"

class QLineEdit;

namespace medistock::ui {

// "客户借货管理" on the shared document screen: goods leave the warehouse's batches on loan to a
// customer; every right is "rcgl" 4. The terms are typed once for the whole loan, per base unit:
// the deposit per unit (each line's deposit is that times its quantity), the rent per unit and
// day, and the account the rent is booked to; a stored loan shows the terms of its first line.
// A checked loan offers "新增还货" (the current line), "整单还货" and "新增借货转销售".
class LoanScreenKind : public DocumentScreenKind
{
public:
    const documents::DocumentKind &entry() const override;
    int checkRight() const override;
    int uncheckRight() const override;
    bool outgoing() const override { return true; }
    // A loan line keeps no discount, tax or remark.
    QList<LineField> lineFields() const override;
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("khjh"); }
    QList<std::pair<QString, QWidget *>> createHeaderFields(QWidget *parent) override;
    void clearHeader() override;
    void setHeaderReadOnly(bool readOnly) override;
    void loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const override;
    // The goods' average cost per base unit; a price left empty takes the cost of the loan date.
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
    void addActions(DocumentScreen &screen) override;

private:
    QLineEdit *m_deposit = nullptr;
    QLineEdit *m_rent = nullptr;
    QLineEdit *m_account = nullptr;
};

} // namespace medistock::ui
