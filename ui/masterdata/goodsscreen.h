#pragma once

#include "ui/masterdata/masterlistscreen.h"

namespace medistock::ui {

class ClassTreePanel;

// "商品管理": the goods list with the class tree beside it; the list shows the chosen class and
// its sub-classes, and a goods added there starts in that class.
class GoodsScreen : public MasterListScreen
{
    Q_OBJECT
public:
    explicit GoodsScreen(Workspace &workspace, QWidget *parent = nullptr);

    ClassTreePanel *classes() const { return m_classes; }

protected:
    QList<QSqlRecord> fetch(const QString &text) override;
    std::unique_ptr<MasterRowDialog> editor(const QString &key) override;

private:
    ClassTreePanel *m_classes;
};

} // namespace medistock::ui
