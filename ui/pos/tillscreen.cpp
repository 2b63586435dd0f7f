#include "ui/pos/tillscreen.h"

#include "core/interaction.h"
#include "documents/goodslookup.h"
#include "pos/handover.h"
#include "pos/held.h"
#include "pos/returns.h"
#include "pos/till.h"
#include "pos/tillkeys.h"
#include "shell/session.h"
#include "ui/common/picker.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"
#include "ui/pos/texts.h"
#include "ui/pos/tilldialogs.h"

#include <QComboBox>
#include <QDateTime>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// The key of a Windows virtual-key code as the function-key table stores it; 0 when unknown.
int qtKey(int virtualKey)
{
    if (virtualKey >= 112 && virtualKey <= 123)
        return Qt::Key_F1 + (virtualKey - 112);
    if ((virtualKey >= 48 && virtualKey <= 57) || (virtualKey >= 65 && virtualKey <= 90))
        return virtualKey;
    switch (virtualKey) {
    case 13:
        return Qt::Key_Return;
    case 33:
        return Qt::Key_PageUp;
    case 34:
        return Qt::Key_PageDown;
    case 45:
        return Qt::Key_Insert;
    case 46:
        return Qt::Key_Delete;
    case 106:
        return Qt::Key_Asterisk;
    case 107:
        return Qt::Key_Plus;
    case 109:
        return Qt::Key_Minus;
    case 187:
        return Qt::Key_Equal;
    default:
        return 0;
    }
}

QString number(double value, int places)
{
    return QString::number(value, 'f', places);
}

} // namespace

TillScreen::TillScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_warehouse(new QComboBox(this))
    , m_employee(new QComboBox(this))
    , m_goods(new QLineEdit(this))
    , m_grid(new QTableWidget(0, int(postexts::lineCaptions.size()), this))
    , m_memberLabel(new QLabel(postexts::memberNone, this))
    , m_totals(new QLabel(this))
    , m_status(new QLabel(this))
{
    setWindowTitle(postexts::tillTitle);
    fillMasterBox(m_warehouse, workspace.session, "warehouse");
    fillMasterBox(m_employee, workspace.session, "employee", true);
    m_goods->setPlaceholderText(postexts::goodsHint);
    m_goods->installEventFilter(this);
    m_warehouse->installEventFilter(this);
    m_employee->installEventFilter(this);
    QFont big = m_goods->font();
    big.setPointSize(big.pointSize() * 3 / 2);
    m_goods->setFont(big);
    m_totals->setFont(big);
    m_grid->setHorizontalHeaderLabels(postexts::lineCaptions);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setFocusPolicy(Qt::NoFocus);
    m_grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    connect(m_goods, &QLineEdit::returnPressed, this, &TillScreen::enterGoods);

    auto *header = new QHBoxLayout;
    header->addWidget(new QLabel(postexts::warehouse, this));
    header->addWidget(m_warehouse);
    header->addWidget(new QLabel(postexts::employee, this));
    header->addWidget(m_employee);
    header->addWidget(m_memberLabel, 1);
    auto *entry = new QHBoxLayout;
    entry->addWidget(new QLabel(postexts::goods, this));
    entry->addWidget(m_goods, 1);
    entry->addWidget(m_totals);

    auto *keys = new QGridLayout;
    const QHash<QString, void (TillScreen::*)()> actions { { QStringLiteral("付款结账"),
                                                               &TillScreen::pay },
        { QStringLiteral("修改折扣"), &TillScreen::changeDiscount },
        { QStringLiteral("修改数量"), &TillScreen::changeQuantity },
        { QStringLiteral("删除当前"), &TillScreen::deleteCurrent },
        { QStringLiteral("删除全部"), &TillScreen::deleteAll },
        { QStringLiteral("选择会员"), &TillScreen::chooseMember },
        { QStringLiteral("挂单"), &TillScreen::hold },
        { QStringLiteral("解挂"), &TillScreen::recall },
        { QStringLiteral("设为赠品"), &TillScreen::toggleGift } };
    QList<QPushButton *> buttons;
    QList<pos::TillKey> table;
    readSafely(workspace.session.ui(), [&] { table = pos::tillKeys(workspace.session.db()); });
    for (const pos::TillKey &key : table) {
        QPushButton *button
            = addKey(key.function, qtKey(key.virtualKey), actions.value(key.function));
        if (key.function == QStringLiteral("打开钱箱"))
            button->setToolTip(postexts::drawerDisabled);
        else if (!actions.contains(key.function))
            button->setToolTip(postexts::notYet.arg(key.function));
        buttons.append(button);
    }
    buttons.append(addKey(postexts::returnReceipt, Qt::Key_F5, &TillScreen::returnReceipt));
    buttons.append(addKey(postexts::handover, Qt::Key_F3, &TillScreen::handOver));
    for (const auto &[label, key] : { std::pair { postexts::print, QStringLiteral("posxp") },
             std::pair { postexts::print58, QStringLiteral("posxp58") } }) {
        auto *print = new QPushButton(label, this);
        connect(print, &QPushButton::clicked, this, [this, key] { printReceipt(key); });
        print->setEnabled(bool(m_workspace.print));
        print->setToolTip(m_workspace.print ? postexts::printHint : texts::printingNotBuilt());
        buttons.append(print);
    }
    auto *history = new QPushButton(postexts::handovers, this);
    connect(history, &QPushButton::clicked, this, &TillScreen::showHandovers);
    buttons.append(history);
    for (int i = 0; i < buttons.size(); ++i) {
        buttons[i]->setFocusPolicy(Qt::NoFocus);
        keys->addWidget(buttons[i], i / 7, i % 7);
    }

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addLayout(entry);
    layout->addWidget(m_grid, 1);
    layout->addLayout(keys);
    layout->addWidget(m_status);
    refresh();
    m_goods->setFocus();
}

