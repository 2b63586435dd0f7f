#include "gsp/categories.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "gsp/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>

namespace medistock::gsp {

namespace {

const int categoryRight = 9;
const int nameWidth = 32;

QString nextCategoryCode(core::Connection &db)
{
    const QString largest = db.firstText(QStringLiteral("select max(gsp_sn) from jxc_gspcs"));
    return largest.isEmpty() ? QStringLiteral("1001") : QString::number(largest.toLongLong() + 1);
}

} // namespace

QList<Category> categories(const shell::Session &session)
{
    QList<Category> list;
    session.db().forEach(
        QStringLiteral("select id,gsp_sn,gsp_name from jxc_gspcs order by gsp_sn,id"), {},
        [&](const QSqlQuery &q) {
            list.append({ q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString() });
        });
    return list;
}

Result<qint64> saveCategory(const shell::Session &session, qint64 id, const QString &typedName)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", categoryRight);
    if (!allowed)
        return allowed;
    const QString name = core::cleanText(typedName.trimmed(), core::CleanStrength::Medium);
    if (name.isEmpty())
        return core::refuse(session.ui(), texts::required(QStringLiteral("药品类型")));
    if (name.size() > nameWidth)
        return core::refuse(session.ui(), texts::tooLong(QStringLiteral("药品类型"), nameWidth));
    qint64 saved = id;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QString old
            = db.firstText(QStringLiteral("select gsp_name from jxc_gspcs where id=?"), { id });
        if (id != 0 && !db.exists(QStringLiteral("select id from jxc_gspcs where id=?"), { id }))
            return core::refuse(session.ui(), texts::categoryNotFound(id));
        if (db.exists(QStringLiteral("select gsp_name from jxc_gspcs where gsp_name=? and id<>?"),
                { name, id }))
            return core::refuse(session.ui(), texts::categoryNameTaken(name));
        core::Transaction transaction(db);
        if (id == 0) {
            saved = db.insert(QStringLiteral("insert into jxc_gspcs (gsp_sn,gsp_name,gsp_sele) "
                                             "values (?,?,?)"),
                { nextCategoryCode(db), name, 0 });
        } else {
            db.exec(QStringLiteral("update jxc_gspcs set gsp_name=? where id=?"), { name, id });
            db.exec(
                QStringLiteral("update jxc_goods set gsp_name=? where gsp_name=?"), { name, old });
        }
        session.log(texts::categorySavedLog(name));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return saved;
}

Outcome deleteCategory(const shell::Session &session, qint64 id)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", categoryRight);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QSqlRecord row
            = db.firstRow(QStringLiteral("select gsp_name from jxc_gspcs where id=?"), { id });
        if (row.isEmpty())
            return core::refuse(session.ui(), texts::categoryNotFound(id));
        const QString name = row.value(0).toString();
        if (db.exists(
                QStringLiteral("select id from jxc_goods where gsp_name=? limit 1"), { name }))
            return core::refuse(session.ui(), texts::categoryInUse(name));
        if (!session.ui().ask(texts::deleteCategoryQuestion(name)))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_gspcs where id=?"), { id });
        session.log(texts::categoryDeletedLog(name));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::gsp
