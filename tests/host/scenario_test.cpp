// Every scenario of tests/scenarios, on both engines: a day's work in the vocabulary of the screens, with the
// messages and rows that must come of it. Afterwards the books must be consistent.
#include <filesystem>

#include <gtest/gtest.h>

#include "host/check.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "robot/scenario.h"
#include "tests/support/on_sample_company.h"
#include "tests/support/scenario_statements.h"

namespace jxc::test {

namespace {

struct Play {
    EngineKind engine;
    std::filesystem::path file;
};

std::vector<Play> AllPlays() {
    std::vector<Play> plays;
    for (const auto& entry : std::filesystem::directory_iterator(JXC_SCENARIOS))
        if (entry.path().extension() == ".scn")
            for (const EngineKind engine : {EngineKind::Sqlite, EngineKind::Postgres})
                plays.push_back({engine, entry.path()});
    std::sort(plays.begin(), plays.end(), [](const Play& a, const Play& b) {
        return std::tie(a.file, a.engine) < std::tie(b.file, b.engine);
    });
    return plays;
}

class Scenarios : public testing::TestWithParam<Play> {};

TEST_P(Scenarios, ComeOutAsWritten) {
    if (const std::string reason = WhyUnavailable(GetParam().engine); !reason.empty())
        GTEST_SKIP() << reason;
    RegisterAllScreens();
    const SampleCompany company(GetParam().engine);
    lzJxc control = company.SignedIn();
    std::string told;
    Scenario scenario(
        GetParam().file.filename().string(), FileText(GetParam().file),
        [&](const std::string& text) { return QueryCompany(company.Address(), ScenarioStatement(text)); },
        [&](const std::string& sql) { ExecuteOnCompany(company.Address(), sql); },
        [&](const std::string& line) { told += line + "\n"; },
        ScenarioVerbs(FileText(std::filesystem::path(JXC_SCENARIOS) / "verbs.txt")));
    for (const std::string& failure : PlayScenario(control, scenario))
        ADD_FAILURE() << failure;
    const OpenCompany open(company.Address());
    EXPECT_EQ(CheckCompany(), std::vector<std::string>{}) << told;
}

INSTANTIATE_TEST_SUITE_P(Corpus, Scenarios, testing::ValuesIn(AllPlays()), [](const auto& play) {
    return play.param.file.stem().string() +
           (play.param.engine == EngineKind::Sqlite ? "_Sqlite" : "_Postgres");
});

} // namespace

} // namespace jxc::test
