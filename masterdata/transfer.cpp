#include "masterdata/transfer.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/schemacatalogue.h"
#include "core/spreadsheet.h"
#include "core/transaction.h"
#include "masterdata/mnemonic.h"
#include "masterdata/texts.h"
#include "shell/session.h"

#include <QDate>

#include <QSet>
#include <QSqlQuery>
#include <algorithm>

namespace medistock::masterdata {

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

const core::TableDef &tableOf(const MasterKind &kind)
{
    return *core::findTable(str(kind.table));
}

// Kept by the postings, never typed: not exported, not imported.
constexpr const char *systemColumns[] = { "g_kc", "g_scjj", "g_pjjj", "g_cbj", "g_cgpl", "g_xspl" };

// The goods class name column of the import map, resolved to its class code.
const QString className = QStringLiteral("gc_name");

bool isSystemColumn(const QString &column)
{
    for (const char *system : systemColumns)
        if (column == QLatin1String(system))
            return true;
    return false;
}

QString labelOf(const core::ColumnDef &column)
{
    return QString::fromUtf8(column.label);
}

bool isDate(const MasterKind &kind, const QString &column)
{
    for (const char *date : kind.dateColumns)
        if (column == QLatin1String(date))
            return true;
    return false;
}

// header text -> field, from the catalogue and the import map.
QHash<QString, QString> headerMap(core::Connection &db, const MasterKind &kind)
{
    QHash<QString, QString> map;
    QHash<QString, int> labelUses;
    for (const core::ColumnDef &column : tableOf(kind).columns)
        ++labelUses[labelOf(column)];
    for (const core::ColumnDef &column : tableOf(kind).columns) {
        const QString name = str(column.name);
        if (name == QLatin1String("id") || isSystemColumn(name))
            continue;
        map.insert(name, name);
        if (!labelOf(column).isEmpty()) {
            map.insert(QStringLiteral("%1(%2)").arg(labelOf(column), name), name);
            if (labelUses.value(labelOf(column)) == 1)
                map.insert(labelOf(column), name);
        }
    }
    db.forEach(QStringLiteral("select i_fieldname,i_fieldid from jxc_import where i_tablename=?"),
        { str(kind.table) }, [&](const QSqlQuery &q) {
            const QString field = q.value(1).toString();
            if (core::hasColumn(tableOf(kind), field)
                || (field == className && &kind == &goodsKind()))
                map.insert(q.value(0).toString(), field);
        });
    return map;
}

QString fieldLabel(const MasterKind &kind, const QString &column)
{
    for (const core::ColumnDef &def : tableOf(kind).columns)
        if (column == QLatin1String(def.name))
            return labelOf(def).isEmpty() ? column : labelOf(def);
    return column == className ? QStringLiteral("商品类别") : column;
}

// A date typed as a spreadsheet date arrives as its day number.
QString dateText(const QString &cell)
{
    bool isSerial = false;
    const double serial = cell.toDouble(&isSerial);
    if (!isSerial || serial < 1)
        return cell;
    return QDate(1899, 12, 30).addDays(qint64(serial)).toString(QStringLiteral("yyyy-MM-dd"));
}

// The values one spreadsheet row gives; empty cells are left out so that defaults apply.
Values rowValues(
    const MasterKind &kind, const QList<ImportColumn> &columns, const QStringList &cells)
{
    Values values;
    for (int c = 0; c < columns.size() && c < cells.size(); ++c) {
        const QString column = columns.at(c).column;
        const QString cell = cells.at(c).trimmed();
        if (column.isEmpty() || cell.isEmpty())
            continue;
        values.insert(column, isDate(kind, column) ? dateText(cell) : cell);
    }
    return values;
}

// Checks one row as an add would; `seen` holds the codes and barcodes of the rows above.
QString checkRow(core::Connection &db, const MasterKind &kind, Values &values, QSet<QString> &seen,
    const Mnemonics &mnemonics)
{
    if (values.contains(className)) {
        const QString name = values.take(className).toString();
        const QString code = db.firstText(
            QStringLiteral("select gc_sn from jxc_goodsclass where gc_name=?"), { name });
        if (code.isEmpty())
            return texts::unknownClass(name);
        values.insert(QStringLiteral("gc_sn"), code);
    }
    const auto prepared = prepareMasterRow(db, kind, values, QString(), mnemonics);
    if (!prepared)
        return prepared.message();
    values = prepared.value();
    const QString code
        = kind.codeColumn ? values.value(str(kind.codeColumn)).toString() : QString();
    if (!code.isEmpty() && seen.contains(QStringLiteral("code:") + code))
        return texts::codeTaken(code);
    const QString barcode = values.value(QStringLiteral("g_sptm")).toString();
    if (&kind == &goodsKind() && !barcode.isEmpty()
        && seen.contains(QStringLiteral("barcode:") + barcode))
        return texts::barcodeTaken(barcode, values.value(QStringLiteral("g_name")).toString());
    if (!code.isEmpty())
        seen.insert(QStringLiteral("code:") + code);
    if (!barcode.isEmpty())
        seen.insert(QStringLiteral("barcode:") + barcode);
    return QString();
}

} // namespace

