#include "core/oplog.h"
#include "documents/entry.h"
#include "tests/documents/entrytest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using namespace medistock::documents;
using medistock::test::dumpDatabase;
using medistock::test::EntryTest;
using medistock::test::fullKind;
using medistock::test::plainKind;

namespace {

const QString lineColumns = QStringLiteral(
    "j_sn,g_sn,dw_name,jh_sl,jh_zsl,jh_dj,jh_tax,jh_taxdj,jh_taxje,jh_je,jh_zje,jh_dzl,jh_bz,t_ph,"
    "t_scrq,t_yxq,g_sptm,a_name");

QStringList logNotes(core::Connection &db)
{
    QStringList notes;
    for (const core::LogEntry &entry : core::readLog(db, {}, {}))
        notes.append(entry.note);
    return notes;
}

} // namespace

TEST_F(EntryTest, ANewDocumentGetsItsNumberComputedLinesDueAmountAndDiscountLine)
{
    LineDraft cases = line(
        QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("240"), QStringLiteral("件"));
    cases.taxRate = QStringLiteral("13");
    cases.batch = QStringLiteral("B-01/2'");
    cases.remark = QStringLiteral("整件(冷藏)?");
    LineDraft bags = line(QStringLiteral("200002"), QStringLiteral(" 5 "), QStringLiteral("8.5"));
    bags.discountRate = QStringLiteral("0.9");
    bags.batch.clear();
    bags.produced.clear();
    bags.expiry.clear();
    DocumentDraft d = draft({ cases, bags });
    d.note = QStringLiteral("到货(部分)'急'?");
    d.discount = 0.65;

    EXPECT_EQ(save(d), QStringLiteral("CJ25031410001"));

    EXPECT_EQ(rows(QStringLiteral("jxc_jhd"),
                  QStringLiteral("j_sn,j_jhrq,ghs_sn,ck_sn,u_sn,a_name,j_note,j_status,j_checker,"
                                 "j_chkrq,j_yfje,j_yhje")),
        QStringList { "CJ25031410001|2025-03-14|100002|100001|100001|admin|到货(部分)‘急‘？|0|||"
                      "580|0.65" });
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), lineColumns),
        (QStringList {
            "CJ25031410001|200001|件|2|40|240|13|271.2|62.4|480|542.4|1|整件(冷藏)？|B-01/2‘|"
            "2024-12-01|2027-11-30|6901|admin",
            "CJ25031410001|200002|袋|5|5|8.5|0|8.5|0|38.25|38.25|0.9||||||admin",
            "CJ25031410001|00000000||0|0|0|0|0|0|-0.65|-0.65|1||||||admin" }));
    EXPECT_EQ(logNotes(db()), QStringList { "增加未审核采购进货单CJ25031410001，共2种商品" });
}

TEST_F(EntryTest, NumbersFollowTheDocumentDateAndAChangeOfDayRenumbers)
{
    const QString first = save(draft({ line(QStringLiteral("200001"), "1", "10") }));
    const QString second = save(draft({ line(QStringLiteral("200002"), "1", "10") }));
    DocumentDraft later = draft({ line(QStringLiteral("200001"), "3", "10") });
    later.date = QStringLiteral("2025-03-20");
    EXPECT_EQ(first, QStringLiteral("CJ25031410001"));
    EXPECT_EQ(second, QStringLiteral("CJ25031410002"));
    EXPECT_EQ(save(later), QStringLiteral("CJ25032010001"));
    const QString firstId
        = db().firstText(QStringLiteral("select id from jxc_jhd where j_sn=?"), { first });

    DocumentDraft sameDay = draft({ line(QStringLiteral("200002"), "7", "2") });
    sameDay.number = first;
    sameDay.date = QStringLiteral("2025-03-14");
    EXPECT_EQ(save(sameDay), first);
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("g_sn,jh_sl"),
                  QStringLiteral("j_sn=?"), { first }),
        QStringList { "200002|7" });

    DocumentDraft moved = sameDay;
    moved.date = QStringLiteral("2025-03-20");
    EXPECT_EQ(save(moved), QStringLiteral("CJ25032010002"));
    EXPECT_EQ(db().firstText(QStringLiteral("select j_sn from jxc_jhd where id=?"), { firstId }),
        QStringLiteral("CJ25032010002"));
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("g_sn"), QStringLiteral("j_sn=?"),
                  { first }),
        QStringList {});
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("g_sn,jh_sl"),
                  QStringLiteral("j_sn=?"), { QStringLiteral("CJ25032010002") }),
        QStringList { "200002|7" });
    EXPECT_EQ(logNotes(db()).mid(3),
        (QStringList { "修改未审核采购进货单CJ25031410001，共1种商品",
            "修改未审核采购进货单CJ25032010002，共1种商品" }));
}

