#pragma once

#include "ui/reports/designdocument.h"

#include <QMainWindow>

class QGraphicsView;
class QTabWidget;

namespace medistock::ui {

struct Workspace;
class DesignScene;
class PropertyPanel;
class PreviewDialog;

// The report designer: one canvas per report page with its bands and objects, a property panel,
// a tool bar to add memos, lines, pictures and barcodes, delete, undo and redo, preview the
// template filled with sample data, and save it as the user's copy in the data folder (the next
// print uses it). Closing with changes asks whether to save.
class ReportDesigner : public QMainWindow
{
    Q_OBJECT
public:
    // Opens the template (the user's copy when there is one); nullptr when it cannot be read
    // (told).
    static ReportDesigner *open(
        Workspace &workspace, const QString &name, QWidget *parent = nullptr);

    ReportDesigner(Workspace &workspace, reports::ReportTemplate report, const QString &name,
        QWidget *parent = nullptr);
    ~ReportDesigner() override;

    DesignDocument &document() { return m_document; }
    DesignScene *scene(int page = 0) const;
    QGraphicsView *view(int page = 0) const;
    PropertyPanel *properties() const { return m_properties; }
    DesignScene *currentScene() const;

    bool save();
    void addMemo();
    void addLine();
    void addPicture(const QString &path = {});
    void addBarcode();
    void removeSelected();
    PreviewDialog *preview();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildTools();
    void buildPages();
    void selectionChanged();
    void refreshTitle();
    reports::TemplateNode *addObject(std::unique_ptr<reports::TemplateNode> node);
    QStringList fieldNames() const;

    Workspace &m_workspace;
    DesignDocument m_document;
    QTabWidget *m_pages;
    PropertyPanel *m_properties;
};

} // namespace medistock::ui
