#include "reports/template.h"

#include "reports/texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <QXmlStreamReader>

namespace medistock::reports {

bool TemplateNode::has(const QString &property) const
{
    for (const auto &item : m_properties)
        if (item.first == property)
            return true;
    return false;
}

QString TemplateNode::property(const QString &property, const QString &fallback) const
{
    for (const auto &item : m_properties)
        if (item.first == property)
            return item.second;
    return fallback;
}

double TemplateNode::number(const QString &property, double fallback) const
{
    bool ok = false;
    const double value = this->property(property).toDouble(&ok);
    return ok ? value : fallback;
}

bool TemplateNode::flag(const QString &property, bool fallback) const
{
    const QString value = this->property(property);
    if (value.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (value.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    return fallback;
}

void TemplateNode::set(const QString &property, const QString &value)
{
    for (auto &item : m_properties)
        if (item.first == property) {
            item.second = value;
            return;
        }
    m_properties.append({ property, value });
}

void TemplateNode::setNumber(const QString &property, double value)
{
    set(property, formatLength(value));
}

void TemplateNode::remove(const QString &property)
{
    m_properties.removeIf([&](const auto &item) { return item.first == property; });
}

TemplateNode *TemplateNode::child(const QString &tag) const
{
    for (const auto &child : m_children)
        if (child->tag() == tag)
            return child.get();
    return nullptr;
}

QList<TemplateNode *> TemplateNode::childrenTagged(const QString &tag) const
{
    QList<TemplateNode *> found;
    for (const auto &child : m_children)
        if (child->tag() == tag)
            found.append(child.get());
    return found;
}

TemplateNode *TemplateNode::insert(std::unique_ptr<TemplateNode> child, int index)
{
    child->m_parent = this;
    TemplateNode *raw = child.get();
    if (index < 0 || index >= int(m_children.size()))
        m_children.push_back(std::move(child));
    else
        m_children.insert(m_children.begin() + index, std::move(child));
    return raw;
}

std::unique_ptr<TemplateNode> TemplateNode::take(const TemplateNode *child)
{
    const int index = indexOf(child);
    if (index < 0)
        return nullptr;
    std::unique_ptr<TemplateNode> taken = std::move(m_children[size_t(index)]);
    m_children.erase(m_children.begin() + index);
    taken->m_parent = nullptr;
    return taken;
}

int TemplateNode::indexOf(const TemplateNode *child) const
{
    for (size_t i = 0; i < m_children.size(); ++i)
        if (m_children[i].get() == child)
            return int(i);
    return -1;
}

std::unique_ptr<TemplateNode> TemplateNode::clone() const
{
    auto copy = std::make_unique<TemplateNode>(m_tag);
    copy->m_properties = m_properties;
    copy->m_text = m_text;
    for (const auto &child : m_children)
        copy->insert(child->clone());
    return copy;
}

QList<TemplateNode *> ReportTemplate::pages() const
{
    return root ? root->childrenTagged(QStringLiteral("TfrxReportPage")) : QList<TemplateNode *>();
}

QStringList ReportTemplate::variableNames() const
{
    QStringList names;
    const TemplateNode *variables = root ? root->child(QStringLiteral("Variables")) : nullptr;
    if (!variables)
        return names;
    for (const auto &item : variables->children()) {
        const QString name = item->name();
        if (!name.isEmpty() && !name.startsWith(QLatin1Char(' ')))
            names.append(name);
    }
    return names;
}

QStringList ReportTemplate::datasetNames() const
{
    QStringList names;
    const TemplateNode *datasets = root ? root->child(QStringLiteral("Datasets")) : nullptr;
    if (!datasets)
        return names;
    for (const auto &item : datasets->children())
        names.append(item->property(
            QStringLiteral("DataSetName"), item->property(QStringLiteral("DataSet"))));
    return names;
}

namespace {

TemplateNode *findIn(const TemplateNode &node, const QString &name)
{
    for (const auto &child : node.children()) {
        if (child->name() == name)
            return child.get();
        if (TemplateNode *found = findIn(*child, name))
            return found;
    }
    return nullptr;
}

// "12,5" -> "12.5" for a length written with a decimal comma; other values stay as they are.
QString normalisedValue(const QString &property, const QString &value)
{
    if (!isLengthProperty(property) || !value.contains(QLatin1Char(',')))
        return value;
    QString dotted = value;
    dotted.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    dotted.toDouble(&ok);
    return ok ? dotted : value;
}

std::unique_ptr<TemplateNode> readElement(QXmlStreamReader &xml)
{
    auto node = std::make_unique<TemplateNode>(xml.name().toString());
    for (const QXmlStreamAttribute &attribute : xml.attributes()) {
        const QString name = attribute.qualifiedName().toString();
        node->set(name, normalisedValue(name, attribute.value().toString()));
    }
    QString text;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            node->insert(readElement(xml));
        else if (token == QXmlStreamReader::Characters && !xml.isWhitespace())
            text += xml.text();
        else if (token == QXmlStreamReader::EndElement)
            break;
    }
    node->setText(text.trimmed());
    return node;
}

QString escaped(const QString &value)
{
    QString out;
    out.reserve(value.size() + 8);
    for (const QChar c : value) {
        switch (c.unicode()) {
        case '&':
            out += QLatin1String("&amp;");
            break;
        case '<':
            out += QLatin1String("&lt;");
            break;
        case '>':
            out += QLatin1String("&gt;");
            break;
        case '"':
            out += QLatin1String("&quot;");
            break;
        case '\r':
            out += QLatin1String("&#13;");
            break;
        case '\n':
            out += QLatin1String("&#10;");
            break;
        case '\t':
            out += QLatin1String("&#9;");
            break;
        default:
            out += c;
        }
    }
    return out;
}

void writeElement(const TemplateNode &node, int depth, QString &out)
{
    out += QString(depth * 2, QLatin1Char(' '));
    out += QLatin1Char('<') + node.tag();
    for (const auto &[name, value] : node.properties())
        out += QLatin1Char(' ') + name + QLatin1String("=\"") + escaped(value) + QLatin1Char('"');
    if (node.children().empty() && node.text().isEmpty()) {
        out += QLatin1String("/>\n");
        return;
    }
    out += QLatin1Char('>');
    if (!node.text().isEmpty())
        out += escaped(node.text());
    if (!node.children().empty()) {
        out += QLatin1Char('\n');
        for (const auto &child : node.children())
            writeElement(*child, depth + 1, out);
        out += QString(depth * 2, QLatin1Char(' '));
    }
    out += QLatin1String("</") + node.tag() + QLatin1String(">\n");
}

} // namespace

TemplateNode *ReportTemplate::find(const QString &name) const
{
    return root ? findIn(*root, name) : nullptr;
}

ReportTemplate ReportTemplate::clone() const
{
    return ReportTemplate { root ? root->clone() : nullptr };
}

Result<ReportTemplate> parseTemplate(const QByteArray &bytes)
{
    QXmlStreamReader xml(bytes);
    std::unique_ptr<TemplateNode> root;
    if (xml.readNextStartElement())
        root = readElement(xml);
    while (!xml.hasError() && !xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        return Outcome::refused(texts::templateDamaged(xml.lineNumber(), xml.errorString()));
    if (!root || root->tag() != QLatin1String("TfrxReport"))
        return Outcome::refused(texts::notATemplate());
    return ReportTemplate { std::move(root) };
}

Result<ReportTemplate> readTemplate(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return Outcome::refused(texts::templateMissing(QDir::toNativeSeparators(path)));
    if (!file.open(QIODevice::ReadOnly))
        return Outcome::refused(texts::templateUnreadable(QDir::toNativeSeparators(path)));
    Result<ReportTemplate> report = parseTemplate(file.readAll());
    if (!report)
        return Outcome::refused(
            QDir::toNativeSeparators(path) + QStringLiteral("：") + report.message());
    return report;
}

QByteArray writeTemplate(const ReportTemplate &report)
{
    QString out = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n");
    if (report.root)
        writeElement(*report.root, 0, out);
    return out.toUtf8();
}

Outcome saveTemplate(const ReportTemplate &report, const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(writeTemplate(report)) < 0 || !file.commit())
        return Outcome::failed(texts::templateNotSaved(QDir::toNativeSeparators(path)));
    return Outcome::done();
}

QString memoText(const TemplateNode &memo)
{
    if (memo.has(QStringLiteral("Text")))
        return memo.property(QStringLiteral("Text"));
    return memo.property(QStringLiteral("Memo.Text"));
}

void setMemoText(TemplateNode &memo, const QString &text)
{
    if (!memo.has(QStringLiteral("Text")) && memo.has(QStringLiteral("Memo.Text")))
        memo.set(QStringLiteral("Memo.Text"), text);
    else
        memo.set(QStringLiteral("Text"), text);
}

bool isLengthProperty(const QString &property)
{
    static const QSet<QString> lengths { QStringLiteral("Left"), QStringLiteral("Top"),
        QStringLiteral("Width"), QStringLiteral("Height"), QStringLiteral("PaperWidth"),
        QStringLiteral("PaperHeight"), QStringLiteral("LeftMargin"), QStringLiteral("RightMargin"),
        QStringLiteral("TopMargin"), QStringLiteral("BottomMargin"), QStringLiteral("Frame.Width"),
        QStringLiteral("GapX"), QStringLiteral("GapY"), QStringLiteral("LineSpacing"),
        QStringLiteral("CharSpacing"), QStringLiteral("ColumnWidth"), QStringLiteral("ColumnGap"),
        QStringLiteral("Zoom") };
    return lengths.contains(property);
}

QString formatLength(double value)
{
    QString text = QString::number(value, 'f', 5);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

} // namespace medistock::reports
