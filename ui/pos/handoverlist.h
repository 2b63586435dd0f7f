#pragma once

#include "pos/handover.h"
#include "ui/common/queryscreen.h"

#include <QDialog>

class QLineEdit;

namespace medistock::ui {

class DateField;

// The till's handovers ("交班记录") in a date range (this month by default), for every cashier or
// the one typed (as the one handing over or taking over), newest first, with export; a chosen
// handover's slip prints again with preview on 80 mm or 58 mm paper.
class HandoverList : public QueryScreen
{
    Q_OBJECT
public:
    explicit HandoverList(Workspace &workspace, QWidget *parent = nullptr);

    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }
    QLineEdit *cashierField() const { return m_cashier; }
    // The handover of a row of the list; nullptr for none (or the totals row).
    const pos::Handover *handoverAt(int row) const;

public slots:
    // Prints the chosen handover's slip ("jbxp", "jbxp58") with preview.
    void printChosen(const QString &key);

protected:
    void fetch() override;

private:
    DateField *m_from;
    DateField *m_to;
    QLineEdit *m_cashier;
    QList<pos::Handover> m_rows;
};

// The list in a dialog of its own, opened from the till.
class HandoverListDialog : public QDialog
{
    Q_OBJECT
public:
    explicit HandoverListDialog(Workspace &workspace, QWidget *parent = nullptr);

    HandoverList *list() const { return m_list; }

private:
    HandoverList *m_list;
};

} // namespace medistock::ui
