#pragma once

#include "reports/prepared.h"

#include <QScrollArea>

namespace medistock::ui {

// Prepared pages one under the other on a grey desk, at a zoom (1 = the paper's own size on a
// 96 dpi screen). Used by the preview.
class PageView : public QScrollArea
{
    Q_OBJECT
public:
    explicit PageView(QWidget *parent = nullptr);

    void setReport(const reports::PreparedReport *report);
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    // The zoom at which the widest page fills the view's width.
    double pageWidthZoom() const;
    // The zoom at which a whole page fits the view.
    double wholePageZoom() const;

    int currentPage() const; // from 0: the page at the top of the view
    void showPage(int page);

signals:
    void currentPageChanged(int page);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Desk;
    Desk *m_desk;
    const reports::PreparedReport *m_report = nullptr;
    double m_zoom = 1;
    // The page last asked for, and where that left the scroll bar: the last pages of a long
    // report cannot scroll to the top of the view.
    int m_asked = 0;
    int m_askedScroll = -1;
};

} // namespace medistock::ui
