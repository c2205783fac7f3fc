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

// Whether a document was picked; its number is in the field then. `closed`: it is one of the closed book.
bool PickNumber(int type, TextBox& number, bool& closed) {
    const ScreenToShow list("frmDj01");
    list->SetProperty("invType", type + kPickerMode);
    list->SetProperty("DjCode", ""); // of a choice before
    ShowModal(*list);
    const std::string picked = list->GetProperty("DjCode").AsText();
    if (picked.empty())
        return false;
    number.text = picked;
    closed = list->GetProperty("DjJz").AsLong() == 1;
    return true;
}

std::optional<Source> FindIn(const std::string& stem, int type, const std::string& number) {
    const Recordset found(Conn(), "Select fInvID From " + stem + "01 Where fInvNo = " + InQuotes(number) +
                                      " And fInvType=" + std::to_string(type));
    if (found.AtEnd())
        return std::nullopt;
    return Source{stem, found[size_t{0}].AsLong()};
}

// Documents of closed periods can be copied too; one that was picked there is the one that is meant.
std::optional<Source> FindSource(int type, const std::string& number, bool closed) {
    const std::string open = BookStem(type, false), past = BookStem(type, true);
    if (open != BookStem(DocType::Receipt, false))
        return FindIn(open, type, number);
    auto source = FindIn(closed ? past : open, type, number);
    return source ? source : FindIn(closed ? open : past, type, number);
}

// All rows of the document, also the second ones of its lines.
std::string SourceStatement(const Source& source, bool balance) {
    return std::string("Select b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpFlag,") +
           (balance ? "a.fInvSl2 as fInvSl," : "a.fInvSl,") +
           "a.fKhID,a.fCpID,a.fInvDj,a.fInvTaxRate,a.fInvOther1,a.fInvOther2,a.fInvSL2 from " + source.stem +
           "02 a Left Join tJXC_Cp b On a.fCpID =b.fCpID  Where a.fInvID = " + std::to_string(source.key) +
           " Order By a.fRowID,a.fInv1";
}

} // namespace

bool PickDocumentLines(frmDj02& s, bool balance, int type, const std::string& caption, TextBox& number) {
    bool closed = false;
    number.text = TrimAnyBlanks(number.text);
    if (number.text.empty() && !PickNumber(type, number, closed))
        return false;
    return LoadsWhole(s, [&] {
        if (const auto source = FindSource(type, number.text, closed))
            return LoadLines(s, SourceStatement(*source, balance));
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
