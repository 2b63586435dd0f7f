// Commands of members and retail: members added and shown, the points settings, levels by points,
// top-ups and the release of their gifts, redemption of gifts, and the till's documents posted
// into the books and taken out again.
#include "app/cli/documents.h"
#include "app/cli/registry.h"

#include "core/rounding.h"
#include "members/instalments.h"
#include "members/levels.h"
#include "members/member.h"
#include "members/redemption.h"
#include "members/retail.h"
#include "members/settings.h"
#include "members/topups.h"
#include "shell/session.h"

#include <QJsonArray>

namespace medistock::cli {

namespace {

double numberArgument(Context &context, const QString &text, const QString &what)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok)
        throw Stop { context.usageError(QStringLiteral("%1应为数字：%2").arg(what, text)) };
    return value;
}

double numberOption(Context &context, Args &args, const QString &name)
{
    const std::optional<QString> text = args.option(name);
    return text ? numberArgument(context, *text, name) : 0;
}

// A member by code, else by card number, mobile or telephone of an active card.
QString memberOrStop(Context &context, const QString &text)
{
    core::Connection &db = context.connection();
    if (members::readMember(db, text))
        return text;
    if (const std::optional<members::Member> found = members::findMemberByCard(db, text))
        return found->code;
    context.interaction().inform(QStringLiteral("没有找到会员：") + text);
    throw Stop { ExitRefused };
}

int runMemberAdd(Context &context, Args &args)
{
    const masterdata::Values values = columnOptions(context, args);
    context.out() << valueOf(members::addMember(context.session(), values)) << Qt::endl;
    return ExitDone;
}

int runMemberShow(Context &context, Args &args)
{
    const QString code = takePositional(context, args, 1, 1).first();
    const std::optional<members::Member> m = members::readMember(context.connection(), code);
    if (!m) {
        context.interaction().inform(QStringLiteral("会员编号“%1”不存在！").arg(code));
        return ExitRefused;
    }
    const QList<std::pair<const char *, QString>> fields { { "hy_sn", m->code },
        { "hy_bh", m->card }, { "hy_name", m->name }, { "hl_sn", m->level },
        { "hl_name", m->levelName }, { "hh_sn", m->scheme },
        { "hy_jf", core::plainNumber(m->points) },
        { "hy_zjf", core::plainNumber(m->lifetimePoints) },
        { "hy_zhje", core::plainNumber(m->balance) },
        { "hy_zje", core::plainNumber(m->consumption) },
        { "hy_ye", core::plainNumber(m->remainder) }, { "hy_cs", QString::number(m->visits) },
        { "hy_sj", m->upgrades ? QStringLiteral("1") : QStringLiteral("0") },
        { "hy_status", m->active ? QStringLiteral("1") : QStringLiteral("0") },
        { "hy_sr", m->birthday }, { "hy_mobile", m->mobile } };
    for (const auto &[name, value] : fields)
        context.out() << name << '=' << value << Qt::endl;
    return ExitDone;
}

int runPointsSettings(Context &context, Args &args)
{
    const QStringList pairs = takePositional(context, args, 0, 100);
    shell::Session &session = context.session();
    members::PointsSettings settings = members::loadPointsSettings(session.db());
    for (const QString &pair : pairs) {
        const qsizetype equals = pair.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return context.usageError(QStringLiteral("请用 字段名=值 的形式给出设置：") + pair);
        const Outcome applied
            = members::applyPointsSetting(settings, pair.left(equals), pair.mid(equals + 1));
        if (!applied)
            return context.usageError(applied.message());
    }
    if (!pairs.isEmpty())
        require(members::savePointsSettings(session, settings));
    for (const QString &column : members::pointsSettingColumns())
        context.out() << column << '=' << members::pointsSettingText(settings, column) << Qt::endl;
    return ExitDone;
}

int runMemberLevel(Context &context, Args &args)
{
    const QString points = takePositional(context, args, 1, 1).first();
    context.out() << members::levelForPoints(
        context.connection(), numberArgument(context, points, QStringLiteral("积分")))
                  << Qt::endl;
    return ExitDone;
}

int runTopUp(Context &context, Args &args)
{
    members::TopUpDraft draft;
    draft.giftMode = members::GiftMode(int(numberOption(context, args, QStringLiteral("--mode"))));
    draft.perInstalment = numberOption(context, args, QStringLiteral("--per"));
    draft.gift = numberOption(context, args, QStringLiteral("--gift"));
    draft.points = numberOption(context, args, QStringLiteral("--points"));
    draft.payment.bankCard = numberOption(context, args, QStringLiteral("--bank"));
    draft.payment.wechat = numberOption(context, args, QStringLiteral("--wechat"));
    draft.payment.alipay = numberOption(context, args, QStringLiteral("--alipay"));
    draft.payment.change = numberOption(context, args, QStringLiteral("--change"));
    const std::optional<QString> cash = args.option(QStringLiteral("--cash"));
    draft.note = args.option(QStringLiteral("--note")).value_or(QString());
    const QStringList positional = takePositional(context, args, 2, 2);
    if (int(draft.giftMode) < 0 || int(draft.giftMode) > 4)
        return context.usageError(QStringLiteral("--mode 只能是 0 到 4"));
    draft.member = memberOrStop(context, positional[0]);
    draft.amount = numberArgument(context, positional[1], QStringLiteral("充值金额"));
    // Without a payment split the whole amount was paid in cash.
    const members::CounterPayment &p = draft.payment;
    draft.payment.cash = cash ? numberArgument(context, *cash, QStringLiteral("--cash"))
                              : draft.amount - (p.bankCard + p.wechat + p.alipay - p.change);
    context.out() << valueOf(members::topUp(context.session(), draft)) << Qt::endl;
    return ExitDone;
}

