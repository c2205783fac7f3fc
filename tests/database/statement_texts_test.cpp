// What a statement's text may hold, what is refused, and that literals reach the rows as they were written.
#include "database/lexer.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class StatementTexts : public OnBothEngines {};
ON_BOTH_ENGINES(StatementTexts);

TEST_P(StatementTexts, ThatAreNoStatementAreRefused) {
    Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (1,'x')");
    for (const char* sql : {
             "Delete From tJXC_KhAdd; Delete From tJXC_KhAdd", // a second statement
             "Delete From tJXC_KhAdd;",
             "Delete From tJXC_KhAdd Where fKhAdd='x", // a quote left open
             "Delete From tJXC_KhAdd Where fKhAdd='a'b'",
             "Delete From tJXC_KhAdd Where fKhAdd=\"x\"", // characters the language does not have
             "Delete From tJXC_KhAdd Where fKhID=1 | 2",
             "Delete From tJXC_KhAdd Where fKhID=?",
             "Delete From tJXC_KhAdd Where fKhID=1x",
             "Delete From tJXC_KhAdd Where fKhAdd=upper('x')", // functions it does not have
             "Delete From tJXC_KhAdd Where fKhAdd=left('x')",
             "Delete From tJXC_KhAdd Where fKhID=",
             "Delete From tJXC_KhAdd Where fKhID=1 fKhID=2",
             "Drop Table tJXC_KhAdd",
             "Delete From tNoSuchTable",
             "Update tJXC_KhAdd Set fNoSuchField=1",
             "Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (1)",
             "Update tJXC_KhAdd Set fKhID='abc'",
             "Update tJXC_CkDj01 Set fInvDate='no date'",
             "",
         })
        EXPECT_THROW(Do(sql), DatabaseError) << sql;
    EXPECT_THROW(RowsOf("Select Format(fInvDate,'dd') From tJXC_CkDj01"), DatabaseError);
    EXPECT_THROW(RowsOf("Delete From tJXC_KhAdd"), DatabaseError);
    EXPECT_THROW(Do("Select * From tJXC_KhAdd"), DatabaseError);
    EXPECT_EQ(One("Select * From tJXC_KhAdd"), "1|x");
}

TEST_P(StatementTexts, KeepTheirLiterals) {
    for (const char* text : {"it''s", "100%", "a;b", "a--b", "#1#", "D:\\new\\1", "'' Or 1=1", "仓库", "?"}) {
        Do("Delete From tJXC_KhAdd");
        Do(std::string("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (1,'") + text + "')");
        EXPECT_EQ(One("Select fKhAdd From tJXC_KhAdd"), UnquotedText(text));
        EXPECT_EQ(One(std::string("Select fKhID From tJXC_KhAdd Where fKhAdd='") + text + "'"), "1") << text;
        EXPECT_EQ(One(std::string("Select fKhID From tJXC_KhAdd Where fKhAdd Like '") + text + "'"), "1")
            << text;
    }
    EXPECT_EQ(UnquotedText("it''s"), "it's");
}

// 10 minus a return of 5 is 15; two minus signs are no comment.
TEST_P(StatementTexts, MinusANegativeNumberAdds) {
    Do("Insert Into tJXC_CkHt02 (fInvID,fInvSL2) Values (1,10)");
    Do("Update tJXC_CkHt02 Set fInvSL2=fInvSL2--5 Where fInvID=1");
    EXPECT_EQ(One("Select fInvSL2 From tJXC_CkHt02"), "15");
    Do("Update tJXC_CkHt02 Set fInvSL2=fInvSL2-(-2.5) Where fInvID=1 And fInvSL2>0");
    EXPECT_EQ(One("Select fInvSL2,fInvSL2-1--1 From tJXC_CkHt02"), "17.5|17.5");
    Do("Update tJXC_CkHt02 Set fInvSL2=1e-3*1000+12345678901");
    EXPECT_EQ(One("Select fInvSL2 From tJXC_CkHt02"), "12345678902");
}

TEST_P(StatementTexts, CompareTextsWithoutCase) {
    for (const char* row : {"1,'Abc','X'", "2,'aBD',null", "3,null,'y'"})
        Do("Insert Into tJXC_Cp (fCpID,fCpName,fCpGG) Values (" + std::string(row) + ")");
    for (const char* where :
         {"fCpName='aBC'", "fCpName Like 'AB_' And fCpGG='x'", "left(fCpName,3)='abC'",
          "fCpName In ('zzz','ABC')", "fCpName + '/' + fCpGG='abc/x'", "fCpName & fCpGG='ABCX'",
          "fCpName Between 'ABB' And 'abcz'", "not fCpName Like 'ab[d]' And fCpName<'ABd'"})
        EXPECT_EQ(One(std::string("Select fCpID From tJXC_Cp Where ") + where), "1") << where;
    // Joining with nothing gives nothing.
    EXPECT_EQ(RowsOf("Select fCpName + '/' + fCpGG From tJXC_Cp Order By fCpID"),
              (Lines{"Abc/X", "null", "null"}));
    EXPECT_EQ(RowsOf("Select distinct 'K' + fCpGG as fK From tJXC_Cp Where fCpID<>2 Order By fK"),
              (Lines{"KX", "Ky"}));
}

