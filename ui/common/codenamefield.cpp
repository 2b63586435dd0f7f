#include "ui/common/codenamefield.h"

#include "core/interaction.h"
#include "ui/common/picker.h"
#include "ui/common/texts.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

namespace medistock::ui {

CodeNameField::CodeNameField(const QString &what, const QStringList &captions, Search search,
    core::Interaction &interaction, QWidget *parent)
    : QLineEdit(parent)
    , m_what(what)
    , m_captions(captions)
    , m_search(std::move(search))
    , m_interaction(interaction)
{
    setPlaceholderText(QStringLiteral("F4"));
    connect(this, &QLineEdit::editingFinished, this, &CodeNameField::resolve);
}

void CodeNameField::setChoice(const QString &code, const QString &name)
{
    m_code = code;
    m_name = name;
    setText(name);
}

bool CodeNameField::resolve()
{
    // The picker takes the focus; leaving the field for it must not look the text up again.
    if (m_resolving)
        return false;
    const QScopedValueRollback<bool> busy(m_resolving, true);
    const QString typed = text().trimmed();
    if (typed == m_name && (!m_code.isEmpty() || typed.isEmpty()))
        return true;
    if (typed.isEmpty()) {
        setChoice({}, {});
        emit chosen({});
        return true;
    }
    const QList<Choice> found = m_search(typed);
    if (found.size() == 1) {
        setChoice(found.first().code, found.first().name);
        emit chosen(m_code);
        return true;
    }
    m_code.clear();
    m_name.clear();
    if (found.isEmpty()) {
        m_interaction.inform(texts::nothingFound(typed));
        return false;
    }
    return pick(typed);
}

void CodeNameField::openPicker()
{
    if (m_resolving)
        return;
    const QScopedValueRollback<bool> busy(m_resolving, true);
    const QString typed = text().trimmed();
    const bool everything = typed.isEmpty() || typed == m_name;
    pick(everything ? QString() : typed);
}

bool CodeNameField::pick(const QString &text)
{
    QList<Choice> shown;
    PickerDialog picker(
        texts::choiceTitle(m_what), m_captions,
        [&](const QString &filter) {
            shown = m_search(filter);
            QList<PickRow> rows;
            for (const Choice &choice : std::as_const(shown))
                rows.append({ choice.columns });
            return rows;
        },
        this);
    picker.setFilterText(text);
    if (picker.exec() != QDialog::Accepted || picker.chosenRow() < 0)
        return false;
    const Choice taken = shown.at(picker.chosenRow());
    setChoice(taken.code, taken.name);
    emit chosen(m_code);
    return true;
}

void CodeNameField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason)
        selectAll();
}

void CodeNameField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F4 && !isReadOnly()) {
        openPicker();
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !isReadOnly()) {
        if (resolve() && !m_code.isEmpty())
            emit entered();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace medistock::ui
