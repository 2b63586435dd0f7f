#include "ui/masterdata/goodsscreen.h"

#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "ui/common/workspace.h"
#include "ui/masterdata/classtree.h"
#include "ui/masterdata/goodsdialog.h"

namespace medistock::ui {

GoodsScreen::GoodsScreen(Workspace &workspace, QWidget *parent)
    : MasterListScreen(workspace, masterdata::goodsKind(), parent)
    , m_classes(new ClassTreePanel(workspace.session, this))
{
    // The tree starts on "所有类别": the list the base has loaded already shows every goods.
    setSidePanel(m_classes);
    connect(m_classes, &ClassTreePanel::classChosen, this, &GoodsScreen::reload);
}

QList<QSqlRecord> GoodsScreen::fetch(const QString &text)
{
    return masterdata::searchGoodsInClass(m_workspace.session.db(), text, m_classes->currentCid());
}

std::unique_ptr<MasterRowDialog> GoodsScreen::editor(const QString &key)
{
    return std::make_unique<GoodsDialog>(
        m_workspace.session, key, key.isEmpty() ? m_classes->currentCode() : QString(), this);
}

} // namespace medistock::ui