TEST_P(StatementTexts, PutNothingFirst) {
    for (const char* row : {"1,'b'", "2,null", "3,'A'"})
        Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (" + std::string(row) + ")");
    EXPECT_EQ(RowsOf("Select fKhID From tJXC_KhAdd Order By fKhAdd"), (Lines{"2", "3", "1"}));
    EXPECT_EQ(RowsOf("Select Top 2 fKhID From tJXC_KhAdd Order By fKhAdd Desc"), (Lines{"1", "3"}));
    EXPECT_EQ(RowsOf("Select fKhID From tJXC_KhAdd Where fKhID In (Select Top 1 fKhID From tJXC_KhAdd Order "
                     "By fKhID Desc)"),
              (Lines{"3"}));
}

// Stock of product 1 in an own, a consignment and an unknown warehouse; product 2 only on consignment; 3
// nowhere.
TEST_P(StatementTexts, JoinOnBothSides) {
    Do("Insert Into tJXC_Ck (fCkName,fCkType2,fCkType3) Values ('A',0,0)");
    Do("Insert Into tJXC_Ck (fCkName,fCkType2,fCkType3) Values ('B',1,0)");
    for (const char* stock : {"1,'A',5", "1,'B',70", "1,'C',900", "2,'B',4"})
        Do("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (" + std::string(stock) + ")");
    for (const char* product : {"1", "2", "3"})
        Do("Insert Into tJXC_CkDj02 (fInvID,fCpID,fInvSL) Values (9," + std::string(product) + ",-2)");
    const std::string source =
        " (tJXC_CkTj b Left Join tJXC_Ck c On c.fCkName=b.fCkName) Right Join tJXC_CkDj02 a On "
        "a.fCpID=b.fCpID Where a.fInvID=9";
    const std::string tail = " Group By a.fCpID,a.fInvSL Order By a.fCpID";
    EXPECT_EQ(RowsOf("select a.fCpID,a.fInvSL,sum(b.fKcSl) as fKcSl from" + source +
                     " And (c.fCkType2=0 and c.fCkType3=0)" + tail),
              (Lines{"1|-2|5"}));
    EXPECT_EQ(RowsOf("select a.fCpID,a.fInvSL,sum(b.fKcSl) as fKcSl from" + source + tail),
              (Lines{"1|-2|975", "2|-2|4", "3|-2|null"}));
    EXPECT_EQ(RowsOf("select a.fCpID,a.fInvSL,sum(b.fKcSl) as fKcSl from" + source +
                     " And c.fCkName is null" + tail),
              (Lines{"1|-2|900", "3|-2|null"}));
    EXPECT_EQ(RowsOf("select a.fCpID,a.fInvSL,sum(b.fKcSl) as fKcSl from" + source +
                     " And (c.fCkType2=1 Or b.fKcSl>800)" + tail),
              (Lines{"1|-2|970", "2|-2|4"}));
}

} // namespace

TEST(LiftedTexts, ThatDifferInLiteralsShareAKey) {
    const auto keyOf = [](const char* sql) {
        LiftedStatement lifted;
        Lift(sql, lifted);
        return lifted.key;
    };
    const std::string key = keyOf("Select Top 1 f From t Where a=1 And b='x' And c=#07/31/2003#");
    EXPECT_EQ(key, keyOf("Select Top 1 f  From t Where a=27 And b='it''s' And c=#08/01/2003#"));
    for (const char* other : {"Select Top 2 f From t Where a=1 And b='x' And c=#07/31/2003#",
                              "Select Top 1 f From t Where a=1.5 And b='x' And c=#07/31/2003#",
                              "Select Top 1 f From t Where a=1 And b=2 And c=#07/31/2003#"})
        EXPECT_NE(key, keyOf(other)) << other;
    EXPECT_NE(keyOf("Select Format(f,'yyyy-mm') From t"), keyOf("Select Format(f,'yyyymm') From t"));
    EXPECT_NE(keyOf("Select convert(varchar(7),f,120) From t"),
              keyOf("Select convert(varchar(10),f,120) From t"));
    EXPECT_NE(keyOf("Select f From t Order By 1"), keyOf("Select f From t Order By 2"));
}

} // namespace jxc::test
