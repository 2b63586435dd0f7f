#include "app/cli/entryjson.h"

#include "app/cli/context.h"
#include "app/cli/documents.h"
#include "core/operation.h"
#include "documents/texts.h"
#include "shell/session.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace medistock::cli {

namespace {

QString name(const char *column)
{
    return QString::fromLatin1(column);
}

// The columns a descriptor reads from JSON; empty names are left out.
QStringList present(std::initializer_list<const char *> columns)
{
    QStringList names;
    for (const char *column : columns)
        if (*column)
            names.append(name(column));
    return names;
}

QString text(const QJsonObject &object, const char *column)
{
    return *column ? jsonText(object, name(column)) : QString();
}

documents::LineDraft lineFromJson(Context &context, const documents::DocumentKind &kind,
    const QJsonObject &object, const QStringList &ownFields)
{
    const documents::LineColumns &l = kind.lines;
    requireKnownFields(context, object,
        present({ l.goods, l.unit, l.quantity, l.price, l.taxRate, l.discountRate, l.remark,
            l.batch, l.produced, l.expiry })
            + ownFields);
    documents::LineDraft line;
    line.goods = text(object, l.goods);
    line.unit = text(object, l.unit);
    line.quantity = text(object, l.quantity);
    line.price = text(object, l.price);
    line.taxRate = text(object, l.taxRate);
    line.discountRate = text(object, l.discountRate);
    line.remark = text(object, l.remark);
    line.batch = text(object, l.batch);
    line.produced = text(object, l.produced);
    line.expiry = text(object, l.expiry);
    return line;
}

QJsonObject recordJson(const QSqlRecord &record)
{
    QJsonObject object;
    for (int i = 0; i < record.count(); ++i)
        object.insert(record.fieldName(i),
            record.isNull(i) ? QJsonValue(QJsonValue::Null)
                             : QJsonValue::fromVariant(record.value(i)));
    return object;
}

} // namespace

documents::DocumentDraft draftFromJson(Context &context, const documents::DocumentKind &kind,
    const QJsonObject &object, const QStringList &ownHeaderFields, const QStringList &ownLineFields)
{
    const documents::HeaderColumns &h = kind.header;
    requireKnownFields(context, object,
        present({ h.number, h.date, h.party, h.warehouse, h.secondWarehouse, h.employee, h.note,
            h.discount })
            + ownHeaderFields + QStringList { QStringLiteral("lines") });
    documents::DocumentDraft draft;
    draft.number = text(object, h.number);
    draft.date = text(object, h.date);
    if (draft.date.isEmpty())
        draft.date = context.session().today();
    draft.party = text(object, h.party);
    draft.warehouse = text(object, h.warehouse);
    draft.secondWarehouse = text(object, h.secondWarehouse);
    draft.employee = text(object, h.employee);
    draft.note = text(object, h.note);
    if (*h.discount)
        draft.discount = jsonNumber(context, object, name(h.discount));
    const QJsonValue lines = object.value(QStringLiteral("lines"));
    if (!lines.isUndefined() && !lines.isArray())
        throw Stop { context.usageError(QStringLiteral("lines 应为数组")) };
    for (const QJsonValue &line : lines.toArray()) {
        if (!line.isObject())
            throw Stop { context.usageError(QStringLiteral("lines 的每一行应为 JSON 对象")) };
        draft.lines.append(lineFromJson(context, kind, line.toObject(), ownLineFields));
    }
    return draft;
}

QJsonObject documentJson(const documents::StoredDocument &document)
{
    QJsonObject object = recordJson(document.header);
    QJsonArray lines;
    for (const QSqlRecord &line : document.lines)
        lines.append(recordJson(line));
    object.insert(QStringLiteral("lines"), lines);
    return object;
}

int showDocumentJson(
    Context &context, const documents::DocumentKind &kind, const QString &number, Args &args)
{
    requireNoMore(context, args);
    shell::Session &session = context.session();
    const auto document = documents::readDocument(session.db(), kind, number);
    if (!document)
        require(core::refuse(session.ui(), documents::texts::documentMissing(number)));
    context.out() << QString::fromUtf8(
        QJsonDocument(documentJson(*document)).toJson(QJsonDocument::Indented));
    return ExitDone;
}

} // namespace medistock::cli
