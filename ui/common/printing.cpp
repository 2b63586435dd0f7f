#include "ui/common/printing.h"

#include "ui/common/texts.h"
#include "ui/common/workspace.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
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

QString filterHeading(const QList<QPair<QString, QWidget *>> &filters)
{
    QStringList parts;
    for (const auto &[label, field] : filters) {
        QString shown;
        if (auto *box = qobject_cast<QComboBox *>(field))
            shown = box->currentText();
        else if (auto *spin = qobject_cast<QAbstractSpinBox *>(field))
            shown = spin->text();
        else if (auto *edit = qobject_cast<QLineEdit *>(field))
            shown = edit->text();
        else if (auto *inner = field->findChild<QLineEdit *>())
            shown = inner->text();
        if (!shown.trimmed().isEmpty())
            parts.append(label + QStringLiteral("：") + shown.trimmed());
    }
    return parts.join(QStringLiteral("  "));
}

} // namespace medistock::ui
