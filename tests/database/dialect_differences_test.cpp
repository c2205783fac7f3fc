// The differences between the two dialects, each in the form of its engine, against values worked out by
// hand.
#include "session/dialect.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class DialectDifferences : public OnBothEngines {
  protected:
    // Headers by key: the last day of June, of July, the same in the afternoon, the first of August, no date.
    void AddHeaders() {
        const std::string dates[] = {Day("06/30/2003"), Day("07/31/2003"), Day("07/31/2003 15:30:00"),
                                     Day("08/01/2003"), "null"};
        for (int key = 1; key <= 5; ++key)
            Do("Insert Into tJXC_CkDj01 (fInvID,fInvType,fInvNo,fInvDate,fMonth) Values (" +
               std::to_string(key) + ",1,'R" + std::to_string(key) + "'," + dates[key - 1] + "," +
               dates[key - 1] + ")");
    }
    Lines KeysWhere(const std::string& jet, const std::string& sqlServer) {
        return RowsOf("Select a.fInvID From tJXC_CkDj01 a Where " +
                      std::string(Dialect(jet.c_str(), sqlServer.c_str())) + " Order By a.fInvID");
    }
};
ON_BOTH_ENGINES(DialectDifferences);

TEST_P(DialectDifferences, DatesAreWrittenBetweenDelimiters) {
    AddHeaders();
    EXPECT_EQ(RowsOf("Select fInvDate From tJXC_CkDj01 Order By fInvID"),
              (Lines{"2003-06-30", "2003-07-31", "2003-07-31 15:30:00", "2003-08-01", "null"}));
    Do("Update tJXC_CkDj01 Set fInvDate=" + Day("02/29/2004") + " Where fInvID=1");
    EXPECT_EQ(One("Select fInvDate From tJXC_CkDj01 Where fInvID=1"), "2004-02-29");
    EXPECT_THROW(Do("Update tJXC_CkDj01 Set fInvDate=" + Day("02/30/2004")), DatabaseError);
    // A text that looks like a date stays a text.
    Do("Update tJXC_CkDj01 Set fInvNo='07/31/2003' Where fInvID=2");
    EXPECT_EQ(One("Select fInvNo From tJXC_CkDj01 Where fInvNo='07/31/2003'"), "07/31/2003");
}

TEST_P(DialectDifferences, DatesAreComparedAsWholeDays) {
    AddHeaders();
    const auto compare = [&](const std::string& op, const std::string& month, const std::string& day) {
        return KeysWhere("a.fInvDate" + op + "#" + month + "/" + day + "/2003#",
                         "Convert(varchar(10),a.fInvDate,120) " + op + " '2003-" + month + "-" + day + "'");
    };
    EXPECT_EQ(compare("<=", "07", "31"), (Lines{"1", "2", "3"}));
    EXPECT_EQ(compare("<", "07", "31"), (Lines{"1"}));
    EXPECT_EQ(compare(">=", "07", "31"), (Lines{"2", "3", "4"}));
    EXPECT_EQ(compare(">", "07", "31"), (Lines{"4"}));
    EXPECT_EQ(compare("=", "07", "31"), (Lines{"2", "3"}));
    EXPECT_EQ(compare("<>", "07", "31"), (Lines{"1", "4"}));
    EXPECT_EQ(KeysWhere("a.fInvDate Between #06/30/2003# And #07/31/2003#",
                        "(Convert(varchar(10),a.fInvDate,120) Between '2003-06-30' And '2003-07-31')"),
              (Lines{"1", "2", "3"}));
    EXPECT_EQ(KeysWhere("a.fMonth Between #2003-07-01# And #2003-07-31#",
                        "Convert(varchar(10),a.fMonth,120) Between '2003-07-01' And '2003-07-31'"),
              (Lines{"2", "3"}));
}

TEST_P(DialectDifferences, AccountEntriesAreFoundByDate) {
    for (const char* day : {"07/31/2003", "08/01/2003"})
        Do("Insert Into tAccountDetail (fAcntNo,fInvID,fDate,fMoneyA) Values ('W1','R1'," + Day(day) +
           ",-12.5)");
    const std::string where =
        std::string(" Where fInvID='R1'") +
        Dialect(" And fDate=#07/31/2003#", " And Convert(varchar(10),fDate,120)='2003-07-31'");
    EXPECT_EQ(One("Select fMoneyA From tAccountDetail" + where), "-12.5");
    Do("Delete From tAccountDetail" + where);
    EXPECT_EQ(One("Select fDate From tAccountDetail"), "2003-08-01");
}

