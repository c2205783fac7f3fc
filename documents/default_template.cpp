#include "documents/default_template.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/text.h"
#include "session/messages.h"
#include "session/printing/paper_template.h"

namespace jxc {

namespace {

const std::string kRoll = "80", kA4 = "A4", kA5 = "A5", kFanfold = "241x140";
// The lines' font, in points; other texts have 9.
std::string Style(double lineFont) {
    return "<style>\n"
           "td {padding: 1px 3px; font-size: 9pt}\n"
           ".company {font-size: 11pt}\n"
           ".title {font-size: 15pt; font-weight: bold}\n"
           ".heading, .lastheading, .cell, .last {font-size: " +
           FormatFixed(lineFont, 1) +
           "pt}\n"
           ".heading, .lastheading {border-left: 1px solid black; border-top: 1px solid black;"
           " border-bottom: 1px solid black; background-color: #eeeeee}\n"
           ".cell, .last {border-left: 1px solid black; border-bottom: 1px solid black}\n"
           ".last, .lastheading {border-right: 1px solid black}\n"
           "</style>\n";
}

struct Field {
    std::string caption, key;
};

std::string Company() {
    return "<" + GetResStr(159) + GetResStr(160) + ">";
}

std::string Text(const Field& field) {
    return field.caption + "：<" + field.key + ">";
}

std::vector<Field> HeaderFields(const TypeRow& type, const TypeCaptions& captions) {
    std::vector<Field> fields = {{"日期", "日期"}, {"单号", "单号"}};
    if (type.HasCustomer()) {
        const bool supplier = type.fSetKhType == Partner::Supplier;
        fields.push_back({supplier ? "供应商" : "客户", "客户单位"});
        fields.insert(fields.end(),
                      {{"联系人", "联系人"}, {"电话", "客户电话"}, {captions.address, captions.address}});
    }
    if (type.HasFirstWarehouse())
        fields.push_back({type.fSetCkName1.empty() ? "仓库" : type.fSetCkName1, "仓库"});
    if (type.HasSecondWarehouse())
        fields.push_back({type.fSetCkName2.empty() ? "入库" : type.fSetCkName2, "仓库2"});
    if (type.IsKit())
        fields.insert(fields.end(), {{"成品", "成品"}, {"套数", "套数"}});
    if (type.fSetDjDd_)
        fields.push_back({captions.order, captions.order});
    if (type.fSetHb_)
        fields.push_back({captions.currency, captions.currency});
    fields.push_back({"摘要", "摘要"});
    return fields;
}

std::string Table(const std::string& rows) {
    return "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">" + rows + "</table>\n";
}

// So many to a row, of the same width.
std::string FieldRows(const std::vector<Field>& fields, size_t perRow) {
    std::string rows;
    const std::string width = std::to_string(100 / perRow);
    for (size_t at = 0; at < fields.size(); ++at) {
        if (at % perRow == 0)
            rows += at == 0 ? "<tr>" : "</tr><tr>";
        rows += "<td width=\"" + width + "%\">" + Text(fields[at]) + "</td>";
    }
    for (size_t at = fields.size(); at % perRow != 0; ++at)
        rows += "<td width=\"" + width + "%\"></td>";
    return Table(rows + "</tr>");
}

// How the columns of lines, the number before them, share the paper: in per cent of its width.
struct Lines {
    double font = 9; // points
    std::vector<int> shares;
};

constexpr double kCharacter =
    0.6; // of the font's size: the width of a digit, and half that of a Chinese character
constexpr double kBesideText = 7; // points of padding and frame
constexpr double kLeastFont = 6;
constexpr double kPointsPerMillimetre = 72 / 25.4;

// A figure that is broken is misread: figures get what they need, captions stay on one line, and texts share what is left,
// in a smaller font where that is too little.
Lines LinesOn(double millimetres, const std::vector<PrintedColumn>& columns) {
    const double paper = millimetres * kPointsPerMillimetre;
    Lines lines;
    std::vector<double> needs(columns.size() + 1), wishes(columns.size() + 1);
    double room = 0, wished = 0;
    for (;; lines.font -= 0.5) {
        const auto points = [&](double characters) {
            return characters * kCharacter * lines.font + kBesideText;
        };
        needs[0] = points(4);
        room = paper - needs[0];
        wished = 0;
        for (size_t at = 0; at < columns.size(); ++at) {
            const int caption = AnsiByteLength(columns[at].caption);
            needs[at + 1] = points(columns[at].figure ? std::max(columns[at].longest, caption) : caption);
            wishes[at + 1] = columns[at].figure ? 0 : columns[at].width;
            room -= needs[at + 1];
            wished += wishes[at + 1];
        }
        if (room >= 0.2 * paper || lines.font <= kLeastFont)
            break;
    }
    for (size_t at = 0; at < needs.size(); ++at) {
        const double extra = wished > 0 && room > 0 ? room * wishes[at] / wished : 0;
        lines.shares.push_back(static_cast<int>(std::ceil(100 * (needs[at] + extra) / paper)));
    }
    const auto widest = std::ranges::max_element(wishes) - wishes.begin(); // takes what rounding leaves
    lines.shares[static_cast<size_t>(widest)] +=
        100 - std::accumulate(lines.shares.begin(), lines.shares.end(), 0);
    return lines;
}

std::string Row(const std::vector<PrintedColumn>& columns, const std::vector<int>& shares, bool headings) {
    const auto cell = [&](size_t at, const std::string& text, bool right) {
        const bool last = at == columns.size();
        const std::string kind = headings ? (last ? "lastheading" : "heading") : last ? "last" : "cell";
        return "<td class=\"" + kind + "\" width=\"" + std::to_string(shares[at]) + "%\"" +
               (headings ? " align=\"center\""
                : right  ? " align=\"right\""
                         : "") +
               ">" + text + "</td>";
    };
    std::string row = cell(0, headings ? "序号" : "<<序号>>", false);
    for (size_t at = 0; at < columns.size(); ++at)
        row += cell(at + 1, headings ? EscapedHtml(columns[at].caption) : "<<" + columns[at].caption + ">>",
                    columns[at].figure);
    return Table("<tr>" + row + "</tr>");
}

const PrintedColumn* ColumnAt(const std::vector<PrintedColumn>& columns, const std::string& caption) {
    const auto found = std::ranges::find(columns, caption, &PrintedColumn::caption);
    return found == columns.end() ? nullptr : &*found;
}

std::string Sums(const std::string& what, const std::vector<PrintedColumn>& columns) {
    std::string text;
    for (const char* caption : {"数量", "金额", "盈亏数"})
        if (ColumnAt(columns, caption))
            text += "　" + std::string(caption) + " <" + what + " " + caption + ">";
    return text.empty() ? "" : what + text;
}

std::string Sheet(const TypeRow& type, bool narrow, const TypeCaptions& captions,
                  const std::vector<PrintedColumn>& columns, const std::vector<int>& shares) {
    const bool hasAmount = ColumnAt(columns, "金额") != nullptr;
    const std::string code = "<img src=\"barcode:单号\" width=\"150\" height=\"32\">";
    std::string html = "<!--header-->\n";
    html += Table("<tr><td width=\"26%\"><img src=\"logo\" height=\"40\"></td>"
                  "<td width=\"48%\" align=\"center\"><span class=\"company\">" +
                  Company() + "</span><br><span class=\"title\"><单据名称></span></td>" +
                  "<td width=\"26%\" align=\"right\">" + code + "</td></tr>");
    html += FieldRows(HeaderFields(type, captions), narrow ? 2 : 3);
    html += "<!--continued-->\n" +
            Table("<tr><td>" + Company() + "　<单据名称>　<单号></td><td align=\"right\">续页</td></tr>");
    html += "<!--headings-->\n" + Row(columns, shares, true);
    html += "<!--row-->\n" + Row(columns, shares, false);
    const std::string page = Sums("本页", columns), all = Sums("合计", columns);
    html += "<!--subtotal-->\n" + Table("<tr><td class=\"last\" align=\"right\">" + page + "</td></tr>");
    html += "<!--total-->\n";
    html += Table("<tr><td class=\"cell\">" +
                  (hasAmount ? "大写：<大写 " + captions.total + ">" : std::string()) +
                  "</td><td class=\"last\" align=\"right\">" + all + "</td></tr>");
    html += Table("<tr><td>备注：<备注></td></tr>");
    html += Table("<tr><td width=\"25%\">制单：<制单人></td><td width=\"25%\">审核：<审核人></td>"
                  "<td width=\"25%\">经手人：<经手人></td><td width=\"25%\">签收：</td></tr>");
    html +=
        "<!--footer-->\n" +
        Table("<tr><td>打印时间：<打印时间></td><td align=\"right\">第 <页码> 页，共 <页数> 页</td></tr>");
    return html;
}

// A till's receipt: a product takes two rows of the narrow roll.
std::string Roll(const TypeRow& type, const TypeCaptions& captions,
                 const std::vector<PrintedColumn>& columns) {
    const auto key = [&](const char* caption) {
        return ColumnAt(columns, caption) ? "<<" + std::string(caption) + ">>" : std::string();
    };
    std::string html = "<!--header-->\n" +
                       Table("<tr><td align=\"center\">" + Company() + "<br><b><单据名称></b></td></tr>");
    html += FieldRows(HeaderFields(type, captions), 1);
    html += "<!--headings-->\n" +
            Table("<tr><td style=\"border-bottom: 1px solid black\">品名规格／数量　单价　金额</td></tr>");
    html += "<!--row-->\n" + Table("<tr><td colspan=\"3\">" + key("品名规格") +
                                   "</td></tr><tr><td width=\"34%\" align=\"right\">" +
                                   (key("数量") + key("盈亏数") + " " + key("单位")) +
                                   "</td><td width=\"30%\" align=\"right\">" + key("单价") +
                                   "</td><td width=\"36%\" align=\"right\">" + key("金额") + "</td></tr>");
    html += "<!--total-->\n" + Table("<tr><td style=\"border-top: 1px solid black\" align=\"right\">" +
                                     Sums("合计", columns) + "</td></tr>");
    html += "<!--footer-->\n" +
            Table("<tr><td align=\"center\"><img src=\"barcode:单号\" width=\"180\" height=\"36\"><br>"
                  "<打印时间></td></tr>");
    return html;
}

} // namespace

std::string DefaultPaper(int type) {
    switch (std::abs(type)) {
    case DocType::Retail:
        return kRoll;
    case DocType::Plan:
    case DocType::Enquiry:
    case DocType::Quotation:
    case DocType::PurchaseOrder:
    case DocType::SalesOrder:
        return kA4;
    case DocType::Opening:
    case DocType::Stocktake:
    case DocType::Assembly:
    case DocType::Dismantling:
        return kA5;
    default:
        return kFanfold; // goods are accompanied by copies
    }
}

std::string DefaultTemplate(const TypeRow& type, const std::string& paper, const TypeCaptions& captions,
                            const std::vector<PrintedColumn>& columns) {
    if (paper == kRoll)
        return "<!--paper 80 4 4 8 4-->\n" + Style(9) + Roll(type, captions, columns);
    const PaperSize& size = *std::ranges::find(PaperSizes(), paper, &PaperSize::name);
    const bool fanfold = paper.starts_with("241"), lying = paper == kA5;
    const int side = fanfold ? 16 : lying ? 10 : 15; // the fanfold's holes lie beside
    const std::string margins = fanfold ? "8 16 6 16" : lying ? "10 10 10 10" : "15 15 12 15";
    const Lines lines = LinesOn((lying ? size.height : size.width) - 2 * side, columns);
    return "<!--paper " + paper + (lying ? " landscape " : " ") + margins + "-->\n" + Style(lines.font) +
           Sheet(type, lying, captions, columns, lines.shares);
}

} // namespace jxc
