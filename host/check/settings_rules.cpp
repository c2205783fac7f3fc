// Parameters, document types and master data: what everything else rests on.

#include "base/text.h"
#include "documents/approval/stages.h"
#include "host/check/checked_company.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

struct Range {
    const char* field;
    const char* caption;
    double least, most;
};
constexpr Range kParameters[] = {{"fSysDay", "期间起始日", -28, 28}, {"fSysTaxWay", "计税方式", 0, 2},
                                 {"fSysTaxRate", "税率", 0, 1},      {"fSysCostWay", "成本计算方法", 0, 2},
                                 {"fSysDeciSl", "数量小数位", 0, 9}, {"fSysDeciDj", "单价小数位", 0, 9},
                                 {"fSysMaxRow", "单据行数", 0, 9999}};

void CheckParameters(const CheckedCompany& company, Findings& findings) {
    const size_t rows = company.parameters.Count();
    if (rows == 0)
        return findings.Add("系统参数：没有参数行；请在[系统参数设置]中存盘一次。");
    if (rows > 1)
        findings.Add("系统参数：有 " + std::to_string(rows) +
                     " 行，只应有一行；请保留正确的一行，删去其余。");
    if (!company.periodStart)
        findings.Add("系统参数：[本期年月]为“" + company.Parameter("fSysDate").AsText() +
                     "”，不是日期；请在[系统参数设置]中更正。");
    for (const Range& range : kParameters) {
        const Value value = company.Parameter(range.field);
        if (!value.IsNumber() || !(value.AsDouble() >= range.least && value.AsDouble() <= range.most))
            findings.Add("系统参数：[" + std::string(range.caption) + "]为“" + value.AsText() +
                         "”，不在允许范围内；请在[系统参数设置]中更正。");
    }
}

// Several rows of a type are lawful as long as one is in use at most.
const Rule kTypeRules[] = {
    {"Select fSetNo,count(*) From tJXC_InvSet Where fSetNoUse_<>1 Group By fSetNo Having count(*)>1",
     "单据类型 {1}：有 {2} 行同时在用；请只保留一行，其余停用。"},
    {"Select fSetNo,fSetAutoNo From tJXC_InvSet Where fSetNoUse_<>1 And (fSetAutoNo is null Or not "
     "fSetAutoNo like '%X')",
     "单据类型 {1}：自动单号“{2}”没有计数位；请在单据设置中更正。"}};

void CheckTypes(const CheckedTypes& types, Findings& findings) {
    for (const Rule& rule : kTypeRules)
        Run(rule, findings);
    for (const int series : {51, 52})
        if (const auto found = types.find(series); found == types.end() || !found->second.used)
            findings.Add("单据类型 " + std::to_string(series) +
                         "：没有在用的行，帐户单不能编号；请在[系统参数设置]的单据设置中恢复。");
    struct Choice {
        int TypeRow::*column;
        const char* caption;
        int most;
    };
    constexpr Choice choices[] = {
        {&TypeRow::fSetTjType, "统计归类", 4}, {&TypeRow::fSetKhType, "客户", 3},
        {&TypeRow::fSetWlType, "往来帐", 4},   {&TypeRow::fSetZjType, "资金帐", 4},
        {&TypeRow::fSetCkType1, "仓库", 5},    {&TypeRow::fSetCrType1, "出入方式", 2},
        {&TypeRow::fSetCkType2, "第二仓库", 5}};
    for (const auto& [number, type] : types)
        for (const Choice& choice : choices)
            if (const int value = type.row.*choice.column; value < -1 || value > choice.most)
                findings.Add("单据类型 " + std::to_string(number) + "：[" + choice.caption + "]为 " +
                             std::to_string(value) + "，不是允许的选项；请在单据设置中更正。");
}

std::string OuterBlank(const std::string& field) {
    return field + " is null Or " + field + "='' Or " + field + " like ' %' Or " + field + " like '% '";
}

