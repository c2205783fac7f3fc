// Verbs that stand for several lines of a scenario, so that a day's work is told in a day's words. Their definitions are
// a text: a verb with the names of its parameters at the start of a line, what it stands for indented below, with each
// parameter as "$NAME". The last parameter takes the rest of the line.
//
//     filed TYPE NUMBER
//         click cmdSave
//         box $TYPE：新增 | $TYPE：新增：$NUMBER，确定？
#pragma once

#include <map>
#include <string>
#include <vector>

namespace jxc {

class ScenarioVerbs {
  public:
    ScenarioVerbs() = default; // none
    explicit ScenarioVerbs(const std::string& definitions);

    // The lines for which a line stands; a line without such a verb is itself. Too few words are a
    // std::runtime_error.
    std::vector<std::string> LinesOf(const std::string& line) const;

  private:
    struct Verb {
        std::vector<std::string> parameters, lines;
    };
    std::map<std::string, Verb> verbs_;
};

} // namespace jxc
