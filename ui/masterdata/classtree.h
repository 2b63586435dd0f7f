#pragma once

#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// The goods-class tree beside the goods list: choosing a class narrows the list to it and its
// sub-classes; classes are added under the chosen one, renamed, moved under another class and
// deleted while they hold neither sub-classes nor goods.
class ClassTreePanel : public QWidget
{
    Q_OBJECT
public:
    explicit ClassTreePanel(const shell::Session &session, QWidget *parent = nullptr);

    QTreeWidget *tree() const { return m_tree; }
    // The chosen class (node id and code); the root "所有类别" when none is chosen.
    int currentCid() const;
    QString currentCode() const;
    // The tree item of a class, or nullptr.
    QTreeWidgetItem *itemOf(int cid) const;
    void choose(int cid);

public slots:
    void reload();
    // The steps behind the buttons, with what the operator typed or chose.
    bool addClass(const QString &name);
    bool renameClass(const QString &name);
    bool moveClass(int newParentCid);
    bool deleteClass();

signals:
    void classChosen();

private:
    void askAndAdd();
    void askAndRename();
    void askAndMove();

    const shell::Session &m_session;
    QTreeWidget *m_tree;
};

} // namespace medistock::ui
