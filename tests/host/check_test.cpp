// The check of the books finds what was done to a company behind the program's back, each damage by its own line, and is
// silent about all that the screens do.
#include <gtest/gtest.h>

#include "host/check.h"
#include "session/session.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

struct Damage {
    const char* sql;  // statements with ";" between
    const char* told; // part of the line that names it
};

const Damage kDamages[] = {
    // counters, prices and values
    {"Update tJXC_CkTj Set fRkSl=fRkSl+1", "fRkSl 为"},
    {"Update tJXC_CkTj Set fCkJe=fCkJe+10 Where fCkName='总部仓'", "fCkJe 为"},
    {"Update tJXC_CkTj Set fDkSl=fDkSl-1 Where fCkName='零售门市'", "fDkSl 为"},
    {"Update tJXC_CkTj Set fPdSl=fPdSl+1", "fPdSl 为"},
    {"Update tJXC_CkTj Set fQcJe=fQcJe+1", "fQcJe 为"},
    {"Update tJXC_CkTj Set fKcSL=fKcSL+5,fKcJE=(fKcSL+5)*fKcDj", "fKcSL 为"},
    {"Update tJXC_CkTj Set fKcDj=fKcDj*2,fKcJE=fKcJE*2 Where fRkSl>0", "fKcDj 为"},
    {"Update tJXC_CkTj Set fKcJE=fKcJE+100", "fKcJE 为"},
    {"Update tJXC_CkTj Set fMonth='2026-10-01' Where fCkName='代销仓'", "月份 2026-10 与库存表的其他行不同"},
    {"Update tJXC_CkTj Set fMonth='2026-10-01' Where fCkName='代销仓';Update tJXC_CkTj Set fRkSl=fRkSl+50",
     "fRkSl 为"},
    {"Delete From tJXC_CkTj Where fCkName='代销仓'", "库存表没有该行"},
    {"Update tJXC_CkTj Set fCkName='没有的仓' Where fCkName='代销仓'", "仓库已不存在而有库存"},
    {"Update tJXC_CkTj Set fKcDj=9e999,fKcJE=9e999 Where fCkName='代销仓'", "不是正常的数值"},
    {"Delete From tJXC_CkTj_tmp", "没有整体成本价"},
    {"Update tJXC_CkTj_tmp Set fKcDj=null", "不是正常的数值"},
    {"Update tJXC_CkDj02 Set fInvDJ2=0 Where fInvDJ2>0", "没有成本"},
    {"Update tJXC_CkDj02 Set fInvDJ2=fInvDJ2*100 Where fInvDJ2>0", "相差悬殊"},
    {"Update tJXC_CkDj02 Set fInvDJ2=-1 Where fInvDJ2>0", "是负数"},
    {"Update tJXC_CkDj02 Set fInvDJ2=5 Where fInvType=1", "不是出库而有成本"},
    // lines, amounts and totals
    {"Update tJXC_CkDj02 Set fInvDJ=fInvDJ+1 Where fInvType=1", "金额"},
    {"Update tJXC_CkDj02 Set fInvJE=fInvJE+1 Where fInvType=2", "不等于数量"},
    {"Update tJXC_CkHt02 Set fInvSL=fInvSL+1", "不等于数量"},
    {"Update tJXC_CkDj01 Set fInvJE=fInvJE+1 Where fInvType=4", "不等于明细之和"},
    {"Update tJXC_CkXjBj01 Set fInvJE=0", "不等于明细之和"},
    {"Delete From tJXC_CkDj02 Where fRowID=1 And fInvType=1", "行号"},
    {"Delete From tJXC_CkDj02 Where fInvType=4", "没有明细"},
    {"Delete From tJXC_CkDj01 Where fInvType=4", "有 2 行明细而没有单据"},
    {"Insert Into tJXC_CkDj02 Select * From tJXC_CkDj02 Where fInvType=1", "行重复"},
    {"Update tJXC_CkDj02 Set fRowID=1 Where fInvType=1", "行重复"},
    {"Update tJXC_CkDj02 Set fRowID=null Where fInvType=1", "2 行没有行号"},
    {"Update tJXC_CkHt02 Set fInvSL=null", "数值为空或超出范围"},
    {"Update tJXC_CkDj02 Set fInvTaxRate=5 Where fInvType=1", "税率 5 不在 0 与 1 之间"},
    {"Update tJXC_CkHt02 Set fInvTaxRate=-0.17", "税率 -0.17 不在 0 与 1 之间"},
    {"Update tJXC_CkDj02 Set fInvSL=9e999 Where fInvType=2", "数值为空或超出范围"},
    {"Update tJXC_CkDj02 Set fInvSL=0 Where fInvType=2", "数量为 0"},
    {"Update tJXC_CkJh01 Set fInvHbDl=0;Update tJXC_CkJh02 Set fInvHbDl=0", "不大于 0"},
    // copies of the header
    {"Update tJXC_CkDj02 Set fInvNo='X' Where fInvType=1", "明细的单号与单据不符"},
    {"Update tJXC_CkDj02 Set fInvDate='2026-11-12' Where fInvType=1", "明细的日期与单据不符"},
    {"Update tJXC_CkDj02 Set fKhID=9 Where fInvType=1", "明细的客户与单据不符"},
    {"Update tJXC_CkDj02 Set fInvHb='USD' Where fInvType=1", "明细的货币与单据不符"},
    {"Update tJXC_CkDj02 Set fInvHbDl=7.1 Where fInvType=1", "明细的汇率与单据不符"},
    {"Update tJXC_CkDj02 Set fCkName='零售门市' Where fInvType=1", "明细的仓库与单据不符"},
    {"Update tJXC_CkHt01 Set fInvDate='2026-11-20'", "明细的日期与单据不符"},
    // pairs and kits
    {"Delete From tJXC_CkDj02 Where fInv1=1 And fRowID=1 And fInvType=3", "不成对"},
    {"Update tJXC_CkDj02 Set fCpID=10 Where fInv1=1 And fInvType=3", "不成对"},
    {"Update tJXC_CkDj02 Set fInvSL=fInvSL+1 Where fInv1=1 And fInvType=6", "不成对"},
    {"Update tJXC_CkDj02 Set fInvInOut=3-fInvInOut Where fInvType=3", "出入方向"},
    {"Update tJXC_CkDj02 Set fInvInOut=1 Where fInvType=2", "出入方向"},
    {"Update tJXC_CkDj02 Set fInvInOut=2 Where fRowID=1 And fInvType=1", "同侧明细的出入方向不一致"},
    {"Delete From tJXC_CkDj02 Where fInv1=1 And fInvType=31", "成品行应有一行"},
    {"Insert Into tJXC_CkDj02 Select * From tJXC_CkDj02 Where fInv1=1 And fInvType=31", "成品行应有一行"},
    {"Update tJXC_CkDj02 Set fInvInOut=1 Where fInvType=32", "出入方向相同"},
    {"Update tJXC_CkDj01 Set fCkName2=fCkName Where fInvType=6", "两个仓库相同"},
    // numbers, dates, approval
    {"Update tJXC_CkDj01 Set fInvNo='' Where fInvType=4", "单号为空"},
    {"Update tJXC_CkJh01 Set fInvNo=' J1';Update tJXC_CkJh02 Set fInvNo=' J1'", "带有空格"},
    {"Update tJXC_CkDj01 Set fInvNo='20261105RK001' Where fInvType=4", "重复 2 次"},
    {"Update tJXC_CkHt01 Set fInvDate=null", "不正确"},
    {"Update tJXC_CkDj01 Set fInvDate='2026-10-31' Where fInvType=4;Update tJXC_CkDj02 Set "
     "fInvDate='2026-10-31' Where fInvType=4",
     "早于本期起始日期"},
    {"Update tJXC_CkHt01 Set fInvSHR='  '", "为空白"},
    {"Update tJXC_CkDj01 Set fInvSHR='' Where fInvType=-1", "没有已审核的单据"},
    {"Update tJXC_CkDj01 Set fInvSHR='张三' Where fInvType=-1", "审核人与单据不符"},
    {"Update tJXC_CkDj01 Set fInvType=24 Where fInvType=4", "单据类型 24 不存在，或不属于该册"},
    // what is referred to and gone
    {"Delete From tJXC_Cp Where fCpCode='CPU002'", "已不存在；请从备份恢复该产品"},
    {"Delete From tJXC_Ck Where fCkName='总部仓'", "仓库 总部仓 已不存在"},
    {"Delete From cards", "已不存在；请补建该客户"},
    {"Delete From Moneys Where MoneyCode='人民币'", "货币 人民币 已不存在"},
    {"Delete From tJXC_InvSet Where fSetNo=4", "单据类型 4 不存在"},
    {"Delete From tAccounts", "已不存在；请在[仓库管理]中重新选择"},
    // settings and master data
    {"Insert Into tJXC_InvSet Select * From tJXC_InvSet Where fSetNo=3", "单据类型 3：有 2 行同时在用"},
    {"Delete From tJXC_InvSet Where fSetNo=51", "单据类型 51：没有在用的行"},
    {"Update tJXC_InvSet Set fSetTjType=9 Where fSetNo=21", "[统计归类]为 9"},
    {"Update tJXC_InvSet Set fSetAutoNo='RK' Where fSetNo=1", "没有计数位"},
    {"Insert Into tJXC_InvSys Select * From tJXC_InvSys", "有 2 行，只应有一行"},
    {"Delete From tJXC_InvSys", "没有参数行"},
    {"Update tJXC_InvSys Set fSysCostWay=7", "[成本计算方法]"},
    {"Update tJXC_InvSys Set fSysDate=null", "[本期年月]"},
    {"Update tJXC_Cp Set fCpCode='CPU002' Where fCpCode='CPU001'", "编码有 2 行重复"},
    {"Update tJXC_Cp Set fCpPrice0=-1 Where fCpCode='CPU001'", "价格 -1 不合理"},
    {"Update tJXC_Ck Set fCkType2=null Where fCkName='代销仓'", "仓库类别不完整"},
    {"Update Moneys Set MoneyType=0", "[本位币]"},
    {"Update Moneys Set MoneyRate=0 Where MoneyCode='USD'", "汇率为 0"},
    {"Delete From tJXC_CpTj01", "行配件而没有模板"},
    // orders and the history of suppliers
    {"Update tJXC_CkHt02 Set fInvSL2=fInvSL2+3", "的结余为"},
    {"Update tJXC_CkHt02 Set fInvSL2=-1", "的结余为"},
    {"Update tJXC_CkHt02 Set fInvSL2=null", "的结余为"},
    {"Update tJXC_CkDj01 Set fHtNo='20261105XS001' Where fInvType=1", "类型不符"},
    {"Delete From tJXC_CpGys", "进货记录缺少或不符"},
    {"Update tJXC_CpGys Set fCpPrice=fCpPrice+1", "进货记录缺少或不符"},
    {"Update tJXC_CpGys Set fKhID=9", "进货记录缺少或不符"},
    {"Insert Into tJXC_CpGys (fCpID,fKhID,fCpSl,fCpPrice,fInvDate,fInvNo) Values "
     "(2,5,1,1,'2026-11-05','RK-X')",
     "单据 RK-X 未审核或已不存在"},
    // the ledger
    {"Delete From tAccountDetail Where fType1=0", "已经审核而没有帐户单"},
    {"Update tAccountDetail Set fBrief='手工' Where fType1=0", "已经审核而没有帐户单"},
    {"Update tAccountDetail Set fInvID=(Select min(fInvID) From tAccountDetail) Where fType1=0",
     "张帐户单，只应有一张"},
    {"Update tAccountDetail Set fCompID=8 Where fType1=0", "客户与单据不符"},
    {"Update tAccountDetail Set fType2=3-fType2 Where fType1=0", "帐类或收付方向"},
    {"Update tAccountDetail Set fType1=1-fType1", "帐类或收付方向"},
    {"Update tAccountDetail Set fMoneyA=fMoneyA+0.01 Where fType1=0", "金额与单据不符"},
    {"Update tAccountDetail Set fMoneyCode='USD'", "货币与单据不符"},
    {"Update tAccountDetail Set fMoneyRate=2", "汇率与单据不符"},
    {"Update tAccountDetail Set fDate='2026-11-30'", "没有已审核的单据"},
    {"Update tAccountDetail Set fInvID='X'", "没有已审核的单据"},
    {"Update tAccountDetail Set fAcntNo=(Select min(fAcntNo) From tAccountDetail)", "帐户单号重复"},
    {"Update tAccountDetail Set fAcntNo=''", "单号为空或带有空格"},
};

