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

// Whole files, each below the line that names it; and no code of the section is anything else.
TEST(ExampleHost, StandsInTheReadmes) {
    const std::vector<std::string> files{"host/trade.cpp", "host/main.cpp", "host/CMakeLists.txt",
                                         "script_host/main.cpp", "script_host/CMakeLists.txt"};
    for (const auto& [readme, section] :
         {std::pair("README.md", "\n## Embedding\n"), {"README.zh-CN.md", "\n## 嵌入\n"}}) {
        const std::string text = FileText(std::string(JXC_ROOT "/") + readme);
        const size_t begin = text.find(section);
        ASSERT_NE(begin, std::string::npos) << readme;
        const std::string shown = text.substr(begin, text.find("\n## ", begin + 1) - begin);
        size_t blocks = 0;
        for (size_t at = 0; (at = shown.find("\n\n    ", at)) != std::string::npos; ++at)
            blocks += shown[shown.rfind('\n', at - 1) + 1] != ' ';
        EXPECT_EQ(blocks, files.size()) << readme;
        for (const std::string& file : files) {
            std::string block;
            for (const std::string& line : Split(FileText(JXC_ROOT "/examples/" + file), '\n'))
                block += (line.empty() ? "" : "    ") + line + "\n";
            const size_t named = shown.find("`examples/" + file + "`");
            ASSERT_NE(named, std::string::npos) << readme << " does not name " << file;
            const size_t code = shown.find("\n\n", named) + 2;
            EXPECT_EQ(shown.substr(code, block.size()), block) << readme << " does not show " << file;
        }
    }
}

} // namespace jxc::test
