// Loading the lines of a stored document into a new one: the time a person waits, and its ratio to the bare statement that
// reads the lines, for 50, 500 and 5,000 lines on both engines; in place of the lines that are there, and added to them.
// JXC_BENCH_ROUNDS sets the rounds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <unistd.h>

#include "controls/scripted_view.h"
#include "database/engine.h"
#include "documents/load_lines.h"
#include "host/company/create_company.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "session/session.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

constexpr int kFirstProduct = 10000;
constexpr int kSizes[] = {50, 500, 5000};

double MillisecondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double MedianOf(int rounds, const std::function<void()>& work) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(MillisecondsOf(work));
    std::ranges::sort(times);
    return times[times.size() / 2];
}

std::string NumberOf(int lines) {
    return "LOAD" + std::to_string(lines);
}

// A receipt of so many lines, its key their number; every second product is in stock.
void WriteDocument(int lines) {
    const std::string key = std::to_string(lines);
    Conn().Execute("Insert Into tJXC_CkDj01 (fInvID,fInvNo,fInvType,fInvDate,fInvSHR,fKhID,fFlag) Values (" +
                   key + ",'" + NumberOf(lines) + "',1,'2026-11-05','',0,0)");
    for (int row = 1; row <= lines; ++row)
        Conn().Execute(
            "Insert Into tJXC_CkDj02 (fInv1,fRowID,fInvID,fCpID,fInvSL,fInvDJ,fInvJE,fInvTaxRate,fInvOther1,"
            "fInvOther2) Values (0," +
            std::to_string(row) + "," + key + "," + std::to_string(kFirstProduct + row) +
            ",3,2.5,7.5,0,'','')");
}

void FillCompany() {
    Transaction transaction(Conn());
    for (int n = 1; n <= kSizes[std::size(kSizes) - 1]; ++n) {
        const std::string product = std::to_string(kFirstProduct + n);
        Conn().Execute("Insert Into tJXC_Cp "
                       "(fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpPrice0,fCpPrice1,fCpPrice2,fCpPrice3,"
                       "fCpFlag) Values (" +
                       product + ",'P" + product + "','产品','','个',2,3,4,5,0)");
        if (n % 2 == 0)
            Conn().Execute("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (" + product + ",'总部仓',5)");
    }
    for (const int lines : kSizes)
        WriteDocument(lines);
    transaction.Commit();
}

void MeasureLoads(frmDj02& s, ScriptedView& view, int rounds) {
    s.cboCkName.SetText("总部仓");
    s.cboInvType2.items = {"1  入库单"};
    s.cboInvType2.SetIndex(0);
    std::printf("  %6s %10s %10s %6s %10s %6s\n", "lines", "statement", "replaced", "ratio", "added",
                "ratio");
    for (const int lines : kSizes) {
        s.txtNo2.text = NumberOf(lines);
        const auto load = [&] {
            if (!LoadFromDocument(s) || s.Grid2.RowCount() != lines)
                throw std::runtime_error("nothing was loaded");
        };
        const double bare = MedianOf(rounds, [&] {
            static_cast<void>(Conn().Query("Select "
                                           "b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,a.fInvSl,a.fKhID,a.fCpID,a."
                                           "fInvDj,a.fInvTaxRate,a.fInvOther1,"
                                           "a.fInvOther2,a.fInvSL2 from tJXC_CkDj02 a Left Join tJXC_Cp b On "
                                           "a.fCpID =b.fCpID  Where a.fInvID = " +
                                           std::to_string(lines) + " Order By a.fRowID"));
        });
        view.AnswerWith([](const MessageBox&) { return BoxButton::No; });
        const double replaced = MedianOf(rounds, load);
        view.AnswerWith([](const MessageBox&) { return BoxButton::Yes; });
        const double added = MedianOf(rounds, load);
        std::printf("  %6d %7.2f ms %7.2f ms %6.1f %7.2f ms %6.1f\n", lines, bare, replaced, replaced / bare,
                    added, added / bare);
    }
}

void Measure(const char* engine, const std::string& address, int rounds) {
    CreateCompany(DialectOf(address), address, CompanyKind::Sample);
    const OpenCompany open(address);
    FillCompany();
    Conn().EngineInUse().ExecuteScript("analyze");
    std::printf("%s, median of %d rounds\n", engine, rounds);
    ScriptedView view;
    const ViewInUse inUse(view);
    auto& s = dynamic_cast<frmDj02&>(ScreenNamed("frmDj02"));
    s.Action = 1;
    s.invType = DocType::Receipt;
    std::exception_ptr failed;
    view.OnScreen(s.name, [&](Screen&) {
        try {
            MeasureLoads(s, view, rounds);
        } catch (...) {
            failed = std::current_exception();
        }
    });
    ShowModal(s);
    if (failed)
        std::rethrow_exception(failed);
}

int Main() {
    RegisterAllScreens();
    const char* given = std::getenv("JXC_BENCH_ROUNDS");
    const int rounds = given ? std::max(1, std::atoi(given)) : 11;
    lzJxc control;
    control.UserName("王芳");
    control.ZgName("王芳");
    const std::string name = "jxc_load_" + std::to_string(getpid());
    const std::string file = (std::filesystem::temp_directory_path() / (name + ".db")).string();
    Measure("SQLite", file, rounds);
    for (const char* ending : {"", "-wal", "-shm"})
        std::filesystem::remove(file + ending);
    if (test::TestServer().empty()) {
        std::printf("PostgreSQL is skipped: JXC_TEST_PG names no server.\n");
        return 0;
    }
    const test::ServerDatabase database(name);
    Measure("PostgreSQL", database.Address(), rounds);
    return 0;
}

} // namespace

} // namespace jxc::bench

int main() {
    try {
        return jxc::bench::Main();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
