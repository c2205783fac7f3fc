// Statements that the screens to come will send (commission, analyses) are understood
// and run, in the form of each dialect. One goes from here when its screen is there, whose own tests send it.
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

struct Statement {
    const char* jet;
    const char* sqlServer = nullptr; // null: the same
};

const Statement kSelects[] = {
    {"Select a.fJbCode, b.fJbName, a.fYj_Je_Zj, a.fYj_Je_Jl From tJXC_Yj_Data a Left Join tJXC_Yj_SetJb b On "
     "b.fJbCode=a.fJbCode Where Year(a.fMonth)=2003 And Month(a.fMonth)=7 And a.fJbCode>0 And a.fName='x'"},
    {"Select a.fName,sum(c.fYj_Je_Zj) as fYj_Je_Zj From (tJXC_Yj_jbr a Left Join tJXC_Yj_jbr b On "
     "b.fName2=a.fName) Left Join tJXC_Yj_Data c On c.fName=b.fName Where year(c.fMonth)=2003 And "
     "Month(c.fMonth)=7 And a.fFloor=1 Group By a.fName Order By a.fName"},
    {"select count(*) From tJXC_Yj_Data Where fName not In (Select fName From tJXC_Yj_Jbr)"},
    {"Select format(a.fMonth,'yyyy-mm') as fMonth,b.fCode,a.fName,a.fYj_Tc From tJXC_Yj_Data_Bak a Left Join "
     "tJXC_Yj_Jbr b On b.fName=a.fName Where Format(a.fMonth,'YYYYMM') Between 200301 And 200312 Order By "
     "b.fCode,a.fMonth",
     "Select Convert(varchar(7),a.fMonth,120) as fMonth,b.fCode,a.fName,a.fYj_Tc From tJXC_Yj_Data_Bak a "
     "Left Join tJXC_Yj_Jbr b On b.fName=a.fName Where Convert(varchar(7),a.fMonth,120) Between '2003-01' "
     "And '2003-12' Order By b.fCode,a.fMonth"},
    {"Select '' as CompCode,'' as CompName,b.fCpCode,b.fCpName + '/' + b.fCpGG as fCpName,sum(a.fCkSl) as "
     "fCkSl,sum(a.fCkJe-a.fCkCb) as fCkMl From (tJXC_KhTj_bak a Left Join tJXC_Cp b on b.fCpID=a.FCpID) Left "
     "Join Cards d on d.fID=a.fKhID Where 1=1 And (a.fMonth Between #2003-01-01# And #2003-12-01#) And "
     "(d.fType0=1 Or d.fType0=0) Group By b.fCpCode,b.fCpName,b.fCpGG Order By b.fCpCode",
     "Select '' as CompCode,'' as CompName,b.fCpCode,b.fCpName + '/' + b.fCpGG as fCpName,sum(a.fCkSl) as "
     "fCkSl,sum(a.fCkJe-a.fCkCb) as fCkMl From (tJXC_KhTj_bak a Left Join tJXC_Cp b on b.fCpID=a.FCpID) Left "
     "Join Cards d on d.fID=a.fKhID Where 1=1 And (Convert(varchar(10),a.fMonth,120) Between '2003-01-01' "
     "And '2003-12-01') And (d.fType0=1 Or d.fType0=0) Group By b.fCpCode,b.fCpName,b.fCpGG Order By "
     "b.fCpCode"},
    {"Select Format(a.fMonth,'yyyy-mm') as fX1,Sum(IIF(a.fCkName='A',fCkJe,0)) as fJe1 From (tJXC_CkTj_bak a "
     "Left Join tJXC_Cp b on b.fCpID=a.FCpID) Left Join tJXC_Ck c on c.fCkName=a.FCkName Group By a.fMonth "
     "Order By a.fMonth",
     "Select convert(varchar(7),a.fMonth,120) as fX1,Sum(Case When a.fCkName='A' Then fCkJe Else 0 End) as "
     "fJe1 From (tJXC_CkTj_bak a Left Join tJXC_Cp b on b.fCpID=a.FCpID) Left Join tJXC_Ck c on "
     "c.fCkName=a.FCkName Group By a.fMonth Order By a.fMonth"},
};

