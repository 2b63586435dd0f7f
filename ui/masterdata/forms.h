#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace medistock::masterdata {
struct MasterKind;
}

namespace medistock::ui {

// A licence and the date it runs out (a supplier's qualification records).
struct LicenceRow
{
    const char *number;
    const char *validUntil; // nullptr when the licence keeps no date
};

// One tab of an edit dialog: its fields in order, or a table of licences.
struct FormPage
{
    QString title;
    QStringList columns;
    QList<LicenceRow> licences;
};

// How the screens show one master list: the columns of its grid, the pages of its edit dialog,
// the columns shown but never written (figures the postings keep), and the small lists that
// its screen reaches through "基础资料".
struct ListForm
{
    QStringList gridColumns;
    QList<FormPage> pages;
    QStringList readOnly;
    QStringList basicLists; // MasterKind keys
};

ListForm formOf(const masterdata::MasterKind &kind);

// The caption of a column: its screen label, or the word the screens use where the column stands
// for a row of another list ("ghs_sn" of a goods is its supplier).
QString captionOf(const masterdata::MasterKind &kind, const QString &column);
// The declared type of a column of the list's table ("varchar(32)", "bit" ...).
QString typeOf(const masterdata::MasterKind &kind, const QString &column);
// The screen label of a column of any table, empty when it has none.
QString labelOf(const char *table, const char *column);

} // namespace medistock::ui
