// The statement of the document list. A document is found by its header and by its lines, so both are joined
// in either form; one without lines is not found.

#include "base/text.h"
#include "documents/document_list.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"

namespace jxc {

namespace {

std::string Like(const CheckBox& box, const char* test, const std::string& text) {
    return box.value ? test + InQuotes(LikePattern(text)) : "";
}

std::string Equals(const CheckBox& box, const char* test, const std::string& text) {
    return box.value ? test + InQuotes(text) : "";
}

std::string Compares(const CheckBox& box, const char* test, const ListBox& comparison,
                     const TextBox& number) {
    return box.value ? test + comparison.text + " " + NumberText(Val(number.text)) : "";
}

std::string ApprovalTest(const frmDj01& s) {
    return s.optSelect[0].value ? " a.fInvSHR=''" : s.optSelect[1].value ? " a.fInvSHR<>''" : "1=1";
}

// A type's returns are listed with it.
std::string TypeTest(const frmDj01& s) {
    const auto type = TickedType(s);
    if (!type)
        return "";
    return (*type >= 0 && *type <= 10 ? " And abs(a.fInvType)=" : " And a.fInvType=") + std::to_string(*type);
}

std::string PersonTest(const frmDj01& s) {
    const std::string& name = s.cboInvJbr.text;
    if (s.chkJbr[0].value)
        return Like(s.chkJbr[0], " And a.fInvDLR Like ", name);
    if (s.chkJbr[1].value)
        return Like(s.chkJbr[1], " And a.fInvJBR Like ", name);
    return Like(s.chkJbr[2], " And a.fInvSHR Like ", name);
}

std::string DateTest(const frmDj01& s) {
    const auto days = FilteredDays(s);
    if (!days)
        return "";
    if (!days->last)
        return " And " + DayTest("a.fInvDate", " = ", days->first, DayForm::Iso);
    return " And " + DayTest("a.fInvDate", " Between ", days->first, DayForm::Iso) + " And " +
           DayLiteral(*days->last, DayForm::Iso);
}

// Without a type the header's warehouse may be either of two: the lines tell where goods moved.
std::string WarehouseTest(const frmDj01& s) {
    const char* const test = TickedType(s) ? " And a.fCkName like " : " And b.fCkName like ";
    return Like(s.chkCk[0], test, s.cboCk[0].text) + Equals(s.chkCk[1], " And a.fCkName2=", s.cboCk[1].text);
}

std::string ProductTest(const frmDj01& s) {
    std::string test = Like(s.chkCp[0], " And d.fCpCode Like ", s.txtCp[0].text);
    if (s.chkCp[1].value)
        test += Like(s.chkCp[1], " And (d.fCpName Like ", s.txtCp[1].text) +
                Like(s.chkCp[1], " Or d.fCpGG Like ", s.txtCp[1].text) + ")";
    test += Equals(s.chkCp[2], " And d.fCpZy=", s.txtCp[2].text);
    test += Equals(s.chkCp[3], " And d.fCpCd=", s.txtCp[3].text);
    return test + Equals(s.chkCp[4], " And d.fCpCw=", s.txtCp[4].text);
}

std::string Condition(const frmDj01& s) {
    std::string where = ApprovalTest(s) + TypeTest(s);
    if (s.chkCrType.value)
        where += " And b.fInvInOut=" + std::to_string(s.cboCrType.Index() + 1);
    where += PersonTest(s);
    where += Equals(s.chkHb, " And a.fInvHb=", s.cboHb.text);
    where += DateTest(s);
    where += Like(s.chkDh, " And a.fInvNo like ", s.txtDh.text);
    where += Like(s.chkDd, " And a.fHtNo like ", s.txtDd.text);
    where += Like(s.chkKh, " And c.CompName Like ", s.txtKh.text);
    where += Like(s.chkZy, " And a.fInvMemo Like ", s.txtZy.text);
    where += WarehouseTest(s) + ProductTest(s);
    where += Like(s.chkBz[0], " And b.fInvOther1 Like ", s.txtBz[0].text);
    where += Like(s.chkBz[1], " And b.fInvOther2 Like ", s.txtBz[1].text);
    where += Compares(s.chkPrice[0], " And b.fInvDJ ", s.cboPrice[0], s.txtPrice[0]);
    return where + Compares(s.chkPrice[1], " And a.fInvJE ", s.cboPrice[1], s.txtPrice[1]);
}

std::string DocumentsFrom(const std::string& stem) {
    return "select distinct a.*,c.CompName From ((" + stem + "01 a Inner Join " + stem +
           "02 b On a.fInvID=b.fInvID)  Left join Cards c On a.fKhID=c.fID)  left join tJXC_Cp d on "
           "b.fCpid=d.fCpID";
}

std::string LinesFrom(const std::string& stem) {
    return "select b.*,a.fInvType,a.fInvDLR,a.fInvJBR,a.fInvSHR,c.CompName,d.fCpCode,d.fCpName,d.fCpGG,"
           "d.fCpUnit,e.fSetName From (((" +
           stem + "02 b Left join " + stem +
           "01 a On a.fInvID=b.fInvID)  Left join Cards c On a.fKhID=c.fID)  Left join tJXC_Cp d On "
           "b.fCpID=d.fCpID)  Left join tJXC_InvSet e On a.fInvType=e.fSetNo";
}

} // namespace

std::optional<DayRange> FilteredDays(const frmDj01& s) {
    const auto &first = s.dtpDate[0].date, &last = s.dtpDate[1].date;
    if (!s.chkDate.value || (!first && !last))
        return std::nullopt;
    return first ? DayRange{*first, last} : DayRange{*last, std::nullopt};
}

ListQuery BuildQuery(const frmDj01& s) {
    ListQuery query;
    query.stem = BookStem(TickedType(s).value_or(kTypeWithoutTick), s.chkJz.value);
    query.lines = !s.chkDj.value;
    if (s.chkDate.value) {
        query.from = s.dtpDate[0].date;
        query.to = s.dtpDate[1].date;
    }
    if (s.chkCk[0].value)
        query.warehouse = s.cboCk[0].text;
    query.sql = (query.lines ? LinesFrom(query.stem) : DocumentsFrom(query.stem)) + " Where " + Condition(s) +
                " Order By a.fInvDate,a.fInvNo";
    return query;
}

} // namespace jxc
