#pragma once

#include <QString>

#include <span>

namespace medistock::masterdata {

// A row elsewhere that names a master row's code (or, for lists whose names are copied into
// goods and parties, its name): while one exists the master row cannot be deleted. `condition`
// narrows shared tables (the money ledger holds customers and suppliers).
struct Reference
{
    const char *table;
    const char *column;
    const char *what; // what refers, as the message names it ("采购进货单")
    const char *condition = nullptr;
    bool byName = false; // the referring column holds the row's name, not its code
};

// A column a new row of the list starts with, as typed text.
struct ColumnDefault
{
    const char *column;
    const char *value;
};

// One list the master-data screens maintain.
struct MasterKind
{
    const char *key; // command-line name: "goods", "customer", "unit" ...
    const char *label; // "商品", "客户", "单位" ...
    int right; // the operation of "其它操作" (qtcz) that maintains the list
    const char *table;
    const char *codeColumn; // nullptr for lists without a code
    const char *nameColumn;
    const char *nameLabel; // "商品名称": names the field in messages
    const char *mnemonicColumn; // nullptr when the list keeps none
    const char *disabledColumn; // nullptr when rows cannot be disabled
    bool uniqueName; // names must differ (small lists, GSP categories ...)
    std::span<const char *const> dateColumns;
    std::span<const Reference> references;
    std::span<const char *const> searchColumns; // besides code, name and mnemonic
    std::span<const ColumnDefault> defaults = {};
    // The rows the screens list and export (the goods list leaves out the discount line).
    const char *listedRows = "1=1";
};

std::span<const MasterKind> masterKinds();
const MasterKind *findMasterKind(const QString &key);
const MasterKind &goodsKind();

} // namespace medistock::masterdata
