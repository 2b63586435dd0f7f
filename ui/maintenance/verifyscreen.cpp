#include "ui/maintenance/verifyscreen.h"

#include "core/interaction.h"
#include "maintenance/verify.h"
#include "ui/common/keys.h"
#include "ui/common/workspace.h"

#include <QApplication>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QShortcut>

namespace medistock::ui {

namespace {

using Area = maintenance::Finding::Area;

QString areaText(Area area)
{
    switch (area) {
    case Area::Warehouse:
        return QStringLiteral("仓库库存");
    case Area::Batch:
        return QStringLiteral("批次库存");
    case Area::Goods:
        return QStringLiteral("商品库存");
    case Area::Ledger:
        return QStringLiteral("流水账");
    case Area::Balance:
        return QStringLiteral("往来余额");
    case Area::Difference:
        return QStringLiteral("进销存差额");
    case Area::Integrity:
        break;
    }
    return QStringLiteral("数据库");
}

QVariantList row(const maintenance::Finding &finding)
{
    return { areaText(finding.area), finding.text,
        finding.repairable ? QStringLiteral("可修复") : QStringLiteral("不能自动修复") };
}

} // namespace

VerifyScreen::VerifyScreen(Workspace &workspace, QWidget *parent)
    : QueryScreen(workspace, QStringLiteral("库存核对"), parent)
    , m_repair(new QPushButton(QStringLiteral("修复(F6)"), this))
{
    setColumns({ { QStringLiteral("类别"), QueryColumn::Kind::Text, 0, false, 90 },
                   { QStringLiteral("内容"), QueryColumn::Kind::Text, 0, false, 900 },
                   { QStringLiteral("处理"), QueryColumn::Kind::Text, 0, false, 100 } },
        QStringLiteral("库存核对"));
    m_repair->setEnabled(false);
    m_repair->setToolTip(QStringLiteral("先按 F5 核对；有可修复的问题时才能修复"));
    addButton(m_repair);
    connect(m_repair, &QPushButton::clicked, this, &VerifyScreen::repair);
    auto *key = new QShortcut(QKeySequence(Qt::Key_F6), this);
    connect(key, &QShortcut::activated, m_repair, &QPushButton::click);
}

void VerifyScreen::fetch()
{
    QProgressDialog progress(
        QStringLiteral("正在核对库存、流水账和往来余额…"), QStringLiteral("取消"), 0, 0, this);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(300);
    const Result<maintenance::VerifyReport> report
        = maintenance::verifyBooks(m_workspace.session, [&](int done, int total) {
              progress.setMaximum(total);
              progress.setValue(done);
              QApplication::processEvents();
              return !progress.wasCanceled();
          });
    progress.close();
    if (!report) {
        setRows({});
        m_repair->setEnabled(false);
        return;
    }
    QList<QVariantList> rows;
    bool repairable = false;
    for (const maintenance::Finding &finding : report->findings) {
        rows.append(row(finding));
        repairable = repairable || finding.repairable;
    }
    if (rows.isEmpty())
        rows.append({ QStringLiteral("说明"), QStringLiteral("没有发现问题。"), QString() });
    for (const maintenance::Finding &difference : report->differences)
        rows.append(row(difference));
    for (const QString &note : report->notes)
        rows.append({ QStringLiteral("说明"), note, QString() });
    setRows(rows);
    m_repair->setEnabled(repairable);
}

void VerifyScreen::repair()
{
    const Result<QStringList> repaired = maintenance::repairBooks(m_workspace.session);
    if (!repaired || repaired->isEmpty())
        return;
    m_workspace.session.ui().inform(
        QStringLiteral("已修复：\r\n") + repaired->join(QStringLiteral("\r\n")));
    run();
}

} // namespace medistock::ui