TEST_P(DialectDifferences, SupplierHistoryGoesFromADateOn) {
    for (const char* day : {"06/30/2003", "07/01/2003", "07/02/2003"})
        Do("Insert Into tJXC_CpGys (fCpID,fInvDate) Values (1," + Day(day) + ")");
    Do(Dialect("Delete From tJXC_CpGys Where fInvDate >= #2003-07-01#",
               "Delete From tJXC_CpGys Where Convert(varchar(10),fInvDate,120) >= '2003-07-01'"));
    EXPECT_EQ(One("Select fInvDate From tJXC_CpGys"), "2003-06-30");
}

TEST_P(DialectDifferences, MonthsAreTexts) {
    AddHeaders();
    EXPECT_EQ(RowsOf("Select " + MonthText("a.fMonth") +
                     " as fX1,count(*) From tJXC_CkDj01 a Group By a.fMonth Order By a.fMonth"),
              (Lines{"null|1", "2003-06|1", "2003-07|1", "2003-07|1", "2003-08|1"}));
    const char* sqlServer = "convert(varchar(7),a.fMonth,120) between '2003-06' And '2003-07'";
    EXPECT_EQ(KeysWhere("Format(a.fMonth,'YYYYMM') Between 200306 And 200307", sqlServer),
              (Lines{"1", "2", "3"}));
    EXPECT_EQ(KeysWhere("Format(a.fMonth,'YYYYMM') Between '200306' And '200307'", sqlServer),
              (Lines{"1", "2", "3"}));
    for (const char* month :
         {"Year(a.fMonth)=2003 And Month(a.fMonth)=7", "a.fInvType=1 And Month(a.fMonth)=7 And "
                                                       "(Year(a.fMonth)=2003)"})
        EXPECT_EQ(KeysWhere(month, month), (Lines{"2", "3"}));
    EXPECT_EQ(RowsOf("Select Year(fMonth),Month(fMonth) From tJXC_CkDj01 Where fInvID>3 Order By fInvID"),
              (Lines{"2003|8", "null|null"}));
}

// Lines: ten in, three returned, four out, one without a direction or quantity.
TEST_P(DialectDifferences, ConditionsInsideExpressions) {
    for (const char* line : {"1,10", "1,-3", "2,4", "null,null"})
        Do("Insert Into tJXC_CkDj02 (fInvInOut,fInvSL) Values (" + std::string(line) + ")");
    EXPECT_EQ(One("Select sum((" + OneOf("a.fInvInOut=1", "1", "-1") + ")*(" +
                  OneOf("a.fInvSL>-5", "a.fInvSL", "0") + ")) From tJXC_CkDj02 a"),
              "3");
}

TEST_P(DialectDifferences, LowerCase) {
    Do("Insert Into rptListDetail (ftable,FieldName,FieldName_0) Values ('tJXC_Cp','fCpCode','编号')");
    EXPECT_EQ(One(Dialect(
                  "Select FieldName_0 from rptListDetail where LCase(ftable) ='tjxc_cp' and LCase(FieldName) "
                  "='fcpcode'",
                  "Select FieldName_0 from rptListDetail where Lower(ftable) ='tjxc_cp' and Lower(FieldName) "
                  "='fcpcode'")),
              "编号");
}

