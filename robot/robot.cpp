#include "robot/robot.h"

#include <istream>
#include <ostream>

#include "controls/gestures.h"
#include "robot/robot_requests.h"
#include "session/screen_entries.h"

namespace jxc {

using nlohmann::json;

namespace {

constexpr const char* kAnswer = "answer"; // the one operation while a box waits

json BoxAsJson(const MessageBox& box) {
    json buttons = json::array();
    for (const BoxButton button : box.buttons)
        buttons.push_back(ButtonName(button));
    json told{{"title", box.title}, {"text", box.text}, {"icon", IconName(box.icon)}, {"buttons", buttons}};
    if (!box.details.empty())
        told["details"] = box.details;
    return told;
}

// The answer that changes nothing.
BoxButton Harmless(const MessageBox& box) {
    for (const BoxButton wanted : {BoxButton::Cancel, BoxButton::No})
        for (const BoxButton button : box.buttons)
            if (button == wanted)
                return button;
    return box.buttons.front();
}

BoxButton ButtonOf(const json& request, const MessageBox& box) {
    const std::string name = TextOf(request, "button");
    for (const BoxButton button : box.buttons)
        if (EqualsButton(name, button))
            return button;
    throw RequestError("提示框没有按钮 " + name + "。");
}

} // namespace

std::optional<json> JsonLines::Next() {
    std::string line;
    while (std::getline(in_, line)) {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        json request = json::parse(line, nullptr, false);
        if (request.is_object())
            return request;
        Reply({{"ok", false}, {"error", "请求须为一行一个 JSON 对象。"}});
    }
    return std::nullopt;
}

void JsonLines::Reply(const json& reply) {
    out_ << reply.dump(-1, ' ', false, json::error_handler_t::replace) << '\n';
    out_.flush();
}

std::optional<json> Robot::Await(const char* waiting, const MessageBox* box) {
    if (pending_) {
        json reply = *pending_;
        pending_.reset();
        if (reply["ok"] == true) {
            reply["waiting"] = waiting;
            if (!screens_.empty()) {
                reply["screen"] = screens_.back()->name;
                reply["title"] = screens_.back()->title;
            }
            if (box)
                reply["box"] = BoxAsJson(*box);
            if (!signal_.empty())
                reply["signal"] = signal_;
        }
        signal_.clear();
        source_.Reply(reply);
    }
    if (ended_)
        return std::nullopt;
    auto request = source_.Next();
    ended_ = !request;
    if (request)
        pending_ = json{{"ok", true}};
    return request;
}

template <typename Serve>
void Robot::Answer(const Serve& serve) {
    try {
        serve();
    } catch (const std::exception& error) {
        pending_ = json{{"ok", false}, {"error", TextForPeople("robot", error)}};
    }
}

void Robot::Run() {
    const ViewInUse inUse(*this);
    while (const auto request = Await("host"))
        Answer([&] { ServeHost(*request); });
}

const std::map<std::string, Robot::HostOperation>& Robot::HostOperations() {
    static const std::map<std::string, HostOperation> operations{
        {"property", &Robot::SetProperty}, {"refresh", &Robot::Refresh}, {"open", &Robot::OpenScreen}};
    return operations;
}

std::vector<std::string> Robot::Operations() {
    std::vector<std::string> operations = ScreenOperations();
    for (const auto& [operation, serve] : HostOperations())
        operations.push_back(operation);
    operations.emplace_back(kAnswer);
    return operations;
}

void Robot::ServeHost(const json& request) {
    const std::string operation = TextOf(request, "op");
    const auto serve = HostOperations().find(operation);
    if (serve == HostOperations().end())
        throw RequestError("没有打开的窗口，不能执行 " + operation + "。");
    (this->*serve->second)(request);
}

void Robot::SetProperty(const json& request) {
    control_.SetProperty(TextOf(request, "name"), ValueOf(request, "value"));
}

void Robot::Refresh(const json& request) {
    ScreenProperties properties;
    if (request.contains("properties"))
        for (const auto& [name, value] : request.at("properties").items())
            properties[name] = ValueOf(request.at("properties"), name);
    const std::int64_t action = NumberOf(request, "action");
    if (action < INT16_MIN || action > INT16_MAX)
        throw RequestError("action 须为 16 位整数。");
    control_.Refresh(static_cast<std::int16_t>(action), properties);
}

void Robot::OpenScreen(const json& request) {
    OpenByName(TextOf(request, "screen"));
}

void Robot::RunModal(Screen& screen) {
    screens_.push_back(&screen);
    while (screen.IsOpen() && !ended_) {
        const auto request = Await("screen");
        if (!request)
            break;
        Answer([&] {
            const json value = ServeScreen(screen, *request);
            if (!value.is_null() && pending_)
                (*pending_)["value"] = value;
        });
    }
    screens_.pop_back();
}

BoxButton Robot::ShowBox(const MessageBox& box) {
    while (const auto request = Await("box", &box)) {
        BoxButton chosen{};
        bool answered = false;
        Answer([&] {
            if (TextOf(*request, "op") != kAnswer)
                throw RequestError("请先回答提示框：" + box.text);
            chosen = ButtonOf(*request, box);
            answered = true;
        });
        if (answered)
            return chosen;
    }
    return Harmless(box);
}

void Robot::ShowNotice(const std::string& title, const std::string& text) {
    ShowBox({title, text, BoxIcon::Information, {BoxButton::OK}});
}

} // namespace jxc