TEST_F(EntryTest, TheDiscountLineFollowsTheDiscount)
{
    DocumentDraft d = draft({ line(QStringLiteral("200001"), "2", "50") });
    d.discount = 5;
    d.number = save(d);
    d.discount = 3;
    save(d);
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("g_sn,jh_zje"),
                  QStringLiteral("g_sn='00000000'")),
        QStringList { "00000000|-3" });
    EXPECT_EQ(db().firstText(QStringLiteral("select j_yfje from jxc_jhd")), QStringLiteral("97"));
    d.discount = 0;
    save(d);
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("g_sn,jh_zje")),
        QStringList { "200001|100" });
}

TEST_F(EntryTest, ACheckedDocumentIsNeitherChangedNorDeleted)
{
    DocumentDraft d = draft({ line(QStringLiteral("200001"), "1", "10") });
    d.number = save(d);
    db().exec(QStringLiteral("update jxc_jhd set j_status=1"));
    const QString before = dumpDatabase(db());

    const Result<QString> changed = saveDocument(session(), fullKind(), d);
    const Outcome deleted = deleteDocument(session(), fullKind(), d.number);

    EXPECT_EQ(changed.message(), QStringLiteral("单据：CJ25031410001，已审核，不能修改！"));
    EXPECT_EQ(deleted.message(), QStringLiteral("单据：CJ25031410001，已审核，不能删除！"));
    EXPECT_EQ(ui.informed, QStringList({ changed.message(), deleted.message() }));
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(EntryTest, DeletingRemovesHeaderAndLinesAndAMissingNumberIsTold)
{
    DocumentDraft d = draft({ line(QStringLiteral("200001"), "1", "10") });
    d.discount = 1;
    const QString number = save(d);
    const QString other = save(draft({ line(QStringLiteral("200002"), "1", "10") }));

    EXPECT_TRUE(deleteDocument(session(), fullKind(), number));

    EXPECT_EQ(rows(QStringLiteral("jxc_jhd"), QStringLiteral("j_sn")), QStringList { other });
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("j_sn")), QStringList { other });
    EXPECT_EQ(logNotes(db()).last(), QStringLiteral("删除未审核采购进货单CJ25031410001"));
    EXPECT_EQ(deleteDocument(session(), fullKind(), number).message(),
        QStringLiteral("单据：CJ25031410001，不存在！"));
    d.number = number;
    EXPECT_EQ(saveDocument(session(), fullKind(), d).message(),
        QStringLiteral("单据：CJ25031410001，不存在！"));
}

TEST_F(EntryTest, AKindsRuleMayRefuseAddColumnsAndChangeFigures)
{
    const QString before = dumpDatabase(db());
    const EntryRule refuse = [](const shell::Session &s, ValidDocument &) {
        s.ui().inform(QStringLiteral("不行"));
        return Outcome::refused(QStringLiteral("不行"));
    };
    EXPECT_EQ(
        saveDocument(session(), fullKind(), draft({ line("200001", "1", "10") }), refuse).message(),
        QStringLiteral("不行"));
    EXPECT_EQ(dumpDatabase(db()), before);

    // As a returns document stores its amounts: negated, with columns of its own.
    const EntryRule negate = [](const shell::Session &, ValidDocument &doc) {
        doc.columns.set(QStringLiteral("j_sn2"), QStringLiteral("GYS-7"));
        for (ValidLine &l : doc.lines) {
            l.figures.total = -l.figures.total;
            l.columns.set(QStringLiteral("jh_rksl"), 0);
            l.columns.set(QStringLiteral("jh_bz"), QStringLiteral("退"));
        }
        return Outcome::done();
    };
    ASSERT_TRUE(saveDocument(session(), fullKind(),
        draft({ line("200001", "2", "10"), line("200002", "1", "4") }), negate));
    EXPECT_EQ(rows(QStringLiteral("jxc_jhd"), QStringLiteral("j_sn2,j_yfje")),
        QStringList { "GYS-7|-24" });
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("jh_zje,jh_rksl,jh_bz")),
        (QStringList { "-20|0|退", "-4|0|退" }));

    const EntryRule unknownColumn = [](const shell::Session &, ValidDocument &doc) {
        doc.columns.set(QStringLiteral("no_such"), 1);
        return Outcome::done();
    };
    const QString saved = dumpDatabase(db());
    EXPECT_EQ(
        saveDocument(session(), fullKind(), draft({ line("200001", "1", "1") }), unknownColumn)
            .message(),
        QStringLiteral("数据表 jxc_jhd 没有字段：no_such"));
    EXPECT_EQ(dumpDatabase(db()), saved);
}

