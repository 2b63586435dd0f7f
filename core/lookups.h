#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QString>

namespace medistock::core {

class Connection;

// The defaults that document screens propose; each is empty when its table is empty.
// The employee lookup prefers an employee row without a name before the first one.
QString defaultEmployeeCode(Connection &connection);
QString defaultEmployeeName(Connection &connection);
// Suppliers and customers skip forbidden rows; warehouses have no forbidden flag.
QString defaultSupplierCode(Connection &connection);
QString defaultSupplierName(Connection &connection);
QString defaultCustomerCode(Connection &connection);
QString defaultCustomerName(Connection &connection);
QString defaultWarehouseCode(Connection &connection);
QString defaultWarehouseName(Connection &connection);

// The column of the first row of a table (names checked against the schema catalogue).
Result<QString> firstValue(Connection &connection, const QString &column, const QString &table);

// Empties the operator's rows of the document-entry work tables.
void clearWorkRows(Connection &connection, const QString &operatorName);

// "星期日 " ... "星期六 ", each with its trailing blank.
QString weekdayName(QDate date);

} // namespace medistock::core
