// Documents of 10 and of 5,000 lines, of four types, against the floor on SQLite: the seconds of the save
// command for saving, approval and reversal, entry and loading of the screen apart. JXC_BENCH_ROUNDS sets the
// rounds. With JXC_TEST_PG, the URI of a maintenance database, also the first documents of companies made on
// that server the moment before, of which its statistics know nothing.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>

#include <unistd.h>

#include "base/text.h"
#include "bench/large_floor.h"
#include "controls/gestures.h"
#include "controls/scripted_view.h"
#include "database/recordset.h"
#include "documents/frmDj02.h"
#include "host/company/create_company.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "robot/clerk.h"
#include "session/session.h"
#include "tests/support/test_server.h"

namespace jxc::bench {

namespace {

constexpr int kFirstProduct = 10000;
constexpr int kMostLines = 5000;

double Now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::string ProductCode(int n) {
    return "P" + std::to_string(kFirstProduct + n);
}

// A company with products enough for the longest document.
void MakeCompany(const std::string& address) {
    CreateCompany(DialectOf(address), address, CompanyKind::Sample);
    const OpenCompany open(address);
    Transaction transaction(Conn());
    for (int n = 0; n < kMostLines; ++n)
        Conn().Execute("Insert Into tJXC_Cp "
                       "(fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpPrice0,fCpPrice1,fCpPrice2,fCpPrice3,"
                       "fCpFlag) Values (" +
                       std::to_string(kFirstProduct + n) + ",'" + ProductCode(n) +
                       "','产品','','个',2,3,4,5,0)");
    transaction.Commit();
}

LargeDocument DocumentOf(int type, int lines, int round) {
    LargeDocument document;
    document.type = type;
    document.date = IsoText(Today());
    document.number = "B" + std::to_string(type) + "-" + std::to_string(lines) + "-" + std::to_string(round);
    document.warehouse = type == 31 ? "生产仓" : "总部仓";
    document.warehouse2 = type == 3 ? "零售门市" : type == 31 ? "总部仓" : "";
    document.finishedProduct = kFirstProduct;
    for (int n = 0; n < lines; ++n)
        document.lines.push_back({kFirstProduct + n, 1.0 + n % 7, 2.5});
    return document;
}

// The system's road: the same screen and save command as a person's.
class SystemRoad {
  public:
    SystemRoad() {
        view_.AnswerWith([](const MessageBox& box) {
            return box.text.find("打印") == std::string::npos ? box.buttons.front() : box.buttons.back();
        });
    }

    double Save(LargeDocument& document) {
        Enter(document);
        return seconds_;
    }
    double Run(const LargeDocument& document, std::int64_t key, DocAction action) {
        frmDj02& s = Prepared(action, document.type, static_cast<std::int32_t>(key));
        view_.OnScreen(s.name, [&](Screen&) { Click(s); });
        ShowModal(s);
        return seconds_;
    }

  private:
    static frmDj02& Prepared(DocAction action, int type, std::int32_t key) {
        auto& s = dynamic_cast<frmDj02&>(ScreenNamed("frmDj02"));
        s.Action = static_cast<int>(action);
        s.invType = s.OldType = type;
        s.oldInvID = key;
        s.JzState = 0;
        return s;
    }
    void Click(frmDj02& s) {
        const double start = Now();
        jxc::Click(s, s.cmdSave);
        seconds_ = Now() - start;
    }
    void Enter(LargeDocument& document) {
        frmDj02& s = Prepared(DocAction::New, document.type, 0);
        s.OldType = 0;
        view_.OnScreen(s.name, [&](Screen&) {
            FillHead(s, document);
            FillLines(s, document);
            Click(s);
        });
        ShowModal(s);
    }
    static void FillHead(frmDj02& s, LargeDocument& document) {
        DocumentInput head{
            .warehouse = document.warehouse, .warehouse2 = document.warehouse2, .number = document.number};
        if (s.type.HasCustomer())
            head.customer = document.type == DocType::Receipt ? "G001" : "X001";
        if (s.type.IsKit())
            head.product = ProductCode(0);
        EnterDocument(s, head);
        document.customer = s.CustomerId();
    }
    // Straight into the grid: typing is not what is measured.
    static void FillLines(frmDj02& s, const LargeDocument& document) {
        s.Grid2.Clear();
        s.Grid2.SetRowCount(static_cast<int>(document.lines.size()));
        int row = 0;
        for (const LargeLine& line : document.lines) {
            s.Grid2.FillCell(++row, line::kCode, "P" + std::to_string(line.product));
            s.Grid2.FillCell(row, line::kProduct, line.product);
            s.Grid2.FillCell(row, line::kQuantity, line.quantity);
            s.Grid2.FillCell(row, line::kPrice, line.price);
        }
        s.Grid2.Recalculate();
    }

