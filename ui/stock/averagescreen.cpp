#include "ui/stock/averagescreen.h"

#include "core/rounding.h"
#include "shell/session.h"
#include "stock/average.h"
#include "ui/common/codenamefield.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/texts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace medistock::ui {

AverageScreen::AverageScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_goods(makeGoodsField(workspace.session, this))
    , m_warehouse(new QComboBox(this))
    , m_now(new QLabel(this))
    , m_average(new QLineEdit(this))
    , m_change(new QPushButton(sttexts::changeAverage + QStringLiteral("(F5)"), this))
    , m_ledger(new GoodsLedgerScreen(workspace, this))
{
    setWindowTitle(sttexts::averageTitle);
    fillMasterBox(m_warehouse, workspace.session, "warehouse", true);
    m_average->setAlignment(Qt::AlignRight);
    // The form keeps to the left; the ledger below takes the width.
    m_goods->setMaximumWidth(360);
    m_warehouse->setMaximumWidth(240);
    m_average->setMaximumWidth(160);
    m_change->setShortcut(QKeySequence(Qt::Key_F5));
    auto *form = new QFormLayout;
    form->addRow(sttexts::goods + QStringLiteral("："), m_goods);
    form->addRow(sttexts::warehouse + QStringLiteral("："), m_warehouse);
    form->addRow(sttexts::averageNow + QStringLiteral("："), m_now);
    form->addRow(sttexts::newAverage + QStringLiteral("："), m_average);
    form->addRow(QString(), m_change);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto *top = new QHBoxLayout;
    top->addLayout(form);
    top->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_ledger, 1);
    enableEnterNavigation(this);
    m_average->setProperty("enterConfirms", true);
    connect(m_goods, &CodeNameField::chosen, this, &AverageScreen::refresh);
    connect(m_warehouse, &QComboBox::activated, this, &AverageScreen::refresh);
    connect(m_average, &QLineEdit::returnPressed, this, &AverageScreen::change);
    connect(m_change, &QPushButton::clicked, this, &AverageScreen::change);
    setFocusProxy(m_goods);
}

void AverageScreen::refresh()
{
    const shell::Session &session = m_workspace.session;
    m_now->clear();
    if (m_goods->code().isEmpty())
        return;
    const QString warehouse = m_warehouse->currentData().toString();
    readSafely(session.ui(), [&] {
        const Result<stock::AverageNow> now
            = stock::averageNow(session, m_goods->code(), warehouse);
        if (now)
            m_now->setText(sttexts::averageShown(
                QString::number(now.value().average, 'f', session.params().priceDecimals()),
                core::plainNumber(now.value().stock), now.value().unit));
    });
    m_ledger->showGoods(m_goods->code(), warehouse);
}

void AverageScreen::change()
{
    if (m_goods->code().isEmpty()) {
        m_workspace.session.ui().inform(sttexts::chooseGoods);
        m_goods->setFocus();
        return;
    }
    if (stock::changeAverage(m_workspace.session, m_goods->code(),
            m_warehouse->currentData().toString(), m_average->text()))
        m_average->clear();
    refresh();
}

} // namespace medistock::ui
