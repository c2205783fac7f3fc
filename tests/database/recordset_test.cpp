// Recordsets: reading by name and place, and changing rows one at a time.
#include "database/recordset.h"
#include "session/company/open_connection.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class Recordsets : public OnBothEngines {
  protected:
    void SetUp() override {
        OnBothEngines::SetUp();
        if (company)
            for (const char* row : {"1,'A',5", "2,'B',null"})
                Do("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (" + std::string(row) + ")");
    }
    Recordset Open(const std::string& where) {
        return Recordset(Conn(), "Select * From tJXC_CkTj Where " + where, Access::Write);
    }
};
ON_BOTH_ENGINES(Recordsets);

TEST_P(Recordsets, ReadByNameInAnyCaseAndByPlace) {
    Recordset rows(Conn(), "Select fCpID,fCkName,fKcSl as fX From tJXC_CkTj Order By fCpID");
    EXPECT_EQ(rows.RecordCount(), 2u);
    EXPECT_EQ(rows["FCKNAME"].AsText(), "A");
    EXPECT_EQ(rows[2], Value(5.0));
    rows.MoveNext();
    EXPECT_TRUE(rows["fx"].IsNull());
    EXPECT_THROW(rows["fKcSl"], DatabaseError);
    EXPECT_THROW(rows[3], std::logic_error);
    EXPECT_THROW(rows.Set("fCpID", 3), std::logic_error);
    rows.MoveNext();
    EXPECT_TRUE(rows.AtEnd());
    EXPECT_THROW(rows["fCpID"], DatabaseError);
}

TEST_P(Recordsets, AddAndChangeRowsInsideAndOutsideATransaction) {
    for (const bool inside : {false, true}) {
        if (inside)
            Conn().BeginTrans();
        Recordset rows = Open("fCpID=1");
        rows.Set("fRkSl", rows["fKcSl"].AsDouble() + 1);
        rows.Set("fKcSl", rows["fRkSl"].AsDouble() * 2); // reads what was assigned
        rows.Update();
        rows.Set("fKcJe", 1);
        rows.Update(); // the same row once more
        rows.Set("fKcJe", rows["fKcJe"].AsDouble() - 3);
        EXPECT_THROW(rows.MoveNext(), std::logic_error);
        rows.Update();
        Recordset added = Open("1=2");
        EXPECT_TRUE(added.AtEnd());
        added.AddNew();
        added.Set("fCpID", 7);
        added.Set("fCkName", inside ? "in" : "out");
        added.Update();
        EXPECT_THROW(added.Set("fCpID", 8), DatabaseError);
        if (inside)
            Conn().CommitTrans();
    }
    EXPECT_EQ(RowsOf("Select fCpID,fCkName,fRkSl,fKcSl,fKcJe From tJXC_CkTj Order By fCpID,fCkName"),
              (Lines{"1|A|13|26|-2", "2|B|null|null|null", "7|in|null|null|null", "7|out|null|null|null"}));
}

TEST_P(Recordsets, DeleteTheCurrentRow) {
    Recordset rows = Open("fCpID>0 Order By fCpID");
    rows.Delete();
    EXPECT_THROW(rows.Delete(), std::logic_error);
    rows.MoveNext();
    EXPECT_EQ(rows["fCkName"].AsText(), "B");
    rows.Set("fKcSl", 4);
    rows.Update();
    EXPECT_EQ(One("Select fCpID,fKcSl From tJXC_CkTj"), "2|4");
}

TEST_P(Recordsets, TellARowThatAnotherChangedMeanwhile) {
    Recordset rows = Open("fCpID=1");
    Do("Update tJXC_CkTj Set fKcSl=6 Where fCpID=1");
    rows.Set("fKcJe", 4);
    EXPECT_THROW(rows.Update(), ConflictError);
    EXPECT_EQ(One("Select fKcSl,fKcJe From tJXC_CkTj Where fCpID=1"), "6|null");
}

