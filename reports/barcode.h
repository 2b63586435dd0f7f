#pragma once

#include <QList>
#include <QRectF>
#include <QString>

namespace medistock::reports {

// A symbol drawn as filled rectangles in its own units (zint's X dimension), with its size.
struct BarcodeSymbol
{
    QList<QRectF> bars;
    QSizeF size;
    QString error; // why nothing could be encoded; empty when it could
    bool twoDimensional = false;
};

// Encodes data with the symbol a template's BarType names: bcCode128 (and its A/B/C forms),
// bcCode39, bcCode39Extended, bcCode93, bcCodeEAN8, bcCodeEAN13, bcCodeUPC_A, bcCodeUPC_E0,
// bcCode2_5_interleaved, bcCodeCodabar, bcCodeITF14, bcCodeMSI, and the two-dimensional
// bcCodeQR, bcCodePDF417, bcCodeDataMatrix. An unknown type encodes as Code 128.
BarcodeSymbol encodeBarcode(const QString &barType, const QString &data);

// The bars of a symbol fitted into a rectangle: a linear code fills its width and height, a
// two-dimensional one keeps its squares and sits in the middle.
QList<QRectF> fitBarcode(const BarcodeSymbol &symbol, const QRectF &into);

} // namespace medistock::reports
