// The save command: checks in a fixed order, then a new, changed, deleted, approved or reversed document.

#include <optional>

#include "base/text.h"
#include "controls/grid_routines.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/approval/approve_document.h"
#include "documents/document_checks.h"
#include "documents/document_entry.h"
#include "documents/figure_bounds.h"
#include "documents/write_document.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kMemoBytes = 20;
constexpr int kAddressBytes = 50;

// Shows why saving stops and puts the focus on the field.
bool Refuse(frmDj02& s, const std::string& text, Control* field = nullptr) {
    Warn(s.title, text);
    if (field && field->IsUsable())
        s.MoveFocus(field);
    return false;
}

// A reversal is asked for its document's state behind the other checks.
bool DocumentInHand(frmDj02& s) {
    if (s.InHand() == DocAction::Reverse)
        return true;
    const DocState state = s.oldInvID == 0 ? DocState::NotChosen : StateByApprover(s.lblSHR.caption);
    const std::string refusal = RefusalIn(state, s.InHand());
    if (refusal.empty())
        return true;
    Warn(s.title, refusal);
    if (state == DocState::NotChosen)
        s.Close();
    return false;
}

bool DateAndNumberGiven(frmDj02& s) {
    const Date start = s.parameters.periodStart;
    if (!s.dtpInvDate.date || *s.dtpInvDate.date < start)
        return Refuse(s, RefusalIn(DocState::BeforePeriod, s.InHand(), start), &s.dtpInvDate);
    s.txtNo.text = TrimAnyBlanks(s.txtNo.text);
    if (s.Number().empty())
        return Refuse(s, "请输入单号！", &s.txtNo);
    return true;
}

bool WarehousesGiven(frmDj02& s) {
    const bool first = s.type.HasFirstWarehouse();
    const bool second = s.type.HasSecondWarehouse();
    if (first && s.cboCkName.Chosen().empty())
        return Refuse(s, "请输入[" + s.lblCkName.caption + "] ！", &s.cboCkName);
    if (second && s.cboCkName2.Chosen().empty() && s.InHand() != DocAction::Reverse)
        return Refuse(s, "请输入[" + s.lblCkName2.caption + "] ！", &s.cboCkName2);
    if (first && second && s.cboCkName.Chosen() == s.cboCkName2.Chosen() && !s.type.IsKit())
        return Refuse(s, "出入仓库名称不能相同！", &s.cboCkName2);
    return true;
}

bool CustomerGiven(frmDj02& s) {
    if (!s.type.HasCustomer() || s.CustomerId() != 0)
        return true;
    const std::string caption = s.lblKh.caption;
    if (s.invType == DocType::Plan) {
        Warn(s.title, "注意：您未有输入[" + caption + "]，系统将根据产品的[入库单]资料动态产生。继续？");
        return true;
    }
    if (s.InHand() == DocAction::Reverse) {
        Warn(s.title, "注意：" + caption + "错误！");
        return true;
    }
    return Refuse(s, "请输入" + caption + "！", &s.txtKhSeek);
}

std::string WithOrder(const frmDj02& s) {
    return "fInvNo=" + InQuotes(s.txtHtNo.text);
}

std::string OrderTypeStatement(const frmDj02& s) {
    return "Select fInvType From tJXC_CkHt01 Where " + WithOrder(s);
}

// What the checks will ask, so that a server is waited for once. A number that they cut is asked for then.
std::vector<Connection::Expected> AskedFirst(const frmDj02& s, const std::string& stem) {
    std::vector<Connection::Expected> asked;
    if (s.InHand() == DocAction::New)
        asked.push_back({NumberStatement(stem, s.Number())});
    if (s.InHand() != DocAction::Delete && s.InHand() != DocAction::Reverse && !s.txtHtNo.text.empty()) {
        asked.push_back({CountStatement("tJXC_CkHt01", WithOrder(s))});
        asked.push_back({OrderTypeStatement(s)});
    }
    return asked;
}

bool OrderFits(frmDj02& s) {
    const std::string number = s.txtHtNo.text;
    if (s.InHand() == DocAction::Delete || s.InHand() == DocAction::Reverse || number.empty())
        return true;
    const int found = DbCount("tJXC_CkHt01", WithOrder(s));
    if (found < 0)
        return Refuse(s, "无法检查订单号 " + number + " 是否存在，操作已经取消！");
    if (found == 0)
        return Refuse(s, "订单号 " + number + " 不存在 ！", &s.txtHtNo);
    const int orderType = static_cast<int>(Val(DbScalar(OrderTypeStatement(s))));
    if (orderType == OrderTypeFor(s.invType))
        return true;
    return Refuse(s,
                  s.title + "，不能对应 " + (orderType == DocType::PurchaseOrder ? "采购" : "销售") +
                      "订单 " + number + " ！",
                  &s.txtHtNo);
}

