#include "masterdata/goods.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "masterdata/numbers.h"
#include "masterdata/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::masterdata {

namespace {

// "商品管理": the goods, their units, barcodes and prices, and the class tree.
const int goodsRight = 1;

const int classSequenceWidth = 4;

QString cleaned(const QString &text)
{
    return core::cleanText(text.trimmed(), core::CleanStrength::Medium);
}

QString goodsName(core::Connection &db, const QString &code)
{
    return db.firstText(QStringLiteral("select g_name from jxc_goods where g_sn=?"), { code });
}

Outcome requireGoods(const shell::Session &session, const QString &code)
{
    if (session.db().exists(QStringLiteral("select 1 from jxc_goods where g_sn=?"), { code }))
        return Outcome::done();
    return core::refuse(session.ui(), texts::notFound(QStringLiteral("商品"), code));
}

// Deletes one satellite row of a goods (a unit, a barcode or a named price) under the goods right.
Outcome deleteSatellite(
    const shell::Session &session, const QString &sql, const QVariantList &params)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        session.db().exec(sql, params);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace

QString goodsCodeFor(const shell::Session &session, const QString &classCode)
{
    core::Connection &db = session.db();
    if (session.params().flag("cs_spbh") && !classCode.isEmpty()) {
        const QString largest = db.firstText(
            QStringLiteral("select max(g_sn) from jxc_goods where g_sn like ? and length(g_sn)=?"),
            { classCode + QLatin1Char('%'), int(classCode.size() + classSequenceWidth) });
        const int next = largest.isEmpty() ? 1 : largest.mid(classCode.size()).toInt() + 1;
        return classCode + QStringLiteral("%1").arg(next, classSequenceWidth, 10, QLatin1Char('0'));
    }
    // Six-digit codes only: the discount line "00000000" and class-prefixed codes stand apart.
    const QString largest = db.firstText(QStringLiteral(
        "select max(g_sn) from jxc_goods where length(g_sn)=6 and g_sn<>'00000000'"));
    return largest.isEmpty() ? QStringLiteral("100001") : QString::number(largest.toLongLong() + 1);
}

QString checkGoodsBarcode(core::Connection &db, const QString &barcode, const QString &ownCode)
{
    if (barcode.isEmpty())
        return QString();
    const QString owner
        = db.firstText(QStringLiteral("select g_sn from jxc_goods where g_sptm=? and g_sn<>? "
                                      "union select g_sn from jxc_goodstm where g_sptm=? "
                                      "union select g_sn from jxc_goodsdw where g_sptm=?"),
            { barcode, ownCode, barcode, barcode });
    return owner.isEmpty() ? QString() : texts::barcodeTaken(barcode, goodsName(db, owner));
}

QString prepareGoodsRow(
    core::Connection &db, QHash<QString, QVariant> &values, const QString &existingCode)
{
    if (values.contains(QStringLiteral("gc_sn"))) {
        const QString classCode = values.value(QStringLiteral("gc_sn")).toString();
        const QVariant cid = db.firstValue(
            QStringLiteral("select gc_cid from jxc_goodsclass where gc_sn=?"), { classCode });
        if (!cid.isValid())
            return texts::unknownClass(classCode);
        values.insert(QStringLiteral("gc_cid"), cid.toInt());
    }
    return checkGoodsBarcode(db, values.value(QStringLiteral("g_sptm")).toString(), existingCode);
}

void deleteGoodsSatellites(core::Connection &db, const QString &code)
{
    db.exec(QStringLiteral("delete from jxc_goodsdw where g_sn=?"), { code });
    db.exec(QStringLiteral("delete from jxc_goodstm where g_sn=?"), { code });
    db.exec(QStringLiteral("delete from jxc_goodsprice where g_sn=?"), { code });
}

QList<GoodsUnit> goodsUnits(core::Connection &db, const QString &code)
{
    QList<GoodsUnit> units;
    for (const QSqlRecord &row :
        db.rows(QStringLiteral("select id,dw_name,g_zhxs,g_sptm,g_jj,g_sj "
                               "from jxc_goodsdw where g_sn=? order by id"),
            { code }))
        units.append({ row.value(0).toLongLong(), row.value(1).toString(), row.value(2).toDouble(),
            row.value(3).toString(), row.value(4).toDouble(), row.value(5).toDouble() });
    return units;
}

Result<qint64> addGoodsUnit(
    const shell::Session &session, const QString &code, const GoodsUnit &unit)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    qint64 id = 0;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const Outcome known = requireGoods(session, code);
        if (!known)
            return known;
        const QString name = cleaned(unit.unit);
        if (name.isEmpty())
            return core::refuse(session.ui(), texts::nameRequired(QStringLiteral("单位")));
        const QString unitTable = QStringLiteral("jxc_goodsdw");
        QString problem = masterNumberProblem(unitTable, QStringLiteral("g_zhxs"), unit.factor);
        if (problem.isEmpty())
            problem = masterNumberProblem(unitTable, QStringLiteral("g_jj"), unit.purchasePrice);
        if (problem.isEmpty())
            problem = masterNumberProblem(unitTable, QStringLiteral("g_sj"), unit.salePrice);
        if (!problem.isEmpty())
            return core::refuse(session.ui(), problem);
        if (name
                == db.firstText(
                    QStringLiteral("select dw_name from jxc_goods where g_sn=?"), { code })
            || db.exists(QStringLiteral("select 1 from jxc_goodsdw where g_sn=? and dw_name=?"),
                { code, name }))
            return core::refuse(session.ui(), texts::unitTaken(name));
        const QString barcode = cleaned(unit.barcode);
        const QString taken = checkGoodsBarcode(db, barcode, QString());
        if (!taken.isEmpty())
            return core::refuse(session.ui(), taken);
        core::Transaction transaction(db);
        id = db.insert(
            QStringLiteral("insert into jxc_goodsdw (g_sn,dw_name,g_sptm,g_zhxs,g_jj,g_sj,g_sj1,"
                           "g_sj2,g_sj3,g_sj4,g_sj5,g_lsj,g_scjj,g_cbj,g_pjjj) "
                           "values (?,?,?,?,?,?,0,0,0,0,0,0,0,0,0)"),
            { code, name, barcode, unit.factor, unit.purchasePrice, unit.salePrice });
        session.log(QStringLiteral("增加商品辅助单位：%1 %2").arg(code, name));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return id;
}