// Product 1 in two warehouses, 2 returned in full, 3 unknown; only rows whose receipts cancel out take the
// price.
TEST_P(DialectDifferences, UpdateFromASecondTable) {
    Do("Insert Into tJXC_Cp (fCpID,fCpPrice0) Values (1,7.5)");
    Do("Insert Into tJXC_Cp (fCpID,fCpPrice0) Values (2,null)");
    for (const char* row : {"1,'A',0,0,1", "1,'B',5,-4,1", "2,'A',3,-3,1", "3,'A',0,0,1"})
        Do("Insert Into tJXC_CkTj (fCpID,fCkName,fQcSl,fRkSl,fKcDj) Values (" + std::string(row) + ")");
    Do(Dialect(
        "Update tJXC_CkTj a,tJXC_Cp b Set a.fKcDj=b.fCpPrice0 Where a.fCpID=b.fCpID And a.fQcSl + a.fRkSl=0",
        "Update tJXC_CkTj Set fKcDj=b.fCpPrice0 From tJXC_CkTj a Inner Join tJXC_Cp b On a.fCpID=b.fCpID "
        "Where "
        "a.fQcSl + a.fRkSl=0"));
    EXPECT_EQ(RowsOf("Select fCpID,fCkName,fKcDj From tJXC_CkTj Order By fCpID,fCkName"),
              (Lines{"1|A|7.5", "1|B|1", "2|A|null", "3|A|1"}));
}

// Levels 1: 0 to 100, 2: 100 to 200, 3 not taking part. 100 falls into two levels: the higher one wins.
TEST_P(DialectDifferences, UpdateWithSeveralMatchesTakesTheLargest) {
    for (const char* level : {"2,0,100,200", "1,0,0,100", "3,1,0,999"})
        Do("Insert Into tJXC_Yj_SetJb (fJbCode,fJbSet1,fJbMin,fJbMax) Values (" + std::string(level) + ")");
    for (const char* person : {"'a',50", "'b',100", "'c',500"})
        Do("Insert Into tJXC_Yj_Data (fName,fYj_Je_Zj,fJbCode,fMonth) Values (" + std::string(person) +
           ",0," + Day("07/31/2003") + ")");
    Do(Dialect(
        "Update tJXC_Yj_Data a,tJXC_Yj_SetJb b Set a.fJbCode=b.fJbCode Where year(a.fMonth)=2003 And "
        "Month(a.fMonth)=7 And b.fJbSet1=0 And a.fYj_Je_Zj>=b.fJbMin and a.fYj_Je_Zj<=b.fJbMax",
        "Update tJXC_Yj_Data Set fJbCode=b.fJbCode From tJXC_Yj_Data a Left Join tJXC_Yj_SetJb b On "
        "a.fYj_Je_Zj>=b.fJbMin and a.fYj_Je_Zj<=b.fJbMax Where year(a.fMonth)=2003 And Month(a.fMonth)=7 And "
        "b.fJbSet1=0 "));
    EXPECT_EQ(RowsOf("Select fName,fJbCode From tJXC_Yj_Data Order By fName"), (Lines{"a|1", "b|2", "c|0"}));
}

// 10.02 x 0.0125 = 0.12525: to even on one side, away from zero on the other. The rate 0.00125 counts as
// 0.0012 or 0.0013. A value assigned to a money field keeps four decimals on both: 0.00015 is 0.0002.
TEST_P(DialectDifferences, MoneyHasFourDecimals) {
    for (const char* row : {"'a',10.02,1", "'b',-10.02,1", "'c',100,2", "'d',100,3"})
        Do("Insert Into tJXC_Yj_Data (fName,fYj_Je_Zj,fJbCode) Values (" + std::string(row) + ")");
    for (const char* level : {"1,0.0125", "2,0.00125", "3,null"})
        Do("Insert Into tJXC_Yj_SetJb (fJbCode,fJbRate2) Values (" + std::string(level) + ")");
    Do(Dialect("Update tJXC_Yj_Data a, tJXC_Yj_SetJb b Set a.fYj_Tc_Zj = ccur(a.fYj_Je_Zj * "
               "b.fJbRate2),a.fYj_Tc_Jl = "
               "ccur(a.fYj_Je_Zj * ccur(b.fJbRate2)) Where b.fJbCode = a.fJbCode",
               "Update tJXC_Yj_Data  Set fYj_Tc_Zj = convert(money,a.fYj_Je_Zj * b.fJbRate2),fYj_Tc_Jl = "
               "convert(money,a.fYj_Je_Zj * convert(SmallMoney,b.fJbRate2)) From tJXC_Yj_Data a Inner Join "
               "tJXC_Yj_SetJb b "
               "On b.fJbCode = a.fJbCode"));
    EXPECT_EQ(RowsOf("Select fName,fYj_Tc_Zj,fYj_Tc_Jl From tJXC_Yj_Data Order By fName"),
              IsPostgres() ? (Lines{"a|0.1253|0.1253", "b|-0.1253|-0.1253", "c|0.125|0.13", "d|null|null"})
                           : (Lines{"a|0.1252|0.1252", "b|-0.1252|-0.1252", "c|0.125|0.12", "d|null|null"}));
    Do("Update tJXC_Yj_Data Set fYj_Tc=0.00015,fYj_Tc_Xj=fYj_Je_Zj*-0.0125 Where fName='a'");
    EXPECT_EQ(One("Select fYj_Tc,fYj_Tc_Xj From tJXC_Yj_Data Where fName='a'"), "0.0002|-0.1253");
}

