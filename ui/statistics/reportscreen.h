#pragma once

#include "ui/statistics/reportrunner.h"
#include "ui/statistics/reporttable.h"

#include <QWidget>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;
class QSplitter;
class QTableView;

namespace medistock::ui {
struct Workspace;
}

namespace medistock::ui::stats {

class FilterBar;

// A statistics screen: filters on top, the buttons "查询(F5)", "取消(Esc)", "导出(&X)" and
// "打印(F8)" below them, the grid with its totals row (a chart beside it where the report has
// one), and "记录数：N" with the progress of a run at the bottom. F5 or Enter in a filter runs
// the report on a worker thread (ReportRunner); the window stays usable and Esc cancels. A
// double-click opens what the row stands for. Cost and profit columns show only with the right
// "显示商品成本价". Printing waits for the report templates: its button stays disabled.
// It does not build on the shared QueryScreen: that one fetches on the window's thread, while a
// report over a year of the ledger must run aside with its progress and a way to cancel it.
class ReportScreen : public QWidget
{
    Q_OBJECT
public:
    // Builds the run from the filters as they stand, on the window's thread.
    using JobMaker = std::function<ReportRunner::Job()>;

    ReportScreen(Workspace &workspace, const QString &title, QList<ReportColumn> columns,
        QWidget *parent = nullptr);
    ~ReportScreen() override;

    FilterBar *filters() const { return m_filters; }
    QTableView *grid() const { return m_grid; }
    ReportModel *model() const { return m_model; }
    QLabel *countLabel() const { return m_count; }
    QLabel *statusLabel() const { return m_status; }
    QPushButton *runButton() const { return m_run; }
    QPushButton *printButton() const { return m_print; }
    bool running() const { return m_runner->running(); }
    const QString &title() const { return m_title; }
    // The second grid's rows of the last run, for reports that show two.
    const ReportTable &detail() const { return m_detail; }
    Workspace &workspace() const { return m_workspace; }

    void setJobMaker(JobMaker maker) { m_jobMaker = std::move(maker); }
    // Called with the row's key on a double-click (or Enter) on a row that has one.
    void setOpener(std::function<void(const QString &key)> opener) { m_opener = std::move(opener); }
    // Called once a run's table is in the grid (charts follow it).
    void setShownHook(std::function<void()> hook) { m_shown = std::move(hook); }
    // A widget right of the grid.
    void setSide(QWidget *side);
    // A button after the standard ones.
    QPushButton *addButton(const QString &text, std::function<void()> action);
    // Remembers the grid's column widths and order for this screen and operator.
    void rememberColumns();

public slots:
    void run();
    void cancel();
    bool exportTo(const QString &path);
    void openCurrent();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    // A run ended: with its table shown, or refused (its message shown), or cancelled.
    void finished(bool shown);

private:
    QWidget *buildButtons();
    void chooseExportFile();
    void showResult(const RunResult &result, const QStringList &told);
    void showProgress(int done, int total);
    void setRunning(bool running);
    void hideCostColumns();

    Workspace &m_workspace;
    QString m_title;
    FilterBar *m_filters;
    QTableView *m_grid;
    ReportModel *m_model;
    QSplitter *m_split;
    QLabel *m_count;
    QLabel *m_status;
    QProgressBar *m_progress;
    QPushButton *m_run = nullptr;
    QPushButton *m_cancel = nullptr;
    QPushButton *m_export = nullptr;
    QPushButton *m_print = nullptr;
    QWidget *m_buttons = nullptr;
    ReportRunner *m_runner;
    JobMaker m_jobMaker;
    std::function<void(const QString &)> m_opener;
    std::function<void()> m_shown;
    ReportTable m_detail;
};

} // namespace medistock::ui::stats
