// What a new company holds, on both engines, and that a creation that fails leaves nothing.
#include "host/company/create_company.h"

#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "base/date.h"
#include "base/text.h"
#include "database/recordset.h"
#include "database/schema.h"
#include "session/company/open_connection.h"
#include "settings/document_types.h"
#include "tests/support/test_company.h"

namespace jxc {

namespace {

using test::EngineKind;

// Room for one company, on both engines.
class CreatedCompany : public testing::TestWithParam<EngineKind> {
  protected:
    void SetUp() override {
        if (const std::string reason = test::WhyUnavailable(GetParam()); !reason.empty())
            GTEST_SKIP() << reason;
        place.emplace(GetParam());
        path = place->Address();
    }
    void TearDown() override {
        connection.Close();
        if (place && Dialect() == 1)
            test::OnServer("drop database " + place->Database()); // refused while anybody is connected
    }
    int Dialect() const { return GetParam() == EngineKind::Sqlite ? 0 : 1; }
    void Create(CompanyKind kind) {
        CreateCompany(Dialect(), path, kind);
        OpenConnection(Dialect(), connection, path, "", "", "");
    }
    void Create(const NewCompany& wishes) {
        CreateCompany(Dialect(), path, wishes);
        OpenConnection(Dialect(), connection, path, "", "", "");
    }
    // The cells of the only row.
    std::string Row(const std::string& sql) {
        const test::Lines rows = test::LinesOf(connection.Query(sql));
        return rows.size() == 1 ? rows[0] : std::to_string(rows.size()) + " rows";
    }
    std::string Scalar(const std::string& sql) { return Recordset(connection, sql)[size_t{0}].AsText(); }
    int Count(const std::string& fromWhere) {
        return static_cast<int>(
            Recordset(connection, "Select Count(*) From " + fromWhere)[size_t{0}].AsLong());
    }

