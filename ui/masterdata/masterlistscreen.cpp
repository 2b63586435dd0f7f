#include "ui/masterdata/masterlistscreen.h"

#include "core/interaction.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "masterdata/texts.h"
#include "masterdata/transfer.h"
#include "shell/rights.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/masterdata/forms.h"
#include "ui/masterdata/importdialog.h"
#include "ui/masterdata/masterdialog.h"
#include "ui/masterdata/recordmodel.h"
#include "ui/masterdata/smalllistdialog.h"
#include "ui/masterdata/texts.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

QTableView *makeView(QWidget *parent)
{
    QTableView *view = makeTableView(parent);
    view->horizontalHeader()->setDefaultSectionSize(110);
    return view;
}

RecordModel *makeModel(const masterdata::MasterKind &kind, QObject *parent)
{
    const QStringList columns = formOf(kind).gridColumns;
    QStringList captions;
    QStringList flags;
    for (const QString &column : columns) {
        captions.append(captionOf(kind, column));
        if (typeOf(kind, column) == QLatin1String("bit"))
            flags.append(column);
    }
    return new RecordModel(columns, captions, flags,
        kind.disabledColumn ? str(kind.disabledColumn) : QString(), parent);
}

} // namespace

MasterListScreen::MasterListScreen(
    Workspace &workspace, const masterdata::MasterKind &kind, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_kind(kind)
    , m_search(new QLineEdit(this))
    , m_count(new QLabel(this))
    , m_grid(makeView(this))
    , m_model(makeModel(kind, this))
    , m_split(new QSplitter(Qt::Horizontal, this))
{
    m_grid->setModel(m_model);
    m_search->setPlaceholderText(
        &kind == &masterdata::goodsKind() ? mdtexts::goodsSearchHint : mdtexts::searchHint);
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(240);
    m_search->installEventFilter(this);
    m_grid->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, &MasterListScreen::reload);
    connect(m_grid, &QTableView::doubleClicked, this, &MasterListScreen::editCurrent);
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &MasterListScreen::refreshDisableButton);
    for (const auto &[key, slot] : { std::pair { Qt::Key_F2, &MasterListScreen::editCurrent },
             std::pair { Qt::Key_Insert, &MasterListScreen::addRow } }) {
        auto *shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    }

    auto *bar = new QHBoxLayout;
    bar->addWidget(new QLabel(mdtexts::search, this));
    bar->addWidget(m_search);
    bar->addWidget(m_count);
    bar->addStretch(1);
    bar->addWidget(buildButtons());
    m_split->addWidget(m_grid);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_split, 1);

    reload();
    setColumnWidths();
    m_workspace.rememberColumns(m_grid, QStringLiteral("资料/") + str(kind.key));
    setFocusProxy(m_search);
}

MasterListScreen::~MasterListScreen() = default;

QWidget *MasterListScreen::buildButtons()
{
    auto *box = new QWidget(this);
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    m_buttonRow = row;
    auto button = [&](const QString &text, void (MasterListScreen::*slot)()) {
        auto *pushButton = new QPushButton(text, box);
        pushButton->setAutoDefault(false);
        connect(pushButton, &QPushButton::clicked, this, slot);
        row->addWidget(pushButton);
        return pushButton;
    };
    button(mdtexts::add, &MasterListScreen::addRow);
    button(mdtexts::edit, &MasterListScreen::editCurrent);
    button(mdtexts::remove, &MasterListScreen::deleteCurrent);
    if (m_kind.disabledColumn)
        m_disable = button(mdtexts::disable, &MasterListScreen::toggleDisabled);
    const QStringList lists = formOf(m_kind).basicLists;
    if (!lists.isEmpty()) {
        m_basicLists = new QPushButton(mdtexts::basicLists, box);
        auto *menu = new QMenu(m_basicLists);
        for (const QString &key : lists) {
            const masterdata::MasterKind &list = *masterdata::findMasterKind(key);
            QAction *action = menu->addAction(QString::fromUtf8(list.label));
            action->setObjectName(key);
            action->setEnabled(
                shell::hasRight(m_workspace.session, QStringLiteral("qtcz"), list.right));
            connect(action, &QAction::triggered, this, [this, key] { openBasicList(key); });
        }
        m_basicLists->setMenu(menu);
        row->addWidget(m_basicLists);
    }
    if (masterdata::isImportable(m_kind))
        button(mdtexts::importButton, &MasterListScreen::chooseImportFile);
    button(texts::exportButton(), &MasterListScreen::chooseExportFile);
    return box;
}

void MasterListScreen::setColumnWidths()
{
    const QStringList columns = m_model->columns();
    for (int i = 0; i < columns.size(); ++i) {
        const QString type = typeOf(m_kind, columns.at(i));
        const int declared
            = type.section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0).toInt();
        int width = 110;
        if (type == QLatin1String("bit"))
            width = 60;
        else if (type.startsWith(QLatin1String("numeric")) || type == QLatin1String("int"))
            width = 90;
        else if (declared >= 128)
            width = 200;
        else if (type.startsWith(QLatin1String("nvarchar")) && declared >= 64)
            width = 140;
        const int caption = m_grid->horizontalHeader()->fontMetrics().horizontalAdvance(
                                m_model->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString())
            + 24;
        m_grid->setColumnWidth(i, std::max(width, caption));
    }
}

QPushButton *MasterListScreen::addButton(const QString &text, const std::function<void()> &action)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    if (action)
        connect(button, &QPushButton::clicked, this, action);
    m_buttonRow->addWidget(button);
    return button;
}

ImportSteps MasterListScreen::importSteps()
{
    return {};
}

