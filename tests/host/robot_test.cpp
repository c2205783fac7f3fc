// The robot's protocol: one reply a request, boxes where they arise, errors that change nothing; the same
// replies on both engines.
#include <sstream>

#include <gtest/gtest.h>

#include "host/company_address.h"
#include "host/embedding.h"
#include "robot/robot.h"
#include "session/session.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

namespace {

using nlohmann::json;

std::vector<json> Drive(lzJxc& control, const std::string& requests) {
    RegisterAllScreens();
    ResetScreens();
    std::istringstream in(requests);
    std::ostringstream out;
    JsonLines lines(in, out);
    Robot(control, lines).Run();
    std::vector<json> replies;
    std::istringstream read(out.str());
    for (std::string line; std::getline(read, line);)
        replies.push_back(json::parse(line));
    return replies;
}

TEST(Robot, AnswersEveryLineAndShowsWhatIsWrong) {
    lzJxc control;
    UseCompany(control, "/nowhere/no.db");
    const auto replies = Drive(control, "not json\n"
                                        "[1,2]\n"
                                        "{}\n"
                                        "{\"op\":5}\n"
                                        "{\"op\":\"click\",\"control\":\"cmdSave\"}\n"
                                        "{\"op\":\"property\",\"name\":\"nope\",\"value\":1}\n"
                                        "{\"op\":\"property\",\"name\":\"myType\",\"value\":\"x\"}\n"
                                        "{\"op\":\"property\",\"name\":\"myType\",\"value\":[1]}\n"
                                        "{\"op\":\"refresh\"}\n"
                                        "{\"op\":\"refresh\",\"action\":100000}\n"
                                        "{\"op\":\"refresh\",\"action\":13,\"properties\":{\"x\":{}}}\n"
                                        "\n"
                                        "{\"op\":\"property\",\"name\":\"myType\",\"value\":1}\n"
                                        "{\"op\":\"refresh\",\"action\":13}\n"
                                        "{\"op\":\"get\",\"control\":\"x\"}\n"
                                        "{\"op\":\"answer\",\"button\":\"Yes\"}\n"
                                        "{\"op\":\"answer\",\"button\":\"ok\"}\n");
    ASSERT_EQ(replies.size(), 16U);
    for (int i = 0; i < 11; ++i) {
        EXPECT_EQ(replies[static_cast<size_t>(i)]["ok"], false) << i;
        EXPECT_FALSE(replies[static_cast<size_t>(i)]["error"].get<std::string>().empty()) << i;
    }
    EXPECT_EQ(replies[11], json({{"ok", true}, {"waiting", "host"}}));
    // A company that is not there: told in a box, no screen opens.
    EXPECT_EQ(replies[12]["waiting"], "box");
    EXPECT_EQ(replies[12]["box"]["icon"], "warning");
    EXPECT_NE(replies[12]["box"]["text"].get<std::string>().find("/nowhere/no.db"), std::string::npos);
    EXPECT_EQ(replies[13]["ok"], false);
    EXPECT_EQ(replies[14]["ok"], false);
    EXPECT_EQ(replies[15], json({{"ok", true}, {"waiting", "host"}}));
}

class RobotOnCompany : public OnSampleCompany {};
ON_BOTH_ENGINES(RobotOnCompany);

const char* const kReceipt = R"({"op":"refresh","action":13,"properties":{"invType":1}}
{"op":"refresh","action":4}
{"op":"get","control":"noSuch"}
{"op":"set","control":"chkFlag","value":true}
{"op":"set","control":"dtpInvDate","value":"2026-13-01"}
{"op":"set","control":"cboCkName","value":"总部仓"}
{"op":"choose","control":"cboCkName","index":7}
{"op":"choose","control":"cboCkName","text":"没有"}
{"op":"type","control":"Grid2","row":3,"col":1,"value":"CPU002"}
{"op":"type","control":"Grid2","row":1,"col":99,"value":"1"}
{"op":"type","control":"Grid2","row":1,"col":16,"value":"1"}
{"op":"click","control":"Grid2"}
{"op":"key","control":"txtNo"}
{"op":"dance"}
{"op":"choose","control":"cboCkName","index":0}
{"op":"get","control":"txtNo"}
{"op":"get","control":"cboCkName"}
{"op":"set","control":"txtKhSeek","value":"G001"}
{"op":"key","control":"txtKhSeek","key":"Enter"}
{"op":"type","control":"Grid2","row":1,"col":1,"value":"CPF004"}
{"op":"type","control":"Grid2","row":1,"col":6,"value":"3"}
{"op":"get","control":"Grid2"}
{"op":"click","control":"cmdSave"}
{"op":"click","control":"cmdSave"}
{"op":"answer","button":"OK"}
)";

