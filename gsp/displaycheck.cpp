#include "gsp/displaycheck.h"

#include "core/connection.h"
#include "core/numbers.h"
#include "core/textclean.h"
#include "gsp/expiry.h"
#include "gsp/reading.h"
#include "gsp/texts.h"

#include <cmath>

namespace medistock::gsp {

namespace {

// The header's four groups of counts and the prefix of their columns.
struct GroupColumns
{
    const char *prefix;
    InspectionGroup InspectionHeader::*group;
    bool keepsExpired;
};

const GroupColumns groups[] = {
    { "t_zy", &InspectionHeader::herbal, true },
    { "t_sw", &InspectionHeader::biological, true },
    { "t_yh", &InspectionHeader::maintained, true },
    { "t_jxq", &InspectionHeader::nearExpiry, false },
};

// The columns of one group in the order they are written and read.
QStringList groupColumns(const GroupColumns &g)
{
    const QString p = QString::fromLatin1(g.prefix);
    QStringList columns { p + QStringLiteral("sl"), p + QStringLiteral("zl"),
        p + QStringLiteral("hgsl"), p + QStringLiteral("pssl") };
    if (g.keepsExpired)
        columns.append(p + QStringLiteral("gqsl"));
    columns.append(p + QStringLiteral("ycsl"));
    return columns;
}

QVariantList groupValues(const GroupColumns &g, const InspectionGroup &group)
{
    QVariantList values { group.quantity, group.quality, group.qualified, group.damaged };
    if (g.keepsExpired)
        values.append(group.expired);
    values.append(group.abnormal);
    return values;
}

void readGroup(const GroupColumns &g, InspectionGroup &group, detail::Cells &c)
{
    group.quantity = c.number();
    group.quality = c.text();
    group.qualified = c.number();
    group.damaged = c.number();
    if (g.keepsExpired)
        group.expired = c.number();
    group.abnormal = c.number();
}

const QStringList climateColumns { QStringLiteral("t_dnwd"), QStringLiteral("t_dnsd"),
    QStringLiteral("t_lcgwd"), QStringLiteral("t_lcgsd"), QStringLiteral("t_ylgwd"),
    QStringLiteral("t_ylgsd") };

QStringList headerColumns()
{
    QStringList columns = climateColumns;
    for (const GroupColumns &g : groups)
        columns.append(groupColumns(g));
    return columns;
}

QVariantList headerValues(const InspectionHeader &h)
{
    QVariantList values { h.storeTemperature, h.storeHumidity, h.coldTemperature, h.coldHumidity,
        h.coolTemperature, h.coolHumidity };
    for (const GroupColumns &g : groups)
        values.append(groupValues(g, h.*(g.group)));
    return values;
}

double stockSum(const shell::Session &session, const QString &warehouse, const QString &condition,
    const QVariantList &values)
{
    // The discount line never holds stock; a stray batch row of it does not count either.
    QVariantList params { warehouse, QStringLiteral("00000000") };
    params.append(values);
    return session.db()
        .firstValue(QStringLiteral("select sum(a.t_sl) as zsl from jxc_tkc a,jxc_goods b where "
                                   "a.g_sn=b.g_sn and a.ck_sn=? and a.g_sn<>? and ")
                + condition,
            params)
        .toDouble();
}

InspectionGroup foundGood(double quantity)
{
    InspectionGroup group;
    group.quantity = quantity;
    group.quality = texts::goodQuality();
    group.qualified = quantity;
    return group;
}

// The refusal for a figure outside its range; empty when all are within.
QString figureRefusal(const InspectionHeader &h)
{
    const struct
    {
        const char *what;
        double value;
        double low;
        double high;
    } climate[] = { { "店内温度", h.storeTemperature, -50, 60 },
        { "店内湿度", h.storeHumidity, 0, 100 }, { "冷藏柜温度", h.coldTemperature, -50, 60 },
        { "冷藏柜湿度", h.coldHumidity, 0, 100 }, { "阴凉柜温度", h.coolTemperature, -50, 60 },
        { "阴凉柜湿度", h.coolHumidity, 0, 100 } };
    for (const auto &figure : climate)
        if (!std::isfinite(figure.value) || figure.value < figure.low || figure.value > figure.high)
            return texts::outOfRange(QString::fromUtf8(figure.what), QString::number(figure.value),
                figure.low, figure.high);
    for (const GroupColumns &g : groups)
        for (const QVariant &value : groupValues(g, h.*(g.group)))
            if (value.typeId() == QMetaType::Double) {
                if (!std::isfinite(value.toDouble()) || value.toDouble() < 0)
                    return texts::badNumber(QStringLiteral("检查数量"), value.toString());
                if (const QString problem = core::numberProblem(
                        QStringLiteral("检查数量"), value.toDouble(), core::NumberKind::Quantity);
                    !problem.isEmpty())
                    return problem;
            }
    return QString();
}

InspectionHeader cleaned(InspectionHeader h)
{
    h.warehouse = h.warehouse.trimmed();
    h.employee = h.employee.trimmed();
    h.note = core::cleanText(h.note.trimmed(), core::CleanStrength::Medium);
    for (const GroupColumns &g : groups) {
        QString &quality = (h.*(g.group)).quality;
        quality = core::cleanText(quality.trimmed(), core::CleanStrength::Medium);
    }
    return h;
}

QString textRefusal(const InspectionHeader &h)
{
    if (h.note.size() > 200)
        return texts::tooLong(QStringLiteral("备注"), 200);
    for (const GroupColumns &g : groups)
        if ((h.*(g.group)).quality.size() > 32)
            return texts::tooLong(QStringLiteral("质量状况"), 32);
    return QString();
}

} // namespace

InspectionHeader proposedInspection(const shell::Session &session, const QString &warehouse)
{
    const QString today = session.today();
    InspectionHeader h;
    h.date = today;
    h.warehouse = warehouse;
    const QString byCategory = QStringLiteral("b.gsp_name=?");
    h.herbal = foundGood(stockSum(session, warehouse, byCategory, { QStringLiteral("中药饮片") }));
    h.biological
        = foundGood(stockSum(session, warehouse, byCategory, { QStringLiteral("生物制品") }));
    h.maintained = foundGood(
        stockSum(session, warehouse, QStringLiteral("b.g_yhlx<>?"), { QStringLiteral("不养护") }));
    h.nearExpiry = foundGood(
        stockSum(session, warehouse, QStringLiteral("(a.t_yxq>=? or a.t_yxq=?) and a.t_yxq<=?"),
            { today, today.left(7),
                expiryLimit(session.clock().today(), nearExpiryDays(session.params())) }));
    return h;
}

Result<QString> saveInspection(const shell::Session &session, const InspectionHeader &typed)
{
    const InspectionHeader h = cleaned(typed);
    for (const QString &refusal : { figureRefusal(h), textRefusal(h) })
        if (!refusal.isEmpty())
            return core::refuse(session.ui(), refusal);
    const Outcome placed = core::guarded(
        session.ui(), [&] { return detail::checkPlaces(session, h.warehouse, h.employee); });
    if (!placed)
        return placed;
    const QStringList columns = headerColumns();
    QStringList marks;
    for (qsizetype i = 0; i < columns.size() + 9; ++i)
        marks.append(QStringLiteral("?"));
    return detail::saveFilledRecord(
        session, FilledKind::Inspection, h.date, h.warehouse, [&](const QString &number, int) {
            QVariantList values { number, h.date.trimmed(), h.warehouse, h.employee, h.note,
                session.user().name, 0, QString(), QString() };
            values.append(headerValues(h));
            session.db().exec(
                QStringLiteral("insert into jxc_cljcd (gl_djh,t_rq,ck_sn,u_sn,t_note,"
                               "a_name,t_status,t_checker,t_chkrq,%1) values (%2)")
                    .arg(columns.join(QLatin1Char(',')), marks.join(QLatin1Char(','))),
                values);
        });
}

Result<QList<InspectionRecord>> inspectionRecords(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<InspectionRecord>(session, filter, [&](QList<InspectionRecord> &rows) {
        detail::listFilledRecords(session, FilledKind::Inspection, filter,
            QStringLiteral("a.") + headerColumns().join(QStringLiteral(",a.")),
            [&](const FilledRecordInfo &info, const QSqlQuery &q, int next) {
                InspectionRecord record;
                record.info = info;
                InspectionHeader &h = record.header;
                detail::takeShared(h, info);
                detail::Cells c(q, next);
                h.storeTemperature = c.number();
                h.storeHumidity = c.number();
                h.coldTemperature = c.number();
                h.coldHumidity = c.number();
                h.coolTemperature = c.number();
                h.coolHumidity = c.number();
                for (const GroupColumns &g : groups)
                    readGroup(g, h.*(g.group), c);
                rows.append(record);
            });
    });
}

} // namespace medistock::gsp
