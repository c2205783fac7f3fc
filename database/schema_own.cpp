// The tables of this system: settings, master data, documents, stock statistics, sales performance.
#include "database/schema_tables.h"

namespace jxc {

namespace {

using enum FieldType;
using Fields = std::vector<FieldDef>;

// A document's head. Books that the close moves carry the month they were closed in.
Fields HeaderFields(bool closable) {
    Fields fields = {{"fInvID", Long},   {"fInvType", Short}, {"fHtNo", Text},      {"fInvNo", Text},
                     {"fInvDate", Date}, {"fKhID", Long},     {"fKhAdd", Text},     {"fCkName", Text},
                     {"fCkName2", Text}, {"fInvHb", Text},    {"fInvHbDl", Double}, {"fInvJE", Double},
                     {"fInvMemo", Text}, {"fInvDLR", Text},   {"fInvJbr", Text},    {"fInvSHR", Text},
                     {"fFlag", Short}};
    if (closable)
        fields.push_back({"fMonth", Date});
    return fields;
}

Fields LineFields(bool closable) {
    Fields fields = {
        {"fInvID", Long},        {"fInv1", Short},    {"fRowID", Short},    {"fInvInOut", Short},
        {"fInvNo", Text},        {"fInvDate", Date},  {"fKhID", Long},      {"fCkName", Text},
        {"fCpID", Long},         {"fInvSL", Double},  {"fInvSL2", Double},  {"fInvDJ", Double},
        {"fInvDJ2", Double},     {"fInvJE", Double},  {"fInvHb", Text},     {"fInvHbDl", Double},
        {"fInvTaxRate", Double}, {"fInvTax", Double}, {"fInvOther1", Text}, {"fInvOther2", Text}};
    if (closable)
        fields.push_back({"fMonth", Date});
    return fields;
}

// What an open book is asked for: by key, by number, by number within a type (previous and next document), by
// date.
const std::vector<IndexDef> kHeaderIndexes = {
    {"fInvID", true}, {"fInvNo"}, {"fInvType,fInvNo"}, {"fInvDate"}};
// A warehouse that documents name is not deleted.
const std::vector<IndexDef> kStockHeaderIndexes = {
    {"fInvID", true}, {"fInvNo"}, {"fInvType,fInvNo"}, {"fInvDate"}, {"fCkName"}};
const std::vector<IndexDef> kLineIndexes = {{"fInvID,fInv1,fRowID"}, {"fInvNo"}};
// What a product was bought or sold for last, from or to one customer or anybody, is asked for while a line is typed.
const std::vector<IndexDef> kStockLineIndexes = {
    {"fInvID,fInv1,fRowID"}, {"fInvNo"}, {"fCpID,fInvDate"}, {"fKhID,fCpID,fInvDate"}};
// Order lines are also asked for by product: a delivery lowers its order's balance, a plan sums what is on
// order.
const std::vector<IndexDef> kOrderLineIndexes = {{"fInvID,fCpID"}, {"fInvNo"}, {"fCpID"}};
// Closed months lie side by side and are replaced slice by slice; keys may repeat between them.
const std::vector<IndexDef> kClosedHeaderIndexes = {{"fInvID"}, {"fInvNo"}, {"fInvDate"}, {"fMonth"}};
const std::vector<IndexDef> kClosedLineIndexes = {
    {"fInvID"}, {"fInvNo"}, {"fMonth"}, {"fCpID,fInvDate"}, {"fKhID,fCpID,fInvDate"}};

Fields StockFields() {
    return {{"fCpID", Long},   {"fCkName", Text}, {"fQcSl", Double}, {"fQcJe", Double}, {"fRkSl", Double},
            {"fRkJe", Double}, {"fCkSl", Double}, {"fCkJe", Double}, {"fCkCb", Double}, {"fDkSl", Double},
            {"fPdSl", Double}, {"fKcSl", Double}, {"fKcDj", Double}, {"fKcJe", Double}, {"fMonth", Date}};
}

Fields PerformanceFields() {
    return {{"fName", Text},      {"fMonth", Date},     {"fJbCode", Long},    {"fYj_Je_Gr", Money},
            {"fYj_Je_Zj", Money}, {"fYj_Je_Jl", Money}, {"fYj_Tc_Zj", Money}, {"fYj_Tc_Xj", Money},
            {"fYj_Tc_Jl", Money}, {"fYj_Tc", Money}};
}

void AddSettings(std::vector<TableDef>& tables) {
    Fields system = {
        {"fSysDate", Date},     {"fSysDay", Short},     {"fSysTaxWay", Short},  {"fSysTaxRate", Double},
        {"fSysCostWay", Short}, {"fSysDeciSl", Double}, {"fSysDeciDj", Double}, {"fSysMaxRow", Double},
        {"fSysDjBz1", Text},    {"fSysDjBz2", Text},    {"fSysYjTj", Short},    {"fSysAuto1", Short},
        {"fSysAuto2", Short},   {"fSysAuto3", Short},   {"fSysAuto4", Short},   {"fSysFun0", Short},
        {"fSysFun1", Short},    {"fSysFun2", Short},    {"fSysFun3", Short},    {"fSysFun4", Short},
        {"fSysFun5", Short},    {"fSysFun6", Short},    {"fSysFun7", Short},    {"fSysFun8", Short},
        {"fSysFun9", Short},    {"fSysFun10", Short},   {"fSysWarnKc", Short}};
    tables.push_back({"tJXC_InvSys", std::move(system), {}});
    // Read and written by column position.
    tables.push_back(
        {"tJXC_InvSet",
         {{"fRowID", Short},      {"fSetNo", Short},      {"fSetName", Text},      {"fSetTjType", Short},
          {"fSetKhType", Short},  {"fSetWlType", Short},  {"fSetZjType", Short},   {"fSetDjBack_", Short},
          {"fSetDjDd_", Short},   {"fSetAutoNo", Text},   {"fSetTestNo", Text},    {"fSetCkName1", Text},
          {"fSetCkType1", Short}, {"fSetCrType1", Short}, {"fSetCkName2", Text},   {"fSetCkType2", Short},
          {"fSetDjType1", Short}, {"fSetDjType2", Short}, {"fSetHb_", Short},      {"fSetHbSl_", Short},
          {"fSetKc_", Short},     {"fSetJy_", Short},     {"fSetDefaultNo", Text}, {"fSetNoUse_", Short}},
         {{"fSetNo"}}});
    // See database/change_log.h.
    tables.push_back({"tJXC_Change",
                      {{"fKind", Short}, {"fID", Long}, {"fStamp", Double}},
                      {{"fKind,fID", true}, {"fKind,fStamp"}},
                      true});
    tables.push_back({"tJXC_rptListDetail",
                      {{"fieldID", Long},
                       {"FieldName", Text},
                       {"FieldName_0", Text},
                       {"FieldName_1", Text},
                       {"FieldGridWidth", Double}},
                      {}});
}

void AddMasterData(std::vector<TableDef>& tables) {
    tables.push_back({"tJXC_Ck",
                      {{"fCkCode", Text},
                       {"fCkName", Text},
                       {"fCkMemo", Text},
                       {"fCkType0", Short},
                       {"fCkType1", Short},
                       {"fCkType2", Short},
                       {"fCkType3", Short},
                       {"fCkFlag", Short},
                       {"fZhID", Long},
                       {"fKhID", Long}},
                      {{"fCkName"}}});
    tables.push_back(
        {"tJXC_Cp",
         {{"fCpID", Long},       {"fCpCode", Text},     {"fCpName", Text},     {"fCpGG", Text},
          {"fCpUnit", Text},     {"fCpBarCode", Text},  {"fCpPrice0", Double}, {"fCpPrice1", Double},
          {"fCpPrice2", Double}, {"fCpPrice3", Double}, {"fCpSlMin", Double},  {"fCpSlMax", Double},
          {"fCkName", Text},     {"fCpCw", Text},       {"fCpZy", Text},       {"fCpCd", Text},
          {"fKhName", Text},     {"fKhID", Long},       {"fCpPicture", Text},  {"fCpFlag", Short}},
         {{"fCpID", true}, {"fCpCode"}, {"fCpBarCode"}}});
    tables.push_back({"tJXC_CpTj01",
                      {{"fTjID", Long},
                       {"fTjCode", Text},
                       {"fTjName", Text},
                       {"fTjMemo", Text},
                       {"fTjJe", Double},
                       {"fCpID", Long},
                       {"fTjFlag", Short}},
                      {{"fTjID"}, {"fTjCode"}, {"fCpID"}}});
    tables.push_back(
        {"tJXC_CpTj02",
         {{"fTjID", Long}, {"fRowID", Long}, {"fCpPjID", Long}, {"fCpPjSL", Double}, {"fCpPjMemo", Text}},
         {{"fTjID"}, {"fCpPjID"}}});
    tables.push_back({"tJXC_KhAdd", {{"fKhID", Long}, {"fKhAdd", Text}}, {{"fKhID"}}});
    tables.push_back({"tJXC_CpGys",
                      {{"fCpID", Long},
                       {"fKhID", Long},
                       {"fCpSl", Double},
                       {"fCpPrice", Double},
                       {"fInvDate", Date},
                       {"fInvNo", Text}},
                      {{"fInvNo"}, {"fCpID"}, {"fInvDate"}}});
}

void AddDocuments(std::vector<TableDef>& tables) {
    tables.push_back({"tJXC_CkDj01", HeaderFields(true), kStockHeaderIndexes});
    tables.push_back({"tJXC_CkDj02", LineFields(true), kStockLineIndexes});
    tables.push_back({"tJXC_CkHt01", HeaderFields(false), kHeaderIndexes});
    tables.push_back({"tJXC_CkHt02", LineFields(false), kOrderLineIndexes});
    tables.push_back({"tJXC_CkJh01", HeaderFields(false), kHeaderIndexes});
    tables.push_back({"tJXC_CkJh02", LineFields(false), kLineIndexes});
    tables.push_back({"tJXC_CkXjBj01", HeaderFields(false), kHeaderIndexes});
    tables.push_back({"tJXC_CkXjBj02", LineFields(false), kLineIndexes});
    tables.push_back({"tJXC_CkDj_Bak01", HeaderFields(true), kClosedHeaderIndexes});
    tables.push_back({"tJXC_CkDj_Bak02", LineFields(true), kClosedLineIndexes});
    tables.push_back({"tJXC_CkDj_Tmp01", HeaderFields(true), {}});
    tables.push_back({"tJXC_CkDj_Tmp02", LineFields(true), {}});
}

void AddStockStatistics(std::vector<TableDef>& tables) {
    tables.push_back({"tJXC_CkTj", StockFields(), {{"fCkName,fCpID", true}, {"fCpID"}}});
    tables.push_back({"tJXC_CkTj_Bak", StockFields(), {{"fMonth"}}});
    tables.push_back({"tJXC_CkTj_tmp",
                      {{"fCpID", Long}, {"fKcSl", Double}, {"fKcJe", Double}, {"fKcDj", Double}},
                      {{"fCpID", true}}});
    tables.push_back({"tJXC_KhTj_Bak",
                      {{"fKhID", Long},
                       {"fCpID", Long},
                       {"fMonth", Date},
                       {"fCkSL", Double},
                       {"fCkJE", Double},
                       {"fCkCB", Double}},
                      {{"fMonth"}}});
}

void AddPerformance(std::vector<TableDef>& tables) {
    tables.push_back({"tJXC_Yj_Jbr",
                      {{"fCode", Text},
                       {"fName", Text},
                       {"fName2", Text},
                       {"fMemo", Text},
                       {"fFloor", Short},
                       {"fFlag", Short},
                       {"fJbCode", Long},
                       {"fCardID", Text},
                       {"fAcntID", Text},
                       {"fCompadd", Text},
                       {"fPostcode", Text},
                       {"fTelephone", Text},
                       {"fHomephone", Text},
                       {"fHandphone", Text},
                       {"fFax", Text},
                       {"fEmail", Text}},
                      {{"fName"}, {"fName2"}, {"fFloor"}}});
    tables.push_back({"tJXC_Yj_SetJb",
                      {{"fJbCode", Long},
                       {"fJbName", Text},
                       {"fJbMemo", Text},
                       {"fJbRate1", Double},
                       {"fJbRate2", Double},
                       {"fJbSet1", Short},
                       {"fJbSet2", Short},
                       {"fJbMin", Money},
                       {"fJbMax", Money},
                       {"fJbCode1", Long},
                       {"fJbCode2", Long},
                       {"fJbQty1", Short},
                       {"fJbQty2", Short}},
                      {{"fJbCode"}}});
    tables.push_back({"tJXC_Yj_SetJz",
                      {{"fMonth", Date},
                       {"fJzSet1", Short},
                       {"fJzSet2", Short},
                       {"fJzSet3", Short},
                       {"fJzSet4", Short},
                       {"fJzSet5", Short},
                       {"fJzSet6", Short}},
                      {{"fMonth"}}});
    tables.push_back({"tJXC_Yj_Data", PerformanceFields(), {{"fName"}, {"fMonth"}}});
    tables.push_back({"tJXC_Yj_Data_Bak", PerformanceFields(), {{"fName"}, {"fMonth"}}});
    tables.push_back({"tJXC_Yj_Data_Tmp", {{"fName", Text}, {"fYj_Tc_Xj", Money}}, {{"fName"}}});
}

} // namespace

void AddOwnTables(std::vector<TableDef>& tables) {
    tables.push_back({"tJXC_Audit",
                      {{"fID", Long},
                       {"fTime", Text},
                       {"fUser", Text},
                       {"fServerUser", Text},
                       {"fMachine", Text},
                       {"fAction", Text},
                       {"fTable", Text},
                       {"fKey", Text},
                       {"fName", Text},
                       {"fBefore", Text},
                       {"fAfter", Text},
                       {"fHash", Text}},
                      {{"fID", true}, {"fTime"}},
                      true});
    tables.push_back({"tJXC_PrintTemplate",
                      {{"fSetNo", Short}, {"fLanguage", Short}, {"fText", Text}},
                      {{"fSetNo,fLanguage", true}},
                      true});
    AddSettings(tables);
    AddMasterData(tables);
    AddDocuments(tables);
    AddStockStatistics(tables);
    AddPerformance(tables);
}

} // namespace jxc
