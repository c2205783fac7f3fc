#include "robot/scenario_verbs.h"

#include <sstream>
#include <stdexcept>

#include "base/text.h"

namespace jxc {

namespace {

std::string TakeWord(std::string& rest) {
    const size_t end = std::min(rest.find(' '), rest.size());
    std::string word = rest.substr(0, end);
    rest = Trim(rest.substr(end));
    return word;
}

void Replace(std::string& text, const std::string& what, const std::string& with) {
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

} // namespace

ScenarioVerbs::ScenarioVerbs(const std::string& definitions) {
    std::istringstream in(definitions);
    Verb* verb = nullptr;
    for (std::string line; std::getline(in, line);) {
        std::string rest = Trim(line);
        if (rest.empty() || rest[0] == '#')
            continue;
        if (line[0] == ' ') {
            if (!verb)
                throw std::runtime_error("没有动词：" + rest);
            verb->lines.push_back(rest);
            continue;
        }
        verb = &verbs_[TakeWord(rest)];
        while (!rest.empty())
            verb->parameters.push_back(TakeWord(rest));
    }
}

std::vector<std::string> ScenarioVerbs::LinesOf(const std::string& line) const {
    std::string rest = line;
    const auto found = verbs_.find(TakeWord(rest));
    if (found == verbs_.end())
        return {line};
    const Verb& verb = found->second;
    std::vector<std::string> lines = verb.lines;
    for (const std::string& parameter : verb.parameters) {
        const bool last = &parameter == &verb.parameters.back();
        const std::string value = last ? rest : TakeWord(rest);
        if (value.empty())
            throw std::runtime_error("缺少 " + parameter + "：" + line);
        for (std::string& text : lines)
            Replace(text, "$" + parameter, value);
    }
    return lines;
}

} // namespace jxc
