#pragma once

#include <QDialog>

class QTableWidget;

namespace medistock::ui {
struct Workspace;
}

namespace medistock::ui::stats {

// A checked or unchecked document read only: its header and its lines. The statistics open the
// document behind a row with it until the document screens exist.
class DocumentDialog : public QDialog
{
    Q_OBJECT
public:
    // Shows the document in a window of its own (closed with Esc, deleted on close); nullptr,
    // with the refusal told, when the number is no document's.
    static DocumentDialog *open(Workspace &workspace, const QString &number, QWidget *parent);

    QTableWidget *lines() const { return m_lines; }

private:
    explicit DocumentDialog(QWidget *parent);

    QTableWidget *m_lines;
};

} // namespace medistock::ui::stats
