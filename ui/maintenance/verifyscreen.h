#pragma once

#include "ui/common/queryscreen.h"

class QPushButton;

namespace medistock::ui {

// "库存核对": runs the books' self-check (maintenance/verify.h) with progress that can be
// cancelled and lists what it found, one finding a row with its kind; "修复(F6)" asks and mends
// what can be mended, then checks again. The check is not run on opening: on a large ledger it
// takes a while, so the clerk starts it with F5.
class VerifyScreen : public QueryScreen
{
    Q_OBJECT
public:
    explicit VerifyScreen(Workspace &workspace, QWidget *parent = nullptr);

    QPushButton *repairButton() const { return m_repair; }

public slots:
    void repair();

protected:
    void fetch() override;

private:
    QPushButton *m_repair;
};

} // namespace medistock::ui
