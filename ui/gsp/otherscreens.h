#pragma once

#include "ui/gsp/recordscreen.h"

namespace medistock::ui {

// "药品过期查询": the batches that expire within the days entered (the near-expiry days to start
// with), of one warehouse or all, with the print title "查询还有N天过期的药品" under the grid.
class ExpiryScreen : public RecordScreen
{
    Q_OBJECT
public:
    explicit ExpiryScreen(Workspace &workspace, QWidget *parent = nullptr);
};

// "GSP参数管理": the GSP categories, added, renamed and deleted.
class CategoryScreen : public RecordScreen
{
    Q_OBJECT
public:
    explicit CategoryScreen(Workspace &workspace, QWidget *parent = nullptr);

public slots:
    void addCategory();
    void renameCategory();
    void deleteCategory();

private:
    QString askName(const QString &current);
};

} // namespace medistock::ui
