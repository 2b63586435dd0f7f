#include "ui/masterdata/smalllistdialog.h"

#include "masterdata/kinds.h"
#include "ui/masterdata/masterlistscreen.h"
#include "ui/masterdata/texts.h"

#include <QVBoxLayout>

namespace medistock::ui {

SmallListDialog::SmallListDialog(
    Workspace &workspace, const masterdata::MasterKind &kind, QWidget *parent)
    : QDialog(parent)
    , m_list(new MasterListScreen(workspace, kind, this))
{
    setWindowTitle(mdtexts::listTitle(QString::fromUtf8(kind.label)));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_list);
    resize(760, 480);
}

} // namespace medistock::ui
