#include "core/operation.h"

#include <QRandomGenerator>
#include <QThread>

namespace medistock::core {

bool runAgain(const DbError &error, int attempt)
{
    if (!error.busy())
        return false;
    if (!error.conflict())
        return attempt < busyAttempts;
    if (attempt >= conflictAttempts)
        return false;
    // Growing with the attempts, random so that two workstations do not meet again in step.
    const int most = 5 * attempt;
    QThread::msleep(QRandomGenerator::global()->bounded(1, most + 1));
    return true;
}

} // namespace medistock::core
