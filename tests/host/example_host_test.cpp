// The host that the READMEs show: it works to the letter, and they show its very lines.
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "controls/scripted_view.h"
#include "controls/text.h"
#include "examples/host/trade.h"
#include "session/session.h"
#include "tests/support/sample_company.h"

namespace jxc::test {

namespace {

std::string FileOf(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(std::string(JXC_ROOT) + "/" + name).rdbuf();
    return text.str();
}

} // namespace

TEST(ExampleHost, OpensDocumentEntryOfItsCompany) {
    const SampleCompany company(EngineKind::Sqlite);
    ScriptedView view;
    const ViewInUse inUse(view);
    std::string title;
    view.OnScreen("frmDj02", [&](Screen& screen) { title = screen.title; });
    Trade(company.Address());
    EXPECT_EQ(title, "入库单：新增");
    EXPECT_TRUE(view.boxes.empty());
    EXPECT_EQ(session.Conn, nullptr);
    ResetScreens();
}

TEST(ExampleHost, StandsInTheReadmes) {
    for (const char* readme : {"README.md", "README.zh-CN.md"}) {
        const std::string text = FileOf(readme);
        ASSERT_FALSE(text.empty());
        for (const char* source : {"examples/host/trade.cpp", "examples/host/main.cpp"})
            for (const std::string& line : Split(FileOf(source), '\n'))
                if (!line.empty() && line != "#include \"examples/host/trade.h\"") {
                    EXPECT_NE(text.find("    " + line + "\n"), std::string::npos) << readme << ": " << line;
                }
    }
}

} // namespace jxc::test
