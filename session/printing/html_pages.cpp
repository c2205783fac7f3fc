#include "session/printing/html_pages.h"

#include "base/date.h"
#include "session/printing/paper_template.h"
#include "session/printing/print_grid.h"

namespace jxc {

namespace {

std::string Head(const std::string& title) {
    return "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + EscapedHtml(title) +
           "</title>\n<style>body{font-family:sans-serif}h1{font-size:15pt;text-align:center}"
           "table{border-collapse:collapse}td,th{border:1px solid #888;padding:2px 5px}th{background:#eee}"
           ".number{text-align:right}.pairs td{border:none}</style></head>\n<body>\n";
}

// The header's pairs, three to a row.
std::string Pairs(const FieldList& fields) {
    std::string html = "<table class=\"pairs\" width=\"100%\">\n<tr>";
    int shown = 0;
    for (const auto& [key, value] : ShownHeader(fields)) {
        if (shown > 0 && shown % 3 == 0)
            html += "</tr>\n<tr>";
        html += "<td>" + EscapedHtml(key) + "：" + EscapedHtml(value) + "</td>";
        ++shown;
    }
    return html + "</tr>\n</table>\n";
}

std::string GridTable(const Grid& grid) {
    std::string html = "<table width=\"100%\">\n<tr>";
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        if (!grid.Column(column).hidden)
            html += "<th>" + EscapedHtml(grid.Column(column).caption) + "</th>";
    html += "</tr>\n";
    for (int row = 1; row <= grid.RowCount(); ++row) {
        html += "<tr>";
        for (int column = 1; column <= grid.ColumnCount(); ++column) {
            if (grid.Column(column).hidden)
                continue;
            const bool number = grid.Column(column).type == CellType::Number;
            html += (number ? "<td class=\"number\">" : "<td>") + EscapedHtml(grid.ShownText(row, column)) +
                    "</td>";
        }
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

constexpr const char* kEnd = "</body></html>\n";

} // namespace

std::string GridPage(const GridPrintJob& job) {
    std::string html = Head(job.title) + "<h1>" + EscapedHtml(job.title) + "</h1>\n" + Pairs(job.header) +
                       GridTable(*job.grid);
    if (!job.amount.empty())
        html += "<p>" + EscapedHtml(kAmountCaption) + "：" + EscapedHtml(job.amount) + "</p>\n";
    return html + kEnd;
}

// One long page a document, for programs that know no bands: whoever shows it has its own pages.
std::string TemplatePages(const std::vector<TemplatePrintJob>& jobs) {
    std::string html;
    for (const TemplatePrintJob& job : jobs) {
        const PaperTemplate paper = ParseTemplate(job.layout);
        const TemplateData data(job, NowText());
        data.RequireKnownKeys(paper);
        const TemplateData::Page whole{.first = 0, .end = data.LineCount()};
        if (html.empty())
            html = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" +
                   EscapedHtml(job.typeName) + "</title>\n<style>" + paper.style +
                   "</style></head>\n<body>\n";
        else
            html += "<div style=\"page-break-before: always\"></div>\n<style>" + paper.style + "</style>\n";
        html += data.Filled(paper, Band::Header, whole) + data.Filled(paper, Band::Headings, whole);
        for (size_t line = 0; line < data.LineCount(); ++line)
            html += data.Filled(paper, Band::Row, whole, line);
        for (const Band band : {Band::Subtotal, Band::Total, Band::Footer})
            html += data.Filled(paper, band, whole);
    }
    return html + kEnd;
}

std::string TemplatePage(const TemplatePrintJob& job) {
    return TemplatePages({job});
}

} // namespace jxc
