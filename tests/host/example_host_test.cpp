// The host that the READMEs show: it works to the letter, and they show its very lines.
#include <gtest/gtest.h>

#include "base/text.h"
#include "controls/scripted_view.h"
#include "examples/host/trade.h"
#include "session/session.h"
#include "tests/support/on_sample_company.h"

namespace jxc::test {

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
    for (const char* readme : {"README.md", "README.zh-CN.md"})
        for (const char* file : {"trade.cpp", "main.cpp"}) {
            std::string source = FileText(std::string(JXC_ROOT "/examples/host/") + file);
            if (const std::string own = "#include \"examples/host/trade.h\"\n\n"; source.starts_with(own))
                source.erase(0, own.size());
            std::string shown; // as a block of a README
            for (const std::string& line : Split(source, '\n'))
                shown += (line.empty() ? "" : "    ") + line + "\n";
            EXPECT_NE(FileText(std::string(JXC_ROOT "/") + readme).find("\n" + shown), std::string::npos)
                << readme << " does not show\n"
                << shown;
        }
}

} // namespace jxc::test
