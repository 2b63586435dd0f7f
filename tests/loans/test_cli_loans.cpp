#include "core/connection.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace medistock;

namespace {

// An account set made by `init` with 60 bags of 板蓝根颗粒 (200002, price 8) at 3 in warehouse
// 100001, batch "P1", and the customer 华康药店 (100002).
class LoanCommands : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        ASSERT_EQ(run({ QStringLiteral("init") }).status, 0);
        auto db
            = core::Connection::openSqlite(QDir(m_dir.path()).filePath(QStringLiteral("jxc.db")));
        db->exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,dw_name,g_kc,g_pjjj,g_sj,"
                                "g_xspl,g_cgpl,g_xzsl,g_jy) values ('200002','板蓝根颗粒','袋',60,"
                                "3,8,0,0,0,0)"));
        db->exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_jm,kh_lwje,kh_forbid,"
                                "kt_sn) values ('100002','华康药店','HKYD',0,0,'1000')"));
        db->exec(QStringLiteral("insert into jxc_kcsp (g_sn,ck_sn,kc_sl,kc_zsl,kc_cbj,kc_xssl) "
                                "values ('200002','100001',60,60,3,0)"));
        db->exec(QStringLiteral("insert into jxc_tkc (g_sn,ck_sn,t_ph,t_yxq,t_scrq,t_sl,t_jhrq) "
                                "values ('200002','100001','P1','2026-01-31','',60,'')"));
        db->exec(
            QStringLiteral("insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,ck_sn,gl_dj,"
                           "gl_sl,gl_je,gl_kc,gl_pjjj,gl_kczje) values ('qc','QC1',"
                           "'2025-01-02','200002','100001',3,60,180,60,3,180)"));
    }

    test::CliRun run(const QStringList &arguments)
    {
        return test::runCli(QStringList { QStringLiteral("--today"), QStringLiteral("2025-03-14"),
                                QStringLiteral("--data"), m_dir.path(), QStringLiteral("--yes") }
            + arguments);
    }

    QString file(const QByteArray &json)
    {
        const QString path = QDir(m_dir.path()).filePath(QStringLiteral("loan.json"));
        QFile f(path);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(json);
        return path;
    }

    QTemporaryDir m_dir;
};

} // namespace

// A loan saved from JSON and checked; 4 bags come back, 3 are sold; what is still out is listed;
// the sale shows in the customer's documents; the return part waits for its sale.
TEST_F(LoanCommands, LoanReturnAndSaleFromTheCommandLine)
{
    const QString loan = file(
        R"({"kind":"JH","kh_sn":"100002","ck_sn":"100001","jh_rq":"2025-03-10","lines":[
            {"g_sn":"200002","jh_sl":10,"t_ph":"P1","t_yxq":"2026-01-31","jh_yj":100,"jh_zj":0.5}]})");
    EXPECT_EQ(run({ QStringLiteral("save"), loan }).out, QStringLiteral("JH25031010001\n"));
    EXPECT_EQ(run({ QStringLiteral("check"), QStringLiteral("JH25031010001") }).out,
        QStringLiteral("已审核：JH25031010001\n"));
    EXPECT_EQ(run({ QStringLiteral("loan-return"), QStringLiteral("JH25031010001"),
                      QStringLiteral("--line"), QStringLiteral("1"), QStringLiteral("--quantity"),
                      QStringLiteral("4") })
                  .out,
        QStringLiteral("HH25031410001\n"));
    EXPECT_EQ(run({ QStringLiteral("loan-return"), QStringLiteral("JH25031010001"),
                      QStringLiteral("--to-sale"), QStringLiteral("--line"), QStringLiteral("1"),
                      QStringLiteral("--quantity"), QStringLiteral("3"), QStringLiteral("--mode"),
                      QStringLiteral("2") })
                  .out,
        QStringLiteral("HH25031410002\nXS25031410001\n"));
    EXPECT_EQ(run({ QStringLiteral("loan-open"), QStringLiteral("JH25031010001") }).out,
        QStringLiteral("借货明细\t商品编号\t商品名称\t产品批号\t借货数量\t还货数量\t销售数量\t"
                       "未还数量\t押金\t天数\t租金合计\t退回押金\n"
                       "1\t200002\t板蓝根颗粒\tP1\t10\t4\t3\t3\t30\t4\t6\t24\n"));
    const test::CliRun documents = run({ QStringLiteral("statement"), QStringLiteral("kh"),
        QStringLiteral("documents"), QStringLiteral("--from"), QStringLiteral("2025-03-01"),
        QStringLiteral("--to"), QStringLiteral("2025-03-14") });
    EXPECT_EQ(documents.status, 0);
    EXPECT_EQ(documents.out.split(QLatin1Char('\n')).value(1),
        QStringLiteral("XS25031410001\t2025-03-14\t24\t0\t24\t0\t商品销售付款\t借货转销售："
                       "JH25031010001\tadmin\t100002\t华康药店\tHKYD\t默认员工\t主仓库\tadmin\t"
                       "2025-03-14\t0\t0\t0\t"));
    const test::CliRun refused
        = run({ QStringLiteral("uncheck"), QStringLiteral("HH25031410002") });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err,
        QStringLiteral("还货单：HH25031410002转成的销售单：XS25031410001已审核，\r\n"
                       "请先取消审核该销售单！\n"));
    EXPECT_EQ(run({ QStringLiteral("uncheck"), QStringLiteral("HH25031410001") }).status, 0);
}

TEST_F(LoanCommands, WrongArgumentsAreUsageErrors)
{
    for (const QStringList &arguments :
        { QStringList { "statement", "kh", "bogus", "--from", "2025-03-01", "--to", "2025-03-14" },
            QStringList { "statement", "kh", "documents", "--from", "2025-03-01" },
            QStringList { "statement", "xx", "documents" },
            QStringList { "loan-return", "JH25031010001", "--quantity", "2" },
            QStringList { "loan-return", "JH25031010001", "--paid", "2" },
            QStringList { "check", "HH25031410001" } })
        EXPECT_EQ(run(arguments).status, 2) << arguments.join(QLatin1Char(' ')).toStdString();
}
