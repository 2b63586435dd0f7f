#pragma once

#include "masterdata/transfer.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;
class QTableWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// How a list is read from a file and written: the master list's own import unless a module
// completes its rows itself (members get card numbers).
struct ImportSteps
{
    std::function<Result<masterdata::ImportPlan>(const QString &path)> plan;
    std::function<Result<int>(const masterdata::ImportPlan &plan)> run;
};

// Imports goods, customers or suppliers from a spreadsheet in two steps: loading the file shows
// how its columns map to fields and every row with the reason it would be rejected, writing
// nothing; "确认导入" asks once more and then writes every accepted row or none.
class ImportDialog : public QDialog
{
    Q_OBJECT
public:
    ImportDialog(const shell::Session &session, const masterdata::MasterKind &kind,
        QWidget *parent = nullptr, ImportSteps steps = {});

    // Reads and checks the file; false (the reason told) when it cannot be read.
    bool load(const QString &path);
    const masterdata::ImportPlan &plan() const { return m_plan; }
    QTableWidget *mappingGrid() const { return m_mapping; }
    QTableWidget *rowGrid() const { return m_rows; }
    QLabel *summaryLabel() const { return m_summary; }
    QPushButton *importButton() const { return m_import; }
    int written() const { return m_written; }

public slots:
    void confirm();
    void chooseFile();

private:
    void showPlan();

    const shell::Session &m_session;
    const masterdata::MasterKind &m_kind;
    ImportSteps m_steps;
    masterdata::ImportPlan m_plan;
    QLabel *m_file;
    QTableWidget *m_mapping;
    QTableWidget *m_rows;
    QLabel *m_summary;
    QPushButton *m_import;
    int m_written = 0;
};

} // namespace medistock::ui
