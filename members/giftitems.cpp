#include "members/giftitems.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "masterdata/mnemonic.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::members {

namespace {

// A quantity of gifts bought or given away: above 0, within the shared quantity limits.
QString giftQuantityProblem(double quantity)
{
    if (quantity <= 0)
        return texts::giftQuantityNotPositive();
    return core::numberProblem(texts::giftQuantityField(), quantity, core::NumberKind::Quantity);
}

Outcome requireGiftsRight(const shell::Session &session)
{
    return shell::requireRight(session, "rcgl", rights::gifts);
}

// Runs a change in one transaction, telling a refusal or a database error.
template<class Body> Outcome change(const shell::Session &session, Body &&body)
{
    const Outcome allowed = requireGiftsRight(session);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Outcome outcome = body(session.db());
        if (!outcome)
            return core::refuse(session.ui(), outcome.message());
        transaction.commit();
        return outcome;
    });
}

bool itemExists(core::Connection &db, const QString &code)
{
    return db.exists(QStringLiteral("select id from jxc_zpxx where zp_sn=?"), { code });
}

Outcome checkItem(core::Connection &db, const GiftItem &item, bool isNew)
{
    if (item.name.trimmed().isEmpty())
        return Outcome::refused(texts::giftNameRequired());
    if (item.points < 0)
        return Outcome::refused(texts::giftPointsNegative());
    if (!isNew)
        return itemExists(db, item.code) ? Outcome::done()
                                         : Outcome::refused(texts::giftItemMissing(item.code));
    if (item.code.isEmpty())
        return Outcome::done();
    if (itemExists(db, item.code))
        return Outcome::refused(texts::giftCodeTaken(item.code));
    if (db.exists(QStringLiteral("select id from jxc_goods where g_sn=?"), { item.code }))
        return Outcome::refused(texts::giftCodeIsGoods(item.code));
    return Outcome::done();
}

void appendMovements(core::Connection &db, const QString &sql, const QString &code, int sort,
    const QString &kind, double sign, QList<GiftMovement> &movements)
{
    db.forEach(sql, { code }, [&](const QSqlQuery &q) {
        movements.append(
            { sort, q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(),
                sign * q.value(3).toDouble(), kind, q.value(4).toString(), q.value(5).toString() });
    });
}

} // namespace

QList<GiftItem> listGiftItems(core::Connection &connection)
{
    QList<GiftItem> items;
    connection.forEach(
        QStringLiteral("select zp_sn,zp_name,zp_jm,zp_jf from jxc_zpxx order by zp_sn"), {},
        [&](const QSqlQuery &q) {
            items.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toDouble() });
        });
    return items;
}

