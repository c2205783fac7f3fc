// A month's end: statistics rebuilt, the month closed and taken back, each as ratio to the bare statements that write the
// same rows, on both engines; how it grows with the lines, and that closed months cost nothing. And the memory at its peak.
//
//     build/release/bench/jxc_bench_close [LINES]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <sys/resource.h>
#include <unistd.h>

#include "bench/close_floor.h"
#include "close/frmJz_Step.h"
#include "close/frmJz_unStep.h"
#include "close/rebuild_statistics.h"
#include "controls/gestures.h"
#include "controls/scripted_view.h"
#include "database/engine.h"
#include "database/schema.h"
#include "session/company/create_tables.h"
#include "session/period.h"
#include "session/session.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

constexpr int kLines = 1'000'000;
constexpr int kRounds = 5;

double SecondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> figures) {
    std::ranges::sort(figures);
    return figures[figures.size() / 2];
}

// The screen's own road, from the start button to the new month.
void Press(ClosingScreen& screen, ScriptedView& view) {
    const auto month = session.SysDate;
    screen.Open();
    Click(screen, screen.cmdStep);
    if (session.SysDate == month)
        throw std::runtime_error(view.boxes.back().text);
}

struct Figures {
    std::vector<double> rebuild, rebuildFloor, close, closeFloor, reverse, reverseFloor;
};

void Tell(const char* what, const std::vector<double>& system, const std::vector<double>& floor) {
    std::printf("  %-10s median %8.3f s, bare statements %8.3f s, ratio %.2f\n", what, Median(system),
                Median(floor), Median(system) / Median(floor));
}

// The two in turn, each on the state that the other left.
Figures Measure(ScriptedView& view) {
    frmJz_Step close;
    frmJz_unStep reverse;
    Figures figures;
    const Date end = *session.PeriodEnd;
    for (int round = 0; round < kRounds; ++round) {
        figures.rebuildFloor.push_back(SecondsOf(RebuildFloor));
        figures.rebuild.push_back(SecondsOf([&] {
            if (!RebuildStockStatistics(end, ""))
                throw std::runtime_error(view.boxes.back().text);
        }));
        figures.closeFloor.push_back(SecondsOf(CloseFloor));
        LoadPeriodSettings();
        figures.reverse.push_back(SecondsOf([&] { Press(reverse, view); }));
        figures.close.push_back(SecondsOf([&] { Press(close, view); }));
        figures.reverseFloor.push_back(SecondsOf(ReverseFloor));
        LoadPeriodSettings();
    }
    return figures;
}

// The most that the process has held so far, in megabytes.
long PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

void MeasureCompany(const char* engine, int lines, int closedMonths) {
    FillMonth(lines);
    FillClosedMonths(closedMonths);
    Conn().EngineInUse().ExecuteScript("analyze");
    LoadPeriodSettings();
    ScriptedView view;
    const ViewInUse inUse(view);
    // Nobody refreshes behind the last notice here: the rebuild is measured for itself.
    view.AnswerWith([](const MessageBox& box) {
        return box.buttons.front() == BoxButton::Yes ? BoxButton::No : box.buttons.front();
    });
    const Figures figures = Measure(view);
    std::printf("%s, %d lines, %d closed months\n", engine, lines, closedMonths);
    Tell("rebuild", figures.rebuild, figures.rebuildFloor);
    Tell("close", figures.close, figures.closeFloor);
    Tell("reverse", figures.reverse, figures.reverseFloor);
    std::printf("  peak memory so far %ld MB\n", PeakMemory());
    std::fflush(stdout);
}

void OnSqlite(int lines, int closedMonths) {
    const std::string file =
        (std::filesystem::temp_directory_path() / ("jxc_close_" + std::to_string(getpid()) + ".db")).string();
    session.SQLData = 0;
    session.UserPath = file;
    CreateCompanyTables(0, *session.Conn, file);
    MeasureCompany("SQLite", lines, closedMonths);
    Conn().Close();
    for (const char* ending : {"", "-wal", "-shm"})
        std::filesystem::remove(file + ending);
}

void OnPostgres(int lines, int closedMonths) {
    const test::ServerDatabase database("jxc_close_" + std::to_string(getpid()));
    session.SQLData = 1;
    session.UserPath = test::TestServer();
    session.Default = database.Name();
    CreateCompanyTables(1, *session.Conn, session.UserPath, "", "", session.Default);
    MeasureCompany("PostgreSQL", lines, closedMonths);
    Conn().Close();
}

int Main(int argc, char** argv) {
    const int lines = argc > 1 ? std::atoi(argv[1]) : kLines;
    FixToday(MakeDate(2026, 12, 1));
    session.Conn = std::make_unique<Connection>();
    session.UserName = "王芳";
    const bool server = !test::TestServer().empty();
    if (!server)
        std::printf("PostgreSQL is skipped: JXC_TEST_PG names no server.\n");
    for (const auto& [part, months] : {std::pair{1, 0}, {10, 0}, {10, 36}}) {
        OnSqlite(lines / part, months);
        if (server)
            OnPostgres(lines / part, months);
    }
    return 0;
}

} // namespace

} // namespace jxc::bench

int main(int argc, char** argv) {
    try {
        return jxc::bench::Main(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
