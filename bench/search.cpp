// A key of search as you type at 100,000 products: the time a key costs a person, and its ratio to the bare statement that
// reads one product by its code, on both engines; with the time of the first key, which builds the index. And the
// products' screen with all of them.
//
//     build/release/bench/jxc_bench_search [PRODUCTS]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

#include <unistd.h>

#include "controls/scripted_view.h"
#include "database/engine.h"
#include "database/schema.h"
#include "host/company/default_dictionary.h"
#include "master/frmCp.h"
#include "session/lookups/product_index.h"
#include "session/session.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

constexpr int kProducts = 100'000;
constexpr int kRounds = 200;
constexpr int kListRounds = 11;

double MillisecondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

std::string CodeOf(int product) {
    return "P" + std::to_string(1'000'000 + product);
}

void FillProducts(Connection& connection, int products) {
    static const std::vector<std::string> words{"螺丝",   "钢板", "处理器", "内存条", "重庆", "长",
                                                "不锈钢", "六角", "电缆",   "显示器", "键盘", "开关",
                                                "单相",   "电机", "轴承",   "阀门"};
    std::mt19937 random(20261105U);
    Transaction transaction(connection);
    for (int i = 0; i < products; ++i) {
        const std::string name =
            words[random() % words.size()] + words[random() % words.size()] + words[random() % words.size()];
        connection.Execute(
            "Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpBarCode,fCpPrice3,fCpFlag) "
            "Values (" +
            std::to_string(i + 2) + ",'" + CodeOf(i) + "','" + name + "','M" +
            std::to_string(random() % 100) + "x" + std::to_string(random() % 500) + "','个','69" +
            std::to_string(10'000'000'000LL + i * 7919LL) + "'," + std::to_string(1 + random() % 900) +
            ",0)");
        if (i % 10 == 0)
            connection.Execute("Insert Into tJXC_CkTj (fCpID,fCkName,fKcSl) Values (" +
                               std::to_string(i + 2) + ",'A',5)");
    }
    connection.Execute("Insert Into tJXC_Ck (fCkCode,fCkName,fCkType2,fCkFlag) Values ('01','A',0,0)");
    transaction.Commit();
}

// The middle of `rounds` runs, and the slowest.
std::pair<double, double> TimesOf(const std::function<void()>& work) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round)
        times.push_back(MillisecondsOf(work));
    std::ranges::sort(times);
    return {times[times.size() / 2], times.back()};
}

// The products' screen opened on all of them, and its query by a pattern, against the bare statement with the same rows.
void MeasureList() {
    ScriptedView view;
    const ViewInUse inUse(view);
    frmCp screen;
    const auto shown = [&] { std::printf("%d rows", screen.Grid1.RowCount()); };
    const auto measure = [&](const char* what, const std::string& where, const std::function<void()>& work) {
        std::vector<double> times, bare;
        for (int round = 0; round < kListRounds; ++round) {
            times.push_back(MillisecondsOf(work));
            bare.push_back(MillisecondsOf([&] {
                static_cast<void>(Conn().Query("Select " + screen.columns + ",fCpID from tJXC_Cp" + where +
                                               " order by fCpCode"));
            }));
        }
        std::ranges::sort(times);
        std::ranges::sort(bare);
        std::printf("  %-22s %8.1f %8.1f %8.2f   bare %.1f, ", what, times[kListRounds / 2], times.back(),
                    times[kListRounds / 2] / bare[kListRounds / 2], bare[kListRounds / 2]);
        shown();
        std::printf("\n");
    };
    measure("(the list opened)", "", [&] { screen.Open(); });
    screen.chkCpName2.value = true;
    screen.txtCpName2.text = "不锈钢六角";
    measure("(a pattern queried)", " Where (fCpName Like '%不锈钢六角%' Or fCpGG Like '%不锈钢六角%')",
            [&] { QueryProducts(screen); });
}

void Measure(const char* engine, int products) {
    FillColumnDictionary(Conn());
    FillProducts(Conn(), products);
    Conn().EngineInUse().ExecuteScript("analyze");
    const double first = MillisecondsOf([] { static_cast<void>(SuggestProducts("p", "A", "fCpPrice3")); });
    std::printf("%s, %d products: the first key %.0f ms\n", engine, products, first);
    std::mt19937 random(7U);
    const auto [bare, bareMost] = TimesOf([&] {
        static_cast<void>(Conn().Query("select fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpPrice3 from tJXC_Cp "
                                       "Where fCpFlag<>1 And fCpCode = '" +
                                       CodeOf(static_cast<int>(random() % kProducts)) + "'"));
    });
    std::printf("  %-22s %8s %8s %8s\n", "typed", "median", "slowest", "ratio");
    std::printf("  %-22s %8.3f %8.3f %8.1f\n", "(bare statement)", bare, bareMost, 1.0);
    for (const char* typed :
         {"p", "P10", "P1054321", "钢", "不锈钢六角", "m5", "lszl", "cq", "6910", "没有这个"}) {
        const auto [median, slowest] =
            TimesOf([&] { static_cast<void>(SuggestProducts(typed, "A", "fCpPrice3")); });
        std::printf("  %-22s %8.3f %8.3f %8.1f\n", typed, median, slowest, median / bare);
    }
    int turn = 0;
    const auto [changed, changedMost] = TimesOf([&] {
        Conn().Execute("Update tJXC_Cp Set fCpGG='N" + std::to_string(++turn) + "' Where fCpID=77");
        static_cast<void>(SuggestProducts("P10", "A", "fCpPrice3"));
    });
    std::printf("  %-22s %8.3f %8.3f %8.1f   with the change itself\n", "P10, a row changed", changed,
                changedMost, changed / bare);
    MeasureList();
}

int Main(int argc, char** argv) {
    const int products = argc > 1 ? std::atoi(argv[1]) : kProducts;
    session.Conn = std::make_unique<Connection>();
    const std::string file =
        (std::filesystem::temp_directory_path() / ("jxc_search_" + std::to_string(getpid()) + ".db"))
            .string();
    session.UserPath = file;
    CreateCompanyTables(0, *session.Conn, file);
    Measure("SQLite", products);
    Conn().Close();
    for (const char* ending : {"", "-wal", "-shm"})
        std::filesystem::remove(file + ending);
    if (test::TestServer().empty()) {
        std::printf("PostgreSQL is skipped: JXC_TEST_PG names no server.\n");
        return 0;
    }
    const test::ServerDatabase database("jxc_search_" + std::to_string(getpid()));
    session.SQLData = 1;
    session.UserPath = test::TestServer();
    session.Default = database.Name();
    CreateCompanyTables(1, *session.Conn, session.UserPath, "", "", session.Default);
    Measure("PostgreSQL", products);
    Conn().Close();
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
