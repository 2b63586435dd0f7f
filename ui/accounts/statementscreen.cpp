#include "ui/accounts/statementscreen.h"

#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QList<QVariantList> lineRows(const QList<accounts::JournalLine> &lines)
{
    QList<QVariantList> rows;
    for (const accounts::JournalLine &l : lines)
        rows.append({ l.goods, l.goodsName, l.packing, l.unit, l.batch, l.expiry, l.quantity, l.price,
            l.amount, l.profit, l.profitRate });
    return rows;
}

} // namespace

StatementScreen::StatementScreen(Workspace &workspace, const QString &title,
    documents::PartyTable party, QList<StatementView> views, QWidget *parent)
    : QueryScreen(workspace, title, parent)
    , m_views(std::move(views))
    , m_from(new DateField(this))
    , m_to(new DateField(this))
    , m_party(makePartyField(workspace.session, party, this))
    , m_text(new QLineEdit(this))
    , m_descending(new QCheckBox(QStringLiteral("日期降序"), this))
    , m_view(new QComboBox(this))
{
    const QDate today = workspace.session.clock().today();
    m_from->setText(today.addMonths(-1).toString(Qt::ISODate));
    m_to->setText(today.toString(Qt::ISODate));
    m_text->setClearButtonEnabled(true);
    addFilter(QStringLiteral("开始日期"), m_from);
    addFilter(QStringLiteral("结束日期"), m_to);
    addFilter(partyLabel(party), m_party);
    addFilter(QStringLiteral("查找"), m_text);
    for (const StatementView &view : m_views)
        m_view->addItem(view.name);
    if (m_views.size() > 1)
        addFilter(QStringLiteral("显示"), m_view);
    else
        m_view->hide();
    addFilter(QString(), m_descending);
    connect(m_view, &QComboBox::currentIndexChanged, this, [this](int index) {
        showView(index);
        run();
    });
    connect(m_descending, &QCheckBox::toggled, this, &QueryScreen::run);
    connect(m_party, &CodeNameField::chosen, this, &QueryScreen::run);
    if (std::any_of(m_views.begin(), m_views.end(),
            [](const StatementView &v) { return v.documentLines; })) {
        auto *detail = new QWidget(this);
        auto *layout = new QVBoxLayout(detail);
        layout->setContentsMargins(0, 0, 0, 0);
        m_linesCaption = new QLabel(detail);
        m_linesModel = new QueryModel(detail);
        const shell::Parameters &params = workspace.session.params();
        const auto number = [](const QString &caption, int decimals) {
            return QueryColumn { caption, QueryColumn::Kind::Number, decimals, true };
        };
        m_linesModel->setColumns({ { QStringLiteral("商品编号") },
            { QStringLiteral("商品名称"), QueryColumn::Kind::Text, 0, false, 180 },
            { QStringLiteral("规格") }, { QStringLiteral("单位") }, { QStringLiteral("批号") },
            { QStringLiteral("有效期") }, number(QStringLiteral("数量"), params.quantityDecimals()),
            { QStringLiteral("单价"), QueryColumn::Kind::Number, params.priceDecimals() },
            number(QStringLiteral("金额"), params.amountDecimals()),
            number(QStringLiteral("毛利"), params.amountDecimals()),
            { QStringLiteral("毛利率%"), QueryColumn::Kind::Number, 2 } });
        auto *view = new QTableView(detail);
        view->setModel(m_linesModel);
        view->verticalHeader()->hide();
        layout->addWidget(m_linesCaption);
        layout->addWidget(view);
        setDetail(detail);
        m_linesPanel = detail;
        connect(this, &QueryScreen::currentRowChanged, this, &StatementScreen::showLines);
    }
    showView(0);
}

void StatementScreen::addAnalysisFilters()
{
    m_choice = new QLineEdit(this);
    m_choice->setPlaceholderText(QStringLiteral("所有类型 / 所有地区"));
    m_days = new QSpinBox(this);
    m_days->setRange(1, 3650);
    m_days->setValue(30);
    addFilter(QStringLiteral("类型或地区"), m_choice);
    addFilter(QStringLiteral("未消费天数"), m_days);
}

const shell::Session &StatementScreen::session() const
{
    return m_workspace.session;
}

accounts::StatementFilter StatementScreen::filter() const
{
    return { normalizedDate(m_from->text()), normalizedDate(m_to->text()), m_party->code(),
        m_text->text().trimmed(), m_descending->isChecked() };
}

QString StatementScreen::choice() const
{
    return m_choice ? m_choice->text().trimmed() : QString();
}

int StatementScreen::days() const
{
    return m_days ? m_days->value() : 0;
}

void StatementScreen::showView(int index)
{
    const StatementView &view = m_views.at(index);
    setColumns(view.columns, title() + QLatin1Char('/') + view.name);
    if (m_linesModel) {
        m_linesModel->setRows({}, {});
        m_linesCaption->clear();
        m_linesPanel->setVisible(view.documentLines);
    }
}

void StatementScreen::fetch()
{
    setRows(m_views.at(m_view->currentIndex()).rows(*this));
}

// The chosen document's lines from the journal, with the caption of its warehouse.
void StatementScreen::showLines(int row)
{
    if (!m_linesModel)
        return;
    m_linesModel->setRows({}, {});
    m_linesCaption->clear();
    if (row < 0 || !m_views.at(m_view->currentIndex()).documentLines)
        return;
    const QString number = model()->value(row, 0).toString();
    readSafely(m_workspace.session.ui(), [&] {
        const accounts::DocumentLines lines
            = accounts::statementDocumentLines(m_workspace.session, number);
        m_linesCaption->setText(number + lines.caption);
        m_linesModel->setRows(lineRows(lines.lines), {});
    });
}

} // namespace medistock::ui
