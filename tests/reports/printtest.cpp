#include "tests/reports/printtest.h"

#include "reports/documentdata.h"
#include "reports/expression.h"
#include "sales/salecheck.h"

#include <QProcess>

namespace medistock::test {

namespace {

// Variables hand their values over as expressions; this scope knows nothing else.
class EmptyScope : public reports::Scope
{
public:
    reports::Value variable(const QString &) const override { return {}; }
    reports::Value field(const QString &, const QString &) const override { return {}; }
    reports::Value system(reports::SystemValue) const override { return {}; }
    reports::Value aggregate(const reports::ExpressionNode &) const override { return {}; }
};

} // namespace

reports::TemplateFolders PrintTest::folders() const
{
    return { QString(), QStringLiteral(MEDISTOCK_SOURCE_DIR "/report") };
}

QHash<QString, QString> PrintTest::variables(const QString &key, const QString &number)
{
    QHash<QString, QString> values;
    const Result<reports::ReportData> data = reports::documentData(session(), key, number, key);
    EXPECT_TRUE(data.ok()) << data.message().toStdString();
    if (!data)
        return values;
    for (auto it = data->variables.begin(); it != data->variables.end(); ++it)
        values.insert(it.key(),
            reports::Expression::parse(it.value()).value().evaluate(EmptyScope()).toText());
    return values;
}

QStringList PrintTest::lines(
    const QString &key, const QString &number, const QString &fields, const QString &templateName)
{
    const Result<reports::ReportData> data = reports::documentData(
        session(), key, number, templateName.isEmpty() ? key : templateName);
    EXPECT_TRUE(data.ok()) << data.message().toStdString();
    QStringList rows;
    if (!data)
        return rows;
    const reports::DataSet &set = data->datasets.first();
    for (int row = 0; row < set.rows.size(); ++row) {
        QStringList values;
        for (const QString &field : fields.split(QLatin1Char(',')))
            values.append(reports::Value::fromVariant(set.value(row, field)).toText());
        rows.append(values.join(QLatin1Char('|')));
    }
    return rows;
}

reports::PrintedDocument PrintTest::printed(
    const QString &key, const QString &number, const QString &style)
{
    const Result<reports::PrintedDocument> document
        = reports::prepareDocument(session(), folders(), key, number, style, printed());
    EXPECT_TRUE(document.ok()) << document.message().toStdString();
    return document ? document.value() : reports::PrintedDocument();
}

QString PrintTest::saleOfLines(int count)
{
    QList<documents::LineDraft> drafted;
    for (int n = 1; n <= count; ++n)
        drafted.append(line(QStringLiteral("200002"), QStringLiteral("1"), QString::number(n)));
    const QString number = saveSale(draft(drafted));
    EXPECT_TRUE(sales::checkSale(session(), number).ok());
    return number;
}

QString pdfText(const QString &path)
{
    QProcess process;
    process.start(
        QStringLiteral("pdftotext"), { QStringLiteral("-layout"), path, QStringLiteral("-") });
    process.waitForFinished(60000);
    QString text = QString::fromUtf8(process.readAllStandardOutput())
                       .normalized(QString::NormalizationForm_KC);
    // Glyphs Noto shares between a character and its radical come back as the radical.
    static const std::pair<const char *, const char *> folds[]
        = { { "⾦", "金" }, { "⻚", "页" }, { "⻓", "长" }, { "⻄", "西" }, { "㬵", "胶" },
              { "⻅", "见" }, { "⻋", "车" }, { "⻔", "门" }, { "⻢", "马" }, { "⻜", "飞" },
              { "⻛", "风" }, { "⻝", "食" }, { "戶", "户" } };
    for (const auto &[from, to] : folds)
        text.replace(QString::fromUtf8(from), QString::fromUtf8(to));
    return text;
}

bool pdfHas(const QString &text, const char *expected)
{
    return text.contains(QString::fromUtf8(expected).normalized(QString::NormalizationForm_KC));
}

QString pdfInfo(const QString &path, const QString &field)
{
    QProcess process;
    process.start(QStringLiteral("pdfinfo"), { path });
    process.waitForFinished(60000);
    for (const QString &line :
        QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n')))
        if (line.startsWith(field + QLatin1Char(':')))
            return line.mid(field.size() + 1).trimmed();
    return QString();
}

} // namespace medistock::test