bool isImportable(const MasterKind &kind)
{
    const QString key = str(kind.key);
    return key == QLatin1String("goods") || key == QLatin1String("customer")
        || key == QLatin1String("supplier") || key == QLatin1String("member");
}

int ImportPlan::accepted() const
{
    return int(std::count_if(
        rows.begin(), rows.end(), [](const ImportRow &r) { return r.reason.isEmpty(); }));
}

int ImportPlan::rejected() const
{
    return int(rows.size()) - accepted();
}

Result<ImportPlan> planImport(
    const shell::Session &session, const MasterKind &kind, const QString &path)
{
    if (!isImportable(kind))
        return core::refuse(
            session.ui(), QStringLiteral("%1不能从表格导入！").arg(QString::fromUtf8(kind.label)));
    const Outcome allowed = requireListRight(session, kind);
    if (!allowed)
        return allowed;
    const auto sheet = core::readXlsx(path);
    if (!sheet)
        return core::refuse(session.ui(), sheet.message());
    if (sheet->isEmpty())
        return core::refuse(session.ui(), QStringLiteral("表格中没有数据：") + path);
    ImportPlan plan;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const QHash<QString, QString> map = headerMap(session.db(), kind);
        for (const QString &header : sheet->first()) {
            const QString column = map.value(header.trimmed());
            plan.columns.append(
                { header, column, column.isEmpty() ? QString() : fieldLabel(kind, column) });
        }
        const Mnemonics mnemonics;
        QSet<QString> seen;
        for (int r = 1; r < sheet->size(); ++r) {
            if (sheet->at(r).join(QString()).trimmed().isEmpty())
                continue;
            ImportRow row { r + 1, rowValues(kind, plan.columns, sheet->at(r)), QString() };
            row.reason = checkRow(session.db(), kind, row.values, seen, mnemonics);
            plan.rows.append(row);
        }
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return plan;
}

Result<int> runImport(const shell::Session &session, const MasterKind &kind, const ImportPlan &plan)
{
    if (plan.accepted() == 0)
        return core::refuse(session.ui(), QStringLiteral("没有可以导入的数据！"));
    int written = 0;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const Mnemonics mnemonics;
        core::Transaction transaction(session.db());
        for (const ImportRow &row : plan.rows) {
            if (!row.reason.isEmpty())
                continue;
            const auto prepared
                = prepareMasterRow(session.db(), kind, row.values, QString(), mnemonics);
            if (!prepared)
                return core::refuse(session.ui(),
                    QStringLiteral("第%1行：%2").arg(row.line).arg(prepared.message()));
            insertPreparedRow(session, kind, prepared.value());
            ++written;
        }
        session.log(
            QStringLiteral("导入%1资料：共%2条").arg(QString::fromUtf8(kind.label)).arg(written));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return written;
}

QStringList exportColumns(const MasterKind &kind)
{
    QStringList columns;
    for (const core::ColumnDef &column : tableOf(kind).columns)
        if (!labelOf(column).isEmpty() && !isSystemColumn(str(column.name)))
            columns.append(str(column.name));
    return columns;
}

QStringList exportHeaders(const MasterKind &kind)
{
    QHash<QString, int> uses;
    const QStringList columns = exportColumns(kind);
    for (const QString &column : columns)
        ++uses[fieldLabel(kind, column)];
    QStringList headers;
    for (const QString &column : columns) {
        const QString label = fieldLabel(kind, column);
        headers.append(uses.value(label) > 1 ? QStringLiteral("%1(%2)").arg(label, column) : label);
    }
    return headers;
}

Outcome exportMasterRows(core::Connection &db, const MasterKind &kind, const QString &path)
{
    const QStringList columns = exportColumns(kind);
    QList<QVariantList> rows;
    try {
        db.forEach(QStringLiteral("select %1 from %2 where %3 order by id")
                       .arg(columns.join(QLatin1Char(',')), str(kind.table), str(kind.listedRows)),
            {}, [&](const QSqlQuery &q) {
                QVariantList row;
                for (int c = 0; c < columns.size(); ++c)
                    row.append(q.value(c));
                rows.append(row);
            });
    } catch (const core::DbError &error) {
        return Outcome::failed(error.message());
    }
    return core::writeXlsx(path, QString::fromUtf8(kind.label), exportHeaders(kind), rows);
}

} // namespace medistock::masterdata
