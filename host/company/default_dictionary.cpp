#include "host/company/default_dictionary.h"

#include "forms/column_dictionary.h"
#include "host/company/table_writer.h"

namespace jxc {

namespace {

constexpr int kText = kDictionaryText, kNumber = kDictionaryNumber, kCheck = kDictionaryTick;
constexpr int kLeft = kDictionaryLeft, kRight = kDictionaryRight, kCenter = kDictionaryCenter;

struct ProductColumn {
    std::string_view field, simplified, traditional;
    int width; // in characters
    int type;
    int decimals;
    int alignment;
    bool shown;
    std::string_view codeList = "";
};
constexpr ProductColumn kProductColumns[] = {
    {"fCpCode", "编码", "編碼", 10, kText, 0, kLeft, true},
    {"fCpName", "品名", "品名", 22, kText, 0, kLeft, true},
    {"fCpGG", "规格", "規格", 20, kText, 0, kLeft, true},
    {"fCpUnit", "单位", "單位", 6, kText, 0, kCenter, true},
    {"fCpBarCode", "参考码", "參考碼", 15, kText, 0, kLeft, true},
    {"fCpPrice0", "成本价", "成本價", 10, kNumber, 2, kRight, true},
    {"fCpPrice1", "批发价", "批發價", 10, kNumber, 2, kRight, true},
    {"fCpPrice2", "代销价", "代銷價", 10, kNumber, 2, kRight, true},
    {"fCpPrice3", "零售价", "零售價", 10, kNumber, 2, kRight, true},
    {"fCpSlMin", "库存下限", "庫存下限", 9, kNumber, 2, kRight, true},
    {"fCpSlMax", "库存上限", "庫存上限", 9, kNumber, 2, kRight, true},
    {"fCkName", "限用仓库", "限用倉庫", 12, kText, 0, kLeft, true},
    {"fCpCw", "限用仓位", "限用倉位", 9, kText, 0, kLeft, true, "fCpCw"},
    {"fCpZy", "产品类别", "產品類別", 10, kText, 0, kLeft, true, "fCpZy"},
    {"fCpCd", "产品产地", "產品產地", 9, kText, 0, kLeft, true, "fCpCd"},
    {"fKhName", "供应商", "供應商", 20, kText, 0, kLeft, true},
    {"fCpPicture", "产品图片", "產品圖片", 16, kText, 0, kLeft, false},
    {"fCpFlag", "停用（Ｘ）", "停用（Ｘ）", 9, kCheck, 0, kCenter, true},
};

struct DocumentColumn {
    int column; // of the entry grid
    std::string_view field, caption, stocktakeCaption;
    int width;
};
constexpr DocumentColumn kDocumentColumns[] = {
    {1, "fCpCode", "编码", "编码", 12},
    {2, "fCpName", "品名规格", "品名规格", 32},
    {3, "fCpUnit", "单位", "单位", 6},
    {4, "fInvSl2", "", "帐面数", 9},
    {5, "fInvSl9", "", "实盘数", 9},
    {6, "fInvSl", "数量", "盈亏数", 9},
    {7, "", "", "", 10}, // the reference price is a help for entering and never printed
    {9, "fInvDj", "单价", "单价", 10},
    {10, "fInvJe", "金额", "金额", 12},
    {11, "fInvTaxRate", "税率", "", 7},
    {12, "fInvTax", "税额", "", 10},
    {13, "fInvOther1", "备注", "备注", 14},
    {14, "fInvOther2", "备注2", "备注2", 14},
    {15, "fInvSl2", "结余数", "", 9},
};

} // namespace

void FillColumnDictionary(Connection& connection, int priceDecimals) {
    TableWriter list(connection, "rptListDetail");
    int fieldID = 0;
    for (const ProductColumn& column : kProductColumns)
        list.Add({{"ftable", "tJXC_Cp"},
                  {"fieldID", ++fieldID},
                  {"FieldName", column.field},
                  {"FieldName_0", column.simplified},
                  {"FieldName_1", column.traditional},
                  {"FieldGridWidth", double(column.width)},
                  {"FieldDataType", column.type},
                  {"FieldDataDeci", column.field.starts_with("fCpPrice") ? priceDecimals : column.decimals},
                  {"FieldHAlign", column.alignment},
                  {"FieldSelected", column.shown ? 1 : 0},
                  {"FieldBriefType", column.codeList},
                  {"FEnabled", column.codeList.empty() ? 1 : 0}}); // the three lists of products are fixed

    TableWriter documents(connection, "tJXC_rptListDetail");
    for (const DocumentColumn& column : kDocumentColumns)
        documents.Add({{"fieldID", column.column},
                       {"FieldName", column.field},
                       {"FieldName_0", column.caption},
                       {"FieldName_1", column.stocktakeCaption},
                       {"FieldGridWidth", double(column.width)}});
}

} // namespace jxc
