#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace medistock::ui {

// A date as a clerk types it, written the way the system stores it: "20250314", "2025-3-14",
// "2025/3/14" and "2025.3.14" become "2025-03-14"; "202601" and "2026-1" become "2026-01" (an
// expiry given by month). Anything else comes back trimmed but unchanged, for the operation to
// refuse with its own words.
QString normalizedDate(const QString &typed);

// A date field: a line edit that tidies what is typed (normalizedDate) when it is left, with a
// calendar button beside it. Enter moves on like any field.
class DateField : public QWidget
{
    Q_OBJECT
public:
    explicit DateField(QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    void setReadOnly(bool readOnly);
    QLineEdit *lineEdit() const { return m_edit; }

public slots:
    void showCalendar();

signals:
    void edited();

private:
    QLineEdit *m_edit;
    QToolButton *m_button;
};

} // namespace medistock::ui
