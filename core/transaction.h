#pragma once

#include "core/connection.h"

namespace medistock::core {

// Opens a write transaction for its scope (BEGIN IMMEDIATE on SQLite) and rolls it back unless
// commit() was reached. A guard opened inside another joins it: only the outermost commits, and
// an inner guard that is left without commit makes the whole transaction roll back.
class Transaction
{
public:
    explicit Transaction(Connection &connection)
        : m_connection(connection)
    {
        m_connection.beginWrite();
    }
    ~Transaction()
    {
        if (!m_committed)
            m_connection.rollbackWrite();
    }
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit()
    {
        m_connection.commitWrite();
        m_committed = true;
    }

private:
    Connection &m_connection;
    bool m_committed = false;
};

} // namespace medistock::core
