// The copy that is written before a month is closed: whole, readable, and nothing at all where it cannot be written.
#include <fstream>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "database/database_error.h"
#include "database/engine.h"
#include "host/company/backup.h"
#include "host/window/company_backups.h"
#include "tests/support/on_sample_company.h"
#include "view/qt_text.h"

namespace jxc::test {

namespace {

class CompanyCopies : public OnSampleCompany {
  protected:
    QStringList Files() const { return QDir(folder.path() + "/备份").entryList(QDir::Files); }
    CompanyBackups Keeper() const { return CompanyBackups(company->Address(), folder.path() + "/备份"); }
    QTemporaryDir folder;
};
ON_BOTH_ENGINES(CompanyCopies);

TEST_P(CompanyCopies, AreWholeAndHaveNamesOfTheirOwn) {
    ExecuteOnCompany(company->Address(), "Insert Into tJXC_Ck (fCkName) Values ('只此一仓')");
    const std::string first = Keeper().BackUp(), second = Keeper().BackUp();
    EXPECT_NE(first, second);
    EXPECT_EQ(Files().size(), 2);
    EXPECT_EQ(QFileInfo(Q(first)).permissions() & (QFile::ReadOther | QFile::ReadGroup), 0);
    if (GetParam() == EngineKind::Sqlite) {
        const std::string restored = S(folder.path() + "/restored.db");
        RestoreCompany(first, restored);
        Connection connection;
        OpenCompanyAt(restored, connection);
        EXPECT_EQ(connection.Query("Select fCkName From tJXC_Ck Where fCkName='只此一仓'").Count(), 1u);
        return;
    }
    EXPECT_NO_THROW(CompanyBackups::RequireSoundDump(Q(first)));
    // cut off, it is no copy
    QFile cut(Q(second));
    ASSERT_TRUE(cut.resize(cut.size() / 2));
    EXPECT_THROW(CompanyBackups::RequireSoundDump(Q(second)), DatabaseError);
}

TEST_P(CompanyCopies, LeaveNothingWhereTheyCannotBeWritten) {
    std::ofstream(S(folder.path() + "/备份")) << "in the way";
    EXPECT_THROW(Keeper().BackUp(), DatabaseError);
    ASSERT_TRUE(QFile::remove(folder.path() + "/备份"));
    {
        Connection connection;
        OpenCompanyAt(company->Address(), connection);
        connection.EngineInUse().ExecuteScript("drop table tJXC_InvSys"); // no company any more
    }
    EXPECT_THROW(Keeper().BackUp(), DatabaseError);
    EXPECT_EQ(Files().filter(QRegularExpression("\\.(db|dump|part)$")), QStringList{});
}

} // namespace

} // namespace jxc::test