void MasterListScreen::setSidePanel(QWidget *panel)
{
    m_split->insertWidget(0, panel);
    m_split->setStretchFactor(0, 0);
    m_split->setStretchFactor(1, 1);
    m_split->setSizes({ 220, 900 });
}

QList<QSqlRecord> MasterListScreen::fetch(const QString &text)
{
    return masterdata::searchMasterRows(m_workspace.session.db(), m_kind, text);
}

std::unique_ptr<MasterRowDialog> MasterListScreen::editor(const QString &key)
{
    return std::make_unique<MasterRowDialog>(m_workspace.session, m_kind, key, this);
}

void MasterListScreen::reload()
{
    const QString current = currentKey();
    QList<QSqlRecord> rows;
    readSafely(m_workspace.session.ui(), [&] { rows = fetch(m_search->text()); });
    m_model->setRows(std::move(rows));
    m_count->setText(texts::rowCount(m_model->rowCount()));
    selectKey(current);
    if (!m_grid->currentIndex().isValid() && m_model->rowCount() > 0)
        m_grid->selectRow(0);
    refreshDisableButton();
}

int MasterListScreen::rowCount() const
{
    return m_model->rowCount();
}

QSqlRecord MasterListScreen::recordAt(int row) const
{
    return m_model->rowAt(row);
}

QString MasterListScreen::keyOf(const QSqlRecord &row) const
{
    return row.value(masterdata::keyColumn(m_kind)).toString();
}

QString MasterListScreen::currentKey() const
{
    const int row = m_grid->currentIndex().row();
    return row >= 0 && row < m_model->rowCount() ? keyOf(m_model->rowAt(row)) : QString();
}

void MasterListScreen::selectKey(const QString &key)
{
    if (key.isEmpty())
        return;
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (keyOf(m_model->rowAt(row)) == key) {
            m_grid->selectRow(row);
            m_grid->scrollTo(m_model->index(row, 0));
            return;
        }
}

void MasterListScreen::refreshDisableButton()
{
    if (!m_disable)
        return;
    const int row = m_grid->currentIndex().row();
    const bool disabled = row >= 0 && row < m_model->rowCount()
        && m_model->rowAt(row).value(str(m_kind.disabledColumn)).toInt() != 0;
    m_disable->setText(disabled ? mdtexts::enable : mdtexts::disable);
}

void MasterListScreen::addRow()
{
    std::unique_ptr<MasterRowDialog> dialog = editor(QString());
    if (dialog->exec() != QDialog::Accepted)
        return;
    reload();
    selectKey(dialog->savedKey());
}

void MasterListScreen::editCurrent()
{
    const QString key = currentKey();
    if (key.isEmpty()) {
        m_workspace.session.ui().inform(mdtexts::chooseRowFirst);
        return;
    }
    std::unique_ptr<MasterRowDialog> dialog = editor(key);
    if (dialog->exec() != QDialog::Accepted)
        return;
    reload();
    selectKey(dialog->savedKey());
}

void MasterListScreen::deleteCurrent()
{
    const QString key = currentKey();
    if (key.isEmpty()) {
        m_workspace.session.ui().inform(mdtexts::chooseRowFirst);
        return;
    }
    const QString name
        = m_model->rowAt(m_grid->currentIndex().row()).value(str(m_kind.nameColumn)).toString();
    if (!m_workspace.session.ui().ask(
            masterdata::texts::deleteQuestion(QString::fromUtf8(m_kind.label), name)))
        return;
    if (masterdata::deleteMasterRow(m_workspace.session, m_kind, key))
        reload();
}

void MasterListScreen::toggleDisabled()
{
    const QString key = currentKey();
    if (key.isEmpty()) {
        m_workspace.session.ui().inform(mdtexts::chooseRowFirst);
        return;
    }
    const bool disabled
        = m_model->rowAt(m_grid->currentIndex().row()).value(str(m_kind.disabledColumn)).toInt()
        != 0;
    if (masterdata::setMasterDisabled(m_workspace.session, m_kind, key, !disabled))
        reload();
}

void MasterListScreen::chooseExportFile()
{
    const QString path = QFileDialog::getSaveFileName(this, texts::exportTitle(),
        QDir::home().filePath(QString::fromUtf8(m_kind.label) + QStringLiteral(".xlsx")),
        texts::xlsxFilter());
    if (!path.isEmpty())
        exportTo(path);
}

void MasterListScreen::exportTo(const QString &path)
{
    const Outcome outcome = masterdata::exportMasterRows(m_workspace.session.db(), m_kind, path);
    m_workspace.session.ui().inform(outcome ? texts::exported(path) : outcome.message());
}

void MasterListScreen::chooseImportFile()
{
    const QString path = QFileDialog::getOpenFileName(
        this, mdtexts::importTitle, QDir::homePath(), texts::xlsxFilter());
    if (!path.isEmpty())
        importFrom(path);
}

void MasterListScreen::importFrom(const QString &path)
{
    ImportDialog dialog(m_workspace.session, m_kind, this, importSteps());
    if (!dialog.load(path))
        return;
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void MasterListScreen::openBasicList(const QString &key)
{
    SmallListDialog dialog(m_workspace, *masterdata::findMasterKind(key), this);
    dialog.exec();
}

bool MasterListScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_search && (enter || key == Qt::Key_Down) && m_model->rowCount() > 0) {
        m_grid->setFocus();
        if (!m_grid->currentIndex().isValid())
            m_grid->selectRow(0);
        return true;
    }
    if (watched == m_grid && enter) {
        editCurrent();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace medistock::ui
