// Transactions: what fails inside one, what may fail without ending it, and who waits for whom.
#include <future>
#include <thread>

#include "database/recordset.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"
#include "tests/support/test_company.h"

namespace jxc::test {

namespace {

class Transactions : public OnBothEngines {
  protected:
    void Add(int id) { Do("Insert Into tJXC_KhAdd (fKhID,fKhAdd) Values (" + std::to_string(id) + ",'x')"); }
    Lines Ids() { return RowsOf("Select fKhID From tJXC_KhAdd Order By fKhID"); }
    // This program writes, while another is connected.
    void BeginWriting(Connection& other) {
        company->Open(other);
        Conn().BeginTrans();
        Add(1);
        Conn().Flush();
    }
    // Accepted by the translation, refused by the database.
    const char* bad = "Insert Into tJXC_KhAdd (fKhID,fNoSuchField) Values (1,2)";
};
ON_BOTH_ENGINES(Transactions);

TEST_P(Transactions, OnlyACommitKeeps) {
    {
        Transaction transaction(Conn());
        Add(1);
        EXPECT_EQ(Ids(), (Lines{"1"}));
        EXPECT_THROW(Conn().BeginTrans(), std::logic_error);
    }
    EXPECT_EQ(Ids(), Lines{});
    {
        Transaction transaction(Conn());
        Add(2);
        transaction.Commit();
    }
    EXPECT_EQ(Ids(), (Lines{"2"}));
    EXPECT_THROW(Conn().CommitTrans(), std::logic_error);
}

TEST_P(Transactions, SwallowedFailuresLeaveThemUsable) {
    Transaction transaction(Conn());
    Add(1);
    EXPECT_EQ(DbCount("tJXC_KhAdd", "fNoSuchField=0"), -1);
    EXPECT_EQ(DbCount("tJXC_KhAdd", "fKhID=1"), 1);
    EXPECT_EQ(DbScalar("Select fNoSuchField From tJXC_KhAdd"), "");
    EXPECT_EQ(DbScalar("Select fKhID From tJXC_KhAdd"), "1");
    EXPECT_THROW(Conn().Tolerantly([&] {
        Add(2);
        Conn().Tolerantly([&] { Add(3); });
        EXPECT_THROW(Conn().Tolerantly([&] {
            Add(4);
            Do(bad);
        }),
                     DatabaseError);
        EXPECT_EQ(Ids(), (Lines{"1", "2", "3"}));
        Do(bad);
    }),
                 DatabaseError);
    Add(5);
    transaction.Commit();
    EXPECT_EQ(Ids(), (Lines{"1", "5"}));
}

TEST_P(Transactions, FailAsAWholeAfterAFailure) {
    Add(9);
    {
        Transaction transaction(Conn());
        Add(1);
        EXPECT_NE(RefusalOf([&] {
                      Do(bad);
                      Conn().Flush();
                  }),
                  "");
        EXPECT_THROW(Add(2), DatabaseError);
        EXPECT_THROW(Ids(), DatabaseError);
        EXPECT_EQ(DbCount("tJXC_KhAdd", ""), -1);
        EXPECT_THROW(transaction.Commit(), DatabaseError);
    }
    EXPECT_EQ(Ids(), (Lines{"9"}));
}

// A failure that shows late is not swallowed by the count in between, and the commit tells it.
TEST_P(Transactions, KeepAFailureFromBeforeATolerantPart) {
    {
        Transaction transaction(Conn());
        RefusalOf([&] { Do(bad); }); // now or later
        EXPECT_EQ(DbCount("tJXC_KhAdd", ""), -1);
        EXPECT_THROW(transaction.Commit(), DatabaseError);
    }
    {
        Transaction transaction(Conn());
        Add(1);
        EXPECT_THROW(
            {
                Do(bad);
                transaction.Commit();
            },
            DatabaseError);
    }
    EXPECT_EQ(Ids(), Lines{});
    EXPECT_EQ(DbCount("tJXC_KhAdd", ""), 0);
}

TEST_P(Transactions, FailWhenAnObserverInjectsAFault) {
    Lines seen;
    Conn().SetObserver([&](std::string_view sql) {
        seen.emplace_back(sql);
        if (sql == "commit")
            throw DatabaseError("fault");
    });
    {
        Transaction transaction(Conn());
        Recordset row(Conn(), "select * from tJXC_KhAdd Where fKhID=1", Access::Write);
        row.AddNew();
        row.Set("fKhID", 1);
        row.Update();
        EXPECT_THROW(transaction.Commit(), DatabaseError);
    }
    Conn().SetObserver(nullptr);
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0], "begin");
    EXPECT_TRUE(seen[2].starts_with("insert into tJXC_KhAdd"));
    EXPECT_EQ(seen[3], "commit");
    EXPECT_EQ(Ids(), Lines{});
}

TEST_P(Transactions, OfASecondWriterWaitAtTheirBegin) {
    Connection other;
    BeginWriting(other);
    auto waiting = std::async(std::launch::async, [&] {
        Transaction transaction(other);
        std::string seen = other.Query("Select count(*) From tJXC_KhAdd").At(0, 0).AsText();
        transaction.Commit();
        return seen;
    });
    EXPECT_EQ(waiting.wait_for(std::chrono::milliseconds(200)), std::future_status::timeout);
    Conn().CommitTrans();
    EXPECT_EQ(waiting.get(), "1");
}

