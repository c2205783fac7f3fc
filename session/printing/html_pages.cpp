#include "session/printing/html_pages.h"

#include "session/printing/print_grid.h"

namespace jxc {

namespace {

std::string Escaped(const std::string& text) {
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

std::string Head(const std::string& title) {
    return "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + Escaped(title) +
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
        html += "<td>" + Escaped(key) + "：" + Escaped(value) + "</td>";
        ++shown;
    }
    return html + "</tr>\n</table>\n";
}

std::string GridTable(const Grid& grid) {
    std::string html = "<table width=\"100%\">\n<tr>";
    for (int column = 1; column <= grid.ColumnCount(); ++column)
        if (!grid.Column(column).hidden)
            html += "<th>" + Escaped(grid.Column(column).caption) + "</th>";
    html += "</tr>\n";
    for (int row = 1; row <= grid.RowCount(); ++row) {
        html += "<tr>";
        for (int column = 1; column <= grid.ColumnCount(); ++column) {
            if (grid.Column(column).hidden)
                continue;
            const bool number = grid.Column(column).type == CellType::Number;
            html +=
                (number ? "<td class=\"number\">" : "<td>") + Escaped(grid.ShownText(row, column)) + "</td>";
        }
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

constexpr const char* kEnd = "</body></html>\n";

} // namespace

std::string GridPage(const GridPrintJob& job) {
    std::string html =
        Head(job.title) + "<h1>" + Escaped(job.title) + "</h1>\n" + Pairs(job.header) + GridTable(*job.grid);
    if (!job.amount.empty())
        html += "<p>" + Escaped(kAmountCaption) + "：" + Escaped(job.amount) + "</p>\n";
    return html + kEnd;
}

std::string TemplatePage(const TemplatePrintJob& job) {
    std::string html = Head(job.typeName) + "<h1>" + Escaped(job.typeName) + "</h1>\n" + Pairs(job.fields);
    html += "<table width=\"100%\">\n<tr>";
    for (const auto& [key, field] : job.columns)
        html += "<th>" + Escaped(key.substr(2, key.size() - 4)) + "</th>";
    html += "</tr>\n";
    for (const auto& line : job.lines) {
        html += "<tr>";
        for (const std::string& text : line)
            html += "<td>" + Escaped(text) + "</td>";
        html += "</tr>\n";
    }
    return html + "</table>\n" + kEnd;
}

} // namespace jxc
