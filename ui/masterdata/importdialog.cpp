#include "ui/masterdata/importdialog.h"

#include "core/interaction.h"
#include "masterdata/texts.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/progress.h"
#include "ui/common/texts.h"
#include "ui/masterdata/fields.h"
#include "ui/masterdata/texts.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

#include <optional>

namespace medistock::ui {

namespace {

// Files and imports past these sizes get a progress window while they run.
const qint64 largeFileBytes = 200 * 1024;
const int largeImportRows = 500;

QWidget *grouped(const QString &title, QWidget *content, QWidget *parent)
{
    auto *group = new QGroupBox(title, parent);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(content);
    return group;
}

} // namespace

ImportDialog::ImportDialog(const shell::Session &session, const masterdata::MasterKind &kind,
    QWidget *parent, ImportSteps steps)
    : QDialog(parent)
    , m_session(session)
    , m_kind(kind)
    , m_steps(std::move(steps))
    , m_file(new QLabel(this))
    , m_mapping(makeGrid({ mdtexts::sheetColumn, mdtexts::fieldColumn }, this))
    , m_rows(makeGrid({ mdtexts::lineColumn, mdtexts::stateColumn }, this))
    , m_summary(new QLabel(this))
    , m_import(new QPushButton(mdtexts::runImport, this))
{
    if (!m_steps.plan)
        m_steps.plan = [&session, &kind](const QString &path) {
            return masterdata::planImport(session, kind, path);
        };
    if (!m_steps.run)
        m_steps.run = [&session, &kind](const masterdata::ImportPlan &plan) {
            return masterdata::runImport(session, kind, plan);
        };
    setWindowTitle(mdtexts::importTitle + QStringLiteral("：") + QString::fromUtf8(kind.label));
    auto *choose = new QPushButton(mdtexts::chooseFile, this);
    auto *close = new QPushButton(mdtexts::close, this);
    m_import->setEnabled(false);
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &ImportDialog::chooseFile);
    connect(m_import, &QPushButton::clicked, this, &ImportDialog::confirm);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto *fileRow = new QHBoxLayout;
    fileRow->addWidget(new QLabel(mdtexts::fileLabel, this));
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(choose);
    auto *split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(grouped(mdtexts::mappingGroup, m_mapping, this));
    split->addWidget(grouped(mdtexts::rowsGroup, m_rows, this));
    split->setSizes({ 300, 700 });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_summary, 1);
    buttons->addWidget(m_import);
    buttons->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fileRow);
    layout->addWidget(split, 1);
    layout->addLayout(buttons);
    m_mapping->setColumnWidth(0, 120);
    m_rows->setColumnWidth(0, 50);
    m_rows->setColumnWidth(1, 340);
    resize(1040, 560);
}

void ImportDialog::chooseFile()
{
    const QString path = QFileDialog::getOpenFileName(
        this, mdtexts::importTitle, QDir::homePath(), texts::xlsxFilter());
    if (!path.isEmpty())
        load(path);
}

bool ImportDialog::load(const QString &path)
{
    std::optional<BusyIndicator> busy;
    if (QFileInfo(path).size() > largeFileBytes)
        busy.emplace(this, mdtexts::reading);
    auto planned = m_steps.plan(path);
    busy.reset();
    if (!planned)
        return false;
    m_plan = std::move(planned.value());
    m_file->setText(QDir::toNativeSeparators(path));
    showPlan();
    return true;
}

void ImportDialog::showPlan()
{
    QList<QStringList> mapping;
    for (const masterdata::ImportColumn &column : std::as_const(m_plan.columns))
        mapping.append({ column.header,
            column.column.isEmpty()
                ? mdtexts::notImported
                : QStringLiteral("%1（%2）").arg(column.label, column.column) });
    fillGrid(m_mapping, mapping);

    QStringList captions { mdtexts::lineColumn, mdtexts::stateColumn };
    for (const masterdata::ImportColumn &column : std::as_const(m_plan.columns))
        if (!column.column.isEmpty())
            captions.append(column.label);
    m_rows->setColumnCount(int(captions.size()));
    m_rows->setHorizontalHeaderLabels(captions);
    QList<QStringList> rows;
    for (const masterdata::ImportRow &row : std::as_const(m_plan.rows)) {
        QStringList cells { QString::number(row.line),
            row.reason.isEmpty() ? mdtexts::accepted : row.reason };
        for (const masterdata::ImportColumn &column : std::as_const(m_plan.columns))
            if (!column.column.isEmpty()) {
                // A class name has become its class code on the way.
                const QString field = column.column == QLatin1String("gc_name")
                    ? QStringLiteral("gc_sn")
                    : column.column;
                const QVariant value = row.values.value(field);
                cells.append(
                    value.typeId() == QMetaType::Double ? numberText(value) : value.toString());
            }
        rows.append(cells);
    }
    fillGrid(m_rows, rows);
    for (int r = 0; r < m_plan.rows.size(); ++r)
        if (!m_plan.rows.at(r).reason.isEmpty()) {
            m_rows->item(r, 1)->setToolTip(m_plan.rows.at(r).reason);
            for (int c = 0; c < m_rows->columnCount(); ++c)
                if (QTableWidgetItem *item = m_rows->item(r, c)) {
                    item->setBackground(QColor(0xfd, 0xe2, 0xe2));
                    item->setForeground(QColor(0xa0, 0x10, 0x10));
                }
        }
    m_summary->setText(masterdata::texts::importSummary(m_plan.accepted(), m_plan.rejected()));
    m_import->setEnabled(m_plan.accepted() > 0);
}

void ImportDialog::confirm()
{
    if (!m_session.ui().ask(
            masterdata::texts::importQuestion(m_plan.accepted(), m_plan.rejected())))
        return;
    std::optional<BusyIndicator> busy;
    if (m_plan.accepted() > largeImportRows)
        busy.emplace(this, mdtexts::writing);
    const Result<int> written = m_steps.run(m_plan);
    busy.reset();
    if (!written)
        return;
    m_written = written.value();
    m_session.ui().inform(masterdata::texts::imported(m_written));
    accept();
}

} // namespace medistock::ui