TEST_P(RobotOnCompany, EntersADocumentAndLosesNothingItSaved) {
    const auto replies = Drive(control, kReceipt);
    ASSERT_EQ(replies.size(), 25U);
    EXPECT_EQ(replies[0],
              json({{"ok", true}, {"waiting", "screen"}, {"screen", "frmDj02"}, {"title", "入库单：新增"}}));
    for (size_t i = 1; i <= 13; ++i)
        EXPECT_EQ(replies[i]["ok"], false) << i << " " << replies[i];
    EXPECT_EQ(replies[15]["value"], "20261105RK001");
    EXPECT_EQ(replies[16]["value"], json({{"items", {"总部仓"}}, {"index", 0}, {"text", "总部仓"}}));
    const json& grid = replies[21]["value"];
    EXPECT_EQ(grid["columns"][0], json({{"caption", "编码"}, {"hidden", false}}));
    EXPECT_EQ(grid["rows"][0][9], "19.50");
    EXPECT_EQ(grid["values"][0][9], 19.5);
    EXPECT_EQ(grid["selected"], 1);
    EXPECT_EQ(replies[22]["box"], json({{"title", "入库单：新增"},
                                        {"text", "入库单：新增：20261105RK001，确定？"},
                                        {"icon", "question"},
                                        {"buttons", {"OK", "Cancel"}}}));
    EXPECT_EQ(replies[23]["ok"], false);
    // The requests end at the printing question: it counts as No, the screen closes, what was saved stays.
    EXPECT_EQ(replies[24]["box"]["text"], "单据新增完毕。打印本张单据？");
    EXPECT_EQ(QueryCompany(company->Address(), "select fInvNo from tJXC_CkDj01").At(0, 0).AsText(),
              "20261105RK001");
    EXPECT_EQ(session.Conn, nullptr);
}

TEST_P(RobotOnCompany, EndOfRequestsSavesNothing) {
    const std::string all = kReceipt;
    const auto replies = Drive(control, all.substr(0, all.find("{\"op\":\"answer\"")));
    EXPECT_EQ(replies.size(), 24U);
    EXPECT_EQ(QueryCompany(company->Address(), "select fInvNo from tJXC_CkDj01").Count(), 0U);
}

// A screen whose button tells of a failure, once with its cause and once without.
struct FailingScreen : Screen {
    FailingScreen() : Screen("FailingScreen") {
        cmdSave.onClick = [this] {
            CurrentView().ShowBox({title, "存盘失败！", BoxIcon::Warning, {BoxButton::OK}, "disk I/O error"});
            CurrentView().ShowBox({title, "存盘失败！", BoxIcon::Warning});
        };
    }
    void Open() override {}
    Button cmdSave{*this, "cmdSave"};
};

TEST(Robot, TakesNoTextOrNumberThatIsNone) {
    lzJxc control;
    control.UserName("王芳");
    const auto replies = Drive(control, R"({"op":"property","name":"UserName","value":"a\u0000b"}
{"op":"property","name":"myType","value":18446744073709551615}
{"op":"refresh","action":18446744073709551615}
{"op":"refresh","action":4294967300}
)");
    ASSERT_EQ(replies.size(), 4U);
    for (const json& reply : replies)
        EXPECT_EQ(reply["ok"], false) << reply;
    EXPECT_EQ(control.UserName(), "王芳");
}

TEST(Robot, TellsTheCauseWhereABoxHasOne) {
    lzJxc control;
    std::istringstream in("{\"op\":\"click\",\"control\":\"cmdSave\"}\n"
                          "{\"op\":\"answer\",\"button\":\"OK\"}\n");
    std::ostringstream out;
    JsonLines lines(in, out);
    Robot robot(control, lines);
    const ViewInUse inUse(robot);
    FailingScreen screen;
    ShowModal(screen);
    std::istringstream read(out.str());
    std::string first, second;
    std::getline(read, first);
    std::getline(read, second);
    EXPECT_EQ(json::parse(first)["box"]["details"], "disk I/O error");
    EXPECT_EQ(json::parse(second)["box"]["text"], "存盘失败！");
    EXPECT_FALSE(json::parse(second)["box"].contains("details"));
}

TEST(Robot, SameRepliesOnBothEngines) {
    if (const std::string reason = WhyUnavailable(EngineKind::Postgres); !reason.empty())
        GTEST_SKIP() << reason;
    std::vector<std::vector<json>> replies;
    for (const EngineKind engine : {EngineKind::Sqlite, EngineKind::Postgres}) {
        const SampleCompany company(engine);
        lzJxc control = company.SignedIn();
        replies.push_back(Drive(control, kReceipt));
    }
    EXPECT_EQ(replies[0], replies[1]);
}

} // namespace

} // namespace jxc::test
