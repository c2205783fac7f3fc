// Where the engines by themselves would part: what one refuses, cuts or takes for nothing means the same on
// both, or is refused by both in the same words.
#include "database/recordset.h"
#include "database/storable_text.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class EnginesAlike : public OnBothEngines {
  protected:
    // The error's text, "" when there was none.
    static std::string ErrorOf(const std::string& sql) {
        try {
            Conn().Query(sql);
            return "";
        } catch (const DatabaseError& error) {
            return error.what();
        }
    }
    void AddProducts(const std::vector<std::string>& rows) {
        for (const std::string& row : rows)
            Do("Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpPrice0) Values (" + row + ")");
    }
};
ON_BOTH_ENGINES(EnginesAlike);

std::string Repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST_P(EnginesAlike, InListsOfAnyLength) {
    AddProducts({"1,'A1','one',2.5", "2,'b2','it''s \"2\" \\ {x,y}',3", "70000,'C3','three',null"});
    std::string keys = "0";
    for (int n = 1; n <= 80000; ++n)
        keys += "," + std::to_string(n);
    EXPECT_EQ(RowsOf("Select fCpID From tJXC_Cp Where fCpID In (" + keys + ") Order By fCpID"),
              (Lines{"1", "2", "70000"}));
    EXPECT_EQ(RowsOf("Select fCpID From tJXC_Cp Where fCpID Not In (" + keys + ")"), Lines{});
    for (const char* where :
         {"fCpID In (2,3)", "fCpCode In ('x','B2')", "left(fCpCode,1) In ('B','X')", "fCpPrice0 In (3,4)",
          "fCpPrice0 In ('3.0','x')", "fCpName In ('It''s \"2\" \\ {x,y}','null')", "fCpID Not In (1, 70000)",
          "fCpPrice0 In (3.0,4.5)", "fCpID In (2)", "fCpID In (-2,2)", "fCpID*1 In (2,1000000000000000)"})
        EXPECT_EQ(RowsOf("Select fCpID From tJXC_Cp Where " + std::string(where)), Lines{"2"}) << where;
    EXPECT_EQ(RowsOf("Select fCpID From tJXC_Cp Where fCpID In ()"), Lines{});
    EXPECT_EQ(RowsOf("Select fCpID From tJXC_Cp Where fCpPrice0 Not In () Order By fCpID"),
              (Lines{"1", "2", "70000"}));
    Do("Insert Into tJXC_CkDj01 (fInvID,fInvDate) Values (1," + Day("07/31/2003") + ")");
    EXPECT_EQ(One("Select fInvID From tJXC_CkDj01 Where fInvDate In ('2003-07-31','08/01/2003')"), "1");
    EXPECT_THROW(RowsOf("Select fInvID From tJXC_CkDj01 Where fInvDate In ('x','y')"), DatabaseError);
    Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (1,'a\nb\tc')");
    EXPECT_EQ(One("Select fKhID From tJXC_KhAdd Where fKhAdd In ('a\nb\tc','')"), "1");
}

