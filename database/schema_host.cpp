// The host suite's tables, with the fields that this system uses.
#include "database/schema_tables.h"

namespace jxc {

using enum FieldType;

void AddHostTables(std::vector<TableDef>& tables) {
    tables.push_back({"cards",
                      {{"fID", Long},
                       {"CompCode", Text},
                       {"CompName", Text},
                       {"name", Text},
                       {"telphone", Text},
                       {"homephone", Text},
                       {"handphone", Text},
                       {"fax", Text},
                       {"E_mail", Text},
                       {"HomeEmail", Text},
                       {"http", Text},
                       {"HomeHttp", Text},
                       {"CompAdd", Text},
                       {"postcode", Text},
                       {"fType0", Short}},
                      {{"fID", true}, {"CompCode"}, {"CompName"}}});
    tables.push_back({"Moneys", {{"MoneyCode", Text}, {"MoneyType", Short}, {"MoneyRate", Double}}, {}});
    tables.push_back({"tAccounts", {{"compname", Text}, {"compCode", Text}}, {}});
    tables.push_back({"tAccountDetail",
                      {{"fAcntNo", Text},
                       {"fDate", Date},
                       {"fCompID", Long},
                       {"fType1", Short},
                       {"fType2", Short},
                       {"fMoneyA", Money},
                       {"fMoneyB", Money},
                       {"fInit", Money},
                       {"fBrief", Text},
                       {"fInvID", Text},
                       {"fOrderID", Text},
                       {"fUser", Text},
                       {"fDoneman", Text},
                       {"fChecker", Text},
                       {"fID2", Text},
                       {"fMoneyCode", Text},
                       {"fMoneyRate", Double}},
                      {{"fAcntNo"}, {"fInvID"}}});
    tables.push_back({"myCompany",
                      {{"FullName", Text},
                       {"CompName", Text},
                       {"compadd", Text},
                       {"Province", Text},
                       {"cityname", Text},
                       {"Telphone", Text},
                       {"fax", Text},
                       {"postcode", Text},
                       {"http", Text},
                       {"E_Mail", Text},
                       {"CompTax", Text},
                       {"CompAcnt", Text}},
                      {}});
    tables.push_back({"SystemSets", {{"CompDate", Date}}, {}});
    tables.push_back({"tSysFunc",
                      {{"SerialNo", Long},
                       {"model_Name", Text},
                       {"Model_Name_0", Text},
                       {"Model_Name_1", Text},
                       {"SecondPass", Short},
                       {"password", Text},
                       {"NoUse_", Short}},
                      {}});
    tables.push_back({"tHostUser",
                      {{"fUserName", Text}, {"fPower", Text}, {"fSupervisor", Short}, {"fPassword", Text}},
                      {{"fUserName", true}},
                      true});
    tables.push_back({"Brief", {{"BriefType", Text}, {"BriefTypeName", Text}}, {}});
    tables.push_back(
        {"briefDetail", {{"briefType", Text}, {"BriefCode", Text}, {"BriefName", Text}}, {{"briefType"}}});
    tables.push_back({"rptListDetail",
                      {{"ftable", Text},
                       {"fieldID", Long},
                       {"FieldName", Text},
                       {"FieldName_0", Text},
                       {"FieldName_1", Text},
                       {"FieldGridWidth", Double},
                       {"FieldDataType", Short},
                       {"FieldDataDeci", Short},
                       {"FieldHAlign", Short},
                       {"FieldSelected", Short},
                       {"FieldBriefType", Text},
                       {"FEnabled", Short}},
                      {{"ftable"}}});
    tables.push_back({"Employees", {{"employCode", Text}, {"employee", Text}}, {}});
    tables.push_back({"tRsBasic", {{"fCode", Text}, {"fName", Text}, {"fBmName", Text}}, {}});
    tables.push_back({"tRs_Bm", {{"fname", Text}, {"fcode", Text}, {"fynxj", Short}}, {}});
}

} // namespace jxc
