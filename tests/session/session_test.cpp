// The control, rights, messages, periods and lookups, on both engines where they read the company.
#include <gtest/gtest.h>

#include "base/text.h"
#include "controls/gestures.h"
#include "controls/scripted_view.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "session/company/company_fields.h"
#include "session/components.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/find_by_text.h"
#include "session/messages.h"
#include "session/period.h"
#include "session/printing/html_pages.h"
#include "session/rights.h"
#include "session/session.h"
#include "settings/document_numbers.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

namespace {

TEST(Period, BeginsOnItsDayOfThisMonthOrTheLast) {
    const Date march = MakeDate(2003, 3, 15);
    EXPECT_EQ(IsoText(PeriodDate(march, 1)), "2003-03-01");
    EXPECT_EQ(IsoText(PeriodDate(march, 26)), "2003-03-26");
    EXPECT_EQ(IsoText(PeriodDate(march, -26)), "2003-02-26");
    EXPECT_EQ(IsoText(PeriodDate(march, -1)), "2003-02-01");
    EXPECT_EQ(IsoText(PeriodDate(march, 0)), "2003-02-28");
    EXPECT_EQ(IsoText(PeriodDate(MakeDate(2004, 1, 31), -26)), "2003-12-26");
}

TEST(Messages, ComeInBothCharacterSets) {
    session.Language = 0;
    EXPECT_EQ(GetResStr(39), "您无权进入!");
    session.Language = 1;
    EXPECT_EQ(GetResStr(39), "您無權進入!");
    EXPECT_EQ(GetResStr(42), "倉庫刪除 , 可能引起數据混亂, 謹慎!");
    session.Language = 0;
    for (const int gap : {1, 16, 28, 46, 100, 103, 158, 170})
        EXPECT_THROW(static_cast<void>(GetResStr(gap)), std::out_of_range) << gap;
}

TEST(Control, KeepsItsPropertiesInTheBag) {
    lzJxc control;
    control.UserPath("a.db");
    control.SQLData(1);
    control.Language(1);
    control.myType(-5);
    control.CopyRight(true);
    control.myModel("001");
    EXPECT_EQ(control.myModel(), "");
    PropertyBag bag;
    control.WriteProperties(bag);
    ASSERT_EQ(bag.size(), 12U);
    EXPECT_EQ(bag.front().first, "UserPath");
    EXPECT_EQ(bag[3].first, "oldName");
    EXPECT_EQ(bag.back().first, "CopyRight");
    control.SQLData(0); // sets the delimiter; restoring does not
    control.ReadProperties(bag);
    EXPECT_EQ(session.SQLData, 1);
    EXPECT_EQ(session.DateDelimiter, "#");
    EXPECT_EQ(control.myType(), -5);
    control.ReadProperties({});
    EXPECT_EQ(control.myPower(), "0000");
    EXPECT_EQ(control.myType(), -1);
    for (const std::string& bad : {std::string("王\0芳", 7), std::string("\xE7\x8E"), std::string("\xFF")})
        EXPECT_THROW(control.SetProperty("UserName", bad), ScreenError);
    EXPECT_EQ(control.UserName(), "");
    EXPECT_THROW(control.SetProperty("NoSuch", 1), ScreenError);
    EXPECT_THROW(control.SetProperty("myType", "x"), ScreenError);
    EXPECT_THROW(control.SetProperty("myType", 70000), ScreenError);
    EXPECT_THROW(control.SetProperty("Language", 2), ScreenError);
    EXPECT_EQ(control.myType(), -1);
}

class Company : public OnSampleCompany {
  protected:
    void Open() { open = std::make_unique<OpenCompany>(company->Address()); }

