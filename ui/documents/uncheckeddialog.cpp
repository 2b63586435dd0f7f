#include "ui/documents/uncheckeddialog.h"

#include "core/interaction.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/screenkind.h"
#include "ui/documents/texts.h"

#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

UncheckedDialog::UncheckedDialog(DocumentScreen &screen)
    : QDialog(&screen)
    , m_screen(screen)
    , m_list(new DocumentListScreen(screen.workspace(), doctexts::uncheckedTitle,
          { { &screen.kind().entry(), {}, 0, screen.kind().printKey() } },
          { .dates = false, .party = true, .warehouse = true, .goods = true, .status = 0 }, this))
{
    setWindowTitle(screen.kind().title() + QStringLiteral(" - ") + doctexts::uncheckedTitle);
    m_list->setRunKey({});
    m_list->setOpener([this](const ListedKind &, const QString &) { openChosen(); });
    // Enter on a row opens it (the list's own key); F5 checks; Delete deletes the chosen row.
    const auto add
        = [this](const QString &text, void (UncheckedDialog::*slot)(), QWidget *keyOwner, int key) {
              auto *button = new QPushButton(text, this);
              connect(button, &QPushButton::clicked, this, slot);
              if (keyOwner) {
                  auto *shortcut = new QShortcut(QKeySequence(key), keyOwner);
                  shortcut->setContext(keyOwner == this ? Qt::WindowShortcut : Qt::WidgetShortcut);
                  connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
              }
              m_list->addButton(button);
              return button;
          };
    add(doctexts::openButton, &UncheckedDialog::openChosen, nullptr, 0);
    QPushButton *check
        = add(doctexts::checkButton, &UncheckedDialog::checkChosen, this, Qt::Key_F5);
    QPushButton *remove = add(
        doctexts::deleteRowButton, &UncheckedDialog::deleteChosen, m_list->grid(), Qt::Key_Delete);
    const shell::Session &session = screen.workspace().session;
    const QString area = QString::fromLatin1(screen.kind().entry().rightArea);
    const auto holds
        = [&](int position) { return position <= 0 || shell::hasRight(session, area, position); };
    check->setEnabled(holds(screen.kind().checkRight()));
    remove->setEnabled(holds(screen.kind().entry().deleteRight));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    resize(1180, 620);
    m_list->run();
    m_list->grid()->setFocus();
}

void UncheckedDialog::openChosen()
{
    const QString number = m_list->currentNumber();
    if (number.isEmpty())
        return;
    m_screen.openDocument(number);
    if (m_screen.number() == number)
        accept();
}

void UncheckedDialog::checkChosen()
{
    const QString number = m_list->currentNumber();
    if (number.isEmpty())
        return;
    m_screen.openDocument(number);
    if (m_screen.number() != number)
        return;
    m_screen.check();
    m_list->run();
}

void UncheckedDialog::deleteChosen()
{
    const QString number = m_list->currentNumber();
    shell::Session &session = m_screen.workspace().session;
    if (number.isEmpty()
        || !session.ui().ask(doctexts::deleteQuestion(m_screen.kind().title(), number)))
        return;
    if (m_screen.kind().remove(session, number) && m_screen.number() == number)
        m_screen.newDocument();
    m_list->run();
}

} // namespace medistock::ui
