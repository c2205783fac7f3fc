// The list of documents, or of their lines: found by any combination of filters, opened, approved, turned
// into the next document of the chain. Opened by document entry it is the picker of a source document. It
// writes nothing itself: what changes a document goes through frmDj02.
//
// An opener sets invType: a type below 99 lists that type, 99 lists all, a type plus 200 picks one of it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/screen.h"
#include "forms/columns.h"
#include "forms/filters.h"
#include "forms/list_sums.h"
#include "forms/lookup_fields.h"

namespace jxc {

enum class ListMode { OneType, AllTypes, Picker };

// A menu item that makes a document of type `target` from one of type `source`.
struct ConversionItem : MenuItem {
    ConversionItem(Screen& screen, std::string name, std::string caption, int source, int target)
        : MenuItem(screen, std::move(name), std::move(caption)), source(source), target(target) {}
    const int source;
    const int target;
};

// What a query asks: its statement, the stem of the book it reads, and whether it gives lines or documents.
struct ListQuery {
    std::string sql = {};
    std::string stem = {};
    bool lines = false;
    // What the filters read then, for the print-out; nothing of those that were not ticked.
    std::optional<Date> from = {};
    std::optional<Date> to = {};
    std::string warehouse = {};
};

struct frmDj01 : Screen {
    frmDj01();
    void Open() override;

    Tabs SSTab1{*this, "SSTab1", {"单据列表", "明细列表", "查询条件"}};
    Grid Grid1{*this, "Grid1"}; // documents
    Grid Grid2{*this, "Grid2"}; // lines
    // Below the grids: how many rows, how much and, in home currency, for what.
    Label lblSums[2]{{*this, "lblSums(0)"}, {*this, "lblSums(1)"}};

    // What is listed: each box opens its tab. With both ticked a query gives documents.
    CheckBox chkDj{*this, "chkDj", "查询[单据]", true};
    CheckBox chkDjMx{*this, "chkDjMx", "查询[单据明细]", true};
    CheckBox chkJz{*this, "chkJz", "查询[已结单据库]"};

    // The filters, each with its box.
    OptionButton optSelect[3]{{*this, "optSelect(0)", "optSelect", "[未审]"},
                              {*this, "optSelect(1)", "optSelect", "[已审]"},
                              {*this, "optSelect(2)", "optSelect", "所有单据", true}};
    CheckBox chkInvType{*this, "chkInvType", "单据类型"};
    DocumentTypeField cboInvType{*this, "cboInvType"}; // number in 3 characters, name behind
    CheckBox chkCrType{*this, "chkCrType", "出入方式"};
    ListBox cboCrType{*this, "cboCrType"};
    // One name for all three: the first box that is ticked counts.
    CheckBox chkJbr[3]{
        {*this, "chkJbr(0)", "登录人"}, {*this, "chkJbr(1)", "经办人"}, {*this, "chkJbr(2)", "审核人"}};
    HandlerField cboInvJbr{*this, "cboInvJbr"};
    CheckBox chkHb{*this, "chkHb", "货币"};
    CurrencyField cboHb{*this, "cboHb"};
    CheckBox chkDate{*this, "chkDate", "日期"};
    DateRange dtpDate{*this, "dtpDate"};
    CheckBox chkDh{*this, "chkDh", "单号"};
    PatternField txtDh{*this, "txtDh"};
    CheckBox chkDd{*this, "chkDd", "订单号"};
    PatternField txtDd{*this, "txtDd"};
    CheckBox chkKh{*this, "chkKh", "客户"};
    PatternField txtKh{*this, "txtKh"};
    CheckBox chkZy{*this, "chkZy", "摘要"};
    PatternField txtZy{*this, "txtZy"};
    CheckBox chkCk[2]{{*this, "chkCk(0)", "仓库1"}, {*this, "chkCk(1)", "仓库2"}};
    WarehouseField cboCk[2]{{*this, "cboCk(0)", true}, {*this, "cboCk(1)"}}; // the first takes a pattern too
    // Code, name or specification, category, origin, location.
    CheckBox chkCp[5]{{*this, "chkCp(0)", "产品编码"},
                      {*this, "chkCp(1)", "品名规格"},
                      {*this, "chkCp(2)"},
                      {*this, "chkCp(3)"},
                      {*this, "chkCp(4)", "限用仓位"}};
    PatternField txtCp[5]{{*this, "txtCp(0)"},
                          {*this, "txtCp(1)"},
                          {*this, "txtCp(2)"},
                          {*this, "txtCp(3)"},
                          {*this, "txtCp(4)"}};
    // The two memos of a line, called as the company calls them.
    CheckBox chkBz[2]{{*this, "chkBz(0)"}, {*this, "chkBz(1)"}};
    PatternField txtBz[2]{{*this, "txtBz(0)"}, {*this, "txtBz(1)"}};
    CheckBox chkPrice[2]{{*this, "chkPrice(0)", "单价"}, {*this, "chkPrice(1)", "金额"}};
    ListBox cboPrice[2]{{*this, "cboPrice(0)"}, {*this, "cboPrice(1)"}}; // operators
    PatternField txtPrice[2]{{*this, "txtPrice(0)"}, {*this, "txtPrice(1)"}};

