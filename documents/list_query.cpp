// The statement of the document list. A document is found by its header and by its lines, so both are joined
// in either form; one without lines is not found.

#include "documents/document_list.h"
#include "session/dialect.h"
#include "session/lookups/book.h"
#include "session/lookups/database_routines.h"

namespace jxc {

namespace {

std::string ApprovalTest(const frmDj01& s) {
    return s.optSelect[0].value ? " a.fInvSHR=''" : s.optSelect[1].value ? " a.fInvSHR<>''" : "1=1";
}

// A type's returns are listed with it.
std::string TypeTest(const frmDj01& s) {
    const auto type = TickedType(s);
    if (!type)
        return "";
    return (*type >= 0 && *type <= 10 ? "abs(a.fInvType)=" : "a.fInvType=") + std::to_string(*type);
}

std::string DirectionTest(const frmDj01& s) {
    return "b.fInvInOut=" + std::to_string(s.cboCrType.Index() + 1);
}

// One name for all three: the first box that is ticked counts.
std::string PersonTest(const frmDj01& s) {
    const char* const fields[] = {"a.fInvDLR", "a.fInvJBR", "a.fInvSHR"};
    for (size_t i = 0; i < 3; ++i)
        if (s.chkJbr[i].value)
            return fields[i] + (" Like " + InQuotes(LikePattern(s.cboInvJbr.text)));
    return "";
}

// Without a type the header's warehouse may be either of two: the lines tell where goods moved.
std::string WarehouseTest(const frmDj01& s) {
    return TickedType(s) ? "a.fCkName like {like}" : "b.fCkName like {like}";
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

std::vector<Filter> ListFilters(frmDj01& s) {
    return {Filter([&s] { return TypeTest(s); }),
            {s.chkCrType, s.cboCrType, [&s] { return DirectionTest(s); }},
            Filter([&s] { return PersonTest(s); }),
            {s.chkHb, s.cboHb, "a.fInvHb={text}"},
            {s.chkDate, s.dtpDate, "a.fInvDate"},
            {s.chkDh, s.txtDh, "a.fInvNo like {like}"},
            {s.chkDd, s.txtDd, "a.fHtNo like {like}"},
            {s.chkKh, s.txtKh, "c.CompName Like {like}"},
            {s.chkZy, s.txtZy, "a.fInvMemo Like {like}"},
            {s.chkCk[0], s.cboCk[0], [&s] { return WarehouseTest(s); }},
            {s.chkCk[1], s.cboCk[1], "a.fCkName2={text}"},
            {s.chkCp[0], s.txtCp[0], "d.fCpCode Like {like}"},
            {s.chkCp[1], s.txtCp[1], "(d.fCpName Like {like} Or d.fCpGG Like {like})"},
            {s.chkCp[2], s.txtCp[2], "d.fCpZy={text}"},
            {s.chkCp[3], s.txtCp[3], "d.fCpCd={text}"},
            {s.chkCp[4], s.txtCp[4], "d.fCpCw={text}"},
            {s.chkBz[0], s.txtBz[0], "b.fInvOther1 Like {like}"},
            {s.chkBz[1], s.txtBz[1], "b.fInvOther2 Like {like}"},
            {s.chkPrice[0], s.cboPrice[0], s.txtPrice[0], "b.fInvDJ "},
            {s.chkPrice[1], s.cboPrice[1], s.txtPrice[1], "a.fInvJE "}};
}

ListQuery BuildQuery(const frmDj01& s) {
    ListQuery query;
    query.stem = BookStem(TickedType(s).value_or(kTypeWithoutTick), s.chkJz.value);
    query.lines = !s.chkDj.value;
    if (s.chkDate.value) {
        query.from = s.dtpDate.first.date;
        query.to = s.dtpDate.last.date;
    }
    query.warehouse = TickedText(s.chkCk[0], s.cboCk[0]);
    query.sql = (query.lines ? LinesFrom(query.stem) : DocumentsFrom(query.stem)) + " Where " +
                ApprovalTest(s) + s.filters.Condition() + " Order By a.fInvDate,a.fInvNo";
    return query;
}

} // namespace jxc
