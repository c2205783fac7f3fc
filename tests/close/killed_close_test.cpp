// The program dies in the middle of a close or of its reversal, a hundred times on each engine: the month is open whole or
// closed whole.
#include <chrono>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "close/closing_screen.h"
#include "controls/gestures.h"
#include "host/check.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "session/session.h"
#include "tests/close/closing.h"
#include "tests/support/stock_model.h"

namespace jxc::test {

namespace {

using Clock = std::chrono::steady_clock;
constexpr int kKills = 100;

class KilledClose : public OnSampleCompany {
  protected:
    void Begin() override {
        RegisterAllScreens();
        const OpenCompany open(company->Address());
        Clerk clerk;
        const int key =
            clerk.Save({.type = 1, .customer = "G001", .lines = {{"CPU002", 90, 600}, {"MEM002", 90, 170}}});
        ASSERT_TRUE(clerk.Approve(1, key));
        for (const int type : {1, 2, -2, 3, 4, 6, 31, 32}) {
            const int made = clerk.Save(TypicalDocument(type));
            ASSERT_TRUE(clerk.Approve(type, made)) << clerk.LastBox();
        }
        FixToday(MakeDate(2026, 12, 1));
    }
    void TearDown() override {
        FixToday(std::nullopt);
        OnSampleCompany::TearDown();
    }

    // Another program closes the month, or takes the close back. It dies when it has been at it for so long; without a
    // time it may finish. How long it lived from its start on.
    Clock::duration Run(const char* screen, std::optional<Clock::duration> until) {
        int ready[2];
        EXPECT_EQ(pipe(ready), 0);
        const pid_t child = fork();
        if (child == 0)
            Work(screen, ready[1]);
        close(ready[1]);
        char byte = 0;
        EXPECT_EQ(read(ready[0], &byte, 1), 1);
        const auto begin = Clock::now();
        close(ready[0]);
        if (until) {
            std::this_thread::sleep_for(*until);
            kill(child, SIGKILL);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return Clock::now() - begin;
    }

    // What people would find: the open book and the closed one.
    Lines State() const {
        const OpenCompany open(company->Address());
        if (IsServer()) { // it ends what was sent before its client died
            const std::string others =
                "select count(*) from pg_stat_activity where datname='" + company->Database() + "'";
            while (One(others) != "1")
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        Lines state = OpenDocuments();
        for (const char* table : {"tJXC_CkDj_Bak01", "tJXC_CkDj_Bak02", "tJXC_CkTj_Bak"})
            state.push_back(std::string(table) + " " + One(std::string("select count(*) from ") + table));
        EXPECT_EQ(CheckCompany(), Lines{});
        return state;
    }

  private:
    bool IsServer() const { return GetParam() == EngineKind::Postgres; }

    [[noreturn]] void Work(const char* name, int ready) const {
        try {
            company->SignedIn();
            const OpenCompany open(company->Address());
            ScriptedView view;
            const ViewInUse inUse(view);
            view.AnswerWith([](const MessageBox& box) {
                return box.buttons.front() == BoxButton::Yes ? BoxButton::No : box.buttons.front();
            });
            view.OnScreen(name, [&](Screen& screen) {
                const ssize_t told = write(ready, "+", 1);
                Click(screen, dynamic_cast<ClosingScreen&>(screen).cmdStep);
                _exit(told == 1 ? 0 : 1);
            });
            ShowModal(ScreenNamed(name));
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
        _exit(1);
    }
};
ON_BOTH_ENGINES(KilledClose);

TEST_P(KilledClose, LeavesTheMonthOpenWholeOrClosedWhole) {
    const Lines open = State();
    const auto whole = Run("frmJz_Step", std::nullopt);
    const Lines closed = State();
    ASSERT_NE(closed, open);
    Run("frmJz_unStep", std::nullopt);
    ASSERT_EQ(Changes(open, State()), Lines{});
    const unsigned seed = SeedOfRun();
    std::mt19937 random(seed);
    bool isClosed = false;
    int moved = 0;
    for (int run = 0; run < kKills; ++run) {
        SCOPED_TRACE("JXC_SEED=" + std::to_string(seed) + " run " + std::to_string(run));
        std::uniform_int_distribution<Clock::rep> moment(0, whole.count());
        Run(isClosed ? "frmJz_unStep" : "frmJz_Step", Clock::duration(moment(random)));
        const Lines state = State();
        const bool is = state == closed;
        ASSERT_TRUE(is || state == open) << testing::PrintToString(Changes(isClosed ? closed : open, state));
        moved += is != isClosed;
        isClosed = is;
    }
    EXPECT_GT(moved, 0);      // some came through,
    EXPECT_LT(moved, kKills); // and some did not
}

} // namespace

} // namespace jxc::test
