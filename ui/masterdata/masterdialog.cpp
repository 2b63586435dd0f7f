#include "ui/masterdata/masterdialog.h"

#include "core/interaction.h"
#include "masterdata/editing.h"
#include "masterdata/kinds.h"
#include "masterdata/parties.h"
#include "shell/operators.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/masterdata/forms.h"
#include "ui/masterdata/texts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSqlRecord>
#include <QTabWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

bool isKind(const masterdata::MasterKind &kind, const char *key)
{
    return qstrcmp(kind.key, key) == 0;
}

// The column of a row that names what the pick list ticks, as a comma-terminated list.
QString pickColumn(const masterdata::MasterKind &kind)
{
    return isKind(kind, "customer") ? QStringLiteral("kh_usn") : QStringLiteral("ck_asn");
}

} // namespace

MasterRowDialog::MasterRowDialog(const shell::Session &session, const masterdata::MasterKind &kind,
    const QString &key, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_kind(kind)
    , m_key(key)
    , m_fields(session, kind)
{
    const QList<FormPage> pages = formOf(kind).pages;
    auto *layout = new QVBoxLayout(this);
    if (pages.size() == 1 && !isKind(kind, "customer") && !isKind(kind, "warehouse")) {
        m_single = buildPage(pages.first());
        layout->addWidget(m_single);
    } else {
        m_pages = new QTabWidget(this);
        for (const FormPage &page : pages)
            m_pages->addTab(
                page.licences.isEmpty() ? buildPage(page) : buildLicencePage(page), page.title);
        if (isKind(kind, "customer") || isKind(kind, "warehouse"))
            m_pages->addTab(buildPickPage(),
                isKind(kind, "customer") ? mdtexts::employeesPage : mdtexts::operatorsPage);
        layout->addWidget(m_pages, 1);
    }

    for (const QString &column : formOf(kind).readOnly)
        m_fields.lock(column);
    QSqlRecord row;
    if (!key.isEmpty())
        readSafely(session.ui(), [&] { row = masterdata::masterRow(session.db(), kind, key); });
    QString title = mdtexts::addTitle(QString::fromUtf8(kind.label));
    if (!key.isEmpty()) {
        m_fields.load(row);
        title = mdtexts::editTitle(
            QString::fromUtf8(kind.label), row.value(str(kind.nameColumn)).toString());
        if (kind.codeColumn)
            m_fields.lock(str(kind.codeColumn));
    } else if (kind.codeColumn) {
        lineEdit(str(kind.codeColumn))->setPlaceholderText(mdtexts::autoCode);
    }
    setWindowTitle(title);

    if (kind.mnemonicColumn) {
        const QString mnemonic = m_fields.text(str(kind.mnemonicColumn));
        m_mnemonicFollowsName
            = key.isEmpty() || mnemonic == m_mnemonics.of(m_fields.text(str(kind.nameColumn)));
        connect(lineEdit(str(kind.nameColumn)), &QLineEdit::textChanged, this,
            &MasterRowDialog::followName);
        connect(lineEdit(str(kind.mnemonicColumn)), &QLineEdit::textEdited, this,
            [this] { m_mnemonicFollowsName = false; });
    }

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(mdtexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &MasterRowDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(520);
    if (m_pages)
        resize(720, sizeHint().height());
    enableEnterNavigation(this);
}

QWidget *MasterRowDialog::buildPage(const FormPage &page)
{
    auto *widget = new QWidget(this);
    QStringList plain;
    QStringList flags;
    for (const QString &column : page.columns)
        (m_fields.isFlag(column) ? flags : plain).append(column);
    // Two columns of fields side by side once a page holds more than a handful.
    const int perColumn = plain.size() > 7 ? int((plain.size() + 1) / 2) : int(plain.size());
    auto *grid = new QGridLayout(widget);
    for (int i = 0; i < plain.size(); ++i) {
        const QString &column = plain.at(i);
        auto *label = new QLabel(captionOf(m_kind, column) + QStringLiteral("："), widget);
        QWidget *field = m_fields.create(column, widget);
        label->setBuddy(field);
        const int gridColumn = i < perColumn ? 0 : 2;
        grid->addWidget(label, i % perColumn, gridColumn, Qt::AlignRight);
        grid->addWidget(field, i % perColumn, gridColumn + 1);
    }
    auto *flagRow = new QGridLayout;
    for (int i = 0; i < flags.size(); ++i)
        flagRow->addWidget(m_fields.create(flags.at(i), widget), i / 4, i % 4);
    grid->addLayout(flagRow, perColumn, 0, 1, 4);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, perColumn < plain.size() ? 1 : 0);
    grid->setRowStretch(perColumn + 1, 1);
    return widget;
}

QWidget *MasterRowDialog::buildLicencePage(const FormPage &page)
{
    auto *widget = new QWidget(this);
    auto *grid = new QGridLayout(widget);
    grid->addWidget(new QLabel(mdtexts::licence, widget), 0, 0);
    grid->addWidget(new QLabel(mdtexts::licenceNumber, widget), 0, 1);
    grid->addWidget(new QLabel(mdtexts::validUntil, widget), 0, 2);
    int row = 1;
    for (const LicenceRow &licence : page.licences) {
        const QString number = str(licence.number);
        grid->addWidget(
            new QLabel(captionOf(m_kind, number) + QStringLiteral("："), widget), row, 0);
        grid->addWidget(m_fields.create(number, widget), row, 1);
        if (licence.validUntil)
            grid->addWidget(m_fields.create(str(licence.validUntil), widget), row, 2);
        ++row;
    }
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
    return widget;
}

QWidget *MasterRowDialog::buildPickPage()
{
    m_pickList = new QListWidget(this);
    QStringList ticked;
    if (!m_key.isEmpty())
        readSafely(m_session.ui(), [&] {
            ticked = masterdata::splitCommaList(masterdata::masterRow(m_session.db(), m_kind, m_key)
                                                    .value(pickColumn(m_kind))
                                                    .toString());
        });
    auto addItem = [&](const QString &code, const QString &name) {
        auto *item = new QListWidgetItem(code + QLatin1Char(' ') + name, m_pickList);
        item->setData(Qt::UserRole, code);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        item->setCheckState(ticked.contains(code) ? Qt::Checked : Qt::Unchecked);
    };
    readSafely(m_session.ui(), [&] {
        if (isKind(m_kind, "customer")) {
            const masterdata::MasterKind &employees
                = *masterdata::findMasterKind(QStringLiteral("employee"));
            for (const QSqlRecord &row :
                masterdata::searchMasterRows(m_session.db(), employees, QString()))
                addItem(row.value(QStringLiteral("u_sn")).toString(),
                    row.value(QStringLiteral("u_name")).toString());
        } else {
            for (const shell::OperatorRow &row : shell::listOperators(m_session.db()))
                addItem(row.code, row.name);
        }
    });
    return m_pickList;
}

QStringList MasterRowDialog::pickedCodes() const
{
    QStringList codes;
    for (int i = 0; i < m_pickList->count(); ++i)
        if (m_pickList->item(i)->checkState() == Qt::Checked)
            codes.append(m_pickList->item(i)->data(Qt::UserRole).toString());
    return codes;
}

void MasterRowDialog::followName(const QString &name)
{
    if (m_mnemonicFollowsName)
        m_fields.setText(str(m_kind.mnemonicColumn), m_mnemonics.of(name));
}

QLineEdit *MasterRowDialog::lineEdit(const QString &column) const
{
    return qobject_cast<QLineEdit *>(m_fields.widget(column));
}

QCheckBox *MasterRowDialog::checkBox(const QString &column) const
{
    return qobject_cast<QCheckBox *>(m_fields.widget(column));
}

LookupBox *MasterRowDialog::lookup(const QString &column) const
{
    return qobject_cast<LookupBox *>(m_fields.widget(column));
}

void MasterRowDialog::addPage(QWidget *page, const QString &title)
{
    if (m_pages)
        m_pages->addTab(page, title);
}

Result<QString> MasterRowDialog::write(const masterdata::Values &values)
{
    if (isKind(m_kind, "customer"))
        return masterdata::saveCustomer(m_session, m_key, values, pickedCodes());
    if (isKind(m_kind, "warehouse"))
        return masterdata::saveWarehouse(m_session, m_key, values, pickedCodes());
    if (m_key.isEmpty())
        return masterdata::addMasterRow(m_session, m_kind, values);
    const Outcome changed = masterdata::updateMasterRow(m_session, m_kind, m_key, values);
    if (!changed)
        return changed;
    // A list without codes is keyed by its name, which may just have changed.
    return m_kind.codeColumn ? m_key : values.value(str(m_kind.nameColumn)).toString();
}

void MasterRowDialog::save()
{
    masterdata::Values values = m_fields.values();
    if (m_key.isEmpty() && m_kind.codeColumn
        && values.value(str(m_kind.codeColumn)).toString().trimmed().isEmpty())
        values.remove(str(m_kind.codeColumn));
    const Result<QString> saved = write(values);
    if (!saved)
        return;
    m_savedKey = saved.value();
    accept();
}

} // namespace medistock::ui