    ScriptedView view_;
    ViewInUse inUse_{view_};
    double seconds_ = 0;
};

struct Times {
    std::vector<double> save, approve, reverse;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::int64_t KeyOf(const LargeDocument& document) {
    return Recordset(Conn(),
                     "select fInvID from tJXC_CkDj01 where fInvNo='" + document.number + "'")[size_t{0}]
        .AsLong();
}

void RunSystem(SystemRoad& road, LargeDocument& document, Times& times) {
    times.save.push_back(road.Save(document));
    const std::int64_t key = KeyOf(document);
    times.approve.push_back(road.Run(document, key, DocAction::Approve));
    times.reverse.push_back(road.Run(document, key, DocAction::Reverse));
    road.Run(document, key, DocAction::Approve); // stays, so that the next round finds stock rows
}

void RunFloor(LargeFloor& floor, const LargeDocument& document, Times& times) {
    const auto timed = [](const auto& work) {
        const double start = Now();
        work();
        return Now() - start;
    };
    std::int64_t key = 0;
    times.save.push_back(timed([&] { key = floor.Save(document); }));
    times.approve.push_back(timed([&] { floor.Approve(document, key, false); }));
    times.reverse.push_back(timed([&] { floor.Approve(document, key, true); }));
    floor.Approve(document, key, false);
}

void PrintRow(int type, int lines, const Times& system, const Times& floor) {
    const auto ratio = [](double floorSeconds, double systemSeconds) { return floorSeconds / systemSeconds; };
    const double save = Median(system.save), approve = Median(system.approve),
                 reverse = Median(system.reverse);
    const double fSave = Median(floor.save), fApprove = Median(floor.approve),
                 fReverse = Median(floor.reverse);
    std::printf("%4d %6d  %9.2f %9.2f %5.2f  %9.2f %9.2f %5.2f  %9.2f %9.2f %5.2f  %5.2f\n", type, lines,
                save * 1e3, fSave * 1e3, ratio(fSave, save), approve * 1e3, fApprove * 1e3,
                ratio(fApprove, approve), reverse * 1e3, fReverse * 1e3, ratio(fReverse, reverse),
                ratio(fSave + fApprove, save + approve));
}

// A company of its own for each type, the longest document at once: the slowest of the rounds counts.
void MeasureNewCompanies(int rounds) {
    std::printf("\non companies made the moment before, on the server; milliseconds, median and slowest\n"
                "type  lines            save         approve         reverse\n");
    const std::string name = "jxc_large_" + std::to_string(getpid());
    for (const int type : {1, 2, 3, 31}) {
        Times times;
        for (int round = 0; round < rounds; ++round) {
            const test::ServerDatabase database(name);
            MakeCompany(database.Address());
            const OpenCompany open(database.Address());
            SystemRoad road;
            LargeDocument document = DocumentOf(type, kMostLines, round);
            RunSystem(road, document, times);
        }
        std::printf("%4d %6d", type, kMostLines);
        for (const std::vector<double>* seconds : {&times.save, &times.approve, &times.reverse})
            std::printf("  %6.0f %7.0f", Median(*seconds) * 1e3,
                        *std::max_element(seconds->begin(), seconds->end()) * 1e3);
        std::printf("\n");
    }
}

int Main() {
    RegisterAllScreens();
    const char* given = std::getenv("JXC_BENCH_ROUNDS");
    const int rounds = given ? std::max(1, std::atoi(given)) : 7;
    const std::string stem =
        (std::filesystem::temp_directory_path() / ("jxc_large_" + std::to_string(getpid()))).string();
    MakeCompany(stem + "_system.db");
    MakeCompany(stem + "_floor.db");
    lzJxc control;
    control.UserName("王芳");
    control.ZgName("王芳");
    std::printf("milliseconds of a document, median of %d rounds; ratio is floor to system\n"
                "                  save                       approve                    reverse            "
                "save+approve\n"
                "type  lines     system     floor ratio     system     floor ratio     system     floor "
                "ratio  ratio\n",
                rounds);
    {
        LargeFloor floor(stem + "_floor.db");
        const OpenCompany open(stem + "_system.db");
        SystemRoad road;
        for (const int lines : {10, kMostLines})
            for (const int type : {1, 2, 3, 31}) {
                Times system, byFloor;
                for (int round = 0; round < rounds; ++round) {
                    LargeDocument document = DocumentOf(type, lines, round);
                    RunSystem(road, document, system);
                    RunFloor(floor, document, byFloor);
                }
                PrintRow(type, lines, system, byFloor);
            }
    }
    for (const char* company : {"_system.db", "_floor.db"})
        for (const char* ending : {"", "-wal", "-shm"})
            std::filesystem::remove(stem + company + ending);
    if (!test::TestServer().empty())
        MeasureNewCompanies(rounds);
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