std::vector<Rule> MasterRules() {
    std::vector<Rule> rules{
        {"Select fCkName,count(*) From tJXC_Ck Group By fCkName Having count(*)>1",
         "仓库 {1}：名称有 {2} 行重复；请改名或删去多余的一行。"},
        {"Select fCpCode,count(*) From tJXC_Cp Group By fCpCode Having count(*)>1",
         "产品 {1}：编码有 {2} 行重复；请改正其中一行的编码。"},
        {"Select MoneyCode,count(*) From Moneys Group By MoneyCode Having count(*)>1",
         "货币 {1}：有 {2} 行重复；请删去多余的一行。"},
        {"Select fCpID,fCpCode From tJXC_Cp Where fCpID is null Or fCpID<1 Or " + OuterBlank("fCpCode"),
         "产品“{2}”（编号 {1}）：编码为空或带有空格；请更正编码。"},
        {"Select fCkName From tJXC_Ck Where " + OuterBlank("fCkName"),
         "仓库“{1}”：名称为空或带有空格；请更正名称。"},
        {"Select fCkName From tJXC_Ck Where fCkType0 is null Or fCkType1 is null Or fCkType2 is null Or "
         "fCkType3 is null"
         " Or fCkType0+fCkType1+fCkType2+fCkType3=0 Or (fCkType2=1 And fCkType0+fCkType1+fCkType3>0)",
         "仓库 {1}：仓库类别不完整或互相矛盾；请在[仓库管理]中重新设定。"},
        {"Select MoneyCode,MoneyRate From Moneys Where MoneyRate is null Or MoneyRate<=0 Or " +
             IsAbsurd("MoneyRate"),
         "货币 {1}：汇率为 {2}；请更正为大于 0 的汇率。"},
        {"Select count(*),sum(case when MoneyType=1 then 1 else 0 end) From Moneys"
         " Having count(*)>0 And sum(case when MoneyType=1 then 1 else 0 end)<>1",
         "货币：有 {2} 种[本位币]，只应有一种；请重新设定。"},
        {"Select fTjCode From tJXC_CpTj01 a Left Join tJXC_Cp c On c.fCpID=a.fCpID Where c.fCpID is null",
         "套件模板 {1}：产品已不存在；请删去该模板。"},
        {"Select b.fTjID,count(*) From tJXC_CpTj02 b Left Join tJXC_Cp c On c.fCpID=b.fCpPjID Where c.fCpID "
         "is null"
         " Group By b.fTjID",
         "套件模板（编号 {1}）：有 {2} 种配件已不存在；请修改该模板。"},
        {"Select b.fTjID,count(*) From tJXC_CpTj02 b Left Join tJXC_CpTj01 a On a.fTjID=b.fTjID Where "
         "a.fTjID is null"
         " Group By b.fTjID",
         "套件模板（编号 {1}）：有 {2} 行配件而没有模板；请删去这些配件行。"},
        {"Select fTjID,count(*) From tJXC_CpTj01 Group By fTjID Having count(*)>1",
         "套件模板（编号 {1}）：编号有 {2} 行重复；请删去多余的一行。"},
        {"Select fTjID From tJXC_CpTj02 Where fCpPjSL is null Or fCpPjSL<=0 Or " + IsAbsurd("fCpPjSL") +
             " Group By fTjID",
         "套件模板（编号 {1}）：配件数量不合理；请修改该模板。"}};
    for (const char* price : {"fCpPrice0", "fCpPrice1", "fCpPrice2", "fCpPrice3"})
        rules.push_back({"Select fCpCode," + std::string(price) + " From tJXC_Cp Where " + price + "<0 Or " +
                             IsAbsurd(price),
                         "产品 {1}：价格 {2} 不合理；请在[产品管理]中更正。"});
    if (Conn().HasColumn("tJXC_Ck", "fKhID"))
        rules.push_back({"Select a.fCkName,a.fKhID From tJXC_Ck a Left Join cards c On c.fID=a.fKhID"
                         " Where a.fKhID>0 And c.fID is null",
                         "仓库 {1}：代销商（编号 {2}）的客户资料已不存在；请在[仓库管理]中重新选择。"});
    return rules;
}

// An account's number stands in its code.
std::set<std::int64_t> AccountNumbers(Findings& findings) {
    std::set<std::int64_t> numbers;
    const Rows rows = findings.Ask("Select compCode From tAccounts");
    for (size_t row = 0; row < rows.Count(); ++row)
        numbers.insert(static_cast<std::int64_t>(Val(rows.At(row, 0).AsText())));
    return numbers;
}

} // namespace

void CheckSettings(const CheckedCompany& company, Findings& findings) {
    CheckParameters(company, findings);
    CheckTypes(company.types, findings);
}

void CheckMasters(Findings& findings) {
    for (const Rule& rule : MasterRules())
        Run(rule, findings);
    const std::set<std::int64_t> accounts = AccountNumbers(findings);
    const Rows tied = findings.Ask("Select fCkName,fZhID From tJXC_Ck Where fZhID>0");
    for (size_t row = 0; row < tied.Count(); ++row)
        if (!accounts.contains(tied.At(row, 1).AsLong()))
            findings.Add("仓库 " + tied.At(row, 0).AsText() + "：入帐帐户 " + tied.At(row, 1).AsText() +
                         " 已不存在；请在[仓库管理]中重新选择。");
    const Rows entered = findings.Ask("Select fCompID,count(*),min(fInvID) From tAccountDetail"
                                      " Where fBrief=" +
                                      InQuotes(kPlacedByApproval) + " And fType1=1 Group By fCompID");
    for (size_t row = 0; row < entered.Count(); ++row)
        if (!accounts.contains(entered.At(row, 0).AsLong()))
            findings.Add("帐户单（单据 " + entered.At(row, 2).AsText() + " 等 " +
                         entered.At(row, 1).AsText() + " 张）：资金帐户 " + entered.At(row, 0).AsText() +
                         " 已不存在；请在《资金管理系统》中恢复该帐户。");
}

} // namespace jxc
