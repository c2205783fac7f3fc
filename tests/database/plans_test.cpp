// Nothing on the road of one document walks through a table that grows: not its entry, its number, its
// saving, its approval or its reversal. Proven by the engines' own plans, with some thousand rows in the
// tables.
#include "session/database/engine.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

// 4000 documents of two lines in the stock book and the orders, 4000 account entries, 2000 products in two
// warehouses.
std::string FillingScript(bool postgres) {
    const std::string numbers =
        postgres ? "generate_series(1, 4000) as n(i)"
                 : "(with recursive c(i) as (select 1 union all select i + 1 from c where i < 4000) "
                   "select i from c) as n";
    const std::string text = postgres ? "cast(i as text)" : "i";
    const std::string date = postgres ? "timestamp '2003-01-01' + i % 200 * interval '1 day'"
                                      : "date('2003-01-01', (i % 200) || ' days')";
    std::string script;
    for (const std::string book : {"tJXC_CkDj", "tJXC_CkHt"}) {
        script += "insert into " + book +
                  "01 (fInvID, fInvType, fInvNo, fInvDate, fInvSHR) select i, i % 7, 'R' || " + text + ", " +
                  date + ", 'x' from " + numbers + ";";
        for (const char* row : {"1", "2"})
            script += "insert into " + book +
                      "02 (fInvID, fInv1, fRowID, fInvNo, fInvDate, fCkName, fCpID, fInvSL, fInvSL2) "
                      "select i, 0, " +
                      row + ", 'R' || " + text + ", " + date + ", 'A', i % 2000, 1, 1 from " + numbers + ";";
    }
    script += "insert into tAccountDetail (fAcntNo, fInvID, fDate) select 'W' || " + text + ", 'R' || " +
              text + ", " + date + " from " + numbers + ";";
    script += "insert into tJXC_Cp (fCpID, fCpCode) select i, 'P' || " + text + " from " + numbers +
              " where i <= 2000;";
    for (const char* warehouse : {"'A'", "'B'"})
        script += "insert into tJXC_CkTj (fCpID, fCkName) select i, " + std::string(warehouse) + " from " +
                  numbers + " where i <= 2000;";
    script += "insert into tJXC_CkTj_tmp (fCpID) select i from " + numbers + " where i <= 2000;";
    script += "insert into tJXC_CpGys (fCpID, fInvNo) select i, 'R' || " + text + " from " + numbers + ";";
    script += "insert into cards (fID, CompCode) select i, 'K' || " + text + " from " + numbers + ";";
    // A server keeps its statistics itself; a file has none.
    return script + "insert into tJXC_Ck (fCkName) values ('A'), ('B');" + (postgres ? "analyze" : "");
}

