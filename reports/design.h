#pragma once

#include "core/outcome.h"
#include "reports/expression.h"
#include "reports/formats.h"
#include "reports/prepared.h"
#include "reports/template.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QMarginsF>
#include <QRectF>
#include <QString>

#include <optional>

namespace medistock::reports {

// A template read into what the band engine works with: pages, bands and objects with their
// texts parsed and their fonts, colours and frames resolved. The engine never looks at the
// file's properties again.

struct ObjectDesign
{
    enum class Kind { Memo, Line, Picture, Barcode };
    enum class Stretch { None, Actual, Max };

    Kind kind = Kind::Memo;
    QString name;
    QRectF rect; // relative to its band
    Stretch stretch = Stretch::None;
    // Memo.
    TemplateText text;
    DisplayFormat format;
    bool hideZeros = false;
    TextStyle style;
    QColor fill;
    Frame frame;
    // Line: from the top left to the bottom right corner of rect (a zero width or height draws
    // it straight).
    bool diagonal = false;
    // Picture.
    QImage image;
    bool keepAspect = true;
    // Barcode: the kind of symbol, what it encodes and whether its digits show below it.
    QString barType;
    bool showText = true;
};

struct BandDesign
{
    enum class Kind {
        ReportTitle,
        PageHeader,
        Header,
        MasterData,
        Footer,
        GroupHeader,
        GroupFooter,
        ReportSummary,
        PageFooter,
        Child
    };

    Kind kind = Kind::MasterData;
    QString name;
    double top = 0;
    double height = 0;
    bool stretched = false;
    QList<ObjectDesign> objects;
    QString child; // the Child band printed right after this one
    bool startNewPage = false;
    bool printOnFirstPage = true;
    bool printOnLastPage = true;
    bool reprintOnNewPage = false;
    // Data band.
    QString dataset; // empty: RowCount rows without data
    int rowCount = 1;
    int fillRows = 0; // rows per page; the last page is filled with blank rows up to it
    int columns = 1; // rows placed side by side (labels), each ColumnWidth wide
    double columnWidth = 0;
    bool fillPage = false; // blank rows until the page is full
    // Group header.
    std::optional<Expression> condition;

    bool hasAggregates() const;
};

// A master data band with the bands that belong to it, in the order the file places them.
struct MasterDesign
{
    const BandDesign *data = nullptr;
    const BandDesign *header = nullptr;
    const BandDesign *footer = nullptr;
    QList<const BandDesign *> groupHeaders; // outermost first
    QList<const BandDesign *> groupFooters; // outermost first
};

struct PageDesign
{
    QString name;
    QSizeF paperMm;
    QMarginsF marginsMm;
    bool endless = false;
    bool titleBeforeHeader = true;
    QList<BandDesign> bands; // by their Top

    const BandDesign *band(BandDesign::Kind kind) const;
    const BandDesign *bandNamed(const QString &bandName) const;
    QList<MasterDesign> masters() const;
};

// Where an aggregate call counts its rows and when its total starts again.
struct AggregateBinding
{
    enum class Reset { Never, Page, AfterBand };
    QString dataBand;
    Reset reset = Reset::Never;
    QString resetBand; // for AfterBand
};

struct ReportDesign
{
    QList<PageDesign> pages;
    // The template's own variable values (expressions), used where the data sets none.
    QHash<QString, QString> variableDefaults;
    QHash<const ExpressionNode *, AggregateBinding> aggregates;
    bool usesTotalPages = false;
};

// Reads a template; an expression that does not parse is refused with the object that holds it.
// `folder` resolves pictures linked by a relative file name.
Result<ReportDesign> compileTemplate(const ReportTemplate &report, const QString &folder = {});

// An object as the designer draws it: its text as written, expressions not evaluated; nullopt for
// elements that are not drawn.
std::optional<ObjectDesign> objectAsWritten(const TemplateNode &node, const QString &folder = {});
// 13 px 宋体, what a template's objects print with when they name no font.
QFont defaultReportFont();

// A Delphi colour: a number in BGR order or a name such as clBlack; clNone is invalid (none).
QColor colourFromProperty(const QString &value, const QColor &fallback);
// The font a template asks for, on a family that renders Chinese (see fonts.h).
QFont fontFromProperties(const TemplateNode &node, const QFont &fallback);

} // namespace medistock::reports
