#include "masterdata/goodsclass.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "masterdata/mnemonic.h"
#include "masterdata/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

#include <QSet>

#include <functional>
#include <optional>

namespace medistock::masterdata {

namespace {

// "商品管理": the goods, their units, barcodes and prices, and the class tree.
const int goodsRight = 1;

const int rootCid = 1;

QString cleanedName(const QString &name)
{
    return core::cleanText(name.trimmed(), core::CleanStrength::Medium);
}

GoodsClass classOf(const QSqlRecord &row)
{
    return { row.value(0).toInt(), row.value(1).toInt(), row.value(2).toString(),
        row.value(3).toString() };
}

std::optional<GoodsClass> findClass(core::Connection &db, int cid)
{
    const QSqlRecord row = db.firstRow(
        QStringLiteral("select gc_cid,gc_pid,gc_sn,gc_name from jxc_goodsclass where gc_cid=?"),
        { cid });
    if (row.isEmpty())
        return std::nullopt;
    return classOf(row);
}

QString nextClassCode(core::Connection &db, const GoodsClass &parent)
{
    const bool topLevel = parent.cid == rootCid;
    const QString prefix = topLevel ? QString() : parent.code;
    const int width = topLevel ? 4 : 2;
    const QString largest = db.firstText(
        QStringLiteral(
            "select max(gc_sn) from jxc_goodsclass where gc_sn like ? and length(gc_sn)=?"),
        { prefix + QLatin1Char('%'), int(prefix.size() + width) });
    const int next
        = largest.isEmpty() ? (topLevel ? 1000 : 1) : largest.mid(prefix.size()).toInt() + 1;
    return prefix + QStringLiteral("%1").arg(next, width, 10, QLatin1Char('0'));
}

// The refusal text when a sibling under the parent already has the name.
QString siblingNameTaken(core::Connection &db, int parentCid, const QString &name, int ownCid)
{
    if (db.exists(QStringLiteral(
                      "select 1 from jxc_goodsclass where gc_pid=? and gc_name=? and gc_cid<>?"),
            { parentCid, name, ownCid }))
        return texts::nameTaken(QStringLiteral("商品类别"), name);
    return QString();
}

} // namespace

QList<GoodsClass> goodsClasses(core::Connection &db)
{
    QList<GoodsClass> all;
    for (const QSqlRecord &row : db.rows(QStringLiteral(
             "select gc_cid,gc_pid,gc_sn,gc_name from jxc_goodsclass order by gc_sn,gc_cid")))
        all.append(classOf(row));
    QList<GoodsClass> ordered;
    std::function<void(int)> addChildren = [&](int parent) {
        for (const GoodsClass &c : all)
            if (c.pid == parent) {
                ordered.append(c);
                addChildren(c.cid);
            }
    };
    addChildren(0);
    return ordered;
}

Result<int> addGoodsClass(
    const shell::Session &session, int parentCid, const QString &name, const QString &code)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    int cid = 0;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const auto parent = findClass(db, parentCid);
        if (!parent)
            return core::refuse(session.ui(), texts::classNotFound());
        const QString className = cleanedName(name);
        if (className.isEmpty())
            return core::refuse(session.ui(), texts::nameRequired(QStringLiteral("商品类别")));
        const QString taken = siblingNameTaken(db, parentCid, className, 0);
        if (!taken.isEmpty())
            return core::refuse(session.ui(), taken);
        const QString classCode
            = code.trimmed().isEmpty() ? nextClassCode(db, *parent) : cleanedName(code);
        if (db.exists(QStringLiteral("select 1 from jxc_goodsclass where gc_sn=?"), { classCode }))
            return core::refuse(session.ui(), texts::codeTaken(classCode));
        core::Transaction transaction(db);
        cid = db.firstValue(QStringLiteral("select coalesce(max(gc_cid),0)+1 from jxc_goodsclass"))
                  .toInt();
        db.exec(
            QStringLiteral("insert into jxc_goodsclass (gc_name,gc_pid,gc_cid,gc_sn,gc_jm,gc_key) "
                           "values (?,?,?,?,?,?)"),
            { className, parentCid, cid, classCode, mnemonicOf(className), cid });
        session.log(QStringLiteral("增加商品类别：") + className);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return cid;
}

Outcome renameGoodsClass(const shell::Session &session, int cid, const QString &name)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        const auto node = findClass(db, cid);
        if (!node)
            return core::refuse(session.ui(), texts::classNotFound());
        const QString className = cleanedName(name);
        if (className.isEmpty())
            return core::refuse(session.ui(), texts::nameRequired(QStringLiteral("商品类别")));
        const QString taken = siblingNameTaken(db, node->pid, className, cid);
        if (!taken.isEmpty())
            return core::refuse(session.ui(), taken);
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_goodsclass set gc_name=?,gc_jm=? where gc_cid=?"),
            { className, mnemonicOf(className), cid });
        session.log(QStringLiteral("修改商品类别：%1→%2").arg(node->name, className));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome moveGoodsClass(const shell::Session &session, int cid, int newParentCid)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        const auto node = findClass(db, cid);
        if (!node || cid == rootCid || !findClass(db, newParentCid))
            return core::refuse(session.ui(), texts::classNotFound());
        for (std::optional<GoodsClass> up = findClass(db, newParentCid); up;
             up = findClass(db, up->pid))
            if (up->cid == cid)
                return core::refuse(session.ui(), texts::classCycle());
        const QString taken = siblingNameTaken(db, newParentCid, node->name, cid);
        if (!taken.isEmpty())
            return core::refuse(session.ui(), taken);
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_goodsclass set gc_pid=? where gc_cid=?"),
            { newParentCid, cid });
        session.log(QStringLiteral("移动商品类别：") + node->name);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteGoodsClass(const shell::Session &session, int cid)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        const auto node = findClass(db, cid);
        if (!node || cid == rootCid)
            return core::refuse(session.ui(), texts::classNotFound());
        if (db.exists(QStringLiteral("select 1 from jxc_goodsclass where gc_pid=?"), { cid })
            || db.exists(QStringLiteral("select 1 from jxc_goods where gc_cid=? or gc_sn=?"),
                { cid, node->code }))
            return core::refuse(session.ui(), texts::classNotEmpty(node->name));
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_goodsclass where gc_cid=?"), { cid });
        session.log(QStringLiteral("删除商品类别：") + node->name);
        transaction.commit();
        return Outcome::done();
    });
}

QList<QSqlRecord> searchGoodsInClass(core::Connection &db, const QString &text, int classCid)
{
    QList<QSqlRecord> found = searchMasterRows(db, goodsKind(), text);
    if (classCid == rootCid)
        return found;
    QSet<int> subtree { classCid };
    // Parents come before their children, so one pass gathers the whole subtree.
    for (const GoodsClass &c : goodsClasses(db))
        if (subtree.contains(c.pid))
            subtree.insert(c.cid);
    found.removeIf([&](const QSqlRecord &row) {
        return !subtree.contains(row.value(QStringLiteral("gc_cid")).toInt());
    });
    return found;
}

} // namespace medistock::masterdata
