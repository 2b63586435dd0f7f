#include "masterdata/masterrows.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/schemacatalogue.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "masterdata/goods.h"
#include "masterdata/mnemonic.h"
#include "masterdata/numbers.h"
#include "masterdata/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QDate>
#include <QRegularExpression>

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

const core::ColumnDef *columnOf(const core::TableDef &table, const QString &name)
{
    for (const core::ColumnDef &column : table.columns)
        if (name == QLatin1String(column.name))
            return &column;
    return nullptr;
}

QString fieldLabel(const core::ColumnDef &column)
{
    const QString label = QString::fromUtf8(column.label);
    return label.isEmpty() ? QString::fromLatin1(column.name) : label;
}

int declaredWidth(const QString &type)
{
    static const QRegularExpression width(QStringLiteral("varchar\\((\\d+)\\)"));
    const QRegularExpressionMatch match = width.match(type);
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

bool isDateColumn(const MasterKind &kind, const QString &column)
{
    for (const char *date : kind.dateColumns)
        if (column == QLatin1String(date))
            return true;
    return false;
}

// One value converted by its column's declared type; the refusal text when it does not fit.
QString convert(const MasterKind &kind, const core::ColumnDef &column, QVariant &value)
{
    const QString type = QString::fromLatin1(column.type);
    const bool whole = type == QLatin1String("int") || type == QLatin1String("integer")
        || type == QLatin1String("bit");
    if (whole || type.startsWith(QLatin1String("numeric"))) {
        const Result<double> number
            = readMasterNumber(str(kind.table), str(column.name), value.toString());
        if (!number)
            return number.message();
        value = whole ? QVariant(int(number.value())) : QVariant(number.value());
    } else {
        const QString cleaned
            = core::cleanText(value.toString().trimmed(), core::CleanStrength::Medium);
        if (isDateColumn(kind, QString::fromLatin1(column.name)) && !cleaned.isEmpty()
            && !QDate::fromString(cleaned, QStringLiteral("yyyy-MM-dd")).isValid())
            return texts::notADate(fieldLabel(column), value.toString().trimmed());
        const int width = declaredWidth(type);
        if (width > 0 && cleaned.size() > width)
            return texts::tooLong(fieldLabel(column), width);
        value = cleaned;
    }
    return QString();
}

// Every column the list starts a new row with, before what was typed.
Values startingValues(const MasterKind &kind)
{
    Values values;
    for (const core::ColumnDef &column : tableOf(kind).columns) {
        const QString name = str(column.name);
        if (name == QLatin1String("id"))
            continue;
        const QString type = str(column.type);
        const bool isText = type.contains(QLatin1String("char")) || type == QLatin1String("text");
        values.insert(name, isText ? QVariant(QString()) : QVariant(0));
    }
    return values;
}

QString selectByKey(const MasterKind &kind, const QString &columns)
{
    return QStringLiteral("select %1 from %2 where %3=?")
        .arg(columns, str(kind.table), keyColumn(kind));
}

// The first thing that refers to the row's code, as the message names it; empty when nothing.
QString firstReference(
    core::Connection &db, const MasterKind &kind, const QString &key, const QString &name)
{
    for (const Reference &reference : kind.references) {
        QString sql = QStringLiteral("select 1 from %1 where %2=?")
                          .arg(str(reference.table), str(reference.column));
        if (reference.condition)
            sql += QStringLiteral(" and ") + str(reference.condition);
        if (db.exists(sql + QStringLiteral(" limit 1"), { reference.byName ? name : key }))
            return QString::fromUtf8(reference.what);
    }
    return QString();
}

} // namespace

QString keyColumn(const MasterKind &kind)
{
    return str(kind.codeColumn ? kind.codeColumn : kind.nameColumn);
}

