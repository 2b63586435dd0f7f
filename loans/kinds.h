#pragma once

#include "documents/descriptor.h"

// Customer loans "客户借货管理": goods leave a warehouse on loan to a customer against a deposit
// and a daily rent, and later come back ("还货") or are sold to the customer ("借货转销售"). The
// loan "JH", its returns and its sales' return parts "HH" are all headers of jxc_khjh (jh_flag
// "jh" / "hh") with lines in jxc_khjhsp. A loan is entered through the shared document entry and
// checked and unchecked through the shared status steps; a return is prepared from the loan and
// saved checked at once; unchecking a return deletes it.
//
// Readings of what the rules leave open:
// - Lines are in base units (the line table keeps no unit). A loan line's price left empty takes
//   the cost as of the loan date in its warehouse, as an outgoing stock document's does; jh_zje is
//   quantity x price.
// - A return line is valued at its loan line's price: it brings back the goods that left, at the
//   value they left with, so that the day's settlement gets back what the loan took.
// - Days jh_ts are counted from the loan date to the return date, at least 1 (a return on the
//   loan's own day costs one day's rent).
// - A return line may take less than the open quantity jh_sl-jh_hhsl-jh_xssl; it then uses the
//   matching share of the remaining deposit jh_yj-jh_yj2 (all of it when the whole open quantity
//   comes back). Rent = rent per unit and day x days x quantity; the deposit to refund is the share
//   less the rent, never below 0.
// - The rent is income of the loan line's account jh_kmmc: one checked income row per account in
//   jxc_yyfy, and, unless the account is "不记入账户", its movement "收入收款" in the cash and
//   bank book, since the customer paid it out of the deposit the pharmacy holds.
// - Loan to sale: one transaction writes the return part (note "还货：借货转销售", lines "销售",
//   ledger rows "hh" with gl_fdmc "xs": the goods come back) and a sale of the same goods at the
//   sale prices, saved and checked by the sales module itself (its number "XS", its header linked
//   to the return by gl_djh2): the goods leave again and the customer owes the sale. Its questions
//   (expired batches, prepayment) are asked before the transaction; its stock tests are not made,
//   since the goods sold are the goods that come back. A return whose sale is still checked
//   cannot be unchecked; the unchecked sale is deleted with it.
// - The settlement row of the check date moves by each row's quantity and amount on check, and
//   back on uncheck, for loans and returns alike; an uncheck of a return lowers the loan line's
//   used deposit jh_yj2 by the return line's share as well (clamped at 0 like the quantities), so
//   that a check and its uncheck leave every store as it was.
// - A loan with returns or sales cannot be unchecked; a loan is checked and unchecked under the
//   right "客户借货管理" (rcgl 4), which the area has for all of its operations.
namespace medistock::loans {

// The loan "借货单": jxc_khjh / jxc_khjhsp, prefix "JH", base units only.
const documents::DocumentKind &loanKind();

// The return's number prefix and its header flags.
QString returnPrefix(); // "HH"
QString loanFlag(); // jh_flag "jh"
QString returnFlag(); // jh_flag "hh"

// The single right of the loans "客户借货管理": position 4 of "rcgl".
constexpr const char *rightArea = "rcgl";
constexpr int loanRight = 4;

} // namespace medistock::loans
