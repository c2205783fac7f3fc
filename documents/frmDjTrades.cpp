#include "documents/frmDjTrades.h"

#include "base/text.h"
#include "controls/view.h"
#include "forms/columns.h"

namespace jxc {

namespace {

enum TradeColumn { kWith = 1, kDate, kType, kNumber, kCustomer, kQuantity, kPrice, kCurrency };

GridColumn Shown(std::string caption, double width) {
    return {.caption = std::move(caption), .width = width, .locked = true};
}

GridColumn Number(std::string caption, Figure figure) {
    return {.caption = std::move(caption),
            .type = CellType::Number,
            .decimals = DecimalsOf({.caption = {}, .field = {}, .figure = figure}),
            .width = 10,
            .locked = true,
            .alignment = Alignment::Right};
}

} // namespace

frmDjTrades::frmDjTrades() : Screen("frmDjTrades") {
    title = "最近交易";
    Grid1.onSelect = [this](int row) { cmdTake.enabled = MayTake(row); };
    Grid1.onDoubleClick = [this](int) { Take(); };
    cmdTake.onClick = [this] { Take(); };
    cmdQuit.onClick = [this] { Close(); };
}

void frmDjTrades::Open() {
    taken.reset();
    Grid1.SetColumns({Shown("往来", 8), Shown("日期", 10), Shown("单据类", 10), Shown("单号", 15),
                      Shown("客户", 24), Number("数量", Figure::Quantity), Number("单价", Figure::Price),
                      Shown("货币", 8)});
    Grid1.readOnly = true;
    Grid1.SetRowCount(static_cast<int>(trades.size()));
    for (int row = 1; const Trade& trade : trades) {
        Grid1.FillCell(row, kWith, trade.withCustomer ? "本客户" : "全部");
        Grid1.FillCell(row, kDate, trade.date);
        Grid1.FillCell(row, kType, trade.type);
        Grid1.FillCell(row, kNumber, trade.number);
        Grid1.FillCell(row, kCustomer, trade.customer);
        Grid1.FillCell(row, kQuantity, trade.quantity);
        Grid1.FillCell(row, kPrice, trade.price);
        Grid1.FillCell(row, kCurrency, trade.currency.empty() ? homeName : trade.currency);
        ++row;
    }
    Grid1.selectedRow = trades.empty() ? 0 : 1;
    cmdTake.enabled = MayTake(Grid1.selectedRow);
    MoveFocus(&Grid1);
}

bool frmDjTrades::MayTake(int row) const {
    return row > 0 && !currency.empty() && EqualsNoCase(Grid1.Text(row, kCurrency), currency);
}

void frmDjTrades::Take() {
    if (!MayTake(Grid1.selectedRow))
        return CurrentView().Signal(currency.empty() ? "这里不能输入单价。" : "货币不同，不能取用该单价。");
    taken = Grid1.Number(Grid1.selectedRow, kPrice);
    Close();
}

Arrangement frmDjTrades::Arrange() {
    return {
        .grid = &Grid1, .commands = {&cmdTake}, .closingCommands = {&cmdQuit}, .width = 900, .height = 320};
}

} // namespace jxc
