#pragma once

#include "core/outcome.h"
#include "reports/data.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::reports {

// A kind of document that prints through a key: the key, the header table with its number and
// date columns, the template it prints with by default and the words that name it.
struct DocumentPrint
{
    QString key; // "spxs"
    QString table; // "jxc_lsxsd"
    QString numberColumn; // "gl_djh"; "j_sn" for purchase receipts
    QString dateColumn; // "ls_xsrq"
    QString defaultTemplate; // "spxs"; the key itself unless the folder names it otherwise
    QStringList prefixes; // the numbers' prefixes: "XS"
};

// Every document key: cgjh, cgth, spxs, xsth, cgd, spdd, kcdb, spcf, spkb, spbs, spby, kcpd,
// khjh; xshh (the customer return as the drug ledger prints it); posxsd, posxp, posxp58 (a POS
// document reprinted on A4 or on receipt paper); jbxp, jbxp58 (the till's shift handover on
// 80 mm or 58 mm paper, numbered by its row id in jxc_jbgl); ysyfysk, ysyfskd, ysyfyfk, ysyffkd
// (the registrations of jxc_ysyfk_dj: receivable entry, collection, payable entry, payment).
QList<DocumentPrint> documentPrints();
const DocumentPrint *documentPrint(const QString &key);
// The key a document number prints with by default, from its prefix; empty for none.
QString keyForNumber(const QString &number);
// The document key whose forms a template is: its default template or one of its variants
// ("spxs4" -> spxs, "xsd2" -> spdd, "bsby" -> spbs); empty for a report's template.
QString keyForTemplate(const QString &templateName);

// Sets the company variables comName, comTele, comLxr, comAddress from the company row, where
// the data does not set them already.
void addCompanyVariables(const shell::Session &session, ReportData &data);

// The variables and the line dataset "Lines" a document hands its template.
//
// Every document sets the company variables comName, comTele, comLxr, comAddress, and besides
// the header variables of its key:
//   djh    the document number;
//   dxje   the total `yf` in Chinese capitals ("壹佰贰拾叁元肆角伍分"), for every key with `yf`.
// Values are handed as quoted texts; xxyh, xxyf, xxsf are formatted "#.00"; a sale's jhDate is
// "yyyy-MM-dd HH:mm:ss" when "销售单日期记录到分秒" (cs_cs014) is on, else "yyyy-MM-dd".
//
// Customer balances of sales (spxs), returns (xsth) and sales orders (spdd), read from the
// receivables ledger:
//   khqk   what the customer owed before this document: for a checked document the balance of
//          its own ledger row less what that row added (due - paid), for an unchecked one or an
//          order the balance as of the document's date;
//   ljqkje what the customer owes with this document: khqk + due - paid (for a checked document
//          the balance its ledger row carries);
//   yf2    what the customer has to settle with this document: khqk + yf.
// The check posts due - paid under either settlement mode (ls_jsfs "1" and "2"), so the figures
// follow the ledger and not the mode. A return's yf and sf print as positive amounts (what goes
// back), its balances keep their signs.
//
// The lines ("Lines") are chosen by the number's prefix for XS, XT, CJ and CT and by the key for
// the others, each joined with the goods (g_name, gg_name, color_name, g_bzq, g_sccs, g_yjlx,
// g_bz, g_jc, g_tym, hj_name, g_zczh, g_scxkz, g_cztj, g_ybbh) and its class (gc_name). Sales
// and sales orders print only lines with ls_dzl > 0, name the goods g_name + g_tmbz + t_zp and
// carry the price after discount `sj` (ls_taxdj * ls_dzl; returns th_taxdj * th_dzl). Lines run
// in entry order, by goods code or by goods name as "打印顺序" (cs_dysx 0, 1, 2) says. The merged
// sale (template spxs3, or every sale when "打印销售单商品不同批次商品合并打印", cs_employts, is
// on) has one line per goods with summed quantities and amounts. Blank filling rows come from the
// template's FillRows, not from a work table.
//
// The shift handover (jbxp, jbxp58) is read by its id and sets jbTime, jbCurrUser, jbNextUser,
// jbNote and the amounts bbskzje, sjyyk, xfyyk, jjzje with the amount decimals of the parameters
// ("52.00", not the "#.00" of the documents' xx variables, which would print ".00" for nothing
// handed over); it has no lines.
//
// A registration (ysyfysk, ysyfskd, ysyfyfk, ysyffkd) is read only under its own kind (k_djlx
// YS, SK, YF, FK), so a collection never prints on the entry's form. It sets jhDate k_rq,
// partyName (the customer's or supplier's name of k_ghskh), fkfs k_fkfs (the account), gldjh2,
// Note, aName, uName (the salesman), checker, chkrq, the amounts mlje k_mlje and yhje k_yhje,
// and je: what an entry adds to the debt (k_yfje) or what a collection or payment took
// (k_sfje), as stored; dxje is je in capitals, yf is je and sf k_sfje.
//
// A number that does not exist is refused (documentMissing); a party or warehouse that is gone
// leaves its variables empty.
Result<ReportData> documentData(const shell::Session &session, const QString &key,
    const QString &number, const QString &templateName);

} // namespace medistock::reports
