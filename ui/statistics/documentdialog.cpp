#include "ui/statistics/documentdialog.h"

#include "core/rounding.h"
#include "statistics/reports.h"
#include "ui/common/grid.h"
#include "ui/common/workspace.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui::stats {

namespace {

QString statusText(int status)
{
    return status == 1 ? QStringLiteral("已审核") : QStringLiteral("未审核");
}

// The header in four pairs of columns, so that the lines keep the room.
QWidget *headerOf(const statistics::DocumentRow &h, const shell::Parameters &p, QWidget *parent)
{
    auto *box = new QWidget(parent);
    auto *form = new QGridLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(12);
    int at = 0;
    const auto add = [&](const char *label, const QString &value) {
        form->addWidget(new QLabel(QString::fromUtf8(label), box), at / 4, 2 * (at % 4));
        form->addWidget(new QLabel(value, box), at / 4, 2 * (at % 4) + 1);
        ++at;
    };
    add("单据号：", h.number);
    add("日期：", h.date);
    add("往来单位：", h.partyName);
    add("仓库：", h.warehouseName);
    add("经办人：", h.employeeName);
    add("操作员：", h.operatorName);
    add("金额：", QString::number(h.amount, 'f', p.amountDecimals()));
    add("状态：", statusText(h.status));
    return box;
}

QList<QStringList> lineTexts(
    const QList<statistics::DocumentLine> &lines, const shell::Parameters &p)
{
    QList<QStringList> rows;
    for (const statistics::DocumentLine &l : lines)
        rows.append(
            { l.goods, l.name, l.unit, QString::number(l.quantity, 'f', p.quantityDecimals()),
                QString::number(l.price, 'f', p.priceDecimals()),
                QString::number(l.total, 'f', p.amountDecimals()), l.batch, l.expiry });
    return rows;
}

} // namespace

DocumentDialog::DocumentDialog(QWidget *parent)
    : QDialog(parent)
    , m_lines(
          makeGrid({ QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("单位"),
                       QStringLiteral("数量"), QStringLiteral("单价"), QStringLiteral("金额"),
                       QStringLiteral("批号"), QStringLiteral("有效期至") },
              this))
{
    m_lines->horizontalHeader()->setStretchLastSection(true);
    for (const auto &[column, width] :
        { std::pair { 0, 90 }, { 1, 180 }, { 2, 50 }, { 3, 80 }, { 4, 80 }, { 5, 90 }, { 6, 90 } })
        m_lines->setColumnWidth(column, width);
    resize(860, 440);
}

DocumentDialog *DocumentDialog::open(Workspace &workspace, const QString &number, QWidget *parent)
{
    const Result<statistics::DocumentView> view
        = statistics::documentView(workspace.session, number);
    if (!view)
        return nullptr;
    const shell::Parameters &p = workspace.session.params();
    auto *dialog = new DocumentDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(view->header.kindTitle + QStringLiteral(" ") + number);
    fillGrid(dialog->m_lines, lineTexts(view->lines, p));
    for (int row = 0; row < dialog->m_lines->rowCount(); ++row)
        for (const int column : { 3, 4, 5 })
            dialog->m_lines->item(row, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(headerOf(view->header, p, dialog));
    layout->addWidget(dialog->m_lines, 1);
    layout->addWidget(buttons);
    dialog->show();
    dialog->m_lines->setFocus();
    return dialog;
}

} // namespace medistock::ui::stats