class CheckOfBooks : public OnOpenCompany {
  protected:
    // A document of every type, approved but for a receipt.
    void Begin() override {
        OnOpenCompany::Begin();
        for (const int type : AllTypes())
            Approved(TypicalDocument(type));
        for (const int again : {1, 6}) // not taken back by their returns
            Approved(TypicalDocument(again));
        ASSERT_GT(clerk->Save(TypicalDocument(1)), 0);
        clerk->Save({.type = 2, .customer = "X003", .order = "20261105XS001", .lines = {{"CPU002", 1, 700}}});
    }
};
ON_BOTH_ENGINES(CheckOfBooks);

// "fInvType=" on lines means the type of their document.
std::string Statement(const std::string& sql) {
    const size_t at = sql.find("fInvType=");
    if (sql.find("02 ") == std::string::npos || at == std::string::npos)
        return sql;
    const std::string type = sql.substr(at + 9);
    return sql.substr(0, at) + "fInvID In (Select fInvID From tJXC_CkDj01 Where fInvType=" + type + ")";
}

TEST_P(CheckOfBooks, FindsEveryDamage) {
    Lines notes;
    EXPECT_EQ(CheckCompany(&notes), Lines{});
    EXPECT_EQ(CheckEngine(), Lines{});
    for (const auto& [sql, told] : kDamages) {
        Conn().BeginTrans();
        std::string rest = sql;
        while (!rest.empty()) {
            const size_t end = std::min(rest.find(';'), rest.size());
            Conn().Execute(Statement(rest.substr(0, end)));
            rest.erase(0, end + 1);
        }
        const Lines found = CheckCompany();
        Conn().RollbackTrans();
        EXPECT_TRUE(std::any_of(
            found.begin(), found.end(),
            [&told = told](const std::string& line) { return line.find(told) != std::string::npos; }))
            << sql << ": " << told << "\n"
            << testing::PrintToString(found);
        for (const std::string& line : found)
            EXPECT_EQ(line.find("未能进行"), std::string::npos) << sql << ": " << line;
    }
    EXPECT_EQ(CheckCompany(), Lines{});
}

