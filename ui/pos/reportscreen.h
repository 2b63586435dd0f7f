#pragma once

#include "core/outcome.h"
#include "pos/reporttables.h"
#include "ui/common/queryscreen.h"

#include <functional>

class QChartView;
class QComboBox;
class QLineEdit;

namespace medistock::ui {

class DateField;

// What a POS report screen asks for besides the dates: the choices its filters hold.
struct PosReportInputs
{
    pos::DateRange range;
    QString warehouse; // ck_sn, empty for all
    QString text; // the report's text filter (cashier, member name...)
    QString level; // hl_sn, the members' report
    int view = 0; // index in PosReportKind::views
    int order = 0; // index in PosReportKind::orders
};

// One POS report as a screen: its title, which filters it shows, and how it runs.
struct PosReportKind
{
    QString title;
    QString layoutKey;
    bool warehouse = true;
    QString textLabel; // empty: no text filter
    bool levels = false;
    QStringList views; // several ways of grouping (the ranking), or views of the report
    QStringList orders;
    std::function<Result<pos::ReportTable>(shell::Session &, const PosReportInputs &)> run;
    // A bar chart under the grid: the figure of column `chartValue` per row named by the first
    // of `chartLabels` the table has (fields as the tables name them); none when empty.
    QStringList chartLabels;
    QString chartValue;
    // The report template of each view (one for all views); none: the report has no template and
    // its print button stays disabled.
    QStringList printKeys;
};

// A POS report under "统计报表": from/to dates (the month so far by default), the warehouse and
// the report's own filters on top, its table below with the totals row and xlsx export, and for
// the ranking and the takings a bar chart of the first rows under the table.
// "打印(F8)" prints the rows shown through the view's template (poslsz, postj, posmxb, possxph1-3,
// possytj1, poscrk, possytj2), each column as the field the tables name it, the filters in the
// heading, with preview. A report without a template of its own (the member consumption) shows
// the button disabled, with a tooltip pointing to the export.
class PosReportScreen : public QueryScreen
{
    Q_OBJECT
public:
    PosReportScreen(Workspace &workspace, PosReportKind kind, QWidget *parent = nullptr);

    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }
    QComboBox *viewBox() const { return m_view; }
    QComboBox *orderBox() const { return m_order; }
    QLineEdit *textField() const { return m_text; }
    QChartView *chart() const { return m_chart; }

protected:
    void fetch() override;

private:
    PosReportKind m_kind;
    DateField *m_from;
    DateField *m_to;
    QComboBox *m_warehouse = nullptr;
    QComboBox *m_view = nullptr;
    QComboBox *m_order = nullptr;
    QComboBox *m_level = nullptr;
    QLineEdit *m_text = nullptr;
    QChartView *m_chart = nullptr;
    QString m_shownLayout;

    void drawChart(const pos::ReportTable &table);
};

// The report kinds of the screens, in the order of the menu: journal, goods, ranking, members,
// cashiers, till cash, commission.
QList<PosReportKind> posReportKinds();

} // namespace medistock::ui
