// Measures the road that matters most, saving and approving a receipt, against a hand-written floor, and
// prints a table of the ratios.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "bench/result_table.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

int NumberFrom(const char* variable, int otherwise, int least, int most) {
    const char* text = std::getenv(variable);
    if (!text)
        return otherwise;
    char* end = nullptr;
    const long number = std::strtol(text, &end, 10);
    if (end == text || *end != '\0' || number < least || number > most)
        throw std::runtime_error(std::string(variable) + " must be a number from " + std::to_string(least) +
                                 " to " + std::to_string(most));
    return static_cast<int>(number);
}

// One iteration is one round. Reported is the system's time on the empty book; the table tells the rest.
void RunRounds(benchmark::State& state, const Options& options, EngineKind kind, std::string& table) {
    try {
        ReceiptRounds rounds(options, kind);
        for ([[maybe_unused]] auto _ : state)
            state.SetIterationTime(rounds.WriteRound());
        state.SetItemsProcessed(state.iterations() * options.documents);
        for (const Book* book : {&rounds.Empty(), &rounds.Full()})
            if (const std::string difference = book->Difference(); !difference.empty())
                throw std::runtime_error("system and floor wrote different rows: " + difference);
        table += EngineTable(options, rounds);
    } catch (const std::exception& error) {
        state.SkipWithError(error.what());
    }
}

int Main(int argc, char** argv) {
    const Options options = ReadOptions();
    std::string table;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    const auto add = [&](const char* name, EngineKind kind) {
        const auto run = [&, kind](benchmark::State& state) { RunRounds(state, options, kind, table); };
        benchmark::RegisterBenchmark(name, run)
            ->Iterations(options.rounds)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("receipt/sqlite", EngineKind::Sqlite);
    if (test::TestServer().empty())
        std::printf("PostgreSQL is skipped: JXC_TEST_PG names no server.\n");
    else
        add("receipt/postgresql", EngineKind::Postgres);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (table.empty())
        return 1;
    std::printf("\n%s%s", TableHead(options).c_str(), table.c_str());
    return 0;
}

} // namespace

Options ReadOptions() {
    Options options;
    options.historyLines = NumberFrom("JXC_BENCH_LINES", options.historyLines, 10, 10'000'000);
    options.rounds = NumberFrom("JXC_BENCH_ROUNDS", options.rounds, 1, 365);
    options.documents = NumberFrom("JXC_BENCH_DOCUMENTS", options.documents, 1, kMostInADay);
    options.trail = NumberFrom("JXC_BENCH_TRAIL", 1, 0, 1) == 1;
    const char* folder = std::getenv("JXC_BENCH_FOLDER");
    options.folder = folder ? folder : std::filesystem::temp_directory_path().string();
    return options;
}

} // namespace jxc::bench

int main(int argc, char** argv) {
    try {
        return jxc::bench::Main(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
