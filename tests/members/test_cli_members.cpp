// The members' and retail commands of medistock-cli, end to end on the fixture's account set.
#include "tests/members/memberstest.h"
#include "tests/support/cli.h"

#include <QDir>
#include <QFile>

using namespace medistock;

namespace {

class MembersCommands : public test::MembersTest
{
protected:
    test::CliRun run(QStringList arguments, const QString &today = QStringLiteral("2025-03-14"))
    {
        arguments.prepend(today);
        arguments.prepend(QStringLiteral("--today"));
        arguments.prepend(folder());
        arguments.prepend(QStringLiteral("--data"));
        return test::runCli(arguments);
    }
    QString file(const QString &name, const QByteArray &content)
    {
        const QString path = QDir(folder()).filePath(name);
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
        return path;
    }
};

} // namespace

TEST_F(MembersCommands, AMemberTopsUpBuysAtTheTillAndTheSaleIsTakenBack)
{
    test::CliRun added = run({ QStringLiteral("member-add"), QStringLiteral("--hy_name"),
        QStringLiteral("张敏"), QStringLiteral("--hy_mobile"), QStringLiteral("13900001111") });
    ASSERT_EQ(added.status, 0) << added.err.toStdString();
    EXPECT_EQ(added.out, "100002\n");
    const test::CliRun topped = run({ QStringLiteral("topup"), QStringLiteral("13900001111"),
        QStringLiteral("300"), QStringLiteral("--mode"), QStringLiteral("1"),
        QStringLiteral("--per"), QStringLiteral("20"), QStringLiteral("--gift"),
        QStringLiteral("60"), QStringLiteral("--wechat"), QStringLiteral("100") });
    ASSERT_EQ(topped.status, 0) << topped.err.toStdString();
    EXPECT_EQ(topped.out, "XF25031410001\n");

    const QString sale = file(QStringLiteral("pos.json"),
        R"json({"gl_djh":"XS25031410001","pos_xsrq":"2025-03-14 10:00:00","hy_sn":"100002",
        "ck_sn":"100001","pos_xj":100,"pos_zlje":2,"pos_czk":20,"pos_yfje":118,
        "lines":[{"g_sn":"200001","pos_sl":"10","pos_dj":"12","t_ph":"B1"},
                 {"g_sn":"200002","pos_sl":1,"pos_dj":2,"pos_dzl":0.9,"t_zp":"(赠品)"}]})json");
    test::CliRun posted = run({ QStringLiteral("pos-post"), sale });
    EXPECT_EQ(posted.status, 2);
    EXPECT_EQ(posted.err, "pos_yfje 与明细算出的应收金额 120 不符\n");
    QFile::remove(sale);
    file(QStringLiteral("pos.json"),
        R"json({"gl_djh":"XS25031410001","pos_xsrq":"2025-03-14 10:00:00","hy_sn":"100002",
        "ck_sn":"100001","pos_xj":100,"pos_zlje":0,"pos_czk":20,"pos_yfje":120,
        "lines":[{"g_sn":"200001","pos_sl":"10","pos_dj":"12","t_ph":"B1"},
                 {"g_sn":"200002","pos_sl":1,"pos_dj":2,"pos_dzl":0.9,"t_zp":"(赠品)"}]})json");
    posted = run({ QStringLiteral("pos-post"), sale });
    ASSERT_EQ(posted.status, 0) << posted.err.toStdString();
    EXPECT_EQ(posted.out, "XS25031410001\n");

    const test::CliRun shown = run({ QStringLiteral("member-show"), QStringLiteral("100002") });
    EXPECT_TRUE(shown.out.contains(QStringLiteral("hy_jf=17\n"))) << shown.out.toStdString();
    EXPECT_TRUE(shown.out.contains(QStringLiteral("hy_zhje=280\n")));
    EXPECT_TRUE(shown.out.contains(QStringLiteral("hl_name=初级会员\n")));

    EXPECT_EQ(run({ QStringLiteral("pos-reverse"), QStringLiteral("XS25031410001") }).status, 1);
    const test::CliRun reversed = run({ QStringLiteral("--yes"), QStringLiteral("pos-reverse"),
        QStringLiteral("XS25031410001") });
    ASSERT_EQ(reversed.status, 0) << reversed.err.toStdString();
    EXPECT_EQ(run({ QStringLiteral("member-show"), QStringLiteral("100002") })
                  .out.split(QLatin1Char('\n'))
                  .filter(QStringLiteral("hy_zhje=")),
        QStringList { "hy_zhje=300" });
}

// The monthly gift waits for a login on the 10th or later; a login releases it.
TEST_F(MembersCommands, LoginReleasesTheGiftsThatHaveFallenDue)
{
    const QString member = addMember(QStringLiteral("张敏"));
    ASSERT_EQ(run({ QStringLiteral("topup"), member, QStringLiteral("300"),
                      QStringLiteral("--mode"), QStringLiteral("1"), QStringLiteral("--per"),
                      QStringLiteral("20"), QStringLiteral("--gift"), QStringLiteral("60") })
                  .status,
        0);
    EXPECT_EQ(run({ QStringLiteral("login") }, QStringLiteral("2025-04-09")).status, 0);
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 300);
    const test::CliRun login = run({ QStringLiteral("login") }, QStringLiteral("2025-05-10"));
    EXPECT_EQ(login.out, "登录成功：admin（编号 100001，角色 100001）\n");
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 340);
    EXPECT_EQ(run({ QStringLiteral("release-gifts") }, QStringLiteral("2025-06-10")).out,
        "XF25061010001\t1\t20\n");
}

TEST_F(MembersCommands, RedemptionAndSettingsOnTheCommandLine)
{
    const QString member = addMember(QStringLiteral("张敏"),
        { { QStringLiteral("hy_bh"), QStringLiteral("880001") },
            { QStringLiteral("hy_jf"), 450 } });
    const test::CliRun redeemed
        = run({ QStringLiteral("redeem"), QStringLiteral("880001"), QStringLiteral("100001"),
            QStringLiteral("300001=2"), QStringLiteral("--period"), QStringLiteral("今天") });
    ASSERT_EQ(redeemed.status, 0) << redeemed.err.toStdString();
    EXPECT_EQ(redeemed.out, "DH25031410001\n");
    const test::CliRun again = run({ QStringLiteral("redeem"), member, QStringLiteral("100001"),
        QStringLiteral("300002=1"), QStringLiteral("--period"), QStringLiteral("今天") });
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.err.startsWith(
        QStringLiteral("已经兑换过赠品，不能重复兑换，兑换日期【2025-03-14 ")));
    EXPECT_EQ(run({ QStringLiteral("--yes"), QStringLiteral("redeem-delete"),
                      QStringLiteral("DH25031410001") })
                  .status,
        0);
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 450);

    const test::CliRun set = run({ QStringLiteral("points-settings"), QStringLiteral("jf_mfje=5"),
        QStringLiteral("jf_yelj=1") });
    ASSERT_EQ(set.status, 0) << set.err.toStdString();
    EXPECT_TRUE(set.out.startsWith(QStringLiteral("jf_mfje=5\njf_jfgz=1\njf_yelj=1\n")));
    EXPECT_EQ(run({ QStringLiteral("points-settings"), QStringLiteral("jf_srjflx=3") }).status, 2);
    EXPECT_EQ(run({ QStringLiteral("member-level"), QStringLiteral("999999") }).out, "100002\n");
}
