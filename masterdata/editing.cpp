#include "masterdata/editing.h"

#include "core/operation.h"
#include "core/transaction.h"
#include "masterdata/kinds.h"
#include "masterdata/parties.h"
#include "shell/session.h"

#include <QSet>

#include <functional>

namespace medistock::masterdata {

namespace {

// Adds the row (empty key, which then receives the new key) or changes it.
Outcome writeRow(
    const shell::Session &session, const MasterKind &kind, QString &key, const Values &values)
{
    if (!key.isEmpty())
        return updateMasterRow(session, kind, key, values);
    const Result<QString> added = addMasterRow(session, kind, values);
    if (!added)
        return added.outcome();
    key = added.value();
    return Outcome::done();
}

// Runs the steps of one save in a single transaction; the first refusal stops and undoes them.
Result<QString> saveInOne(const shell::Session &session, const MasterKind &kind, QString key,
    const std::function<Outcome(QString &)> &steps)
{
    const Outcome allowed = requireListRight(session, kind);
    if (!allowed)
        return allowed;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        core::Transaction transaction(session.db());
        const Outcome done = steps(key);
        if (!done)
            return done;
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return key;
}

Outcome syncUnits(const shell::Session &session, const QString &code, const QList<GoodsUnit> &units)
{
    QSet<qint64> kept;
    for (const GoodsUnit &unit : units)
        kept.insert(unit.id);
    for (const GoodsUnit &old : goodsUnits(session.db(), code))
        if (!kept.contains(old.id)) {
            const Outcome removed = removeGoodsUnit(session, old.id);
            if (!removed)
                return removed;
        }
    for (const GoodsUnit &unit : units)
        if (unit.id == 0) {
            const Result<qint64> added = addGoodsUnit(session, code, unit);
            if (!added)
                return added.outcome();
        }
    return Outcome::done();
}

Outcome syncBarcodes(
    const shell::Session &session, const QString &code, const QList<GoodsBarcode> &barcodes)
{
    QSet<qint64> kept;
    for (const GoodsBarcode &barcode : barcodes)
        kept.insert(barcode.id);
    for (const GoodsBarcode &old : goodsBarcodes(session.db(), code))
        if (!kept.contains(old.id)) {
            const Outcome removed = removeGoodsBarcode(session, old.id);
            if (!removed)
                return removed;
        }
    for (const GoodsBarcode &barcode : barcodes)
        if (barcode.id == 0) {
            const Result<qint64> added = addGoodsBarcode(session, code, barcode);
            if (!added)
                return added.outcome();
        }
    return Outcome::done();
}

Outcome syncPrices(
    const shell::Session &session, const QString &code, const QList<QPair<QString, double>> &prices)
{
    QSet<QString> kept;
    for (const auto &price : prices)
        kept.insert(price.first);
    for (const auto &old : goodsPrices(session.db(), code))
        if (!kept.contains(old.first)) {
            const Outcome removed = removeGoodsPrice(session, code, old.first);
            if (!removed)
                return removed;
        }
    for (const auto &price : prices) {
        const Outcome set = setGoodsPrice(session, code, price.first, price.second);
        if (!set)
            return set;
    }
    return Outcome::done();
}

} // namespace

Result<QString> saveGoods(const shell::Session &session, const GoodsDraft &draft)
{
    return saveInOne(session, goodsKind(), draft.code, [&](QString &code) -> Outcome {
        Outcome step = writeRow(session, goodsKind(), code, draft.values);
        if (step)
            step = syncUnits(session, code, draft.units);
        if (step)
            step = syncBarcodes(session, code, draft.barcodes);
        if (step)
            step = syncPrices(session, code, draft.prices);
        return step;
    });
}

Result<QString> saveCustomer(const shell::Session &session, const QString &key, Values values,
    const QStringList &employeeCodes)
{
    const MasterKind &kind = *findMasterKind(QStringLiteral("customer"));
    return saveInOne(session, kind, key, [&](QString &code) -> Outcome {
        const Outcome row = writeRow(session, kind, code, values);
        return row ? setCustomerEmployees(session, code, employeeCodes) : row;
    });
}

Result<QString> saveWarehouse(const shell::Session &session, const QString &key, Values values,
    const QStringList &operatorCodes)
{
    const MasterKind &kind = *findMasterKind(QStringLiteral("warehouse"));
    return saveInOne(session, kind, key, [&](QString &code) -> Outcome {
        const Outcome row = writeRow(session, kind, code, values);
        return row ? setWarehouseOperators(session, code, operatorCodes) : row;
    });
}

} // namespace medistock::masterdata
