#include "documents/document_model.h"

#include <cstdlib>

#include "base/text.h"
#include "documents/document_data.h"
#include "documents/figure_bounds.h"

namespace jxc {

namespace {

constexpr Color kRed = 255;
constexpr int kMemoBytes = 50;

GridColumn Number(std::string caption, int decimals, double width = 10) {
    return {.caption = std::move(caption),
            .type = CellType::Number,
            .decimals = decimals,
            .width = width,
            .alignment = Alignment::Right};
}

GridColumn Bounded(const TypeRow& type, int place, int decimals, double bound, double width = 10) {
    GridColumn column = Number(FigureCaption(type, place), decimals, width);
    column.below = bound;
    return column;
}

std::vector<GridColumn> LineColumns(const TypeRow& type, const Parameters& parameters) {
    const bool stocktake = type.IsStocktake();
    std::vector<GridColumn> columns{
        {.caption = "编码", .width = 12},
        {.caption = "品名规格", .width = 28},
        {.caption = "单位", .width = 6},
        Number(stocktake ? "帐面数" : "库存数", parameters.quantityDecimals),
        Bounded(type, line::kCounted, parameters.quantityDecimals, below::kQuantity),
        Bounded(type, line::kQuantity, parameters.quantityDecimals, below::kQuantity),
        Number("参考价", parameters.priceDecimals),
        Number("折扣率", 4),
        Bounded(type, line::kPrice, parameters.priceDecimals, below::kPrice),
        Bounded(type, line::kAmount, kAmountDecimals, below::kAmount, 12),
        Bounded(type, line::kTaxRate, kTaxRateDecimals, below::kTaxRate, 8),
        Bounded(type, line::kTax, kAmountDecimals, below::kAmount),
        {.caption = parameters.memo1, .width = 14, .maxBytes = kMemoBytes},
        {.caption = parameters.memo2, .width = 14, .maxBytes = kMemoBytes},
        Number("结余数", parameters.quantityDecimals),
        Number("fID", 0),
    };
    return columns;
}

void HideColumns(Grid& grid, const TypeRow& type, const Parameters& parameters, DocAction action) {
    const auto hide = [&](int column, bool hidden) { grid.Column(column).hidden = hidden; };
    const bool noTax = !type.fSetHbSl_ || parameters.taxWay == TaxWay::None;
    hide(line::kStock, !type.fSetKc_ && !type.IsStocktake());
    hide(line::kCounted, !type.IsStocktake());
    hide(line::kReference, type.fSetDjType1 == kNoChoice);
    hide(line::kDiscount, true);
    hide(line::kTaxRate, noTax);
    hide(line::kTax, noTax);
    hide(line::kMemo1, parameters.memo1.empty());
    hide(line::kMemo2, parameters.memo2.empty());
    hide(line::kBalance, !type.fSetJy_ || action == DocAction::New);
    hide(line::kProduct, true);
}

void SetFormulas(Grid& grid, const TypeRow& type, const Parameters& parameters, DocAction action) {
    if (!IsEditing(action)) {
        if (type.IsStocktake())
            grid.SetFormula(line::kCounted, "F#+D#");
        return;
    }
    grid.SetFormula(line::kAmount, "F#*I#");
    if (type.fSetDjType2 == PriceKind::Discounted) {
        grid.SetFormula(line::kPrice, "G#*H#");
        grid.Column(line::kPrice).rounded = true; // the amount is that of the price that is seen and stored
    }
    if (type.IsStocktake())
        grid.SetFormula(line::kQuantity, "E#-D#");
    if (parameters.taxWay == TaxWay::OnTop)
        grid.SetFormula(line::kTax, "J#*K#");
    else if (parameters.taxWay == TaxWay::Contained)
        grid.SetFormula(line::kTax, "J#*K#/(1+K#)");
}

} // namespace

void SetUpLineGrid(Grid& grid, const TypeRow& type, const Parameters& parameters, DocAction action) {
    grid.SetColumns(LineColumns(type, parameters));
    HideColumns(grid, type, parameters, action);
    SetFormulas(grid, type, parameters, action);
    for (const int column : {line::kUnit, line::kStock, line::kReference, line::kAmount, line::kTax})
        grid.Column(column).locked = true;
    grid.Column(line::kQuantity).locked = type.IsStocktake();
    grid.Column(line::kQuantity).textColor = type.fSetDjBack_ ? kRed : kNormalColor;
    if (type.IsStocktake())
        grid.enterColumns = {line::kCode, line::kCounted};
    else
        grid.enterColumns = {line::kCode, line::kQuantity, line::kPrice};
    grid.readOnly = !IsEditing(action);
}

std::string FigureCaption(const TypeRow& type, int column) {
    switch (column) {
    case line::kCounted:
        return "实盘数";
    case line::kQuantity:
        return type.IsStocktake() ? "盈亏数" : "数量";
    case line::kPrice:
        return "单价";
    case line::kAmount:
        return "金额";
    case line::kTaxRate:
        return "税率";
    default:
        return "税额";
    }
}

double DocumentTotal(const Grid& grid) {
    double total = 0;
    for (int row = 1; row <= grid.RowCount(); ++row)
        total += RoundDecimal(grid.Number(row, line::kAmount), kAmountDecimals);
    return RoundDecimal(total, kAmountDecimals);
}

double ReferenceTotal(const Grid& grid) {
    double total = 0;
    for (int row = 1; row <= grid.RowCount(); ++row)
        total += grid.Number(row, line::kQuantity) * grid.Number(row, line::kReference);
    return total;
}

int DirectionOfFirstRow(const TypeRow& type) {
    return type.IsKit() || type.fSetCrType1 > 0 ? type.fSetCrType1 : kNoChoice;
}

int DirectionOfSecondRow(const TypeRow& type) {
    if (!type.IsKit() && type.fSetCrType1 <= 0)
        return kNoChoice;
    return type.fSetCrType1 == Direction::Out ? Direction::In : Direction::Out;
}

std::string PriceField(int priceKind) {
    const bool isProducts = priceKind >= PriceKind::Cost && priceKind <= PriceKind::Retail;
    return isProducts ? "fCpPrice" + std::to_string(priceKind - PriceKind::Cost) : "";
}

std::string LinePriceField(const TypeRow& type) {
    const std::string price = PriceField(type.fSetDjType2);
    return price.empty() ? PriceField(type.fSetDjType1) : price;
}

std::string CustomerCaption(const TypeRow& type) {
    return type.fSetKhType == Partner::Supplier ? "供应商"
           : type.fSetKhType == Partner::Dealer ? "销售商"
                                                : "客户";
}

std::string AddressCaption(const TypeRow& type) {
    const bool incoming = std::abs(type.fSetNo) == DocType::Receipt ||
                          type.fSetNo == DocType::PurchaseOrder || type.fSetNo == DocType::Enquiry;
    return incoming ? "发货地址" : "送货地址";
}

std::string PaymentCaption(const TypeRow& type) {
    return type.fSetCrType1 == Direction::Out  ? "实收金额"
           : type.fSetCrType1 == Direction::In ? "实付金额"
                                               : "";
}

std::string FirstWarehouseCaption(const TypeRow& type) {
    return type.fSetCkName1.empty() ? "仓库" : type.fSetCkName1;
}
std::string SecondWarehouseCaption(const TypeRow& type) {
    return type.fSetCkName2.empty() ? "入库" : type.fSetCkName2;
}

int OrderTypeFor(int type) {
    switch (std::abs(type)) {
    case DocType::Receipt:
        return DocType::PurchaseOrder;
    case DocType::Issue:
    case DocType::Dispatch:
    case DocType::Assembly:
        return DocType::SalesOrder;
    default:
        return 0;
    }
}

} // namespace jxc
