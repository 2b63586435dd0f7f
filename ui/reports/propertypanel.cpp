#include "ui/reports/propertypanel.h"

#include "reports/prepared.h"
#include "ui/reports/designscene.h"
#include "ui/reports/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

using namespace reporttexts;

enum Row {
    NameRow,
    LeftRow,
    TopRow,
    WidthRow,
    HeightRow,
    TextRow,
    InsertRow,
    FontRow,
    StyleRow,
    AlignRow,
    FrameRow,
    FormatRow,
    WrapRow,
    BarTypeRow,
    FillRowsRow,
    RowCount
};

const char *const horizontals[] = { "haLeft", "haCenter", "haRight" };
const char *const verticals[] = { "vaTop", "vaCenter", "vaBottom" };
const char *const formatKinds[] = { "fkText", "fkNumeric", "fkDateTime" };
const char *const fontNames[] = { "宋体", "黑体", "楷体", "仿宋", "微软雅黑", "Arial" };
const char *const barTypes[]
    = { "bcCode128", "bcCodeEAN13", "bcCodeEAN8", "bcCode39", "bcCode93", "bcCodeQR" };

QDoubleSpinBox *millimetres(QWidget *parent)
{
    auto *spin = new QDoubleSpinBox(parent);
    spin->setRange(0, 2000);
    spin->setDecimals(1);
    spin->setSingleStep(0.5);
    spin->setKeyboardTracking(false);
    return spin;
}

QWidget *inRow(QWidget *parent, std::initializer_list<QWidget *> widgets)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *w : widgets)
        layout->addWidget(w);
    layout->addStretch(1);
    return row;
}

int indexOf(const char *const *list, int count, const QString &value, int fallback = 0)
{
    for (int i = 0; i < count; ++i)
        if (value == QLatin1String(list[i]))
            return i;
    return fallback;
}

} // namespace

