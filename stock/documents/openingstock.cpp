#include "stock/documents/openingstock.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/checks.h"
#include "stock/documents/posting.h"
#include "stock/documents/texts.h"
#include "stock/options.h"
#include "stock/texts.h"

#include <QDate>
#include <QHash>
#include <QSqlQuery>

namespace medistock::stock {

namespace {

constexpr int openingRight = 16; // "商品期初建账" in "qtcz"

} // namespace

const documents::DocumentKind &openingStockEntry()
{
    static const documents::DocumentKind kind { .prefix = "QC",
        .title = "商品期初建账",
        .header = { .table = "jxc_goodslist",
            .number = "gl_djh",
            .date = "gl_kdrq",
            .warehouse = "ck_sn",
            .operatorName = "a_name" },
        .lines = { .table = "jxc_goodslist",
            .number = "gl_djh",
            .goods = "g_sn",
            .unit = "dw_name",
            .quantity = "gl_sysl",
            .baseQuantity = "gl_sl",
            .price = "gl_dj",
            .amount = "gl_je",
            .total = "gl_zje",
            .remark = "gl_bz",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium };
    return kind;
}

namespace {

// The shared line checks, and every warehouse named by a line.
Result<documents::ValidDocument> validate(const shell::Session &session, const OpeningDraft &draft)
{
    if (draft.lines.isEmpty())
        return core::refuse(session.ui(), documents::texts::noLines());
    documents::DocumentDraft entry;
    entry.date = draft.date;
    for (const OpeningLine &line : draft.lines) {
        if (entry.warehouse.isEmpty())
            entry.warehouse = line.warehouse.trimmed();
        entry.lines.append(line.line);
    }
    const Outcome warehouses = core::guarded(session.ui(), [&] {
        for (const OpeningLine &line : draft.lines) {
            const QString code = line.warehouse.trimmed();
            if (code.isEmpty())
                return core::refuse(session.ui(), documents::texts::warehouseRequired());
            if (!session.db().exists(
                    QStringLiteral("select id from jxc_ckxx where ck_sn=? limit 1"), { code }))
                return core::refuse(session.ui(), documents::texts::warehouseMissing(code));
        }
        return Outcome::done();
    });
    if (!warehouses)
        return warehouses;
    return documents::validateDraft(session, openingStockEntry(), entry);
}

LedgerRow openingRow(const shell::Session &session, const QString &number, const QString &date,
    const QString &warehouse, const documents::ValidLine &line)
{
    StockHeader header;
    header.number = number;
    header.date = date;
    header.warehouse = warehouse;
    header.warehouseName = session.db().firstText(
        QStringLiteral("select ck_name from jxc_ckxx where ck_sn=? order by id limit 1"),
        { warehouse });
    LedgerRow row = documentRow(session, header, QStringLiteral("qc"));
    row.goods = line.goods;
    session.db().forEach(QStringLiteral("select %1 from jxc_goods c where c.g_sn=? order by c.id "
                                        "limit 1")
                             .arg(goodsColumns()),
        { line.goods }, [&](const QSqlQuery &q) { copyGoods(row, q, 0); });
    const documents::LineFigures &f = line.figures;
    row.price = row.taxedPrice = basePrice(f.price, f.quantity, f.baseQuantity);
    row.quantity = f.baseQuantity;
    row.unitQuantity = f.quantity;
    row.total = row.amount = f.amount;
    row.operatorName = session.user().name;
    row.batch = line.batch;
    row.expiry = line.expiry;
    row.produced = line.produced;
    row.lineNote = line.remark;
    row.partyName = texts::openingParty();
    return row;
}

void post(const shell::Session &session, const QString &number, const QString &date,
    const QList<OpeningLine> &lines, const documents::ValidDocument &valid)
{
    ensureSettlementRows(session, session.today());
    for (qsizetype i = 0; i < valid.lines.size(); ++i) {
        const QString warehouse = lines[i].warehouse.trimmed();
        const LedgerRow row = openingRow(session, number, date, warehouse, valid.lines[i]);
        const qint64 id = insertLedgerRow(session, row);
        const PostedRow posted { id, { row.goods, warehouse, row.batch, row.expiry, row.produced },
            row.quantity, row.price, row.amount, row.total, row.average, row.checkDate };
        postRow(session, posted, true, session.today());
        refreshGoodsAverage(session, row.goods, row.price);
    }
    session.log(texts::openingPostedLog(number, int(valid.lines.size())));
}

// The batch check of a removal: the rows of one batch summed against its stock, where it holds
// any; worded as an issue from stock.
Outcome confirmBatches(const shell::Session &session, const QList<PostedRow> &rows)
{
    QHash<QString, double> wanted;
    const auto keyOf = [](const BatchKey &b) {
        return QStringList { b.goods, b.warehouse, b.batch, b.expiry, b.produced }.join(
            QChar(0x1f));
    };
    for (const PostedRow &row : rows)
        wanted[keyOf(row.batch)] += row.quantity;
    for (const PostedRow &row : rows) {
        const std::optional<double> held = batchQuantity(session, row.batch);
        if (!held || *held <= 0 || wanted.value(keyOf(row.batch)) <= *held + 0.000000001)
            continue;
        const bool negative = allowsNegativeStock(session.params());
        const QString text = batchShortageText(QStringLiteral("CJ"), row.batch.goods, negative);
        if (!negative)
            return core::refuse(session.ui(), text);
        return session.ui().ask(text) ? Outcome::done() : Outcome::refused(QString());
    }
    return Outcome::done();
}

} // namespace

Result<QString> postOpeningStock(const shell::Session &session, const OpeningDraft &draft)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", openingRight);
    if (!allowed)
        return allowed;
    const Result<documents::ValidDocument> valid = validate(session, draft);
    if (!valid)
        return valid.outcome();
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Result<QString> given = core::nextDocumentNumber(session.db(),
            QStringLiteral("jxc_goodslist"), QStringLiteral("gl_djh"), QStringLiteral("QC"),
            QDate::fromString(valid->date, QStringLiteral("yyyy-MM-dd")));
        if (!given)
            return core::refuse(session.ui(), given.message());
        number = given.value();
        post(session, number, valid->date, draft.lines, valid.value());
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

QList<OpeningEntry> openingEntries(const shell::Session &session)
{
    QList<OpeningEntry> entries;
    session.db().forEach(
        QStringLiteral("select gl_djh,gl_kdrq,ck_sn,ck_name,count(*),sum(gl_sl),sum(gl_je),"
                       "a_name from jxc_goodslist where gl_flag=? group by gl_djh,gl_kdrq,ck_sn,"
                       "ck_name,a_name order by gl_djh,ck_sn"),
        { QStringLiteral("qc") }, [&](const QSqlQuery &q) {
            entries.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toString(), q.value(4).toInt(), q.value(5).toDouble(),
                q.value(6).toDouble(), q.value(7).toString() });
        });
    return entries;
}

Outcome removeOpeningStock(const shell::Session &session, const QString &number)
{
    Outcome outcome = shell::requireRight(session, "qtcz", openingRight);
    QList<PostedRow> rows;
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            rows = postedRows(session, number);
            if (rows.isEmpty() || !number.startsWith(QLatin1String("QC")))
                return core::refuse(session.ui(), texts::openingMissing(number));
            return confirmBatches(session, rows);
        });
    if (outcome && !session.ui().ask(texts::openingRemoveQuestion(number)))
        outcome = Outcome::refused(QString());
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        // Read again: another workstation may have removed it meanwhile.
        const QList<PostedRow> current = postedRows(session, number);
        if (current.isEmpty())
            return core::refuse(session.ui(), texts::openingMissing(number));
        for (const PostedRow &row : current) {
            reverseRow(session, row, true);
            refreshGoodsAverage(session, row.batch.goods, row.price);
        }
        session.log(texts::openingRemovedLog(number));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::stock
