#include "members/topups.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "members/levels.h"
#include "members/member.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <cmath>

namespace medistock::members {

namespace {

Outcome checkDraft(const shell::Session &session, const TopUpDraft &d, const Member *member)
{
    const shell::Parameters &p = session.params();
    if (!member)
        return Outcome::refused(texts::memberMissing(d.member));
    if (!member->active)
        return Outcome::refused(texts::cardNotActive(member->name));
    if (p.roundAmount(d.amount) <= 0)
        return Outcome::refused(texts::topUpAmountInvalid());
    const CounterPayment &pay = d.payment;
    for (const double part :
        { pay.cash, pay.bankCard, pay.insurance, pay.wechat, pay.alipay, pay.change })
        if (part < 0)
            return Outcome::refused(texts::paymentNegative());
    if (p.roundAmount(pay.total()) != p.roundAmount(d.amount))
        return Outcome::refused(texts::paymentDiffers(pay.total(), d.amount));
    if (d.points < 0 || d.points != std::trunc(d.points))
        return Outcome::refused(texts::givenPointsInvalid());
    if (d.giftMode == GiftMode::None)
        return d.gift == 0 ? Outcome::done() : Outcome::refused(texts::giftWithoutMode());
    if (d.perInstalment <= 0 || d.gift < d.perInstalment)
        return Outcome::refused(texts::giftInstalmentInvalid());
    return Outcome::done();
}

void insertTopUp(const shell::Session &session, const QString &number, const TopUpDraft &d)
{
    const bool gift = d.giftMode != GiftMode::None;
    session.db().exec(
        QStringLiteral("insert into jxc_hyxf (gl_djh,hy_sn,xf_rq,xf_je,xf_yhje,xf_djq,xf_czk,xf_xj,"
                       "xf_xyk,xf_wxje,xf_zfbje,xf_zlje,a_name,xf_note,xf_zt,xf_zsrq,hs_zsfs,"
                       "hs_myje,hs_zsje) values (?,?,?,?,0,?,0,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { number, d.member, session.today(), d.amount, d.payment.insurance, d.payment.cash,
            d.payment.bankCard, d.payment.wechat, d.payment.alipay, d.payment.change,
            session.user().name, core::cleanText(d.note), texts::topUpState(), session.today(),
            int(d.giftMode), gift ? d.perInstalment : 0, gift ? d.gift : 0 });
}

} // namespace

Result<QString> topUp(const shell::Session &session, const TopUpDraft &draft)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        const std::optional<Member> member = readMember(db, draft.member);
        const Outcome valid = checkDraft(session, draft, member ? &*member : nullptr);
        if (!valid)
            return core::refuse(session.ui(), valid.message());
        const Result<QString> next = core::nextDocumentNumber(db, QStringLiteral("jxc_hyxf"),
            QStringLiteral("gl_djh"), QStringLiteral("XF"), session.clock().today());
        if (!next)
            return core::refuse(session.ui(), next.message());
        number = next.value();
        insertTopUp(session, number, draft);
        const QString level = levelAfterPointsAdded(db, draft.member, draft.points);
        db.exec(QStringLiteral("update jxc_hyxx set hy_zhje=round(hy_zhje+?,8),hy_jf=hy_jf+?,"
                               "hy_zjf=hy_zjf+?,hl_sn=? where hy_sn=?"),
            { draft.amount, draft.points, draft.points, level, draft.member });
        bookCounterPayment(session,
            { number, session.today(), texts::topUpState(), member->code, member->name, {}, {},
                texts::topUpCashNote(member->card, member->name) },
            draft.payment);
        session.log(texts::topUpLog(number, member->name, draft.amount));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

} // namespace medistock::members
