#include "shell/session.h"
#include "tests/ui/uitest.h"
#include "ui/common/keys.h"
#include "ui/common/messagebox.h"
#include "ui/shell/operatordialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

using namespace medistock;

class KeysTest : public test::UiTest
{
};

TEST_F(KeysTest, EnterMovesFromFieldToFieldLikeTab)
{
    ui::OperatorDialog dialog(session(), nullptr);
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    dialog.nameField()->setFocus();
    test::typeInto(dialog.nameField(), QStringLiteral("小王"));
    QTest::keyClick(dialog.nameField(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), dialog.roleChoice());
    QTest::keyClick(dialog.roleChoice(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), dialog.passwordField());
    QTest::keyClick(dialog.passwordField(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(QApplication::focusWidget(), dialog.confirmField());
    // moving on never saves: nothing was told and the dialog is still open
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(ui.informed.isEmpty());
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_admin")), 1);
}

TEST_F(KeysTest, F5PressesTheCheckButton)
{
    QDialog dialog;
    auto *field = new QLineEdit(&dialog);
    QPushButton *check = ui::makeCheckButton(&dialog);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(field);
    layout->addWidget(check);
    int pressed = 0;
    QObject::connect(check, &QPushButton::clicked, [&] { ++pressed; });
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    field->setFocus();
    EXPECT_EQ(check->text(), QStringLiteral("审核通过(F5)"));
    QTest::keyClick(field, Qt::Key_F5);
    // a shortcut presses its button visibly, the click follows a moment later
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 1; }, 2000));
}

namespace {

// Reads the message box that is up and answers it with the button of the given role.
struct BoxSeen
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;
};

void answerBox(BoxSeen &seen, QMessageBox::StandardButton answer)
{
    QTimer::singleShot(0, [&seen, answer] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen.title = box->windowTitle();
        seen.text = box->text();
        seen.icon = box->icon();
        for (QAbstractButton *button : box->buttons())
            seen.buttons.append(button->text());
        seen.buttons.sort();
        box->button(answer)->click();
    });
}

} // namespace

TEST(MessageBoxes, InformShowsTheSystemPromptWithTheInformationIcon)
{
    ui::MessageBoxInteraction boxes;
    BoxSeen seen;
    answerBox(seen, QMessageBox::Ok);
    boxes.inform(QStringLiteral("用户密码不正确，请重新输入！"));
    EXPECT_EQ(seen.title, QStringLiteral("系统提示"));
    EXPECT_EQ(seen.text, QStringLiteral("用户密码不正确，请重新输入！"));
    EXPECT_EQ(seen.icon, QMessageBox::Information);
    EXPECT_EQ(seen.buttons, QStringList { QStringLiteral("确定") });
}

TEST(MessageBoxes, AQuestionOffersYesAndNoAndReturnsTheAnswer)
{
    ui::MessageBoxInteraction boxes;
    BoxSeen yes;
    answerBox(yes, QMessageBox::Yes);
    EXPECT_TRUE(boxes.ask(QStringLiteral("确认吗？")));
    EXPECT_EQ(yes.title, QStringLiteral("系统提示"));
    EXPECT_EQ(yes.icon, QMessageBox::Information);
    EXPECT_EQ(yes.buttons, (QStringList { QStringLiteral("否(&N)"), QStringLiteral("是(&Y)") }));
    BoxSeen no;
    answerBox(no, QMessageBox::No);
    EXPECT_FALSE(boxes.ask(QStringLiteral("确认吗？")));
}
