#pragma once

#include "core/outcome.h"

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// What the record lists are narrowed by. Dates are "yyyy-MM-dd": an empty `from` stands for
// "2000-01-01", an empty `to` for "9999-12-31", and the end date counts through " 23:59:59". The
// keyword is a substring of the document number or of the partner's code, name or mnemonic; an
// empty one matches everything. The warehouse is a warehouse code; empty or "-1" ("所有仓库")
// means every warehouse.
struct RecordFilter
{
    QString from;
    QString to;
    QString key;
    QString warehouse;
};

// Refuses (without telling) a date that is not a real "yyyy-MM-dd".
Outcome checkFilter(const RecordFilter &filter);

// The range's bounds as compared: the start date, and the end date with " 23:59:59".
QString rangeStart(const RecordFilter &filter);
QString rangeEnd(const RecordFilter &filter);

// Whether the warehouse choice narrows anything ("", "-1" and "所有仓库" do not).
bool choosesWarehouse(const QString &warehouse);

// The "and ..." clauses a list adds to its where clause, and their values in order.
class Conditions
{
public:
    // "and (c1 like ? or c2 like ? ...)" with "%key%" for each column; nothing for an empty key.
    void keyword(const QStringList &columns, const QString &key);
    // "and column=?" for a chosen warehouse.
    void warehouse(const QString &column, const QString &code);
    // With operators bound to warehouses (cs_cgyh) and an operator who is not the administrator,
    // only the warehouses that list him: "and alias.ck_asn like '%code%'".
    void warehouseRights(const shell::Session &session, const QString &warehouseAlias);
    // Any further clause with its values.
    void add(const QString &clause, const QVariantList &values = {});

    const QString &sql() const { return m_sql; }
    const QVariantList &params() const { return m_params; }

private:
    QString m_sql;
    QVariantList m_params;
};

// How a list narrows by the filter besides its dates: the columns the keyword searches, the
// column of the chosen warehouse (empty: the list has no warehouse), and the alias of the joined
// jxc_ckxx for the warehouses the operator is bound to (empty: none joined).
struct Narrowing
{
    QStringList keyword {};
    QString warehouse {};
    QString warehouseAlias {};
};
Conditions conditionsOf(
    const shell::Session &session, const RecordFilter &filter, const Narrowing &narrowing);

// The values of a dated list in the order its statement binds them: `before`, the range's two
// bounds, then the conditions' values.
QVariantList rangeParams(const RecordFilter &filter, QVariantList before, const Conditions &where);

// A typed date "yyyy-MM-dd", trimmed; empty when it is not a real date.
QString normalDate(const QString &text);

} // namespace medistock::gsp
