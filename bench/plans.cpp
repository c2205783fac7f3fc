// A purchase plan of 20,000 products: what working it out costs a person, first and again, as ratio to the bare
// statements that read the same rows, on both engines. Each product lies in two warehouses, is sold by three order lines and bought by two.
//
//     build/release/bench/jxc_bench_plans [PRODUCTS]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <unistd.h>

#include "controls/scripted_view.h"
#include "database/engine.h"
#include "database/schema.h"
#include "plans/frmJh02.h"
#include "session/company/create_tables.h"
#include "session/session.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

constexpr int kProducts = 20'000;
constexpr int kRounds = 11;

double MillisecondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

void FillCompany(int products) {
    Transaction transaction(Conn());
    const auto insert = [](const std::string& text) { Conn().Execute("Insert Into " + text); };
    for (const char* warehouse : {"A", "B"})
        insert(std::string("tJXC_Ck (fCkCode,fCkName) Values ('") + warehouse + "','" + warehouse + "')");
    for (int product = 2; product < products + 2; ++product) {
        const std::string id = std::to_string(product);
        insert(
            "tJXC_Cp (fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpSlMin,fCpSlMax,fCpPrice0,fKhID,fKhName,fCpFlag) "
            "Values (" +
            id + ",'P" + std::to_string(1'000'000 + product) + "','电缆','M5','个',10,100,3.5,2,'甲',0)");
        for (const char* warehouse : {"A", "B"})
            insert("tJXC_CkTj (fCpID,fCkName,fKcSl) Values (" + id + ",'" + warehouse + "',3)");
    }
    // Orders of ten lines; each product is sold thrice and bought twice.
    int key = 2;
    for (const int type : {24, 24, 24, 23, 23})
        for (int product = 2; product < products + 2; ++key) {
            const std::string id = std::to_string(key);
            insert("tJXC_CkHt01 (fInvID,fInvNo,fInvType,fInvSHR) Values (" + id + ",'N" + id + "'," +
                   std::to_string(type) + ",'')");
            for (int line = 1; line <= 10 && product < products + 2; ++line, ++product)
                insert("tJXC_CkHt02 (fInvID,fInvNo,fInv1,fRowID,fCpID,fInvSL,fInvSL2) Values (" + id + ",'N" +
                       id + "',0," + std::to_string(line) + "," + std::to_string(product) + ",5,5)");
        }
    transaction.Commit();
}

void Measure(const char* engine, int products) {
    FillCompany(products);
    Conn().EngineInUse().ExecuteScript("analyze");
    ScriptedView view;
    const ViewInUse inUse(view);
    frmJh02 screen;
    const double first = MillisecondsOf([&] { screen.Open(); });
    std::printf("%s, %d products, %d rows planned: the screen opened for the first time %.1f ms\n", engine,
                products, screen.Grid1.RowCount(), first);
    std::vector<double> plans, bare;
    for (int round = 0; round < kRounds; ++round) {
        plans.push_back(MillisecondsOf([&] { ComputePlan(screen); }));
        bare.push_back(MillisecondsOf([&] {
            static_cast<void>(Conn().Query(PlanStatement(screen)));
            static_cast<void>(Conn().Query(OpenPurchasesStatement()));
        }));
    }
    std::ranges::sort(plans);
    std::ranges::sort(bare);
    std::printf("  %-20s median %8.1f ms, slowest %8.1f ms\n  %-20s median %8.1f ms, ratio %.2f\n",
                "the plan", plans[kRounds / 2], plans.back(), "(bare statements)", bare[kRounds / 2],
                plans[kRounds / 2] / bare[kRounds / 2]);
}

int Main(int argc, char** argv) {
    const int products = argc > 1 ? std::atoi(argv[1]) : kProducts;
    session.Conn = std::make_unique<Connection>();
    const std::string file =
        (std::filesystem::temp_directory_path() / ("jxc_plans_" + std::to_string(getpid()) + ".db")).string();
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
    const test::ServerDatabase database("jxc_plans_" + std::to_string(getpid()));
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
