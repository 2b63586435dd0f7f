#include "reports/design.h"

#include "reports/fonts.h"
#include "reports/texts.h"

#include <QDir>
#include <QHash>

#include <algorithm>

namespace medistock::reports {

namespace {

using Kind = BandDesign::Kind;

const QHash<QString, Kind> &bandKinds()
{
    static const QHash<QString, Kind> kinds {
        { QStringLiteral("TfrxReportTitle"), Kind::ReportTitle },
        { QStringLiteral("TfrxPageHeader"), Kind::PageHeader },
        { QStringLiteral("TfrxHeader"), Kind::Header },
        { QStringLiteral("TfrxMasterData"), Kind::MasterData },
        { QStringLiteral("TfrxFooter"), Kind::Footer },
        { QStringLiteral("TfrxGroupHeader"), Kind::GroupHeader },
        { QStringLiteral("TfrxGroupFooter"), Kind::GroupFooter },
        { QStringLiteral("TfrxReportSummary"), Kind::ReportSummary },
        { QStringLiteral("TfrxPageFooter"), Kind::PageFooter },
        { QStringLiteral("TfrxChild"), Kind::Child },
    };
    return kinds;
}

QRectF rectOf(const TemplateNode &node)
{
    return QRectF(node.number(QStringLiteral("Left")), node.number(QStringLiteral("Top")),
        node.number(QStringLiteral("Width")), node.number(QStringLiteral("Height")));
}

Qt::Alignment horizontalOf(const QString &value)
{
    if (value == QLatin1String("haCenter"))
        return Qt::AlignHCenter;
    if (value == QLatin1String("haRight"))
        return Qt::AlignRight;
    if (value == QLatin1String("haBlock"))
        return Qt::AlignJustify;
    return Qt::AlignLeft;
}

Qt::Alignment verticalOf(const QString &value)
{
    if (value == QLatin1String("vaCenter"))
        return Qt::AlignVCenter;
    if (value == QLatin1String("vaBottom"))
        return Qt::AlignBottom;
    return Qt::AlignTop;
}

Frame frameOf(const TemplateNode &node)
{
    Frame frame;
    const QString typ = node.property(QStringLiteral("Frame.Typ"));
    bool ok = false;
    frame.sides = typ.toInt(&ok);
    if (!ok) {
        // Sets written by name: "[ftLeft,ftRight,ftTop,ftBottom]".
        frame.sides = (typ.contains(QLatin1String("ftLeft")) ? FrameLeft : 0)
            | (typ.contains(QLatin1String("ftRight")) ? FrameRight : 0)
            | (typ.contains(QLatin1String("ftTop")) ? FrameTop : 0)
            | (typ.contains(QLatin1String("ftBottom")) ? FrameBottom : 0);
    }
    frame.width = node.number(QStringLiteral("Frame.Width"), 1);
    frame.color = colourFromProperty(node.property(QStringLiteral("Frame.Color")), Qt::black);
    const QString style = node.property(QStringLiteral("Frame.Style"));
    if (style == QLatin1String("fsDash"))
        frame.style = Qt::DashLine;
    else if (style == QLatin1String("fsDot"))
        frame.style = Qt::DotLine;
    return frame;
}

ObjectDesign::Stretch stretchOf(const QString &value)
{
    if (value == QLatin1String("smActualHeight"))
        return ObjectDesign::Stretch::Actual;
    if (value == QLatin1String("smMaxHeight"))
        return ObjectDesign::Stretch::Max;
    return ObjectDesign::Stretch::None;
}

// The text a memo shows: its Text, or the field its DataSet and DataField name.
QString sourceText(const TemplateNode &node)
{
    const QString field = node.property(QStringLiteral("DataField"));
    const QString set
        = node.property(QStringLiteral("DataSetName"), node.property(QStringLiteral("DataSet")));
    if (!field.isEmpty() && !set.isEmpty())
        return QStringLiteral("[%1.\"%2\"]").arg(set, field);
    return memoText(node);
}

QImage pictureOf(const TemplateNode &node, const QString &folder)
{
    const QString data = node.property(QStringLiteral("PictureData"));
    if (!data.isEmpty())
        return QImage::fromData(QByteArray::fromBase64(data.toLatin1()));
    const QString link = node.property(QStringLiteral("FileLink"));
    if (link.isEmpty())
        return QImage();
    return QImage(QDir::isAbsolutePath(link) ? link : QDir(folder).filePath(link));
}

// The designer shows texts as written; printing compiles them.
enum class TextMode { Compiled, AsWritten };

Result<ObjectDesign> memoDesign(const TemplateNode &node, const QFont &bandFont, TextMode mode)
{
    ObjectDesign object;
    object.kind = ObjectDesign::Kind::Memo;
    // AllowExpressions="False" prints the text as it stands, brackets included.
    Result<TemplateText> text
        = node.flag(QStringLiteral("AllowExpressions"), true) && mode == TextMode::Compiled
        ? TemplateText::compile(sourceText(node))
        : Result<TemplateText>(TemplateText::literal(sourceText(node)));
    if (!text)
        return Outcome::refused(texts::objectFault(node.name(), text.message()));
    object.text = text.value();
    object.format
        = DisplayFormat::fromProperties(node.property(QStringLiteral("DisplayFormat.Kind")),
            node.property(QStringLiteral("DisplayFormat.FormatStr")));
    object.hideZeros = node.flag(QStringLiteral("HideZeros"));
    object.style.font
        = node.flag(QStringLiteral("ParentFont")) ? bandFont : fontFromProperties(node, bandFont);
    object.style.color = colourFromProperty(node.property(QStringLiteral("Font.Color")), Qt::black);
    object.style.horizontal = horizontalOf(node.property(QStringLiteral("HAlign")));
    object.style.vertical = verticalOf(node.property(QStringLiteral("VAlign")));
    object.style.wordWrap = node.flag(QStringLiteral("WordWrap"), true);
    object.style.gapX = node.number(QStringLiteral("GapX"), 2);
    object.style.gapY = node.number(QStringLiteral("GapY"), 1);
    object.fill = colourFromProperty(node.property(QStringLiteral("Color")), QColor());
    object.frame = frameOf(node);
    return object;
}

Result<ObjectDesign> barcodeDesign(const TemplateNode &node, TextMode mode)
{
    ObjectDesign object;
    object.kind = ObjectDesign::Kind::Barcode;
    object.barType = node.property(QStringLiteral("BarType"),
        node.tag() == QLatin1String("TfrxBarcode2DView") ? QStringLiteral("bcCodeQR")
                                                         : QStringLiteral("bcCode128"));
    object.showText = node.flag(QStringLiteral("ShowText"), true);
    const QString expression = node.property(QStringLiteral("Expression"));
    const QString source = expression.isEmpty() ? sourceText(node)
                                                : QLatin1Char('[') + expression + QLatin1Char(']');
    Result<TemplateText> text = mode == TextMode::Compiled
        ? TemplateText::compile(source)
        : Result<TemplateText>(TemplateText::literal(source));
    if (!text)
        return Outcome::refused(texts::objectFault(node.name(), text.message()));
    object.text = text.value();
    object.style.font = printFont(QStringLiteral("Arial"), 11);
    return object;
}

// An object of a band; nullopt for elements that are not drawn (unknown kinds are kept in the
// file and skipped here).
Result<std::optional<ObjectDesign>> objectDesign(const TemplateNode &node, const QFont &bandFont,
    const QString &folder, TextMode mode = TextMode::Compiled)
{
    Result<ObjectDesign> object = Outcome::done();
    const QString &tag = node.tag();
    if (tag == QLatin1String("TfrxMemoView") || tag == QLatin1String("TfrxSysMemoView")) {
        object = memoDesign(node, bandFont, mode);
    } else if (tag == QLatin1String("TfrxBarCodeView")
        || tag == QLatin1String("TfrxBarcode2DView")) {
        object = barcodeDesign(node, mode);
    } else if (tag == QLatin1String("TfrxLineView")) {
        ObjectDesign line;
        line.kind = ObjectDesign::Kind::Line;
        line.diagonal = node.flag(QStringLiteral("Diagonal"));
        line.frame = frameOf(node);
        object = line;
    } else if (tag == QLatin1String("TfrxPictureView")) {
        ObjectDesign picture;
        picture.kind = ObjectDesign::Kind::Picture;
        picture.image = pictureOf(node, folder);
        picture.keepAspect = node.flag(QStringLiteral("KeepAspectRatio"), true);
        picture.frame = frameOf(node);
        object = picture;
    } else {
        return std::optional<ObjectDesign>();
    }
    if (!object)
        return object.outcome();
    object->name = node.name();
    object->rect = rectOf(node);
    object->stretch = stretchOf(node.property(QStringLiteral("StretchMode")));
    if (!node.flag(QStringLiteral("Visible"), true))
        return std::optional<ObjectDesign>();
    return std::optional<ObjectDesign>(std::move(object.value()));
}

// "FillRows" is "page" or a number of rows per page.
void readFillRows(const TemplateNode &node, BandDesign &band)
{
    const QString fill = node.property(QStringLiteral("FillRows")).trimmed();
    if (fill.compare(QLatin1String("page"), Qt::CaseInsensitive) == 0)
        band.fillPage = true;
    else
        band.fillRows = std::max(fill.toInt(), 0);
}

Result<BandDesign> bandDesign(
    const TemplateNode &node, Kind kind, const QFont &pageFont, const QString &folder)
{
    BandDesign band;
    band.kind = kind;
    band.name = node.name();
    band.top = node.number(QStringLiteral("Top"));
    band.height = node.number(QStringLiteral("Height"));
    band.stretched = node.flag(QStringLiteral("Stretched"));
    band.child = node.property(QStringLiteral("Child"));
    band.startNewPage = node.flag(QStringLiteral("StartNewPage"));
    band.printOnFirstPage = node.flag(QStringLiteral("PrintOnFirstPage"), true);
    band.printOnLastPage = node.flag(QStringLiteral("PrintOnLastPage"), true);
    band.reprintOnNewPage = node.flag(QStringLiteral("ReprintOnNewPage"));
    band.dataset
        = node.property(QStringLiteral("DataSetName"), node.property(QStringLiteral("DataSet")));
    band.rowCount = int(node.number(QStringLiteral("RowCount"), 1));
    band.columns = std::max(int(node.number(QStringLiteral("Columns"), 1)), 1);
    band.columnWidth = node.number(QStringLiteral("ColumnWidth"), band.height);
    readFillRows(node, band);
    if (kind == Kind::GroupHeader) {
        QString condition = node.property(QStringLiteral("Condition"));
        if (condition.startsWith(QLatin1Char('[')) && condition.endsWith(QLatin1Char(']')))
            condition = condition.mid(1, condition.size() - 2);
        Result<Expression> parsed
            = Expression::parse(condition.isEmpty() ? QStringLiteral("''") : condition);
        if (!parsed)
            return Outcome::refused(texts::objectFault(band.name, parsed.message()));
        band.condition = parsed.value();
    }
    const QFont font
        = node.has(QStringLiteral("Font.Name")) ? fontFromProperties(node, pageFont) : pageFont;
    for (const auto &child : node.children()) {
        Result<std::optional<ObjectDesign>> object = objectDesign(*child, font, folder);
        if (!object)
            return object.outcome();
        if (object.value())
            band.objects.append(std::move(*object.value()));
    }
    return band;
}

Result<PageDesign> pageDesign(
    const TemplateNode &node, const QFont &reportFont, const QString &folder)
{
    PageDesign page;
    page.name = node.name();
    page.paperMm = QSizeF(node.number(QStringLiteral("PaperWidth"), 210),
        node.number(QStringLiteral("PaperHeight"), 297));
    page.marginsMm = QMarginsF(node.number(QStringLiteral("LeftMargin"), 10),
        node.number(QStringLiteral("TopMargin"), 10),
        node.number(QStringLiteral("RightMargin"), 10),
        node.number(QStringLiteral("BottomMargin"), 10));
    page.endless = node.flag(QStringLiteral("EndlessHeight"));
    page.titleBeforeHeader = node.flag(QStringLiteral("TitleBeforeHeader"), true);
    const QFont font
        = node.has(QStringLiteral("Font.Name")) ? fontFromProperties(node, reportFont) : reportFont;
    for (const auto &child : node.children()) {
        const auto kind = bandKinds().constFind(child->tag());
        if (kind == bandKinds().constEnd() || !child->flag(QStringLiteral("Visible"), true))
            continue;
        Result<BandDesign> band = bandDesign(*child, *kind, font, folder);
        if (!band)
            return band.outcome();
        page.bands.append(std::move(band.value()));
    }
    std::stable_sort(page.bands.begin(), page.bands.end(),
        [](const BandDesign &a, const BandDesign &b) { return a.top < b.top; });
    return page;
}

const BandDesign *owningMaster(const PageDesign &page, const BandDesign &band)
{
    for (const MasterDesign &master : page.masters()) {
        if (master.data == &band || master.header == &band || master.footer == &band
            || master.groupHeaders.contains(&band) || master.groupFooters.contains(&band))
            return master.data;
    }
    const QList<MasterDesign> all = page.masters();
    return all.isEmpty() ? nullptr : all.first().data;
}

// Where each aggregate of the page counts its rows and when it starts again.
void bindAggregates(const PageDesign &page, ReportDesign &report)
{
    for (const BandDesign &band : page.bands) {
        const BandDesign *master = owningMaster(page, band);
        for (const ObjectDesign &object : band.objects) {
            for (const ExpressionNode *call : object.text.aggregates()) {
                AggregateBinding binding;
                binding.dataBand
                    = !call->band.isEmpty() ? call->band : (master ? master->name : QString());
                if (band.kind == Kind::PageFooter || band.kind == Kind::PageHeader)
                    binding.reset = (call->flags & 2) ? AggregateBinding::Reset::Never
                                                      : AggregateBinding::Reset::Page;
                else if (band.kind == Kind::GroupFooter || band.kind == Kind::GroupHeader
                    || band.kind == Kind::Footer || band.kind == Kind::Header)
                    binding.reset = (call->flags & 2) ? AggregateBinding::Reset::Never
                                                      : AggregateBinding::Reset::AfterBand;
                binding.resetBand = band.name;
                report.aggregates.insert(call, binding);
            }
        }
    }
}

} // namespace

bool BandDesign::hasAggregates() const
{
    for (const ObjectDesign &object : objects)
        if (!object.text.aggregates().isEmpty())
            return true;
    return false;
}

const BandDesign *PageDesign::band(BandDesign::Kind kind) const
{
    for (const BandDesign &b : bands)
        if (b.kind == kind)
            return &b;
    return nullptr;
}

const BandDesign *PageDesign::bandNamed(const QString &bandName) const
{
    for (const BandDesign &b : bands)
        if (b.name == bandName)
            return &b;
    return nullptr;
}

QList<MasterDesign> PageDesign::masters() const
{
    // Bands belong to the master data band they stand around: headers and group headers above
    // it (after the previous master), group footers and the footer below it (before the next).
    QList<MasterDesign> masters;
    QList<const BandDesign *> pending;
    for (const BandDesign &b : bands) {
        if (b.kind == Kind::Header || b.kind == Kind::GroupHeader) {
            pending.append(&b);
        } else if (b.kind == Kind::MasterData) {
            MasterDesign master;
            master.data = &b;
            for (const BandDesign *p : pending) {
                if (p->kind == Kind::Header)
                    master.header = p;
                else
                    master.groupHeaders.append(p);
            }
            pending.clear();
            masters.append(master);
        } else if (!masters.isEmpty() && b.kind == Kind::GroupFooter) {
            masters.last().groupFooters.prepend(&b);
        } else if (!masters.isEmpty() && b.kind == Kind::Footer && !masters.last().footer) {
            masters.last().footer = &b;
        }
    }
    for (MasterDesign &master : masters)
        while (master.groupFooters.size() > master.groupHeaders.size())
            master.groupFooters.removeFirst();
    return masters;
}

Result<ReportDesign> compileTemplate(const ReportTemplate &report, const QString &folder)
{
    ReportDesign design;
    if (const TemplateNode *variables = report.root->child(QStringLiteral("Variables")))
        for (const auto &item : variables->children())
            if (!item->name().startsWith(QLatin1Char(' ')))
                design.variableDefaults.insert(
                    item->name(), item->property(QStringLiteral("Value")));
    const QFont reportFont = defaultReportFont();
    for (const TemplateNode *node : report.pages()) {
        Result<PageDesign> page = pageDesign(*node, reportFont, folder);
        if (!page)
            return page.outcome();
        design.pages.append(std::move(page.value()));
    }
    for (const PageDesign &page : design.pages) {
        bindAggregates(page, design);
        for (const BandDesign &band : page.bands)
            for (const ObjectDesign &object : band.objects)
                if (object.text.mentions(SystemValue::TotalPages))
                    design.usesTotalPages = true;
    }
    return design;
}

std::optional<ObjectDesign> objectAsWritten(const TemplateNode &node, const QString &folder)
{
    const TemplateNode *band = node.parent();
    const QFont font = band && band->has(QStringLiteral("Font.Name"))
        ? fontFromProperties(*band, defaultReportFont())
        : defaultReportFont();
    Result<std::optional<ObjectDesign>> object
        = objectDesign(node, font, folder, TextMode::AsWritten);
    return object ? object.value() : std::nullopt;
}

QFont defaultReportFont()
{
    return printFont(QStringLiteral("宋体"), 13);
}

QColor colourFromProperty(const QString &value, const QColor &fallback)
{
    static const QHash<QString, QColor> names {
        { QStringLiteral("clBlack"), Qt::black },
        { QStringLiteral("clWhite"), Qt::white },
        { QStringLiteral("clRed"), Qt::red },
        { QStringLiteral("clGreen"), QColor(0, 128, 0) },
        { QStringLiteral("clBlue"), Qt::blue },
        { QStringLiteral("clNavy"), QColor(0, 0, 128) },
        { QStringLiteral("clMaroon"), QColor(128, 0, 0) },
        { QStringLiteral("clGray"), QColor(128, 128, 128) },
        { QStringLiteral("clSilver"), QColor(192, 192, 192) },
        { QStringLiteral("clBtnFace"), QColor(240, 240, 240) },
        { QStringLiteral("clWindow"), Qt::white },
        { QStringLiteral("clWindowText"), Qt::black },
    };
    if (value.isEmpty())
        return fallback;
    if (value == QLatin1String("clNone"))
        return QColor();
    const auto named = names.constFind(value);
    if (named != names.constEnd())
        return *named;
    bool ok = false;
    const qint64 bgr = value.toLongLong(&ok);
    if (!ok || bgr < 0 || bgr > 0xFFFFFF)
        return fallback;
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

QFont fontFromProperties(const TemplateNode &node, const QFont &fallback)
{
    const QString name = node.property(QStringLiteral("Font.Name"));
    if (name.isEmpty() && !node.has(QStringLiteral("Font.Height")))
        return fallback;
    int pixels = std::abs(int(node.number(QStringLiteral("Font.Height"), 0)));
    if (pixels == 0 && node.has(QStringLiteral("Font.Size")))
        pixels = qRound(node.number(QStringLiteral("Font.Size")) * 96.0 / 72.0);
    if (pixels == 0)
        pixels = fallback.pixelSize() > 0 ? fallback.pixelSize() : 13;
    const int style = int(node.number(QStringLiteral("Font.Style"), 0));
    return printFont(name.isEmpty() ? fallback.family() : name, pixels, style & 1, style & 2,
        style & 4, style & 8);
}

} // namespace medistock::reports
