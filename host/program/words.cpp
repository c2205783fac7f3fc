#include "host/program/words.h"

#include <cstring>

namespace jxc {

void SpeakChinese(CLI::App& app) {
    const auto formatter = std::make_shared<CLI::Formatter>();
    for (const auto& [word, chinese] : {std::pair("Usage", "用法"),
                                        {"Options", "选项"},
                                        {"OPTIONS", "选项"},
                                        {"SUBCOMMAND", "命令"},
                                        {"SUBCOMMANDS", "命令"},
                                        {"Subcommands", "命令"},
                                        {"Positionals", "参数"},
                                        {"POSITIONALS", "参数"},
                                        {"REQUIRED", "必需"},
                                        {"TEXT", "文本"},
                                        {"Excludes", "不与之同用"}})
        formatter->label(word, chinese);
    app.formatter(formatter);
    app.option_defaults()->group("选项"); // which the commands take over
    app.group("命令");
    app.set_help_flag("-h,--help", "显示用法");
    app.set_help_all_flag("--help-all", "显示所有命令的用法");
}

// The library tells it in English, as far as it names something.
std::string ReasonOf(const CLI::App& app, const CLI::ParseError& error) {
    const std::string told = error.what();
    const auto before = [&](const char* mark) { return told.substr(0, told.find(mark)); };
    const auto after = [&](const char* mark) {
        const size_t at = told.find(mark);
        return at == std::string::npos ? "" : told.substr(at + std::strlen(mark));
    };
    if (dynamic_cast<const CLI::ExtrasError*>(&error)) // which tells the words backwards
        return "多余的参数，或不认识的命令或选项：" + CLI::detail::join(app.remaining(true), " ");
    if (dynamic_cast<const CLI::ExcludesError*>(&error))
        return before(" excludes ") + " 与 " + after(" excludes ") + " 不能同时使用";
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error))
        return "选项缺少值，或值过多：" + before(":");
    if (dynamic_cast<const CLI::RequiredError*>(&error))
        return told.rfind("A subcommand", 0) == 0 ? "缺少命令" : "缺少参数：" + before(" is required");
    return "命令行不正确";
}

} // namespace jxc
