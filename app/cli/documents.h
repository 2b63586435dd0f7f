#pragma once

#include "app/cli/args.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace medistock::cli {

class Context;

// One kind of document that the commands save, check, uncheck, delete and show reach by the
// two-letter prefix of its number. Each module registers its kinds from its own commands file.
struct DocumentKind
{
    QString prefix; // "SK"
    QString title; // "收款单", for the help text
    // From the JSON object of `save FILE` (header columns, and "lines" for documents with lines);
    // prints the number and returns the exit status.
    std::function<int(Context &, const QJsonObject &)> save;
    // Each gets the number and the arguments left after it, so that a kind can take options
    // (check --paid AMOUNT --mode 1|2 --account NAME --note TEXT) and must refuse the rest.
    std::function<int(Context &, const QString &, Args &)> check;
    std::function<int(Context &, const QString &, Args &)> uncheck;
    std::function<int(Context &, const QString &, Args &)> remove;
    std::function<int(Context &, const QString &, Args &)> show;
};

class DocumentKinds
{
public:
    void add(DocumentKind kind) { m_kinds.push_back(std::move(kind)); }
    const DocumentKind *find(const QString &prefix) const;
    const std::vector<DocumentKind> &kinds() const { return m_kinds; }

private:
    std::vector<DocumentKind> m_kinds;
};

// Reading the JSON of `save FILE`; a wrong field stops the command with a usage error.
// Stops unless every field of the object is "kind" or one of `allowed`.
void requireKnownFields(Context &context, const QJsonObject &object, const QStringList &allowed);
// A text field; empty when absent. Numbers are given as their text.
QString jsonText(const QJsonObject &object, const QString &field);
// A number field, given as a JSON number or a numeric text; 0 when absent.
double jsonNumber(Context &context, const QJsonObject &object, const QString &field);
// The JSON object a file holds; anything else stops the command with a usage error.
QJsonObject readJsonFile(Context &context, const QString &path);

} // namespace medistock::cli
