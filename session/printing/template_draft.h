// A template while the supervisor changes it: the rules of its editor, whatever shows it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "session/components.h"

namespace jxc {

// The fault for which the job cannot be printed by `text`; "" for none. What only the laying out on paper tells is not
// found here.
std::string TemplateFault(const TemplatePrintJob& job, const std::string& text);
// The paper that the text asks for; "" when it cannot be read.
std::string PaperOf(const std::string& text);
// By which the job is printed on the paper: the company's own template if that is for it, else the paper's default.
std::string LayoutOn(const TemplatePrintJob& job, const std::string& paper);
// What a user is told of a template that cannot be printed: the fault, and who can mend it.
std::string UnprintableText(const TemplatePrintJob& job, const std::string& fault);

// How paper lies, as the first line of a template tells it; margins in millimetres: top, right, bottom, left.
struct PaperChoice {
    std::string name;
    bool landscape = false;
    std::array<double, 4> margins{};
    bool operator==(const PaperChoice&) const = default;
};

class TemplateDraft {
  public:
    // Begins with the template by which the job is printed.
    explicit TemplateDraft(TemplatePrintJob job);

    std::string text; // as typed

    // The job, to be printed by the text as it stands.
    TemplatePrintJob Job() const;
    std::string Fault() const { return TemplateFault(job_, text); }
    // The line of the text, from 1, that holds what the fault names; 0 when that is nowhere.
    int LineOf(const std::string& fault) const;
    bool IsChanged() const { return text != asOpened_; }
    // What may be inserted: fields and columns with their brackets, sums, bar codes.
    std::vector<std::string> Keys() const;

    // The text's paper; nothing when it cannot be read.
    std::optional<PaperChoice> Paper() const;
    // Changes the text's paper and nothing else; a default that was not touched becomes that of the other paper.
    void TakePaper(const PaperChoice& paper);

    // Each tells what is refused and writes in a transaction of its own; false when nothing was written.
    // Save refuses what cannot be printed; where another user kept another text meanwhile it asks whose counts.
    bool Save();
    // Back to the default, after a question.
    bool Restore();
    // Before the editor is left: asks what becomes of text that is not saved. False when the person stays.
    [[nodiscard]] bool MayClose();
    // Whether something was written since the beginning.
    bool WasKept() const { return written_; }

  private:
    std::string Title() const { return job_.typeName + "：打印模板"; }
    bool Keep(const std::optional<std::string>& wanted);
    bool KeepOrAsk(const std::optional<std::string>& wanted) const;
    bool IsDefault() const;

    TemplatePrintJob job_;
    std::string asOpened_;
    bool written_ = false;
};

} // namespace jxc
