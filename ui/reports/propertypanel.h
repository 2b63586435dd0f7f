#pragma once

#include "ui/reports/designdocument.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;

namespace medistock::ui {

// The properties of the selected object or band: position and size in millimetres, the text
// with variables and fields to insert from lists, font, alignment, frame, display format and
// wrapping; a barcode's kind; a band's height and its rows per page. Each edit is one undoable
// step of the document.
class PropertyPanel : public QWidget
{
    Q_OBJECT
public:
    PropertyPanel(DesignDocument &document, QWidget *parent = nullptr);

    // Shows the node's properties (nullptr: nothing selected).
    void show(reports::TemplateNode *node);
    reports::TemplateNode *node() const { return m_node; }
    // What the insert lists offer.
    void setVariables(const QStringList &names);
    void setFields(const QStringList &names);

    QPlainTextEdit *textField() const { return m_text; }
    QDoubleSpinBox *leftField() const { return m_left; }
    QComboBox *variableList() const { return m_variables; }
    QComboBox *fieldList() const { return m_fields; }

private:
    void build();
    void refresh();
    void apply(const Properties &changes);
    void applyGeometry();
    void applyText();
    void applyFont();
    void applyFrame();
    void applyFormat();
    void insertAtCursor(const QString &text);

    DesignDocument &m_document;
    reports::TemplateNode *m_node = nullptr;
    bool m_filling = false;
    QFormLayout *m_form = nullptr;
    QLabel *m_name = nullptr;
    QDoubleSpinBox *m_left = nullptr;
    QDoubleSpinBox *m_top = nullptr;
    QDoubleSpinBox *m_width = nullptr;
    QDoubleSpinBox *m_height = nullptr;
    QPlainTextEdit *m_text = nullptr;
    QComboBox *m_variables = nullptr;
    QComboBox *m_fields = nullptr;
    QComboBox *m_font = nullptr;
    QSpinBox *m_size = nullptr;
    QCheckBox *m_bold = nullptr;
    QCheckBox *m_italic = nullptr;
    QCheckBox *m_underline = nullptr;
    QComboBox *m_horizontal = nullptr;
    QComboBox *m_vertical = nullptr;
    QList<QCheckBox *> m_frameSides;
    QDoubleSpinBox *m_frameWidth = nullptr;
    QComboBox *m_formatKind = nullptr;
    QLineEdit *m_format = nullptr;
    QCheckBox *m_wrap = nullptr;
    QComboBox *m_barType = nullptr;
    QLineEdit *m_fillRows = nullptr;
    QLabel *m_empty = nullptr;
};

} // namespace medistock::ui