const char* const kBothForms[] = {
    "select max(fInvID) from tJXC_CkDj01",
    "select count(*) from tJXC_CkDj01 Where fInvNo = 'R77'",
    "select count(*) from tJXC_CkHt01 Where fInvNo='R77'",
    "Select fInvType From tJXC_CkHt01 Where fInvNo='R77'",
    "select * from tJXC_CkDj01 Where fInvID=77",
    "select * from tJXC_CkDj02 Where fInvID = 77",
    "Delete From tJXC_CkDj02 Where fInvID=77",
    "Delete From tJXC_CkDj01 Where fInvID=77",
    "Select a.*,b.fCpCode from tJXC_CkDj02 a Left Join tJXC_Cp b On a.fCpID =b.fCpID  Where a.fInvID = 77 "
    "And fInv1 = 0 Order By "
    "a.fRowID",
    "Select a.fInvSl,b.fCpCode From tJXC_CkDj02 a Left Join tJxc_Cp b On a.fCpID=b.fCpID Where "
    "a.fInvNo='R77' And fInv1=0 Order "
    "By a.fRowID",
    "Select Top 1 fInvID From tJXC_CkDj01  Where fInvType=1 And fInvShr='' And fInvNo>'R77' Order By fInvNo",
    "Select Top 1 fInvID From tJXC_CkDj01  Where fInvType=1 And fInvNo<'R77' Order By fInvNo Desc",
    "select sum(a.fKcSl) as fKcSl from tJXC_CkTj a Left Join tJXC_Ck b On a.fCkName=b.fCkName Where "
    "a.fCpID=7 And (b.fCkType2=0 "
    "Or b.fCkType2=1)",
    "Select fInvID From tJXC_CkHt01 Where fInvNo='R77'",
    "Update tJXC_CkHt02 Set fInvSL2=fInvSL2-(-1) Where fInvID=77 And fInvSL2>0 And fCpID=77",
    "Update tJXC_CkHt02 Set fInvSL2=0 Where fInvID=77 And fInvSL2<0.000000001",
    "Select a.fCpID,a.fCkName,a.fInvSL,b.fCpPrice0,fInvInOut From tJXC_CkDj02 a Left Join tJXC_Cp b On "
    "a.fCpID=b.fCpID Where "
    "a.fInvID=77 Order By a.fCpID,a.fCkName",
    "Select fQcSl,fCpID From tJXC_CkTj Where fCkName='A' And fCpID In (Select fCpID From tJXC_CkDj02 Where "
    "fInvID=77 And fCkName='A')",
    "select fKcSl from tJXC_CkTj Where fCpID=77 And fCkName='A'",
    "select fInv1,fRowID,fCkName,fCpID,fInvSL from tJXC_CkDj02 Where fInvID=77 Order By fInv1,fRowID",
    "select a.fCpID,a.fInvSL,sum(b.fKcSl) as fKcSl from (tJXC_CkTj b Left Join tJXC_Ck c On "
    "c.fCkName=b.fCkName) Right Join "
    "tJXC_CkDj02 a On a.fCpID=b.fCpID Where a.fInvID=77 And (c.fCkType2=0 and c.fCkType3=0) Group By "
    "a.fCpID,a.fInvSL Order By "
    "a.fCpID,a.fInvSL",
    "Select * From tJXC_CkTj_tmp Where fCpID In (Select fCpID From tJXC_CkDj02 Where fInvID=77)",
    "Insert INTO tJXC_CpGys (fCpID,fKhID,fCpSl,fCpPrice,fInvDate,fInvNo) SELECT "
    "fCpID,fKhID,fInvSl,fInvDJ,fInvDate,fInvNo From "
    "tJXC_CkDj02 Where fInvNo ='R77'",
    "Delete From tJXC_CpGys Where fInvNo ='R77' ",
    "Select * From tAccountDetail Where fAcntNo='W77'",
    "Update tJXC_CkDj01 Set fInvSHR='x' Where fInvID=77",
    "select fID,CompCode,compname from cards Where fID = 77",
    "select count(*) from tJXC_CkDj01 Where fInvDate='2003-02-28'",
    "Select count(*) From tJXC_CkDj01 Where Year(fInvDate)=2003 And Month(fInvDate)=2",
};

