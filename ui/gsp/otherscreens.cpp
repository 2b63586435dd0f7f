#include "ui/gsp/otherscreens.h"

#include "core/interaction.h"
#include "gsp/categories.h"
#include "gsp/expiry.h"
#include "gsp/texts.h"
#include "ui/common/workspace.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/texts.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>

namespace medistock::ui {

ExpiryScreen::ExpiryScreen(Workspace &workspace, QWidget *parent)
    : RecordScreen(
        workspace, QStringLiteral("过期查询"),
        { .dates = false, .days = true, .keyHint = gsptexts::goodsHint },
        [this](const RecordScreen &screen) -> Result<gsp::RecordTable> {
            const gsp::RecordFilter f = screen.filter();
            const auto rows
                = gsp::expiryQuery(m_workspace.session, screen.days(), f.warehouse, f.key);
            if (!rows)
                return rows.outcome();
            captionLabel()->setText(gsp::texts::expiryPrintTitle(screen.days()));
            return gsp::expiryTable(rows.value(), screen.days());
        },
        parent)
{
    captionLabel()->setStyleSheet(QStringLiteral("font-weight: bold;"));
    reload();
}

CategoryScreen::CategoryScreen(Workspace &workspace, QWidget *parent)
    : RecordScreen(
        workspace, QStringLiteral("GSP参数"), { .dates = false, .warehouse = false, .key = false },
        [&workspace](const RecordScreen &) -> Result<gsp::RecordTable> {
            return gsp::categoryTable(gsp::categories(workspace.session));
        },
        parent)
{
    addButton(gsptexts::add, QKeySequence(Qt::Key_F2), [this] { addCategory(); });
    addButton(gsptexts::edit, QKeySequence(Qt::Key_F3), [this] { renameCategory(); });
    addButton(gsptexts::remove, QKeySequence(), [this] { deleteCategory(); });
    connect(this, &RecordScreen::rowActivated, this, &CategoryScreen::renameCategory);
    reload();
}

QString CategoryScreen::askName(const QString &current)
{
    bool ok = false;
    const QString name = QInputDialog::getText(this, gsp::texts::categoriesTitle(),
        gsptexts::categoryName, QLineEdit::Normal, current, &ok);
    return ok ? name : QString();
}

void CategoryScreen::addCategory()
{
    const QString name = askName(QString());
    if (!name.isEmpty() && gsp::saveCategory(m_workspace.session, 0, name))
        reload();
}

void CategoryScreen::renameCategory()
{
    const int row = currentRow();
    if (row < 0) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    const QString name = askName(model()->table().rows[row].value(1).toString());
    if (!name.isEmpty() && gsp::saveCategory(m_workspace.session, currentKey().toLongLong(), name))
        reload();
}

void CategoryScreen::deleteCategory()
{
    const QVariant id = currentKey();
    if (!id.isValid())
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
    else if (gsp::deleteCategory(m_workspace.session, id.toLongLong()))
        reload();
}

} // namespace medistock::ui
