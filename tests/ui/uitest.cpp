#include "tests/ui/uitest.h"

#include "tests/ui/screenworkspace.h"

#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "ui/common/application.h"

#include <QApplication>
#include <QDir>
#include <QTest>

namespace medistock::test {

void UiTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    layouts = layoutStore(folder());
    m_workspace = screenWorkspace(session(), db(), *layouts, folder());
}

void UiTest::TearDown()
{
    m_workspace.reset();
    layouts.reset();
    SessionTest::TearDown();
}

void UiTest::switchOperator(const QString &name, const QString &password)
{
    loginAs(name, password);
    m_workspace = screenWorkspace(session(), db(), *layouts, folder());
}

void UiTest::addOperatorWithRights(const QString &name, const QHash<QString, QString> &strings)
{
    shell::RoleDraft draft;
    draft.name = name + QStringLiteral("的角色");
    for (auto it = strings.begin(); it != strings.end(); ++it) {
        QList<bool> ticked;
        for (QChar c : it.value())
            ticked.append(c == QLatin1Char('1'));
        draft.ticked.insert(it.key(), ticked);
    }
    const auto role = shell::saveRole(session(), draft);
    ASSERT_TRUE(role.ok()) << role.message().toStdString();
    ASSERT_TRUE(shell::addOperator(session(), name, role.value()).ok());
    ui.clear();
}

QStringList gridRows(const ui::QueryScreen &screen)
{
    QStringList lines;
    for (int row = 0; row < screen.model()->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < screen.model()->columnCount(); ++column)
            cells.append(screen.model()->text(row, column));
        lines.append(cells.join(QLatin1Char('|')));
    }
    return lines;
}

QStringList gridColumn(const ui::QueryScreen &screen, int column)
{
    QStringList texts;
    for (int row = 0; row < screen.model()->rowCount(); ++row)
        texts.append(screen.model()->text(row, column));
    return texts;
}

void addBoxedGoods(shell::Session &session, const QStringList &names)
{
    for (const QString &name : names) {
        const auto added = masterdata::addMasterRow(session, masterdata::goodsKind(),
            { { QStringLiteral("g_name"), name },
                { QStringLiteral("dw_name"), QStringLiteral("盒") } });
        ASSERT_TRUE(added.ok()) << added.message().toStdString();
    }
}

void typeInto(QWidget *field, const QString &text)
{
    for (QChar c : text)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

QAbstractButton *buttonNamed(const QWidget *parent, const QString &text)
{
    for (QAbstractButton *button : parent->findChildren<QAbstractButton *>())
        if (button->text() == text)
            return button;
    return nullptr;
}

} // namespace medistock::test
