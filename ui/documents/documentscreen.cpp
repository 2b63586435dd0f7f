#include "ui/documents/documentscreen.h"

#include "core/interaction.h"
#include "core/lookups.h"
#include "masterdata/texts.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/keys.h"
#include "ui/common/printing.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/documents/screenkind.h"
#include "ui/documents/texts.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// Column widths that keep what a clerk needs in view at 1366 pixels.
int widthOf(LineField field)
{
    switch (field) {
    case LineField::Row:
        return 34;
    case LineField::Code:
        return 86;
    case LineField::Name:
        return 170;
    case LineField::Packing:
        return 96;
    case LineField::Unit:
    case LineField::Discount:
    case LineField::TaxRate:
        return 48;
    case LineField::Batch:
        return 84;
    case LineField::Produced:
    case LineField::Expiry:
        return 86;
    case LineField::Quantity:
    case LineField::Stock:
    case LineField::Book:
    case LineField::Difference:
        return 64;
    case LineField::Price:
        return 72;
    case LineField::Amount:
    case LineField::Total:
        return 84;
    case LineField::Remark:
        return 100;
    case LineField::Cost:
        return 72;
    case LineField::Limit:
        return 64;
    }
    return 80;
}

} // namespace

DocumentScreen::DocumentScreen(
    Workspace &workspace, std::unique_ptr<DocumentScreenKind> kind, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_kind(std::move(kind))
    , m_lines(new LineModel(
          m_kind->lineFields(), documents::LineRounding::of(workspace.session.params()), this))
    , m_grid(new LineGrid(m_lines, m_kind->enterFields(), this))
    , m_totals(new QLabel(this))
    , m_capitals(new QLabel(this))
{
    m_lines->setCostColumn(m_kind->costColumn());
    for (int column = 0; column < m_lines->columnCount(); ++column)
        m_grid->setColumnWidth(column, widthOf(m_lines->fieldAt(column)));
    m_workspace.rememberColumns(m_grid, QStringLiteral("单据/") + m_kind->title());

    auto *totalsRow = new QHBoxLayout;
    totalsRow->addWidget(m_totals);
    totalsRow->addSpacing(24);
    totalsRow->addWidget(m_capitals, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildHeader());
    layout->addWidget(m_grid, 1);
    layout->addLayout(totalsRow);
    layout->addWidget(buildButtons());

    connect(m_lines, &LineModel::edited, this, [this] {
        refreshTotals();
        markModified();
    });
    connect(
        m_lines, &LineModel::goodsTyped, this, &DocumentScreen::lookUpGoods, Qt::QueuedConnection);
    connect(m_lines, &LineModel::unitChanged, this, &DocumentScreen::proposePrice);
    connect(
        m_lines, &LineModel::numberTyped, this, &DocumentScreen::checkNumber, Qt::QueuedConnection);
    connect(m_grid, &LineGrid::pickRequested, this, &DocumentScreen::pickFor);
    connect(m_grid, &LineGrid::insertLineRequested, this, &DocumentScreen::insertLine);
    connect(m_grid, &LineGrid::deleteLineRequested, this, &DocumentScreen::deleteLine);
    m_kind->addActions(*this);
    resetHeader();
    setFocusProxy(m_party ? static_cast<QWidget *>(m_party) : m_grid);
}

DocumentScreen::~DocumentScreen() = default;

QWidget *DocumentScreen::buildHeader()
{
    const documents::HeaderColumns &h = m_kind->entry().header;
    const shell::Session &session = m_workspace.session;
    auto *box = new QWidget(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    QList<std::pair<QString, QWidget *>> fields;
    if (h.partyTable != documents::PartyTable::None) {
        m_party = makePartyField(session, h.partyTable, box);
        m_party->setProperty("enterConfirms", true);
        fields.append({ partyLabel(h.partyTable), m_party });
        connect(m_party, &CodeNameField::chosen, this, &DocumentScreen::markModified);
        connect(m_party, &CodeNameField::entered, m_grid, &LineGrid::goToNewLine);
    }
    m_warehouse = new QComboBox(box);
    fillMasterBox(m_warehouse, session, "warehouse");
    fields.append({ doctexts::warehouse, m_warehouse });
    m_date = new DateField(box);
    fields.append({ doctexts::date, m_date });
    m_numberField = new QLineEdit(box);
    m_numberField->setReadOnly(true);
    m_numberField->setFocusPolicy(Qt::NoFocus);
    m_numberField->setPlaceholderText(doctexts::numberPending);
    fields.append({ doctexts::number, m_numberField });
    if (*h.employee) {
        m_employee = new QComboBox(box);
        fillMasterBox(m_employee, session, "employee");
        fields.append({ doctexts::employee, m_employee });
    }
    if (*h.discount) {
        m_discount = new QLineEdit(box);
        m_discount->setAlignment(Qt::AlignRight);
        fields.append({ doctexts::discount, m_discount });
    }
    fields += m_kind->createHeaderFields(box);
    if (*h.note) {
        m_note = new QLineEdit(box);
        fields.append({ doctexts::note, m_note });
    }
    m_status = new QLabel(box);
    constexpr int perRow = 4;
    for (int i = 0; i < fields.size(); ++i) {
        auto *label = new QLabel(fields[i].first + QStringLiteral("："), box);
        label->setBuddy(fields[i].second);
        grid->addWidget(label, i / perRow, (i % perRow) * 2, Qt::AlignRight);
        grid->addWidget(fields[i].second, i / perRow, (i % perRow) * 2 + 1);
    }
    const int last = int(fields.size());
    grid->addWidget(m_status, last / perRow + (last % perRow ? 1 : 0), 0, 1, perRow * 2);
    for (int column = 1; column < perRow * 2; column += 2)
        grid->setColumnStretch(column, 1);
    for (QLineEdit *edit : box->findChildren<QLineEdit *>())
        connect(edit, &QLineEdit::textEdited, this, &DocumentScreen::markModified);
    for (QComboBox *combo : box->findChildren<QComboBox *>())
        connect(combo, &QComboBox::activated, this, &DocumentScreen::markModified);
    connect(m_warehouse, &QComboBox::activated, this, &DocumentScreen::refreshStock);
    connect(m_date, &DateField::edited, this, &DocumentScreen::markModified);
    enableEnterNavigation(box);
    return box;
}

void DocumentScreen::bindKey(const QKeySequence &key, void (DocumentScreen::*slot)())
{
    auto *shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, slot);
}

QWidget *DocumentScreen::buildButtons()
{
    auto *box = new QWidget(this);
    m_bar = new QHBoxLayout(box);
    m_bar->setContentsMargins(0, 0, 0, 0);
    auto button = [&](const QString &text, void (DocumentScreen::*slot)(), int key) {
        auto *push = new QPushButton(text, box);
        push->setAutoDefault(false);
        push->setFocusPolicy(Qt::NoFocus);
        connect(push, &QPushButton::clicked, this, slot);
        if (key)
            bindKey(QKeySequence(key), slot);
        m_bar->addWidget(push);
        return push;
    };
    m_newButton = button(doctexts::newButton, &DocumentScreen::newDocument, Qt::Key_F2);
    m_saveButton = button(m_kind->saveCaption(), &DocumentScreen::saveAction, Qt::Key_F3);
    m_checkButton = button(doctexts::checkButton, &DocumentScreen::check, Qt::Key_F5);
    m_uncheckButton = button(doctexts::uncheckButton, &DocumentScreen::uncheck, Qt::Key_F6);
    m_deleteButton = button(doctexts::deleteButton, &DocumentScreen::removeDocument, Qt::Key_F7);
    m_printButton = makePrintButton(m_workspace, this, [this] {
        return PrintRequest { m_number.isEmpty() ? QString() : m_kind->printKey(), m_number };
    });
    m_printButton->setFocusPolicy(Qt::NoFocus);
    m_printButton->setVisible(!m_kind->printKey().isEmpty());
    m_bar->addWidget(m_printButton);
    m_insertButton = new QPushButton(doctexts::insertLineButton, box);
    m_deleteLineButton = new QPushButton(doctexts::deleteLineButton, box);
    for (QPushButton *push : { m_insertButton, m_deleteLineButton }) {
        push->setAutoDefault(false);
        push->setFocusPolicy(Qt::NoFocus);
        m_bar->addWidget(push);
    }
    connect(m_insertButton, &QPushButton::clicked, this,
        [this] { insertLine(std::max(m_grid->currentIndex().row(), 0)); });
    connect(m_deleteLineButton, &QPushButton::clicked, this,
        [this] { deleteLine(m_grid->currentIndex().row()); });
    button(m_kind->listCaption(), &DocumentScreen::showUnchecked, Qt::Key_F9);
    m_bar->addStretch(1);
    return box;
}

} // namespace medistock::ui