int runReleaseGifts(Context &context, Args &args)
{
    requireNoMore(context, args);
    const auto released = members::releaseInstalmentGifts(context.session());
    const members::GiftRelease &release = valueOf(released);
    context.out() << (release.rows > 0 ? release.number : QStringLiteral("-")) << '\t'
                  << release.rows << '\t' << core::plainNumber(release.amount) << Qt::endl;
    return ExitDone;
}

members::RedemptionPeriod periodOrStop(Context &context, const QString &name)
{
    for (const members::RedemptionPeriod period :
        { members::RedemptionPeriod::Unlimited, members::RedemptionPeriod::Day,
            members::RedemptionPeriod::Week, members::RedemptionPeriod::Month })
        if (members::periodName(period) == name)
            return period;
    throw Stop { context.usageError(
        QStringLiteral("--period 只能是 不限制、今天、本周 或 本月：") + name) };
}

int runRedeem(Context &context, Args &args)
{
    members::RedemptionDraft draft;
    draft.period = periodOrStop(
        context, args.option(QStringLiteral("--period")).value_or(QStringLiteral("不限制")));
    draft.note = args.option(QStringLiteral("--note")).value_or(QString());
    const QStringList positional = takePositional(context, args, 3, 1000);
    draft.member = memberOrStop(context, positional[0]);
    draft.warehouse = positional[1];
    for (const QString &pair : positional.mid(2)) {
        const qsizetype equals = pair.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return context.usageError(QStringLiteral("请用 商品编号=数量 的形式给出赠品：") + pair);
        draft.lines.append({ pair.left(equals), {}, 0,
            numberArgument(context, pair.mid(equals + 1), QStringLiteral("数量")) });
    }
    context.out() << valueOf(members::saveRedemption(context.session(), draft)) << Qt::endl;
    return ExitDone;
}

int runRedeemDelete(Context &context, Args &args)
{
    const QString number = takePositional(context, args, 1, 1).first();
    require(members::deleteRedemption(context.session(), number));
    return ExitDone;
}

const QStringList headerFields { "gl_djh", "pos_xsrq", "hy_sn", "ck_sn", "u_sn", "a_name", "kh_sn",
    "pos_xj", "pos_czk", "pos_yhk", "pos_djq", "pos_wxje", "pos_zfbje", "pos_zlje", "pos_mlje",
    "pos_yhzkje", "pos_note", "pos_yfje", "pos_sfje", "lines" };
const QStringList lineFields { "g_sn", "pos_sl", "pos_dj", "pos_dzl", "t_zp", "g_zhxs", "dw_name",
    "t_ph", "t_yxq", "t_scrq", "pos_zje" };

members::RetailLine retailLineFromJson(Context &context, const QJsonObject &o)
{
    requireKnownFields(context, o, lineFields);
    members::RetailLine l;
    l.goods = jsonText(o, QStringLiteral("g_sn"));
    l.quantity = jsonNumber(context, o, QStringLiteral("pos_sl"));
    l.price = jsonNumber(context, o, QStringLiteral("pos_dj"));
    if (o.contains(QStringLiteral("pos_dzl")))
        l.discountRate = jsonNumber(context, o, QStringLiteral("pos_dzl"));
    if (o.contains(QStringLiteral("g_zhxs")))
        l.unitFactor = jsonNumber(context, o, QStringLiteral("g_zhxs"));
    l.giftMarker = jsonText(o, QStringLiteral("t_zp"));
    l.unit = jsonText(o, QStringLiteral("dw_name"));
    l.batch = jsonText(o, QStringLiteral("t_ph"));
    l.expiry = jsonText(o, QStringLiteral("t_yxq"));
    l.produced = jsonText(o, QStringLiteral("t_scrq"));
    return l;
}

