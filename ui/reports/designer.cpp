#include "ui/reports/designer.h"

#include "reports/documentdata.h"
#include "reports/documentlines.h"
#include "reports/layout.h"
#include "reports/samples.h"
#include "ui/common/messagebox.h"
#include "ui/common/workspace.h"
#include "ui/reports/designscene.h"
#include "ui/reports/previewdialog.h"
#include "ui/reports/printing.h"
#include "ui/reports/propertypanel.h"
#include "ui/reports/texts.h"

#include <QBuffer>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsView>
#include <QMessageBox>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

namespace medistock::ui {

namespace {

std::unique_ptr<reports::TemplateNode> newObject(const char *tag, const QString &name,
    std::initializer_list<std::pair<const char *, QString>> properties)
{
    auto node = std::make_unique<reports::TemplateNode>(QString::fromLatin1(tag));
    node->set(QStringLiteral("Name"), name);
    for (const auto &[property, value] : properties)
        node->set(QString::fromLatin1(property), value);
    return node;
}

} // namespace

ReportDesigner *ReportDesigner::open(Workspace &workspace, const QString &name, QWidget *parent)
{
    Result<reports::ReportTemplate> report
        = reports::readTemplate(templateFolders(workspace).pathOf(name));
    if (!report) {
        workspace.session.ui().inform(report.message());
        return nullptr;
    }
    auto *designer = new ReportDesigner(workspace, std::move(report.value()), name, parent);
    designer->setAttribute(Qt::WA_DeleteOnClose);
    return designer;
}

ReportDesigner::ReportDesigner(
    Workspace &workspace, reports::ReportTemplate report, const QString &name, QWidget *parent)
    : QMainWindow(parent)
    , m_workspace(workspace)
    , m_document(std::move(report), name, templateFolders(workspace))
    , m_pages(new QTabWidget(this))
    , m_properties(new PropertyPanel(m_document, this))
{
    setWindowFlag(Qt::Window);
    setCentralWidget(m_pages);
    auto *dock = new QDockWidget(this);
    dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    auto *scroll = new QScrollArea(dock);
    scroll->setWidget(m_properties);
    scroll->setWidgetResizable(true);
    dock->setWidget(scroll);
    dock->setMinimumWidth(330);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    m_properties->setVariables(m_document.model().variableNames());
    m_properties->setFields(fieldNames());
    buildTools();
    buildPages();
    connect(m_document.undoStack(), &QUndoStack::cleanChanged, this, &ReportDesigner::refreshTitle);
    connect(
        &m_document, &DesignDocument::structureChanged, this, &ReportDesigner::selectionChanged);
    refreshTitle();
    resize(1280, 800);
}

void ReportDesigner::buildTools()
{
    QToolBar *tools = addToolBar(QString());
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto add = [&](const QString &text, const QKeySequence &key, auto slot) {
        QAction *action = tools->addAction(text, this, slot);
        action->setShortcut(key);
        if (!key.isEmpty())
            action->setToolTip(text + QStringLiteral(" (") + key.toString(QKeySequence::NativeText)
                + QLatin1Char(')'));
        return action;
    };
    add(reporttexts::save, QKeySequence::Save, [this] { ReportDesigner::save(); });
    tools->addSeparator();
    QAction *undoAction = m_document.undoStack()->createUndoAction(this, reporttexts::undo);
    undoAction->setShortcut(QKeySequence::Undo);
    QAction *redoAction = m_document.undoStack()->createRedoAction(this, reporttexts::redo);
    redoAction->setShortcuts({ QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence::Redo });
    tools->addAction(undoAction);
    tools->addAction(redoAction);
    tools->addSeparator();
    add(reporttexts::addMemo, QKeySequence(), [this] { ReportDesigner::addMemo(); });
    add(reporttexts::addLine, QKeySequence(), [this] { ReportDesigner::addLine(); });
    add(reporttexts::addPicture, QKeySequence(), [this] { ReportDesigner::addPicture(); });
    add(reporttexts::addBarcode, QKeySequence(), [this] { ReportDesigner::addBarcode(); });
    // Del on the canvas is the scene's own, so that Del in the property panel edits its text.
    add(reporttexts::remove, QKeySequence(), [this] { removeSelected(); });
    tools->addSeparator();
    add(reporttexts::preview, QKeySequence(Qt::Key_F8), [this] { ReportDesigner::preview(); });
    add(reporttexts::closeDesigner, QKeySequence(), [this] { close(); });
}

void ReportDesigner::buildPages()
{
    for (reports::TemplateNode *page : m_document.model().pages()) {
        auto *scene = new DesignScene(m_document, page, this);
        auto *view = new QGraphicsView(scene, m_pages);
        view->setDragMode(QGraphicsView::RubberBandDrag);
        view->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        view->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        m_pages->addTab(view, page->name());
        connect(scene, &QGraphicsScene::selectionChanged, this, &ReportDesigner::selectionChanged);
    }
    m_pages->tabBar()->setVisible(m_pages->count() > 1);
    if (QGraphicsView *first = view(0))
        first->setFocus();
}

ReportDesigner::~ReportDesigner()
{
    // The scenes go after the window's own parts; their last selection changes find no one.
    for (int page = 0; page < m_pages->count(); ++page)
        if (DesignScene *s = scene(page))
            s->disconnect(this);
}

DesignScene *ReportDesigner::scene(int page) const
{
    QGraphicsView *v = view(page);
    return v ? static_cast<DesignScene *>(v->scene()) : nullptr;
}

QGraphicsView *ReportDesigner::view(int page) const
{
    return qobject_cast<QGraphicsView *>(m_pages->widget(page));
}

DesignScene *ReportDesigner::currentScene() const
{
    return scene(m_pages->currentIndex());
}

void ReportDesigner::selectionChanged()
{
    DesignScene *current = currentScene();
    const QList<reports::TemplateNode *> selected
        = current ? current->selectedNodes() : QList<reports::TemplateNode *>();
    m_properties->show(selected.size() == 1 ? selected.first() : nullptr);
}

void ReportDesigner::refreshTitle()
{
    setWindowTitle(reporttexts::designerTitle.arg(reports::templateTitle(m_document.name()))
        + (m_document.isModified() ? QStringLiteral(" *") : QString()));
}

QStringList ReportDesigner::fieldNames() const
{
    QStringList fields
        = reports::fieldsNamed(m_document.model()).value(reports::linesDatasetName());
    const QString key = reports::keyForTemplate(m_document.name());
    if (!key.isEmpty())
        for (const QString &column :
            reports::documentLines(m_workspace.session, key, QString(), m_document.name()).fields)
            if (!fields.contains(column, Qt::CaseInsensitive))
                fields.append(column);
    return fields;
}

reports::TemplateNode *ReportDesigner::addObject(std::unique_ptr<reports::TemplateNode> node)
{
    DesignScene *current = currentScene();
    reports::TemplateNode *band = current ? current->targetBand() : nullptr;
    if (!band)
        return nullptr;
    const QString name = node->name();
    reports::TemplateNode *added
        = m_document.insert(band, std::move(node), QStringLiteral("添加对象"));
    current->selectNamed(name);
    view(m_pages->currentIndex())->setFocus();
    return added;
}

void ReportDesigner::addMemo()
{
    addObject(newObject("TfrxMemoView", m_document.freeName(QStringLiteral("Memo")),
        { { "Left", QStringLiteral("8") }, { "Top", QStringLiteral("2") },
            { "Width", QStringLiteral("120") }, { "Height", QStringLiteral("18.9") },
            { "Font.Charset", QStringLiteral("134") }, { "Font.Color", QStringLiteral("0") },
            { "Font.Height", QStringLiteral("-13") }, { "Font.Name", QStringLiteral("宋体") },
            { "Font.Style", QStringLiteral("0") }, { "ParentFont", QStringLiteral("False") },
            { "VAlign", QStringLiteral("vaCenter") }, { "Text", reporttexts::newMemoText } }));
}

void ReportDesigner::addLine()
{
    addObject(newObject("TfrxLineView", m_document.freeName(QStringLiteral("Line")),
        { { "Left", QStringLiteral("8") }, { "Top", QStringLiteral("4") },
            { "Width", QStringLiteral("150") }, { "Height", QStringLiteral("0") },
            { "Color", QStringLiteral("0") }, { "Frame.Typ", QStringLiteral("4") },
            { "Frame.Width", QStringLiteral("1") } }));
}

void ReportDesigner::addPicture(const QString &path)
{
    const QString file = !path.isEmpty()
        ? path
        : QFileDialog::getOpenFileName(
            this, reporttexts::choosePicture, QString(), reporttexts::pictureFilter);
    if (file.isEmpty())
        return;
    // The picture goes into the template itself, so that the file can travel on its own.
    QImage image(file);
    if (image.isNull())
        return;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const QSizeF size = QSizeF(image.size()).scaled(QSizeF(150, 80), Qt::KeepAspectRatio);
    addObject(newObject("TfrxPictureView", m_document.freeName(QStringLiteral("Picture")),
        { { "Left", QStringLiteral("8") }, { "Top", QStringLiteral("2") },
            { "Width", reports::formatLength(size.width()) },
            { "Height", reports::formatLength(size.height()) },
            { "KeepAspectRatio", QStringLiteral("True") },
            { "PictureData", QString::fromLatin1(bytes.toBase64()) } }));
}

void ReportDesigner::addBarcode()
{
    addObject(newObject("TfrxBarCodeView", m_document.freeName(QStringLiteral("BarCode")),
        { { "Left", QStringLiteral("8") }, { "Top", QStringLiteral("2") },
            { "Width", QStringLiteral("120") }, { "Height", QStringLiteral("45") },
            { "BarType", QStringLiteral("bcCode128") },
            { "Expression", QStringLiteral("<Lines.\"g_sptm\">") },
            { "ShowText", QStringLiteral("True") } }));
}

void ReportDesigner::removeSelected()
{
    if (DesignScene *current = currentScene())
        current->removeSelected();
}

PreviewDialog *ReportDesigner::preview()
{
    const reports::ReportTemplate &model = m_document.model();
    const QString folder = QFileInfo(m_document.folders().pathOf(m_document.name())).absolutePath();
    Result<reports::PreparedReport> prepared = reports::prepareReport(
        model, reports::sampleData(model), { QDateTime::currentDateTime() }, folder);
    if (!prepared) {
        MessageBoxInteraction().inform(prepared.message());
        return nullptr;
    }
    auto *dialog = new PreviewDialog(
        std::move(prepared.value()), reports::templateTitle(m_document.name()), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    return dialog;
}

bool ReportDesigner::save()
{
    const Outcome saved = m_document.save();
    if (!saved) {
        MessageBoxInteraction().inform(saved.message());
        return false;
    }
    statusBar()->showMessage(reporttexts::saved + m_document.savePath(), 5000);
    return true;
}

void ReportDesigner::closeEvent(QCloseEvent *event)
{
    if (!m_document.isModified()) {
        event->accept();
        return;
    }
    const QMessageBox::StandardButton answer
        = QMessageBox::question(this, QStringLiteral("系统提示"), reporttexts::unsavedQuestion,
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Cancel || (answer == QMessageBox::Save && !save()))
        event->ignore();
    else
        event->accept();
}

} // namespace medistock::ui
