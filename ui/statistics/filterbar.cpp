#include "ui/statistics/filterbar.h"

#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/statistics/texts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace medistock::ui::stats {

FilterBar::FilterBar(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->addStretch(1);
}

void FilterBar::add(const QString &label, QWidget *field)
{
    const int at = m_row->count() - 1; // before the stretch
    if (!label.isEmpty()) {
        auto *caption = new QLabel(label, this);
        caption->setBuddy(field);
        m_row->insertWidget(at, caption);
        m_row->insertWidget(at + 1, field);
    } else {
        m_row->insertWidget(at, field);
    }
    field->installEventFilter(this);
    if (!m_first)
        m_first = field;
}

QDateEdit *FilterBar::makeDate(const QDate &date)
{
    auto *field = new QDateEdit(date, this);
    field->setCalendarPopup(true);
    field->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    return field;
}

void FilterBar::addRange()
{
    const QDate today = m_workspace.session.clock().today();
    m_from = makeDate(QDate(today.year(), today.month(), 1));
    m_to = makeDate(today);
    add(ui::texts::dateFrom(), m_from);
    add(ui::texts::dateTo(), m_to);
}

void FilterBar::addWarehouse()
{
    m_warehouse = new QComboBox(this);
    m_warehouse->addItem(ui::texts::allWarehouses(), QString());
    readSafely(m_workspace.session.ui(), [&] {
        const masterdata::MasterKind &kind
            = *masterdata::findMasterKind(QStringLiteral("warehouse"));
        for (const QSqlRecord &row :
            masterdata::searchMasterRows(m_workspace.session.db(), kind, QString()))
            m_warehouse->addItem(row.value(QStringLiteral("ck_name")).toString(),
                row.value(QStringLiteral("ck_sn")).toString());
    });
    add(texts::warehouse(), m_warehouse);
}

void FilterBar::addClass()
{
    m_class = new QComboBox(this);
    m_class->addItem(texts::allClasses(), QString());
    readSafely(m_workspace.session.ui(), [&] {
        QHash<int, int> depth;
        for (const masterdata::GoodsClass &c : masterdata::goodsClasses(m_workspace.session.db())) {
            depth[c.cid] = depth.value(c.pid, -1) + 1;
            if (c.pid == 0 && c.code.isEmpty())
                continue; // the root "所有类别"
            m_class->addItem(
                QString(2 * qMax(0, depth[c.cid] - 1), QLatin1Char(' ')) + c.name, c.code);
        }
    });
    m_class->setMinimumWidth(120);
    add(texts::goodsClass(), m_class);
}

QLineEdit *FilterBar::addKeyword()
{
    m_keyword = new QLineEdit(this);
    m_keyword->setPlaceholderText(texts::keywordHint());
    m_keyword->setClearButtonEnabled(true);
    m_keyword->setMinimumWidth(160);
    add(texts::keyword(), m_keyword);
    return m_keyword;
}

QLineEdit *FilterBar::addText(const QString &label, const QString &name, int width)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(name);
    field->setClearButtonEnabled(true);
    field->setMinimumWidth(width);
    m_named.insert(name, field);
    add(label, field);
    return field;
}

QComboBox *FilterBar::addChoice(
    const QString &label, const QString &name, const QStringList &choices)
{
    auto *field = new QComboBox(this);
    field->setObjectName(name);
    field->addItems(choices);
    m_named.insert(name, field);
    add(label, field);
    return field;
}

QDateEdit *FilterBar::addDate(const QString &label, const QString &name)
{
    QDateEdit *field = makeDate(m_workspace.session.clock().today());
    field->setObjectName(name);
    m_named.insert(name, field);
    add(label, field);
    return field;
}

statistics::DateRange FilterBar::range() const
{
    if (!m_from)
        return {};
    return { dateText(m_from), dateText(m_to) };
}

statistics::ReportFilter FilterBar::filter() const
{
    statistics::ReportFilter filter;
    filter.range = range();
    if (m_warehouse)
        filter.warehouse = m_warehouse->currentData().toString();
    if (m_class)
        filter.classCode = m_class->currentData().toString();
    if (m_keyword)
        filter.keyword = m_keyword->text().trimmed();
    return filter;
}

QLineEdit *FilterBar::text(const QString &name) const
{
    return qobject_cast<QLineEdit *>(m_named.value(name));
}

QComboBox *FilterBar::choice(const QString &name) const
{
    return qobject_cast<QComboBox *>(m_named.value(name));
}

QDateEdit *FilterBar::date(const QString &name) const
{
    return qobject_cast<QDateEdit *>(m_named.value(name));
}

bool FilterBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            emit runRequested();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QString dateText(const QDateEdit *field)
{
    return field->date().toString(QStringLiteral("yyyy-MM-dd"));
}

} // namespace medistock::ui::stats