// A document's number is a text of people: what the program puts into its own lines may stand in it.
TEST_P(CheckOfBooks, TellsANumberThatLooksLikeAPlaceInALine) {
    Do("Delete From tJXC_CkDj02 Where fInvID In (Select fInvID From tJXC_CkDj01 Where fInvType=4)");
    Do("Update tJXC_CkDj01 Set fInvNo='{1}{2}{H}' Where fInvType=4");
    const Lines found = CheckCompany();
    const std::string told = "单据 {1}{2}{H}：没有明细；请补录明细，或删除该单据。";
    EXPECT_EQ(std::count(found.begin(), found.end(), told), 1) << testing::PrintToString(found);
}

// Lawful states that look odd.
TEST_P(CheckOfBooks, IsSilentAboutWhatIsLawful) {
    const char* const lawful[] = {
        "Insert Into tJXC_InvSet (fRowID,fSetNo,fSetName,fSetTjType,fSetAutoNo,fSetNoUse_) Values "
        "(0,1,'x',4,'Q',1)",
        "Update tJXC_InvSet Set fSetNoUse_=1 Where fSetNo=3",
        "Update tJXC_InvSet Set fSetCrType1=3-fSetCrType1 Where fSetNo=32",
        "Update tJXC_Cp Set fCpPrice0=fCpPrice0*1.5",
        "Update tJXC_CkTj Set " // closed, and not refreshed since
        "fMonth='2026-10-01',fRkSl=fRkSl+1,fKcSL=fKcSL+1,fRkJe=fRkJe+fKcDj,fKcJE=(fKcSL+1)*fKcDj"
        " Where fRkSl<>0 Or fCkName<>'代销仓'",
        "Update tJXC_CkDj01 Set fFlag=1",
        "Insert Into tAccountDetail (fAcntNo,fDate,fCompID,fType1,fType2,fMoneyA,fMoneyB,fBrief) Values "
        "('','2026-11-05',0,0,1,1,0,'手工')"};
    for (const char* sql : lawful) {
        Conn().BeginTrans();
        Conn().Execute(sql);
        EXPECT_EQ(CheckCompany(), Lines{}) << sql;
        Conn().RollbackTrans();
    }
}

