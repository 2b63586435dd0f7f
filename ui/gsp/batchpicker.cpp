#include "ui/gsp/batchpicker.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "gsp/categories.h"
#include "gsp/tables.h"
#include "masterdata/goodsclass.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/gsp/recordscreen.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/texts.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// The picked lines' columns; the last three are the clerk's.
const QStringList pickedCaptions { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
    QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("产品批号"),
    QStringLiteral("有效期至"), QStringLiteral("数量"), QStringLiteral("质量状况"),
    QStringLiteral("处理情况") };
const int quantityColumn = 6;

QTableWidgetItem *fixedItem(const QString &text)
{
    auto *item = new QTableWidgetItem(text);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    return item;
}

} // namespace

BatchPicker::BatchPicker(Workspace &workspace, gsp::FilledKind kind, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_kind(kind)
    , m_class(new QComboBox(this))
    , m_category(new QComboBox(this))
    , m_key(new QLineEdit(this))
    , m_batches(makeTableView(this))
    , m_batchModel(new RecordTableModel(workspace.session.params(), this))
    , m_picked(new QTableWidget(0, int(pickedCaptions.size()), this))
{
    m_class->addItem(gsptexts::allClasses, QString());
    m_category->addItem(gsptexts::allCategories, QString());
    readSafely(workspace.session.ui(), [&] {
        for (const masterdata::GoodsClass &c : masterdata::goodsClasses(workspace.session.db()))
            if (!c.code.isEmpty())
                m_class->addItem(c.name, c.code);
        for (const gsp::Category &c : gsp::categories(workspace.session))
            m_category->addItem(c.name, c.name);
    });
    m_key->setPlaceholderText(gsptexts::goodsHint);
    m_key->setClearButtonEnabled(true);
    m_batches->setModel(m_batchModel);
    m_batches->installEventFilter(this);
    m_key->installEventFilter(this);
    connect(m_batches, &QTableView::doubleClicked, this, &BatchPicker::pickCurrent);
    connect(m_class, &QComboBox::currentIndexChanged, this, &BatchPicker::refreshBatches);
    connect(m_category, &QComboBox::currentIndexChanged, this, &BatchPicker::refreshBatches);
    connect(m_key, &QLineEdit::textChanged, this, &BatchPicker::refreshBatches);

    m_picked->setHorizontalHeaderLabels(pickedCaptions);
    m_picked->verticalHeader()->setVisible(false);
    m_picked->verticalHeader()->setDefaultSectionSize(24);
    m_picked->horizontalHeader()->setStretchLastSection(true);
    m_picked->setSelectionBehavior(QAbstractItemView::SelectRows);
    connect(m_picked, &QTableWidget::cellChanged, this, &BatchPicker::savePickedCell);

    auto *filters = new QHBoxLayout;
    filters->addWidget(new QLabel(gsptexts::goodsClass, this));
    filters->addWidget(m_class);
    filters->addWidget(new QLabel(gsptexts::category, this));
    filters->addWidget(m_category);
    filters->addWidget(new QLabel(gsptexts::keyword, this));
    filters->addWidget(m_key, 1);
    auto *pick = new QPushButton(gsptexts::pick, this);
    auto *all = new QPushButton(gsptexts::pickAll, this);
    auto *remove = new QPushButton(gsptexts::removeLine, this);
    for (QPushButton *button : { pick, all, remove })
        button->setAutoDefault(false);
    filters->addWidget(pick);
    filters->addWidget(all);
    filters->addWidget(remove);
    connect(pick, &QPushButton::clicked, this, &BatchPicker::pickCurrent);
    connect(all, &QPushButton::clicked, this, &BatchPicker::pickAll);
    connect(remove, &QPushButton::clicked, this, &BatchPicker::removeCurrentPick);

    auto *pickedBox = new QGroupBox(gsptexts::picked, this);
    auto *pickedLayout = new QVBoxLayout(pickedBox);
    pickedLayout->setContentsMargins(4, 4, 4, 4);
    pickedLayout->addWidget(m_picked);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(filters);
    layout->addWidget(m_batches, 1);
    layout->addWidget(pickedBox, 1);
    refreshPicks();
}

void BatchPicker::setWarehouse(const QString &warehouse)
{
    m_choice.warehouse = warehouse;
    refreshBatches();
}

void BatchPicker::setWithinDays(int days)
{
    m_choice.withinDays = days;
    refreshBatches();
}

void BatchPicker::refreshBatches()
{
    m_choice.goodsClass = m_class->currentData().toString();
    m_choice.category = m_category->currentData().toString();
    m_choice.key = m_key->text();
    const auto batches = gsp::pickableBatches(m_workspace.session, m_choice);
    m_offered = batches ? batches.value() : QList<gsp::PickableBatch>();
    m_batchModel->setTable(gsp::pickableTable(m_offered));
    if (!m_offered.isEmpty())
        m_batches->selectRow(0);
}

void BatchPicker::refreshPicks()
{
    readSafely(
        m_workspace.session.ui(), [&] { m_lines = gsp::pickedLines(m_workspace.session, m_kind); });
    m_filling = true;
    m_picked->setRowCount(int(m_lines.size()));
    for (int row = 0; row < m_lines.size(); ++row) {
        const gsp::PickedLine &l = m_lines[row];
        const QStringList fixed { l.goods, l.goodsName, l.packing, l.unit, l.batch, l.expiry };
        for (int column = 0; column < fixed.size(); ++column)
            m_picked->setItem(row, column, fixedItem(fixed[column]));
        m_picked->setItem(row, quantityColumn, new QTableWidgetItem(core::plainNumber(l.quantity)));
        m_picked->setItem(row, quantityColumn + 1, new QTableWidgetItem(l.quality));
        m_picked->setItem(row, quantityColumn + 2, new QTableWidgetItem(l.handling));
    }
    m_filling = false;
}

void BatchPicker::pickCurrent()
{
    const int row = m_batches->currentIndex().row();
    if (row < 0 || row >= m_offered.size())
        return;
    if (gsp::pickBatch(m_workspace.session, m_kind, m_choice.warehouse, m_offered[row]))
        refreshPicks();
}

void BatchPicker::pickAll()
{
    for (const gsp::PickableBatch &batch : std::as_const(m_offered))
        if (!gsp::pickBatch(m_workspace.session, m_kind, m_choice.warehouse, batch))
            break;
    refreshPicks();
}

void BatchPicker::removeCurrentPick()
{
    const int row = m_picked->currentRow();
    if (row < 0 || row >= m_lines.size())
        return;
    gsp::removePickedLine(m_workspace.session, m_lines[row].id);
    refreshPicks();
}

void BatchPicker::savePickedCell(int row, int column)
{
    if (m_filling || row < 0 || row >= m_lines.size() || column < quantityColumn)
        return;
    const auto cell = [&](int c) {
        return m_picked->item(row, c) ? m_picked->item(row, c)->text() : QString();
    };
    gsp::changePickedLine(m_workspace.session, m_lines[row].id, cell(quantityColumn),
        cell(quantityColumn + 1), cell(quantityColumn + 2));
    refreshPicks();
}

bool BatchPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_key && (enter || key == Qt::Key_Down) && !m_offered.isEmpty()) {
        m_batches->setFocus();
        return true;
    }
    if (watched == m_batches && enter) {
        pickCurrent();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace medistock::ui
