// Lines from a stored document, found by its number or picked from the list.

#include <cstdlib>
#include <optional>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/load_lines.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kPickerMode = 200; // a type above it has the list pick one of that type
constexpr int kTypeNumberWidth = 3;

struct Source {
    std::string stem;
    std::int64_t key;
};

// What the person picked in the list; nothing when he did not.
struct Picked {
    std::string number;
    Source source;
};

std::optional<Picked> PickFromList(int type) {
    const ScreenToShow list("frmDj01");
    list->SetProperty("invType", type + kPickerMode);
    list->SetProperty("DjCode", ""); // of a choice before
    ShowModal(*list);
    const std::string picked = list->GetProperty("DjCode").AsText();
    if (picked.empty())
        return std::nullopt;
    const bool closed = list->GetProperty("DjBook").AsLong() == 1;
    return Picked{picked, {BookStem(type, closed), list->GetProperty("DjID").AsLong()}};
}

// The document of the type and number; of several, as a plan's orders share a number, the one of the customer in hand.
std::optional<Source> FindIn(const frmDj02& s, const std::string& stem, int type, const std::string& number) {
    Recordset found(Conn(), "Select fInvID,fKhID From " + stem + "01 Where fInvNo = " + InQuotes(number) +
                                " And fInvType=" + std::to_string(type) + " Order By fInvID");
    if (found.AtEnd())
        return std::nullopt;
    const Source first{stem, found["fInvID"].AsLong()};
    for (; !found.AtEnd(); found.MoveNext())
        if (found["fKhID"].AsLong() == s.CustomerId())
            return Source{stem, found["fInvID"].AsLong()};
    return first;
}

// Documents of closed periods can be copied too.
std::optional<Source> FindSource(const frmDj02& s, int type, const std::string& number) {
    const std::string open = BookStem(type, false);
    auto source = FindIn(s, open, type, number);
    if (!source && open == BookStem(DocType::Receipt, false))
        source = FindIn(s, BookStem(type, true), type, number);
    return source;
}

// Of a document picked but not loaded nothing stays: an order's number would move that order's balance.
class NumberStays {
  public:
    explicit NumberStays(TextBox& number) : number_(number), before_(number.text) {}
    ~NumberStays() {
        if (!loaded)
            number_.text = before_;
    }
    NumberStays(const NumberStays&) = delete;
    NumberStays& operator=(const NumberStays&) = delete;
    bool loaded = false;

  private:
    TextBox& number_;
    const std::string before_;
};

// All rows of the document, also the second ones of its lines.
std::string SourceStatement(const Source& source, bool balance) {
    return std::string("Select b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpFlag,") +
           (balance ? "a.fInvSl2 as fInvSl," : "a.fInvSl,") +
           "a.fKhID,a.fCpID,a.fInvDj,a.fInvTaxRate,a.fInvOther1,a.fInvOther2,a.fInvSL2 from " + source.stem +
           "02 a Left Join tJXC_Cp b On a.fCpID =b.fCpID  Where a.fInvID = " + std::to_string(source.key) +
           " Order By a.fRowID,a.fInv1";
}

bool LoadSource(frmDj02& s, const Source& source, bool balance) {
    return LoadLines(s, SourceStatement(source, balance)) != Loaded::Nothing;
}

} // namespace

bool PickDocumentLines(frmDj02& s, bool balance, int type, const std::string& caption, TextBox& number) {
    number.text = TrimAnyBlanks(number.text);
    if (number.text.empty()) {
        NumberStays stays(number);
        const auto picked = PickFromList(type);
        if (!picked)
            return false;
        number.text = picked->number;
        return stays.loaded = LoadsWhole(s, [&] { return LoadSource(s, picked->source, balance); });
    }
    return LoadsWhole(s, [&] {
        if (const auto source = FindSource(s, type, number.text))
            return LoadSource(s, *source, balance);
        Warn(s.title, caption + "：单据单号 " + number.text + " 不存在 ！");
        number.SelectAll();
        s.MoveFocus(&number);
        return false;
    });
}

bool LoadFromDocument(frmDj02& s) {
    if (s.cboInvType2.Index() < 0) {
        Inform(s.title, "请选择调入的单据类型！");
        s.MoveFocus(&s.cboInvType2);
        return false;
    }
    const std::string name = MidText(s.cboInvType2.Chosen(), kTypeNumberWidth + 1);
    if (s.cboInvType2.Type() == DocType::Plan) {
        Inform(s.title, "系统目前未有提供 [" + name + "] ！");
        return false;
    }
    return PickDocumentLines(s, false, s.cboInvType2.Type(), name, s.txtNo2);
}

bool LoadFromOrder(frmDj02& s) {
    switch (std::abs(s.invType)) {
    case DocType::Receipt:
        return PickDocumentLines(s, true, DocType::PurchaseOrder, "采购订单", s.txtHtNo);
    case DocType::Issue:
        return PickDocumentLines(s, true, DocType::SalesOrder, "销售订单", s.txtHtNo);
    default:
        return false;
    }
}

} // namespace jxc
