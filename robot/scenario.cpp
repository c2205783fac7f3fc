#include "robot/scenario.h"

#include <charconv>
#include <cmath>
#include <set>
#include <sstream>

#include "base/text.h"

namespace jxc {

using nlohmann::json;

namespace {

// Words between blanks; double quotes hold one together.
std::vector<std::string> WordsOf(const std::string& text) {
    std::vector<std::string> words;
    std::string word;
    bool inWord = false;
    bool quoted = false;
    for (const char c : text) {
        if (c == '"') {
            quoted = !quoted;
            inWord = true;
        } else if (c == ' ' && !quoted) {
            if (inWord)
                words.push_back(std::move(word));
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words.push_back(std::move(word));
    return words;
}

std::vector<std::string> CellsOf(const std::string& text) {
    std::vector<std::string> cells = Split(text, '|');
    for (std::string& cell : cells)
        cell = Trim(cell);
    return cells;
}

std::string RestAfter(const std::string& text, size_t words) {
    size_t at = 0;
    for (size_t i = 0; i < words; ++i) {
        at = text.find(' ', at);
        if (at == std::string::npos)
            return "";
        at = text.find_first_not_of(' ', at);
    }
    return at == std::string::npos ? "" : text.substr(at);
}

json TypedValue(const std::string& word) {
    if (word == "true" || word == "false")
        return word == "true";
    if (word == "null")
        return nullptr;
    return word;
}

std::string AsText(const json& value) {
    if (value.is_null())
        return "";
    if (value.is_string())
        return value.get<std::string>();
    if (value.is_object() && value.contains("text"))
        return value.at("text").get<std::string>();
    return value.dump();
}

bool Matches(const std::string& expected, const std::string& found) {
    if (expected == found)
        return true;
    if (!IsNumericText(expected) || !IsNumericText(found))
        return false;
    const double a = Val(expected);
    const double b = Val(found);
    return std::fabs(a - b) <= 1e-9 * std::max(1.0, std::fabs(a));
}

std::string Joined(const std::vector<std::string>& cells) {
    std::string text;
    for (const std::string& cell : cells)
        text += "| " + cell + " ";
    return text;
}

std::string WithLineEnds(std::string text) {
    for (size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n"))
        text.replace(at, 2, "\n");
    return text;
}

using Words = std::vector<std::string>;

// A line that cannot be played as it is written.
class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

const std::string& WordAt(const Words& words, size_t at) {
    if (at >= words.size())
        throw ScenarioError("缺少第 " + std::to_string(at + 1) + " 个词");
    return words[at];
}

std::string WordOrNone(const Words& words, size_t at) {
    return at < words.size() ? words[at] : "";
}

int WholeNumberOf(const std::string& word) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        throw ScenarioError(word + " 不是整数");
    return number;
}

int NumberAt(const Words& words, size_t at) {
    return WholeNumberOf(WordAt(words, at));
}

json ScreenProperties(const Words& words) {
    json properties = json::object();
    for (size_t i = 2; i < words.size(); ++i) {
        const size_t equals = words[i].find('=');
        if (equals == std::string::npos)
            throw ScenarioError(words[i] + " 不是 属性=值");
        properties[words[i].substr(0, equals)] = WholeNumberOf(words[i].substr(equals + 1));
    }
    return properties;
}

json ListChoice(const Words& words) {
    const std::string& choice = WordAt(words, 2);
    if (choice.starts_with('#'))
        return {{"control", words[1]}, {"index", WholeNumberOf(choice.substr(1))}};
    return {{"control", words[1]}, {"text", choice}};
}

json OnControl(const Words& words) {
    return {{"control", WordAt(words, 1)}};
}

// A grid's row by its number, a tree's node by its caption or its key.
json OnRowOrNode(const Words& words) {
    const std::string& which = WordAt(words, 2);
    if (which.find_first_not_of("-0123456789") == std::string::npos)
        return {{"control", words[1]}, {"row", WholeNumberOf(which)}};
    return {{"control", words[1]}, {"node", which}};
}

// Several rows of a grid, or one of them.
json OnRows(const Words& words) {
    if (words.size() < 4)
        return OnRowOrNode(words);
    json rows = json::array();
    for (size_t at = 2; at < words.size(); ++at)
        rows.push_back(WholeNumberOf(words[at]));
    return {{"control", words[1]}, {"rows", rows}};
}

// A text in double quotes keeps the blanks at its ends.
std::string WithoutQuotes(const std::string& text) {
    const bool quoted = text.size() > 1 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

json PastedBlock(const Words& words) {
    std::string cells = WordAt(words, 2); // "|" ends a cell, "\n" a row
    std::replace(cells.begin(), cells.end(), '|', '\t');
    return {{"control", words[1]}, {"value", WithLineEnds(cells)}};
}

// A text typed into a box, or with row and column before it into a cell; `behind` words follow it.
json TypedText(const Words& words, size_t behind) {
    json request{{"control", WordAt(words, 1)}};
    const size_t at = words.size() > 3 + behind ? 4 : 2;
    if (at == 4) {
        request["row"] = NumberAt(words, 2);
        request["col"] = NumberAt(words, 3);
    }
    request["value"] = WordAt(words, at);
    return request;
}

json SuggestionTaken(const Words& words) {
    json request = TypedText(words, 1);
    const std::string& place = words.back();
    if (!place.starts_with('#'))
        throw ScenarioError(place + " 不是 #n");
    request["index"] = WholeNumberOf(place.substr(1));
    return request;
}

using Gesture = json (*)(const Words&);

// What each gesture asks of the robot, but for the operation, which has the gesture's name.
const std::map<std::string, Gesture>& Gestures() {
    static const std::map<std::string, Gesture> gestures{
        {"property",
         [](const Words& w) {
             return json{{"name", WordAt(w, 1)}, {"value", WordOrNone(w, 2)}};
         }},
        {"refresh",
         [](const Words& w) {
             return json{{"action", NumberAt(w, 1)}, {"properties", ScreenProperties(w)}};
         }},
        {"open",
         [](const Words& w) {
             return json{{"screen", WordAt(w, 1)}};
         }},
        {"set",
         [](const Words& w) {
             return json{{"control", WordAt(w, 1)}, {"value", TypedValue(WordOrNone(w, 2))}};
         }},
        {"choose", ListChoice},
        {"paste", PastedBlock},
        {"type",
         [](const Words& w) {
             return json{{"control", WordAt(w, 1)},
                         {"row", NumberAt(w, 2)},
                         {"col", NumberAt(w, 3)},
                         {"value", WordOrNone(w, 4)}};
         }},
        {"take", SuggestionTaken},
        {"pick", [](const Words& w) { return TypedText(w, 0); }},
        {"key",
         [](const Words& w) {
             return json{{"control", WordAt(w, 1)}, {"key", WordAt(w, 2)}};
         }},
        {"select", OnRows},
        {"dblclick", [](const Words& w) { return w.size() > 2 ? OnRowOrNode(w) : OnControl(w); }},
        {"rightclick", OnControl},
        {"heading",
         [](const Words& w) {
             return json{{"control", WordAt(w, 1)}, {"col", NumberAt(w, 2)}};
         }},
        {"tab",
         [](const Words& w) {
             return json{{"control", WordAt(w, 1)}, {"index", NumberAt(w, 2)}};
         }},
        {"click", OnControl},
        {"menu", OnControl},
        {"close", [](const Words&) { return json::object(); }},
    };
    return gestures;
}

// What is said of the box that waits, or of the database beside it.
bool StandsBesideBox(const std::string& verb) {
    static const std::set<std::string> verbs{"box", "signal", "refused", "do", "rows", "let"};
    return verbs.contains(verb);
}

int DisplayWidth(const std::string& text) {
    return AnsiByteLength(text);
}

bool IsShownNumber(std::string text) {
    std::erase(text, ',');
    return IsNumericText(text);
}

} // namespace

Scenario::Scenario(const std::string& name, const std::string& text, Query query, Execute execute,
                   Teller tell, const ScenarioVerbs& verbs)
    : name_(name), query_(std::move(query)), execute_(std::move(execute)), tell_(std::move(tell)) {
    std::istringstream in(text);
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        const std::string trimmed = Trim(line);
        if (!trimmed.empty() && trimmed[0] != '#')
            for (std::string& stands : verbs.LinesOf(trimmed))
                lines_.push_back({number, std::move(stands)});
    }
}

void Scenario::Fail(const std::string& what) {
    failures_.push_back(name_ + ":" + std::to_string(current_.number) + ": " + what + "   （" +
                        current_.text + "）");
}

std::string Scenario::Substituted(const std::string& text) const {
    std::string result = text;
    for (const auto& [name, value] : kept_)
        for (size_t at = result.find("${" + name + "}"); at != std::string::npos;
             at = result.find("${" + name + "}"))
            result.replace(at, name.size() + 3, value);
    return result;
}

std::optional<json> Scenario::Next() {
    while (!lines_.empty()) {
        current_ = lines_.front();
        lines_.pop_front();
        current_.text = Substituted(current_.text);
        try {
            if (auto request = Perform(current_))
                return request;
        } catch (const ScenarioError& error) {
            Fail(error.what());
        } catch (const DatabaseError& error) {
            Fail(error.what());
        }
    }
    if (box_)
        Fail("还有未回答的提示框：" + (*box_)["text"].get<std::string>());
    if (!error_.empty())
        Fail("最后的操作被拒绝：" + error_);
    return std::nullopt;
}

const std::map<std::string, Scenario::Step>& Scenario::Steps() {
    static const std::map<std::string, Step> steps{
        {"refused", &Scenario::ExpectRefusal},  {"signal", &Scenario::ExpectSignal},
        {"box", &Scenario::AnswerBox},          {"value", &Scenario::AskControl},
        {"caption", &Scenario::AskControl},     {"enabled", &Scenario::AskControl},
        {"visible", &Scenario::AskControl},     {"grid", &Scenario::AskControl},
        {"table", &Scenario::AskControl},       {"keep", &Scenario::AskControl},
        {"tree", &Scenario::AskControl},        {"screen", &Scenario::ExpectScreen},
        {"host", &Scenario::ExpectScreen},      {"rows", &Scenario::ExpectRows},
        {"let", &Scenario::KeepFigure},         {"do", &Scenario::RunStatement},
        {"today", &Scenario::SetToday},         {"say", &Scenario::Tell},
        {"suggest", &Scenario::AskSuggestions},
    };
    return steps;
}

std::vector<std::string> Scenario::Verbs() {
    std::vector<std::string> verbs;
    for (const auto& [verb, gesture] : Gestures())
        verbs.push_back(verb);
    for (const auto& [verb, step] : Steps())
        verbs.push_back(verb);
    return verbs;
}

std::optional<json> Scenario::Perform(const Line& line) {
    const Words words = WordsOf(line.text);
    const std::string& verb = WordAt(words, 0);
    if (!error_.empty() && verb != "refused")
        Fail("此前的操作被拒绝：" + std::exchange(error_, ""));
    if (box_ && !StandsBesideBox(verb))
        Fail("未料到提示框：" + box_->dump());
    if (const auto gesture = Gestures().find(verb); gesture != Gestures().end()) {
        json request = gesture->second(words);
        request["op"] = verb;
        return request;
    }
    const auto step = Steps().find(verb);
    if (step == Steps().end())
        throw ScenarioError("不认识的步骤");
    return (this->*step->second)(words, RestAfter(line.text, 1));
}

std::optional<json> Scenario::Tell(const Words&, const std::string& rest) {
    tell_(rest);
    return std::nullopt;
}

std::optional<json> Scenario::SetToday(const Words& words, const std::string&) {
    const auto day = ParseDate(WordAt(words, 1));
    if (!day)
        throw ScenarioError("须为日期 yyyy-mm-dd");
    FixToday(day);
    return std::nullopt;
}

std::optional<json> Scenario::RunStatement(const Words&, const std::string& rest) {
    execute_(rest);
    return std::nullopt;
}

std::optional<json> Scenario::KeepFigure(const Words& words, const std::string& rest) {
    const std::string sql = RestAfter(rest, 1);
    const Rows found = query_(sql);
    if (found.Count() == 0)
        throw ScenarioError("没有记录：" + sql);
    kept_[WordAt(words, 1)] = found.At(0, 0).AsText();
    return std::nullopt;
}

std::optional<json> Scenario::AskControl(const Words& words, const std::string&) {
    const std::string& control = WordAt(words, words[0] == "keep" ? 2 : 1);
    if (words[0] == "grid")
        for (const std::string& column : Split(WordAt(words, 2), ','))
            WholeNumberOf(column);
    asked_ = words;
    const bool state = words[0] == "caption" || words[0] == "enabled" || words[0] == "visible";
    if (state)
        return json{{"op", "controls"}};
    return json{{"op", "get"}, {"control", control}};
}

std::optional<json> Scenario::AskSuggestions(const Words& words, const std::string&) {
    asked_ = words;
    json request = TypedText(words, 0);
    request["op"] = "suggest";
    return request;
}

std::optional<json> Scenario::AnswerBox(const Words&, const std::string& rest) {
    const Words parts = CellsOf(rest);
    if (!box_)
        throw ScenarioError("没有出现提示框");
    const std::string title = (*box_)["title"].get<std::string>();
    const std::string text = (*box_)["text"].get<std::string>();
    if (title != WordAt(parts, 0))
        Fail("提示框标题是 " + title);
    if (text != WithLineEnds(WithoutQuotes(WordAt(parts, 1))))
        Fail("提示框文本是 " + text);
    box_.reset();
    return json{{"op", "answer"}, {"button", parts.size() > 2 ? parts[2] : "OK"}};
}

std::optional<json> Scenario::ExpectScreen(const Words& words, const std::string&) {
    const std::string wanted = words[0] == "host" ? "" : WordAt(words, 1);
    const std::string at = waiting_ == "host" ? "" : screen_;
    if (at != wanted)
        Fail("当前在 " + (at.empty() ? "host" : at));
    return std::nullopt;
}

std::optional<json> Scenario::ExpectSignal(const Words&, const std::string& text) {
    if (signal_ != text)
        Fail("提示行是 " + signal_);
    return std::nullopt;
}

std::optional<json> Scenario::ExpectRefusal(const Words&, const std::string& text) {
    if (error_.empty())
        Fail("操作没有被拒绝");
    else if (error_.find(text) == std::string::npos)
        Fail("拒绝的原因是 " + error_);
    error_.clear();
    return std::nullopt;
}

void Scenario::Reply(const json& reply) {
    if (reply["ok"] != true) {
        error_ = reply["error"].get<std::string>();
        asked_.clear();
        return;
    }
    waiting_ = reply.value("waiting", "");
    screen_ = reply.value("screen", "");
    signal_ = reply.value("signal", "");
    box_ = reply.contains("box") ? std::optional<json>(reply["box"]) : std::nullopt;
    if (!asked_.empty())
        CheckAsked(reply);
    asked_.clear();
}

void Scenario::CheckAsked(const json& reply) {
    const std::string& what = asked_[0];
    const std::string wanted = asked_.size() > 2 ? asked_[2] : "";
    const json value = reply.contains("value") ? reply["value"] : json();
    if (what == "grid")
        return CheckGrid(value);
    if (what == "tree")
        return CheckTree(value);
    if (what == "suggest")
        return CheckSuggestions(value);
    if (what == "table")
        return ShowTable(value);
    if (what == "keep") {
        kept_[asked_[1]] = AsText(value);
        return;
    }
    if (what == "value") {
        if (!Matches(wanted, AsText(value)))
            Fail("值是 " + AsText(value));
        return;
    }
    for (const json& control : value)
        if (control["name"] == asked_[1]) {
            if (AsText(control[what]) != wanted)
                Fail("是 " + AsText(control[what]));
            return;
        }
    Fail("没有控件 " + asked_[1]);
}

std::vector<Scenario::Words> Scenario::ExpectedRows() {
    std::vector<Words> rows;
    while (!lines_.empty() && lines_.front().text[0] == '|') {
        rows.push_back(CellsOf(Substituted(lines_.front().text).substr(1)));
        lines_.pop_front();
    }
    return rows;
}

void Scenario::CompareRows(const std::vector<Words>& expected, const std::vector<Words>& found) {
    bool same = expected.size() == found.size();
    for (size_t row = 0; same && row < expected.size(); ++row) {
        same = expected[row].size() == found[row].size();
        for (size_t i = 0; same && i < expected[row].size(); ++i)
            same = Matches(expected[row][i], found[row][i]);
    }
    if (same)
        return;
    std::string text = "得到 " + std::to_string(found.size()) + " 行：";
    for (const Words& row : found)
        text += "\n    " + Joined(row);
    Fail(text);
}

std::optional<json> Scenario::ExpectRows(const Words&, const std::string& sql) {
    const Rows rows = query_(sql);
    std::vector<Words> found(rows.Count());
    for (size_t row = 0; row < rows.Count(); ++row)
        for (size_t column = 0; column < rows.names.size(); ++column)
            found[row].push_back(rows.At(row, column).AsText());
    CompareRows(ExpectedRows(), found);
    return std::nullopt;
}

void Scenario::CheckGrid(const json& grid) {
    std::vector<Words> found;
    for (const json& row : grid["rows"]) {
        Words cells;
        for (const std::string& column : Split(asked_[2], ',')) {
            const auto at = static_cast<size_t>(WholeNumberOf(column)) - 1;
            cells.push_back(at < row.size() ? row[at].get<std::string>() : "（没有第 " + column + " 列）");
        }
        found.push_back(std::move(cells));
    }
    CompareRows(ExpectedRows(), found);
}

void Scenario::CheckTree(const json& tree) {
    std::vector<Words> found;
    for (const json& node : tree["nodes"]) {
        Words parts;
        for (const std::string& part : Split(WordAt(asked_, 2), ','))
            parts.push_back(node.contains(part) ? Trim(AsText(node[part])) : "（没有 " + part + "）");
        found.push_back(std::move(parts));
    }
    CompareRows(ExpectedRows(), found);
}

void Scenario::CheckSuggestions(const json& suggested) {
    std::vector<Words> found = suggested["rows"].get<std::vector<Words>>();
    if (suggested["more"] == true)
        found.push_back({"……"});
    CompareRows(ExpectedRows(), found);
}

void Scenario::ShowTable(const json& grid) {
    std::vector<size_t> shown;
    for (size_t i = 0; i < grid["columns"].size(); ++i)
        if (!grid["columns"][i]["hidden"].get<bool>())
            shown.push_back(i);
    std::vector<std::vector<std::string>> table(1);
    for (const size_t i : shown)
        table[0].push_back(grid["columns"][i]["caption"].get<std::string>());
    for (const json& row : grid["rows"]) {
        table.emplace_back();
        for (const size_t i : shown)
            table.back().push_back(row[i].get<std::string>());
    }
    for (const auto& row : table) {
        std::string text;
        for (size_t i = 0; i < row.size(); ++i) {
            int width = 0;
            for (const auto& other : table)
                width = std::max(width, DisplayWidth(other[i]));
            const std::string gap(static_cast<size_t>(width - DisplayWidth(row[i])), ' ');
            const bool number = &row != &table[0] && IsShownNumber(row[i]);
            text += "  " + (number ? gap + row[i] : row[i] + gap);
        }
        tell_(text);
    }
}

std::vector<std::string> PlayScenario(lzJxc& control, Scenario& scenario) {
    Robot robot(control, scenario);
    robot.Run();
    return scenario.Failures();
}

} // namespace jxc
