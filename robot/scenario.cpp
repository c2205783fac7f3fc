#include "robot/scenario.h"

#include <cmath>
#include <functional>
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

// Whether the verb looks at a control, whose state comes with a reply.
bool Asks(const std::string& verb) {
    static const std::set<std::string> verbs{"value", "caption", "enabled", "visible",
                                             "grid",  "table",   "keep"};
    return verbs.contains(verb);
}

json ScreenProperties(const std::vector<std::string>& words) {
    json properties = json::object();
    for (size_t i = 2; i < words.size(); ++i) {
        const size_t equals = words[i].find('=');
        properties[words[i].substr(0, equals)] = std::stoi(words[i].substr(equals + 1));
    }
    return properties;
}

json ListChoice(const std::string& choice) {
    if (choice[0] == '#')
        return {{"index", std::stoi(choice.substr(1))}};
    return {{"text", choice}};
}

// The request of a gesture; nothing for other verbs.
std::optional<json> GestureOf(const std::vector<std::string>& words) {
    const auto word = [&](size_t at) { return words.at(at); };
    const auto optional = [&](size_t at) { return at < words.size() ? words[at] : std::string(); };
    const auto number = [&](size_t at) { return std::stoi(words.at(at)); };
    using Parts = std::function<json()>;
    const std::map<std::string, Parts> gestures{
        {"property",
         [&] {
             return json{{"name", word(1)}, {"value", optional(2)}};
         }},
        {"refresh",
         [&] {
             return json{{"action", number(1)}, {"properties", ScreenProperties(words)}};
         }},
        {"open",
         [&] {
             return json{{"screen", word(1)}};
         }},
        {"set",
         [&] {
             return json{{"control", word(1)}, {"value", TypedValue(optional(2))}};
         }},
        {"choose",
         [&] {
             json request = ListChoice(word(2));
             request["control"] = word(1);
             return request;
         }},
        {"paste",
         [&] {
             std::string cells = word(2); // "|" ends a cell, "\n" a row
             std::replace(cells.begin(), cells.end(), '|', '\t');
             return json{{"control", word(1)}, {"value", WithLineEnds(cells)}};
         }},
        {"type",
         [&] {
             return json{
                 {"control", word(1)}, {"row", number(2)}, {"col", number(3)}, {"value", optional(4)}};
         }},
        {"key",
         [&] {
             return json{{"control", word(1)}, {"key", word(2)}};
         }},
        {"select",
         [&] {
             return json{{"control", word(1)}, {"row", number(2)}};
         }},
        {"dblclick",
         [&] {
             return json{{"control", word(1)}, {"row", number(2)}};
         }},
        {"heading",
         [&] {
             return json{{"control", word(1)}, {"col", number(2)}};
         }},
        {"tab",
         [&] {
             return json{{"control", word(1)}, {"index", number(2)}};
         }},
        {"click",
         [&] {
             return json{{"control", word(1)}};
         }},
        {"menu",
         [&] {
             return json{{"control", word(1)}};
         }},
        {"close", [] { return json::object(); }},
    };
    const auto gesture = gestures.find(words.at(0));
    if (gesture == gestures.end())
        return std::nullopt;
    json request = gesture->second();
    request["op"] = words[0];
    return request;
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
        } catch (const std::exception& error) {
            Fail(error.what());
        }
    }
    if (box_)
        Fail("还有未回答的提示框：" + (*box_)["text"].get<std::string>());
    if (!error_.empty())
        Fail("最后的操作被拒绝：" + error_);
    return std::nullopt;
}

std::optional<json> Scenario::Perform(const Line& line) {
    const Words words = WordsOf(line.text);
    const std::string& verb = words.at(0);
    if (verb == "refused") {
        ExpectRefusal(RestAfter(line.text, 1));
        return std::nullopt;
    }
    if (!error_.empty())
        Fail("此前的操作被拒绝：" + std::exchange(error_, ""));
    if (verb == "signal")
        return ExpectSignal(RestAfter(line.text, 1)), std::nullopt;
    if (verb == "box")
        return AnswerBox(RestAfter(line.text, 1));
    const bool beside =
        verb == "do" || verb == "rows" || verb == "let"; // the database is there while a box waits
    if (box_ && !beside)
        Fail("未料到提示框：" + box_->dump());
    if (Asks(verb))
        return AskControl(words);
    if (const auto gesture = GestureOf(words))
        return gesture;
    Expect(verb, line, words);
    return std::nullopt;
}

void Scenario::Expect(const std::string& verb, const Line& line, const Words& words) {
    if (verb == "say")
        tell_(RestAfter(line.text, 1));
    else if (verb == "screen" || verb == "host")
        ExpectScreen(verb == "host" ? "" : words.at(1));
    else if (verb == "rows")
        ExpectRows(RestAfter(line.text, 1));
    else if (verb == "do")
        execute_(RestAfter(line.text, 1));
    else if (verb == "let")
        Keep(words.at(1), RestAfter(line.text, 2));
    else
        Fail("不认识的步骤");
}

void Scenario::Keep(const std::string& figure, const std::string& sql) {
    const Rows found = query_(sql);
    if (found.Count() == 0)
        return Fail("没有记录：" + sql);
    kept_[figure] = found.At(0, 0).AsText();
}

std::optional<json> Scenario::AskControl(const Words& words) {
    asked_ = words;
    const bool state = words[0] == "caption" || words[0] == "enabled" || words[0] == "visible";
    if (state)
        return json{{"op", "controls"}};
    return json{{"op", "get"}, {"control", words.at(words[0] == "keep" ? 2 : 1)}};
}

std::optional<json> Scenario::AnswerBox(const std::string& rest) {
    const Words parts = CellsOf(rest);
    if (!box_) {
        Fail("没有出现提示框");
        return std::nullopt;
    }
    const std::string title = (*box_)["title"].get<std::string>();
    const std::string text = (*box_)["text"].get<std::string>();
    if (title != parts.at(0))
        Fail("提示框标题是 " + title);
    if (text != WithLineEnds(parts.at(1)))
        Fail("提示框文本是 " + text);
    box_.reset();
    return json{{"op", "answer"}, {"button", parts.size() > 2 ? parts[2] : "OK"}};
}

void Scenario::ExpectScreen(const std::string& wanted) {
    const std::string at = waiting_ == "host" ? "" : screen_;
    if (at != wanted)
        Fail("当前在 " + (at.empty() ? "host" : at));
}

void Scenario::ExpectSignal(const std::string& text) {
    if (signal_ != text)
        Fail("提示行是 " + signal_);
}

void Scenario::ExpectRefusal(const std::string& text) {
    if (error_.empty())
        Fail("操作没有被拒绝");
    else if (error_.find(text) == std::string::npos)
        Fail("拒绝的原因是 " + error_);
    error_.clear();
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

void Scenario::ExpectRows(const std::string& sql) {
    const Rows rows = query_(sql);
    std::vector<Words> found(rows.Count());
    for (size_t row = 0; row < rows.Count(); ++row)
        for (size_t column = 0; column < rows.names.size(); ++column)
            found[row].push_back(rows.At(row, column).AsText());
    CompareRows(ExpectedRows(), found);
}

void Scenario::CheckGrid(const json& grid) {
    std::vector<Words> found;
    for (const json& row : grid["rows"]) {
        Words cells;
        for (const std::string& column : Split(asked_.at(2), ','))
            cells.push_back(row.at(static_cast<size_t>(std::stoi(column) - 1)).get<std::string>());
        found.push_back(std::move(cells));
    }
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
