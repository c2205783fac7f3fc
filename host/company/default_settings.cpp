#include "host/company/default_settings.h"

#include "host/company/table_writer.h"
#include "settings/document_types.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

// The modules whose rights are asked for one by one. A module's number is its place in the user's string of
// rights, whose first three places are adding, changing and deleting.
struct Module {
    int number;
    std::string_view name, simplified, traditional;
};
constexpr Module kModules[] = {
    {4, "mnuJxcSysCk", "仓库管理", "倉庫管理"},          {5, "mnuJxcSysCp", "产品管理", "產品管理"},
    {6, "mnuCardAdd", "客户资料", "客戶資料"},           {7, "mnuJxcSysZy", "单据摘要", "單據摘要"},
    {8, "mnuJxcYjJbr1", "营销员关系图", "營銷員關係圖"},
};

// Dismantling as its name says: the lines are the parts, which come in; the product of the panel is taken apart and
// leaves. The row that the settings screen offers has it the other way round.
DocumentTypeRow Dismantling(DocumentTypeRow type) {
    type.fSetCkName1 = "散件入库";
    type.fSetCkType1 = WarehouseKind::Production;
    type.fSetCrType1 = Direction::In;
    type.fSetCkName2 = "成品出库";
    type.fSetCkType2 = WarehouseKind::HeadOffice;
    return type;
}

void FillDocumentTypes(Connection& connection) {
    Recordset rows(connection, "select * from tJXC_InvSet", Access::Write);
    int fRowID = 0;
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes()) {
        const DocumentTypeRow type = shipped.fSetNo == DocType::Dismantling ? Dismantling(shipped) : shipped;
        const std::vector<Value> cells = RecordCells(type, ++fRowID);
        rows.AddNew();
        for (size_t column = 0; column < cells.size(); ++column)
            rows.Set(column, cells[column]);
        rows.Update();
    }
}

// Any number of lines, all modules in use.
void FillParameters(Connection& connection, const BooksStart& books) {
    const std::string start = IsoText(books.firstDay);
    TableWriter(connection, "tJXC_InvSys")
        .Add({{"fSysDate", start},
              {"fSysDay", 1},
              {"fSysTaxWay", static_cast<int>(books.taxWay)},
              {"fSysTaxRate", books.taxRate},
              {"fSysCostWay", static_cast<int>(books.costMethod)},
              {"fSysDeciSl", books.quantityDecimals},
              {"fSysDeciDj", books.priceDecimals},
              {"fSysMaxRow", 0},
              {"fSysDjBz1", "备注"},
              {"fSysDjBz2", ""},
              {"fSysYjTj", 0},
              {"fSysAuto1", 0},
              {"fSysAuto2", 0},
              {"fSysAuto3", 1},
              {"fSysAuto4", 0},
              {"fSysFun0", 1},
              {"fSysFun1", 1},
              {"fSysFun2", 1},
              {"fSysFun3", 1},
              {"fSysFun4", 1},
              {"fSysFun5", 1},
              {"fSysFun6", 1},
              {"fSysFun7", 1},
              {"fSysFun8", 1},
              {"fSysFun9", 1},
              {"fSysFun10", 1}});
    TableWriter(connection, "SystemSets").Add({{"CompDate", start}});
}

void FillModules(Connection& connection) {
    TableWriter modules(connection, "tSysFunc");
    for (const Module& module : kModules)
        modules.Add({{"SerialNo", module.number},
                     {"model_Name", module.name},
                     {"Model_Name_0", module.simplified},
                     {"Model_Name_1", module.traditional},
                     {"SecondPass", 0},
                     {"password", ""},
                     {"NoUse_", 0}});
}

void FillHeader(Connection& connection, const CompanyHeader& header) {
    TableWriter(connection, "myCompany")
        .Add({{"FullName", header.fullName},
              {"CompName", header.name},
              {"compadd", header.address},
              {"Province", header.province},
              {"cityname", header.city},
              {"Telphone", header.telephone},
              {"fax", header.fax},
              {"postcode", header.postcode},
              {"http", header.web},
              {"E_Mail", header.mail},
              {"CompTax", header.taxNumber},
              {"CompAcnt", header.account}});
}

} // namespace

Date FirstOfThisMonth() {
    const Date today = Today();
    return MakeDate(YearOf(today), MonthOf(today), 1);
}

void FillDefaultSettings(Connection& connection, const CompanyHeader& header, const BooksStart& books) {
    FillDocumentTypes(connection);
    FillParameters(connection, books);
    TableWriter(connection, "Moneys")
        .Add({{"MoneyCode", books.currency}, {"MoneyType", 1}, {"MoneyRate", 1.0}});
    FillModules(connection);
    FillHeader(connection, header);
    TableWriter(connection, "tAccounts")
        .Add({{"compname", "现金"}, {"compCode", std::to_string(kCashAccount)}});
}

void FillForeignCurrency(Connection& connection) {
    TableWriter(connection, "Moneys").Add({{"MoneyCode", "USD"}, {"MoneyType", 0}, {"MoneyRate", 7.1}});
}

} // namespace jxc
