// The entry screen of all document types. What a type shows and does follows from its row in the type table
// and from the system parameters; see document_model.h. An opener sets Action, invType, OldType, oldInvID and
// JzState by name.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "controls/grid.h"
#include "controls/screen.h"
#include "documents/document_model.h"
#include "documents/stored_document.h"
#include "forms/lookup_fields.h"

namespace jxc {

struct frmDj02 : Screen {
    frmDj02();
    void Open() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;
    Command* PanelCommand(const Control& inIt) override;

    // The upper panel: the document's header.
    Frame fraHead{*this, "fraHead"};
    DocumentTypeField cboInvType{fraHead, "cboInvType"}; // number in 3 characters, name behind
    DateBox dtpInvDate{fraHead, "dtpInvDate"};
    TextBox txtNo{fraHead, "txtNo"}; // its tag keeps the number as loaded
    Label lblHtNo{*this, "lblHtNo", "订单号"};
    TextBox txtHtNo{fraHead, "txtHtNo"};
    Label lblCkName{*this, "lblCkName", "仓库"};
    WarehouseField cboCkName{fraHead, "cboCkName"};
    Label lblCkName2{*this, "lblCkName2", "入库"};
    WarehouseField cboCkName2{fraHead, "cboCkName2"};
    Label lblKh{*this, "lblKh", "客户"};
    TextBox txtKhSeek{fraHead, "txtKhSeek"};   // its tag keeps a card that the list cannot show
    CardField cboKhList{fraHead, "cboKhList"}; // name in 80 characters, card number behind
    Label lblKhAdd{*this, "lblKhAdd", "送货地址"};
    ListBox cboKhAdd{fraHead, "cboKhAdd", true}; // its tag keeps the address as it came from the card
    MenuItem mnuKhAddDelete{fraHead, "mnuKhAddDelete", "删除该地址"};
    Label lblInvHb{*this, "lblInvHb", "货币"};
    CurrencyField cboInvHb{fraHead, "cboInvHb"};
    TextBox txtInvHbDl{fraHead, "txtInvHbDl", "1.0000"}; // its tag keeps the rate that was taken last
    Label lblTaxRate{*this, "lblTaxRate", "税率"};
    TextBox txtTaxRate{fraHead, "txtTaxRate", "0"};
    Label lblZkl{*this, "lblZkl", "单价=参考价ｘ折扣"};
    TextBox txtZkl{fraHead, "txtZkl"};
    CodeListField cboInvMemo{fraHead, "cboInvMemo", "2010"};
    HandlerField cboInvJbr{fraHead, "cboInvJbr"};
    CheckBox chkFlag{fraHead, "chkFlag", "中止！"};
    CheckBox chkTh{fraHead, "chkTh", "退货"};
    Label lblTh{*this, "lblTh", "退货"};
    Frame shpTh{*this, "shpTh"};

    // The customer's card.
    Button cmdLoadKh2{*this, "cmdLoadKh2", "客户资料(&K)"};
    Frame fraKh2{*this, "fraKh2", "客户资料"};
    TextBox txtName{fraKh2, "txtName"};
    TextBox txtPostcode{fraKh2, "txtPostcode"};
    TextBox txtTelphone{fraKh2, "txtTelphone"};
    TextBox txtHandphone{fraKh2, "txtHandphone"};
    TextBox txtFax{fraKh2, "txtFax"};
    TextBox txtE_mail{fraKh2, "txtE_mail"};
    TextBox txtHttp{fraKh2, "txtHttp"};

    MenuItem mnuTelphone{fraKh2, "mnuTelphone", "拨打电话"};
    MenuItem mnuHandphone{fraKh2, "mnuHandphone", "拨打手机"};
    MenuItem mnuFax{fraKh2, "mnuFax", "拨打传真"};
    Button cmdMail{fraKh2, "cmdMail", "发邮件(&M)"};
    Button cmdWeb{fraKh2, "cmdWeb", "网页(&B)"};

    // Assembly and dismantling: the finished product and how many of it.
    Frame picCpZj{*this, "picCpZj", "成品"};
    ProductFields finishedProduct{picCpZj, "txtCpCode", "txtCpName", "txtCpUnit"};
    TextBox& txtCpCode = finishedProduct.code;
    TextBox txtInvSL{picCpZj, "txtInvSL", "1"}; // its tag keeps the quantity that the lines stand for

    // The lines.
    Grid Grid2{*this, "Grid2"};
    Button cmdAddRow{*this, "cmdAddRow", "增行(&I)", "F6"};
    Button cmdDeleteRow{*this, "cmdDeleteRow", "删行(&D)", "F7"};
    Button cmdCp{*this, "cmdCp", "产品(&R)"};
    Button cmdCk{*this, "cmdCk", "仓库(&H)"};
    Button cmdZy{*this, "cmdZy", "摘要(&Y)"};
    Button cmdCards{*this, "cmdCards", "客户(&U)"};             // where the host keeps them
    Button cmdTrades{*this, "cmdTrades", "最近交易", "Ctrl+T"}; // of the line's product
    Button cmdGridSave{*this, "cmdGridSave", "保存列宽"};

