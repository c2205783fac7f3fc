// The rows of the trail, and what each of them says.

#include <map>

#include "base/json_value.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/session.h"
#include "settings/frmAudit.h"

namespace jxc {

namespace {

constexpr int kMost = 1000; // rows shown

const Color kChanged = Rgb(255, 248, 200);

// What people call the tables that actions are about.
std::string SubjectOf(const Recordset& row) {
    static const std::map<std::string, std::string> subjects{{"tJXC_CkDj01", "仓库单据"},
                                                             {"tJXC_CkHt01", "合同订单"},
                                                             {"tJXC_CkJh01", "计划单"},
                                                             {"tJXC_CkXjBj01", "询价报价单"},
                                                             {"tJXC_Cp", "产品"},
                                                             {"tJXC_Ck", "仓库"},
                                                             {"tJXC_CpTj01", "套件模板"},
                                                             {"tJXC_InvSys", "系统参数"},
                                                             {"tJXC_InvSet", "系统单据"},
                                                             {"rptListDetail", "栏目"},
                                                             {"briefDetail", "代码表"},
                                                             {"cards", "客户"},
                                                             {"Moneys", "货币"},
                                                             {"tAccounts", "内部资金帐户"},
                                                             {"myCompany", "公司资料"},
                                                             {"tHostUser", "用户"},
                                                             {"tJXC_PrintTemplate", "打印模板"}};
    const std::string table = row["fTable"].AsText();
    const auto known = subjects.find(table);
    return known == subjects.end() ? table : known->second;
}

// What people call the fields; one that is not here shows its own name.
std::string WordOf(const std::string& field) {
    static const std::map<std::string, std::string> words{{"fInvID", "内部号"},
                                                          {"fInvNo", "单号"},
                                                          {"fInvDate", "日期"},
                                                          {"fInvType", "单据类型"},
                                                          {"fInvHb", "货币"},
                                                          {"fInvHbDl", "汇率"},
                                                          {"fInvJE", "金额"},
                                                          {"fInvMemo", "摘要"},
                                                          {"fInvDLR", "登录人"},
                                                          {"fInvJbr", "经办人"},
                                                          {"fInvSHR", "审核人"},
                                                          {"fHtNo", "订单号"},
                                                          {"fKhID", "客户内部号"},
                                                          {"fKhAdd", "送货地址"},
                                                          {"fCkName", "仓库"},
                                                          {"fCkName2", "仓库2"},
                                                          {"fFlag", "停止"},
                                                          {"fCpID", "产品内部号"},
                                                          {"fCpCode", "编码"},
                                                          {"fCpName", "品名"},
                                                          {"fCpGG", "规格"},
                                                          {"fCpUnit", "单位"},
                                                          {"fCpBarCode", "参考码"},
                                                          {"fCpPrice0", "成本价"},
                                                          {"fCpPrice1", "批发价"},
                                                          {"fCpPrice2", "代销价"},
                                                          {"fCpPrice3", "零售价"},
                                                          {"fCpSlMin", "库存下限"},
                                                          {"fCpSlMax", "库存上限"},
                                                          {"fCpCw", "限用仓位"},
                                                          {"fCpZy", "产品类别"},
                                                          {"fCpCd", "产品产地"},
                                                          {"fKhName", "供应商"},
                                                          {"fCpPicture", "产品图片"},
                                                          {"fCpFlag", "停用"},
                                                          {"fCkCode", "编号"},
                                                          {"fCkMemo", "说明"},
                                                          {"fCkType0", "总部仓库"},
                                                          {"fCkType1", "零售仓库"},
                                                          {"fCkType2", "代销仓库"},
                                                          {"fCkType3", "生产仓库"},
                                                          {"fCkFlag", "停用"},
                                                          {"fTjCode", "模板编号"},
                                                          {"fTjName", "模板名称"},
                                                          {"fTjMemo", "说明"},
                                                          {"fTjJe", "合计成本"},
                                                          {"fUserName", "用户"},
                                                          {"fPower", "权限"},
                                                          {"fSupervisor", "负责人"},
                                                          {"fPassword", "密码"},
                                                          {"CompCode", "编号"},
                                                          {"CompName", "公司名称"},
                                                          {"MoneyCode", "货币"},
                                                          {"MoneyRate", "汇率"},
                                                          {"fSysDate", "本期年月"},
                                                          {"fSysDay", "本期开始日"},
                                                          {"fSysTaxWay", "计税方式"},
                                                          {"fSysTaxRate", "税率"},
                                                          {"fSysCostWay", "成本核算"},
                                                          {"fSysDeciSl", "数量小数位"},
                                                          {"fSysDeciDj", "单价小数位"},
                                                          {"fSysMaxRow", "单据最大行"},
                                                          {"fSetName", "单据类"},
                                                          {"fSetAutoNo", "自动单号"}};
    const auto known = words.find(field);
    return known == words.end() ? field : known->second;
}

Json Fields(const std::string& text) {
    Json fields = text.empty() ? Json::object() : Json::parse(text, nullptr, false);
    return fields.is_object() ? fields : Json::object();
}

std::string TextIn(const Json& fields, const std::string& field) {
    const auto found = fields.find(field);
    if (found == fields.end() || found->is_null())
        return "";
    return found->is_string() ? found->get<std::string>() : JsonText(*found);
}

// A document's lines become a field each.
Json WithLinesApart(Json fields) {
    const Json lines = fields.value("lines", Json::array());
    fields.erase("lines");
    int at = 0;
    for (const Json& line : lines)
        fields["第 " + std::to_string(++at) + " 行"] = line;
    return fields;
}

void AddField(Grid& grid, const std::string& field, const std::string& before, const std::string& after) {
    const int row = grid.RowCount() + 1;
    grid.SetRowCount(row);
    grid.FillCell(row, 1, WordOf(field));
    grid.FillCell(row, 2, before);
    grid.FillCell(row, 3, after);
    if (before != after)
        grid.SetRowColor(row, 1, kChanged);
}

// Times are kept as texts, which compare as days do.
std::string DaysTest(const frmAudit& s) {
    std::string test;
    if (s.chkDate.value && s.dtpDate.first.date)
        test += " And fTime>=" + InQuotes(IsoText(*s.dtpDate.first.date));
    if (s.chkDate.value && s.dtpDate.last.date)
        test += " And fTime<" + InQuotes(IsoText(AddDays(*s.dtpDate.last.date, 1)));
    return test;
}

} // namespace

std::vector<Column> AuditColumns() {
    using enum Figure;
    return {{"时间", "fTime", 19},
            {"用户", "fUser", 10},
            {"操作", "fAction", 8},
            {"对象", "fTable", 12, Text, SubjectOf},
            {"单号/编码/名称", "fName", 18},
            {"计算机", "fMachine", 14},
            {"数据库用户", "fServerUser", 10},
            {"fID", "fID", 0, Key}};
}

std::vector<Filter> AuditFilters(frmAudit& s) {
    return {{s.chkUser, s.txtUser, "fUser Like {like}"},
            {s.chkAction, s.cboAction, "fAction={text}"},
            {s.chkName, s.txtName, "fName Like {like}"}};
}

void QueryAudit(frmAudit& s) {
    Recordset rows(
        Conn(), "Select Top " + std::to_string(kMost) +
                    " fID,fTime,fUser,fAction,fTable,fName,fMachine,fServerUser From tJXC_Audit Where 1=1" +
                    DaysTest(s) + s.filters.Condition() + " Order By fID Desc");
    const int filled = s.list.Fill(rows);
    s.Grid1.selectedRow = filled > 0 ? 1 : 0;
    s.Grid2.Clear();
    if (filled > 0)
        ShowAuditRow(s, 1);
    else
        CurrentView().Signal("没有符合条件的操作记录。");
    if (filled == kMost)
        CurrentView().Signal("只列出最近的 " + std::to_string(kMost) + " 条，请用条件缩小范围。");
}

void ShowAuditRow(frmAudit& s, int row) {
    s.Grid2.Clear();
    const Recordset stored(Conn(), "Select fBefore,fAfter From tJXC_Audit Where fID=" +
                                       s.Grid1.Text(row, s.list.Place("fID")));
    if (stored.AtEnd())
        return;
    const Json before = WithLinesApart(Fields(stored["fBefore"].AsText()));
    const Json after = WithLinesApart(Fields(stored["fAfter"].AsText()));
    for (const auto& [field, value] : before.items())
        AddField(s.Grid2, field, TextIn(before, field), TextIn(after, field));
    for (const auto& [field, value] : after.items())
        if (!before.contains(field))
            AddField(s.Grid2, field, "", TextIn(after, field));
}

void VerifyAudit(const frmAudit& s) {
    const std::vector<std::string> faults = AuditFaults(Conn());
    const AuditHead head = ReadAuditHead(Conn());
    if (faults.empty())
        return Inform(s.title, "操作日志完整：共 " + std::to_string(head.rows) + " 条，校验值 " +
                                   head.seal.substr(0, 16) + "。");
    std::string text = "操作日志有 " + std::to_string(faults.size()) + " 处不符：";
    for (size_t at = 0; at < std::min<size_t>(faults.size(), 10); ++at)
        text += "\n" + faults[at];
    Warn(s.title, text);
}

} // namespace jxc
