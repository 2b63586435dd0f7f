#include "pos/tillkeys.h"

#include "core/connection.h"

#include <QSqlQuery>

namespace medistock::pos {

QList<TillKey> tillKeys(core::Connection &db)
{
    QList<TillKey> keys;
    db.forEach(QStringLiteral("select gn_name,gn_jz from jxc_gnb order by id"), {},
        [&](const QSqlQuery &q) {
            keys.append({ q.value(0).toString(), q.value(1).toInt() });
        });
    return keys;
}

} // namespace medistock::pos
