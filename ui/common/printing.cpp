#include "ui/common/printing.h"

#include "ui/common/texts.h"
#include "ui/common/workspace.h"

#include <QPushButton>
#include <QShortcut>

namespace medistock::ui {

QPushButton *makePrintButton(
    Workspace &workspace, QWidget *screen, std::function<PrintRequest()> request)
{
    auto *button = new QPushButton(texts::printButton(), screen);
    button->setAutoDefault(false);
    if (!workspace.print) {
        button->setEnabled(false);
        button->setToolTip(texts::printingNotBuilt());
        return button;
    }
    auto print = [&workspace, screen, request] {
        const PrintRequest what = request();
        if (!what.key.isEmpty())
            workspace.print(workspace, screen, what);
    };
    QObject::connect(button, &QPushButton::clicked, screen, print);
    auto *shortcut = new QShortcut(QKeySequence(Qt::Key_F8), screen);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, screen, print);
    return button;
}

} // namespace medistock::ui
