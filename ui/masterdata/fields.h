#pragma once

#include "masterdata/masterrows.h"

#include <QComboBox>
#include <QHash>
#include <QSet>
#include <QString>

class QSqlRecord;
class QWidget;

namespace medistock::shell {
class Session;
}
namespace medistock::masterdata {
struct MasterKind;
}

namespace medistock::ui {

// A drop-down of the rows of another list (units, warehouses, customer types ...) or of fixed
// choices. The value is the item's data; an editable box also takes a typed text, and a value
// the list no longer holds is kept as an item of its own so that saving does not lose it.
class LookupBox : public QComboBox
{
    Q_OBJECT
public:
    LookupBox(bool editable, QWidget *parent);
    void addChoice(const QString &text, const QString &value);
    void setValue(const QString &value);
    QString value() const;
};

// The fields of one master row on an edit dialog: a line edit, check box or drop-down per
// column, chosen by the column's type and meaning. Loads a row into them and hands back what
// they hold as the values an add or update takes.
class FieldSet
{
public:
    FieldSet(const shell::Session &session, const masterdata::MasterKind &kind);

    // Creates the column's widget (once) as a child of `parent`.
    QWidget *create(const QString &column, QWidget *parent);
    QWidget *widget(const QString &column) const { return m_widgets.value(column); }
    QStringList columns() const { return m_order; }
    bool isFlag(const QString &column) const;

    // Shown but never written: disabled, and left out of values().
    void lock(const QString &column);
    void load(const QSqlRecord &row);
    masterdata::Values values() const;
    QString text(const QString &column) const;
    void setText(const QString &column, const QString &text);

private:
    QWidget *createLookup(const QString &column, QWidget *parent);

    const shell::Session &m_session;
    const masterdata::MasterKind &m_kind;
    QHash<QString, QWidget *> m_widgets;
    QStringList m_order;
    QSet<QString> m_locked;
};

// A number as the fields show it: without trailing zeros, no exponent.
QString numberText(const QVariant &value);

} // namespace medistock::ui