TEST_P(EnginesAlike, LongAndDeepStatements) {
    AddProducts({"1,'A','x',1", "2,'B','y',2"});
    EXPECT_EQ(One("Select fCpID From tJXC_Cp Where fCpID=2" + Repeated(" Or fCpID=5", 5000)), "2");
    EXPECT_EQ(One("Select fCpID From tJXC_Cp Where fCpID<2" + Repeated(" And fCpCode='a'", 5000)), "1");
    EXPECT_EQ(One("Select fCpID From tJXC_Cp Where (fCpID=5" + Repeated(" Or fCpID=5", 5000) +
                  ") Or fCpName='Y' And (fCpID=2" + Repeated(" Or fCpID=7", 120) + ")"),
              "2");
    EXPECT_EQ(One("Select 0" + Repeated("+1", 150) + " From tJXC_Cp Where fCpID=1"), "150");
    EXPECT_EQ(One("Select fCpID From tJXC_Cp Where " + Repeated("(", 20) + "fCpID=1" + Repeated(")", 20)),
              "1");
    // As deep as is taken, by what waits before each parenthesis.
    for (const char* part : {"(", "fCpID=9 Or 1=1 And (", "1=0 Or not fCpID=9 And fCpCode<>'z' And (",
                             "fCpPrice0*2-3*(1+(2-2))<>abs(1+(2)) Or ("}) {
        const auto nested = [&](int times) {
            return "Select count(*) From tJXC_Cp Where " + Repeated(part, times) + "fCpID=1" +
                   Repeated(")", times);
        };
        int times = 1;
        while (times < 100 && ErrorOf(nested(times + 1)).empty())
            ++times;
        EXPECT_GE(times, 8) << part;
        EXPECT_EQ(ErrorOf(nested(times + 1)), "SQL 语句有误：括号嵌套太深。") << part << times;
    }

    const std::string tooDeep = "SQL 语句有误：括号嵌套太深。", tooLong = "SQL 语句有误：算式太长。";
    EXPECT_EQ(
        ErrorOf("Select fCpID From tJXC_Cp Where " + Repeated("(", 30000) + "fCpID=1" + Repeated(")", 30000)),
        tooDeep);
    EXPECT_EQ(ErrorOf("Select fCpID From " + Repeated("(", 30000) + "tJXC_Cp" + Repeated(")", 30000)),
              tooDeep);
    for (const char* part : {"not ", "abs(", "+ ", "- ", "case when ", "fCpID In (Select "})
        EXPECT_EQ(ErrorOf("Select fCpID From tJXC_Cp Where " + Repeated(part, 30000)), tooDeep) << part;
    EXPECT_EQ(ErrorOf("Select 0" + Repeated("+1", 30000) + " From tJXC_Cp"), tooLong);
    EXPECT_EQ(ErrorOf("Select 1" + Repeated("*1", 30000) + " From tJXC_Cp"), tooLong);
    EXPECT_EQ(ErrorOf("Select fCpID From tJXC_Cp Where fCpID=5" + Repeated(" Or fCpID=5", 70000)),
              "SQL 语句有误：语句含有的数值和文本太多。");
    EXPECT_EQ(One("Select count(*) From tJXC_Cp"), "2");
}

TEST_P(EnginesAlike, LiteralsThatGroupAndSort) {
    AddProducts({"1,'AA','x',1", "2,'aB','y',2", "3,'BA','x',4"});
    // A and B: 1 + 2 and 4.
    for (const char* sql : {
             "Select left(fCpCode,1) as k,sum(fCpPrice0) From tJXC_Cp Group By left(fCpCode,1) Order By k",
             "Select left(tJXC_Cp.fCpCode,1) as k,sum(fCpPrice0*1) From tJXC_Cp Where 1=1 Group By "
             "left(fCpCode,1) Having left(fCpCode,1)<>'z' Order By left(fCpCode,1)",
             "Select left(fCpCode,1) as k,sum(fCpPrice0) From tJXC_Cp Group By 'k',left(fCpCode,1),1 Order "
             "By "
             "1,'x'",
         })
        EXPECT_EQ(RowsOf(sql), (Lines{"A|3", "B|4"})) << sql;
    EXPECT_EQ(RowsOf(Dialect("Select iif(fCpID<=2,'x','y') as k,count(*) From tJXC_Cp Group By "
                             "iif(fCpID<=2,'x','y') Order By iif(fCpID<=2,'x','y') Desc",
                             "Select case when fCpID<=2 then 'x' else 'y' end as k,count(*) From tJXC_Cp "
                             "Group By case when fCpID<=2 then 'x' else 'y' end Order By case when fCpID<=2 "
                             "then 'x' else 'y' end Desc")),
              (Lines{"y|1", "x|2"}));
    // The same text with other literals is another statement.
    EXPECT_EQ(RowsOf("Select left(fCpCode,2),count(*) From tJXC_Cp Group By left(fCpCode,2) Order By 1"),
              (Lines{"AA|1", "aB|1", "BA|1"}));
    EXPECT_THROW(
        RowsOf("Select left(fCpCode,2),count(*) From tJXC_Cp Where fCpID>2 Group By left(fCpCode,x)"),
        DatabaseError);
    EXPECT_EQ(RowsOf("Select distinct left(fCpCode,1) From tJXC_Cp Order By left(fCpCode,1) Desc"),
              (Lines{"B", "A"}));
    EXPECT_EQ(RowsOf("Select '入库' as k,count(*) From tJXC_Cp Group By '入库'"), Lines{"入库|3"});
    EXPECT_EQ(RowsOf("Select '入库' as k,count(*) From tJXC_Cp Where fCpID>9 Group By '入库'"), Lines{});
    EXPECT_EQ(RowsOf("Select fCpID From tJXC_Cp Order By fCpName Desc,2-fCpID"), (Lines{"2", "3", "1"}));
    for (const std::string text : {"1 Desc --", "now()", "2003-07-31"})
        for (const std::string list : {" Group By #", " Order By #", " Order By left(fCpCode,1),#"})
            EXPECT_NE(ErrorOf("Select 1 From tJXC_Cp" + list + text + "#"), "") << list << text;
    EXPECT_NE(ErrorOf("Select 1 From tJXC_CkDj01 Order By fInvDate-#1 Or 1=1#"), "");
}

