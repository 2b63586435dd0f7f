#pragma once

#include "statistics/filters.h"

#include <QHash>
#include <QWidget>

class QComboBox;
class QDateEdit;
class QHBoxLayout;
class QLineEdit;

namespace medistock::ui {
struct Workspace;
}

namespace medistock::ui::stats {

// The filters above a report's grid, each with its label, in the order they are added. Enter in
// any of them asks for a run. The range starts on the first day of the current month and ends
// today; "所有仓库" and "所有类别" do not narrow.
class FilterBar : public QWidget
{
    Q_OBJECT
public:
    FilterBar(Workspace &workspace, QWidget *parent = nullptr);

    void addRange();
    void addWarehouse();
    void addClass();
    QLineEdit *addKeyword();
    QLineEdit *addText(const QString &label, const QString &name, int width = 120);
    QComboBox *addChoice(const QString &label, const QString &name, const QStringList &choices);
    QDateEdit *addDate(const QString &label, const QString &name);

    // The range, warehouse, class and keyword as a report takes them.
    statistics::ReportFilter filter() const;
    statistics::DateRange range() const;
    QLineEdit *text(const QString &name) const;
    QComboBox *choice(const QString &name) const;
    QDateEdit *date(const QString &name) const;
    QDateEdit *from() const { return m_from; }
    QDateEdit *to() const { return m_to; }
    QComboBox *warehouses() const { return m_warehouse; }
    QWidget *firstField() const { return m_first; }

signals:
    void runRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add(const QString &label, QWidget *field);
    QDateEdit *makeDate(const QDate &date);

    Workspace &m_workspace;
    QHBoxLayout *m_row;
    QWidget *m_first = nullptr;
    QDateEdit *m_from = nullptr;
    QDateEdit *m_to = nullptr;
    QComboBox *m_warehouse = nullptr;
    QComboBox *m_class = nullptr;
    QLineEdit *m_keyword = nullptr;
    QHash<QString, QWidget *> m_named;
};

// A date field's text as the reports take it, "yyyy-MM-dd".
QString dateText(const QDateEdit *field);

} // namespace medistock::ui::stats
