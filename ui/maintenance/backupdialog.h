#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace medistock::ui {

struct Workspace;

// "备份/恢复数据库": "帐套数据备份到文件" proposes a dated file in the data folder's backup folder
// (another may be chosen), "从备份文件恢复帐套数据" lists the backups there, newest first, or takes
// any file; both copy with a progress window. The daily backup's kept copies (cs_cs032) are set
// here too. After a restore the program must log in again, which restored() tells the caller.
// A set on a server is backed up to and restored from pg_dump files ("*.dump"), a set file from
// SQLite files ("*.db"): the file dialogs and the list offer only that kind.
class BackupDialog : public QDialog
{
    Q_OBJECT
public:
    explicit BackupDialog(Workspace &workspace, QWidget *parent = nullptr);

    QLineEdit *backupFile() const { return m_backupFile; }
    QLineEdit *restoreFile() const { return m_restoreFile; }
    QTableWidget *backups() const { return m_backups; }
    QSpinBox *keptCopies() const { return m_kept; }
    QPushButton *backupButton() const { return m_backUp; }
    QPushButton *restoreButton() const { return m_restore; }
    bool restored() const { return m_restored; }

public slots:
    void backUp();
    void restore();
    void saveKeptCopies();

private:
    QWidget *buildBackupGroup();
    QWidget *buildRestoreGroup();
    QWidget *buildDailyGroup();
    void listBackups();
    // A new dated name in the backup folder.
    void proposeBackupFile();
    QString folder() const;
    QString backupFilter() const;

    Workspace &m_workspace;
    QLineEdit *m_backupFile;
    QLineEdit *m_restoreFile;
    QTableWidget *m_backups;
    QSpinBox *m_kept;
    QPushButton *m_backUp;
    QPushButton *m_restore;
    bool m_restored = false;
};

} // namespace medistock::ui