void CutLongTexts(frmDj02& s) {
    if (!IsEditing(s.InHand()))
        return;
    s.txtNo.text = TruncateToBytes(s.txtNo.text, s.txtNo.maxBytes);
    s.txtHtNo.text = TruncateToBytes(s.txtHtNo.text, s.txtHtNo.maxBytes);
    s.cboInvMemo.text = TruncateToBytes(s.cboInvMemo.text, kMemoBytes);
    s.cboKhAdd.text = TruncateToBytes(s.cboKhAdd.text, kAddressBytes);
}

bool NumberIsFree(frmDj02& s, const std::string& stem) {
    const std::string refusal = NumberRefusal(stem, s.Number(), s.InHand() == DocAction::Change);
    return refusal.empty() || Refuse(s, refusal, &s.txtNo);
}

// The checks of every Action, up to the point where approval and reversal part.
bool MayGoOn(frmDj02& s, const std::string& stem) {
    if (!DocumentInHand(s) || !DateAndNumberGiven(s) || !WarehousesGiven(s) || !CustomerGiven(s) ||
        !OrderFits(s))
        return false;
    CutLongTexts(s);
    if (s.type.IsKit() && KitQuantity(s) == 0)
        return Refuse(s, "请输入产品套数！", &s.txtInvSL);
    const bool renumbered = s.InHand() == DocAction::Change && !EqualsNoCase(s.Number(), s.txtNo.tag);
    return !renumbered || NumberIsFree(s, stem);
}

// A row of a stocktake that nobody has counted would be a count of 0.
bool CountsGiven(frmDj02& s) {
    if (!s.type.IsStocktake() || !IsEditing(s.InHand()))
        return true;
    Grid& grid = s.Grid2;
    for (int row = 1; row <= grid.RowCount(); ++row)
        if (!grid.Text(row, line::kCode).empty() && grid.Text(row, line::kCounted).empty()) {
            grid.selectedRow = row;
            grid.selectedColumn = line::kCounted;
            return Refuse(
                s, "第 " + std::to_string(row) + " 行：请输入“" + grid.Column(line::kCounted).caption + "”！",
                &grid);
        }
    return true;
}

// Rows in which something is typed and which are no lines all the same: they go at saving, not without a word.
void TellOfRowsLeftOut(frmDj02& s) {
    if (s.type.IsStocktake() || !IsEditing(s.InHand()))
        return; // a count that is as the book says is no line
    const std::string rows = HalfBlankRows(s.Grid2, line::kQuantity);
    if (!rows.empty())
        CurrentView().Signal("以下各行不计入单据：" + rows + "。");
}

bool LinesGiven(frmDj02& s) {
    if (!CountsGiven(s))
        return false;
    TellOfRowsLeftOut(s);
    RemoveBlankRows(s.Grid2, line::kQuantity);
    RefreshTotals(s);
    if (s.Grid2.RowCount() > 0 || s.InHand() == DocAction::Delete)
        return true;
    return Refuse(s, "请输入单据内容清单！", &s.Grid2);
}

bool CurrencyGiven(frmDj02& s) {
    if (!s.type.fSetHb_ || !s.cboInvHb.Chosen().empty() || s.cboInvHb.items.empty())
        return true;
    return Refuse(s, "请选择货币！", &s.cboInvHb);
}

Control* FieldOf(frmDj02& s, const FigureRefusal& refusal) {
    switch (refusal.figure) {
    case FigureRefusal::Figure::Rate:
        return &s.txtInvHbDl;
    case FigureRefusal::Figure::KitQuantity:
        return &s.txtInvSL;
    default:
        return &s.Grid2;
    }
}

// A deletion takes whatever stands.
bool FiguresWithinBounds(frmDj02& s, const DocumentData& document) {
    if (s.InHand() == DocAction::Delete)
        return true;
    if (!CurrencyGiven(s))
        return false;
    const auto refusal = FigureOutOfBounds(document);
    if (!refusal)
        return true;
    if (refusal->line > 0) {
        s.Grid2.selectedRow = refusal->line;
        s.Grid2.selectedColumn = refusal->column;
    }
    return Refuse(s, refusal->text, FieldOf(s, *refusal));
}

// Runs the writing of a document in one transaction. `write` gives the reason why the document cannot be
// written after all, "" when it was; a reason or a failure undoes everything and is told, and the input
// stays. Nothing is asked while the transaction is open: other users wait for it.
bool InTransaction(frmDj02& s, const std::function<std::string()>& write) {
    std::string refusal;
    try {
        Transaction transaction(Conn());
        refusal = write();
        if (refusal.empty())
            transaction.Commit();
    } catch (const CommitUnknown& error) {
        WarnOfFailure(s.title, CommitUnknownText(s.Number(), "存盘"), CauseOf(error));
        return false;
    } catch (const DatabaseError& error) {
        WarnOfFailure(s.title, "系统存盘错误，操作已经取消！", CauseOf(error));
        return false;
    }
    return refusal.empty() || Refuse(s, refusal);
}