PropertyPanel::PropertyPanel(DesignDocument &document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
{
    build();
    connect(&m_document, &DesignDocument::propertiesChanged, this, [this] { refresh(); });
    show(nullptr);
}

void PropertyPanel::build()
{
    auto *outer = new QVBoxLayout(this);
    m_empty = new QLabel(nothingSelected, this);
    m_empty->setWordWrap(true);
    outer->addWidget(m_empty);
    m_form = new QFormLayout;
    outer->addLayout(m_form);
    outer->addStretch(1);

    m_name = new QLabel(this);
    m_left = millimetres(this);
    m_top = millimetres(this);
    m_width = millimetres(this);
    m_height = millimetres(this);
    m_text = new QPlainTextEdit(this);
    m_text->setFixedHeight(90);
    m_variables = new QComboBox(this);
    m_fields = new QComboBox(this);
    m_font = new QComboBox(this);
    m_font->setEditable(true);
    for (const char *name : fontNames)
        m_font->addItem(QString::fromUtf8(name));
    m_size = new QSpinBox(this);
    m_size->setRange(6, 96);
    m_size->setKeyboardTracking(false);
    m_bold = new QCheckBox(bold, this);
    m_italic = new QCheckBox(italic, this);
    m_underline = new QCheckBox(underline, this);
    m_horizontal = new QComboBox(this);
    m_horizontal->addItems({ alignLeft, alignCenter, alignRight });
    m_vertical = new QComboBox(this);
    m_vertical->addItems({ alignTop, alignMiddle, alignBottom });
    for (const QString &side : { frameLeft, frameRight, frameTop, frameBottom })
        m_frameSides.append(new QCheckBox(side, this));
    m_frameWidth = new QDoubleSpinBox(this);
    m_frameWidth->setRange(0, 10);
    m_frameWidth->setSingleStep(0.5);
    m_frameWidth->setKeyboardTracking(false);
    m_formatKind = new QComboBox(this);
    m_formatKind->addItems({ formatNone, formatNumber, formatDate });
    m_format = new QLineEdit(this);
    m_wrap = new QCheckBox(wordWrap, this);
    m_barType = new QComboBox(this);
    for (const char *type : barTypes)
        m_barType->addItem(QString::fromLatin1(type));
    m_fillRows = new QLineEdit(this);

    m_form->addRow(propertyName, m_name);
    m_form->addRow(propertyLeft, m_left);
    m_form->addRow(propertyTop, m_top);
    m_form->addRow(propertyWidth, m_width);
    m_form->addRow(propertyHeight, m_height);
    m_form->addRow(propertyText, m_text);
    m_form->addRow(QString(), inRow(this, { m_variables, m_fields }));
    m_form->addRow(propertyFont, inRow(this, { m_font, m_size }));
    m_form->addRow(QString(), inRow(this, { m_bold, m_italic, m_underline }));
    m_form->addRow(propertyAlign, inRow(this, { m_horizontal, m_vertical }));
    m_form->addRow(propertyFrame,
        inRow(this,
            { m_frameSides[0], m_frameSides[1], m_frameSides[2], m_frameSides[3], m_frameWidth }));
    m_form->addRow(propertyFormat, inRow(this, { m_formatKind, m_format }));
    m_form->addRow(QString(), m_wrap);
    m_form->addRow(propertyBarType, m_barType);
    m_form->addRow(propertyFillRows, m_fillRows);

    for (QDoubleSpinBox *spin : { m_left, m_top, m_width, m_height })
        connect(spin, &QDoubleSpinBox::valueChanged, this, &PropertyPanel::applyGeometry);
    connect(m_text, &QPlainTextEdit::textChanged, this, &PropertyPanel::applyText);
    connect(m_variables, &QComboBox::activated, this, [this](int index) {
        if (index > 0)
            insertAtCursor(QLatin1Char('[') + m_variables->itemText(index) + QLatin1Char(']'));
        m_variables->setCurrentIndex(0);
    });
    connect(m_fields, &QComboBox::activated, this, [this](int index) {
        if (index > 0)
            insertAtCursor(QStringLiteral("[Lines.\"%1\"]").arg(m_fields->itemText(index)));
        m_fields->setCurrentIndex(0);
    });
    connect(m_font, &QComboBox::currentTextChanged, this, &PropertyPanel::applyFont);
    connect(m_size, &QSpinBox::valueChanged, this, &PropertyPanel::applyFont);
    for (QCheckBox *box : { m_bold, m_italic, m_underline })
        connect(box, &QCheckBox::toggled, this, &PropertyPanel::applyFont);
    connect(m_horizontal, &QComboBox::activated, this, [this](int index) {
        apply({ { QStringLiteral("HAlign"), QString::fromLatin1(horizontals[index]) } });
    });
    connect(m_vertical, &QComboBox::activated, this, [this](int index) {
        apply({ { QStringLiteral("VAlign"), QString::fromLatin1(verticals[index]) } });
    });
    for (QCheckBox *box : m_frameSides)
        connect(box, &QCheckBox::toggled, this, &PropertyPanel::applyFrame);
    connect(m_frameWidth, &QDoubleSpinBox::valueChanged, this, &PropertyPanel::applyFrame);
    connect(m_formatKind, &QComboBox::activated, this, &PropertyPanel::applyFormat);
    connect(m_format, &QLineEdit::editingFinished, this, &PropertyPanel::applyFormat);
    connect(m_wrap, &QCheckBox::toggled, this, [this](bool on) {
        apply({ { QStringLiteral("WordWrap"),
            on ? QStringLiteral("True") : QStringLiteral("False") } });
    });
    connect(m_barType, &QComboBox::activated, this, [this](int index) {
        apply({ { QStringLiteral("BarType"), m_barType->itemText(index) } });
    });
    connect(m_fillRows, &QLineEdit::editingFinished, this, [this] {
        apply({ { QStringLiteral("FillRows"), m_fillRows->text().trimmed() } });
    });
}

void PropertyPanel::setVariables(const QStringList &names)
{
    m_variables->clear();
    m_variables->addItem(insertVariable);
    m_variables->addItems(names);
}

void PropertyPanel::setFields(const QStringList &names)
{
    m_fields->clear();
    m_fields->addItem(insertField);
    m_fields->addItems(names);
}

void PropertyPanel::show(reports::TemplateNode *node)
{
    m_node = node;
    refresh();
}

void PropertyPanel::refresh()
{
    const QSignalBlocker block(this);
    m_filling = true;
    const bool object = m_node && isObject(*m_node);
    const bool band = m_node && isBand(*m_node);
    const QString tag = m_node ? m_node->tag() : QString();
    const bool memo
        = tag == QLatin1String("TfrxMemoView") || tag == QLatin1String("TfrxSysMemoView");
    const bool barcode = tag.startsWith(QLatin1String("TfrxBar"));
    m_empty->setVisible(!m_node);
    const bool shown[RowCount] = { m_node != nullptr, object, object, object, object || band,
        memo || barcode, memo, memo, memo, memo, object && !barcode, memo, memo, barcode,
        tag == QLatin1String("TfrxMasterData") };
    for (int row = 0; row < RowCount; ++row)
        m_form->setRowVisible(row, shown[row]);
    if (m_node) {
        const reports::TemplateNode &n = *m_node;
        m_name->setText(n.name());
        m_left->setValue(n.number(QStringLiteral("Left")) / reports::pixelsPerMillimetre);
        m_top->setValue(n.number(QStringLiteral("Top")) / reports::pixelsPerMillimetre);
        m_width->setValue(n.number(QStringLiteral("Width")) / reports::pixelsPerMillimetre);
        m_height->setValue(n.number(QStringLiteral("Height")) / reports::pixelsPerMillimetre);
        const QString text
            = barcode ? n.property(QStringLiteral("Expression")) : reports::memoText(n);
        if (m_text->toPlainText() != text) {
            m_text->setPlainText(text);
            m_text->moveCursor(QTextCursor::End);
        }
        m_font->setCurrentText(n.property(QStringLiteral("Font.Name"), QStringLiteral("宋体")));
        m_size->setValue(std::abs(int(n.number(QStringLiteral("Font.Height"), -13))));
        const int style = int(n.number(QStringLiteral("Font.Style")));
        m_bold->setChecked(style & 1);
        m_italic->setChecked(style & 2);
        m_underline->setChecked(style & 4);
        m_horizontal->setCurrentIndex(
            indexOf(horizontals, 3, n.property(QStringLiteral("HAlign"))));
        m_vertical->setCurrentIndex(indexOf(verticals, 3, n.property(QStringLiteral("VAlign"))));
        const int sides = int(n.number(QStringLiteral("Frame.Typ")));
        for (int i = 0; i < 4; ++i)
            m_frameSides[i]->setChecked(sides & (1 << i));
        m_frameWidth->setValue(n.number(QStringLiteral("Frame.Width"), 1));
        m_formatKind->setCurrentIndex(
            indexOf(formatKinds, 3, n.property(QStringLiteral("DisplayFormat.Kind"))));
        m_format->setText(n.property(QStringLiteral("DisplayFormat.FormatStr")));
        m_wrap->setChecked(n.flag(QStringLiteral("WordWrap"), true));
        m_barType->setCurrentText(
            n.property(QStringLiteral("BarType"), QStringLiteral("bcCode128")));
        m_fillRows->setText(n.property(QStringLiteral("FillRows")));
    }
    m_filling = false;
}

void PropertyPanel::apply(const Properties &changes)
{
    if (m_filling || !m_node)
        return;
    m_document.setProperties(m_node, changes, QStringLiteral("修改属性"));
}

void PropertyPanel::applyGeometry()
{
    if (m_filling || !m_node)
        return;
    auto px = [](const QDoubleSpinBox *spin) {
        return reports::formatLength(spin->value() * reports::pixelsPerMillimetre);
    };
    if (isBand(*m_node)) {
        apply({ { QStringLiteral("Height"), px(m_height) } });
        return;
    }
    // Unchanged fields keep their exact value: millimetres shown with one place would round it.
    Properties changes;
    const std::pair<const char *, QDoubleSpinBox *> fields[]
        = { { "Left", m_left }, { "Top", m_top }, { "Width", m_width }, { "Height", m_height } };
    for (const auto &[name, spin] : fields) {
        const QString property = QString::fromLatin1(name);
        const double shown
            = std::round(m_node->number(property) / reports::pixelsPerMillimetre * 10) / 10;
        if (std::abs(shown - spin->value()) > 1e-9)
            changes.append({ property, px(spin) });
    }
    if (!changes.isEmpty())
        apply(changes);
}

void PropertyPanel::applyText()
{
    if (m_filling || !m_node)
        return;
    if (m_node->tag().startsWith(QLatin1String("TfrxBar"))) {
        apply({ { QStringLiteral("Expression"), m_text->toPlainText() } });
        return;
    }
    const QString property
        = !m_node->has(QStringLiteral("Text")) && m_node->has(QStringLiteral("Memo.Text"))
        ? QStringLiteral("Memo.Text")
        : QStringLiteral("Text");
    QString text = m_text->toPlainText();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    m_document.setProperties(m_node, { { property, text } }, QStringLiteral("修改内容"), true);
}

void PropertyPanel::applyFont()
{
    const int style = (m_bold->isChecked() ? 1 : 0) | (m_italic->isChecked() ? 2 : 0)
        | (m_underline->isChecked() ? 4 : 0);
    apply({ { QStringLiteral("Font.Name"), m_font->currentText() },
        { QStringLiteral("Font.Height"), QString::number(-m_size->value()) },
        { QStringLiteral("Font.Style"), QString::number(style) },
        { QStringLiteral("ParentFont"), QStringLiteral("False") } });
}

void PropertyPanel::applyFrame()
{
    int sides = 0;
    for (int i = 0; i < 4; ++i)
        sides |= m_frameSides[i]->isChecked() ? (1 << i) : 0;
    Properties changes { { QStringLiteral("Frame.Width"),
        reports::formatLength(m_frameWidth->value()) } };
    if (m_node && m_node->tag() != QLatin1String("TfrxLineView"))
        changes.append({ QStringLiteral("Frame.Typ"), QString::number(sides) });
    apply(changes);
}

void PropertyPanel::applyFormat()
{
    apply({ { QStringLiteral("DisplayFormat.Kind"),
                QString::fromLatin1(formatKinds[m_formatKind->currentIndex()]) },
        { QStringLiteral("DisplayFormat.FormatStr"), m_format->text() } });
}

void PropertyPanel::insertAtCursor(const QString &text)
{
    m_text->textCursor().insertText(text);
    m_text->setFocus();
}

} // namespace medistock::ui
