#include "shell/company.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

namespace medistock::shell {

namespace {

// Telephone numbers and addresses keep their dashes, brackets and slashes.
QString cleaned(const QString &text)
{
    return core::cleanText(text.trimmed(), core::CleanStrength::Medium);
}

} // namespace

Outcome saveCompany(Session &session, const Company &company)
{
    const Outcome allowed = requireRight(session, "qtcz", 12);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const QVariantList values { cleaned(company.name), cleaned(company.shortName),
        cleaned(company.tele), cleaned(company.contact), cleaned(company.address) };
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const QVariant id
            = db.firstValue(QStringLiteral("select id from jxc_company order by id limit 1"));
        if (id.isValid())
            db.exec(QStringLiteral("update jxc_company set c_name=?,c_jc=?,c_tele=?,c_lxr=?,"
                                   "c_address=? where id=?"),
                values + QVariantList { id });
        else
            db.exec(QStringLiteral("insert into jxc_company (c_sn,c_name,c_jc,c_tele,c_lxr,"
                                   "c_address) values ('100001',?,?,?,?,?)"),
                values);
        session.log(QStringLiteral("修改公司信息"));
        transaction.commit();
        session.reload();
        return Outcome::done();
    });
}

} // namespace medistock::shell
