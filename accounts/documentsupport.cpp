#include "accounts/documentsupport.h"

#include "accounts/texts.h"
#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "shell/session.h"

#include <QDate>
#include <QHash>

namespace medistock::accounts {

bool isDateText(const QString &text)
{
    return text.size() == 10 && QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
}

QString cleanNote(const QString &note)
{
    return core::cleanText(note, core::CleanStrength::Medium);
}

Result<QString> numberForDate(core::Connection &connection, const QString &table,
    const QString &prefix, const QString &date, const QString &current)
{
    const QDate day = QDate::fromString(date.left(10), QStringLiteral("yyyy-MM-dd"));
    const QString stem = prefix + day.toString(QStringLiteral("yyMMdd"));
    if (!current.isEmpty() && current.startsWith(stem))
        return current;
    return core::nextDocumentNumber(connection, table, QStringLiteral("gl_djh"), prefix, day);
}

Outcome requireChecker(shell::Session &session, const QString &number, const QString &checker)
{
    if (session.user().code == QLatin1String("100001") || session.user().name == checker)
        return Outcome::done();
    return core::refuse(session.ui(), texts::otherCheckerRefused(number, checker));
}

bool confirmUncheck(shell::Session &session, const QString &number)
{
    return session.ui().ask(texts::uncheckQuestion(number));
}

QString employeeName(core::Connection &connection, const QString &code)
{
    return connection.firstText(
        QStringLiteral("select u_name from jxc_user where u_sn=? order by id limit 1"), { code });
}

bool employeeExists(core::Connection &connection, const QString &code)
{
    return connection.exists(QStringLiteral("select id from jxc_user where u_sn=?"), { code });
}

bool employeeNameExists(core::Connection &connection, const QString &name)
{
    return connection.exists(QStringLiteral("select id from jxc_user where u_name=?"), { name });
}

QList<QSqlRecord> documentRows(core::Connection &connection, const QString &number)
{
    static const QHash<QString, QString> tables {
        { QStringLiteral("YS"), QStringLiteral("jxc_ysyfk_dj") },
        { QStringLiteral("SK"), QStringLiteral("jxc_ysyfk_dj") },
        { QStringLiteral("YF"), QStringLiteral("jxc_ysyfk_dj") },
        { QStringLiteral("FK"), QStringLiteral("jxc_ysyfk_dj") },
        { QStringLiteral("XJ"), QStringLiteral("jxc_xjyh") },
        { QStringLiteral("XC"), QStringLiteral("jxc_xjyh") },
        { QStringLiteral("XZ"), QStringLiteral("jxc_xjyh") },
        { QStringLiteral("FY"), QStringLiteral("jxc_yyfy") },
        { QStringLiteral("SR"), QStringLiteral("jxc_yyfy") },
    };
    const QString table = tables.value(number.left(2));
    if (table.isEmpty() || number.isEmpty())
        return {};
    return connection.rows(
        QStringLiteral("select * from %1 where gl_djh=? order by id").arg(table), { number });
}

bool bankAccountExists(core::Connection &connection, const QString &name)
{
    return !name.isEmpty()
        && connection.exists(QStringLiteral("select id from jxc_yhzh where yh_name=?"), { name });
}

} // namespace medistock::accounts