// Who waits is told after an instant and may give up; nothing is begun then.
TEST_P(Transactions, WaitingForAnotherWriterCanBeGivenUp) {
    Connection other;
    BeginWriting(other);
    std::vector<int> told;
    other.SetWaitObserver([&](int seconds) {
        told.push_back(seconds);
        return false;
    });
    const auto begin = [&] {
        Transaction transaction(other);
        other.Flush();
    };
    EXPECT_EQ(RefusalOf(begin), "已取消等待，操作没有进行。");
    EXPECT_EQ(told, kAskedOnceAndEnded);
    EXPECT_FALSE(other.InTransaction());
    Conn().CommitTrans();
    begin();
    EXPECT_EQ(told.size(), 2U);
}

// A statement over very many rows is waited for as other writers are, and what it has begun is taken back.
TEST_P(Transactions, AStatementThatTakesLongCanBeGivenUp) {
    constexpr int kRows = 400; // and 64 million pairs of pairs
    {
        Transaction transaction(Conn());
        for (int row = 0; row < kRows; ++row)
            Add(row);
        transaction.Commit();
    }
    std::vector<int> told;
    Conn().SetWaitObserver([&](int seconds) {
        told.push_back(seconds);
        return false;
    });
    const auto work = [] {
        Transaction transaction(Conn());
        Conn().Execute("Insert Into tJXC_KhAdd (fKhID) Select a.fKhID+b.fKhID From (tJXC_KhAdd a Inner Join "
                       "tJXC_KhAdd b On a.fKhID<>b.fKhID) Inner Join tJXC_KhAdd c On c.fKhID<>b.fKhID");
        transaction.Commit();
    };
    EXPECT_EQ(RefusalOf(work), "已取消等待，操作没有进行。");
    Conn().SetWaitObserver(nullptr);
    EXPECT_EQ(told, kAskedOnceAndEnded);
    EXPECT_FALSE(Conn().InTransaction());
    EXPECT_EQ(Ids().size(), static_cast<size_t>(kRows));
}

class LostLine : public Transactions {};
ON_POSTGRES(LostLine);

// A server that was away for a moment: what was under way has failed, what comes next is served.
TEST_P(LostLine, EndsItsTransactionOnly) {
    Connection other;
    company->Open(other);
    CutLinesOfOthers(other);
    EXPECT_EQ(RowsOf("Select fKhID From tJXC_KhAdd"), Lines{}); // a read is tried once more
    CutLinesOfOthers(other);
    EXPECT_TRUE(Recordset(Conn(), "Select * From tJXC_KhAdd", Access::Write).AtEnd());
    Conn().ForgetCatalogue();
    CutLinesOfOthers(other);
    EXPECT_TRUE(Conn().HasColumn("tJXC_KhAdd", "fKhID"));
    CutLinesOfOthers(other);
    EXPECT_THROW(Add(1), LineLost); // a change is not: it may have been done
    EXPECT_EQ(Ids(), Lines{});
    {
        Transaction transaction(Conn());
        Add(1);
        Conn().Flush();
        CutLinesOfOthers(other);
        EXPECT_THROW(transaction.Commit(), DatabaseError);
    }
    EXPECT_EQ(Ids(), Lines{});
    Transaction transaction(Conn());
    Add(2);
    transaction.Commit();
    EXPECT_EQ(Ids(), Lines{"2"});
}

TEST_P(Transactions, OfManyStatementsArriveWhole) {
    Transaction transaction(Conn());
    for (int i = 0; i < 1000; ++i)
        Add(i);
    transaction.Commit();
    EXPECT_EQ(One("Select count(*),sum(fKhID) From tJXC_KhAdd"), "1000|499500");
}

// More kinds of statement than are kept prepared, then the first again.
TEST_P(Transactions, CountlessKindsOfStatementAreServed) {
    for (int i = 1; i <= 600; ++i)
        EXPECT_EQ(RowsOf("Select Top " + std::to_string(i) + " fKhID From tJXC_KhAdd"), Lines{});
    Add(1);
    EXPECT_EQ(RowsOf("Select Top 1 fKhID From tJXC_KhAdd"), (Lines{"1"}));
}

TEST_P(Transactions, CountAndMaximum) {
    EXPECT_EQ(DbMax("tJXC_KhAdd", "fKhID"), 1);
    Add(0);
    EXPECT_EQ(DbMax("tJXC_KhAdd", "fKhID"), 0);
    Do("Update tJXC_KhAdd Set fKhID=null");
    EXPECT_EQ(DbMax("tJXC_KhAdd", "fKhID"), 1);
    EXPECT_THROW(static_cast<void>(DbMax("tJXC_KhAdd", "fNoSuchField")), DatabaseError);
    for (int rows = 1; rows < 32768; rows *= 2)
        Do("Insert Into tJXC_KhAdd Select * From tJXC_KhAdd");
    EXPECT_EQ(DbCount("tJXC_KhAdd", ""), -1); // 32768 is more than 16 bits tell
    Do("Update tJXC_KhAdd Set fKhAdd='y' Where 1=1");
    EXPECT_EQ(DbCount("tJXC_KhAdd", "fKhAdd='x'"), 0);
}

} // namespace

TEST(LikePattern, OfWhatAUserTyped) {
    for (const auto& [typed, pattern] : {std::pair{"abc", "%abc%"},
                                         {"abc*", "abc%"},
                                         {"#bc", "_bc"},
                                         {"a*c", "%a*c%"},
                                         {" ", ""},
                                         {"*", "%"},
                                         {"#", "_"},
                                         {"a%", "a%"},
                                         {" x ", "%x%"}})
        EXPECT_EQ(LikePattern(typed), pattern);
}

} // namespace jxc::test
