#pragma once

#include "core/outcome.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace medistock::reports {

// One element of our .fr3 template format: a component class (the tag) with its properties in
// the order the file gives them, and its children. Everything is kept as read, elements and
// properties we do not understand included, so that a template read and written again is the
// same file; only numbers written with a decimal comma come back with a dot.
class TemplateNode
{
public:
    explicit TemplateNode(QString tag = {})
        : m_tag(std::move(tag))
    { }
    TemplateNode(const TemplateNode &) = delete;
    TemplateNode &operator=(const TemplateNode &) = delete;

    const QString &tag() const { return m_tag; }
    // The Name property ("MasterData1", "Memo3"); empty when the element has none.
    QString name() const { return property(QStringLiteral("Name")); }

    bool has(const QString &property) const;
    QString property(const QString &property, const QString &fallback = {}) const;
    // A length or count; `fallback` when absent or not a number.
    double number(const QString &property, double fallback = 0) const;
    // "True" / "False" as Delphi writes them.
    bool flag(const QString &property, bool fallback = false) const;
    // Sets a property in place, or appends it when new.
    void set(const QString &property, const QString &value);
    void setNumber(const QString &property, double value);
    void remove(const QString &property);
    const QList<std::pair<QString, QString>> &properties() const { return m_properties; }
    void setProperties(QList<std::pair<QString, QString>> properties)
    {
        m_properties = std::move(properties);
    }

    // Character data inside the element, trimmed; rarely used by the format, kept all the same.
    const QString &text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    TemplateNode *parent() const { return m_parent; }
    const std::vector<std::unique_ptr<TemplateNode>> &children() const { return m_children; }
    // The first child with the tag, or nullptr.
    TemplateNode *child(const QString &tag) const;
    QList<TemplateNode *> childrenTagged(const QString &tag) const;
    // Appends (index -1) or inserts a child and returns it.
    TemplateNode *insert(std::unique_ptr<TemplateNode> child, int index = -1);
    // Takes a child out; nullptr when it is not a child of this node.
    std::unique_ptr<TemplateNode> take(const TemplateNode *child);
    int indexOf(const TemplateNode *child) const;
    // A deep copy without a parent.
    std::unique_ptr<TemplateNode> clone() const;

private:
    QString m_tag;
    QList<std::pair<QString, QString>> m_properties;
    QString m_text;
    TemplateNode *m_parent = nullptr;
    std::vector<std::unique_ptr<TemplateNode>> m_children;
};

// A whole template: the TfrxReport element.
struct ReportTemplate
{
    std::unique_ptr<TemplateNode> root;

    // The TfrxReportPage elements in file order.
    QList<TemplateNode *> pages() const;
    // The names of the variables the template declares (categories, whose names begin with a
    // space, left out), in file order.
    QStringList variableNames() const;
    // The dataset names of the Datasets list.
    QStringList datasetNames() const;
    // The first element anywhere below the root with this Name, or nullptr.
    TemplateNode *find(const QString &name) const;
    ReportTemplate clone() const;
};

// Reads template text; a file that is not well-formed XML or whose root is not TfrxReport is
// refused with the line and the parser's reason.
Result<ReportTemplate> parseTemplate(const QByteArray &bytes);
// Reads a template file; a missing file is refused with the missing-template text.
Result<ReportTemplate> readTemplate(const QString &path);
// The file text: UTF-8, one element per line, two spaces of indent per level, properties in
// their order, line breaks in values as &#13;&#10;.
QByteArray writeTemplate(const ReportTemplate &report);
// Writes the file whole or not at all (the folder is made when missing).
Outcome saveTemplate(const ReportTemplate &report, const QString &path);

// A memo's text: Text, or Memo.Text in older files.
QString memoText(const TemplateNode &memo);
// Sets the text where the memo keeps it.
void setMemoText(TemplateNode &memo, const QString &text);

// Properties that hold lengths; their decimal commas are read as dots.
bool isLengthProperty(const QString &property);
// A number as the writer puts it: at most four places, no trailing zeros ("12.5", "94.48819").
QString formatLength(double value);

} // namespace medistock::reports