    // Lines from elsewhere (load_lines.h): from a document, from the balance of an order, from a kit template, or from the
    // stock for a stocktake. One panel stands open at a time.
    Button cmdLoad{*this, "cmdLoad", "单据调入(&L)", "F2"};
    Button cmdLoadDd2{*this, "cmdLoadDd2", "订单调入(余数)", "F11"};
    Button cmdCpZj{*this, "cmdCpZj", "套件调入", "F5"};
    Button cmdPdTj{*this, "cmdPdTj", "帐面盘点统计", "F12"};
    Frame fraLoad{*this, "fraLoad", "单据调入"};
    DocumentTypeField cboInvType2{fraLoad, "cboInvType2"};
    TextBox txtNo2{fraLoad, "txtNo2"}; // of the document; empty picks one from the list
    Button cmdLoadDj2{fraLoad, "cmdLoadDj2", "调入(&G)"};
    Frame fraLoadInv{*this, "fraLoadInv", "套件调入"};
    TextBox txtTjCode{fraLoadInv, "txtTjCode"};      // of the template; empty picks one
    TextBox txtInvSL2{fraLoadInv, "txtInvSL2", "1"}; // of how many kits
    Button cmdLoadTj2{fraLoadInv, "cmdLoadTj2", "调入(&O)"};
    Frame fraPdTj{*this, "fraPdTj", "帐面盘点统计"};
    OptionButton optPd[3]{{fraPdTj, "optPd(0)", "optPd", "统计所有产品；", true},
                          {fraPdTj, "optPd(1)", "optPd", "统计该仓库目前的库存产品；"},
                          {fraPdTj, "optPd(2)", "optPd", "统计[产品设置]中归入该仓库的产品。"}};
    // The signs of the stock that enter; one of them at least.
    CheckBox chkPd[3]{{fraPdTj, "chkPd(0)", "负库存", true},
                      {fraPdTj, "chkPd(1)", "零库存", true},
                      {fraPdTj, "chkPd(2)", "正库存", true}};
    Button cmdPdTj2{fraPdTj, "cmdPdTj2", "统计(&T)"};
    Control* beforePanel = nullptr; // where the person was, and goes back to

    // The foot.
    Label lblSum{*this, "lblSum", "金额合计"};
    TextBox txtSum{*this, "txtSum", "0.00"};
    Label lblSum2{*this, "lblSum2", "参考金额"};
    TextBox txtSum2{*this, "txtSum2", "0.00"};
    Label lblSsSf{*this, "lblSsSf"};
    TextBox txtSsSf{*this, "txtSsSf", "0.00"};
    TextBox txtMemo{*this, "txtMemo"}; // printed, not stored
    Frame shpSHR{*this, "shpSHR"};
    Label lblSHR{*this, "lblSHR"}; // the approver
    Button cmdPrevious{*this, "cmdPrevious", "上一张(&P)", "F3"};
    Button cmdNext{*this, "cmdNext", "下一张(&N)", "F4"};
    Button cmdNew{*this, "cmdNew", "新单(&W)", "F8"};
    Button cmdPrint1{*this, "cmdPrint1", "表格打印(&E)", "Ctrl+P"};
    Button cmdPrint2{*this, "cmdPrint2", "样式打印(&F)", "Ctrl+Shift+P"};
    Button cmdPrint3{*this, "cmdPrint3", "直接打印", "Ctrl+Alt+P"}; // on the printer that was used last
    // The stored document that is shown, taken further.
    Button cmdChange{*this, "cmdChange", "修改", "Ctrl+E"};
    Button cmdCopy{*this, "cmdCopy", "复制", "Ctrl+D"}; // into a new one
    Button cmdApprove{*this, "cmdApprove", "审核", "Ctrl+K"};
    Button cmdReverse{*this, "cmdReverse", "反审核", "Ctrl+Shift+K"};
    Button cmdSave{*this, "cmdSave", "存盘(&S)", "F9"};
    Button cmdQuit{*this, "cmdQuit", "退出(&Q)"};

    // Set by the opener.
    int Action = 0;
    int invType = 0;
    int OldType = 0;           // the source's type when a new document is made from one
    std::int32_t oldInvID = 0; // the document in hand, 0 for none
    int JzState = 0;           // 1 reads the closed book

    // Read at opening.
    TypeRow type;
    Parameters parameters;
    std::string accountRule; // by which an approval will number its account entry, "" for none
    // The stored document as it was loaded; approval, change and deletion go on only while it is still so.
    StoredDocument asLoaded;
    double storedTotal = 0;   // of the stored document, as its header has it
    std::string asBegun;      // TypedWork() of the document as it was loaded or begun
    std::string listedCounts; // of a stocktake as the stock was listed: what differs from it was typed
    std::string madeNumber;   // the automatic number that the date or the type gave last

    DocAction InHand() const { return static_cast<DocAction>(Action); }
    std::string Number() const { return txtNo.text; }
    // Card number behind the chosen customer, 0 for none.
    std::int64_t CustomerId() const;
};

} // namespace jxc