// Neither an error nor a hit: there is no such month, no quotient, no such number.
TEST_P(EnginesAlike, WhatCannotBe) {
    Do("Insert Into tJXC_CkDj01 (fInvID,fInvType,fInvNo,fInvJE,fInvDate) Values (1,0,'n',2.5," +
       Day("07/31/2003") + ")");
    for (const char* where :
         {"Year(fInvDate)=0 And Month(fInvDate)=0", "Year(fInvDate)=2003 And Month(fInvDate)=13",
          "Month(fInvDate)=0", "fInvJE=''", "fInvID='abc'", "fInvID<>''", "fInvJE In ('','x')",
          "fInvJE Between '' And '9'", "fInvID/0=1", "fInvJE/fInvType=1", "not fInvJE/fInvType=1"})
        EXPECT_EQ(RowsOf("Select fInvID From tJXC_CkDj01 Where " + std::string(where)), Lines{}) << where;
    EXPECT_EQ(One("Select fInvJE/0,fInvID/fInvType,fInvJE/2,3/2 From tJXC_CkDj01 Where fInvJE='2.50' And "
                  "Month(fInvDate)=7 And fInvID=1 And Year(fInvDate)=2003"),
              "null|null|1.25|1");
}

// 1 becomes 2 by a statement, 3 by the record; a row that is gone is gone.
TEST_P(EnginesAlike, ARowChangedByAStatementIsChangedOn) {
    for (const char* row : {"1,'a'", "1,'b'", "1,'c'"})
        Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (" + std::string(row) + ")");
    {
        Transaction transaction(Conn());
        Recordset rows(Conn(), "Select * From tJXC_KhAdd Order By fKhAdd", Access::Write);
        Recordset others(Conn(), "Select * From tJXC_KhAdd Order By fKhAdd", Access::Write);
        Do("Update tJXC_KhAdd Set fKhID=2");
        Do("Update tJXC_KhAdd Set fKhID=fKhID+5 Where fKhAdd='b'");
        for (; !rows.AtEnd(); rows.MoveNext()) {
            rows.Set("fKhAdd", rows["fKhAdd"].AsText() + "x");
            rows.Update();
        }
        others.Set("fKhID", 3);
        others.Update();
        others.MoveTo(1);
        others.Delete();
        transaction.Commit();
    }
    EXPECT_EQ(RowsOf("Select fKhID,fKhAdd From tJXC_KhAdd Order By fKhAdd"), (Lines{"3|ax", "2|cx"}));
    Transaction transaction(Conn());
    Recordset rows(Conn(), "Select * From tJXC_KhAdd Where fKhID=3", Access::Write);
    Do("Delete From tJXC_KhAdd Where fKhID=3");
    rows.Set("fKhID", 4);
    EXPECT_THROW(
        {
            rows.Update();
            Conn().Flush();
        },
        ConflictError);
}

TEST_P(EnginesAlike, TextsThatNoEngineMayGet) {
    const std::string broken[] = {
        std::string("a\0b", 3), "\xff",        "ab\xe4\xbb", "\xc0\xaf", "\xed\xa0\x80",
        "\xf4\x90\x80\x80",     "12345678\x80"};
    const std::string why = "文本含有不能存入的字符（空字符，或者不是 UTF-8 编码）。";
    for (const std::string& text : broken) {
        EXPECT_EQ(ErrorOf("Select fKhID From tJXC_KhAdd Where fKhAdd='" + text + "'"), why);
        EXPECT_THROW(Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (1,'" + text + "')"), DatabaseError);
        Recordset row(Conn(), "Select * From tJXC_KhAdd", Access::Write);
        row.AddNew();
        EXPECT_THROW(row.Set("fKhAdd", text), DatabaseError);
    }
    EXPECT_EQ(One("Select count(*) From tJXC_KhAdd"), "0");
    for (const char* text : {"", "仓库", "a\xf4\x8f\xbf\xbf", "\x7f\x01 12345678 é"})
        EXPECT_TRUE(IsStorable(text)) << text;
}

TEST(StorableText, IsReadableWhateverItHolds) {
    EXPECT_EQ(Readable("单据 A\xff\xe4\xb8"
                       "B"),
              "单据 A\uFFFD\uFFFD\uFFFDB");
    EXPECT_EQ(Readable(std::string_view("\0é", 3)), "\uFFFDé");
    EXPECT_EQ(Readable(""), "");
}

} // namespace

} // namespace jxc::test
