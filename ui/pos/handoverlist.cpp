#include "ui/pos/handoverlist.h"

#include "core/interaction.h"
#include "pos/reportfilter.h"
#include "shell/session.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/pos/texts.h"

#include <QDate>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

HandoverList::HandoverList(Workspace &workspace, QWidget *parent)
    : QueryScreen(workspace, postexts::handovers, parent)
    , m_from(new DateField(this))
    , m_to(new DateField(this))
    , m_cashier(new QLineEdit(this))
{
    const QDate today = workspace.session.clock().today();
    m_from->setText(QDate(today.year(), today.month(), 1).toString(Qt::ISODate));
    m_to->setText(today.toString(Qt::ISODate));
    addFilter(QStringLiteral("从"), m_from);
    addFilter(QStringLiteral("到"), m_to);
    addFilter(postexts::cashier, m_cashier);
    const int places = workspace.session.params().amountDecimals();
    const QStringList captions = postexts::handoverCaptions.split(QLatin1Char('|'));
    QList<QueryColumn> columns;
    for (int c = 0; c < captions.size(); ++c) {
        const bool amount = c >= 3 && c <= 6;
        columns.append({ captions[c], amount ? QueryColumn::Kind::Number : QueryColumn::Kind::Text,
            amount ? places : 0, amount, c == 0 ? 150 : 0 });
    }
    setColumns(columns, QStringLiteral("POS交班记录"));
    const std::pair<QString, QString> slips[] = { { postexts::reprintSlip, QStringLiteral("jbxp") },
        { postexts::reprintSlip58, QStringLiteral("jbxp58") } };
    for (const auto &[label, key] : slips) {
        auto *print = new QPushButton(label, this);
        print->setEnabled(bool(workspace.print));
        if (!workspace.print)
            print->setToolTip(texts::printingNotBuilt());
        connect(print, &QPushButton::clicked, this, [this, key] { printChosen(key); });
        addButton(print);
    }
}

const pos::Handover *HandoverList::handoverAt(int row) const
{
    return row >= 0 && row < m_rows.size() ? &m_rows[row] : nullptr;
}

void HandoverList::printChosen(const QString &key)
{
    const pos::Handover *chosen = handoverAt(currentRow());
    if (!chosen)
        return m_workspace.session.ui().inform(postexts::noHandoverChosen);
    if (m_workspace.print)
        m_workspace.print(m_workspace, this, PrintRequest { key, QString::number(chosen->id) });
}

void HandoverList::fetch()
{
    shell::Session &session = m_workspace.session;
    const pos::DateRange range { m_from->text(), m_to->text() };
    if (!pos::checkRange(session, range))
        return;
    m_rows = pos::handovers(session, range.from, range.to, m_cashier->text().trimmed());
    QList<QVariantList> rows;
    for (const pos::Handover &h : m_rows)
        rows.append(
            { h.time, h.current, h.next, h.takings, h.handedUp, h.leftForNext, h.handed, h.note });
    setRows(rows);
}

HandoverListDialog::HandoverListDialog(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
    , m_list(new HandoverList(workspace, this))
{
    setWindowTitle(postexts::handovers);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    resize(1000, 520);
    m_list->run();
    if (m_list->model()->dataRows() > 0)
        m_list->grid()->selectRow(0);
    m_list->fromField()->setFocus();
}

} // namespace medistock::ui