members::RetailDocument retailFromJson(Context &context, const QJsonObject &o)
{
    requireKnownFields(context, o, headerFields);
    members::RetailDocument d;
    d.number = jsonText(o, QStringLiteral("gl_djh"));
    const QString kind = o.contains(QStringLiteral("kind")) ? jsonText(o, QStringLiteral("kind"))
                                                            : d.number.left(2);
    if (kind != QLatin1String("XS") && kind != QLatin1String("XT"))
        throw Stop { context.usageError(QStringLiteral("请用 gl_djh 或 kind 给出 XS 或 XT")) };
    d.kind = kind == QLatin1String("XT") ? members::RetailKind::Return : members::RetailKind::Sale;
    d.time = jsonText(o, QStringLiteral("pos_xsrq"));
    d.member = jsonText(o, QStringLiteral("hy_sn"));
    d.warehouse = jsonText(o, QStringLiteral("ck_sn"));
    d.employee = jsonText(o, QStringLiteral("u_sn"));
    d.cashier = jsonText(o, QStringLiteral("a_name"));
    d.customer = jsonText(o, QStringLiteral("kh_sn"));
    d.note = jsonText(o, QStringLiteral("pos_note"));
    const auto number
        = [&](const char *field) { return jsonNumber(context, o, QString::fromLatin1(field)); };
    d.payment.counter = { number("pos_xj"), number("pos_yhk"), number("pos_djq"),
        number("pos_wxje"), number("pos_zfbje"), number("pos_zlje") };
    d.payment.card = number("pos_czk");
    d.payment.roundingOff = number("pos_mlje");
    d.payment.discount = number("pos_yhzkje");
    for (const QJsonValue &line : o.value(QStringLiteral("lines")).toArray())
        d.lines.append(retailLineFromJson(context, line.toObject()));
    return d;
}

// Figures the file states beside what the posting computes must agree with it.
void requireStatedFigures(Context &context, const QJsonObject &o, const members::RetailDocument &d)
{
    const shell::Session &session = context.session();
    const double receivable = members::retailReceivable(session, d);
    for (const char *field : { "pos_yfje", "pos_sfje" })
        if (o.contains(QString::fromLatin1(field))
            && session.params().roundAmount(jsonNumber(context, o, QString::fromLatin1(field)))
                != receivable)
            throw Stop { context.usageError(
                QStringLiteral("%1 与明细算出的应收金额 %2 不符")
                    .arg(QString::fromLatin1(field), core::plainNumber(receivable))) };
}

int runPosPost(Context &context, Args &args)
{
    const QString path = takePositional(context, args, 1, 1).first();
    const QJsonObject object = readJsonFile(context, path);
    const members::RetailDocument document = retailFromJson(context, object);
    requireStatedFigures(context, object, document);
    context.out() << valueOf(members::postRetailDocument(context.session(), document)) << Qt::endl;
    return ExitDone;
}

int runPosReverse(Context &context, Args &args)
{
    const QString number = takePositional(context, args, 1, 1).first();
    require(members::reverseRetailDocument(context.session(), number));
    return ExitDone;
}

} // namespace

void addMembersCommands(Registry &registry)
{
    registry.add({ QStringLiteral("member-add"), QStringLiteral("--hy_name 姓名 [--字段名 值 ...]"),
        QStringLiteral("增加会员（无卡号时自动编卡号），输出会员编号"), runMemberAdd });
    registry.add({ QStringLiteral("member-show"), QStringLiteral("CODE"),
        QStringLiteral("显示会员的积分、等级、卡内余额和消费"), runMemberShow });
    registry.add({ QStringLiteral("points-settings"), QStringLiteral("[字段名=值 ...]"),
        QStringLiteral("显示或修改积分设置（jf_mfje jf_jfgz jf_yelj jf_dbjf jf_dbrq1 jf_dbrq2 "
                       "jf_srjfbs jf_srjflx jf_srjfts）"),
        runPointsSettings });
    registry.add({ QStringLiteral("member-level"), QStringLiteral("POINTS"),
        QStringLiteral("积分所在的会员等级"), runMemberLevel });
    registry.add({ QStringLiteral("topup"),
        QStringLiteral("MEMBER AMOUNT [--mode N --per 每次金额 --gift 赠送金额] [--cash --bank "
                       "--wechat --alipay --change 金额] [--points 赠送积分] [--note 备注]"),
        QStringLiteral("会员充值，输出充值单号"), runTopUp });
    registry.add({ QStringLiteral("release-gifts"), QString(),
        QStringLiteral("发放到期的充值赠送（登录时自动执行），输出单号、笔数和金额"),
        runReleaseGifts });
    registry.add({ QStringLiteral("redeem"),
        QStringLiteral("MEMBER WAREHOUSE GOODS=QTY ... [--period 今天|本周|本月] [--note 备注]"),
        QStringLiteral("积分兑换赠品，输出兑换单号"), runRedeem });
    registry.add({ QStringLiteral("redeem-delete"), QStringLiteral("NUMBER"),
        QStringLiteral("删除赠品兑换单，积分和赠品退回（需要 --yes）"), runRedeemDelete });
    registry.add({ QStringLiteral("pos-post"), QStringLiteral("FILE"),
        QStringLiteral("POS单据记帐（JSON：jxc_posxsd 的字段和 lines 明细），输出单号"),
        runPosPost });
    registry.add({ QStringLiteral("pos-reverse"), QStringLiteral("NUMBER"),
        QStringLiteral("取消POS单据记帐（需要 --yes）"), runPosReverse });
}

} // namespace medistock::cli