TEST_P(DialectDifferences, NullTests) {
    for (const char* row : {"'a',null", "'b',''", "'c','a'"})
        Do("Insert Into tJXC_Yj_Jbr (fName,fName2) Values (" + std::string(row) + ")");
    EXPECT_EQ(One(Dialect("Select fName From tJXC_Yj_Jbr Where isnull(fName2)",
                          "Select fName From tJXC_Yj_Jbr Where fName2 is null")),
              "a");
    EXPECT_EQ(
        RowsOf(Dialect(
            "Select fName From tJXC_Yj_Jbr a Where a.fName<>'' and not isnull(a.fName2) Order By fName",
            "Select fName From tJXC_Yj_Jbr a Where a.fName<>'' and (not a.fName2 is Null) Order By fName")),
        (Lines{"b", "c"}));
    Do(Dialect("Update tJXC_Yj_Jbr b Set b.fName2='x' Where isnull(b.fName2)",
               "Update tJXC_Yj_Jbr Set fName2='x' Where fName2 is null"));
    EXPECT_EQ(RowsOf("Select fName2 From tJXC_Yj_Jbr Order By fName"), (Lines{"x", "", "a"}));
}

// The greatest counter under the stem r200307, whatever its case; a counter that is no number does not take
// part.
TEST_P(DialectDifferences, SubstringsAndNumericTests) {
    for (const char* number :
         {"'R200307009'", "'r200307010'", "'R20030799x'", "'R200308555'", "'R200307'", "null"})
        Do("Insert Into tJXC_CkDj02 (fInvNo) Values (" + std::string(number) + ")");
    const auto greatest = [&](const std::string& stem) {
        const std::string part =
            std::string(Dialect("mid", "SUBSTRING")) + "(fInvNo," + std::to_string(stem.size() + 1) + ",3)";
        return One("select max(" + part + ") as invID from tJXC_CkDj02 where left(fInvNo," +
                   std::to_string(stem.size()) + ")='" + stem + "' and IsNumeric(" + part + ")" +
                   Dialect("", "=1"));
    };
    EXPECT_EQ(greatest("R200307"), "010");
    EXPECT_EQ(greatest("R200309"), "null");
    EXPECT_EQ(greatest(""), "null");
    for (const auto& [text, isNumber] : {std::pair{"12", 1},
                                         {" -1.5e3 ", 1},
                                         {".5", 1},
                                         {"1.", 1},
                                         {"", 0},
                                         {".", 0},
                                         {"1 2", 0},
                                         {"1e", 0}}) {
        Do("Delete From tJXC_CkDj02");
        Do(std::string("Insert Into tJXC_CkDj02 (fInvNo) Values ('") + text + "')");
        EXPECT_EQ(One("select IsNumeric(fInvNo) from tJXC_CkDj02"), std::to_string(isNumber)) << text;
    }
}

TEST_P(DialectDifferences, TextColumnsAreAddedAtRunTime) {
    Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (1,'x')");
    EXPECT_EQ(One("Select * From tJXC_KhAdd"), "1|x");
    Do(Dialect("ALTER TABLE tJXC_KhAdd ADD fMore varchar(50) Null",
               "ALTER TABLE tJXC_KhAdd ADD fMore nvarchar(50) Null"));
    Do("ALTER TABLE tJXC_KhAdd ADD fCount Int NULL");
    EXPECT_EQ(One("Select * From tJXC_KhAdd"), "1|x|null|null");
    Do("Update tJXC_KhAdd Set fMore='Abc',fCount=3");
    EXPECT_EQ(One("Select fCount From tJXC_KhAdd Where fMore='aBC'"), "3");
}

} // namespace

} // namespace jxc::test
