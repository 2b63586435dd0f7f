#pragma once

#include <QDialog>

namespace medistock::ui {

class DocumentListScreen;
class DocumentScreen;

// "待审核单据" of a document screen (F9): the kind's unchecked documents with the chosen one's
// lines. 打开(Enter) shows it in the screen to change, 审核(F5) checks it there, 删除(Del)
// deletes it; Esc closes.
class UncheckedDialog : public QDialog
{
    Q_OBJECT
public:
    explicit UncheckedDialog(DocumentScreen &screen);

    DocumentListScreen *list() const { return m_list; }

public slots:
    void openChosen();
    void checkChosen();
    void deleteChosen();

private:
    DocumentScreen &m_screen;
    DocumentListScreen *m_list;
};

} // namespace medistock::ui