QPushButton *TillScreen::addKey(const QString &function, int key, void (TillScreen::*slot)())
{
    const QString keyName = key ? QKeySequence(key).toString(QKeySequence::NativeText) : QString();
    auto *button = new QPushButton(
        keyName.isEmpty() ? function : QStringLiteral("%1(%2)").arg(function, keyName), this);
    if (!slot) {
        button->setEnabled(false);
        return button;
    }
    connect(button, &QPushButton::clicked, this, slot);
    if (key)
        m_keys.insert(key, [this, slot] { (this->*slot)(); });
    return button;
}

bool TillScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    // In the warehouse and employee boxes only the function keys are the till's.
    if (watched != m_goods) {
        const auto action = m_keys.find(key);
        if (key < Qt::Key_F1 || key > Qt::Key_F35 || action == m_keys.end())
            return QWidget::eventFilter(watched, event);
        action.value()();
        return true;
    }
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        const int row = currentLine() + (key == Qt::Key_Up ? -1 : 1);
        if (row >= 0 && row < m_grid->rowCount())
            m_grid->selectRow(row);
        return true;
    }
    // Delete edits the typed text while there is any; a letter or digit key is always typed.
    const bool typing
        = !m_goods->text().isEmpty() && (key == Qt::Key_Delete || key == Qt::Key_Backspace);
    if (typing
        || (key < Qt::Key_Escape && key != Qt::Key_Equal && key != Qt::Key_Plus
            && key != Qt::Key_Asterisk && key != Qt::Key_Minus))
        return false;
    const auto action = m_keys.find(key);
    if (action == m_keys.end())
        return false;
    action.value()();
    return true;
}

members::RetailDocument TillScreen::document() const
{
    members::RetailDocument sale;
    sale.warehouse = m_warehouse->currentData().toString();
    sale.employee = m_employee->currentData().toString();
    sale.member = m_member ? m_member->code : QString();
    sale.lines = m_lines;
    return sale;
}

void TillScreen::enterGoods()
{
    const QString text = m_goods->text().trimmed();
    if (text.isEmpty())
        return;
    shell::Session &session = m_workspace.session;
    QList<documents::GoodsChoice> found;
    if (!readSafely(session.ui(), [&] {
            found = documents::findGoods(session, text, m_warehouse->currentData().toString());
        }))
        return;
    std::optional<documents::GoodsChoice> choice;
    if (found.size() == 1)
        choice = found.first();
    else if (found.size() > 1)
        choice = pickGoods(m_workspace, text, m_warehouse->currentData().toString(),
            QStringLiteral("xsgl"), 0, this);
    else {
        session.ui().inform(postexts::noGoods.arg(text));
        m_goods->selectAll();
        return;
    }
    if (!choice) // the picker was closed: the text stays for another try
        return;
    m_shown.insert(choice->code, { choice->name, choice->packing });
    addLine(choice->code, choice->unit, choice->factor, 1);
    m_goods->clear();
}

// A goods scanned again in the same unit adds to its line, unless that line is a gift.
void TillScreen::addLine(const QString &code, const QString &unit, double factor, double quantity)
{
    for (int row = 0; row < m_lines.size(); ++row) {
        members::RetailLine &line = m_lines[row];
        if (line.goods == code && line.unit == unit && line.giftMarker.isEmpty()) {
            line.quantity += quantity;
            refresh();
            m_grid->selectRow(row);
            return;
        }
    }
    members::RetailLine line;
    line.goods = code;
    line.unit = unit;
    line.unitFactor = factor;
    line.quantity = quantity;
    const pos::TillPrice price
        = pos::tillPrice(m_workspace.session, code, factor, m_member ? m_member->code : QString());
    line.price = price.price;
    line.discountRate = price.discountRate;
    m_lines.append(line);
    refresh();
    m_grid->selectRow(int(m_lines.size()) - 1);
}

int TillScreen::currentLine() const
{
    const int row = m_grid->currentRow();
    return row >= 0 && row < m_lines.size() ? row : -1;
}

