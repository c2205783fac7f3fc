// The product that a template makes: found by code or name, and its reference cost.

#include "base/text.h"
#include "controls/bounds.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/edit_filter.h"
#include "forms/suggest.h"
#include "master/frmCpTj.h"
#include "session/audit/audit.h"
#include "session/lookups/find_by_text.h"
#include "session/rights.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kCodeBytes = 20, kNameBytes = 90, kPriceBytes = 12;
constexpr double kPriceBound = 1e8;

void Remember(frmCpTj& s) {
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName, &s.txtCpPrice})
        box->tag = box->text;
}

void ShowNoProduct(frmCpTj& s) {
    session.SelectedProductID = 0;
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName, &s.txtCpPrice})
        box->text.clear();
    Remember(s);
}

void ShowFound(frmCpTj& s, std::int32_t id, const ProductSought& found) {
    session.SelectedProductID = id;
    s.txtCpCode.text = found.code;
    s.txtCpName.text = found.name + (found.spec.empty() ? "" : "/" + found.spec) +
                       (found.unit.empty() ? "" : "/" + found.unit);
    s.txtCpPrice.text = FormatFixed(found.price[0], 2);
    Remember(s);
    if (s.txtTjMemo.text.empty())
        s.txtTjMemo.text = TruncateToBytes(found.name, s.txtTjMemo.maxBytes);
}

void GoToFirstPart(frmCpTj& s) {
    if (s.Grid2.RowCount() == 0)
        s.Grid2.InsertRow(1);
    s.Grid2.selectedRow = 1;
    s.Grid2.selectedColumn = part::kCode;
    s.MoveFocus(&s.Grid2);
}

// False keeps the cursor: nothing was found. What was typed is taken away, so that the next try can leave.
bool Seek(frmCpTj& s, const TextBox& typedInto) {
    const std::string typed = Trim(typedInto.text);
    if (typedInto.text == typedInto.tag)
        return true;
    if (!CheckNoQuote(typed))
        return false;
    ShowNoProduct(s);
    if (typed.empty())
        return true;
    ProductSought sought;
    (&typedInto == &s.txtCpCode ? sought.code : sought.name) = typed;
    const std::int32_t id = FindProduct(sought);
    if (id == 0) {
        session.SelectedProductID = 0;
        CurrentView().Signal("没有找到产品“" + typed + "”。");
        return false;
    }
    ShowFound(s, id, sought);
    GoToFirstPart(s);
    return true;
}

bool MayChangeCost(frmCpTj& s) {
    if (Reaches(Val(s.txtCpPrice.text), kPriceBound)) {
        Warn(s.title, BoundText("成本价", kPriceBound));
        return false;
    }
    if (ModuleRight("mnuJxcSysCp", 0) == 0) {
        Warn(s.title, "您无权修改产品信息（成本价） ！");
        return false;
    }
    return AskOkCancel(s.title, "确认：修改产品信息（" + s.txtCpCode.text + " " + s.txtCpName.text +
                                    "）的参考成本价？");
}

// In a transaction of its own; false when the product is gone by then.
bool StoreCost(const std::string& code, double cost) {
    const std::string product = std::to_string(session.SelectedProductID);
    Transaction transaction(Conn());
    Recordset row(Conn(), "Select fCpPrice0 From tJXC_Cp Where fCpID=" + product, Access::Write);
    if (row.AtEnd())
        return false;
    const std::string before = JsonOf(row);
    row.Set("fCpPrice0", cost);
    WriteAudit({"修改", "tJXC_Cp", product, code, before, JsonOf(row)});
    row.Update();
    transaction.Commit();
    return true;
}

// Written at once, whatever becomes of the template.
void ChangeCost(frmCpTj& s) {
    TextBox& price = s.txtCpPrice;
    if (price.text == price.tag)
        return;
    if (session.SelectedProductID == 0 || !MayChangeCost(s)) {
        price.text = price.tag;
        return;
    }
    const std::string text = FormatFixed(Val(price.text), session.DeciDj);
    price.text = price.tag; // until it is stored
    if (!StoreCost(s.txtCpCode.text, Val(text)))
        return Warn(s.title, "该套件产品资料已不存在！");
    price.text = price.tag = text;
}

} // namespace

void WireKitProduct(frmCpTj& s) {
    FilterKeys(s.txtCpCode, kCodeBytes);
    FilterKeys(s.txtCpName, kNameBytes);
    FilterKeys(s.txtCpPrice, kPriceBytes, true);
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName, &s.txtCpPrice})
        box->onEnter = [box] { box->tag = box->text; };
    for (TextBox* box : {&s.txtCpCode, &s.txtCpName}) {
        box->onLeave = [&s, box] { return Seek(s, *box); };
        SuggestProductsIn(*box, ProductPart::Code);
        box->onTake = [&s, box](const std::string& code) { // many products may have that name
            box->text = box->tag;
            s.txtCpCode.text = code;
            Seek(s, s.txtCpCode);
        };
    }
    s.txtCpName.onPick = [](const std::string& typed) { return PickProduct(typed, true); };
    s.txtCpPrice.onLeave = [&s] {
        ChangeCost(s);
        return true;
    };
}

} // namespace jxc
