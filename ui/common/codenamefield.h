#pragma once

#include <QLineEdit>
#include <QStringList>

#include <functional>

namespace medistock::core {
class Interaction;
}

namespace medistock::ui {

// A field that holds a code and shows its name (a supplier, a customer, a goods). What is typed
// (a code, a name fragment, a mnemonic) is looked up when Enter is pressed or the field is left:
// one match is taken, several open a picker, none is told and the text stays. F4 opens the
// picker on everything. An emptied field holds no code.
class CodeNameField : public QLineEdit
{
    Q_OBJECT
public:
    struct Choice
    {
        QString code;
        QString name;
        QStringList columns; // what the picker shows, in the order of its captions
    };
    using Search = std::function<QList<Choice>(const QString &text)>;

    // `what` names the kind of row in the picker's title ("供货商").
    CodeNameField(const QString &what, const QStringList &captions, Search search,
        core::Interaction &interaction, QWidget *parent = nullptr);

    QString code() const { return m_code; }
    void setChoice(const QString &code, const QString &name);
    // Looks the typed text up unless it is what the field already holds; false when nothing
    // (or nothing chosen) matched, in which case the field holds no code.
    bool resolve();

public slots:
    // The picker on the typed text, or on everything when the text is the current choice's name.
    void openPicker();

signals:
    // A choice was taken (also an emptied field: `code` empty).
    void chosen(const QString &code);
    // Enter was pressed and the field holds a choice.
    void entered();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    // The field's text is selected whenever it takes the focus, so that typing replaces it.
    void focusInEvent(QFocusEvent *event) override;

private:
    bool pick(const QString &text);

    QString m_what;
    QStringList m_captions;
    Search m_search;
    core::Interaction &m_interaction;
    QString m_code;
    QString m_name;
    bool m_resolving = false;
};

} // namespace medistock::ui