void TillScreen::changeQuantity()
{
    const int row = currentLine();
    shell::Session &session = m_workspace.session;
    if (row < 0)
        return session.ui().inform(postexts::noLine);
    bool ok = false;
    const double quantity = QInputDialog::getDouble(this, postexts::tillTitle, postexts::quantity,
        m_lines[row].quantity, -1e9, 1e9, session.params().quantityDecimals(), &ok);
    if (!ok)
        return;
    if (quantity <= 0)
        return session.ui().inform(postexts::notPositive.arg(postexts::quantity));
    m_lines[row].quantity = quantity;
    refresh();
}

void TillScreen::changeDiscount()
{
    const int row = currentLine();
    shell::Session &session = m_workspace.session;
    if (row < 0)
        return session.ui().inform(postexts::noLine);
    bool ok = false;
    const double rate = QInputDialog::getDouble(
        this, postexts::tillTitle, postexts::rate, m_lines[row].discountRate, -1e9, 1e9, 4, &ok);
    if (!ok)
        return;
    if (rate <= 0 || rate > 1)
        return session.ui().inform(postexts::badRate);
    m_lines[row].discountRate = rate;
    refresh();
}

void TillScreen::toggleGift()
{
    const int row = currentLine();
    if (row < 0)
        return m_workspace.session.ui().inform(postexts::noLine);
    QString &marker = m_lines[row].giftMarker;
    marker = marker.isEmpty() ? postexts::giftMarker : QString();
    refresh();
}

void TillScreen::deleteCurrent()
{
    const int row = currentLine();
    if (row < 0)
        return m_workspace.session.ui().inform(postexts::noLine);
    m_lines.removeAt(row);
    refresh();
    m_grid->selectRow(std::min(row, int(m_lines.size()) - 1));
}

void TillScreen::deleteAll()
{
    if (m_lines.isEmpty() || !m_workspace.session.ui().ask(postexts::clearAll))
        return;
    clearSale();
}

void TillScreen::chooseMember()
{
    bool ok = false;
    const QString text = QInputDialog::getText(this, postexts::tillTitle, postexts::memberPrompt,
        QLineEdit::Normal, m_member ? m_member->card : QString(), &ok);
    if (ok)
        readCard(text.trimmed());
}

bool TillScreen::readCard(const QString &text)
{
    shell::Session &session = m_workspace.session;
    if (text.isEmpty()) {
        setMember(std::nullopt);
        return true;
    }
    std::optional<members::Member> found;
    if (!readSafely(session.ui(), [&] { found = members::findMemberByCard(session.db(), text); }))
        return false;
    if (!found) {
        session.ui().inform(postexts::noMember.arg(text));
        return false;
    }
    setMember(found);
    return true;
}

void TillScreen::setMember(const std::optional<members::Member> &member)
{
    m_member = member;
    reprice();
    refresh();
}

// A member's prices and level discount replace those of a walk-in customer, and back.
void TillScreen::reprice()
{
    for (members::RetailLine &line : m_lines) {
        const pos::TillPrice price = pos::tillPrice(m_workspace.session, line.goods,
            line.unitFactor, m_member ? m_member->code : QString());
        line.price = price.price;
        line.discountRate = price.discountRate;
    }
}

double TillScreen::linesAmount() const
{
    return members::retailReceivable(m_workspace.session, document());
}

void TillScreen::refresh()
{
    const shell::Parameters &params = m_workspace.session.params();
    const int row = m_grid->currentRow();
    m_grid->setRowCount(int(m_lines.size()));
    double quantity = 0;
    for (int r = 0; r < m_lines.size(); ++r) {
        const members::RetailLine &l = m_lines[r];
        const Shown shown = m_shown.value(l.goods);
        const double amount = l.giftMarker.isEmpty() ? l.price * l.discountRate * l.quantity : 0;
        const QStringList texts { l.goods, shown.name, shown.packing, l.unit,
            number(l.quantity, params.quantityDecimals()), number(l.price, params.priceDecimals()),
            number(l.discountRate, 2), number(amount, params.amountDecimals()), l.giftMarker,
            l.batch };
        for (int c = 0; c < texts.size(); ++c) {
            auto *item = new QTableWidgetItem(texts[c]);
            if (c >= 4 && c <= 7)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_grid->setItem(r, c, item);
        }
        quantity += l.quantity;
    }
    if (row >= 0 && row < m_lines.size())
        m_grid->selectRow(row);
    m_totals->setText(postexts::totals.arg(m_lines.size())
                          .arg(number(quantity, params.quantityDecimals()),
                              number(linesAmount(), params.amountDecimals())));
    if (!m_member) {
        m_memberLabel->setText(postexts::memberNone);
        return;
    }
    m_memberLabel->setText(postexts::member.arg(m_member->name, m_member->card, m_member->levelName,
        number(m_member->points, 2), number(m_member->balance, params.amountDecimals())));
}

void TillScreen::clearSale()
{
    m_lines.clear();
    m_heldNumber.clear();
    m_member.reset();
    refresh();
    m_goods->clear();
    m_goods->setFocus();
}

} // namespace medistock::ui