// `ahead` holds on to the rate with which the next document begins.
std::string WriteNew(frmDj02& s, DocumentData& document, std::optional<ReadAhead>& ahead) {
    const std::vector<std::string>& currencies = s.cboInvHb.items;
    std::vector<Connection::Expected> reads = NewDocumentReads(document);
    reads.push_back({RateStatement(currencies.empty() ? "" : currencies.front())});
    ahead.emplace(Conn(), reads);
    std::string refusal = WriteNewDocument(document);
    if (!refusal.empty())
        return refusal;
    s.oldInvID = document.key;
    if (s.parameters.approveOnSave)
        s.asLoaded = ReadStored(StemOf(document), document.key); // approved only as it was written
    return "";
}

// The document is saved by now: a printer that fails is told and changes nothing else.
void PrintSaved(frmDj02& s) {
    try {
        PrintDocument(s);
    } catch (const std::exception& error) {
        WarnOfError(s.title, error);
    }
}

bool FinishedProductGiven(frmDj02& s) {
    return !s.type.IsKit() || s.finishedProduct.id != 0 ||
           Refuse(s, "请输入组装产品及其数量。", &s.txtCpCode);
}

bool SaveNew(frmDj02& s, DocumentData& document) {
    if (!NumberIsFree(s, StemOf(document)))
        return false;
    if (!FinishedProductGiven(s) || !GoesOnWithNegativeStock(s, document))
        return false;
    if (!AskOkCancel(s.title, s.title + "：" + s.Number() + "，确定？"))
        return false;
    std::optional<ReadAhead> ahead;
    if (!InTransaction(s, [&] { return WriteNew(s, document, ahead); })) {
        s.oldInvID = 0;
        return false;
    }
    if (s.parameters.approveOnSave)
        RunApproval(s, document, false, false);
    if (s.parameters.printOnSave || AskYesNo(s.title, "单据新增完毕。打印本张单据？"))
        PrintSaved(s);
    s.oldInvID = 0;
    ResetDocument(s);
    return true;
}

bool SaveChange(frmDj02& s, const DocumentData& document) {
    const std::string number = s.txtNo.tag;
    if (!FinishedProductGiven(s) || !GoesOnWithNegativeStock(s, document))
        return false;
    if (!AskOkCancel(s.title, s.title + "：" + number + "，确定？"))
        return false;
    if (!InTransaction(s, [&] { return WriteChangedDocument(document, s.asLoaded, number); }))
        return false;
    Inform(s.title, number + "：单据修改完毕！");
    s.cmdSave.enabled = false;
    if (AskOkCancel(s.title, "打印本张单据？"))
        PrintSaved(s);
    s.Close();
    return true;
}

bool DeleteStored(frmDj02& s, const DocumentData& document) {
    const std::string number = s.Number();
    if (!AskOkCancel(s.title, s.title + "：" + number + "，确定？"))
        return false;
    if (!InTransaction(s, [&] { return DeleteDocument(document, s.asLoaded); }))
        return false;
    Inform(s.title, number + "：单据删除完毕！");
    s.cmdSave.enabled = false;
    s.Close();
    return true;
}

// False when the document is not written: refused, given up or failed, as the person was told.
bool Write(frmDj02& s, DocumentData& document) {
    switch (s.InHand()) {
    case DocAction::New:
        return SaveNew(s, document);
    case DocAction::Change:
        return SaveChange(s, document);
    case DocAction::Delete:
        return DeleteStored(s, document);
    default:
        return false;
    }
}

} // namespace

void SaveDocument(frmDj02& s) {
    const std::string stem = BookStem(s.invType, false);
    const ReadAhead ahead(Conn(), AskedFirst(s, stem));
    if (!MayGoOn(s, stem))
        return;
    if (s.InHand() == DocAction::Approve)
        return RunApproval(s, DataOf(s), false, true);
    if (s.InHand() == DocAction::Reverse)
        return ReverseApproval(s, DataOf(s));
    const bool waited = IsEditing(s.InHand()) && EndsBlank(s.Grid2);
    bool written = false;
    if (LinesGiven(s)) {
        DocumentData document = DataOf(s);
        if (!FiguresWithinBounds(s, document))
            return; // the cursor is at the figure
        written = Write(s, document);
    }
    if (!written && waited)
        GoBelowTheLines(s); // as it was: the next line is not typed over the last one
}

} // namespace jxc
