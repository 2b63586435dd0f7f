#pragma once

#include "core/outcome.h"
#include "documents/descriptor.h"
#include "documents/entry.h"

#include <QString>
#include <QStringList>

namespace medistock::shell {
class Session;
}

namespace medistock::documents {

// What the check and uncheck of every goods document share.

// The closed-period test before a document is checked or unchecked: "ok" when nothing stands in
// the way, else the message to show. No period is ever closed in this system yet, so the answer
// is always "ok"; a closing of periods would refuse here, for every document alike.
QString closedPeriodTest(const shell::Session &session, const QString &documentDate);
// The test as an outcome: a message other than "ok" is told and refused.
Outcome requireOpenPeriod(const shell::Session &session, const QString &documentDate);

// Only the operator who checked a document may uncheck it. Operator "100001" may always; another
// operator passes when the second rights test for the checker passes: the checker holds the
// uncheck right `position` of `area` (the operator's own uncheck right was the first test).
// Otherwise "单据：<number>，的审核人：<checker>\r\n不允许其他人取消审核！" is told and refused.
Outcome requireUncheckByChecker(const shell::Session &session, const QString &number,
    const QString &checker, const char *area, int position);

// "您的操作将取消当前选中的已审核单据：<number>，确认吗？"; "No" is refused with an empty message.
Outcome confirmUncheck(const shell::Session &session, const QString &number);

// The header's status steps of a check and an uncheck, for every goods document. Each runs
// inside the caller's transaction.

// The status read again inside the transaction: a missing document, or one that another
// workstation has checked or unchecked meanwhile, is told and refused.
Outcome requireStatus(
    const shell::Session &session, const DocumentKind &kind, const QString &number, int status);
// The header row `headerId` checked: status 1, the operator as checker, today as check date, and
// the kind's own columns `values` (what the check dialog confirmed).
void markChecked(const shell::Session &session, const DocumentKind &kind, qint64 headerId,
    const ColumnValues &values = {});
// Every header row of the number unchecked: status 0, checker and check date emptied, and the
// kind's own marks `cleared` (amount paid back, closing marks) set to 0.
void markUnchecked(const shell::Session &session, const DocumentKind &kind, const QString &number,
    const QStringList &cleared = {});
// Unchecked copies of the number left beside its checked header are deleted; without a checked
// header nothing is.
void removeUncheckedCopies(
    const shell::Session &session, const DocumentKind &kind, const QString &number);

} // namespace medistock::documents