    Button cmdList{*this, "cmdList", "查询(&Q)", "F5"};
    Button cmdSeekCancel{*this, "cmdSeekCancel", "返回(&R)"};
    Button cmdSelect{*this, "cmdSelect", "选定(&S)"};
    // By the Action of frmDj02 that each stands for.
    Button CmdAction[5]{{*this, "CmdAction(0)", "打开(&N)", "F2"},
                        {*this, "CmdAction(1)", "新增(&A)", "F6"},
                        {*this, "CmdAction(2)", "修改(&C)", "F7"},
                        {*this, "CmdAction(3)", "删除(&D)"},
                        {*this, "CmdAction(4)", "审核(&E)", "F9"}};
    Button cmdPrint{*this, "cmdPrint", "打印(&P)", "Ctrl+P"};
    Button cmdPrintAll{*this, "cmdPrintAll", "批量打印(&B)", "Ctrl+Shift+P"}; // the selected documents
    Button cmdCpKc{*this, "cmdCpKc", "库存查询"};
    Button cmdColSet{*this, "cmdColSet", "选项设置"};
    Button cmdQuit{*this, "cmdQuit", "退出(&X)"};

    // The menu of a document's row: the conversions of its type, then approval and reversal.
    std::vector<std::unique_ptr<ConversionItem>> conversions;
    MenuItem mnuShCheck{*this, "mnuShCheck", "单据审核"};
    MenuItem mnuShUncheck{*this, "mnuShUncheck", "单据反审核"};

    // Set by the opener as invType: the type, or the mode.
    std::int16_t rawType = 0;
    // What was picked: the document's number, "" for none, its key, whether the closed book is ticked, and whether the list
    // in which it stood was of that book.
    std::string DjCode;
    std::int32_t DjID = 0;
    std::uint8_t DjJz = 0;
    std::uint8_t DjBook = 0;

    Columns documents{Grid1};
    Columns lines{Grid2};
    Filters filters;
    // The query whose rows are shown; without a statement before the first.
    ListQuery shown;
    // The document in hand and its approver.
    std::int32_t invID = 0;
    std::string approver;

    ListSums sums; // of the rows that are being filled

    Columns& ListOf(bool ofLines) { return ofLines ? lines : documents; }
    ListMode Mode() const {
        return rawType > 99 ? ListMode::Picker : rawType == 99 ? ListMode::AllTypes : ListMode::OneType;
    }
    int InvType() const { return Mode() == ListMode::Picker ? rawType - 200 : rawType; }
};

} // namespace jxc