Outcome removeGoodsUnit(const shell::Session &session, qint64 id)
{
    return deleteSatellite(session, QStringLiteral("delete from jxc_goodsdw where id=?"), { id });
}

QList<GoodsBarcode> goodsBarcodes(core::Connection &db, const QString &code)
{
    QList<GoodsBarcode> barcodes;
    for (const QSqlRecord &row :
        db.rows(QStringLiteral("select id,g_sptm,g_tmbz from jxc_goodstm where g_sn=? order by id"),
            { code }))
        barcodes.append(
            { row.value(0).toLongLong(), row.value(1).toString(), row.value(2).toString() });
    return barcodes;
}

Result<qint64> addGoodsBarcode(
    const shell::Session &session, const QString &code, const GoodsBarcode &barcode)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    qint64 id = 0;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const Outcome known = requireGoods(session, code);
        if (!known)
            return known;
        const QString text = cleaned(barcode.barcode);
        if (text.isEmpty())
            return core::refuse(session.ui(), texts::nameRequired(QStringLiteral("商品条码")));
        const QString taken = checkGoodsBarcode(db, text, QString());
        if (!taken.isEmpty())
            return core::refuse(session.ui(), taken);
        core::Transaction transaction(db);
        id = db.insert(
            QStringLiteral("insert into jxc_goodstm (g_sn,g_tmbz,g_sptm) values (?,?,?)"),
            { code, cleaned(barcode.remark), text });
        session.log(QStringLiteral("增加商品条码：%1 %2").arg(code, text));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return id;
}

Outcome removeGoodsBarcode(const shell::Session &session, qint64 id)
{
    return deleteSatellite(session, QStringLiteral("delete from jxc_goodstm where id=?"), { id });
}

QList<QPair<QString, double>> goodsPrices(core::Connection &db, const QString &code)
{
    QList<QPair<QString, double>> prices;
    for (const QSqlRecord &row : db.rows(
             QStringLiteral("select gp_name,gp_price from jxc_goodsprice where g_sn=? order by id"),
             { code }))
        prices.append({ row.value(0).toString(), row.value(1).toDouble() });
    return prices;
}

Outcome setGoodsPrice(
    const shell::Session &session, const QString &code, const QString &name, double price)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", goodsRight);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        const Outcome known = requireGoods(session, code);
        if (!known)
            return known;
        const QString priceName = cleaned(name);
        if (priceName.isEmpty())
            return core::refuse(session.ui(), texts::nameRequired(QStringLiteral("价格名称")));
        const QString problem = masterNumberProblem(
            QStringLiteral("jxc_goodsprice"), QStringLiteral("gp_price"), price);
        if (!problem.isEmpty())
            return core::refuse(session.ui(), problem);
        core::Transaction transaction(db);
        if (db.exec(
                QStringLiteral("update jxc_goodsprice set gp_price=? where g_sn=? and gp_name=?"),
                { price, code, priceName })
            == 0)
            db.exec(
                QStringLiteral("insert into jxc_goodsprice (gp_name,gp_price,g_sn) values (?,?,?)"),
                { priceName, price, code });
        transaction.commit();
        return Outcome::done();
    });
}

Outcome removeGoodsPrice(const shell::Session &session, const QString &code, const QString &name)
{
    return deleteSatellite(session,
        QStringLiteral("delete from jxc_goodsprice where g_sn=? and gp_name=?"), { code, name });
}

} // namespace medistock::masterdata
