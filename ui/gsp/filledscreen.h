#pragma once

#include "gsp/picking.h"
#include "ui/gsp/recordscreen.h"

namespace medistock::ui {

// The list of "陈列药品维护检查记录" or "近效期跟踪记录" with the lines of the chosen record below;
// new records are entered through their dialog, and a record is deleted whole or line by line.
// F8 prints the chosen record's lines (what the record's template lays out), not the list.
class FilledScreen : public RecordScreen
{
    Q_OBJECT
public:
    FilledScreen(Workspace &workspace, gsp::FilledKind kind, QWidget *parent = nullptr);

    QTableView *linesGrid() const { return m_lines; }
    RecordTableModel *linesModel() const { return m_linesModel; }
    PrintRequest printRequest() const override;

public slots:
    void addRecord();
    void deleteRecord();
    void deleteLine();
    void showLines();

private:
    gsp::FilledKind m_kind;
    QTableView *m_lines;
    RecordTableModel *m_linesModel;
};

} // namespace medistock::ui
