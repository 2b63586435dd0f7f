#pragma once

#include "masterdata/goods.h"
#include "ui/masterdata/masterdialog.h"

class QTableWidget;

namespace medistock::ui {

// The goods dialog: the goods' columns on their tabs (basic data, prices and price levels, GSP
// data, stock figures read-only), then its auxiliary units, further barcodes and named prices.
// Everything is saved in one go; preset prices and commissions stay read-only on an existing
// goods for an operator without "允许修改预设售价,进价" or "允许设置商品提成".
class GoodsDialog : public MasterRowDialog
{
    Q_OBJECT
public:
    // `code` empty: a new goods, in the class `classCode` when one is given.
    GoodsDialog(const shell::Session &session, const QString &code, const QString &classCode = {},
        QWidget *parent = nullptr);

    LookupBox *unitNameField() const { return m_unitName; }
    QLineEdit *unitFactorField() const { return m_unitFactor; }
    QLineEdit *unitBarcodeField() const { return m_unitBarcode; }
    QLineEdit *unitPurchaseField() const { return m_unitPurchase; }
    QLineEdit *unitSaleField() const { return m_unitSale; }
    QTableWidget *unitGrid() const { return m_unitGrid; }
    QLineEdit *barcodeField() const { return m_barcode; }
    QLineEdit *barcodeRemarkField() const { return m_barcodeRemark; }
    QTableWidget *barcodeGrid() const { return m_barcodeGrid; }
    QLineEdit *priceNameField() const { return m_priceName; }
    QLineEdit *priceField() const { return m_price; }
    QTableWidget *priceGrid() const { return m_priceGrid; }

public slots:
    void addUnit();
    void removeUnit();
    void addBarcode();
    void removeBarcode();
    void addPrice();
    void removePrice();

protected:
    Result<QString> write(const masterdata::Values &values) override;

private:
    QWidget *buildUnitsPage();
    QWidget *buildBarcodesPage();
    QWidget *buildPricesPage();
    void showLines();
    // A number typed into a line field; tells why not and returns false when it is none.
    // A number of a unit or a named price, read as saving reads it; a refusal is told.
    bool readNumber(
        const QLineEdit *field, const char *table, const char *column, double &number) const;

    QList<masterdata::GoodsUnit> m_units;
    QList<masterdata::GoodsBarcode> m_barcodes;
    QList<QPair<QString, double>> m_prices;
    LookupBox *m_unitName = nullptr;
    QLineEdit *m_unitFactor = nullptr;
    QLineEdit *m_unitBarcode = nullptr;
    QLineEdit *m_unitPurchase = nullptr;
    QLineEdit *m_unitSale = nullptr;
    QTableWidget *m_unitGrid = nullptr;
    QLineEdit *m_barcode = nullptr;
    QLineEdit *m_barcodeRemark = nullptr;
    QTableWidget *m_barcodeGrid = nullptr;
    QLineEdit *m_priceName = nullptr;
    QLineEdit *m_price = nullptr;
    QTableWidget *m_priceGrid = nullptr;
};

} // namespace medistock::ui
