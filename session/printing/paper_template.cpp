#include "session/printing/paper_template.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "base/capital_amount.h"
#include "base/text.h"
#include "session/printing/print_grid.h"

namespace jxc {

namespace {

constexpr double kLeastMargin = 0, kMostMargin = 60; // millimetres
constexpr std::array<const char*, kBands> kBandNames = {"header",   "continued", "headings", "row",
                                                        "subtotal", "total",     "footer"};
const std::string kOpen = "<!--", kClose = "-->";

// What would open a file or an address. QTextDocument has no scripts; other programs that show the HTML have.
const std::vector<std::string> kForbidden = {"<script", "<link",   "<iframe", "<object",
                                             "<embed",  "@import", "url(",    "javascript:"};

// What stands behind src= in the tags of pictures.
std::vector<std::string> PictureSources(const std::string& html) {
    const std::string lower = LowerCase(html);
    std::vector<std::string> sources;
    for (size_t at = lower.find("<img"); at != std::string::npos; at = lower.find("<img", at + 1)) {
        const size_t end = std::min(lower.find('>', at), lower.size());
        for (size_t src = lower.find("src", at); src < end; src = lower.find("src", src + 1)) {
            const size_t sign = lower.find_first_not_of(" \t\r\n", src + 3);
            if (sign >= end || lower[sign] != '=')
                continue;
            const size_t begin = std::min(lower.find_first_not_of(" \t\r\n\"'", sign + 1), end);
            const size_t stop = std::min(lower.find_first_of(" \t\r\n\"'>", begin), end);
            sources.push_back(html.substr(begin, stop - begin));
        }
    }
    return sources;
}

void RefuseForeign(const std::string& text) {
    const std::string lower = LowerCase(text);
    for (const std::string& word : kForbidden)
        if (lower.find(word) != std::string::npos)
            throw TemplateError("打印模板中不能使用“" + word + "”：模板不得打开其它文件或程序。");
    for (const std::string& asked : PictureSources(text))
        if (asked != "logo" && !asked.starts_with("barcode:") && !asked.starts_with("qrcode:"))
            throw TemplateError("打印模板要求打开“" + asked +
                                "”：图片只能是 logo、barcode:字段 或 qrcode:字段。");
}

std::optional<size_t> BandNamed(const std::string& name) {
    const auto found = std::ranges::find(kBandNames, name);
    return found == kBandNames.end() ? std::nullopt
                                     : std::optional(static_cast<size_t>(found - kBandNames.begin()));
}

// "A5 landscape 8 10 8 10" behind the word paper.
void ReadPaper(const std::vector<std::string>& words, PaperTemplate& paper) {
    const std::string told = words.size() > 1 ? words[1] : "";
    const auto size = std::ranges::find(PaperSizes(), told, &PaperSize::name);
    if (size == PaperSizes().end())
        throw TemplateError("打印模板的纸张“" + told + "”未知，可用的是 A4、A5、241x140、241x279 和 80。");
    paper.size = *size;
    size_t next = 2;
    paper.landscape = words.size() > next && words[next] == "landscape";
    next += paper.landscape ? 1 : 0;
    if (words.size() == next)
        return;
    bool sound = words.size() == next + paper.margins.size();
    for (size_t side = 0; sound && side < paper.margins.size(); ++side) {
        paper.margins[side] = Val(words[next + side]);
        sound = IsNumericText(words[next + side]) && paper.margins[side] >= kLeastMargin &&
                paper.margins[side] <= kMostMargin;
    }
    if (!sound)
        throw TemplateError("打印模板的页边距须是四个 0 至 60 之间的毫米数：上 右 下 左。");
}

std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words;
    for (const std::string& word : Split(text, ' '))
        if (!Trim(word).empty())
            words.push_back(Trim(word));
    return words;
}

// Takes the style sheets out of the text before the first band.
std::string StyleOf(const std::string& preamble) {
    const std::string lower = LowerCase(preamble);
    std::string sheets;
    for (size_t at = lower.find("<style"); at != std::string::npos; at = lower.find("<style", at + 1)) {
        const size_t begin = lower.find('>', at), end = lower.find("</style", at);
        if (begin < end && end != std::string::npos)
            sheets += preamble.substr(begin + 1, end - begin - 1);
    }
    return sheets;
}

bool BeginsTag(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '/' || c == '!' || c == '?';
}

// Calls `key` with every key and `text` with what stands between.
void Scan(const std::string& html, const KeyValue& known, const std::function<void(const std::string&)>& text,
          const std::function<void(const std::string& key, bool ofLine)>& key) {
    size_t from = 0;
    std::array<bool, 2> endless{}; // what has no end has none further on
    for (size_t at = html.find('<'); at != std::string::npos; at = html.find('<', at)) {
        const bool ofLine = html.compare(at, 2, "<<") == 0;
        const size_t begin = at + (ofLine ? 2 : 1);
        const size_t end =
            endless[ofLine ? 1 : 0] ? std::string::npos : html.find(ofLine ? ">>" : ">", begin);
        endless[ofLine ? 1 : 0] = end == std::string::npos;
        const std::string name = end == std::string::npos ? "" : html.substr(begin, end - begin);
        const bool isTag = !ofLine && begin < html.size() && BeginsTag(html[begin]) && !known(name);
        if (name.empty() || isTag) {
            at = begin;
            continue;
        }
        text(html.substr(from, at - from));
        key(name, ofLine);
        from = at = end + (ofLine ? 2 : 1);
    }
    text(html.substr(from));
}

std::string Unknown(const std::string& key, bool ofLine) {
    return "打印模板使用了未知的字段“" + std::string(ofLine ? "<<" : "<") + key + (ofLine ? ">>" : ">") +
           "”。";
}

} // namespace

