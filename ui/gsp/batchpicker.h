#pragma once

#include "gsp/picking.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QSpinBox;
class QTableView;
class QTableWidget;

namespace medistock::ui {

struct Workspace;
class RecordTableModel;

// Picks the batches of a record: above, the batches the warehouse holds (narrowed by goods
// class, GSP category, a text and for the tracking record the expiry window), Enter or a
// double-click picks the current one; below, the operator's picks, whose quantity, quality and
// handling the clerk corrects in place.
class BatchPicker : public QWidget
{
    Q_OBJECT
public:
    BatchPicker(Workspace &workspace, gsp::FilledKind kind, QWidget *parent = nullptr);

    void setWarehouse(const QString &warehouse);
    // Only batches the expiry query lists for so many days (negative: every batch).
    void setWithinDays(int days);
    QLineEdit *keyField() const { return m_key; }
    QTableView *batchGrid() const { return m_batches; }
    QTableWidget *pickedGrid() const { return m_picked; }

public slots:
    void refreshBatches();
    void refreshPicks();
    void pickCurrent();
    void pickAll();
    void removeCurrentPick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void savePickedCell(int row, int column);

    Workspace &m_workspace;
    gsp::FilledKind m_kind;
    gsp::BatchChoice m_choice;
    QList<gsp::PickableBatch> m_offered;
    QList<gsp::PickedLine> m_lines;
    QComboBox *m_class;
    QComboBox *m_category;
    QLineEdit *m_key;
    QTableView *m_batches;
    RecordTableModel *m_batchModel;
    QTableWidget *m_picked;
    bool m_filling = false;
};

} // namespace medistock::ui
