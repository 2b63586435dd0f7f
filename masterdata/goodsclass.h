#pragma once

#include "core/outcome.h"

#include <QList>
#include <QSqlRecord>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::masterdata {

// A node of the goods-class tree: gc_cid is the node, gc_pid its parent's gc_cid (0 for the root
// "所有类别"), gc_sn the code that prefixes goods codes.
struct GoodsClass
{
    int cid = 0;
    int pid = 0;
    QString code;
    QString name;
};

// Every class, parents before their children, siblings in code order.
QList<GoodsClass> goodsClasses(core::Connection &db);

// Adds a class under a parent. Without a code, a class under the root gets the next four-digit
// code ("1001"), a sub-class its parent's code plus a two-digit sequence ("100101"). Names differ
// among siblings. Returns the new node id.
Result<int> addGoodsClass(
    const shell::Session &session, int parentCid, const QString &name, const QString &code = {});
Outcome renameGoodsClass(const shell::Session &session, int cid, const QString &name);
// Moves a class (with its sub-classes) under another parent; never under itself or its own subtree.
Outcome moveGoodsClass(const shell::Session &session, int cid, int newParentCid);
// Deletes a class that has neither sub-classes nor goods.
Outcome deleteGoodsClass(const shell::Session &session, int cid);

// The goods that searchMasterRows finds for the text, narrowed to a class and its sub-classes;
// the root class "所有类别" holds every goods.
QList<QSqlRecord> searchGoodsInClass(core::Connection &db, const QString &text, int classCid);

} // namespace medistock::masterdata