// Tax of 17% on 1000: 170 on top of it, 145.30 contained in it.
TEST_P(CheckOfBooks, KnowsBothWaysOfTax) {
    DocumentInput receipt = TypicalDocument(1);
    receipt.lines = {{"CPU002", 1, 1000}};
    const std::string line = " Where fInvID=" + std::to_string(Approved(receipt));
    const auto findings = [&](int way, const char* tax) {
        Do("Update tJXC_InvSys Set fSysTaxWay=" + std::to_string(way));
        Do("Update tJXC_CkDj02 Set fInvTaxRate=0.17,fInvTax=" + std::string(tax) + line);
        return CheckCompany();
    };
    for (const int way : {0, 1, 2})
        for (const char* tax : {"170", "145.30"}) // the company may have changed its way since
            EXPECT_EQ(findings(way, tax), Lines{}) << way << " " << tax;
    EXPECT_EQ(findings(0, "150"), Lines{}); // its amount may have been changed while no tax was taken
    for (const int way : {1, 2})
        for (const char* tax : {"150", "-170", "null"}) {
            const Lines found = findings(way, tax);
            ASSERT_EQ(found.size(), 1U) << testing::PrintToString(found);
            EXPECT_NE(found[0].find("不符合金额 1000 与税率 0.17"), std::string::npos) << found[0];
        }
}

