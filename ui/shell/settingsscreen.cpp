#include "ui/shell/settingsscreen.h"

#include "core/interaction.h"
#include "core/schemacatalogue.h"
#include "shell/settings.h"
#include "ui/common/keys.h"
#include "ui/common/workspace.h"
#include "ui/shell/texts.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// Which tab each labelled option of jxc_xtcs sits on, in the order shown.
struct SettingsPage
{
    const QString &title;
    std::initializer_list<const char *> columns;
};

const SettingsPage settingsPages[] = {
    { shelltexts::basicPage,
        { "cs_spbh", "cs_cs012", "cs_fzdw", "cs_cs003", "cs_tmzdsc", "cs_posrq", "cs_kc",
            "cs_cs009", "cs_cgyh", "cs_shdj" } },
    { shelltexts::purchasePage,
        { "cs_ysdh", "cs_ct", "cs_employ", "cs_cs007", "cs_sprk", "cs_cs011", "cs_cs016" } },
    { shelltexts::salesPage,
        { "cs_xgdj", "cs_xt", "cs_xsyh", "cs_activate", "cs_cs008", "cs_spck", "cs_lsj", "cs_jhzk",
            "cs_cs013", "cs_cs014", "cs_cs017", "cs_barcode", "cs_cs010", "cs_employts",
            "cs_tjcyjf" } },
    { shelltexts::moneyPage, { "cs_xjyh", "cs_barunique", "cs_zerocost", "cs_kp", "cs_wxzf" } },
};

const char *decimalColumns[] = { "cs_cbjs", "cs_xsws", "cs_jews" };

QString labelOf(const QString &column)
{
    const core::TableDef *table = core::findTable(QStringLiteral("jxc_xtcs"));
    for (const core::ColumnDef &def : table->columns)
        if (column == QLatin1String(def.name))
            return QString::fromUtf8(def.label);
    return column;
}

} // namespace

SettingsScreen::SettingsScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_pages(new QTabWidget(this))
    , m_save(new QPushButton(shelltexts::save, this))
    , m_defaults(new QPushButton(shelltexts::restoreDefaults, this))
{
    for (const SettingsPage &page : settingsPages) {
        QStringList columns;
        for (const char *column : page.columns)
            columns.append(QString::fromLatin1(column));
        m_pages->addTab(buildPage(columns), page.title);
    }
    m_pages->addTab(buildNumbersPage(), shelltexts::decimalsPage);

    connect(m_save, &QPushButton::clicked, this, &SettingsScreen::save);
    connect(m_defaults, &QPushButton::clicked, this, &SettingsScreen::restoreDefaults);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_defaults);
    buttons->addWidget(m_save);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addLayout(buttons);
    load();
    enableEnterNavigation(this);
}

QWidget *SettingsScreen::buildPage(const QStringList &columns)
{
    auto *page = new QWidget(m_pages);
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(32);
    grid->setVerticalSpacing(10);
    const int rows = int(columns.size() + 1) / 2;
    for (int i = 0; i < columns.size(); ++i) {
        auto *box = new QCheckBox(labelOf(columns[i]), page);
        box->setObjectName(columns[i]);
        grid->addWidget(box, i % rows, i / rows);
    }
    grid->setRowStretch(rows, 1);
    grid->setColumnStretch(2, 1);
    return page;
}

QWidget *SettingsScreen::buildNumbersPage()
{
    auto *page = new QWidget(m_pages);
    auto *form = new QFormLayout(page);
    form->setContentsMargins(16, 16, 16, 16);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    const QString *captions[] = { &shelltexts::priceDecimals, &shelltexts::quantityDecimals,
        &shelltexts::amountDecimals };
    for (int i = 0; i < 3; ++i) {
        auto *spin = new QSpinBox(page);
        spin->setObjectName(QString::fromLatin1(decimalColumns[i]));
        spin->setRange(0, 8);
        spin->setMinimumWidth(80);
        if (i < 2) {
            form->addRow(*captions[i], spin);
            continue;
        }
        // The total-amount option belongs with the amount places it applies.
        auto *total = new QCheckBox(labelOf(QStringLiteral("cs_zjews")), page);
        total->setObjectName(QStringLiteral("cs_zjews"));
        auto *row = new QHBoxLayout;
        row->addWidget(spin);
        row->addSpacing(16);
        row->addWidget(total);
        row->addStretch(1);
        form->addRow(*captions[i], row);
    }
    auto *currency = new QLineEdit(page);
    currency->setObjectName(QStringLiteral("cs_hbfh"));
    currency->setMaxLength(4);
    currency->setMaximumWidth(80);
    form->addRow(shelltexts::currencySymbol, currency);
    // The days within which a batch counts as near expiry (status bar, expiry query); 0 keeps
    // the usual 180.
    auto *nearExpiry = new QSpinBox(page);
    nearExpiry->setObjectName(QStringLiteral("cs_cs031"));
    nearExpiry->setRange(0, 36500);
    nearExpiry->setSpecialValueText(shelltexts::nearExpiryDefault);
    nearExpiry->setMinimumWidth(80);
    form->addRow(shelltexts::nearExpiryDays, nearExpiry);
    return page;
}

QCheckBox *SettingsScreen::checkBox(const QString &column) const
{
    return findChild<QCheckBox *>(column);
}

QSpinBox *SettingsScreen::spinBox(const QString &column) const
{
    return findChild<QSpinBox *>(column);
}

QLineEdit *SettingsScreen::lineEdit(const QString &column) const
{
    return findChild<QLineEdit *>(column);
}

void SettingsScreen::load()
{
    const shell::Parameters &params = m_workspace.session.params();
    for (QCheckBox *box : findChildren<QCheckBox *>())
        box->setChecked(shell::readFlag(params.value(box->objectName())));
    spinBox(QStringLiteral("cs_cbjs"))->setValue(params.priceDecimals());
    spinBox(QStringLiteral("cs_xsws"))->setValue(params.quantityDecimals());
    spinBox(QStringLiteral("cs_jews"))->setValue(params.amountDecimals());
    lineEdit(QStringLiteral("cs_hbfh"))->setText(params.text("cs_hbfh"));
    spinBox(QStringLiteral("cs_cs031"))->setValue(params.integer("cs_cs031"));
}

void SettingsScreen::save()
{
    QHash<QString, QVariant> changes;
    for (const QCheckBox *box : findChildren<QCheckBox *>())
        changes.insert(box->objectName(), box->isChecked());
    for (const char *column : decimalColumns)
        changes.insert(QString::fromLatin1(column), spinBox(QString::fromLatin1(column))->value());
    changes.insert(QStringLiteral("cs_hbfh"), lineEdit(QStringLiteral("cs_hbfh"))->text());
    changes.insert(QStringLiteral("cs_cs031"), spinBox(QStringLiteral("cs_cs031"))->value());
    if (shell::saveParameters(m_workspace.session, changes))
        m_workspace.session.ui().inform(shelltexts::settingsSaved);
}

void SettingsScreen::restoreDefaults()
{
    if (shell::restoreDefaultParameters(m_workspace.session))
        load();
}

} // namespace medistock::ui