    ScriptedView view;
    ViewInUse inUse{view};
    std::unique_ptr<OpenCompany> open;
};
ON_BOTH_ENGINES(Company);

TEST_P(Company, RefreshOpensTheScreenOfTheNumber) {
    control.myType(-1);
    control.Refresh(4);
    control.myType(1);
    control.Refresh(13);
    EXPECT_EQ(view.screens, (std::vector<std::string>{"frmCkKc", "frmDj02"}));
    EXPECT_EQ(FindScreen("frmDj02")->GetProperty("Action").AsLong(), 1);
    EXPECT_EQ(FindScreen("frmDj02")->GetProperty("invType").AsLong(), 1);
    view.boxes.clear();
    for (const int unknown : {10, 15, 20, 26, 27, 30, -1})
        control.Refresh(static_cast<std::int16_t>(unknown));
    EXPECT_TRUE(view.boxes.empty() || view.boxes.front().text.empty());
    EXPECT_EQ(view.screens.size(), 2U);
    EXPECT_FALSE(session.CompanyFieldList.empty());
    EXPECT_EQ(session.Conn, nullptr);
    // The number's condition on myType chooses the screen.
    control.myType(-1);
    control.Refresh(7);
    EXPECT_EQ(view.screens.back(), "frmJz_unStep");
    control.myType(1);
    control.Refresh(7);
    EXPECT_EQ(view.screens.back(), "frmJz_Step");
    control.myType(0);
    control.Refresh(21);
    EXPECT_EQ(view.boxes.back().text, "本版本尚未提供该功能（frmYj_Jbr_Jb）。");
    control.myType(77);
    control.Refresh(13);
    EXPECT_EQ(view.boxes.back().text, "没有单据类型 77。");
    EXPECT_EQ(view.screens.size(), 4U);
}

// A host's button inside an open screen: the screen keeps its connection and goes on.
TEST_P(Company, IsNotOpenedAgainFromInsideAScreen) {
    control.myType(1);
    view.OnScreen("frmDj02", [&](Screen& entry) {
        control.Refresh(11);
        EXPECT_EQ(view.boxes.back().text, "还有窗口没有关闭，请先关闭它，再打开另一个！");
        EXPECT_TRUE(entry.IsOpen());
        EXPECT_EQ(RowsOf("Select fSetName From tJXC_InvSet Where fSetNo=1"), (Lines{"入库单"}));
    });
    control.Refresh(13);
    EXPECT_EQ(view.screens, Lines{"frmDj02"});
    EXPECT_EQ(session.Conn, nullptr);
    view.OnScreen("frmDj02", [](Screen&) { throw 42; }); // nothing of a host's view passes the boundary
    EXPECT_NO_THROW(control.Refresh(13));
    EXPECT_EQ(session.Conn, nullptr);
    view.OnScreen("frmDj02", [](Screen&) {});
    view.boxes.clear();
    control.Refresh(13);
    EXPECT_TRUE(view.boxes.empty());
}

TEST_P(Company, EngineOfThePropertyBagHasItsDateDelimiter) {
    session.DateDelimiter.clear(); // as a bag leaves it
    control.myType(1);
    view.OnScreen("frmDj02", [](Screen&) { EXPECT_EQ(session.DateDelimiter, session.IsJet() ? "#" : "'"); });
    control.Refresh(13);
    EXPECT_EQ(view.screens.size(), 1U);
}

TEST_P(Company, RightsAreReadFromTheDigits) {
    Open();
    control.myPower("0310");
    const auto expect = [&](const std::string& module, int offset, int right, bool told) {
        SCOPED_TRACE(module + " and " + std::to_string(offset));
        view.boxes.clear();
        EXPECT_EQ(HasModuleRight(module, offset), right != 0);
        EXPECT_TRUE(view.boxes.empty());
        EXPECT_EQ(ModuleRight(module, offset), right);
        ASSERT_EQ(view.boxes.size(), told ? 1U : 0U);
        if (told) {
            EXPECT_EQ(view.boxes[0].text, "您无权进入!");
            EXPECT_EQ(view.boxes[0].icon, BoxIcon::Warning);
        }
    };
    const auto enter = [](int serial, int notInUse) {
        Do("Update tSysFunc Set SerialNo=" + std::to_string(serial) + ",NoUse_=" + std::to_string(notInUse) +
           " Where model_Name='mnuJxcSysCk'");
    };
    struct Case {
        int serial, offset, right;
        bool told;
    };
    for (const auto& [serial, offset, right, told] :
         {Case{1, 0, 0, true},
          {1, 1, 2, false},
          {2, 0, 2, false}, // any digit but 0
          {2, 1, 3, false},
          {3, 0, 3, false},
          {3, 1, 0, true},
          {4, 0, 0, true},
          {5, 0, 0, true},    // beyond the digits
          {-1, 0, -1, false}, // everyone's, whatever the digits say
          {-1, 2, 1, false},
          {-2, 4, 0, true}, // nobody's, although digit 2 is set
          {0, 2, 0, false}}) {
        enter(serial, 0);
        SCOPED_TRACE(serial);
        expect("mnuJxcSysCk", offset, right, told);
    }
    enter(2, 0);
    expect("仓库管理", 0, 2, false);
    expect("倉庫管理", 0, 0, false); // in the other language only
    control.Language(1);
    expect("倉庫管理", 0, 2, false);
    control.Language(0);
    expect("noSuchModule", 2, 0, false);
    expect("", 4, 1, false);
    control.UserName(""); // nobody is signed in
    expect("mnuJxcSysCk", 0, 0, false);
    expect("", 0, 0, false);
    control.UserName("王芳");
    enter(2, 1);
    expect("mnuJxcSysCk", 0, 0, false);
}

TEST_P(Company, HeaderOfPrintoutsFollowsTheLanguage) {
    Open();
    session.Conn->Execute(
        "Update myCompany Set FullName='',CompName='短名',Province='广东',cityname='深圳',compadd='一路'");
    session.CompanyFieldList.clear();
    CompanyFields();
    ASSERT_EQ(session.CompanyFieldList.size(), 20U);
    EXPECT_EQ(session.CompanyFieldList[0], "<公司单位>");
    EXPECT_EQ(session.CompanyFieldList[1], "短名");
    EXPECT_EQ(session.CompanyFieldList[4], "<省市地址>");
    EXPECT_EQ(session.CompanyFieldList[5], "广东深圳一路");
}

TEST_P(Company, ProductsAreFoundAsTyped) {
    Open();
    Connection& books = *session.Conn;
    books.Execute("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Select fCpID,'总部仓',7 From tJXC_Cp Where "
                  "fCpCode='CPU002'");
    books.Execute("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Select fCpID,'代销仓',2 From tJXC_Cp Where "
                  "fCpCode='CPU002'");
    ProductSought exact{.warehouse = "总部仓", .code = "cpu002", .stock = 0};
    const int id = FindProduct(exact);
    EXPECT_GT(id, 0);
    EXPECT_EQ(exact.code, "CPU002");
    EXPECT_EQ(exact.name, "处理器 四核");
    EXPECT_EQ(exact.stock, 7);
    EXPECT_EQ(exact.price[3], 789);
    EXPECT_EQ(GetStockQty("", id), 9);
    EXPECT_EQ(GetStockQty("零售门市", id), 0);
    ProductSought unwanted{.code = "CPU002", .stock = -1};
    FindProduct(unwanted);
    EXPECT_EQ(unwanted.stock, -1);
    // An exact code wins over longer ones, and over the pattern.
    books.Execute("Update tJXC_Cp Set fCpCode='CPU0021' Where fCpCode='CPU003'");
    EXPECT_EQ(FindProduct(exact), id);
    ProductSought parts{.name = "内存条，DDR5 6000"};
    EXPECT_GT(FindProduct(parts), 0);
    EXPECT_EQ(parts.code, "MEM004");
    ProductSought single{.code = "CPU0021*"};
    EXPECT_GT(FindProduct(single), 0);
    ProductSought none{.code = "ZZZ"};
    EXPECT_EQ(FindProduct(none), 0);
    EXPECT_EQ(FindProduct(none = {}), 0);
    books.Execute("Update tJXC_Cp Set fCpFlag=1 Where fCpCode='CPU002'");
    ProductSought stopped{.code = "CPU002"};
    EXPECT_NE(FindProduct(stopped), id); // the pattern now finds CPU0021 alone
    EXPECT_EQ(stopped.code, "CPU0021");
    ProductSought several{.code = "MEM"};
    view.OnScreen("frmCp",
                  [](Screen& picker) { Click(picker, *dynamic_cast<Button*>(picker.Find("cmdQuit"))); });
    EXPECT_EQ(FindProduct(several), 0);
    EXPECT_EQ(view.screens.back(), "frmCp");
}

// What its own steps do not find by code is looked for among the bar codes.
TEST_P(Company, ProductsAreFoundByBarCode) {
    Open();
    Connection& books = *session.Conn;
    const std::string code = "Where fCpCode=";
    books.Execute("Update tJXC_Cp Set fCpBarCode='X69' " + code + "'CPU001'");
    books.Execute("Update tJXC_Cp Set fCpBarCode='CPU002' " + code + "'CPU003'");
    books.Execute("Update tJXC_Cp Set fCpBarCode='U00' " + code + "'CPU004'");
    ProductSought scanned{.code = "x69"};
    const int id = FindProduct(scanned);
    EXPECT_EQ(scanned.code, "CPU001");
    EXPECT_TRUE(scanned.byBarCode);
    ProductSought exact{.code = "CPU002"};
    FindProduct(exact);
    EXPECT_EQ(exact.code, "CPU002");
    EXPECT_FALSE(exact.byBarCode);
    for (const char* other : {"X6", "69", "X69'", "X%", ""}) // whole, and no pattern
        EXPECT_EQ(FindProduct(scanned = {.code = other}), 0) << other;

    std::int32_t picks = id;
    std::string asked; // of the picker, last
    view.OnScreen("frmCp", [&](Screen& picker) {
        const auto text = [&](const char* box) { return dynamic_cast<TextBox*>(picker.Find(box))->text; };
        asked = text("txtCpCode2") + "|" + text("txtCpName2") + "|" + text("txtCpBarCode2");
        session.SelectedProductID = picks;
    });
    ProductSought like{.code = "U00"}; // many codes are like it
    EXPECT_EQ(FindProduct(like), id);
    EXPECT_EQ(asked, "U00||");
    EXPECT_FALSE(like.byBarCode);
    books.Execute("Update tJXC_Cp Set fCpBarCode='X69' " + code + "'MEM001'");
    EXPECT_EQ(FindProduct(scanned = {.code = "X69"}), id);
    EXPECT_TRUE(scanned.byBarCode);
    EXPECT_EQ(asked, "||X69");
    picks = 0;
    EXPECT_EQ(FindProduct(scanned = {.code = "X69"}), 0);
    books.Execute("Update tJXC_Cp Set fCpFlag=1 " + code + "'CPU001'");
    EXPECT_NE(FindProduct(scanned = {.code = "X69"}), id);
    EXPECT_EQ(scanned.code, "MEM001"); // a stopped product's bar code is nobody's
}

TEST_P(Company, CustomersAreFoundAsTyped) {
    Open();
    Connection& books = *session.Conn;
    books.Execute("Update cards Set CompName='' Where CompCode='G002'");
    books.Execute("Update cards Set CompName='G001的邻居' Where CompCode='G003'");
    const auto screen = FindScreen("frmCkKc");
    ListBox list(*screen, "list");
    list.items = {"old"};
    EXPECT_EQ(FindCustomerCard(list, ""), 0);
    EXPECT_EQ(list.items.size(), 1U);
    EXPECT_EQ(FindCustomerCard(list, "g001"), 1); // the exact code, not the name that holds it
    EXPECT_EQ(CustomerNameOf(list.Chosen()), "深圳市芯源电子有限公司");
    EXPECT_EQ(FindCustomerCard(list, "G002"), 1);
    EXPECT_EQ(CustomerNameOf(list.Chosen()), "（空）");
    EXPECT_EQ(FindCustomerCard(list, "G00"), 7); // a pattern leaves out the nameless one of eight
    EXPECT_EQ(FindCustomerCard(list, "没有这家"), 0);
    EXPECT_TRUE(list.items.empty());
    for (int i = 0; i < 120; ++i)
        books.Execute("Insert Into cards (fID,CompCode,CompName,fType0) Values (" + std::to_string(1000 + i) +
                      ",'Q" + std::to_string(i) + "','Q公司',0)");
    EXPECT_EQ(FindCustomerCard(list, "Q公司"), 101);
    ResetScreens();
}

TEST_P(Company, WarehousesAreFilteredByKind) {
    Open();
    const auto names = [](int kind) {
        return RowsOf(WarehouseFilter(kind, "Select fCkName from tJXC_Ck") + " Order By fCkCode");
    };
    EXPECT_EQ(names(0), (Lines{"总部仓", "零售门市", "代销仓", "生产仓"}));
    EXPECT_EQ(names(1), (Lines{"总部仓"}));
    EXPECT_EQ(names(2), (Lines{"零售门市"}));
    EXPECT_EQ(names(3), (Lines{"代销仓"}));
    EXPECT_EQ(names(4), (Lines{"生产仓"}));
    EXPECT_EQ(names(5), (Lines{"总部仓", "零售门市", "生产仓"}));
    session.Conn->Execute("Update tJXC_Ck Set fCkFlag=1 Where fCkName='总部仓'");
    EXPECT_EQ(names(1), Lines{});
}

TEST_P(Company, NumbersRunOnUnderTheirStem) {
    Open();
    const Date day = MakeDate(2003, 3, 5);
    const auto next = [&](std::string rule, int series = 1) { return NextDocumentNo(day, rule, series); };
    const auto store = [](const std::string& number) {
        session.Conn->Execute("Insert Into tJXC_CkDj02 (fInvID,fInv1,fRowID,fInvNo) Values (1,0,1,'" +
                              number + "')");
    };
    EXPECT_EQ(next("YYYYMMDDRKXXX"), "20030305RK001");
    store("20030305RK007");
    store("20030305RKABC"); // no counter
    store("20030306RK050"); // another day
    EXPECT_EQ(next("YYYYMMDDRKXXX"), "20030305RK008");
    EXPECT_EQ(next("YYYYMMDDRKXXX", 23), "20030305RK001"); // another book
    EXPECT_EQ(next("YYYYMMDDRKXXX", 99), "20030305RK001"); // a test reads nothing
    store("20030305RK999");
    EXPECT_EQ(next("YYYYMMDDRKXXX"), "20030305RK000"); // the counter wraps
    EXPECT_EQ(next("RK-XXXX"), "RK-0001");
    store("W-0412"); // a counter of another width takes part as its first digits: 041
    store("W-039");
    EXPECT_EQ(next("W-XXX"), "W-042");
    EXPECT_EQ(next("YYXXX"), "YY001"); // a bare YY is no token
    EXPECT_EQ(next("DDMMYY/X"), "050303/1");
    EXPECT_EQ(next("YYYYMMDD"), "");
    std::string lower = "yymmddxxx";
    EXPECT_EQ(NextDocumentNo(day, lower, 1), "030305001");
    EXPECT_EQ(lower, "YYMMDDXXX");
    EXPECT_TRUE(CheckNumberRule("YYYYMMDD-RXXX"));
    for (const char* bad : {"YYYYXX", "R'XXX", "R%XXX", "R_XXX", "R*XXX", "R#XXX", "XXX-"})
        EXPECT_FALSE(CheckNumberRule(bad)) << bad;
    EXPECT_EQ(view.boxes.size(), 7U);
    EXPECT_EQ(view.boxes[0].text.substr(0, view.boxes[0].text.find('\n')), " [自动单号]设定--规则如下：");
    EXPECT_TRUE(CheckNumberRule("YYYYMMDD-RECEIPT-XXX")); // 20 bytes
    EXPECT_FALSE(CheckNumberRule("YYYYMMDD-RECEIPT-XXXX"));
    EXPECT_FALSE(CheckNumberRule("YYYYMMDD入库单XXXXXXX")); // 8 + 6 + 7
    EXPECT_EQ(view.boxes.back().text, "[自动单号]最多 20 个字节，“YYYYMMDD入库单XXXXXXX”有 21 个字节！");
}

TEST_P(Company, CodeListsAreEditedOnTheirScreen) {
    Open();
    view.OnScreen("frmBrief", [&](Screen& screen) {
        auto& grid = *dynamic_cast<Grid*>(screen.Find("Grid1"));
        auto& ok = *dynamic_cast<Button*>(screen.Find("cmdOk"));
        const int rows = grid.RowCount();
        TypeCell(screen, grid, rows, 1, "99");
        TypeCell(screen, grid, rows + 1, 1, "99");
        TypeCell(screen, grid, rows + 1, 2, "展会样品");
        Click(screen, ok); // a code twice
        EXPECT_EQ(view.boxes.back().text, "编号 99 重复！");
        EXPECT_TRUE(screen.IsOpen());
        TypeCell(screen, grid, rows + 1, 1, "98");
        PressKey(screen, grid, "Enter"); // a row begun and left empty is no entry
        EXPECT_EQ(grid.RowCount(), rows + 2);
        SelectRow(screen, grid, rows + 1);
        Click(screen, ok);
    });
    EXPECT_EQ(ComponentsInUse().codeLists->Edit("", "2010", BriefKind::EditEntries), "展会样品");
    EXPECT_EQ(One("select BriefName from briefDetail Where briefType='2010' And BriefCode='98'"), "展会样品");
}

TEST(PrintedPage, NamesItsFieldsAndItsAmount) {
    struct Listing : Screen {
        Listing() : Screen("Listing") {
            Grid1.SetColumns({{.caption = "编码"}});
            Grid1.SetRowCount(1);
            Grid1.FillCell(1, 1, "<A&B>");
        }
        void Open() override {}
        Grid Grid1{*this, "Grid1"};
    } listing;
    const FieldList header{"<单位>", "远帆", "起始日期", ""};
    const std::string page = GridPage({header, &listing.Grid1, "", "库存表", "12.50"});
    for (const char* part : {"<td>单位：远帆</td>", "<td>&lt;A&amp;B&gt;</td>", "<p>金额合计：12.50</p>"})
        EXPECT_NE(page.find(part), std::string::npos) << part << " in " << page;
    EXPECT_EQ(page.find("起始日期"), std::string::npos); // without a value
}

} // namespace

} // namespace jxc::test