    std::optional<test::CompanyPlace> place;
    std::string path;
    Connection connection;
};

ON_BOTH_ENGINES(CreatedCompany);

TEST_P(CreatedCompany, HoldsTheDocumentTypes) {
    Create(CompanyKind::Default);
    Recordset types(connection, "select * from tJXC_InvSet where fSetNoUse_<>1 Order by fRowID");
    ASSERT_EQ(types.RecordCount(), 22u);
    const int order[] = {20, 21, 22, 23, 24, 0, 1, -1, 2, -2, 3, 4, 5, -5, 6, -6, 7, -7, 31, 32, 51, 52};
    for (int fRowID = 1; fRowID <= 22; ++fRowID, types.MoveNext()) {
        EXPECT_EQ(types[size_t{0}].AsLong(), fRowID);
        EXPECT_EQ(types["fSetNo"].AsLong(), order[fRowID - 1]);
        EXPECT_EQ(types["fSetDefaultNo"].AsText(), types["fSetAutoNo"].AsText());
        EXPECT_EQ(types["fSetTestNo"], Value(""));
    }

    const auto row = [&](int fSetNo) {
        std::string cells;
        Recordset type(connection, "select * from tJXC_InvSet where fSetNo=" + std::to_string(fSetNo));
        for (size_t column = 1; column < type.FieldCount(); ++column)
            cells += (column == 1 ? "" : "|") + (type[column].IsNull() ? "." : type[column].AsText());
        return cells;
    };
    EXPECT_EQ(row(1), "1|入库单|1|1|2|.|0|1|YYYYMMDDRKXXX||仓库|1|1|.|-1|1|1|1|1|1|0|YYYYMMDDRKXXX|0");
    EXPECT_EQ(row(4), "4|盘点单|4|-1|-1|.|.|.|YYYYMMDDPDXXX||仓库|0|1|.|-1|4|1|1|.|1|0|YYYYMMDDPDXXX|0");
    EXPECT_EQ(row(-6),
              "-6|代销退货单|3|2|-1|.|1|1|YYYYMMDDDFXXX||出库|1|2|代销仓库|3|4|3|1|.|1|0|YYYYMMDDDFXXX|0");
    // Dismantling takes the product out and brings the parts in; the row that the settings screen offers does not.
    EXPECT_EQ(
        row(32),
        "32|生产拆分单|3|-1|-1|.|.|.|YYYYMMDDCFXXX||散件入库|4|1|成品出库|1|-1|1|1|.|1|0|YYYYMMDDCFXXX|0");
    EXPECT_EQ(DefaultDocumentTypes()[19].fSetCkName1, "成品出库");
    EXPECT_EQ(DefaultDocumentTypes()[19].fSetCrType1, 2);
    EXPECT_EQ(row(52),
              "52|内部资金帐|.|-1|-1|.|.|.|YYYYMMZJXXXXX||.|-1|-1|.|-1|-1|-1|0|.|0|0|YYYYMMZJXXXXX|0");
}

TEST_P(CreatedCompany, BeginsItsBooksOnTheFirstOfTheMonth) {
    Create(CompanyKind::Default);
    const std::string first = IsoText(Today()).substr(0, 8) + "01";
    Recordset system(connection, "select * from tJXC_InvSys");
    ASSERT_EQ(system.RecordCount(), 1u);
    EXPECT_EQ(system["fSysDate"].AsText(), first);
    EXPECT_EQ(system["fSysDay"].AsLong(), 1);
    EXPECT_EQ(system["fSysFun10"].AsLong(), 1);
    EXPECT_EQ(Scalar("select CompDate from SystemSets"), first);
    EXPECT_EQ(Scalar("Select MoneyCode,0 as aa from Moneys Order By MoneyType desc"), "人民币");
    EXPECT_EQ(Count("tJXC_Cp"), 0);
    EXPECT_EQ(Count("tJXC_Ck"), 0);
}

TEST_P(CreatedCompany, HasACaptionForEveryProductFieldShown) {
    Create(CompanyKind::Default);
    const TableDef& products = *FindTable("tJXC_Cp");
    Recordset columns(connection, "select * from RptListDetail where ftable='tJxc_Cp' order by fieldID");
    EXPECT_EQ(columns.RecordCount(),
              products.fields.size() - 2); // the keys of product and supplier have none
    for (; !columns.AtEnd(); columns.MoveNext()) {
        EXPECT_NE(FindField(products, columns["FieldName"].AsText()), nullptr);
        EXPECT_NE(columns["FieldName_0"].AsText(), "");
        EXPECT_NE(columns["FieldName_1"].AsText(), "");
    }
    Recordset counted(connection,
                      "select FieldName_1,FieldName from tJXC_rptListDetail Where FieldName_1<>'' "
                      "And fieldID<7 Order by fieldID");
    std::string captions;
    for (; !counted.AtEnd(); counted.MoveNext())
        captions += counted[size_t{0}].AsText() + "=" + counted[1].AsText() + " ";
    EXPECT_EQ(captions,
              "编码=fCpCode 品名规格=fCpName 单位=fCpUnit 帐面数=fInvSl2 实盘数=fInvSl9 盈亏数=fInvSl ");
}

TEST_P(CreatedCompany, BareHasTablesOnly) {
    Create(CompanyKind::Bare);
    for (const TableDef& table : AllTables())
        EXPECT_EQ(Count(std::string(table.name)), 0) << table.name;
}

TEST_P(CreatedCompany, SampleProductsFitTheirFields) {
    Create(CompanyKind::Sample);
    Recordset products(connection, "select * from tJXC_Cp Order By fCpID");
    ASSERT_GE(products.RecordCount(), 60u);
    std::set<std::string> codes, barCodes;
    for (int fCpID = 2; !products.AtEnd(); products.MoveNext(), ++fCpID) {
        const std::string code = products["fCpCode"].AsText();
        EXPECT_EQ(products["fCpID"].AsLong(), fCpID); // the first key handed out is 2
        EXPECT_TRUE(codes.insert(code).second) << code;
        EXPECT_TRUE(barCodes.insert(products["fCpBarCode"].AsText()).second) << code;
        EXPECT_EQ(products["fCpBarCode"].AsText().size(), 13u);
        EXPECT_LE(AnsiByteLength(code), 20);
        EXPECT_LE(AnsiByteLength(products["fCpName"].AsText()), 50) << code;
        EXPECT_LE(AnsiByteLength(products["fCpGG"].AsText()), 30) << code;
        EXPECT_LE(AnsiByteLength(products["fCpUnit"].AsText()), 8) << code;
        for (int price = 1; price < 4; ++price)
            EXPECT_GT(products["fCpPrice" + std::to_string(price)].AsDouble(),
                      products["fCpPrice" + std::to_string(price - 1)].AsDouble())
                << code;
        EXPECT_LE(products["fCpSlMin"].AsDouble(), products["fCpSlMax"].AsDouble()) << code;
    }
    EXPECT_EQ(Count("tJXC_Cp a Left Join cards b On a.fKhID=b.fID Where a.fKhID>0 And (b.fType0 is null or "
                    "b.fType0<>1 or b.CompName<>a.fKhName)"),
              0);
    EXPECT_EQ(Count("tJXC_Cp Where fCkName<>'' And fCkName not in (Select fCkName From tJXC_Ck)"), 0);
    // Each category, location and origin can be picked from its list.
    for (const std::string field : {"fCpZy", "fCpCw", "fCpCd"})
        EXPECT_EQ(Count("tJXC_Cp Where " + field + "<>'' And " + field +
                        " not in (Select BriefName From briefDetail Where briefType='" + field + "')"),
                  0);
    // A kit costs what its parts cost, and the kit product carries that cost.
    Recordset kits(connection, "select a.fTjID,a.fTjJe,b.fCpPrice0 from tJXC_CpTj01 a Left Join tJXC_Cp b "
                               "On a.fCpID=b.fCpID Order By a.fTjID");
    ASSERT_GE(kits.RecordCount(), 1u);
    for (; !kits.AtEnd(); kits.MoveNext()) {
        const double parts =
            Val(Scalar("select sum(a.fCpPjSL*b.fCpPrice0) as fJe from tJXC_CpTj02 a Left Join tJXC_Cp b "
                       "On a.fCpPjID=b.fCpID where a.fTjID=" +
                       kits["fTjID"].AsText()));
        EXPECT_NEAR(kits["fTjJe"].AsDouble(), parts, 1e-9);
        EXPECT_NEAR(kits["fCpPrice0"].AsDouble(), parts, 1e-9);
    }
}

TEST_P(CreatedCompany, SampleHasAWarehouseOfEachKind) {
    Create(CompanyKind::Sample);
    for (const char* kind : {"fCkType0", "fCkType1", "fCkType2", "fCkType3"})
        EXPECT_EQ(Count(std::string("tJXC_Ck Where fCkFlag<>1 And ") + kind + "=1"), 1) << kind;
    EXPECT_EQ(Scalar("Select b.compname From tJXC_Ck a, tAccounts b Where a.fCkType1=1 And b.compCode='1001' "
                     "And a.fZhID=1001"),
              "现金");
    EXPECT_EQ(Scalar("Select b.fType0 From tJXC_Ck a Inner Join cards b On a.fKhID=b.fID Where a.fCkType2=1"),
              "3");

    EXPECT_EQ(Count("cards"), 20);
    EXPECT_EQ(Scalar("Select min(fID) as fID From cards"), "2");
    EXPECT_EQ(Count("cards Where fType0=3"), 3);
}

TEST_P(CreatedCompany, SampleSalespeopleFormOneTree) {
    Create(CompanyKind::Sample);
    EXPECT_EQ(Count("tJXC_Yj_Jbr"), 8);
    EXPECT_EQ(Count("tJXC_Yj_Jbr Where fFloor=0"), 1);
    EXPECT_EQ(Count("tJXC_Yj_Jbr a Inner Join tJXC_Yj_Jbr b On a.fName2=b.fName Where a.fFloor=b.fFloor+1"),
              7);
    EXPECT_EQ(Count("tJXC_Yj_Jbr Where fJbCode not in (Select fJbCode From tJXC_Yj_SetJb)"), 0);
    EXPECT_EQ(Count("tRsBasic Where fBmName not in (Select fname From tRs_Bm)"), 0);
    EXPECT_EQ(Count("tRsBasic Where fName in (Select fName From tJXC_Yj_Jbr)"), 8);
}

NewCompany Harbour() {
    NewCompany wishes;
    wishes.name = "海港商贸";
    wishes.books = {.firstDay = MakeDate(2026, 3, 1),
                    .quantityDecimals = 0,
                    .priceDecimals = 4,
                    .currency = "港币",
                    .taxWay = TaxWay::Contained,
                    .taxRate = 0.13,
                    .costMethod = CostMethod::WholeMoving};
    wishes.warehouseCode = "A1";
    wishes.warehouse = "码头仓";
    wishes.user = "何海";
    wishes.passwordHash = "$a hash$";
    return wishes;
}

TEST_P(CreatedCompany, IsSetUpAsWished) {
    Create(Harbour());
    EXPECT_EQ(Row("select fSysDate,fSysDay,fSysDeciSl,fSysDeciDj,fSysTaxWay,fSysTaxRate,fSysCostWay,fSysFun10"
                  " from tJXC_InvSys"),
              "2026-03-01|1|0|4|2|0.13|2|1");
    EXPECT_EQ(Row("select CompDate from SystemSets"), "2026-03-01");
    EXPECT_EQ(Row("select MoneyCode,MoneyType,MoneyRate from Moneys"), "港币|1|1");
    EXPECT_EQ(Row("select CompName,FullName from myCompany"), "海港商贸|海港商贸");
    EXPECT_EQ(
        Row("select fCkCode,fCkName,fCkType0,fCkType1,fCkType2,fCkType3,fCkFlag,fZhID,fKhID from tJXC_Ck"),
        "A1|码头仓|1|0|0|0|0|0|0");
    // Adding, changing and deleting, and the five modules.
    EXPECT_EQ(Row("select fUserName,fPower,fSupervisor,fPassword from tHostUser"),
              "何海|11111111|1|$a hash$");
    // Prices have the wished decimals where they are listed, bounds of stock keep theirs.
    EXPECT_EQ(Count("rptListDetail Where Left(FieldName,8)='fCpPrice' And FieldDataDeci=4"), 4);
    EXPECT_EQ(Count("rptListDetail Where Left(FieldName,7)='fCpSlM' And FieldDataDeci<>2"), 0);
    EXPECT_EQ(Count("tJXC_InvSet Where fSetNoUse_<>1"), 22);
    EXPECT_EQ(Scalar("select compname from tAccounts"), "现金");
    for (const char* empty : {"tJXC_Cp", "cards", "tJXC_CkDj01", "tJXC_Audit"})
        EXPECT_EQ(Count(empty), 0) << empty;
}

TEST_P(CreatedCompany, LeavesNothingOfTheWishesWhenFillingFails) {
    const auto failAtTheUser = [](std::string_view sql) {
        if (sql.find("tHostUser") != std::string_view::npos)
            throw DatabaseError("no space left");
    };
    EXPECT_THROW(CreateCompany(Dialect(), path, Harbour(), failAtTheUser), DatabaseError);
    if (Dialect() == 0) {
        EXPECT_FALSE(std::filesystem::exists(path));
    }
    Create(Harbour()); // the same place serves the next attempt
    EXPECT_EQ(Count("tHostUser"), 1);
    EXPECT_THROW(CreateCompany(Dialect(), path, Harbour()), DatabaseError);
    EXPECT_EQ(Count("tHostUser"), 1);
}

TEST_P(CreatedCompany, LeavesNothingWhenFillingFails) {
    int statements = 0;
    const auto failAtTheLastTable = [&](std::string_view sql) {
        ++statements;
        if (sql.find("tJXC_Yj_SetJb") != std::string_view::npos)
            throw DatabaseError("no space left");
    };
    EXPECT_THROW(CreateCompany(Dialect(), path, CompanyKind::Sample, failAtTheLastTable), DatabaseError);
    EXPECT_GT(statements, 1);
    if (Dialect() == 0) {
        EXPECT_FALSE(std::filesystem::exists(path));
    }
    // So the same place serves the next attempt.
    Create(CompanyKind::Sample);
    EXPECT_EQ(Count("tJXC_InvSet"), 22);
}

TEST_P(CreatedCompany, RefusesAPlaceThatIsTaken) {
    Create(CompanyKind::Sample);
    EXPECT_THROW(CreateCompany(Dialect(), path, CompanyKind::Default), DatabaseError);
    EXPECT_EQ(Count("cards"), 20);
}

} // namespace

} // namespace jxc
