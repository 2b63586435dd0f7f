#pragma once

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}

// The till's function keys as the account set keeps them (jxc_gnb): each function's name and
// the key that runs it, a Windows virtual-key code as the older tills stored it (112 is F1, 46
// Delete, 187 the "=" key).
namespace medistock::pos {

struct TillKey
{
    QString function; // gn_name, e.g. "付款结账"
    int virtualKey = 0; // gn_jz
};

// In the order they were seeded.
QList<TillKey> tillKeys(core::Connection &db);

} // namespace medistock::pos
