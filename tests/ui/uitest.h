#pragma once

#include "tests/support/accountset.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/queryscreen.h"
#include "ui/common/workspace.h"

#include <QAbstractButton>

#include <memory>

namespace medistock::test {

// An account set with admin logged in and a workspace for screens on it: the session, the
// fixture's file as the master file, and a layout store in the test's folder.
class UiTest : public SessionTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    ui::Workspace &workspace() { return *m_workspace; }
    // Logs another operator in and gives the workspace his session.
    void switchOperator(const QString &name, const QString &password = {});
    // A role holding exactly the given right strings (area column -> "1010..."), and an
    // operator in it.
    void addOperatorWithRights(const QString &name, const QHash<QString, QString> &strings);

    std::unique_ptr<ui::GridLayouts> layouts;

private:
    std::unique_ptr<ui::Workspace> m_workspace;
};

// The texts a query screen's grid shows: a row a line, its cells joined by "|", the totals row
// last; or one column's texts.
QStringList gridRows(const ui::QueryScreen &screen);
QStringList gridColumn(const ui::QueryScreen &screen, int column);

// Goods sold by the box (盒) added through the master-data operation: codes from 10000001 in the
// order given, mnemonics made from the names.
void addBoxedGoods(shell::Session &session, const QStringList &names);

// Types text into a field as key presses (Chinese included, which QTest::keyClicks refuses).
void typeInto(QWidget *field, const QString &text);

// The button of a widget whose text is `text` (mnemonic included), or nullptr.
QAbstractButton *buttonNamed(const QWidget *parent, const QString &text);

} // namespace medistock::test
