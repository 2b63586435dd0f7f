#pragma once

#include "ui/masterdata/masterdialog.h"
#include "ui/masterdata/masterlistscreen.h"

namespace medistock::ui {

// "会员管理": the member list of the master-data screens (search by card, name, mnemonic or
// mobile; add, change, delete, import, export, the discount schemes as a small list), with the
// members' own work beside it: points and card balance changed by hand, top-up, the member's
// history, the levels and the points settings.
class MembersScreen : public MasterListScreen
{
    Q_OBJECT
public:
    explicit MembersScreen(Workspace &workspace, QWidget *parent = nullptr);

    // The chosen member's code; tells and gives an empty text when none is chosen.
    QString chosenMember();

public slots:
    void adjustPoints();
    void adjustBalance();
    void topUp();
    void showHistory();
    void editLevels();
    void editPointsSettings();

protected:
    QList<QSqlRecord> fetch(const QString &text) override;
    std::unique_ptr<MasterRowDialog> editor(const QString &key) override;
    ImportSteps importSteps() override;
};

// Adds or changes a member through the members' own operations: a new card is active, upgrades
// by points, starts at the default level and discount scheme, and gets the next card number when
// none is typed; points and card balance are shown, not edited.
class MemberDialog : public MasterRowDialog
{
    Q_OBJECT
public:
    MemberDialog(const shell::Session &session, const QString &key, QWidget *parent = nullptr);

protected:
    Result<QString> write(const masterdata::Values &values) override;
};

} // namespace medistock::ui
