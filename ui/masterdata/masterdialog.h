#pragma once

#include "core/outcome.h"
#include "masterdata/masterrows.h"
#include "masterdata/mnemonic.h"
#include "ui/masterdata/fields.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

struct FormPage;

// Adds or changes one row of a master list: its fields on tabs by subject (one page without tabs
// for the small lists), the mnemonic filled from the name as it is typed and still editable, and
// for customers and warehouses the employees or operators bound to them. Saving runs one
// operation; a refusal is told and the dialog stays open.
class MasterRowDialog : public QDialog
{
    Q_OBJECT
public:
    // `key` empty: a new row.
    MasterRowDialog(const shell::Session &session, const masterdata::MasterKind &kind,
        const QString &key, QWidget *parent = nullptr);

    QWidget *field(const QString &column) const { return m_fields.widget(column); }
    QLineEdit *lineEdit(const QString &column) const;
    QCheckBox *checkBox(const QString &column) const;
    LookupBox *lookup(const QString &column) const;
    QTabWidget *pages() const { return m_pages; }
    // The employees of a customer, the operators of a warehouse; nullptr for other lists.
    QListWidget *pickList() const { return m_pickList; }
    // The key of the row once saved.
    QString savedKey() const { return m_savedKey; }

public slots:
    void save();

protected:
    // Writes what the dialog holds; the base adds or changes the row (with its pick list).
    virtual Result<QString> write(const masterdata::Values &values);
    // Adds a tab after the pages of the list's form.
    void addPage(QWidget *page, const QString &title);

    const shell::Session &m_session;
    const masterdata::MasterKind &m_kind;
    const QString m_key;
    FieldSet m_fields;

private:
    QWidget *buildPage(const FormPage &page);
    QWidget *buildLicencePage(const FormPage &page);
    QWidget *buildPickPage();
    QStringList pickedCodes() const;
    void followName(const QString &name);

    masterdata::Mnemonics m_mnemonics;
    bool m_mnemonicFollowsName = true;
    QTabWidget *m_pages = nullptr;
    QWidget *m_single = nullptr;
    QListWidget *m_pickList = nullptr;
    QString m_savedKey;
};

} // namespace medistock::ui