const Statement kCommands[] = {
    {"Update tJXC_Yj_Jbr Set fName2 = '' Where isnull(fName2)",
     "Update tJXC_Yj_Jbr Set fName2 = '' Where fName2 is null"},
    {"Insert Into tJXC_Yj_Jbr (fCode,fName,fName2,fMemo,fFloor,fFlag)  Select fCode,fName,'','',-1,0 From "
     "tRsBasic Where fBmName='x' And fName not In (Select fName from tJXC_Yj_Jbr) Order By fCode"},
    {"Insert Into tJXC_Yj_Data (fName,fMonth,fYj_Je_Gr,fYj_Je_Zj) Select distinct a.fInvJbr as "
     "fName,'07/31/2003' as fMonth,sum(b.fInvJE*b.fInvHbDl) as fYj_Je_Gr,0.00 as fYj_Je_Zj From (tJXC_CkDj01 "
     "a Inner Join tJXC_CkDj02 b On a.fInvID=b.fInvID)  left join tJXC_Cp d on b.fCpID=d.fCpID Where "
     "a.fInvJbr<>'' and not isnull(a.fInvJbr) And (abs(a.fInvType)=2 or abs(a.fInvType)=5) And "
     "Year(a.fInvDate)=2003 And Month(a.fInvDate)=7 Group By a.fInvJbr Order By a.fInvJbr",
     "Insert Into tJXC_Yj_Data (fName,fMonth,fYj_Je_Gr,fYj_Je_Zj) Select distinct a.fInvJbr as "
     "fName,'07/31/2003' as fMonth,sum(b.fInvJE*b.fInvHbDl) as fYj_Je_Gr,0.00 as fYj_Je_Zj From (tJXC_CkDj01 "
     "a Inner Join tJXC_CkDj02 b On a.fInvID=b.fInvID)  left join tJXC_Cp d on b.fCpID=d.fCpID Where "
     "a.fInvJbr<>'' and (not a.fInvJbr is Null) And (abs(a.fInvType)=2 or abs(a.fInvType)=5) And "
     "Year(a.fInvDate)=2003 And Month(a.fInvDate)=7 Group By a.fInvJbr Order By a.fInvJbr"},
    {"insert into tJXC_Yj_Jbr (fCode,fName,fName2,fMemo,fFloor) select '' as fCode,fName,'' as "
     "fName2,'自动追加' as fMemo,-1 as fFloor From tJXC_Yj_Data Where fName not In (Select fName From "
     "tJXC_Yj_Jbr)"},
    {"Update tJXC_Yj_Data a,tJXC_Yj_SetJb b Set a.fJbCode=b.fJbCode Where year(a.fMonth)=2003 And "
     "Month(a.fMonth)=7 And b.fJbSet1=0 And a.fYj_Je_Zj>=b.fJbMin and a.fYj_Je_Zj<=b.fJbMax",
     "Update tJXC_Yj_Data Set fJbCode=b.fJbCode From tJXC_Yj_Data a Left Join tJXC_Yj_SetJb b On "
     "a.fYj_Je_Zj>=b.fJbMin and a.fYj_Je_Zj<=b.fJbMax Where year(a.fMonth)=2003 And Month(a.fMonth)=7 And "
     "b.fJbSet1=0 "},
    {"Update tJXC_Yj_Jbr b Set b.fJbCode=0 Where isnull(b.fJbCode)",
     "Update tJXC_Yj_Jbr Set fJbCode=0 Where fJbCode is null"},
    {"Insert Into tJXC_Yj_Data_Tmp (fName,fYj_Tc_Xj) Select a.fName,sum(d.fYj_Je_Zj) as fYj_Tc_Xj From "
     "((tJXC_Yj_Data a Left Join tJXC_Yj_Jbr b On b.fName2=a.fName) Left Join tJXC_Yj_SetJb c On "
     "c.fJbCode=a.fJbCode) Left Join tJXC_Yj_Data d On d.fName=b.fName Where year(a.fMonth)=2003 And "
     "Month(a.fMonth)=7 And c.fJbSet2=1 And d.fJbCode=a.fJbCode Group By a.fName Order By a.fName"},
    {"Update tJXC_Yj_Data a, tJXC_Yj_SetJb b Set a.fYj_Tc_Zj = ccur(a.fYj_Je_Zj * ccur(b.fJbRate1)) Where "
     "year(a.fMonth)=2003 And Month(a.fMonth)=7 And b.fJbCode = a.fJbCode",
     "Update tJXC_Yj_Data  Set fYj_Tc_Zj = convert(money,a.fYj_Je_Zj * convert(SmallMoney,b.fJbRate1)) From "
     "tJXC_Yj_Data a Inner Join tJXC_Yj_SetJb b On b.fJbCode = a.fJbCode  Where year(a.fMonth)=2003 And "
     "Month(a.fMonth)=7"},
    {"Update tJXC_Yj_Data a, tJXC_Yj_Data_Tmp b Set a.fYj_Tc_Xj=ccur(b.fYj_Tc_Xj) Where b.fName = a.fName "
     "and not isnull(b.fYj_Tc_Xj)",
     "Update tJXC_Yj_Data  Set fYj_Tc_Xj= b.fYj_Tc_Xj From tJXC_Yj_Data a Inner Join tJXC_Yj_Data_Tmp b On "
     "b.fName = a.fName Where not b.fYj_Tc_Xj is null"},
    {"Update tJXC_Yj_Data  Set fYj_Tc = fYj_Tc_Zj - fYj_Tc_Xj + fYj_Tc_Jl  Where year(fMonth)=2003 And "
     "Month(fMonth)=7"},
    {"Update tJXC_Yj_Jbr a,tJXC_Yj_Data b Set a.fJbCode=b.fJbCode Where a.fName=b.fName And "
     "a.fJbCode<b.fJbCode",
     "Update tJXC_Yj_Jbr Set fJbCode=b.fJbCode From tJXC_Yj_Jbr a Inner Join tJXC_Yj_Data b On "
     "b.fName=a.fName Where a.fJbCode<b.fJbCode"},
};

class StatementsToCome : public OnBothEngines {
  protected:
    const char* Form(const Statement& statement) const {
        return statement.sqlServer ? Dialect(statement.jet, statement.sqlServer) : statement.jet;
    }
};

TEST_P(StatementsToCome, Runs) {
    for (const Statement& select : kSelects)
        EXPECT_NO_THROW(Conn().Query(Form(select))) << Form(select);
    for (const Statement& command : kCommands)
        EXPECT_NO_THROW(Conn().Execute(Form(command))) << Form(command);
}

ON_BOTH_ENGINES(StatementsToCome);

} // namespace

} // namespace jxc::test
