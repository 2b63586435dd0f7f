#include "ui/reports/previewdialog.h"

#include "reports/render.h"
#include "ui/common/messagebox.h"
#include "ui/reports/pageview.h"
#include "ui/reports/texts.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

constexpr double zoomSteps[] = { 0.5, 0.75, 1.0, 1.25, 1.5, 2.0 };
constexpr int pageWidthIndex = 6;
constexpr int wholePageIndex = 7;

QPushButton *barButton(const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setAutoDefault(false);
    return button;
}

} // namespace

PreviewDialog::PreviewDialog(reports::PreparedReport report, const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_report(std::move(report))
    , m_title(title)
    , m_view(new PageView(this))
    , m_page(new QSpinBox(this))
    , m_pages(new QLabel(this))
    , m_zoom(new QComboBox(this))
{
    setWindowTitle(reporttexts::previewTitle + QStringLiteral(" - ") + title);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(buildBar());
    layout->addWidget(m_view, 1);
    m_view->setReport(&m_report);
    connect(m_view, &PageView::currentPageChanged, this, &PreviewDialog::pageShown);
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Equal), this, [this] { setZoom(zoom() * 1.25); });
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus), this, [this] { setZoom(zoom() / 1.25); });
    resize(1100, 760);
    pageShown(0);
    m_view->setFocus();
}

QWidget *PreviewDialog::buildBar()
{
    auto *bar = new QWidget(this);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    QPushButton *first = barButton(reporttexts::firstPage, bar);
    QPushButton *previous = barButton(reporttexts::previousPage, bar);
    QPushButton *next = barButton(reporttexts::nextPage, bar);
    QPushButton *last = barButton(reporttexts::lastPage, bar);
    QPushButton *print = barButton(reporttexts::print, bar);
    QPushButton *pdf = barButton(reporttexts::savePdf, bar);
    QPushButton *close = barButton(reporttexts::close, bar);
    print->setObjectName(QStringLiteral("print"));
    pdf->setObjectName(QStringLiteral("savePdf"));
    print->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
    m_page->setRange(1, std::max(pageCount(), 1));
    m_page->setPrefix(QStringLiteral("第 "));
    m_page->setSuffix(QStringLiteral(" 页"));
    m_pages->setText(reporttexts::pageOf.arg(pageCount()));
    for (double step : zoomSteps)
        m_zoom->addItem(QStringLiteral("%1%").arg(qRound(step * 100)));
    m_zoom->addItem(reporttexts::pageWidth);
    m_zoom->addItem(reporttexts::wholePage);
    m_zoom->setCurrentIndex(2);
    // A zoom of one's own is typed: "90%".
    m_zoom->setEditable(true);
    m_zoom->setInsertPolicy(QComboBox::NoInsert);
    for (QWidget *w :
        std::initializer_list<QWidget *> { first, previous, m_page, m_pages, next, last })
        row->addWidget(w);
    row->addSpacing(16);
    row->addWidget(m_zoom);
    row->addStretch(1);
    for (QWidget *w : std::initializer_list<QWidget *> { print, pdf, close })
        row->addWidget(w);
    connect(first, &QPushButton::clicked, this, [this] { showPage(0); });
    connect(previous, &QPushButton::clicked, this, [this] { showPage(currentPage() - 1); });
    connect(next, &QPushButton::clicked, this, [this] { showPage(currentPage() + 1); });
    connect(last, &QPushButton::clicked, this, [this] { showPage(pageCount() - 1); });
    connect(m_page, &QSpinBox::valueChanged, this, [this](int page) {
        if (page - 1 != currentPage())
            showPage(page - 1);
    });
    connect(m_zoom, &QComboBox::activated, this, &PreviewDialog::zoomChosen);
    connect(m_zoom->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        QString typed = m_zoom->currentText();
        typed.remove(QLatin1Char('%'));
        bool ok = false;
        const double percent = typed.trimmed().toDouble(&ok);
        if (ok && percent > 0)
            setZoom(percent / 100);
    });
    connect(print, &QPushButton::clicked, this, &PreviewDialog::printPages);
    connect(pdf, &QPushButton::clicked, this, &PreviewDialog::savePdf);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    return bar;
}

int PreviewDialog::currentPage() const
{
    return m_view->currentPage();
}

void PreviewDialog::showPage(int page)
{
    m_view->showPage(page);
}

double PreviewDialog::zoom() const
{
    return m_view->zoom();
}

void PreviewDialog::setZoom(double zoom)
{
    m_view->setZoom(zoom);
    m_zoom->setEditText(QStringLiteral("%1%").arg(qRound(m_view->zoom() * 100)));
}

void PreviewDialog::zoomChosen(int index)
{
    if (index == pageWidthIndex)
        setZoom(m_view->pageWidthZoom());
    else if (index == wholePageIndex)
        setZoom(m_view->wholePageZoom());
    else if (index >= 0 && index < pageWidthIndex)
        setZoom(zoomSteps[index]);
}

void PreviewDialog::pageShown(int page)
{
    const QSignalBlocker block(m_page);
    m_page->setValue(page + 1);
}

void PreviewDialog::printPages()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_title);
    printer.setFullPage(true);
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, pageCount());
    if (dialog.exec() != QDialog::Accepted)
        return;
    int from = 0;
    int to = pageCount() - 1;
    if (printer.printRange() == QPrinter::PageRange) {
        from = printer.fromPage() - 1;
        to = printer.toPage() - 1;
    } else if (printer.printRange() == QPrinter::CurrentPage) {
        from = to = currentPage();
    }
    reports::paintReport(printer, m_report, from, to);
}

bool PreviewDialog::saveAsPdf(const QString &path)
{
    const Outcome written = reports::writePdf(m_report, path, m_title);
    if (!written) {
        MessageBoxInteraction().inform(written.message());
        return false;
    }
    return true;
}

void PreviewDialog::savePdf()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString name = m_title;
    name.replace(QLatin1Char(' '), QLatin1Char('_'));
    const QString path = QFileDialog::getSaveFileName(this, reporttexts::savePdf,
        QDir(folder).filePath(name + QStringLiteral(".pdf")), reporttexts::pdfFilter);
    if (!path.isEmpty())
        saveAsPdf(path);
}

} // namespace medistock::ui
