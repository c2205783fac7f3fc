// The pages of docs/ say what the program does: every verb, request and numbered message stands there, nothing that is
// gone stands there, and their examples work.
#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "base/text.h"
#include "host/embedding.h"
#include "robot/scenario.h"
#include "session/messages.h"
#include "session/session.h"
#include "tests/support/files.h"
#include "tests/support/on_sample_company.h"
#include "tests/support/scenario_statements.h"

namespace jxc::test {

namespace {

using Names = std::set<std::string>;

std::string Page(const std::string& name) {
    return FileText(JXC_ROOT "/docs/" + name);
}

// The part of a page below a heading, up to the next one; "" where the page has no such heading.
std::string Section(const std::string& page, const std::string& heading) {
    const size_t begin = page.find("\n## " + heading + "\n");
    return begin == std::string::npos ? "" : page.substr(begin, page.find("\n## ", begin + 1) - begin);
}

// The cells of the tables' rows, without the rows of headings; "\|" is no end of a cell.
std::vector<Lines> TableRows(const std::string& text) {
    std::vector<Lines> rows;
    for (const std::string& line : Split(text, '\n')) {
        if (line.starts_with("|---") && !rows.empty())
            rows.pop_back(); // it was the heading
        if (!line.starts_with("| "))
            continue;
        Lines cells(1);
        for (size_t at = 1; at < line.size(); ++at) {
            if (line[at] == '|')
                cells.emplace_back();
            else if (line[at] == '\\' && line.substr(at + 1, 1) == "|")
                cells.back() += line[++at];
            else
                cells.back() += line[at];
        }
        cells.pop_back(); // behind the last
        for (std::string& cell : cells)
            cell = Trim(cell);
        rows.push_back(cells);
    }
    return rows;
}

// What stands in backquotes in the first cells of the section's tables.
Lines FirstCells(const std::string& page, const std::string& heading) {
    Lines found;
    for (const Lines& row : TableRows(Section(page, heading)))
        found.push_back(row[0].substr(1, row[0].rfind('`') - 1));
    EXPECT_FALSE(found.empty()) << "no table under " << heading;
    return found;
}

// The first block of code behind `mark`.
std::string CodeBehind(const std::string& page, const std::string& mark) {
    std::string code;
    for (const std::string& line : Split(page.substr(page.find(mark)), '\n')) {
        if (line.starts_with("    "))
            code += line.substr(4) + "\n";
        else if (!code.empty())
            break;
    }
    return code;
}

TEST(Docs, TellEveryVerbOfTheLanguage) {
    const std::string page = Page("scenario-language.md");
    Names told;
    for (const char* heading : {"Gestures", "Expectations", "Everything else"})
        for (const std::string& line : FirstCells(page, heading))
            EXPECT_TRUE(told.insert(line.substr(0, line.find(' '))).second) << line << " stands twice";
    const auto verbs = Scenario::Verbs();
    EXPECT_EQ(told, Names(verbs.begin(), verbs.end()));
}

TEST(Docs, TellEveryVerbOfADocumentsDay) {
    Lines defined;
    for (const std::string& line : Split(FileText(JXC_SCENARIOS "/verbs.txt"), '\n'))
        if (!line.empty() && line[0] != ' ' && line[0] != '#')
            defined.push_back(line);
    Lines told = FirstCells(Page("scenario-language.md"), "Verbs of a document's day");
    std::sort(defined.begin(), defined.end());
    std::sort(told.begin(), told.end());
    EXPECT_EQ(told, defined);
}

TEST(Docs, TellEveryNamedQuestion) {
    Names known;
    for (const std::string& name : ScenarioStatementNames())
        known.insert(name.substr(0, name.find(" of ")));
    const Lines told = FirstCells(Page("scenario-language.md"), "Named questions");
    EXPECT_EQ(Names(told.begin(), told.end()), known);
}

TEST(Docs, TellEveryRequestOfTheRobot) {
    const std::string page = Page("robot.md");
    const std::regex operation("\"op\":\"([a-z]+)\"");
    Names told;
    for (const char* heading :
         {"Requests while no screen is open", "Requests on a screen", "The request while a box waits"})
        for (const std::string& request : FirstCells(page, heading)) {
            std::smatch found;
            ASSERT_TRUE(std::regex_search(request, found, operation)) << request;
            EXPECT_TRUE(told.insert(found[1]).second) << request << " stands twice";
        }
    const auto operations = Robot::Operations();
    EXPECT_EQ(told, Names(operations.begin(), operations.end()));
}

TEST(Docs, ExamplesArePlayed) {
    RegisterAllScreens();
    const SampleCompany company(EngineKind::Sqlite);
    lzJxc control = company.SignedIn();
    const std::string example = CodeBehind(Page("scenario-language.md"), "# The language");
    EXPECT_NE(example.find("box "), std::string::npos);
    Scenario scenario(
        "example", example, [](const std::string&) { return Rows(); }, [](const std::string&) {},
        [](const std::string&) {});
    EXPECT_EQ(PlayScenario(control, scenario), Lines{});

    std::istringstream requests(CodeBehind(Page("robot.md"), "## A receipt"));
    std::ostringstream replies;
    JsonLines lines(requests, replies);
    Robot(control, lines).Run();
    EXPECT_EQ(replies.str().find("\"ok\":false"), std::string::npos) << replies.str();
    EXPECT_EQ(QueryCompany(company.Address(), "select fInvNo from tJXC_CkDj01").Count(), 1U);
}

// The numbered messages, each in both of its character sets.
TEST(Docs, TellEveryNumberedMessage) {
    const auto before = session.Language;
    const auto textOf = [](int id, std::int16_t language) {
        session.Language = language;
        return GetResStr(id);
    };
    Names known, told;
    for (int id = 0; id < 10'000; ++id) {
        session.Language = 0;
        try {
            static_cast<void>(GetResStr(id));
        } catch (const std::out_of_range&) {
            continue;
        }
        known.insert(std::to_string(id) + " " + textOf(id, 0) + " " + textOf(id, 1));
    }
    session.Language = before;
    for (const Lines& row : TableRows(Section(Page("messages.md"), "Numbered messages")))
        told.insert(row.at(0) + " " + row.at(1) + " " + row.at(2));
    EXPECT_EQ(told, known);
}

// Every source and test that a page sends its reader to is there.
TEST(Docs, NameNoFileThatIsGone) {
    const std::regex file("`([a-z_]+/[A-Za-z0-9_/.]*\\.(h|cpp|cmake|txt|sh|md))`");
    int named = 0;
    for (const char* page :
         {"README.md", "README.zh-CN.md", "CONTRIBUTING.md", "docs/decisions.md", "docs/first-company.md",
          "docs/messages.md", "docs/robot.md", "docs/scenario-language.md"}) {
        const std::string text = FileText(JXC_ROOT "/" + std::string(page));
        for (std::sregex_iterator at(text.begin(), text.end(), file), end; at != end; ++at, ++named)
            EXPECT_TRUE(std::filesystem::exists(JXC_ROOT "/" + (*at)[1].str())) << page << ": " << (*at)[1];
    }
    EXPECT_GT(named, 50);
}

// All sources, with the parts of texts that stand on several lines put together.
std::string Sources() {
    std::string sources;
    for (const char* folder : {"base", "controls", "database", "session", "forms", "settings", "master",
                               "documents", "close", "stock", "plans", "robot", "host", "view"})
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(JXC_ROOT "/" + std::string(folder)))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
                sources += FileText(entry.path());
    return std::regex_replace(sources, std::regex("\"\n *\""), "");
}

// A text of the catalogue has "…" where the program puts a name or a figure; what stands between is in the sources.
TEST(Docs, CatalogueOfMessagesHoldsNoneThatIsGone) {
    const std::string sources = Sources();
    const std::string page = Page("messages.md");
    const std::string others = page.substr(page.find("\n## ", page.find("\n## Numbered messages\n") + 1));
    const auto rows = TableRows(others);
    EXPECT_GT(rows.size(), 150U);
    for (const Lines& row : rows) {
        ASSERT_EQ(row.size(), 3U) << row[0];
        EXPECT_FALSE(row[1].empty() || row[2].empty()) << row[0];
        std::string text = row[0];
        for (size_t hole = 0; (hole = text.find("…")) != std::string::npos;)
            text.replace(hole, std::string("…").size(), "\n");
        for (const std::string& part : Split(text, '\n'))
            EXPECT_NE(sources.find(part), std::string::npos) << row[0] << " (" << part << ")";
    }
}

} // namespace

} // namespace jxc::test
