#include "ui/maintenance/backupdialog.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "maintenance/backup.h"
#include "shell/rights.h"
#include "shell/settings.h"
#include "ui/common/grid.h"
#include "ui/common/workspace.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// A button at the right end of its own row.
QWidget *buttonRow(QPushButton *button, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    button->setMinimumWidth(120);
    layout->addWidget(button);
    return row;
}

// A file field with its "浏览…" button in one row.
QWidget *fileRow(QLineEdit *field, QPushButton *browse, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(browse);
    return row;
}

// Copies with a progress window that can be cancelled (the copy's files are then removed).
template<class Copy> auto withProgress(QWidget *parent, const QString &text, Copy &&copy)
{
    QProgressDialog progress(text, QStringLiteral("取消"), 0, 0, parent);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(0);
    // A server's copy runs in steps that each count from the start again.
    progress.setAutoReset(false);
    progress.setAutoClose(false);
    auto result = copy([&](int done, int total) {
        progress.setMaximum(total);
        progress.setValue(done);
        QApplication::processEvents();
        return !progress.wasCanceled();
    });
    progress.close();
    return result;
}

} // namespace

BackupDialog::BackupDialog(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_backupFile(new QLineEdit(this))
    , m_restoreFile(new QLineEdit(this))
    , m_backups(makeGrid(
          { QStringLiteral("备份文件"), QStringLiteral("修改时间"), QStringLiteral("大小(KB)") },
          this))
    , m_kept(new QSpinBox(this))
    , m_backUp(new QPushButton(QStringLiteral("备份(&B)"), this))
    , m_restore(new QPushButton(QStringLiteral("恢复(&R)"), this))
{
    setWindowTitle(QStringLiteral("备份/恢复数据库 - ") + workspace.accountSetName);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildBackupGroup());
    layout->addWidget(buildRestoreGroup(), 1);
    layout->addWidget(buildDailyGroup());
    layout->addWidget(buttons);
    listBackups();
    resize(760, 560);
    m_backupFile->setFocus();
}

QString BackupDialog::folder() const
{
    return maintenance::backupFolder(m_workspace.folder());
}

QWidget *BackupDialog::buildBackupGroup()
{
    auto *group = new QGroupBox(QStringLiteral("帐套数据备份到文件"), this);
    proposeBackupFile();
    auto *browse = new QPushButton(QStringLiteral("浏览…"), group);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getSaveFileName(
            this, QStringLiteral("备份到文件"), m_backupFile->text(), backupFilter());
        if (!path.isEmpty())
            m_backupFile->setText(path);
    });
    connect(m_backUp, &QPushButton::clicked, this, &BackupDialog::backUp);
    auto *form = new QFormLayout(group);
    form->addRow(QStringLiteral("备份文件"), fileRow(m_backupFile, browse, group));
    form->addRow(buttonRow(m_backUp, group));
    return group;
}

QWidget *BackupDialog::buildRestoreGroup()
{
    auto *group = new QGroupBox(QStringLiteral("从备份文件恢复帐套数据"), this);
    auto *browse = new QPushButton(QStringLiteral("浏览…"), group);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("选择备份文件"),
            folder(), backupFilter() + QStringLiteral(";;所有文件 (*)"));
        if (!path.isEmpty())
            m_restoreFile->setText(path);
    });
    connect(m_backups, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0)
            m_restoreFile->setText(QDir(folder()).filePath(m_backups->item(row, 0)->text()));
    });
    connect(m_restore, &QPushButton::clicked, this, &BackupDialog::restore);
    m_backups->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_backups->setColumnWidth(1, 150);
    auto *form = new QFormLayout(group);
    form->addRow(
        new QLabel(QStringLiteral("备份文件夹：") + QDir::toNativeSeparators(folder()), group));
    form->addRow(m_backups);
    form->addRow(QStringLiteral("备份文件"), fileRow(m_restoreFile, browse, group));
    form->addRow(buttonRow(m_restore, group));
    return group;
}

QWidget *BackupDialog::buildDailyGroup()
{
    auto *group = new QGroupBox(QStringLiteral("退出时自动备份"), this);
    m_kept->setRange(0, 365);
    m_kept->setValue(m_workspace.session.params().integer("cs_cs032"));
    m_kept->setSpecialValueText(QStringLiteral("不自动备份"));
    auto *save = new QPushButton(QStringLiteral("保存份数"), group);
    connect(save, &QPushButton::clicked, this, &BackupDialog::saveKeptCopies);
    if (!shell::hasRight(m_workspace.session, QStringLiteral("qtcz"), 12)) {
        for (QWidget *w : { static_cast<QWidget *>(m_kept), static_cast<QWidget *>(save) }) {
            w->setEnabled(false);
            w->setToolTip(shell::noRightText(QStringLiteral("系统设置")));
        }
    }
    auto *row = new QHBoxLayout(group);
    row->addWidget(new QLabel(QStringLiteral("每天第一次退出时备份一次，保留最近的"), group));
    row->addWidget(m_kept);
    row->addWidget(new QLabel(QStringLiteral("份"), group));
    row->addStretch(1);
    row->addWidget(save);
    return group;
}

QString BackupDialog::backupFilter() const
{
    return QStringLiteral("帐套备份 (%1)").arg(maintenance::backupFilePattern(m_workspace.session));
}

void BackupDialog::proposeBackupFile()
{
    m_backupFile->setText(QDir(folder()).filePath(
        maintenance::backupFileName(m_workspace.session, m_workspace.session.clock().now())));
}

void BackupDialog::listBackups()
{
    QList<QStringList> rows;
    const QFileInfoList files = QDir(folder()).entryInfoList(
        { maintenance::backupFilePattern(m_workspace.session) }, QDir::Files, QDir::Time);
    for (const QFileInfo &file : files)
        rows.append(
            { file.fileName(), file.lastModified().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                QString::number((file.size() + 1023) / 1024) });
    fillGrid(m_backups, rows);
}

void BackupDialog::backUp()
{
    const Result<QString> written
        = withProgress(this, QStringLiteral("正在备份帐套数据…"), [&](const auto &progress) {
              return maintenance::backupAccountSet(m_workspace.session, m_workspace.folder(),
                  m_backupFile->text().trimmed(), progress);
          });
    if (!written)
        return;
    m_workspace.session.ui().inform(
        QStringLiteral("帐套数据已备份到：\r\n") + QDir::toNativeSeparators(written.value()));
    listBackups();
    proposeBackupFile();
}

void BackupDialog::restore()
{
    const Result<QString> kept
        = withProgress(this, QStringLiteral("正在恢复帐套数据…"), [&](const auto &progress) {
              return maintenance::restoreAccountSet(m_workspace.session, m_workspace.folder(),
                  m_restoreFile->text().trimmed(), progress);
          });
    if (!kept)
        return;
    m_restored = true;
    m_workspace.session.ui().inform(
        QStringLiteral("帐套数据已从备份文件恢复，恢复前的数据另存为：\r\n%1\r\n"
                       "程序现在关闭，请重新启动并登录。")
            .arg(QDir::toNativeSeparators(kept.value())));
    accept();
}

void BackupDialog::saveKeptCopies()
{
    if (shell::saveParameters(
            m_workspace.session, { { QStringLiteral("cs_cs032"), m_kept->value() } }))
        m_workspace.session.ui().inform(QStringLiteral("已保存。"));
}

} // namespace medistock::ui
