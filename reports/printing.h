#pragma once

#include "core/outcome.h"
#include "reports/catalogue.h"
#include "reports/data.h"
#include "reports/prepared.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace medistock::shell {
class Session;
}

namespace medistock::reports {

// A print style of a document: the title offered and the template it prints with.
struct PrintStyle
{
    QString title;
    QString templateName;
};

// The styles of a key, the default first: spxs "销售单", "销售单(不含售价)", "销售单(含零售价)";
// cgjh "采购进货单", "采购进货单(无进价)"; any other key only its default template.
QList<PrintStyle> stylesOf(const QString &key);
// The styles to choose from before printing ("选择打印单据样式"): those of spxs when
// "打印销售单时选择打印格式" (cs_cs010) is on and of cgjh when "打印采购单时选择打印格式"
// (cs_cs011) is on; empty otherwise, and the document prints with its default template.
QList<PrintStyle> styleChoices(const shell::Session &session, const QString &key);

// The template a document finally prints with: the chosen one (the key's default when empty), or
// its form without cost prices when the operator may not see them ("显示商品成本价"), or without
// sale prices when he may not see those ("显示商品销售价").
QString templateFor(const shell::Session &session, const QString &key, const QString &chosen);

// A filled template ready to paint, and what it is.
struct PrintedDocument
{
    QString key;
    QString number;
    QString templateName;
    QString title; // the template's title and the number, for the preview and the PDF
    PreparedReport report;
};

// Fills a document's template and lays it out: the template of templateFor, read from the
// folders, the document's variables and lines. Refusals are told (an unknown key, a style that
// is not the key's, a missing or damaged template, a document that does not exist) and nothing
// is printed.
Result<PrintedDocument> prepareDocument(const shell::Session &session,
    const TemplateFolders &folders, const QString &key, const QString &number,
    const QString &style = {}, const QDateTime &printed = QDateTime::currentDateTime());

// Fills any template with data a screen hands over (a report screen's rows and filter texts),
// the company variables added.
Result<PreparedReport> prepareWithData(const shell::Session &session,
    const TemplateFolders &folders, const QString &templateName, const ReportData &data,
    const QDateTime &printed = QDateTime::currentDateTime());

// The numbers of a key's documents dated within the range, by date then number.
QStringList documentNumbersBetween(
    const shell::Session &session, const QString &key, QDate from, QDate to);

// "连续打印": asks "您的操作将打印当前查询中的所有单据，..." first; on yes prepares each number in
// order with the key's template (no style question, no preview) and hands it to `print`, which
// returns false to stop. An empty list prints nothing after the question. Returns how many were
// handed over; a refusal stops the run after telling it.
Result<int> printAll(const shell::Session &session, const TemplateFolders &folders,
    const QString &key, const QStringList &numbers,
    const std::function<bool(const PrintedDocument &)> &print,
    const QDateTime &printed = QDateTime::currentDateTime());

// A document to print: its key and number.
struct DocumentToPrint
{
    QString key;
    QString number;
};

// The same for a query that lists documents of several keys (receipts and returns together):
// each with its own key's template.
Result<int> printAll(const shell::Session &session, const TemplateFolders &folders,
    const QList<DocumentToPrint> &documents,
    const std::function<bool(const PrintedDocument &)> &print,
    const QDateTime &printed = QDateTime::currentDateTime());

} // namespace medistock::reports
