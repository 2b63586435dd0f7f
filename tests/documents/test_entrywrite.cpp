#include "core/dberror.h"
#include "documents/entry.h"
#include "tests/documents/entrytest.h"

using namespace medistock;
using namespace medistock::documents;
using medistock::test::dumpDatabase;
using medistock::test::EntryTest;
using medistock::test::fullKind;

// A kind's own writes share the save's transaction: they see the saved number and rows, and
// their failure takes the whole save back.
TEST_F(EntryTest, AKindsOwnWritesRunInsideTheSaveAndFailWithIt)
{
    const DocumentDraft d
        = draft({ line(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("10")) });
    QString seenNumber;
    int linesSeen = 0;
    const EntryWrite mark = [&](const shell::Session &s, const ValidDocument &doc,
                                const QString &number) {
        seenNumber = number;
        linesSeen = int(doc.lines.size());
        s.db().exec(QStringLiteral("update jxc_jhsp set jh_rksl=jh_sl where j_sn=?"), { number });
    };
    const Result<QString> saved = saveDocument(session(), fullKind(), d, {}, mark);
    ASSERT_TRUE(saved.ok());
    EXPECT_EQ(seenNumber, QStringLiteral("CJ25031410001"));
    EXPECT_EQ(linesSeen, 1);
    EXPECT_EQ(rows(QStringLiteral("jxc_jhsp"), QStringLiteral("j_sn,jh_sl,jh_rksl")),
        QStringList { "CJ25031410001|2|2" });

    const QString before = dumpDatabase(db());
    const EntryWrite failing = [](const shell::Session &, const ValidDocument &, const QString &) {
        throw core::DbError(QStringLiteral("写入失败"));
    };
    const Result<QString> failed = saveDocument(session(), fullKind(), d, {}, failing);
    EXPECT_EQ(failed.outcome().kind(), Outcome::Kind::Failed);
    EXPECT_EQ(ui.informed.last(), QStringLiteral("写入失败"));
    EXPECT_EQ(dumpDatabase(db()), before);
}
