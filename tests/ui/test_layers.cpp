#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

// The headers of Qt Widgets, by the names an include may use ("QDialog", "qdialog.h"); names
// that Qt Core or Qt Gui also provide are left out.
QSet<QString> widgetsHeaders()
{
    const QDir qt(QLibraryInfo::path(QLibraryInfo::HeadersPath));
    QSet<QString> names;
    for (const QString &name :
        QDir(qt.filePath(QStringLiteral("QtWidgets"))).entryList(QDir::Files))
        names.insert(name);
    for (const char *other : { "QtCore", "QtGui" })
        for (const QString &name :
            QDir(qt.filePath(QString::fromLatin1(other))).entryList(QDir::Files))
            names.remove(name);
    return names;
}

// The Widgets headers a source text includes.
QStringList widgetsIncludes(const QString &source, const QSet<QString> &headers)
{
    static const QRegularExpression include(QStringLiteral(R"(^\s*#\s*include\s*[<"]([^>"]+)[>"])"),
        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto it = include.globalMatch(source); it.hasNext();) {
        const QString path = it.next().captured(1);
        if (path.startsWith(QLatin1String("QtWidgets/"))
            || headers.contains(path.section(QLatin1Char('/'), -1)))
            found.append(path);
    }
    return found;
}

} // namespace

TEST(Layers, TheScanSpotsEveryFormOfAWidgetsInclude)
{
    const QSet<QString> headers = widgetsHeaders();
    ASSERT_TRUE(headers.contains(QStringLiteral("QDialog")));
    ASSERT_FALSE(headers.contains(QStringLiteral("QString")));
    const QString source = QStringLiteral("#include \"core/connection.h\"\n"
                                          "#include <QString>\n"
                                          "#include <QColor>\n"
                                          "  #  include <QWidget>\n"
                                          "#include <QtWidgets/QTreeView>\n"
                                          "#include \"qmessagebox.h\"\n"
                                          "// #include <QDialog>\n");
    EXPECT_EQ(widgetsIncludes(source, headers),
        (QStringList { QStringLiteral("QWidget"), QStringLiteral("QtWidgets/QTreeView"),
            QStringLiteral("qmessagebox.h") }));
}

TEST(Layers, NoBusinessFolderIncludesAWidgetsHeader)
{
    const QSet<QString> headers = widgetsHeaders();
    const QDir root(QStringLiteral(MEDISTOCK_SOURCE_DIR));
    int scanned = 0;
    for (const char *folder : { "core", "shell", "documents", "masterdata", "stock", "purchasing",
             "sales", "accounts", "members", "gsp", "reports", "statistics", "maintenance" }) {
        QDirIterator files(root.filePath(QString::fromLatin1(folder)),
            { QStringLiteral("*.h"), QStringLiteral("*.cpp") }, QDir::Files,
            QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
            ++scanned;
            EXPECT_EQ(widgetsIncludes(QString::fromUtf8(file.readAll()), headers), QStringList())
                << root.relativeFilePath(file.fileName()).toStdString();
        }
    }
    EXPECT_GT(scanned, 40);
}

// Screens call operations; the statements live with the modules. A string in ui/ that opens like
// a statement is a statement in the wrong place.
TEST(Layers, NoScreenHoldsAStatement)
{
    static const QRegularExpression statement(
        QStringLiteral(R"("\s*(select|insert\s+into|update|delete\s+from)\s)"),
        QRegularExpression::CaseInsensitiveOption);
    ASSERT_TRUE(statement.match(QStringLiteral("QStringLiteral(\"select g_sn from jxc_goods\")"))
                    .hasMatch());
    ASSERT_FALSE(statement.match(QStringLiteral("QStringLiteral(\"选择商品\")")).hasMatch());
    const QDir root(QStringLiteral(MEDISTOCK_SOURCE_DIR));
    int scanned = 0;
    QDirIterator files(root.filePath(QStringLiteral("ui")),
        { QStringLiteral("*.h"), QStringLiteral("*.cpp") }, QDir::Files,
        QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        ++scanned;
        EXPECT_FALSE(statement.match(QString::fromUtf8(file.readAll())).hasMatch())
            << root.relativeFilePath(file.fileName()).toStdString();
    }
    EXPECT_GT(scanned, 60);
}
