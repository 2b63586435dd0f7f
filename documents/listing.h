#pragma once

#include "documents/descriptor.h"

#include <QList>
#include <QSqlRecord>
#include <QString>

#include <optional>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::documents {

// The lists every goods document shows: its documents by date, party, warehouse, goods and
// status, and the lines of one document. Read through the kind's descriptor, so each kind gets
// them without code of its own.

struct DocumentFilter
{
    QString number {}; // one document; empty: any
    QString from {}; // "yyyy-MM-dd"; empty: from the first
    QString to {}; // "yyyy-MM-dd", the whole day counts; empty: to the last
    QString party {}; // code; empty: every party
    QString warehouse {}; // code; empty: every warehouse
    QString goodsText {}; // a line's goods code, name or mnemonic contains it; empty: any
    std::optional<int> status {}; // 0 unchecked, 1 checked; none: both
};

struct DocumentRow
{
    QString number;
    QString date;
    QString party;
    QString partyName;
    QString warehouse;
    QString warehouseName;
    QString employee;
    QString employeeName;
    QString operatorName;
    QString note;
    int status = 0;
    QString checker;
    QString checkDate;
    double due = 0; // the header's due amount as stored
    int goodsCount = 0; // lines other than the discount line
    double quantity = 0; // their quantities, each in its line's unit
};

// The kind's documents meeting the filter, by date, then number.
QList<DocumentRow> listDocuments(
    const shell::Session &session, const DocumentKind &kind, const DocumentFilter &filter);
// One document's row; a checked header wins over a stray unchecked copy of its number.
std::optional<DocumentRow> findDocument(
    const shell::Session &session, const DocumentKind &kind, const QString &number);

struct DocumentLineRow
{
    QString goods;
    QString goodsName;
    QString packing; // gg_name
    QString maker; // g_sccs
    QString baseUnit;
    QString unit; // the line's unit; the base unit where the kind keeps none
    double quantity = 0;
    double baseQuantity = 0;
    double price = 0;
    double taxRate = 0;
    double taxedPrice = 0;
    double tax = 0;
    double amount = 0; // before tax
    double total = 0;
    double discountRate = 1;
    QString batch;
    QString produced;
    QString expiry;
    QString remark;
    QSqlRecord stored; // the whole line row, for the kind's own columns
};

// The document's lines in the order they were entered, without the discount line.
QList<DocumentLineRow> documentLines(
    core::Connection &connection, const DocumentKind &kind, const QString &number);

} // namespace medistock::documents
