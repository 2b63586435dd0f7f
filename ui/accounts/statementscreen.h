#pragma once

#include "accounts/statements.h"
#include "documents/descriptor.h"
#include "ui/common/queryscreen.h"

#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;
class QTabWidget;

namespace medistock::ui {

class CodeNameField;
class DateField;
class StatementScreen;

// One way a statement tab shows its rows ("客户所有单据" has the documents and the freight
// summary): its name, its columns and the query that fills them, in column order.
struct StatementView
{
    QString name;
    QList<QueryColumn> columns;
    std::function<QList<QVariantList>(const StatementScreen &)> rows;
    // The rows are documents whose lines show under the grid when one is chosen.
    bool documentLines = false;
};

// A tab of "往来账务(客户)" / "往来账务(供货商)": the date range (the last month), the party
// (all when empty), the search text, the date order, a view chooser when the tab has several
// views, and for the customer analysis the type or region chosen and the days of the lost
// customers. The rows come typed from the accounts module; totals and the export come with the
// query screen.
class StatementScreen : public QueryScreen
{
    Q_OBJECT
public:
    StatementScreen(Workspace &workspace, const QString &title, documents::PartyTable party,
        QList<StatementView> views, QWidget *parent = nullptr);

    const shell::Session &session() const;
    accounts::StatementFilter filter() const;
    QString choice() const; // the type or region typed; empty: all
    int days() const;

    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }
    CodeNameField *partyField() const { return m_party; }
    QLineEdit *textField() const { return m_text; }
    QCheckBox *descendingBox() const { return m_descending; }
    QComboBox *viewBox() const { return m_view; }
    QSpinBox *daysBox() const { return m_days; }
    QueryModel *linesModel() const { return m_linesModel; }

    // Adds the type-or-region and days filters (the customer analysis).
    void addAnalysisFilters();

protected:
    void fetch() override;

private:
    void showView(int index);
    void showLines(int row);

    QList<StatementView> m_views;
    DateField *m_from;
    DateField *m_to;
    CodeNameField *m_party;
    QLineEdit *m_text;
    QCheckBox *m_descending;
    QComboBox *m_view;
    QLineEdit *m_choice = nullptr;
    QSpinBox *m_days = nullptr;
    QueryModel *m_linesModel = nullptr;
    class QLabel *m_linesCaption = nullptr;
    QWidget *m_linesPanel = nullptr;
};

// The windows: their tabs, each a StatementScreen.
QTabWidget *customerStatements(Workspace &workspace);
QTabWidget *supplierStatements(Workspace &workspace);

} // namespace medistock::ui
