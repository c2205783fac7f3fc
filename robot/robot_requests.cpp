#include "robot/robot_requests.h"

#include <functional>
#include <map>

#include "base/json_value.h"
#include "base/text.h"
#include "controls/gestures.h"
#include "controls/leave.h"

namespace jxc {

using nlohmann::json;

namespace {

json ShownValue(const Control& control) {
    if (control.kind == ControlKind::Check || control.kind == ControlKind::Option)
        return control.Shown().AsLong() != 0;
    return JsonValue(control.Shown());
}

json ListControls(const Screen& screen) {
    json list = json::array();
    for (const Control* control : screen.Controls())
        list.push_back({{"name", control->name},
                        {"kind", KindName(control->kind)},
                        {"caption", control->caption},
                        {"visible", control->IsShown()},
                        {"enabled", control->IsUsable()},
                        {"value", ShownValue(*control)}});
    return list;
}

json GridAsJson(const Grid& grid) {
    json columns = json::array();
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        columns.push_back({{"caption", grid.Column(column).caption}, {"hidden", grid.Column(column).hidden}});
    json rows = json::array();
    json values = json::array();
    for (int row = 1; row <= grid.RowCount(); ++row) {
        json texts = json::array();
        json cells = json::array();
        for (int column = 1; column <= grid.ColumnCount(); ++column) {
            texts.push_back(grid.ShownText(row, column));
            const Value& cell = grid.Cell(row, column);
            cells.push_back(cell.IsNull() ? json("") : json(JsonValue(cell)));
        }
        rows.push_back(std::move(texts));
        values.push_back(std::move(cells));
    }
    return {{"columns", columns}, {"rows", rows}, {"values", values}, {"selected", grid.selectedRow}};
}

json ListAsJson(const ListBox& list) {
    json items = json::array();
    for (int i = 0; i < static_cast<int>(list.items.size()); ++i)
        items.push_back(list.VisibleText(i));
    return {{"items", items}, {"index", list.Index()}, {"text", list.text}};
}

json TreeAsJson(const Tree& tree) {
    json nodes = json::array();
    for (int node = 0; node < static_cast<int>(tree.nodes.size()); ++node)
        nodes.push_back({{"key", tree.nodes[static_cast<size_t>(node)].key},
                         {"caption", tree.nodes[static_cast<size_t>(node)].caption},
                         {"depth", tree.DepthOf(node)},
                         {"icon", tree.nodes[static_cast<size_t>(node)].icon}});
    return {{"nodes", nodes}, {"selected", tree.selected}};
}

json GetControl(const Control& control) {
    if (const auto* grid = dynamic_cast<const Grid*>(&control))
        return GridAsJson(*grid);
    if (const auto* list = dynamic_cast<const ListBox*>(&control))
        return ListAsJson(*list);
    if (const auto* tree = dynamic_cast<const Tree*>(&control))
        return TreeAsJson(*tree);
    return ShownValue(control);
}

Control& ControlOf(const Screen& screen, const json& request) {
    const std::string name = TextOf(request, "control");
    Control* control = screen.Find(name);
    if (!control)
        throw RequestError(screen.name + " 没有控件 " + name + "。");
    return *control;
}

template <typename Kind>
Kind& ControlOfKind(const Screen& screen, const json& request, const char* kind) {
    auto* control = dynamic_cast<Kind*>(&ControlOf(screen, request));
    if (!control)
        throw RequestError(TextOf(request, "control") + " 不是" + kind + "。");
    return *control;
}

int PlaceOf(const json& request, const std::string& part) {
    const std::int64_t place = NumberOf(request, part);
    if (place < -1 || place > INT32_MAX)
        throw RequestError(part + " 超出范围。");
    return static_cast<int>(place);
}

void SetControl(Screen& screen, const json& request) {
    Control& control = ControlOf(screen, request);
    const Value value = ValueOf(request, "value");
    if (auto* box = dynamic_cast<EditBox*>(&control)) {
        EnterText(screen, *box, value.AsText());
    } else if (auto* toggle = dynamic_cast<Toggle*>(&control)) {
        if (!value.IsLong())
            throw RequestError(control.name + " 的值须为 true 或 false。");
        SetToggle(screen, *toggle, value.AsLong() != 0);
    } else if (auto* date = dynamic_cast<DateBox*>(&control)) {
        const auto parsed = ParseDate(value.AsText());
        if (!value.IsNull() && !parsed)
            throw RequestError(control.name + " 的值须为 yyyy-mm-dd 或 null。");
        EnterDate(screen, *date, parsed);
    } else {
        throw RequestError(control.name + " 不能输入。");
    }
}

void ChooseListItem(Screen& screen, const json& request) {
    auto& list = ControlOfKind<ListBox>(screen, request, "列表");
    if (request.contains("index"))
        return ChooseItem(screen, list, PlaceOf(request, "index"));
    const int index = ItemWithText(list, TextOf(request, "text"));
    if (index < 0)
        throw RequestError(list.name + " 没有 " + TextOf(request, "text") + "。");
    ChooseItem(screen, list, index);
}

void DropOnNode(Screen& screen, const json& request) {
    auto& tree = ControlOfKind<Tree>(screen, request, "树");
    DropNode(screen, tree, tree.FindNode(TextOf(request, "node")), tree.FindNode(TextOf(request, "onto")));
}

void SelectRowOrNode(Screen& screen, const json& request) {
    if (auto* tree = dynamic_cast<Tree*>(&ControlOf(screen, request)))
        return SelectNode(screen, *tree, tree->FindNode(TextOf(request, "node")));
    auto& grid = ControlOfKind<Grid>(screen, request, "表格");
    if (!request.contains("rows"))
        return SelectRow(screen, grid, PlaceOf(request, "row"));
    std::vector<int> rows;
    for (const json& row : request["rows"])
        rows.push_back(PlaceOf({{"row", row}}, "row"));
    SelectRows(screen, grid, rows);
}

void DoubleClickControl(Screen& screen, const json& request) {
    if (auto* label = dynamic_cast<Label*>(&ControlOf(screen, request)))
        return DoubleClickLabel(screen, *label);
    if (auto* tree = dynamic_cast<Tree*>(&ControlOf(screen, request)))
        return DoubleClickNode(screen, *tree,
                               request.contains("node") ? tree->FindNode(TextOf(request, "node"))
                                                        : tree->selected);
    auto& grid = ControlOfKind<Grid>(screen, request, "表格");
    DoubleClickRow(screen, grid, request.contains("row") ? PlaceOf(request, "row") : grid.selectedRow);
}

// The box or cell into which a request types, and what is suggested there for its text.
struct TypedInto {
    EditBox* box = nullptr; // null: a cell
    Grid* grid = nullptr;
    int row = 0, column = 0;
    std::string typed;
};

TypedInto PlaceTypedInto(const Screen& screen, const json& request) {
    TypedInto at;
    at.typed = TextOf(request, "value");
    at.box = dynamic_cast<EditBox*>(&ControlOf(screen, request));
    if (at.box)
        return at;
    at.grid = &ControlOfKind<Grid>(screen, request, "输入框或表格");
    at.row = PlaceOf(request, "row");
    at.column = PlaceOf(request, "col");
    return at;
}

Suggestions SuggestionsFor(const TypedInto& at) {
    return at.box ? Suggest(*at.box, at.typed) : SuggestInCell(*at.grid, at.row, at.column, at.typed);
}

json SuggestionsAsJson(const Screen& screen, const json& request) {
    const Suggestions found = SuggestionsFor(PlaceTypedInto(screen, request));
    json columns = json::array(), rows = json::array();
    for (const SuggestionColumn& column : found.columns)
        columns.push_back(column.caption);
    for (const SuggestedRow& row : found.rows)
        rows.push_back(row.cells);
    return {{"columns", columns}, {"rows", rows}, {"more", found.more}};
}

void Take(Screen& screen, const TypedInto& at, const SuggestedRow& taken) {
    if (at.box)
        TakeSuggestion(screen, *at.box, taken);
    else
        TakeInCell(screen, *at.grid, at.row, at.column, taken);
}

void TakeOneSuggested(Screen& screen, const json& request) {
    const TypedInto at = PlaceTypedInto(screen, request);
    const Suggestions found = SuggestionsFor(at);
    const int index = PlaceOf(request, "index");
    if (index < 0 || index >= static_cast<int>(found.rows.size()))
        throw RequestError("没有第 " + std::to_string(index) + " 条提示。");
    Take(screen, at, found.rows[static_cast<size_t>(index)]);
}

void PickForField(Screen& screen, const json& request) {
    const TypedInto at = PlaceTypedInto(screen, request);
    const auto picked =
        at.box ? Pick(screen, *at.box, at.typed) : PickInCell(screen, *at.grid, at.row, at.column, at.typed);
    if (picked)
        Take(screen, at, *picked);
}

using Gesture = std::function<void(Screen&, const json&)>;

const std::map<std::string, Gesture>& Gestures() {
    static const std::map<std::string, Gesture> gestures{
        {"set", SetControl},
        {"choose", ChooseListItem},
        {"type",
         [](Screen& screen, const json& r) {
             TypeCell(screen, ControlOfKind<Grid>(screen, r, "表格"), PlaceOf(r, "row"), PlaceOf(r, "col"),
                      ValueOf(r, "value").AsText());
         }},
        {"paste",
         [](Screen& screen, const json& r) {
             PasteBlock(screen, ControlOfKind<Grid>(screen, r, "表格"), ReadCells(TextOf(r, "value")));
         }},
        {"click",
         [](Screen& screen, const json& r) { Click(screen, ControlOfKind<Button>(screen, r, "按钮")); }},
        {"menu",
         [](Screen& screen, const json& r) { Click(screen, ControlOfKind<MenuItem>(screen, r, "菜单项")); }},
        {"dblclick", DoubleClickControl},
        {"rightclick",
         [](Screen& screen, const json& r) {
             RightClickLabel(screen, ControlOfKind<Label>(screen, r, "标签"));
         }},
        {"select", SelectRowOrNode},
        {"key",
         [](Screen& screen, const json& r) { PressKey(screen, ControlOf(screen, r), TextOf(r, "key")); }},
        {"tab",
         [](Screen& screen, const json& r) {
             ChooseTab(screen, ControlOfKind<Tabs>(screen, r, "选项卡"), PlaceOf(r, "index"));
         }},
        {"heading",
         [](Screen& screen, const json& r) {
             ClickHeading(screen, ControlOfKind<Grid>(screen, r, "表格"), PlaceOf(r, "col"));
         }},
        {"drop", DropOnNode},
        {"take", TakeOneSuggested},
        {"pick", PickForField},
        {"close", [](Screen& screen, const json&) { Leave(screen); }},
    };
    return gestures;
}

using Question = json (*)(const Screen&, const json&);

const std::map<std::string, Question>& Questions() {
    static const std::map<std::string, Question> questions{
        {"controls", [](const Screen& screen, const json&) { return ListControls(screen); }},
        {"get", [](const Screen& screen, const json& r) { return GetControl(ControlOf(screen, r)); }},
        {"suggest", SuggestionsAsJson},
    };
    return questions;
}

} // namespace

std::string TextOf(const json& request, const std::string& part) {
    if (!request.contains(part) || !request.at(part).is_string())
        throw RequestError("请求缺少文本 " + part + "。");
    std::string text = request.at(part).get<std::string>();
    if (text.find('\0') != std::string::npos)
        throw RequestError(part + " 含有无效字符。");
    return text;
}

std::int64_t NumberOf(const json& request, const std::string& part) {
    if (!request.contains(part) || !request.at(part).is_number_integer())
        throw RequestError("请求缺少整数 " + part + "。");
    if (request.at(part).is_number_unsigned() && request.at(part).get<std::uint64_t>() > INT64_MAX)
        throw RequestError(part + " 超出范围。");
    return request.at(part).get<std::int64_t>();
}

Value ValueOf(const json& request, const std::string& part) {
    if (!request.contains(part))
        throw RequestError("请求缺少 " + part + "。");
    const json& value = request.at(part);
    if (value.is_null())
        return {};
    if (value.is_boolean())
        return std::int64_t{value.get<bool>()};
    if (value.is_number_integer())
        return NumberOf(request, part);
    if (value.is_number())
        return value.get<double>();
    if (value.is_string())
        return TextOf(request, part);
    throw RequestError(part + " 须为文本、数字、true、false 或 null。");
}

bool EqualsButton(const std::string& name, BoxButton button) {
    return EqualsNoCase(name, ButtonName(button));
}

json ServeScreen(Screen& screen, const json& request) {
    const std::string operation = TextOf(request, "op");
    if (const auto question = Questions().find(operation); question != Questions().end())
        return question->second(screen, request);
    const auto gesture = Gestures().find(operation);
    if (gesture == Gestures().end())
        throw RequestError("窗口打开时不能执行 " + operation + "。");
    gesture->second(screen, request);
    return nullptr;
}

std::vector<std::string> ScreenOperations() {
    std::vector<std::string> operations;
    for (const auto& [operation, question] : Questions())
        operations.push_back(operation);
    for (const auto& [operation, gesture] : Gestures())
        operations.push_back(operation);
    return operations;
}

} // namespace jxc
