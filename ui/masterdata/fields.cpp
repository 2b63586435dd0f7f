#include "ui/masterdata/fields.h"

#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "shell/session.h"
#include "ui/common/reading.h"
#include "ui/masterdata/forms.h"
#include "ui/masterdata/texts.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSqlRecord>

namespace medistock::ui {

namespace {

// A column whose value is a row of another list; `pair` receives that row's name beside the code.
struct Lookup
{
    const char *column;
    const char *list; // MasterKind key
    const char *valueColumn;
    const char *textColumn;
    const char *pair; // nullptr when only the value is stored
    bool editable;
};

constexpr Lookup lookups[] = {
    { "dw_name", "unit", "dw_name", "dw_name", nullptr, true },
    { "gg_name", "packsize", "gg_name", "gg_name", nullptr, true },
    { "g_yjlx", "dosage", "g_yjlx", "g_yjlx", nullptr, true },
    { "g_tym", "generic", "g_tym", "g_tym", nullptr, true },
    { "hj_name", "shelf", "hj_name", "hj_name", nullptr, true },
    { "gsp_name", "gsp", "gsp_name", "gsp_name", nullptr, false },
    { "z_name", "zone", "z_name", "z_name", nullptr, false },
    { "gt_name", "supplier-type", "gt_name", "gt_name", nullptr, false },
    { "kt_sn", "customer-type", "kt_sn", "kt_name", "kt_name", false },
    { "ck_sn", "warehouse", "ck_sn", "ck_name", "ck_name", false },
    { "ghs_sn", "supplier", "ghs_sn", "ghs_name", nullptr, false },
    { "hl_sn", "member-level", "hl_sn", "hl_name", nullptr, false },
    { "hh_sn", "discount-scheme", "hh_sn", "hh_name", nullptr, false },
};

// Columns that must name a row: their drop-down offers no empty choice.
bool requiresRow(const QString &column)
{
    return column == QLatin1String("ghs_sn") || column == QLatin1String("hl_sn")
        || column == QLatin1String("hh_sn");
}

// A list's own code and name columns are typed, never looked up in itself.
const Lookup *lookupOf(const masterdata::MasterKind &kind, const QString &column)
{
    for (const Lookup &lookup : lookups)
        if (column == QLatin1String(lookup.column) && qstrcmp(lookup.list, kind.key) != 0)
            return &lookup;
    return nullptr;
}

// Columns holding a number that stands for a word, and the text column written beside it.
struct Choice
{
    const char *column;
    const QStringList *words;
    const char *pair;
};

const Choice choices[] = {
    { "g_tclb", &mdtexts::goodsCommissionKinds, nullptr },
    { "u_tcfs", &mdtexts::employeeCommissionKinds, "u_tctxt" },
    { "fy_fx", &mdtexts::expenseDirections, nullptr },
};

const Choice *choiceOf(const QString &column)
{
    for (const Choice &choice : choices)
        if (column == QLatin1String(choice.column))
            return &choice;
    return nullptr;
}

// Free text with the usual answers offered.
const QStringList *suggestionsOf(const QString &column)
{
    if (column == QLatin1String("g_cztj"))
        return &mdtexts::storageConditions;
    if (column == QLatin1String("g_yhlx"))
        return &mdtexts::careKinds;
    return nullptr;
}

bool isNumber(const QString &type)
{
    return type.startsWith(QLatin1String("numeric")) || type == QLatin1String("int")
        || type == QLatin1String("integer");
}

} // namespace

LookupBox::LookupBox(bool editable, QWidget *parent)
    : QComboBox(parent)
{
    setEditable(editable);
    setInsertPolicy(QComboBox::NoInsert);
    setMinimumWidth(160);
}

void LookupBox::addChoice(const QString &text, const QString &value)
{
    addItem(text, value);
}

void LookupBox::setValue(const QString &value)
{
    int index = findData(value);
    if (index < 0 && isEditable()) {
        setEditText(value);
        return;
    }
    if (index < 0) {
        addItem(value, value);
        index = count() - 1;
    }
    setCurrentIndex(index);
}

QString LookupBox::value() const
{
    if (isEditable())
        return currentText().trimmed();
    return currentData().toString();
}

QString numberText(const QVariant &value)
{
    if (value.isNull() || value.toString().isEmpty())
        return QString();
    QString text = QString::number(value.toDouble(), 'f', 8);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

FieldSet::FieldSet(const shell::Session &session, const masterdata::MasterKind &kind)
    : m_session(session)
    , m_kind(kind)
{ }

bool FieldSet::isFlag(const QString &column) const
{
    return typeOf(m_kind, column) == QLatin1String("bit");
}

QWidget *FieldSet::create(const QString &column, QWidget *parent)
{
    if (QWidget *existing = m_widgets.value(column))
        return existing;
    QWidget *widget = nullptr;
    if (isFlag(column)) {
        widget = new QCheckBox(captionOf(m_kind, column), parent);
    } else if (lookupOf(m_kind, column) || choiceOf(column) || suggestionsOf(column)
        || column == QLatin1String("gc_sn")) {
        widget = createLookup(column, parent);
    } else {
        auto *edit = new QLineEdit(parent);
        edit->setMinimumWidth(160);
        if (isNumber(typeOf(m_kind, column)))
            edit->setAlignment(Qt::AlignRight);
        if (m_kind.dateColumns.size() > 0)
            for (const char *date : m_kind.dateColumns)
                if (column == QLatin1String(date))
                    edit->setPlaceholderText(mdtexts::dateHint);
        widget = edit;
    }
    widget->setObjectName(column);
    m_widgets.insert(column, widget);
    m_order.append(column);
    return widget;
}

QWidget *FieldSet::createLookup(const QString &column, QWidget *parent)
{
    if (const Choice *choice = choiceOf(column)) {
        auto *box = new LookupBox(false, parent);
        for (int i = 0; i < choice->words->size(); ++i)
            box->addChoice(choice->words->at(i), QString::number(i));
        return box;
    }
    if (const QStringList *suggestions = suggestionsOf(column)) {
        auto *box = new LookupBox(true, parent);
        for (const QString &word : *suggestions)
            box->addChoice(word, word);
        return box;
    }
    if (column == QLatin1String("gc_sn")) {
        auto *box = new LookupBox(false, parent);
        readSafely(m_session.ui(), [&] {
            for (const masterdata::GoodsClass &c : masterdata::goodsClasses(m_session.db()))
                if (c.pid != 0)
                    box->addChoice(c.name, c.code);
        });
        return box;
    }
    const Lookup &lookup = *lookupOf(m_kind, column);
    auto *box = new LookupBox(lookup.editable, parent);
    if (column == QLatin1String("ck_sn"))
        box->addChoice(mdtexts::allWarehouses, QStringLiteral("-1"));
    else if (!lookup.pair && !requiresRow(column))
        box->addChoice(QString(), QString());
    const masterdata::MasterKind &list
        = *masterdata::findMasterKind(QString::fromLatin1(lookup.list));
    readSafely(m_session.ui(), [&] {
        for (const QSqlRecord &row : masterdata::searchMasterRows(m_session.db(), list, QString()))
            box->addChoice(row.value(QString::fromLatin1(lookup.textColumn)).toString(),
                row.value(QString::fromLatin1(lookup.valueColumn)).toString());
    });
    return box;
}

void FieldSet::lock(const QString &column)
{
    m_locked.insert(column);
    if (QWidget *widget = m_widgets.value(column)) {
        if (auto *edit = qobject_cast<QLineEdit *>(widget))
            edit->setReadOnly(true);
        else
            widget->setEnabled(false);
    }
}

void FieldSet::load(const QSqlRecord &row)
{
    for (const QString &column : std::as_const(m_order)) {
        const QVariant value = row.value(column);
        QWidget *widget = m_widgets.value(column);
        if (auto *box = qobject_cast<QCheckBox *>(widget))
            box->setChecked(value.toInt() != 0);
        else if (auto *lookup = qobject_cast<LookupBox *>(widget))
            lookup->setValue(choiceOf(column) ? QString::number(value.toInt()) : value.toString());
        else if (auto *edit = qobject_cast<QLineEdit *>(widget))
            edit->setText(isNumber(typeOf(m_kind, column)) ? numberText(value) : value.toString());
    }
}

QString FieldSet::text(const QString &column) const
{
    QWidget *widget = m_widgets.value(column);
    if (auto *box = qobject_cast<QCheckBox *>(widget))
        return box->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    if (auto *lookup = qobject_cast<LookupBox *>(widget))
        return lookup->value();
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        return edit->text();
    return QString();
}

void FieldSet::setText(const QString &column, const QString &text)
{
    if (auto *edit = qobject_cast<QLineEdit *>(m_widgets.value(column)))
        edit->setText(text);
}

masterdata::Values FieldSet::values() const
{
    masterdata::Values values;
    for (const QString &column : m_order) {
        QWidget *widget = m_widgets.value(column);
        if (m_locked.contains(column) || !widget->isEnabled())
            continue;
        values.insert(column, text(column));
        auto *lookup = qobject_cast<LookupBox *>(widget);
        const Lookup *pairLookup = lookupOf(m_kind, column);
        if (lookup && pairLookup && pairLookup->pair)
            values.insert(QString::fromLatin1(pairLookup->pair), lookup->currentText());
        const Choice *choice = choiceOf(column);
        if (lookup && choice && choice->pair)
            values.insert(QString::fromLatin1(choice->pair), lookup->currentText());
    }
    return values;
}

} // namespace medistock::ui
