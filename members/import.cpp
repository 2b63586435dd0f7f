#include "members/import.h"

#include "core/connection.h"
#include "core/operation.h"
#include "members/levels.h"
#include "members/member.h"
#include "members/texts.h"
#include "shell/session.h"

#include <QSet>

namespace medistock::members {

namespace {

const QString cardColumn = QStringLiteral("hy_bh");

QString cardOf(const masterdata::ImportRow &row)
{
    return row.values.value(cardColumn).toString().trimmed();
}

// Card numbers given by the file must be new, in the file and among the members.
void rejectTakenCards(core::Connection &db, masterdata::ImportPlan &plan, QSet<QString> &given)
{
    for (masterdata::ImportRow &row : plan.rows) {
        const QString card = cardOf(row);
        if (!row.reason.isEmpty() || card.isEmpty())
            continue;
        if (given.contains(card)
            || db.exists(QStringLiteral("select id from jxc_hyxx where hy_bh=?"), { card }))
            row.reason = texts::cardTaken(card);
        given.insert(card);
    }
}

void completeRow(const shell::Session &session, masterdata::ImportRow &row)
{
    masterdata::Values &v = row.values;
    const auto preset = [&](const QString &column, const QVariant &value) {
        if (v.value(column).toString().isEmpty())
            v.insert(column, value);
    };
    preset(QStringLiteral("hy_jrrq"), session.today());
    preset(QStringLiteral("hy_status"), 1);
    preset(QStringLiteral("hy_sj"), 1);
    preset(QStringLiteral("hy_zjf"), v.value(QStringLiteral("hy_jf"), 0));
    if (upgradesByPoints(v.value(QStringLiteral("hy_sj"))))
        v.insert(QStringLiteral("hl_sn"),
            levelForPoints(session.db(), v.value(QStringLiteral("hy_zjf")).toDouble()));
}

} // namespace

Result<masterdata::ImportPlan> planMemberImport(const shell::Session &session, const QString &path)
{
    Result<masterdata::ImportPlan> planned = masterdata::planImport(session, memberKind(), path);
    if (!planned)
        return planned;
    masterdata::ImportPlan &plan = planned.value();
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        QSet<QString> given;
        rejectTakenCards(db, plan, given);
        qint64 next = nextCardNumber(db).toLongLong();
        for (masterdata::ImportRow &row : plan.rows) {
            if (!row.reason.isEmpty())
                continue;
            if (cardOf(row).isEmpty()) {
                while (given.contains(QString::number(next)))
                    ++next;
                row.values.insert(cardColumn, QString::number(next++));
            }
            completeRow(session, row);
        }
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return planned;
}

Result<int> runMemberImport(const shell::Session &session, const masterdata::ImportPlan &plan)
{
    return masterdata::runImport(session, memberKind(), plan);
}

} // namespace medistock::members
