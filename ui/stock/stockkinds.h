#pragma once

#include "stock/documents/kinds.h"
#include "ui/documents/screenkind.h"

#include <QDialog>
#include <QTabWidget>

class QComboBox;

namespace medistock::ui {

class DocumentListScreen;
struct Workspace;

// What the stock documents' screen kinds share: the stock module's rights ("kcgl"), the screen
// they are shown on (the proposed price is the cost of the header's warehouse and date, which
// only the screen knows), and deleting through the shared entry.
class StockScreenKind : public DocumentScreenKind
{
public:
    int checkRight() const override { return m_rights.first; }
    int uncheckRight() const override { return m_rights.second; }
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
    void addActions(DocumentScreen &screen) override;

protected:
    // The stock module's check and uncheck of the kind.
    using Step = Outcome (*)(shell::Session &, const QString &);
    StockScreenKind(stock::StockRights rights, Step checking, Step unchecking)
        : m_rights(rights.check, rights.uncheck)
        , m_check(checking)
        , m_uncheck(unchecking)
    { }
    // The screen the kind is shown on, found from a header field's parent while the screen builds
    // its header (before addActions).
    void findScreen(QWidget *parent);
    // Base units per `unit` of the goods.
    static double unitFactor(
        const shell::Session &session, const documents::GoodsChoice &goods, const QString &unit);
    // The cost per unit of `unit` as of the header's date in the header's warehouse.
    double costOnScreen(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit) const;

    DocumentScreen *m_screen = nullptr;

private:
    std::pair<int, int> m_rights;
    Step m_check;
    Step m_uncheck;
};

// "调拨单查询" over the transfer screen: the transfers by date, warehouse (either side), goods and
// status, the chosen one's lines below; opening one shows it on the screen and closes the list.
class TransferListDialog : public QDialog
{
    Q_OBJECT
public:
    explicit TransferListDialog(DocumentScreen &screen);
    DocumentListScreen *list() const { return m_list; }

private:
    DocumentListScreen *m_list;
};

// "库存调拨单": the header's warehouse is the issuing one ("调出仓库"), whose batches the lines
// pick (F4 on the batch cell); "调入仓库" is the kind's own field, another warehouse than the first
// by default. The price is the cost of the transfer's date in the issuing warehouse. "调拨单查询"
// (Ctrl+F) lists the transfers by date, warehouse (either side), goods and status.
class TransferScreenKind : public StockScreenKind
{
public:
    TransferScreenKind();
    const documents::DocumentKind &entry() const override;
    bool outgoing() const override { return true; }
    QList<LineField> lineFields() const override;
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("kcdb"); }
    QList<std::pair<QString, QWidget *>> createHeaderFields(QWidget *parent) override;
    void loadHeader(const QSqlRecord &header) override;
    void clearHeader() override;
    void setHeaderReadOnly(bool readOnly) override;
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    void addActions(DocumentScreen &screen) override;

    QComboBox *receivingBox() const { return m_in; }

private:
    QComboBox *m_in = nullptr;
};

// "商品报损单" and "商品报溢单": a loss leaves any batch of the warehouse (picked from its stock,
// or typed: a batch without stock goes negative), an overflow types batch and dates. Their lines
// keep no unit: quantities are base quantities. The price is the cost of the document's date.
class LossOverflowScreenKind : public StockScreenKind
{
public:
    explicit LossOverflowScreenKind(bool loss);
    const documents::DocumentKind &entry() const override;
    bool outgoing() const override { return m_loss; }
    QList<LineField> lineFields() const override;
    QString dueLabel() const override;
    QString printKey() const override;
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;

private:
    bool m_loss;
};

// "库存报损报溢": the loss and the overflow report, each on its own page ("报损单", "报溢单");
// closing asks for each page with unsaved changes.
class LossOverflowScreen : public QTabWidget
{
    Q_OBJECT
public:
    explicit LossOverflowScreen(Workspace &workspace, QWidget *parent = nullptr);

    DocumentScreen *lossScreen() const { return m_loss; }
    DocumentScreen *overflowScreen() const { return m_overflow; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    DocumentScreen *m_loss;
    DocumentScreen *m_overflow;
};

} // namespace medistock::ui