Result<Values> prepareMasterRow(core::Connection &db, const MasterKind &kind, Values values,
    const QString &existingKey, const Mnemonics &mnemonics)
{
    const core::TableDef &table = tableOf(kind);
    if (existingKey.isEmpty())
        for (const ColumnDefault &preset : kind.defaults)
            if (!values.contains(str(preset.column)))
                values.insert(str(preset.column), QString::fromUtf8(preset.value));
    for (auto it = values.begin(); it != values.end(); ++it) {
        const core::ColumnDef *column = columnOf(table, it.key());
        if (!column || it.key() == QLatin1String("id"))
            return Outcome::refused(texts::unknownColumn(it.key()));
        const QString refusal = convert(kind, *column, it.value());
        if (!refusal.isEmpty())
            return Outcome::refused(refusal);
    }
    const QString nameColumn = str(kind.nameColumn);
    const bool isNew = existingKey.isEmpty();
    if ((isNew || values.contains(nameColumn)) && values.value(nameColumn).toString().isEmpty())
        return Outcome::refused(texts::nameRequired(QString::fromUtf8(kind.nameLabel)));
    const QString name = values.value(nameColumn).toString();
    const QString key = keyColumn(kind);
    if (kind.uniqueName && values.contains(nameColumn)
        && db.exists(QStringLiteral("select 1 from %1 where %2=? and %3<>?")
                         .arg(str(kind.table), nameColumn, key),
            { name, existingKey }))
        return Outcome::refused(texts::nameTaken(QString::fromUtf8(kind.nameLabel), name));
    if (kind.codeColumn) {
        const QString code = values.value(str(kind.codeColumn)).toString();
        if (!code.isEmpty() && code != existingKey
            && db.exists(selectByKey(kind, QStringLiteral("1")), { code }))
            return Outcome::refused(texts::codeTaken(code));
        if (!isNew && values.contains(str(kind.codeColumn)) && code.isEmpty())
            return Outcome::refused(texts::codeRequired());
    }
    if (kind.mnemonicColumn && values.contains(nameColumn)
        && values.value(str(kind.mnemonicColumn)).toString().isEmpty())
        values.insert(str(kind.mnemonicColumn), mnemonics.of(name));
    if (&kind == &goodsKind()) {
        const QString refusal = prepareGoodsRow(db, values, existingKey);
        if (!refusal.isEmpty())
            return Outcome::refused(refusal);
    }
    return values;
}

QString insertPreparedRow(const shell::Session &session, const MasterKind &kind, Values values)
{
    core::Connection &db = session.db();
    Values row = startingValues(kind);
    for (auto it = values.begin(); it != values.end(); ++it)
        row.insert(it.key(), it.value());
    if (kind.codeColumn && row.value(str(kind.codeColumn)).toString().isEmpty()) {
        const QString code = &kind == &goodsKind()
            ? goodsCodeFor(session, row.value(QStringLiteral("gc_sn")).toString())
            : core::nextMasterCode(db, str(kind.table), str(kind.codeColumn)).value();
        row.insert(str(kind.codeColumn), code);
    }
    QStringList columns;
    QStringList marks;
    QVariantList params;
    for (auto it = row.begin(); it != row.end(); ++it) {
        columns.append(it.key());
        marks.append(QStringLiteral("?"));
        params.append(it.value());
    }
    db.exec(QStringLiteral("insert into %1 (%2) values (%3)")
                .arg(str(kind.table), columns.join(QLatin1Char(',')), marks.join(QLatin1Char(','))),
        params);
    return row.value(keyColumn(kind)).toString();
}

Outcome requireListRight(const shell::Session &session, const MasterKind &kind)
{
    return shell::requireRight(session, "qtcz", kind.right);
}

Result<QString> addMasterRow(const shell::Session &session, const MasterKind &kind, Values values)
{
    const Outcome allowed = requireListRight(session, kind);
    if (!allowed)
        return allowed;
    QString key;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const Mnemonics mnemonics;
        const auto prepared
            = prepareMasterRow(session.db(), kind, std::move(values), QString(), mnemonics);
        if (!prepared)
            return core::refuse(session.ui(), prepared.message());
        core::Transaction transaction(session.db());
        key = insertPreparedRow(session, kind, prepared.value());
        session.log(QStringLiteral("增加%1：%2")
                        .arg(QString::fromUtf8(kind.label),
                            prepared->value(str(kind.nameColumn)).toString()));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return key;
}

