#pragma once

#include "reports/prepared.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace medistock::ui {

class PageView;

// The print preview: the prepared pages with page navigation (首页 上一页 第 N 页 下一页 末页;
// Page Up, Page Down, Home and End in the pages), zoom (percentages, 页宽, 整页, Ctrl+= and
// Ctrl+-), printing on a printer the clerk chooses (with a page range) and saving as PDF. Esc
// closes it.
class PreviewDialog : public QDialog
{
    Q_OBJECT
public:
    PreviewDialog(reports::PreparedReport report, const QString &title, QWidget *parent = nullptr);

    const reports::PreparedReport &report() const { return m_report; }
    int pageCount() const { return int(m_report.pages.size()); }
    int currentPage() const; // from 0
    void showPage(int page);
    double zoom() const;
    void setZoom(double zoom);
    PageView *view() const { return m_view; }
    // Writes the pages to a PDF file; false (and told) when the file cannot be written.
    bool saveAsPdf(const QString &path);

public slots:
    void printPages();
    void savePdf();

private:
    QWidget *buildBar();
    void zoomChosen(int index);
    void pageShown(int page);

    reports::PreparedReport m_report;
    QString m_title;
    PageView *m_view;
    QSpinBox *m_page;
    QLabel *m_pages;
    QComboBox *m_zoom;
};

} // namespace medistock::ui
