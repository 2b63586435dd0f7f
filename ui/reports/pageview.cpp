#include "ui/reports/pageview.h"

#include "reports/render.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace medistock::ui {

namespace {

constexpr int gap = 16;

QSizeF pixelsOf(const reports::PreparedPage &page)
{
    return page.sizeMm * reports::pixelsPerMillimetre;
}

} // namespace

class PageView::Desk : public QWidget
{
public:
    explicit Desk(PageView *view)
        : QWidget(view)
        , m_view(view)
    { }

    // Where each page stands on the desk at the view's zoom.
    QList<QRectF> pageRects() const
    {
        QList<QRectF> rects;
        if (!m_view->m_report)
            return rects;
        double width = 0;
        for (const reports::PreparedPage &page : m_view->m_report->pages)
            width = std::max(width, pixelsOf(page).width() * m_view->m_zoom);
        double top = gap;
        for (const reports::PreparedPage &page : m_view->m_report->pages) {
            const QSizeF size = pixelsOf(page) * m_view->m_zoom;
            rects.append(
                QRectF(gap + (width - size.width()) / 2, top, size.width(), size.height()));
            top += size.height() + gap;
        }
        return rects;
    }

    void relayout()
    {
        const QList<QRectF> rects = pageRects();
        double width = 0;
        double height = gap;
        for (const QRectF &r : rects) {
            width = std::max(width, r.right() + gap);
            height = r.bottom() + gap;
        }
        resize(int(std::ceil(std::max(width, 100.0))), int(std::ceil(height)));
        update();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), QColor(0x80, 0x86, 0x8c));
        if (!m_view->m_report)
            return;
        const QList<QRectF> rects = pageRects();
        for (int i = 0; i < rects.size(); ++i) {
            const QRectF &r = rects.at(i);
            if (!r.adjusted(0, 0, 4, 4).intersects(event->rect()))
                continue;
            painter.fillRect(r.translated(3, 3), QColor(0x50, 0x54, 0x58));
            painter.fillRect(r, Qt::white);
            painter.save();
            painter.setClipRect(r);
            painter.translate(r.topLeft());
            painter.scale(m_view->m_zoom, m_view->m_zoom);
            painter.setRenderHint(QPainter::TextAntialiasing, true);
            reports::paintPage(painter, m_view->m_report->pages.at(i));
            painter.restore();
        }
    }

private:
    PageView *m_view;
};

PageView::PageView(QWidget *parent)
    : QScrollArea(parent)
    , m_desk(new Desk(this))
{
    setWidget(m_desk);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QPalette desk = viewport()->palette();
    desk.setColor(QPalette::Window, QColor(0x80, 0x86, 0x8c));
    viewport()->setPalette(desk);
    viewport()->setAutoFillBackground(true);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
        [this] { emit currentPageChanged(currentPage()); });
}

void PageView::setReport(const reports::PreparedReport *report)
{
    m_report = report;
    m_desk->relayout();
    emit currentPageChanged(currentPage());
}

void PageView::setZoom(double zoom)
{
    const int page = currentPage();
    m_zoom = std::clamp(zoom, 0.1, 8.0);
    m_desk->relayout();
    showPage(page);
}

double PageView::pageWidthZoom() const
{
    if (!m_report || m_report->pages.isEmpty())
        return 1;
    double width = 0;
    for (const reports::PreparedPage &page : m_report->pages)
        width = std::max(width, pixelsOf(page).width());
    return (viewport()->width() - 3.0 * gap) / width;
}

double PageView::wholePageZoom() const
{
    if (!m_report || m_report->pages.isEmpty())
        return 1;
    const QSizeF first = pixelsOf(m_report->pages.first());
    return std::min(pageWidthZoom(), (viewport()->height() - 2.0 * gap) / first.height());
}

int PageView::currentPage() const
{
    const QList<QRectF> rects = m_desk->pageRects();
    const int top = verticalScrollBar()->value();
    if (top == m_askedScroll && m_asked < rects.size())
        return m_asked;
    for (int i = 0; i < rects.size(); ++i)
        if (rects.at(i).bottom() + gap / 2.0 > top + 1)
            return i;
    return std::max(int(rects.size()) - 1, 0);
}

void PageView::showPage(int page)
{
    const QList<QRectF> rects = m_desk->pageRects();
    if (rects.isEmpty())
        return;
    page = std::clamp(page, 0, int(rects.size()) - 1);
    m_asked = page;
    m_askedScroll = -1;
    verticalScrollBar()->setValue(int(rects.at(page).top() - gap / 2.0));
    m_askedScroll = verticalScrollBar()->value();
    emit currentPageChanged(currentPage());
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    // A page at a time, as on paper.
    switch (event->key()) {
    case Qt::Key_PageDown:
        showPage(currentPage() + 1);
        break;
    case Qt::Key_PageUp:
        showPage(currentPage() - 1);
        break;
    case Qt::Key_Home:
        showPage(0);
        break;
    case Qt::Key_End:
        showPage(m_report ? int(m_report->pages.size()) - 1 : 0);
        break;
    default:
        QScrollArea::keyPressEvent(event);
        return;
    }
    event->accept();
}

} // namespace medistock::ui