Result<QString> saveGiftItem(const shell::Session &session, const GiftItem &item, bool isNew)
{
    QString code = item.code.trimmed();
    const Outcome outcome = change(session, [&](core::Connection &db) {
        GiftItem cleaned { code, core::cleanText(item.name.trimmed(), core::CleanStrength::Medium),
            item.mnemonic.trimmed(), item.points };
        const Outcome valid = checkItem(db, cleaned, isNew);
        if (!valid)
            return valid;
        if (cleaned.mnemonic.isEmpty())
            cleaned.mnemonic = masterdata::mnemonicOf(cleaned.name);
        if (isNew && code.isEmpty()) {
            const Result<QString> next
                = core::nextMasterCode(db, QStringLiteral("jxc_zpxx"), QStringLiteral("zp_sn"));
            if (!next)
                return next.outcome();
            code = next.value();
        }
        const QVariantList values { cleaned.name, cleaned.mnemonic, cleaned.points, code };
        if (isNew)
            db.exec(QStringLiteral("insert into jxc_zpxx (zp_name,zp_jm,zp_jf,zp_sl,zp_sn) values "
                                   "(?,?,?,0,?)"),
                values);
        else
            db.exec(QStringLiteral("update jxc_zpxx set zp_name=?,zp_jm=?,zp_jf=? where zp_sn=?"),
                values);
        session.log(texts::giftItemSavedLog(code, cleaned.name));
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return code;
}

Outcome deleteGiftItem(const shell::Session &session, const QString &code)
{
    return change(session, [&](core::Connection &db) {
        if (!itemExists(db, code))
            return Outcome::refused(texts::giftItemMissing(code));
        if (!giftRegister(db, code).isEmpty())
            return Outcome::refused(texts::giftItemHasMovements(code));
        db.exec(QStringLiteral("delete from jxc_zpxx where zp_sn=?"), { code });
        session.log(texts::giftItemDeletedLog(code));
        return Outcome::done();
    });
}

Result<qint64> addGiftPurchase(const shell::Session &session, const QString &code, QDate date,
    double quantity, const QString &note)
{
    qint64 id = 0;
    const Outcome outcome = change(session, [&](core::Connection &db) {
        if (!itemExists(db, code))
            return Outcome::refused(texts::giftItemMissing(code));
        if (const QString problem = giftQuantityProblem(quantity); !problem.isEmpty())
            return Outcome::refused(problem);
        if (!date.isValid())
            return Outcome::refused(texts::giftDateInvalid());
        id = db.insert(QStringLiteral("insert into jxc_zpjh (zp_sn,zp_jhrq,zp_sl,zp_note,a_name) "
                                      "values (?,?,?,?,?)"),
            { code, date.toString(Qt::ISODate), quantity, core::cleanText(note),
                session.user().name });
        session.log(texts::giftPurchaseLog(code, quantity));
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return id;
}

Outcome deleteGiftPurchase(const shell::Session &session, qint64 id)
{
    return change(session, [&](core::Connection &db) {
        if (db.exec(QStringLiteral("delete from jxc_zpjh where id=?"), { id }) == 0)
            return Outcome::refused(texts::giftPurchaseMissing());
        session.log(texts::giftPurchaseDeletedLog(id));
        return Outcome::done();
    });
}

Result<QString> addGiveAway(const shell::Session &session, QDate date, const QString &saleNumber,
    const QList<GiveAwayLine> &lines, const QString &note)
{
    QString number;
    const Outcome outcome = change(session, [&](core::Connection &db) {
        if (!date.isValid())
            return Outcome::refused(texts::giftDateInvalid());
        if (lines.isEmpty())
            return Outcome::refused(texts::noGiftsChosen());
        double total = 0;
        for (const GiveAwayLine &line : lines) {
            if (!itemExists(db, line.code))
                return Outcome::refused(texts::giftItemMissing(line.code));
            if (const QString problem = giftQuantityProblem(line.quantity); !problem.isEmpty())
                return Outcome::refused(problem);
            total += line.quantity;
        }
        const Result<QString> next = core::nextDocumentNumber(
            db, QStringLiteral("jxc_zsd"), QStringLiteral("gl_djh"), texts::giveAwayPrefix(), date);
        if (!next)
            return next.outcome();
        number = next.value();
        db.exec(QStringLiteral("insert into jxc_zsd (gl_djh,gl_xsdjh,zp_zsrq,zp_sl,zp_zl,zp_note,"
                               "a_name) values (?,?,?,?,?,?,?)"),
            { number, saleNumber, date.toString(Qt::ISODate), total, int(lines.size()),
                core::cleanText(note), session.user().name });
        for (const GiveAwayLine &line : lines)
            db.exec(QStringLiteral("insert into jxc_zszp (gl_djh,zp_sn,zp_sl) values (?,?,?)"),
                { number, line.code, line.quantity });
        session.log(texts::giveAwayLog(number, total));
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome deleteGiveAway(const shell::Session &session, const QString &number)
{
    return change(session, [&](core::Connection &db) {
        if (db.exec(QStringLiteral("delete from jxc_zsd where gl_djh=?"), { number }) == 0)
            return Outcome::refused(texts::giveAwayMissing(number));
        db.exec(QStringLiteral("delete from jxc_zszp where gl_djh=?"), { number });
        session.log(texts::giveAwayDeletedLog(number));
        return Outcome::done();
    });
}

QList<GiftMovement> giftRegister(core::Connection &connection, const QString &code)
{
    QList<GiftMovement> movements;
    appendMovements(connection,
        QStringLiteral("select id,zp_jhrq,'',zp_sl,zp_note,a_name from jxc_zpjh where zp_sn=? "
                       "order by id desc"),
        code, 1, texts::giftPurchaseKind(), 1, movements);
    appendMovements(connection,
        QStringLiteral("select a.id,b.dh_dhrq,a.gl_djh,a.dh_sl,b.dh_note,a.a_name from jxc_dhzp a,"
                       "jxc_dhd b where a.gl_djh=b.gl_djh and a.g_sn=? order by a.id desc"),
        code, 2, texts::giftRedemptionKind(), -1, movements);
    appendMovements(connection,
        QStringLiteral("select a.id,b.zp_zsrq,a.gl_djh,a.zp_sl,b.zp_note,b.a_name from jxc_zszp a,"
                       "jxc_zsd b where a.gl_djh=b.gl_djh and a.zp_sn=? order by a.id desc"),
        code, 3, texts::giveAwayKind(), -1, movements);
    return movements;
}

double giftBalance(core::Connection &connection, const QString &code)
{
    double sum = 0;
    for (const GiftMovement &movement : giftRegister(connection, code))
        sum += movement.quantity;
    return sum;
}

} // namespace medistock::members
