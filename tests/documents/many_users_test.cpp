// Several programs on one company at once, and programs killed at any moment: nothing is lost, counted twice
// or half done. JXC_LONG=1 runs the large sizes (200 documents a program, 200 kills).
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

#include "base/text.h"
#include "host/check.h"
#include "host/company_address.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

namespace {

bool LongRun() {
    return std::getenv("JXC_LONG") != nullptr;
}

// One of several documents on the same products; receipts mostly, so that stock grows.
DocumentInput NthDocument(int n) {
    DocumentInput input = TypicalDocument(n % 3 == 2 ? 2 : 1);
    input.lines = {{"CPU002", 1.0 + n % 4, 600}, {"MEM002", 2, 170}, {"CPF004", 5, 6.5}};
    return input;
}

// A number that another program took meanwhile is refused; the clerk then takes the next.
int SaveWithPatience(Clerk& clerk, const DocumentInput& input) {
    for (int attempt = 0; attempt < 500; ++attempt) {
        if (const int key = clerk.Save(input); key > 0)
            return key;
        if (clerk.LastBox() != "该[单号]已有存在!")
            break;
    }
    return 0;
}

// Counters of five digits: a day may have more than 999 documents here.
void WidenNumbers(const std::string& company) {
    ExecuteOnCompany(company, "Update tJXC_InvSet Set fSetAutoNo='YYYYMMDDRKXXXXX' Where fSetNo=1");
    ExecuteOnCompany(company, "Update tJXC_InvSet Set fSetAutoNo='YYYYMMDDCKXXXXX' Where fSetNo=2");
}

// Runs `work` in a process of its own, which ends with its result; `report` takes what it writes.
pid_t Start(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        bool done = false;
        try {
            done = work();
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
        _exit(done ? 0 : 1);
    }
    return child;
}

bool WorkThrough(const SampleCompany& company, int documents) {
    company.SignedIn();
    const OpenCompany open(company.Address());
    Clerk clerk;
    for (int n = 0; n < documents; ++n) {
        const DocumentInput input = NthDocument(n);
        const int key = SaveWithPatience(clerk, input);
        if (key == 0 || !clerk.Approve(input.type, key)) {
            std::fprintf(stderr, "document %d: %s\n", n, clerk.LastBox().c_str());
            return false;
        }
    }
    return true;
}

class ManyUsers : public OnSampleCompany {
  protected:
    void Begin() override { WidenNumbers(company->Address()); }
};
ON_BOTH_ENGINES(ManyUsers);

TEST_P(ManyUsers, AllDocumentsEndApprovedAndCounted) {
    for (const int programs : {2, 8}) {
        const int documents = LongRun() ? 200 : 12;
        const int before =
            static_cast<int>(QueryCompany(company->Address(), "select fInvID from tJXC_CkDj01").Count());
        std::vector<pid_t> children;
        for (int i = 0; i < programs; ++i)
            children.push_back(Start([&] { return WorkThrough(*company, documents); }));
        for (const pid_t child : children) {
            int status = 0;
            waitpid(child, &status, 0);
            EXPECT_EQ(status, 0);
        }
        const OpenCompany open(company->Address());
        EXPECT_EQ(One("select count(*) from tJXC_CkDj01 where fInvSHR<>''"),
                  std::to_string(before + programs * documents));
        EXPECT_EQ(CheckCompany(), Lines{});
    }
}

// Saves and approves documents, telling each step that it was told, until it is killed.
void WorkUntilKilled(const SampleCompany& company, int pipe) {
    company.SignedIn();
    const OpenCompany open(company.Address());
    Clerk clerk;
    for (int n = 0;; ++n) {
        const DocumentInput input = NthDocument(n);
        const int key = SaveWithPatience(clerk, input);
        const std::string saved = "S" + std::to_string(key) + "\n";
        if (key == 0 || write(pipe, saved.data(), saved.size()) < 0)
            _exit(1);
        if (!clerk.Approve(input.type, key))
            _exit(1);
        const std::string approved = "A" + std::to_string(key) + "\n";
        if (write(pipe, approved.data(), approved.size()) < 0)
            _exit(1);
    }
}

std::vector<std::string> LinesOf(int pipe) {
    std::string text;
    char buffer[4096];
    for (ssize_t got = 0; (got = read(pipe, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<size_t>(got));
    std::vector<std::string> lines = Split(text, '\n');
    lines.pop_back(); // what stands behind the last line end, a report cut off
    return lines;
}

// Until the program at the other end has reported something: a machine may be slow to begin.
void AwaitLine(int end) {
    pollfd waited{end, POLLIN, 0};
    ASSERT_EQ(poll(&waited, 1, 60000), 1);
}

TEST_P(ManyUsers, AKilledProgramLeavesWhatItReported) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> milliseconds(20, 250);
    int reported = 0;
    const int kills = LongRun() ? 200 : 12;
    for (int round = 0; round < kills; ++round) {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = Start([&] {
            close(ends[0]);
            WorkUntilKilled(*company, ends[1]);
            return false;
        });
        close(ends[1]);
        if (round % 2 == 0) // the other rounds also meet it while it starts
            AwaitLine(ends[0]);
        usleep(static_cast<useconds_t>(milliseconds(random)) * 1000);
        ASSERT_EQ(waitpid(child, nullptr, WNOHANG), 0) << "the program ended by itself";
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::vector<std::string> steps = LinesOf(ends[0]);
        close(ends[0]);
        const OpenCompany open(company->Address());
        ASSERT_EQ(CheckCompany(), Lines{}) << "round " << round;
        for (const std::string& step : steps) {
            const std::string approver =
                One("select fInvSHR from tJXC_CkDj01 where fInvID=" + step.substr(1));
            if (step[0] == 'A')
                ASSERT_EQ(approver, "王芳") << step;
            else
                ASSERT_NE(approver, "0 rows") << step;
        }
        reported += static_cast<int>(steps.size());
    }
    EXPECT_GE(reported, kills / 2); // the kills met real work
}

} // namespace

} // namespace jxc::test