// What the screens take, or leave behind, is no more than worth a look.
TEST_P(CheckOfBooks, NotesWhatIsLawfulAndRare) {
    DocumentInput late = TypicalDocument(1);
    late.date = "2199-01-01";
    Approved(late);
    Do("Update tJXC_CkDj01 Set fHtNo='XS-9' Where fInvType=2 And fInvSHR<>''"); // an order deleted since
    Lines notes;
    EXPECT_EQ(CheckCompany(&notes), Lines{});
    ASSERT_EQ(notes.size(), 2U) << testing::PrintToString(notes);
    EXPECT_NE(notes[0].find("日期 2199-01-01 少见"), std::string::npos) << notes[0];
    EXPECT_NE(notes[1].find("订单 XS-9 不存在，可能已在审核之后删除"), std::string::npos) << notes[1];
}

// A refresh up to a date and a reverse close leave the whole table behind the documents: one line, not one a row.
TEST_P(CheckOfBooks, TellsWhatTheStatisticsAsAWholeLack) {
    Do("Insert Into tJXC_CkTj_Bak Select * From tJXC_CkTj");
    DocumentInput later = TypicalDocument(1);
    later.date = "2026-11-08";
    Approved(later);
    Do("Delete From tJXC_CkTj");
    Do("Insert Into tJXC_CkTj Select * From tJXC_CkTj_Bak");
    const Lines found = CheckCompany();
    ASSERT_EQ(found.size(), 1U) << testing::PrintToString(found);
    EXPECT_EQ(found[0].find("库存统计只算到 2026-11-05"), 0U) << found[0];
    Do("Delete From tJXC_CkTj Where fCkName='代销仓'"); // which the date does not explain
    EXPECT_GT(CheckCompany().size(), 2U);

    Do("Delete From tJXC_CkTj");
    Do("Insert Into tJXC_CkTj Select * From tJXC_CkTj_Bak");
    Do("Update tJXC_CkTj Set fQcSl=fKcSL,fQcJe=fKcJE,fRkSl=0,fRkJe=0,fCkSl=0,fCkJe=0,fDkSl=0,fPdSl=0");
    Do("Delete From tJXC_CkTj_tmp");
    Do("Update tJXC_CkDj01 Set fMonth='2026-11-01'");
    Lines notes;
    EXPECT_EQ(CheckCompany(&notes), Lines{});
    EXPECT_TRUE(std::any_of(notes.begin(), notes.end(), [](const std::string& note) {
        return note.find("反结转之后库存统计尚未刷新") != std::string::npos;
    })) << testing::PrintToString(notes);
}

// Goods sold before anybody knew a price of them, and a warehouse that goods only passed through.
TEST_P(CheckOfBooks, LeavesAloneWhatWasLawfulWhenItWasDone) {
    Do("Update tJXC_Cp Set fCpPrice0=0 Where fCpCode='KB003'");
    DocumentInput sale = TypicalDocument(2);
    sale.lines = {{"KB003", 1, 80}};
    Approved(sale);
    Do("Update tJXC_Cp Set fCpPrice0=50 Where fCpCode='KB003'");
    EXPECT_EQ(CheckCompany(), Lines{});

    Do("Insert Into tJXC_Ck (fCkCode,fCkName,fCkFlag,fCkType0,fCkType1,fCkType2,fCkType3) Values "
       "('09','空仓',0,1,0,0,0)");
    DocumentInput transfer = TypicalDocument(3);
    transfer.warehouse2 = "空仓";
    for (const double quantity : {2.0, -2.0}) {
        transfer.lines = {{"CPU002", quantity, 610}};
        Approved(transfer);
    }
    transfer.lines = {{"CPU002", 1, 610}};
    const int unapproved = clerk->Save(transfer);
    Do("Delete From tJXC_Ck Where fCkName='空仓'");
    const Lines found = CheckCompany();
    ASSERT_EQ(found.size(), 1U) << testing::PrintToString(found);
    EXPECT_NE(found[0].find("仓库 空仓 已不存在"), std::string::npos) << found[0];
    ASSERT_TRUE(clerk->Delete(3, unapproved)) << clerk->LastBox();
    EXPECT_EQ(CheckCompany(), Lines{});
}

} // namespace

} // namespace jxc::test
