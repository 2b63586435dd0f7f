#pragma once

#include "ui/documents/screenkind.h"

#include <QDialog>

namespace medistock::ui {

class QueryScreen;
struct Workspace;

// "商品期初建账" on the shared document screen: a warehouse, a date and the lines (goods, unit,
// batch and dates, quantity, cost per unit). Saving (F3) posts the entry at once; there is no
// check. F9 lists the entries made, where one can be removed again.
class OpeningScreenKind : public DocumentScreenKind
{
public:
    const documents::DocumentKind &entry() const override;
    int checkRight() const override { return 0; }
    int uncheckRight() const override { return 0; }
    bool outgoing() const override { return false; }
    bool hasCheck() const override { return false; }
    QList<LineField> lineFields() const override;
    QString dueLabel() const override;
    QString printKey() const override { return {}; }
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    Outcome check(shell::Session &session, const QString &number, QWidget *parent) override;
    Outcome uncheck(shell::Session &session, const QString &number) override;
    Outcome remove(shell::Session &session, const QString &number) override;
    QString saveCaption() const override;
    QString listCaption() const override;
    void afterSave(DocumentScreen &screen, const QString &number) override;
    void showList(DocumentScreen &screen) override;
};

// The opening entries made, one row per entry and warehouse; "删除期初(Del)" removes the chosen
// entry (its batch check and question first).
class OpeningEntriesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit OpeningEntriesDialog(Workspace &workspace, QWidget *parent = nullptr);

    QueryScreen *list() const { return m_list; }

public slots:
    void removeChosen();

private:
    Workspace &m_workspace;
    QueryScreen *m_list;
};

} // namespace medistock::ui
