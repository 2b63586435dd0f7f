#include "core/spreadsheet.h"

#include <QHash>
#include <QXmlStreamReader>

#include <xlsxwriter.h>
#include <zip.h>

#include <memory>
#include <optional>

namespace medistock::core {

namespace {

QString cannotWrite(const QString &path)
{
    return QStringLiteral("无法写入文件：") + path;
}
QString notASpreadsheet(const QString &path)
{
    return QStringLiteral("文件不是有效的 Excel（.xlsx）文件：") + path;
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

// The whole of one member of the zip file, or an empty optional when it is missing.
std::optional<QByteArray> readMember(zip_t *archive, const char *name)
{
    zip_stat_t stat;
    if (zip_stat(archive, name, 0, &stat) != 0)
        return std::nullopt;
    std::unique_ptr<zip_file_t, int (*)(zip_file_t *)> file(
        zip_fopen(archive, name, 0), zip_fclose);
    if (!file)
        return std::nullopt;
    QByteArray data(qsizetype(stat.size), Qt::Uninitialized);
    if (zip_fread(file.get(), data.data(), stat.size) != zip_int64_t(stat.size))
        return std::nullopt;
    return data;
}

QStringList sharedStrings(const QByteArray &xml)
{
    QStringList strings;
    QXmlStreamReader reader(xml);
    QString current;
    bool inItem = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("si")) {
            inItem = true;
            current.clear();
        } else if (reader.isEndElement() && reader.name() == QLatin1String("si")) {
            strings.append(current);
            inItem = false;
        } else if (inItem && reader.isStartElement() && reader.name() == QLatin1String("t")) {
            current += reader.readElementText();
        }
    }
    return strings;
}

// The path inside the zip of the workbook's first sheet.
QString firstSheetPath(zip_t *archive)
{
    const auto workbook = readMember(archive, "xl/workbook.xml");
    const auto relations = readMember(archive, "xl/_rels/workbook.xml.rels");
    if (!workbook || !relations)
        return QStringLiteral("xl/worksheets/sheet1.xml");
    QString relationId;
    for (QXmlStreamReader reader(*workbook); !reader.atEnd() && relationId.isEmpty();) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("sheet"))
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                if (attribute.name() == QLatin1String("id"))
                    relationId = attribute.value().toString();
    }
    for (QXmlStreamReader reader(*relations); !reader.atEnd();) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("Relationship")
            && reader.attributes().value(QLatin1String("Id")) == relationId) {
            const QString target = reader.attributes().value(QLatin1String("Target")).toString();
            return target.startsWith(QLatin1Char('/')) ? target.mid(1)
                                                       : QStringLiteral("xl/") + target;
        }
    }
    return QStringLiteral("xl/worksheets/sheet1.xml");
}

int columnIndex(const QString &reference)
{
    int index = 0;
    for (QChar c : reference) {
        if (!c.isLetter())
            break;
        index = index * 26 + (c.toUpper().unicode() - 'A' + 1);
    }
    return index - 1;
}

QString numberText(const QString &raw)
{
    bool ok = false;
    const double value = raw.toDouble(&ok);
    return ok ? QString::number(value, 'g', 15) : raw;
}

QList<QStringList> sheetRows(const QByteArray &xml, const QStringList &strings)
{
    QList<QStringList> rows;
    QXmlStreamReader reader(xml);
    QStringList row;
    int column = 0;
    QString type;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("row")) {
            row.clear();
            column = 0;
        } else if (reader.isEndElement() && reader.name() == QLatin1String("row")) {
            rows.append(row);
        } else if (reader.isStartElement() && reader.name() == QLatin1String("c")) {
            const QString reference = reader.attributes().value(QLatin1String("r")).toString();
            if (!reference.isEmpty())
                column = columnIndex(reference);
            type = reader.attributes().value(QLatin1String("t")).toString();
            while (row.size() <= column)
                row.append(QString());
        } else if (reader.isEndElement() && reader.name() == QLatin1String("c")) {
            ++column;
        } else if (reader.isStartElement()
            && (reader.name() == QLatin1String("v") || reader.name() == QLatin1String("t"))) {
            const QString raw = reader.readElementText();
            if (type == QLatin1String("s"))
                row[column] = strings.value(raw.toInt());
            else if (type.isEmpty() || type == QLatin1String("n"))
                row[column] = numberText(raw);
            else
                row[column] += raw;
        }
    }
    while (!rows.isEmpty() && rows.last().join(QString()).trimmed().isEmpty())
        rows.removeLast();
    return rows;
}

} // namespace

Outcome writeXlsx(const QString &path, const QString &sheetName, const QStringList &headers,
    const QList<QVariantList> &rows)
{
    const QByteArray file = path.toUtf8();
    lxw_workbook *workbook = workbook_new(file.constData());
    if (!workbook)
        return Outcome::failed(cannotWrite(path));
    lxw_worksheet *sheet
        = workbook_add_worksheet(workbook, sheetName.left(31).toUtf8().constData());
    lxw_format *bold = workbook_add_format(workbook);
    format_set_bold(bold);
    for (int c = 0; c < headers.size(); ++c) {
        worksheet_write_string(sheet, 0, lxw_col_t(c), headers.at(c).toUtf8().constData(), bold);
        worksheet_set_column(sheet, lxw_col_t(c), lxw_col_t(c), 14, nullptr);
    }
    for (int r = 0; r < rows.size(); ++r) {
        const QVariantList &row = rows.at(r);
        for (int c = 0; c < row.size(); ++c) {
            const QVariant &value = row.at(c);
            if (isNumber(value))
                worksheet_write_number(
                    sheet, lxw_row_t(r + 1), lxw_col_t(c), value.toDouble(), nullptr);
            else if (!value.toString().isEmpty())
                worksheet_write_string(sheet, lxw_row_t(r + 1), lxw_col_t(c),
                    value.toString().toUtf8().constData(), nullptr);
        }
    }
    if (workbook_close(workbook) != LXW_NO_ERROR)
        return Outcome::failed(cannotWrite(path));
    return Outcome::done();
}

Result<QList<QStringList>> readXlsx(const QString &path)
{
    int error = 0;
    std::unique_ptr<zip_t, int (*)(zip_t *)> archive(
        zip_open(path.toUtf8().constData(), ZIP_RDONLY, &error), zip_close);
    if (!archive)
        return Outcome::refused(notASpreadsheet(path));
    const auto strings = readMember(archive.get(), "xl/sharedStrings.xml");
    const auto sheet
        = readMember(archive.get(), firstSheetPath(archive.get()).toUtf8().constData());
    if (!sheet)
        return Outcome::refused(notASpreadsheet(path));
    return sheetRows(*sheet, strings ? sharedStrings(*strings) : QStringList());
}

} // namespace medistock::core
