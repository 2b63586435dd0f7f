#include "ui/members/levelsdialog.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/members/texts.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QDoubleSpinBox *numberBox(double maximum, int decimals, QWidget *parent)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setRange(0, maximum);
    box->setDecimals(decimals);
    box->setAlignment(Qt::AlignRight);
    return box;
}

} // namespace

LevelsDialog::LevelsDialog(const shell::Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_grid(makeGrid(mbtexts::levelColumns, this))
{
    setWindowTitle(mbtexts::levelsTitle);
    auto *buttons = new QHBoxLayout;
    const auto button = [&](const QString &text, void (LevelsDialog::*slot)()) {
        auto *b = new QPushButton(text, this);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, slot);
        buttons->addWidget(b);
    };
    button(mbtexts::add, &LevelsDialog::addLevel);
    button(mbtexts::edit, &LevelsDialog::editLevel);
    button(mbtexts::remove, &LevelsDialog::deleteLevel);
    buttons->addStretch(1);
    auto *close = new QPushButton(mbtexts::close, this);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addWidget(close);
    connect(m_grid, &QTableWidget::cellDoubleClicked, this, &LevelsDialog::editLevel);
    for (const auto &[key, slot] : { std::pair { Qt::Key_F2, &LevelsDialog::editLevel },
             std::pair { Qt::Key_Insert, &LevelsDialog::addLevel } })
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this, slot);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_grid, 1);
    layout->addLayout(buttons);
    reload();
    resize(620, 360);
}

void LevelsDialog::reload()
{
    readSafely(m_session.ui(), [&] { m_levels = members::listLevels(m_session.db()); });
    QList<QStringList> rows;
    for (const members::Level &level : std::as_const(m_levels))
        rows.append({ level.code, level.name, core::plainNumber(level.discount),
            core::plainNumber(level.lower), core::plainNumber(level.upper) });
    fillGrid(m_grid, rows);
    for (int r = 0; r < m_grid->rowCount(); ++r)
        for (const int c : { 2, 3, 4 })
            m_grid->item(r, c)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (!rows.isEmpty())
        m_grid->selectRow(0);
}

const members::Level *LevelsDialog::chosen()
{
    const int row = chosenRow(m_grid);
    if (row < 0 || row >= m_levels.size()) {
        m_session.ui().inform(mbtexts::chooseLevelFirst);
        return nullptr;
    }
    return &m_levels.at(row);
}

void LevelsDialog::addLevel()
{
    LevelDialog dialog(m_session, {}, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void LevelsDialog::editLevel()
{
    if (const members::Level *level = chosen()) {
        LevelDialog dialog(m_session, *level, this);
        if (dialog.exec() == QDialog::Accepted)
            reload();
    }
}

void LevelsDialog::deleteLevel()
{
    const members::Level *level = chosen();
    if (!level || !m_session.ui().ask(mbtexts::deleteLevelQuestion(level->name)))
        return;
    if (members::deleteLevel(m_session, level->code))
        reload();
}

LevelDialog::LevelDialog(
    const shell::Session &session, const members::Level &level, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_code(level.code)
    , m_name(new QLineEdit(level.name, this))
    , m_discount(numberBox(1, 4, this))
    , m_lower(numberBox(999999999, 0, this))
    , m_upper(numberBox(999999999, 0, this))
{
    setWindowTitle(mbtexts::levelsTitle);
    m_discount->setSingleStep(0.05);
    m_discount->setValue(level.code.isEmpty() ? 1 : level.discount);
    m_lower->setValue(level.lower);
    m_upper->setValue(level.upper);
    auto *form = new QFormLayout;
    form->addRow(mbtexts::levelName, m_name);
    form->addRow(mbtexts::levelDiscount, m_discount);
    form->addRow(mbtexts::levelLower, m_lower);
    form->addRow(mbtexts::levelUpper, m_upper);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(mbtexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &LevelDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    enableEnterNavigation(this);
    m_name->setFocus();
}

void LevelDialog::save()
{
    if (members::saveLevel(m_session,
            { m_code, m_name->text(), m_discount->value(), m_lower->value(), m_upper->value() }))
        accept();
}

} // namespace medistock::ui
