#include "loans/kinds.h"

namespace medistock::loans {

const documents::DocumentKind &loanKind()
{
    static const documents::DocumentKind kind { .prefix = "JH",
        .title = "借货单",
        .header = { .table = "jxc_khjh",
            .number = "gl_djh",
            .date = "jh_rq",
            .party = "kh_sn",
            .partyTable = documents::PartyTable::Customer,
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "jh_note",
            .status = "jh_status",
            .checker = "jh_checker",
            .checkDate = "jh_chkrq" },
        .lines = { .table = "jxc_khjhsp",
            .number = "gl_djh",
            .goods = "g_sn",
            .quantity = "jh_sl",
            .price = "jh_dj",
            .total = "jh_zje",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = rightArea,
        .saveRight = loanRight,
        .deleteRight = loanRight };
    return kind;
}

QString returnPrefix()
{
    return QStringLiteral("HH");
}

QString loanFlag()
{
    return QStringLiteral("jh");
}

QString returnFlag()
{
    return QStringLiteral("hh");
}

} // namespace medistock::loans
