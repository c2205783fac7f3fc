// Statements that the screens to come will send (plans, the month-end close, commission, analyses) are understood
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
    {"Select a.fCpID,a.fKhID,b.compname From tJXC_CpGys a Left Join cards b On a.fKhID=b.fID Order By "
     "a.fCpID,a.fInvDate Desc"},
    {"Select b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,a.fInvSl2 as fInvSl,a.fKhID,a.fCpID,a.fInvDj from "
     "tJXC_CkHt02 a Left Join tJXC_Cp b On a.fCpID =b.fCpID  Where a.fInvID = 4 Order By a.fRowID"},
    {"Select a.fCpPjID as fCpID,a.fCpPjSL * 3 as fInvSL, b.fCpCode,b.fCpUnit,fCpPrice2 as fInvDJ,0.17 as "
     "fInvTaxRate,'' as fInvOther1,'' as fInvOther2, 0 as fInvSL2 from tJXC_CpTj02 a Left Join tJXC_Cp b On "
     "a.fCpPjID=b.fCpID  where a.fTjID = 2 Order By a.fRowID"},
    {"select b.fCpID,b.fCpCode,a.fCkName,a.fKcSl  From tJXC_CkTj a Right join tJXC_Cp b On (b.fCpID=a.fCpID) "
     " Where 1=1  Order By b.fCpCode"},
    {"select b.fCpID,b.fKhName,sum(c.fKcSl) as fKcSl,sum(a.fInvSL2) as fXsSl From ((tJXC_CkHt02 a Inner Join "
     "tJXC_Cp b On b.fCpID=a.fCpID) Left Join tJXC_CkTj c On c.fCpID=a.fCpID) Where a.fInvSL2>0 And a.fInvID "
     "in (Select fInvID From tJXC_CkHt01 Where tJXC_CkHt01.fInvType=24)  And not  b.fCpID in (Select fCpID "
     "From tJXC_CpTj01 Where fTjFlag<1) Group By b.fCpID,b.fKhName Order By b.fKhName"},
    {"Select Sum(fInvSL) From tJXC_CkDj02  Where fCpID=3 And fInvID in (Select fInvID From tJXC_CkDj01 Where "
     "fInvType=31 And fInvSHR='') And fInv1=1 "},
    {"Select count(*) From tJXC_CkDj01 where fInvDate<=#07/31/2003# And fInvSHR=''",
     "Select count(*) From tJXC_CkDj01 where Convert(varchar(10),fInvDate,120) <='2003-07-31' And "
     "fInvSHR=''"},
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
    {"Update RptListDetail Set FieldDataDeci = 2 Where fTable='tJxc_Cp' And Left(FieldName,8)='fCpPrice'"},
    {"Update brief Set BriefTypeName='x' Where lcase(BriefType) = 'fcpcw'",
     "Update brief Set BriefTypeName='x' Where Lower(BriefType) = 'fcpcw'"},
    {"Insert Into tJXC_CkTj (fCpID,fCkName,fQcSl,fDkSl) select "
     "a.fCpID,a.fCkName,sum(iif(c.fSetTjType=0,a.fInvSl,0)) as "
     "fQcSl,sum(iif(a.fInvInOut=1,1,-1)*iif(c.fSetTjType=3,a.fInvSl,0)) as fDkSl from (tJXC_CkDj02 a Left "
     "Join tJXC_CkDj01 b On b.fInvID=a.fInvID) Left Join tJXC_InvSet c On c.fSetNo=b.fInvType where "
     "a.fInvDate<=#07/31/2003# And b.fInvSHR<>'' Group by a.fCpID,a.fCkName Order by a.fCpID,a.fCkName",
     "Insert Into tJXC_CkTj (fCpID,fCkName,fQcSl,fDkSl) select a.fCpID,a.fCkName,sum(case when "
     "c.fSetTjType=0 then a.fInvSl else 0 end) as fQcSl,sum((case when a.fInvInOut=1 then 1 else -1 "
     "end)*(case when c.fSetTjType=3 then a.fInvSl else 0 end)) as fDkSl from (tJXC_CkDj02 a Left Join "
     "tJXC_CkDj01 b On b.fInvID=a.fInvID) Left Join tJXC_InvSet c On c.fSetNo=b.fInvType where "
     "Convert(varchar(10),a.fInvDate,120) <='2003-07-31' And b.fInvSHR<>'' Group by a.fCpID,a.fCkName Order "
     "by a.fCpID,a.fCkName"},
    {"Update tJXC_CkTj Set fKcDj=(fQcJe+fRkJe)/(fQcSl+fRkSl) Where fQcSl + fRkSl <> 0"},
    {"Update tJXC_CkTj a,tJXC_Cp b Set a.fKcDj=b.fCpPrice0 Where a.fCpID=b.fCpID And a.fQcSl + a.fRkSl=0",
     "Update tJXC_CkTj Set fKcDj=b.fCpPrice0 From tJXC_CkTj a Inner Join tJXC_Cp b On a.fCpID=b.fCpID Where "
     "a.fQcSl + a.fRkSl=0"},
    {"Insert Into tJXC_CkTj_tmp (fCpID,fKcSl,fKcJe) select b.fCpID,sum(b.fKcSl) as fKcSl,sum(b.fKcJe) as "
     "fKcJe from (tJXC_CkTj b Left Join tJXC_Ck c On c.fCkName=b.fCkName) Where (c.fCkType2=0 Or "
     "c.fCkType2=1) Group By b.fCpID Order By b.fCpID"},
    {"Insert Into tJXC_CkDj_Tmp01 "
     "(fInvID,fInvType,fHtNo,fInvNo,fInvDate,fKhID,fCkName,fCkName2,fInvHb,fInvHbDl,fInvMemo,"
     "fInvDLR,fInvJBR,fInvShr)  Values (9,0,'','QC001',#08/01/2003#,0,'A','','RMB',1,'自动结转','x','','x')",
     "Insert Into tJXC_CkDj_Tmp01 "
     "(fInvID,fInvType,fHtNo,fInvNo,fInvDate,fKhID,fCkName,fCkName2,fInvHb,fInvHbDl,fInvMemo,"
     "fInvDLR,fInvJBR,fInvShr)  Values (9,0,'','QC001','08/01/2003',0,'A','','RMB',1,'自动结转','x','','x')"},
    {"Insert Into tJXC_CkDj_Tmp02 "
     "(fInvID,fInv1,fInvInOut,fInvNo,fInvDate,fKhID,fCkName,fCpID,fInvSL,fInvOther1)  Select "
     "9,0,1,'QC001',#08/01/2003#,0,'A', fCpID,fKcSl,'' From tJXC_CkTj Where fCkName='A' Order By fCpID",
     "Insert Into tJXC_CkDj_Tmp02 "
     "(fInvID,fInv1,fInvInOut,fInvNo,fInvDate,fKhID,fCkName,fCpID,fInvSL,fInvOther1)  Select "
     "9,0,1,'QC001','08/01/2003',0,'A', fCpID,fKcSl,'' From tJXC_CkTj Where fCkName='A' Order By fCpID"},
    {"Update tJXC_CkDj01 Set fMonth=#07/01/2003# Where fInvDate <= #07/31/2003#",
     "Update tJXC_CkDj01 Set fMonth='07/01/2003' Where Convert(varchar(10),fInvDate,120) <= '2003-07-31'"},
    {"Delete From tJXC_CkDj_Bak01 Where Year(fMonth) = 2003 And Month(fMonth) = 7"},
    {"Insert Into tJXC_CkDj_Bak01  Select * From tJXC_CkDj01 Where fInvDate <= #07/31/2003# Order By "
     "fInvDate,fInvID",
     "Insert Into tJXC_CkDj_Bak01  Select * From tJXC_CkDj01 Where Convert(varchar(10),fInvDate,120) <= "
     "'2003-07-31' Order By fInvDate,fInvID"},
    {"Insert Into tJXC_KhTj_Bak (fKhID,fCpID,fMonth,fCkSL,fCkJE,fCkCB)  Select a.fKhID,a.fCpID,#07/01/2003# "
     "As fMonth,Sum(a.fInvSL) As fCkSL,Sum(a.fInvJE*a.fInvHbDl) as fCkJE,Sum(a.fInvSL*a.fInvDj2) as fCkCB "
     "From (tJXC_CkDj02 a Left Join tJXC_CkDj01 b On b.fInvID=a.fInvID) Left Join tJXC_InvSet c On "
     "c.fSetNo=b.fInvType Where a.fInvDate <= #07/31/2003# And c.fSetTjType=2 Group By a.fKhID,a.fCpID Order "
     "By a.fKhID,a.fCpID",
     "Insert Into tJXC_KhTj_Bak (fKhID,fCpID,fMonth,fCkSL,fCkJE,fCkCB)  Select a.fKhID,a.fCpID,'07/01/2003' "
     "As fMonth,Sum(a.fInvSL) As fCkSL,Sum(a.fInvJE*a.fInvHbDl) as fCkJE,Sum(a.fInvSL*a.fInvDj2) as fCkCB "
     "From (tJXC_CkDj02 a Left Join tJXC_CkDj01 b On b.fInvID=a.fInvID) Left Join tJXC_InvSet c On "
     "c.fSetNo=b.fInvType Where Convert(varchar(10),a.fInvDate,120) <= '2003-07-31' And c.fSetTjType=2 Group "
     "By a.fKhID,a.fCpID Order By a.fKhID,a.fCpID"},
    {"Insert Into tJXC_CkTj_Bak  Select * From tJXC_CkTj  Order By fCpID,fCkName"},
    {"Update tJXC_InvSys Set fSysDate=#08/01/2003#", "Update tJXC_InvSys Set fSysDate='08/01/2003'"},
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