const std::pair<const char*, const char*> kTwoForms[] = {
    {"select top 1 mid(fInvNo,4,3) as invID from tJXC_CkDj02 where left(fInvNo,3)='R77' and "
     "IsNumeric(mid(fInvNo,4,3)) Order By fInvNo Desc",
     "select top 1 SUBSTRING(fInvNo,4,3) as invID from tJXC_CkDj02 where left(fInvNo,3)='R77' and "
     "IsNumeric(SUBSTRING(fInvNo,4,3))=1 Order By fInvNo Desc"},
    {"select top 1 mid(fAcntNo,4,3) as invID from tAccountDetail where left(fAcntNo,3)='W77' and "
     "IsNumeric(mid(fAcntNo,4,3)) Order By fAcntNo Desc",
     "select top 1 SUBSTRING(fAcntNo,4,3) as invID from tAccountDetail where left(fAcntNo,3)='W77' and "
     "IsNumeric(SUBSTRING(fAcntNo,4,3))=1 Order By fAcntNo Desc"},
    {"Select fChecker From tAccountDetail Where fInvID='R77' And fDate=#02/28/2003#",
     "Select fChecker From tAccountDetail Where fInvID='R77' And "
     "Convert(varchar(10),fDate,120)='2003-02-28'"},
    {"Delete From tAccountDetail Where fInvID='R77' And fDate=#02/28/2003#",
     "Delete From tAccountDetail Where fInvID='R77' And Convert(varchar(10),fDate,120) ='2003-02-28'"},
    {"Update tJXC_CkDj02 a,tJXC_CkTj b Set a.fInvDJ2=b.fKcDj Where a.fCpID=b.fCpID And a.fCkName=b.fCkName "
     "And a.fInvID=77 And "
     "b.fKcDj>0",
     "Update tJXC_CkDj02 Set fInvDJ2=b.fKcDj From tJXC_CkDj02 a inner Join tJXC_CkTj b On a.fCpID=b.fCpID "
     "And "
     "a.fCkName=b.fCkName Where a.fInvID=77 And b.fKcDj>0"},
    {"Update tJXC_CkDj02 a,tJXC_CkTj_tmp b Set a.fInvDJ2=b.fKcDj Where a.fCpID=b.fCpID And a.fInvID=77 And "
     "b.fKcDj>0",
     "Update tJXC_CkDj02 Set fInvDJ2=b.fKcDj From tJXC_CkDj02 a inner Join tJXC_CkTj_tmp b On "
     "a.fCpID=b.fCpID Where a.fInvID=77 "
     "And b.fKcDj>0"},
    {"Update tJXC_CkDj02 a,tJXC_Cp b Set a.fInvDJ2=b.fCpPrice0 Where a.fCpID=b.fCpID And a.fInvID=77 And "
     "a.fInvDJ2=0",
     "Update tJXC_CkDj02 Set fInvDJ2=b.fCpPrice0 From tJXC_CkDj02 a inner Join tJXC_Cp b On a.fCpID=b.fCpID "
     "Where a.fInvID=77 "
     "And a.fInvDJ2=0"},
};

class Plans : public OnBothEngines {
  protected:
    // Whether a step reads a whole table or a whole index. The rows found for an update are few.
    // A server reads a handful of warehouses at once.
    bool IsWalk(const std::string& step) const {
        if (IsPostgres())
            return step.find("Seq Scan") != std::string::npos &&
                   step.find("on tjxc_ck ") == std::string::npos;
        return step.starts_with("SCAN") && step != "SCAN found";
    }
    void ExpectNoWalk(const std::string& sql) {
        for (const std::string& step : Conn().Plan(sql))
            EXPECT_FALSE(IsWalk(step)) << sql << "\n" << testing::PrintToString(Conn().Plan(sql));
    }
};
ON_BOTH_ENGINES(Plans);

TEST_P(Plans, OfOneDocumentWalkThroughNoTable) {
    Conn().EngineInUse().ExecuteScript(FillingScript(IsPostgres()));
    for (const char* sql : kBothForms)
        ExpectNoWalk(sql);
    for (const auto& [jet, sqlServer] : kTwoForms)
        ExpectNoWalk(Dialect(jet, sqlServer));
}

TEST_P(Plans, ShowAWalkWhereThereIsOne) {
    Conn().EngineInUse().ExecuteScript(FillingScript(IsPostgres()));
    const std::vector<std::string> plan = Conn().Plan("Select * From tJXC_CkDj02 Where fInvSL=3");
    EXPECT_TRUE(std::any_of(plan.begin(), plan.end(), [&](const std::string& step) { return IsWalk(step); }));
}

} // namespace

} // namespace jxc::test