Outcome updateMasterRow(
    const shell::Session &session, const MasterKind &kind, const QString &key, Values values)
{
    const Outcome allowed = requireListRight(session, kind);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        if (!db.exists(selectByKey(kind, QStringLiteral("1")), { key }))
            return core::refuse(session.ui(), texts::notFound(QString::fromUtf8(kind.label), key));
        const Mnemonics mnemonics;
        const auto prepared = prepareMasterRow(db, kind, std::move(values), key, mnemonics);
        if (!prepared)
            return core::refuse(session.ui(), prepared.message());
        if (prepared->isEmpty())
            return Outcome::done();
        QStringList assignments;
        QVariantList params;
        for (auto it = prepared->begin(); it != prepared->end(); ++it) {
            assignments.append(it.key() + QStringLiteral("=?"));
            params.append(it.value());
        }
        params.append(key);
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update %1 set %2 where %3=?")
                    .arg(str(kind.table), assignments.join(QLatin1Char(',')), keyColumn(kind)),
            params);
        session.log(QStringLiteral("修改%1：%2").arg(QString::fromUtf8(kind.label), key));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome setMasterDisabled(
    const shell::Session &session, const MasterKind &kind, const QString &key, bool disabled)
{
    const Outcome allowed = requireListRight(session, kind);
    if (!allowed)
        return allowed;
    if (!kind.disabledColumn)
        return core::refuse(
            session.ui(), QStringLiteral("%1不能设为禁用！").arg(QString::fromUtf8(kind.label)));
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        if (!db.exists(selectByKey(kind, QStringLiteral("1")), { key }))
            return core::refuse(session.ui(), texts::notFound(QString::fromUtf8(kind.label), key));
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update %1 set %2=? where %3=?")
                    .arg(str(kind.table), str(kind.disabledColumn), keyColumn(kind)),
            { disabled ? 1 : 0, key });
        session.log(QStringLiteral("%1%2：%3")
                        .arg(disabled ? QStringLiteral("禁用") : QStringLiteral("启用"),
                            QString::fromUtf8(kind.label), key));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteMasterRow(const shell::Session &session, const MasterKind &kind, const QString &key)
{
    const Outcome allowed = requireListRight(session, kind);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        const QString name = db.firstText(selectByKey(kind, str(kind.nameColumn)), { key });
        if (!db.exists(selectByKey(kind, QStringLiteral("1")), { key }))
            return core::refuse(session.ui(), texts::notFound(QString::fromUtf8(kind.label), key));
        const QString usedBy = firstReference(db, kind, key, name);
        if (!usedBy.isEmpty())
            return core::refuse(session.ui(),
                texts::inUse(
                    QString::fromUtf8(kind.label), name, usedBy, kind.disabledColumn != nullptr));
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from %1 where %2=?").arg(str(kind.table), keyColumn(kind)),
            { key });
        if (&kind == &goodsKind())
            deleteGoodsSatellites(db, key);
        session.log(QStringLiteral("删除%1：%2").arg(QString::fromUtf8(kind.label), name));
        transaction.commit();
        return Outcome::done();
    });
}

QList<QSqlRecord> searchMasterRows(
    core::Connection &db, const MasterKind &kind, const QString &text)
{
    const QString table = str(kind.table);
    if (text.trimmed().isEmpty())
        return db.rows(QStringLiteral("select * from %1 where %2 order by id")
                           .arg(table, str(kind.listedRows)));
    QStringList columns { keyColumn(kind), str(kind.nameColumn) };
    if (kind.mnemonicColumn)
        columns.append(str(kind.mnemonicColumn));
    for (const char *column : kind.searchColumns)
        columns.append(str(column));
    // Letters match in either case, as the mnemonics are typed: the server's like tells them
    // apart, SQLite's does not, so both sides are put in capitals.
    QStringList conditions;
    QVariantList params;
    const QString pattern = QLatin1Char('%') + text.trimmed() + QLatin1Char('%');
    for (const QString &column : columns) {
        conditions.append(QStringLiteral("upper(%1) like upper(?)").arg(column));
        params.append(pattern);
    }
    if (&kind == &goodsKind()) {
        conditions.append(QStringLiteral(
            "g_sn in (select g_sn from jxc_goodstm where upper(g_sptm) like upper(?) "
            "union select g_sn from jxc_goodsdw where upper(g_sptm) like upper(?))"));
        params << pattern << pattern;
    }
    return db.rows(QStringLiteral("select * from %1 where %2 and (%3) order by id")
                       .arg(table, str(kind.listedRows), conditions.join(QStringLiteral(" or "))),
        params);
}

QSqlRecord masterRow(core::Connection &db, const MasterKind &kind, const QString &key)
{
    return db.firstRow(selectByKey(kind, QStringLiteral("*")), { key });
}

} // namespace medistock::masterdata