TEST_F(EntryTest, AKindWithoutUnitsPartyOrTaxStoresWhatItHas)
{
    DocumentDraft d = draft({ line(QStringLiteral("200001"), "3", "2.5") });
    d.party = QStringLiteral("no party kept");
    d.note = QStringLiteral("破损(运输)-退");
    const Result<QString> saved = saveDocument(session(), plainKind(), d);
    ASSERT_TRUE(saved) << saved.message().toStdString();
    EXPECT_EQ(saved.value(), QStringLiteral("BS25031410001"));
    EXPECT_EQ(
        rows(QStringLiteral("jxc_bsd"), QStringLiteral("gl_djh,bs_bsrq,ck_sn,bs_note,bs_status")),
        QStringList { "BS25031410001|2025-03-14|100001|破损（运输）－退|0" });
    EXPECT_EQ(rows(QStringLiteral("jxc_bssp"), QStringLiteral("g_sn,bs_sl,bs_dj,bs_zje,t_ph")),
        QStringList { "200001|3|2.5|7.5|B1" });

    // The goods has the unit 件, but these lines cannot say which unit they are in.
    d.lines = { line(QStringLiteral("200001"), "1", "50", QStringLiteral("件")) };
    EXPECT_EQ(saveDocument(session(), plainKind(), d).message(),
        QStringLiteral("第1行：商品“阿莫西林胶囊”没有单位“件”！"));
    d.lines = { line(QStringLiteral("200001"), "1", "50") };
    d.discount = 2;
    EXPECT_EQ(
        saveDocument(session(), plainKind(), d).message(), QStringLiteral("报损单没有整单优惠！"));
}

TEST_F(EntryTest, SavingAndDeletingNeedTheKindsRights)
{
    const QString number = save(draft({ line(QStringLiteral("200001"), "1", "10") }));
    test::addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("cggl"), QStringLiteral("0100000000000000") } });
    loginAs(QStringLiteral("小王"));
    const QString before = dumpDatabase(db());

    EXPECT_EQ(saveDocument(session(), fullKind(), draft({ line("200001", "1", "10") })).message(),
        QStringLiteral("您没有“采购进货”的权限！"));
    EXPECT_EQ(deleteDocument(session(), fullKind(), number).message(),
        QStringLiteral("您没有“允许删除采购进货待审核单据”的权限！"));
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(EntryTest, ReadingADocumentPrefersItsCheckedHeader)
{
    const QString number = save(draft({ line("200001", "1", "10"), line("200002", "2", "3") }));
    EXPECT_EQ(documentStatus(db(), fullKind(), number), 0);
    db().exec(QStringLiteral("insert into jxc_jhd (j_sn,j_status,j_note) values (?,1,'审核')"),
        { number });
    EXPECT_EQ(documentStatus(db(), fullKind(), number), 1);
    EXPECT_EQ(documentStatus(db(), fullKind(), QStringLiteral("CJ25031499999")), std::nullopt);

    const auto stored = readDocument(db(), fullKind(), number);
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->header.value(QStringLiteral("j_note")).toString(), QStringLiteral("审核"));
    ASSERT_EQ(stored->lines.size(), 2);
    EXPECT_EQ(stored->lines[1].value(QStringLiteral("g_sn")).toString(), QStringLiteral("200002"));
}

TEST(DocumentKinds, DescriptorsNameOnlyColumnsOfTheirTables)
{
    EXPECT_EQ(descriptorProblems(fullKind()), QStringList {});
    EXPECT_EQ(descriptorProblems(plainKind()), QStringList {});
    DocumentKind wrong = plainKind();
    wrong.header.party = "kh_sn";
    wrong.lines.unit = "dw_name";
    EXPECT_EQ(descriptorProblems(wrong),
        (QStringList { "jxc_bsd.kh_sn", "jxc_bssp.dw_name",
            "jxc_bsd: party column and party table disagree" }));
}
