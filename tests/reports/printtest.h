#pragma once

#include "reports/catalogue.h"
#include "reports/data.h"
#include "reports/printing.h"
#include "tests/sales/salestest.h"

#include <QHash>

namespace medistock::test {

// The sales fixture with the templates of the source tree, no edited copies, and the time of
// printing fixed at 2025-03-14 09:30.
class PrintTest : public SalesTest
{
protected:
    reports::TemplateFolders folders() const;
    static QDateTime printed() { return QDateTime(QDate(2025, 3, 14), QTime(9, 30)); }

    // A document's variables as the template sees them (the quoted texts evaluated).
    QHash<QString, QString> variables(const QString &key, const QString &number);
    // The document's lines: each row's named fields joined by "|".
    QStringList lines(const QString &key, const QString &number, const QString &fields,
        const QString &templateName = {});
    // Prepares a document for printing; fails the test when refused.
    reports::PrintedDocument printed(
        const QString &key, const QString &number, const QString &style = {});

    // A checked sale of `count` lines of goods 200002 at 1, 2, 3 ... yuan, one bag each.
    QString saleOfLines(int count);
};

// The text pdftotext reads from a PDF, with the radicals it gives for some shared Chinese glyphs
// folded back to the characters printed.
QString pdfText(const QString &path);
// Whether the folded PDF text holds what is expected, its full-width punctuation folded the same.
bool pdfHas(const QString &text, const char *expected);
// A line of `pdfinfo` ("Pages", "Page size", "Title").
QString pdfInfo(const QString &path, const QString &field);

} // namespace medistock::test
