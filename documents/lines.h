#pragma once

namespace medistock::shell {
class Parameters;
}

namespace medistock::documents {

// The figures of one document line, computed by one routine for every kind of document:
//   base quantity      = quantity x unit factor
//   price incl. tax    = price x (1 + tax rate / 100)
//   amount before tax  = price x quantity x discount rate
//   total              = price incl. tax x quantity x discount rate
//   tax                = total - amount before tax
// Each is rounded as it is computed (round(x + 0.000000001, n)): prices to the price places
// (cs_cbjs), quantities to the quantity places (cs_xsws) and amounts to the amount places
// (cs_jews). The total takes the rounded price incl. tax, the one the document shows, so that a
// reader can redo the multiplication; the quantity and price typed are rounded first as well.

struct LineInput
{
    double quantity = 0; // in the line's unit
    double factor = 1; // base units per line unit
    double price = 0; // per line unit, before tax
    double taxRate = 0; // percent
    double discountRate = 1; // 1 = no discount
};

struct LineFigures
{
    double quantity = 0;
    double factor = 1;
    double baseQuantity = 0;
    double price = 0;
    double taxRate = 0;
    double taxedPrice = 0;
    double discountRate = 1;
    double amount = 0; // before tax
    double total = 0; // including tax
    double tax = 0;
};

// Decimal places of the three kinds of figure.
struct LineRounding
{
    int price = 2;
    int quantity = 2;
    int amount = 2;
    static LineRounding of(const shell::Parameters &params);
};

LineFigures computeLine(const LineInput &input, const LineRounding &rounding);

} // namespace medistock::documents
