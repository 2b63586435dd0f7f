#include "reports/barcode.h"

#include <QHash>

#include <zint.h>

#include <memory>

namespace medistock::reports {

namespace {

struct Symbology
{
    int id;
    bool twoDimensional;
};

Symbology symbologyOf(const QString &barType)
{
    static const QHash<QString, Symbology> table {
        { QStringLiteral("bccode128"), { BARCODE_CODE128, false } },
        { QStringLiteral("bccode128a"), { BARCODE_CODE128, false } },
        { QStringLiteral("bccode128b"), { BARCODE_CODE128B, false } },
        { QStringLiteral("bccode128c"), { BARCODE_CODE128, false } },
        { QStringLiteral("bccode39"), { BARCODE_CODE39, false } },
        { QStringLiteral("bccode39extended"), { BARCODE_EXCODE39, false } },
        { QStringLiteral("bccode93"), { BARCODE_CODE93, false } },
        { QStringLiteral("bccodeean8"), { BARCODE_EANX, false } },
        { QStringLiteral("bccodeean13"), { BARCODE_EANX, false } },
        { QStringLiteral("bccodeupc_a"), { BARCODE_UPCA, false } },
        { QStringLiteral("bccodeupc_e0"), { BARCODE_UPCE, false } },
        { QStringLiteral("bccode2_5_interleaved"), { BARCODE_C25INTER, false } },
        { QStringLiteral("bccodecodabar"), { BARCODE_CODABAR, false } },
        { QStringLiteral("bccodeitf14"), { BARCODE_ITF14, false } },
        { QStringLiteral("bccodemsi"), { BARCODE_MSI_PLESSEY, false } },
        { QStringLiteral("bccodeqr"), { BARCODE_QRCODE, true } },
        { QStringLiteral("bccodepdf417"), { BARCODE_PDF417, true } },
        { QStringLiteral("bccodedatamatrix"), { BARCODE_DATAMATRIX, true } },
    };
    return table.value(barType.toLower(), { BARCODE_CODE128, false });
}

struct SymbolDeleter
{
    void operator()(zint_symbol *symbol) const { ZBarcode_Delete(symbol); }
};

} // namespace

BarcodeSymbol encodeBarcode(const QString &barType, const QString &data)
{
    BarcodeSymbol result;
    const Symbology symbology = symbologyOf(barType);
    result.twoDimensional = symbology.twoDimensional;
    std::unique_ptr<zint_symbol, SymbolDeleter> symbol(ZBarcode_Create());
    if (!symbol) {
        result.error = QStringLiteral("out of memory");
        return result;
    }
    symbol->symbology = symbology.id;
    symbol->show_hrt = 0; // the readable text is ours, in the template's font
    symbol->input_mode = UNICODE_MODE;
    const QByteArray bytes = data.toUtf8();
    const int status = ZBarcode_Encode_and_Buffer_Vector(symbol.get(),
        reinterpret_cast<const unsigned char *>(bytes.constData()), int(bytes.size()), 0);
    if (status >= ZINT_ERROR || !symbol->vector) {
        result.error = QString::fromLatin1(symbol->errtxt);
        return result;
    }
    result.size = QSizeF(symbol->vector->width, symbol->vector->height);
    for (const zint_vector_rect *r = symbol->vector->rectangles; r; r = r->next)
        if (r->colour == -1 || r->colour == 7)
            result.bars.append(QRectF(r->x, r->y, r->width, r->height));
    return result;
}

QList<QRectF> fitBarcode(const BarcodeSymbol &symbol, const QRectF &into)
{
    QList<QRectF> fitted;
    if (symbol.size.isEmpty() || into.isEmpty())
        return fitted;
    double sx = into.width() / symbol.size.width();
    double sy = into.height() / symbol.size.height();
    QPointF origin = into.topLeft();
    if (symbol.twoDimensional) {
        sx = sy = std::min(sx, sy);
        origin += QPointF((into.width() - symbol.size.width() * sx) / 2,
            (into.height() - symbol.size.height() * sy) / 2);
    }
    fitted.reserve(symbol.bars.size());
    for (const QRectF &bar : symbol.bars)
        fitted.append(QRectF(origin.x() + bar.x() * sx, origin.y() + bar.y() * sy, bar.width() * sx,
            bar.height() * sy));
    return fitted;
}

} // namespace medistock::reports
