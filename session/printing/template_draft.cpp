#include "session/printing/template_draft.h"

#include <algorithm>
#include <cmath>

#include "base/date.h"
#include "base/text.h"
#include "controls/view.h"
#include "session/messages.h"
#include "session/printing/paper_template.h"
#include "session/printing/print_grid.h"
#include "session/printing/stored_templates.h"
#include "session/session.h"

namespace jxc {

namespace {

const std::string kOpen = "<!--", kPaper = "paper", kClose = "-->";

std::string Millimetres(double length) {
    return FormatFixed(length, length == std::floor(length) ? 0 : 1);
}

std::string PaperLine(const PaperChoice& paper) {
    std::string line = kOpen + kPaper + " " + paper.name + (paper.landscape ? " landscape" : "");
    for (const double margin : paper.margins)
        line += " " + Millimetres(margin);
    return line + kClose;
}

struct Place {
    size_t begin = 0, end = 0;
};

// Where the text tells its paper: of several marks the last one counts.
std::optional<Place> PaperMark(const std::string& text) {
    std::optional<Place> mark;
    for (size_t at = text.find(kOpen); at != std::string::npos;) {
        const size_t end = text.find(kClose, at);
        if (end == std::string::npos)
            break;
        const size_t inside = at + kOpen.size();
        if (Trim(text.substr(inside, end - inside)).starts_with(kPaper + " "))
            mark = Place{at, end + kClose.size()};
        at = text.find(kOpen, end);
    }
    return mark;
}

// Of the fields that templates may name, those that they name: of two with one caption the first.
void AddFields(std::vector<std::string>& keys, const FieldList& fields) {
    for (size_t at = 0; at + 1 < fields.size(); at += 2) {
        const std::string key = "<" + PlainKey(fields[at]) + ">";
        if (key != "<>" && std::ranges::find(keys, key) == keys.end())
            keys.push_back(key);
    }
}

} // namespace

std::string TemplateFault(const TemplatePrintJob& job, const std::string& text) {
    try {
        TemplateData(job, NowText()).RequireKnownKeys(ParseTemplate(text));
    } catch (const TemplateError& error) {
        return error.what();
    }
    return "";
}

std::string PaperOf(const std::string& text) {
    try {
        return ParseTemplate(text).size.name;
    } catch (const TemplateError&) {
        return "";
    }
}

std::string LayoutOn(const TemplatePrintJob& job, const std::string& paper) {
    return job.own && PaperOf(*job.own) == paper ? *job.own : job.defaultOn(paper);
}

std::string UnprintableText(const TemplatePrintJob& job, const std::string& fault) {
    if (!job.own)
        return fault;
    return fault + "\n\n单据没有打印。请系统主管在打印预览的“模板”中改正本公司的模板，或恢复默认模板。";
}

TemplateDraft::TemplateDraft(TemplatePrintJob job)
    : text(job.layout), job_(std::move(job)), asOpened_(job_.layout) {}

TemplatePrintJob TemplateDraft::Job() const {
    TemplatePrintJob job = job_;
    job.layout = text;
    return job;
}

int TemplateDraft::LineOf(const std::string& fault) const {
    const std::string opens = "“", closes = "”";
    const size_t begin = fault.find(opens), end = fault.find(closes);
    if (begin == std::string::npos || end == std::string::npos)
        return 0;
    const std::string named = fault.substr(begin + opens.size(), end - begin - opens.size());
    size_t at = LowerCase(text).find(LowerCase(named));
    if (at == std::string::npos) // of a bar code the field alone is in the text
        at = text.find(PlainKey(named));
    if (named.empty() || at == std::string::npos)
        return 0;
    return 1 +
           static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

std::vector<std::string> TemplateDraft::Keys() const {
    std::vector<std::string> keys;
    AddFields(keys, job_.fields);
    AddFields(keys, job_.further);
    keys.emplace_back("<<序号>>");
    for (const auto& [key, field] : job_.columns)
        keys.push_back(key);
    for (const auto& [key, field] : job_.columns)
        if (field == "fInvSl" || field == "fInvJe" || field == "fInvTax")
            for (const char* what : {"本页", "累计", "合计"})
                keys.push_back("<" + std::string(what) + " " + PlainKey(PlainKey(key)) + ">");
    for (const char* key :
         {"<页码>", "<页数>", "<打印时间>", "<单据名称>", "<img src=\"logo\" height=\"40\">",
          "<img src=\"barcode:单号\" width=\"150\" height=\"32\">",
          "<img src=\"qrcode:单号\" width=\"80\" height=\"80\">"})
        keys.emplace_back(key);
    return keys;
}

std::optional<PaperChoice> TemplateDraft::Paper() const {
    try {
        const PaperTemplate paper = ParseTemplate(text);
        return PaperChoice{paper.size.name, paper.landscape, paper.margins};
    } catch (const TemplateError&) {
        return std::nullopt;
    }
}

bool TemplateDraft::IsDefault() const {
    return std::ranges::any_of(PaperSizes(),
                               [&](const PaperSize& size) { return text == job_.defaultOn(size.name); });
}

void TemplateDraft::TakePaper(const PaperChoice& paper) {
    if (const auto now = Paper(); now && now->name != paper.name && IsDefault()) {
        text = job_.defaultOn(paper.name);
        return;
    }
    if (const auto mark = PaperMark(text))
        text.replace(mark->begin, mark->end - mark->begin, PaperLine(paper));
    else
        text = PaperLine(paper) + "\n" + text;
}

// False when another user's text stays.
bool TemplateDraft::KeepOrAsk(const std::optional<std::string>& wanted) const {
    if (KeepTemplate(job_.type, job_.typeName, job_.own, wanted))
        return true;
    if (!AskYesNo(Title(), "该模板在您打开以后已被其他用户修改。\n\n要用您的覆盖吗？"))
        return false;
    if (KeepTemplate(job_.type, job_.typeName, StoredTemplate(job_.type), wanted))
        return true;
    Warn(Title(), "该模板刚刚又被其他用户修改，没有存盘。");
    return false;
}

// Whoever may change templates is told to the printer by the job's mode; the right is the user's.
bool TemplateDraft::Keep(const std::optional<std::string>& wanted) {
    if (session.UserName.empty() || !EqualsNoCase(session.UserName, session.ZgName)) {
        Warn(Title(), GetResStr(kMsgNoRight));
        return false;
    }
    bool kept = false;
    if (!Attempt(Title(), [&] { kept = KeepOrAsk(wanted); }) || !kept)
        return false;
    job_.own = wanted;
    if (!wanted)
        text = job_.defaultOn(job_.defaultPaper);
    asOpened_ = text;
    return written_ = true;
}

bool TemplateDraft::Save() {
    if (const std::string fault = Fault(); !fault.empty()) {
        Warn(Title(), fault);
        return false;
    }
    return Keep(text);
}

bool TemplateDraft::Restore() {
    if (!AskOkCancel(Title(), "恢复默认模板？本公司的模板将被删除。"))
        return false;
    return Keep(std::nullopt);
}

bool TemplateDraft::MayClose() {
    if (!IsChanged())
        return true;
    switch (AskSaveOrDiscard(Title(), "模板尚未存盘，放弃所作的修改？")) {
    case BoxButton::Save:
        return Save();
    case BoxButton::Discard:
        return true;
    default:
        return false;
    }
}

} // namespace jxc
