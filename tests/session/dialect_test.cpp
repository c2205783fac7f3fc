// The named differences of the two dialects, word for word; that the engines read both alike is tested with the engines.
#include "session/dialect.h"

#include <gtest/gtest.h>

#include "session/session.h"

namespace jxc {

namespace {

TEST(Dialects, DifferAsNamed) {
    const std::int16_t before = session.SQLData;
    const Date day = *ParseDate("2003-07-31");
    const UpdateFromSecond update{.table = "tJXC_CkDj02",
                                  .field = "fInvDJ2",
                                  .second = "tJXC_CkTj",
                                  .value = "fKcDj",
                                  .join = "a.fCpID=b.fCpID",
                                  .condition = "a.fInvID=7"};
    session.SQLData = 0;
    EXPECT_EQ(DayTest("fDate", "=", day), "fDate=#07/31/2003#");
    EXPECT_EQ(DayTest("fInvDate", " >= ", day, DayForm::Iso), "fInvDate >= #2003-07-31#");
    EXPECT_EQ(DayValue(day), "#07/31/2003#");
    EXPECT_EQ(MonthTest("a.fMonth", day), "Year(a.fMonth)=2003 And Month(a.fMonth)=7");
    EXPECT_EQ(MonthText("a.fMonth"), "Format(a.fMonth,'yyyy-mm')");
    EXPECT_EQ(OneOf("f=1", "1", "-1"), "iif(f=1,1,-1)");
    EXPECT_EQ(NothingTest("fJbCode"), "isnull(fJbCode)");
    EXPECT_EQ(MoneyOf("a.f * 2"), "ccur(a.f * 2)");
    EXPECT_EQ(LowerCaseOf("ftable"), "LCase(ftable)");
    EXPECT_EQ(NumericTest(PartOf("fInvNo", 12, 3)), "IsNumeric(mid(fInvNo,12,3))");
    EXPECT_EQ(UpdateText(update),
              "Update tJXC_CkDj02 a,tJXC_CkTj b Set a.fInvDJ2=b.fKcDj Where a.fCpID=b.fCpID And "
              "a.fInvID=7");
    EXPECT_EQ(TextType(50), "varchar(50)");
    EXPECT_EQ(DeleteText("tJXC_CpTj01", "fTjID = 3"), "Delete From tJXC_CpTj01 a  where a.fTjID = 3");
    session.SQLData = 1;
    EXPECT_EQ(TextType(50), "nvarchar(50)");
    EXPECT_EQ(DeleteText("tJXC_CpTj01", "fTjID = 3"), "Delete From tJXC_CpTj01  where fTjID = 3");
    EXPECT_EQ(DayTest("fDate", "=", day), "Convert(varchar(10),fDate,120)='2003-07-31'");
    EXPECT_EQ(DayTest("fInvDate", " >= ", day, DayForm::Iso),
              "Convert(varchar(10),fInvDate,120) >= '2003-07-31'");
    EXPECT_EQ(DayValue(day), "'07/31/2003'");
    EXPECT_EQ(MonthTest("a.fMonth", day), "Year(a.fMonth)=2003 And Month(a.fMonth)=7");
    EXPECT_EQ(MonthText("a.fMonth"), "Convert(varchar(7),a.fMonth,120)");
    EXPECT_EQ(OneOf("f=1", "1", "-1"), "case when f=1 then 1 else -1 end");
    EXPECT_EQ(NothingTest("fJbCode"), "fJbCode is null");
    EXPECT_EQ(MoneyOf("a.f * 2"), "convert(money,a.f * 2)");
    EXPECT_EQ(LowerCaseOf("ftable"), "Lower(ftable)");
    EXPECT_EQ(NumericTest(PartOf("fInvNo", 12, 3)), "IsNumeric(SUBSTRING(fInvNo,12,3))=1");
    EXPECT_EQ(UpdateText(update),
              "Update tJXC_CkDj02 Set fInvDJ2=b.fKcDj From tJXC_CkDj02 a Inner Join tJXC_CkTj b On "
              "a.fCpID=b.fCpID Where a.fInvID=7");
    session.SQLData = before;
}

} // namespace

} // namespace jxc
