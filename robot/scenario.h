// Scenarios: a day's work as text, in the vocabulary of the screens. Each line is one gesture or one
// expectation; the gestures go through the robot's requests, so a scenario meets what any script meets.
//
//     property UserName 王芳             sets a property of lzJxc
//     refresh 13 invType=1               opens a screen, with properties
//     open frmHostCards                  opens an editor of the host
//     set txtKhSeek G001                 types; also dates (2026-11-05 or null) and ticks (true, false)
//     choose cboCkName 总部仓            picks a list item; #2 picks the third
//     type Grid2 1 6 10                  goes to row 1, column 6 and types
//     take Grid2 1 1 ls #0               types so far, takes the first row suggested; take txtCpCode ls #0 in a box;
//                                        pick alike, without a place: picks from the picker
//     paste Grid2 "A1|3|5\nB2|4|6"       a block of cells, "|" between them
//     click cmdSave | menu mnuX | key txtKhSeek Enter | select Grid1 2 | heading Grid1 5 | tab SSTab1 1 |
//         dblclick Grid1 1 | close       the other gestures
//     box 入库单：新增 | 该[单号]已有存在! | OK
//                                        expects this title and text, answers; \n is a line end
//     signal 没有找到...                 expects the line that the gesture before raised, without a box
//     refused 不可用                     expects that the gesture before was refused with a text that holds this
//     value txtSum 1200.00               expects the value of a control
//     caption lblSHR 王芳                expects a caption; enabled cmdSave false, visible txtZkl false alike
//     screen frmDj02 | host              expects where the program waits
//     grid Grid1 1,2,5                   expects the grid's rows in these columns, as the lines "| a | b" below
//     suggest Grid2 1 1 ls               expects what is suggested for a text typed into a cell, or a box, as the lines
//                                        below; "| ……" when there is more
//     rows select a,b from t             expects the rows of a statement, as the lines below; numbers to 1e-9
//     say text | table Grid1             tells the reader what happens, shows a grid
//     do update t set ...                runs a statement beside the screens, as another program would
//     today 2026-12-01                   another day has come
//     let name select ... | keep name txtNo
//                                        keeps a figure of the database or a control's value; ${name} stands for it
//
// Verbs of one's own stand for several lines: see robot/scenario_verbs.h. "#" starts a comment line. Double quotes hold a
// word with blanks together. docs/scenario-language.md tells all of it.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/date.h"
#include "database/connection.h"
#include "robot/robot.h"
#include "robot/scenario_verbs.h"

namespace jxc {

class Scenario : public RequestSource {
  public:
    using Query = std::function<Rows(const std::string& sql)>;
    using Execute = std::function<void(const std::string& sql)>;
    using Teller = std::function<void(const std::string& line)>;

    // `query` answers the statements of rows and let, `execute` runs those of do, `tell` takes what say and
    // table write, `verbs` are more words of the language.
    Scenario(const std::string& name, const std::string& text, Query query, Execute execute, Teller tell,
             const ScenarioVerbs& verbs = {});
    ~Scenario() override { FixToday(std::nullopt); }
    Scenario(const Scenario&) = delete;
    Scenario& operator=(const Scenario&) = delete;

    // The verbs of the language itself, beside those that are defined as lines of others.
    static std::vector<std::string> Verbs();

    // What did not come as expected, a line each, as "name:line: ...".
    const std::vector<std::string>& Failures() const { return failures_; }

    std::optional<nlohmann::json> Next() override;
    void Reply(const nlohmann::json& reply) override;

  private:
    struct Line {
        int number;
        std::string text;
    };
    using Words = std::vector<std::string>;

    // A verb that is no gesture: its request, if it has one, or nothing for what is done at once.
    using Step = std::optional<nlohmann::json> (Scenario::*)(const Words& words, const std::string& rest);
    static const std::map<std::string, Step>& Steps();

    // The request that a line stands for; nothing for what is done at once.
    std::optional<nlohmann::json> Perform(const Line& line);
    std::optional<nlohmann::json> AskControl(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> AskSuggestions(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> AnswerBox(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> KeepFigure(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> RunStatement(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> SetToday(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> Tell(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> ExpectScreen(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> ExpectRows(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> ExpectRefusal(const Words& words, const std::string& rest);
    std::optional<nlohmann::json> ExpectSignal(const Words& words, const std::string& rest);
    void CheckAsked(const nlohmann::json& reply);
    void CheckGrid(const nlohmann::json& grid);
    void CheckTree(const nlohmann::json& tree);
    void CheckSuggestions(const nlohmann::json& suggested);
    void ShowTable(const nlohmann::json& grid);
    std::vector<Words> ExpectedRows();
    void CompareRows(const std::vector<Words>& expected, const std::vector<Words>& found);
    std::string Substituted(const std::string& text) const;
    void Fail(const std::string& what);

    std::string name_;
    std::deque<Line> lines_;
    Query query_;
    Execute execute_;
    Teller tell_;
    Line current_{0, ""};
    Words asked_; // the expectation that waits for its reply
    std::optional<nlohmann::json> box_;
    std::string waiting_ = "host";
    std::string screen_;
    std::string signal_; // the line that the gesture before raised
    std::string error_;  // of the gesture before, until an expectation has looked at it
    std::map<std::string, std::string> kept_;
    std::vector<std::string> failures_;
};

// Plays a scenario with the control's properties as they are.
std::vector<std::string> PlayScenario(lzJxc& control, Scenario& scenario);

} // namespace jxc
