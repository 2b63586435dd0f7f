#include "app/screenshots/reports.h"

#include "core/connection.h"
#include "members/retail.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "shell/session.h"
#include "ui/common/workspace.h"
#include "ui/reports/designer.h"
#include "ui/reports/designscene.h"
#include "ui/reports/previewdialog.h"
#include "ui/reports/printing.h"
#include "ui/shell/mainwindow.h"

#include <QGraphicsView>

using namespace medistock;

namespace {

QString codeOf(
    core::Connection &db, const char *table, const char *code, const char *name, const char *value)
{
    return db.firstText(
        QStringLiteral("select %1 from %2 where %3=? order by id limit 1")
            .arg(QString::fromLatin1(code), QString::fromLatin1(table), QString::fromLatin1(name)),
        { QString::fromUtf8(value) });
}

documents::LineDraft line(const QString &goods, const char *quantity, const char *price,
    const char *batch, const char *expiry)
{
    documents::LineDraft l;
    l.goods = goods;
    l.quantity = QString::fromLatin1(quantity);
    l.price = QString::fromLatin1(price);
    l.batch = QString::fromLatin1(batch);
    l.expiry = QString::fromLatin1(expiry);
    return l;
}

// A receipt from the supplier and a sale to the clinic, saved and checked through their
// operations, and a member's till sale posted as the POS front end posts it.
struct Documents
{
    QString receipt;
    QString sale;
    QString till;
};

Documents seedDocuments(shell::Session &admin)
{
    core::Connection &db = admin.db();
    const QString amoxicillin = codeOf(db, "jxc_goods", "g_sn", "g_name", "阿莫西林胶囊");
    const QString cold = codeOf(db, "jxc_goods", "g_sn", "g_name", "感冒灵颗粒");
    const QString vitamin = codeOf(db, "jxc_goods", "g_sn", "g_name", "维生素C片");
    const QString today = admin.today();

    purchasing::PurchaseDraft bought;
    bought.entry.date = today;
    bought.entry.party = codeOf(db, "jxc_ghsxx", "ghs_sn", "ghs_name", "浙江英特药业有限责任公司");
    bought.entry.warehouse = QStringLiteral("100001");
    bought.entry.lines = { line(amoxicillin, "200", "6.8", "B24031", "2026-09-30"),
        line(cold, "120", "8.2", "K2402", "2026-03-31"),
        line(vitamin, "300", "2.1", "V2311", "2025-11-30") };
    bought.header.paid = 2000;
    Documents made;
    made.receipt = purchasing::savePurchaseReceipt(admin, bought).value();
    purchasing::checkPurchaseReceipt(admin, made.receipt, { 2000.0, {}, {}, {} });

    sales::SaleDraft sold;
    sold.entry.date = today;
    sold.entry.party = codeOf(db, "jxc_khxx", "kh_sn", "kh_name", "仁心诊所");
    sold.entry.warehouse = QStringLiteral("100001");
    sold.entry.note = QStringLiteral("送货上门");
    sold.entry.lines = { line(amoxicillin, "20", "9.5", "B24031", "2026-09-30"),
        line(cold, "12", "11.5", "K2402", "2026-03-31"),
        line(vitamin, "30", "3", "V2311", "2025-11-30") };
    sold.header.settlementMode = QStringLiteral("2");
    sold.header.paid = 200;
    made.sale = sales::saveSale(admin, sold).value();
    sales::checkSale(admin, made.sale);

    members::RetailDocument till;
    till.member = codeOf(db, "jxc_hyxx", "hy_sn", "hy_name", "张敏");
    till.warehouse = QStringLiteral("100001");
    till.lines = { { amoxicillin, 2, 12, 1, {}, 1, {}, QStringLiteral("B24031"),
                       QStringLiteral("2026-09-30"), {} },
        { vitamin, 1, 4.5, 1, {}, 1, {}, QStringLiteral("V2311"), QStringLiteral("2025-11-30"),
            {} },
        { cold, 0.5, 16, 1, {}, 1, {}, QStringLiteral("K2402"), QStringLiteral("2026-03-31"),
            {} } };
    till.payment.counter.cash = 50;
    till.payment.counter.change = 13.5;
    made.till = members::postRetailDocument(admin, till).value();
    return made;
}

} // namespace

void shootReports(const std::function<void(QWidget *, const QString &)> &shoot,
    ui::MainWindow &window, ui::Workspace &workspace)
{
    const Documents documents = seedDocuments(workspace.session);

    window.openOperation(QStringLiteral("qtcz"), 18);
    shoot(&window, QStringLiteral("135-report-design"));

    ui::ReportDesigner *designer
        = ui::ReportDesigner::open(workspace, QStringLiteral("spxs"), &window);
    designer->scene()->selectNamed(QStringLiteral("Summary1_1"));
    designer->view()->centerOn(designer->scene()->itemNamed(QStringLiteral("Cell2")));
    shoot(designer, QStringLiteral("136-designer"));
    designer->close();

    const std::pair<const char *, QString> previews[] = { { "spxs", documents.sale },
        { "cgjh", documents.receipt }, { "posxp58", documents.till }, { "posxp", documents.till } };
    int n = 137;
    for (const auto &[key, number] : previews) {
        ui::PreviewDialog *preview
            = ui::printWithPreview(workspace, QString::fromLatin1(key), number, &window);
        if (!preview)
            continue;
        if (QString::fromLatin1(key).startsWith(QLatin1String("posxp")))
            preview->setZoom(1.5);
        shoot(preview, QStringLiteral("%1-preview-%2").arg(n++).arg(QString::fromLatin1(key)));
        preview->close();
    }
}
