// The money registrations on their forms: each prints exactly the figures of its row, only under
// its own kind, and every variable its form reads is handed over.
#include "accounts/registrations.h"
#include "core/connection.h"
#include "reports/documentdata.h"
#include "reports/template.h"
#include "tests/reports/printtest.h"

#include <QFile>

namespace medistock::test {

namespace {

using accounts::RegistrationKind;

class MoneyPrints : public PrintTest
{
protected:
    void SetUp() override
    {
        PrintTest::SetUp();
        db().exec(QStringLiteral("insert into jxc_ghsxx (ghs_sn,ghs_name) values (?,?)"),
            { QStringLiteral("100002"), QStringLiteral("华东医药") });
        db().exec(QStringLiteral("insert into jxc_user (u_sn,u_name) values (?,?)"),
            { QStringLiteral("100099"), QStringLiteral("王芳") });
    }

    // Saves (and checks when asked) a registration of the kind with every field filled.
    QString registration(RegistrationKind kind, bool checked)
    {
        accounts::RegistrationDraft draft;
        draft.kind = kind;
        draft.party = QStringLiteral("100002"); // 华康药店 or 华东医药
        draft.date = QStringLiteral("2025-03-14");
        const bool entry = kind == RegistrationKind::Receivable || kind == RegistrationKind::Payable;
        draft.due = entry ? 1234.5 : 0;
        draft.paid = entry ? 200 : 987.65;
        draft.discount = entry ? 0 : 10;
        draft.changeWrittenOff = entry ? 0 : 0.35;
        draft.account = QStringLiteral("现金");
        draft.salesman = QStringLiteral("100099");
        draft.link = QStringLiteral("XS25031400007");
        draft.note = QStringLiteral("三月货款");
        const Result<QString> saved = accounts::saveRegistration(session(), draft);
        EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
        if (!saved)
            return {};
        if (checked) {
            EXPECT_TRUE(accounts::checkRegistration(session(), saved.value()));
        }
        return saved.value();
    }
};

struct Form
{
    RegistrationKind kind;
    const char *key;
    const char *title;
    const char *party;
    const char *amount; // je as the form reads it
    const char *capitals;
};

const Form forms[] = {
    { RegistrationKind::Receivable, "ysyfysk", "客户欠款单", "华康药店", "1234.5",
        "壹仟贰佰叁拾肆元伍角整" },
    { RegistrationKind::Collection, "ysyfskd", "客户收款单", "华康药店", "987.65",
        "玖佰捌拾柒元陆角伍分" },
    { RegistrationKind::Payable, "ysyfyfk", "欠款单", "华东医药", "1234.5",
        "壹仟贰佰叁拾肆元伍角整" },
    { RegistrationKind::Payment, "ysyffkd", "供货商付款单", "华东医药", "987.65",
        "玖佰捌拾柒元陆角伍分" },
};

class EachForm : public MoneyPrints, public ::testing::WithParamInterface<Form>
{
};

TEST_P(EachForm, PrintsTheFiguresOfItsCheckedRegistration)
{
    const Form form = GetParam();
    const QString number = registration(form.kind, true);
    ASSERT_FALSE(number.isEmpty());
    const QString key = QString::fromLatin1(form.key);
    const QHash<QString, QString> values = variables(key, number);
    EXPECT_EQ(values.value("djh"), number);
    EXPECT_EQ(values.value("partyName"), QString::fromUtf8(form.party));
    EXPECT_EQ(values.value("jhDate"), QStringLiteral("2025-03-14"));
    EXPECT_EQ(values.value("je"), QString::fromLatin1(form.amount));
    EXPECT_EQ(values.value("dxje"), QString::fromUtf8(form.capitals));
    EXPECT_EQ(values.value("fkfs"), QStringLiteral("现金"));
    EXPECT_EQ(values.value("gldjh2"), QStringLiteral("XS25031400007"));
    EXPECT_EQ(values.value("Note"), QStringLiteral("三月货款"));
    EXPECT_EQ(values.value("aName"), QStringLiteral("admin"));
    EXPECT_EQ(values.value("uName"), QStringLiteral("王芳"));
    EXPECT_EQ(values.value("checker"), QStringLiteral("admin"));
    // A collection's written-off change and discount come along; an entry has none.
    const bool entry = form.kind == RegistrationKind::Receivable
        || form.kind == RegistrationKind::Payable;
    EXPECT_EQ(values.value("mlje"), entry ? QStringLiteral("0") : QStringLiteral("0.35"));
    EXPECT_EQ(values.value("yhje"), entry ? QStringLiteral("0") : QStringLiteral("10"));
    EXPECT_EQ(values.value("sf"), entry ? QStringLiteral("200") : QStringLiteral("987.65"));

    // On the page: the form's title, the amount with thousands, the capitals.
    const QString text = printed(key, number).report.allText();
    EXPECT_TRUE(text.contains(QString::fromUtf8(form.title))) << text.toStdString();
    EXPECT_TRUE(text.contains(entry ? QStringLiteral("1,234.50") : QStringLiteral("987.65")))
        << text.toStdString();
    EXPECT_TRUE(text.contains(QString::fromUtf8(form.capitals)));
    EXPECT_TRUE(text.contains(QStringLiteral("审核：admin")));
}

// Every variable the form declares is handed over, and none prints empty for a filled row.
TEST_P(EachForm, FeedsEveryVariableItsFormReads)
{
    const Form form = GetParam();
    const QString number = registration(form.kind, true);
    const QString key = QString::fromLatin1(form.key);
    const Result<reports::ReportTemplate> report
        = reports::readTemplate(folders().pathOf(key));
    ASSERT_TRUE(report.ok());
    QFile file(folders().pathOf(key));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString source = QString::fromUtf8(file.readAll());
    const QHash<QString, QString> values = variables(key, number);
    QStringList read;
    for (const QString &name : report->variableNames())
        if (source.contains(QLatin1Char('[') + name + QLatin1Char(']'))
            || source.contains(QLatin1Char(',') + name + QLatin1Char(')')))
            read.append(name);
    EXPECT_EQ(read,
        (QStringList { "comName", "djh", "jhDate", "partyName", "je", "dxje", "fkfs", "Note",
            "uName", "aName", "checker", "gldjh2" }));
    for (const QString &name : read)
        EXPECT_FALSE(values.value(name).isEmpty()) << key.toStdString() << " " << name.toStdString();
    EXPECT_TRUE(report->datasetNames().isEmpty());
}

// An unchecked registration prints as entered, with no checker.
TEST_P(EachForm, AnUncheckedRegistrationPrintsWithoutChecker)
{
    const Form form = GetParam();
    const QString number = registration(form.kind, false);
    const QHash<QString, QString> values = variables(QString::fromLatin1(form.key), number);
    EXPECT_EQ(values.value("je"), QString::fromLatin1(form.amount));
    EXPECT_EQ(values.value("checker"), QString());
}

INSTANTIATE_TEST_SUITE_P(Registrations, EachForm, ::testing::ValuesIn(forms),
    [](const ::testing::TestParamInfo<Form> &param) { return std::string(param.param.key); });

// A collection's number is not an entry: each form reads only its own kind, and print-all of a
// kind lists only its numbers.
TEST_F(MoneyPrints, EachFormReadsOnlyItsOwnKind)
{
    const QString collection = registration(RegistrationKind::Collection, true);
    const QString entry = registration(RegistrationKind::Receivable, true);
    EXPECT_FALSE(reports::documentData(session(), QStringLiteral("ysyfysk"), collection,
        QStringLiteral("ysyfysk"))
                     .ok());
    EXPECT_FALSE(reports::documentData(session(), QStringLiteral("ysyfskd"), QStringLiteral("SK9"),
        QStringLiteral("ysyfskd"))
                     .ok());
    EXPECT_EQ(reports::keyForNumber(collection), QStringLiteral("ysyfskd"));
    EXPECT_EQ(reports::keyForNumber(entry), QStringLiteral("ysyfysk"));
    const QDate day(2025, 3, 14);
    EXPECT_EQ(reports::documentNumbersBetween(session(), QStringLiteral("ysyfskd"), day, day),
        QStringList { collection });
    EXPECT_EQ(reports::documentNumbersBetween(session(), QStringLiteral("ysyfysk"), day, day),
        QStringList { entry });
}

} // namespace

} // namespace medistock::test
