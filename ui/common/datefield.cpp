#include "ui/common/datefield.h"

#include "ui/common/texts.h"

#include <QCalendarWidget>
#include <QDate>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRegularExpression>
#include <QToolButton>

namespace medistock::ui {

namespace {

const QString isoFormat = QStringLiteral("yyyy-MM-dd");

QString dayText(int year, int month, int day)
{
    const QDate date(year, month, day);
    return date.isValid() ? date.toString(isoFormat) : QString();
}

QString monthText(int year, int month)
{
    return month >= 1 && month <= 12 ? QStringLiteral("%1-%2")
                                           .arg(year, 4, 10, QLatin1Char('0'))
                                           .arg(month, 2, 10, QLatin1Char('0'))
                                     : QString();
}

} // namespace

QString normalizedDate(const QString &typed)
{
    const QString text = typed.trimmed();
    static const QRegularExpression compactDay(QStringLiteral(R"(^(\d{4})(\d{2})(\d{2})$)"));
    static const QRegularExpression day(QStringLiteral(R"(^(\d{4})[-/.](\d{1,2})[-/.](\d{1,2})$)"));
    static const QRegularExpression compactMonth(QStringLiteral(R"(^(\d{4})(\d{2})$)"));
    static const QRegularExpression month(QStringLiteral(R"(^(\d{4})[-/.](\d{1,2})$)"));
    QString normal;
    QRegularExpressionMatch m;
    if ((m = compactDay.match(text)).hasMatch() || (m = day.match(text)).hasMatch())
        normal = dayText(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
    else if ((m = compactMonth.match(text)).hasMatch() || (m = month.match(text)).hasMatch())
        normal = monthText(m.captured(1).toInt(), m.captured(2).toInt());
    return normal.isEmpty() ? text : normal;
}

DateField::DateField(QWidget *parent)
    : QWidget(parent)
    , m_edit(new QLineEdit(this))
    , m_button(new QToolButton(this))
{
    m_edit->setPlaceholderText(QStringLiteral("yyyy-MM-dd"));
    m_edit->setMaxLength(10);
    m_button->setText(QStringLiteral("▾"));
    m_button->setToolTip(texts::calendar());
    m_button->setFocusPolicy(Qt::NoFocus);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_edit, 1);
    row->addWidget(m_button);
    setFocusProxy(m_edit);
    connect(m_button, &QToolButton::clicked, this, &DateField::showCalendar);
    connect(m_edit, &QLineEdit::editingFinished, this, [this] {
        const QString normal = normalizedDate(m_edit->text());
        if (normal != m_edit->text())
            m_edit->setText(normal);
    });
    connect(m_edit, &QLineEdit::textEdited, this, &DateField::edited);
}

QString DateField::text() const
{
    return normalizedDate(m_edit->text());
}

void DateField::setText(const QString &text)
{
    m_edit->setText(text);
}

void DateField::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
    m_button->setEnabled(!readOnly);
}

void DateField::showCalendar()
{
    auto *calendar = new QCalendarWidget(this);
    calendar->setWindowFlags(Qt::Popup);
    calendar->setAttribute(Qt::WA_DeleteOnClose);
    const QDate current = QDate::fromString(text(), isoFormat);
    if (current.isValid())
        calendar->setSelectedDate(current);
    const auto choose = [this, calendar](QDate date) {
        m_edit->setText(date.toString(isoFormat));
        emit edited();
        calendar->close();
        m_edit->setFocus();
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
    calendar->move(mapToGlobal(QPoint(0, height())));
    calendar->show();
    calendar->setFocus();
}

} // namespace medistock::ui
