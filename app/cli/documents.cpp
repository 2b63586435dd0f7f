// The document commands: save FILE, check, uncheck, delete and show NUMBER, each handed to the
// kind that the number's prefix (or the file's "kind") names.
#include "app/cli/documents.h"

#include "app/cli/registry.h"

#include <QFile>
#include <QJsonDocument>

#include <cmath>

namespace medistock::cli {

const DocumentKind *DocumentKinds::find(const QString &prefix) const
{
    for (const DocumentKind &kind : m_kinds)
        if (kind.prefix == prefix)
            return &kind;
    return nullptr;
}

void requireKnownFields(Context &context, const QJsonObject &object, const QStringList &allowed)
{
    for (const QString &field : object.keys())
        if (field != QLatin1String("kind") && !allowed.contains(field))
            throw Stop { context.usageError(QStringLiteral("该单据没有字段：") + field) };
}

QString jsonText(const QJsonObject &object, const QString &field)
{
    const QJsonValue value = object.value(field);
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 15);
    return value.toString();
}

double jsonNumber(Context &context, const QJsonObject &object, const QString &field)
{
    const QJsonValue value = object.value(field);
    if (value.isUndefined() || value.isNull())
        return 0;
    if (value.isDouble())
        return value.toDouble();
    // "NaN" and "inf" read as numbers to toDouble; no field of the books takes them.
    bool ok = false;
    const double number = value.toString().trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(number))
        throw Stop { context.usageError(
            QStringLiteral("字段 %1“%2”不是数字！").arg(field, value.toString().trimmed())) };
    return number;
}

QJsonObject readJsonFile(Context &context, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Stop { context.usageError(QStringLiteral("无法读取文件：") + path) };
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        throw Stop { context.usageError(QStringLiteral("文件不是 JSON 对象：") + path
            + (error.error != QJsonParseError::NoError
                    ? QStringLiteral("（%1）").arg(error.errorString())
                    : QString())) };
    return document.object();
}

namespace {

const DocumentKind &kindOf(
    Context &context, const DocumentKinds &kinds, const QString &prefix, const QString &shown)
{
    const DocumentKind *kind = kinds.find(prefix);
    if (!kind)
        throw Stop { context.usageError(QStringLiteral("未知的单据类型：") + shown) };
    return *kind;
}

int runSave(Context &context, Args &args, const DocumentKinds &kinds)
{
    const QString path = takePositional(context, args, 1, 1).first();
    const QJsonObject object = readJsonFile(context, path);
    const QString prefix = object.value(QStringLiteral("kind")).toString();
    const DocumentKind &kind = kindOf(context, kinds, prefix, prefix);
    if (!kind.save)
        throw Stop { context.usageError(QStringLiteral("该类单据不能从文件保存：") + prefix) };
    return kind.save(context, object);
}

using NumberHandler = std::function<int(Context &, const QString &, Args &)> DocumentKind::*;

// The number is the first positional argument; the rest is the kind's to take.
int runOnNumber(Context &context, Args &args, const DocumentKinds &kinds, NumberHandler handler)
{
    const QStringList arguments = args.positional();
    if (arguments.isEmpty() || arguments.first().startsWith(QLatin1String("--")))
        throw Stop { context.usageError(QStringLiteral("请先给出单据号")) };
    const QString number = arguments.first();
    const DocumentKind &kind = kindOf(context, kinds, number.left(2), number);
    if (!(kind.*handler))
        throw Stop { context.usageError(QStringLiteral("该类单据不支持此操作：") + number) };
    Args remaining(arguments.mid(1));
    return (kind.*handler)(context, number, remaining);
}

} // namespace

void addDocumentCommands(Registry &registry)
{
    const DocumentKinds *kinds = &registry.documents();
    registry.add({ QStringLiteral("save"), QStringLiteral("FILE"),
        QStringLiteral("从 JSON 文件保存单据（kind 为单据类型，其余为字段名和值），输出单据号"),
        [kinds](Context &c, Args &a) { return runSave(c, a, *kinds); } });
    registry.add({ QStringLiteral("check"), QStringLiteral("NUMBER [选项]"),
        QStringLiteral("审核单据（按单据号前缀分派）"),
        [kinds](Context &c, Args &a) { return runOnNumber(c, a, *kinds, &DocumentKind::check); } });
    registry.add({ QStringLiteral("uncheck"), QStringLiteral("NUMBER"),
        QStringLiteral("取消审核单据（按单据号前缀分派）"), [kinds](Context &c, Args &a) {
            return runOnNumber(c, a, *kinds, &DocumentKind::uncheck);
        } });
    registry.add({ QStringLiteral("delete"), QStringLiteral("NUMBER"),
        QStringLiteral("删除未审核的单据（按单据号前缀分派）"), [kinds](Context &c, Args &a) {
            return runOnNumber(c, a, *kinds, &DocumentKind::remove);
        } });
    registry.add({ QStringLiteral("show"), QStringLiteral("NUMBER"),
        QStringLiteral("显示单据（字段名=值）"),
        [kinds](Context &c, Args &a) { return runOnNumber(c, a, *kinds, &DocumentKind::show); } });
    registry.add({ QStringLiteral("document-kinds"), QString(),
        QStringLiteral("列出可由 save/check/uncheck/delete 处理的单据类型"),
        [kinds](Context &c, Args &a) {
            requireNoMore(c, a);
            for (const DocumentKind &kind : kinds->kinds())
                c.out() << kind.prefix << '\t' << kind.title << Qt::endl;
            return int(ExitDone);
        },
        Access::Open });
}

} // namespace medistock::cli
