#pragma once

#include <QDialog>

namespace medistock::masterdata {
struct MasterKind;
}

namespace medistock::ui {

struct Workspace;
class MasterListScreen;

// One of the small lists (units, pack sizes, zones ...) in a window of its own, opened from
// the "基础资料" button of the screens whose rows draw on it. Esc closes it.
class SmallListDialog : public QDialog
{
    Q_OBJECT
public:
    SmallListDialog(
        Workspace &workspace, const masterdata::MasterKind &kind, QWidget *parent = nullptr);

    MasterListScreen *list() const { return m_list; }

private:
    MasterListScreen *m_list;
};

} // namespace medistock::ui