TEST_P(Recordsets, TellARowThatIsGone) {
    Recordset rows = Open("fCpID=1");
    Do("Delete From tJXC_CkTj Where fCpID=1");
    rows.Set("fKcSl", 4);
    EXPECT_THROW(rows.Update(), ConflictError);

    Recordset others = Open("fCpID=2");
    Do("Delete From tJXC_CkTj");
    Conn().BeginTrans();
    EXPECT_THROW(
        {
            others.Set("fKcSl", 4);
            others.Update();
            Do("Insert Into tJXC_CkTj (fCpID,fCkName) Values (9,'A')");
            Conn().CommitTrans();
        },
        ConflictError);
    Conn().RollbackTrans();
    EXPECT_EQ(One("Select fCpID From tJXC_CkTj"), "0 rows");
}

TEST_P(Recordsets, HoldEachFieldToItsKind) {
    Recordset entry(Conn(), "Select * From tAccountDetail Where fAcntNo='W1'", Access::Write);
    entry.AddNew();
    entry.Set("fAcntNo", 15);          // a number in a text
    entry.Set("fMoneyA", 0.00015);     // four decimals, halves away from zero
    entry.Set("fMoneyB", "-10.12345"); // a numeric text in a number
    entry.Set("fType1", 2.5);          // to the even whole number
    entry.Set("fDate", "2004-02-29 00:00:00");
    entry.Set("fInvID", "it's 100%");
    entry.Set("fUser", Value());
    for (const auto& [field, value] :
         std::initializer_list<std::pair<const char*, Value>>{{"fDate", "2003-02-29"},
                                                              {"fDate", 37000},
                                                              {"fDate", ""},
                                                              {"fMoneyA", "x"},
                                                              {"fMoneyA", ""},
                                                              {"fType1", 40000},
                                                              {"fCompID", 3e9},
                                                              {"fMoneyRate", std::nan("")},
                                                              {"fNoSuchField", 1}})
        EXPECT_THROW(entry.Set(field, value), DatabaseError) << field << " " << value.AsText();
    entry.Update();
    EXPECT_EQ(One("Select fAcntNo,fMoneyA,fMoneyB,fType1,fDate,fInvID,fUser From tAccountDetail"),
              "15|0.0002|-10.1235|2|2004-02-29|it's 100%|null");
}

TEST_P(Recordsets, ChangeRowsOfOneTableOnly) {
    for (const char* sql : {"Select a.fCpID from tJXC_CkTj a Left Join tJXC_Cp b On a.fCpID=b.fCpID",
                            "Select max(fCpID) from tJXC_CkTj", "Select fCpID from tJXC_CkTj Group By fCpID",
                            "Delete From tJXC_CkTj"})
        EXPECT_THROW(Recordset(Conn(), sql, Access::Write), DatabaseError) << sql;
    Recordset rows(Conn(), "select distinct fCkName,fKcSl from tJXC_CkTj Where fCkName='b'", Access::Write);
    rows.Set("fKcSl", 3);
    rows.Update();
    EXPECT_EQ(One("Select fKcSl From tJXC_CkTj Where fCkName='B'"), "3");
}

// A value stays one over two connections: the file or the server holds it, not this program.
TEST_P(Recordsets, ShowToOthersWhatIsCommitted) {
    Connection other;
    OpenConnection(company->Dialect(), other, company->Path(), "", "", company->Database());
    Recordset rows = Open("fCpID=1");
    rows.Set("fMonth", "2003-07-31 15:30:00");
    rows.Set("fKcDj", 0.1);
    rows.Update();
    Recordset seen(other, "Select fMonth,fKcDj From tJXC_CkTj Where fCpID=1");
    EXPECT_EQ(seen["fMonth"], Value("2003-07-31 15:30:00"));
    EXPECT_EQ(seen["fKcDj"], Value(0.1));
}

} // namespace

} // namespace jxc::test
