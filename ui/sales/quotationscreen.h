#pragma once

#include "sales/quotations.h"
#include "ui/common/queryscreen.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QTableWidget;

namespace medistock::ui {

class CodeNameField;
class DateField;

// "报价管理": our prices to customers ("我方报价") and suppliers' prices to us ("供货商报价"),
// by quotation date, party name and goods text, newest first. 新增(F2) gathers goods with their
// prices for one party and adds them in one go; Enter or a double-click changes the chosen
// quotation's price, date and note; Del deletes it after a question; 导出 writes the grid.
// A customer's latest quotation is then what a sale proposes for that goods.
// Where nothing was prescribed: the query opens on the last twelve months up to today (a
// quotation stays in force until a newer one comes); the side's party column is headed by the
// side ("客户", "供货商"); quotations are not printed, the grid is exported instead.
class QuotationScreen : public QueryScreen
{
    Q_OBJECT
public:
    explicit QuotationScreen(Workspace &workspace, QWidget *parent = nullptr);

    QComboBox *sideBox() const { return m_side; }
    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }
    QLineEdit *partyField() const { return m_party; }
    QLineEdit *goodsField() const { return m_goods; }
    sales::QuotationSide side() const;
    // The quotation of the chosen row; nullptr when none.
    const sales::Quotation *current() const;

public slots:
    void addQuotations();
    void changeCurrent();
    void deleteCurrent();

protected:
    void fetch() override;

private:
    void setSideColumns();

    QComboBox *m_side;
    DateField *m_from;
    DateField *m_to;
    QLineEdit *m_party;
    QLineEdit *m_goods;
    QList<sales::Quotation> m_rows;
};

// "新增报价": the party, the date and the salesman, then goods one after another: a code,
// barcode, mnemonic or name typed and Enter (several matches open the goods picker), the price
// asked in QuotationPriceDialog; each goods goes into the operator's work rows as it is priced.
// 保存(F3) adds them all for the party; Esc leaves without adding any.
class QuotationDialog : public QDialog
{
    Q_OBJECT
public:
    QuotationDialog(Workspace &workspace, sales::QuotationSide side, QWidget *parent = nullptr);

    CodeNameField *partyField() const { return m_party; }
    DateField *dateField() const { return m_date; }
    QComboBox *employeeBox() const { return m_employee; }
    QLineEdit *goodsField() const { return m_goods; }
    QTableWidget *linesGrid() const { return m_lines; }

public slots:
    void accept() override;
    void reject() override;

protected:
    // Enter belongs to the fields (the party, the goods) and never closes the dialog.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void takeGoods();

    Workspace &m_workspace;
    sales::QuotationSide m_side;
    CodeNameField *m_party;
    DateField *m_date;
    QComboBox *m_employee;
    QLineEdit *m_goods;
    QTableWidget *m_lines;
};

// The price of one goods ("我方报价：" or "供货商报价：" and the goods' name as its title), with a
// note; Enter in the price takes it. Also the change of a stored quotation, with its date.
class QuotationPriceDialog : public QDialog
{
    Q_OBJECT
public:
    QuotationPriceDialog(const QString &title, const QString &price, const QString &note,
        const QString *date, QWidget *parent = nullptr);

    QLineEdit *priceField() const { return m_price; }
    QLineEdit *noteField() const { return m_note; }
    QString price() const;
    QString note() const;
    QString date() const;

private:
    QLineEdit *m_price;
    QLineEdit *m_note;
    DateField *m_date = nullptr;
};

} // namespace medistock::ui
