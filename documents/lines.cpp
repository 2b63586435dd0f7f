#include "documents/lines.h"

#include "core/rounding.h"
#include "shell/parameters.h"

namespace medistock::documents {

LineRounding LineRounding::of(const shell::Parameters &params)
{
    return { params.priceDecimals(), params.quantityDecimals(), params.amountDecimals() };
}

LineFigures computeLine(const LineInput &input, const LineRounding &rounding)
{
    LineFigures f;
    f.quantity = core::roundTo(input.quantity, rounding.quantity);
    f.factor = input.factor;
    f.baseQuantity = core::roundTo(f.quantity * f.factor, rounding.quantity);
    f.price = core::roundTo(input.price, rounding.price);
    f.taxRate = input.taxRate;
    f.taxedPrice = core::roundTo(f.price * (1 + f.taxRate / 100), rounding.price);
    f.discountRate = input.discountRate;
    f.amount = core::roundTo(f.price * f.quantity * f.discountRate, rounding.amount);
    f.total = core::roundTo(f.taxedPrice * f.quantity * f.discountRate, rounding.amount);
    // Both terms are already rounded; rounding again only clears the binary remainder.
    f.tax = core::roundTo(f.total - f.amount, rounding.amount);
    return f;
}

} // namespace medistock::documents