const std::vector<PaperSize>& PaperSizes() {
    static const std::vector<PaperSize> sizes = {
        {"A4", 210, 297}, {"A5", 148, 210}, {"241x140", 241, 140}, {"241x279", 241, 279}, {"80", 80, 0}};
    return sizes;
}

PaperTemplate ParseTemplate(const std::string& text) {
    RefuseForeign(text);
    PaperTemplate paper;
    std::set<size_t> seen;
    std::optional<size_t> band;
    size_t from = 0;
    std::string preamble;
    const auto finish = [&](size_t end) {
        (band ? paper.bands[*band] : preamble) += text.substr(from, end - from);
    };
    for (size_t at = text.find(kOpen); at != std::string::npos; at = text.find(kOpen, at)) {
        const size_t end = text.find(kClose, at);
        if (end == std::string::npos)
            throw TemplateError("打印模板中的标记“<!--”没有结束。");
        const std::vector<std::string> words = Words(text.substr(at + kOpen.size(), end - at - kOpen.size()));
        finish(at);
        from = at = end + kClose.size();
        if (words.empty())
            continue;
        if (words[0] == "paper") {
            ReadPaper(words, paper);
        } else if (const auto named = BandNamed(words[0]); named && words.size() == 1) {
            if (!seen.insert(*named).second)
                throw TemplateError("打印模板中的标记“" + words[0] + "”出现了两次。");
            band = named;
        }
    }
    finish(text.size());
    if (paper.size.name.empty())
        throw TemplateError("打印模板没有说明纸张，例如 <!--paper A4 15 15 15 15-->。");
    if (Trim(paper.Of(Band::Row)).empty())
        throw TemplateError("打印模板没有产品行，即 <!--row--> 后面的内容。");
    paper.style = StyleOf(preamble);
    return paper;
}

TemplateData::TemplateData(const TemplatePrintJob& job, std::string printed)
    : job_(job), printed_(std::move(printed)) {
    for (const FieldList* fields : {&job.fields, &job.further})
        for (size_t at = 0; at + 1 < fields->size(); at += 2)
            fields_.emplace(PlainKey((*fields)[at]), (*fields)[at + 1]); // of two with one caption the first
}

std::optional<std::string> TemplateData::Field(const std::string& key) const {
    const auto found = fields_.find(key);
    return found == fields_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<size_t> TemplateData::ColumnOf(const std::string& caption) const {
    const std::string key = "<<" + caption + ">>";
    const auto found = std::ranges::find(job_.columns, key, &std::pair<std::string, std::string>::first);
    return found == job_.columns.end() ? std::nullopt
                                       : std::optional(static_cast<size_t>(found - job_.columns.begin()));
}

// With as many decimals as its figures have.
std::optional<std::string> TemplateData::Sum(const std::string& column, size_t first, size_t end) const {
    const auto at = ColumnOf(column);
    if (!at)
        return std::nullopt;
    double sum = 0;
    int decimals = 0;
    for (size_t line = first; line < end; ++line) {
        const std::string& cell = job_.lines[line][*at];
        const size_t point = cell.find('.');
        if (point != std::string::npos)
            decimals = std::max(decimals, static_cast<int>(cell.size() - point - 1));
        sum += Val(cell);
    }
    return FormatFixed(sum, decimals);
}

std::optional<std::string> TemplateData::Value(const std::string& key, const Page& page) const {
    if (auto field = Field(key))
        return field;
    if (key == "页码")
        return std::to_string(page.page);
    if (key == "页数")
        return std::to_string(page.pages);
    if (key == "打印时间")
        return printed_;
    if (key == "单据名称")
        return job_.typeName;
    const size_t blank = key.find(' ');
    if (blank == std::string::npos)
        return std::nullopt;
    const std::string what = key.substr(0, blank), of = Trim(key.substr(blank));
    if (what == "本页")
        return Sum(of, page.first, page.end);
    if (what == "累计")
        return Sum(of, 0, page.end);
    if (what == "合计")
        return Sum(of, 0, LineCount());
    if (what == "大写")
        if (const auto field = Field(of))
            return CapitalAmount(Val(*field));
    return std::nullopt;
}

std::optional<std::string> TemplateData::Cell(const std::string& key, size_t line) const {
    if (key == "序号")
        return std::to_string(line + 1);
    const auto column = ColumnOf(key);
    if (!column)
        return std::nullopt;
    return line < LineCount() ? job_.lines[line][*column] : "";
}

std::string TemplateData::Filled(const PaperTemplate& paper, Band band, const Page& page, size_t line) const {
    const auto known = [&](const std::string& key) { return Value(key, page); };
    std::string html;
    Scan(
        paper.Of(band), known, [&](const std::string& text) { html += text; },
        [&](const std::string& key, bool ofLine) {
            const auto value = !ofLine ? known(key) : band == Band::Row ? Cell(key, line) : std::nullopt;
            if (!value)
                throw TemplateError(Unknown(key, ofLine));
            html += EscapedHtml(*value);
        });
    return html;
}

void TemplateData::RequireKnownKeys(const PaperTemplate& paper) const {
    for (size_t band = 0; band < kBands; ++band) {
        static_cast<void>(Filled(paper, static_cast<Band>(band), {}));
        for (const std::string& source : PictureSources(paper.bands[band]))
            if (const size_t colon = source.find(':');
                colon != std::string::npos && !Field(source.substr(colon + 1)))
                throw TemplateError(Unknown(source.substr(colon + 1), false));
    }
}

std::string EscapedHtml(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

} // namespace jxc
