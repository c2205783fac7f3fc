#include "session/html_printer.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <stdlib.h>

#include "controls/view.h"
#include "session/session.h"

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
           "</title>\n<style>body{font-family:sans-serif;margin:2em}h1{font-size:1.4em;text-align:center}"
           "table{border-collapse:collapse;width:100%}td,th{border:1px solid #888;padding:2px 6px}"
           ".number{text-align:right}dl{display:grid;grid-template-columns:repeat(4,auto 1fr);gap:2px 8px}"
           "dd{margin:0}</style></head>\n<body>\n";
}

// The header's pairs; those without a value are left out. Keys stand in "<" and ">" for templates only.
std::string Pairs(const FieldList& fields) {
    std::string html = "<dl>\n";
    for (size_t i = 0; i + 1 < fields.size(); i += 2) {
        if (fields[i + 1].empty())
            continue;
        std::string key = fields[i];
        if (key.size() > 2 && key.front() == '<' && key.back() == '>')
            key = key.substr(1, key.size() - 2);
        html += "<dt>" + Escaped(key) + "</dt><dd>" + Escaped(fields[i + 1]) + "</dd>\n";
    }
    return html + "</dl>\n";
}

std::string GridTable(const Grid& grid) {
    std::string html = "<table>\n<tr>";
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

// Without a folder of the host, a new one that only this user can read: printouts hold the company's figures.
std::filesystem::path PrivateFolder() {
    static const std::string made = [] {
        std::string name = (std::filesystem::temp_directory_path() / "jxc-print-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("无法建立打印目录 " + name + "。");
        return name;
    }();
    return made;
}

std::filesystem::path SheetFolder() {
    const std::filesystem::path base =
        session.PowerPath.empty() ? PrivateFolder() : std::filesystem::path(session.PowerPath);
    const std::filesystem::path folder = base / "Sheet";
    std::filesystem::create_directories(folder);
    return folder;
}

void WriteAndOpen(const std::string& name, const std::string& html) {
    const std::filesystem::path file = SheetFolder() / (name + ".html");
    std::ofstream out(file, std::ios::binary);
    out << html << "</body></html>\n";
    out.close();
    if (!out)
        throw std::runtime_error("打印文件 " + file.string() + " 无法写入。");
    CurrentView().OpenAddress(file.string());
}

} // namespace

void HtmlPrinter::Print(const GridPrintJob& job) {
    std::string html = Head(job.title) + "<h1>" + Escaped(job.title) + "</h1>\n" + Pairs(job.header);
    html += GridTable(*job.grid);
    if (!job.amount.empty())
        html += "<p>" + Escaped(job.amount) + "</p>\n";
    WriteAndOpen("grid", html);
}

void HtmlPrinter::Print(const TemplatePrintJob& job) {
    std::string html = Head(job.typeName) + "<h1>" + Escaped(job.typeName) + "</h1>\n" + Pairs(job.fields);
    html += "<table>\n<tr>";
    for (const auto& [key, field] : job.columns)
        html += "<th>" + Escaped(key.substr(2, key.size() - 4)) + "</th>";
    html += "</tr>\n";
    for (const auto& line : job.lines) {
        html += "<tr>";
        for (const std::string& text : line)
            html += "<td>" + Escaped(text) + "</td>";
        html += "</tr>\n";
    }
    WriteAndOpen("document", html + "</table>\n");
}

} // namespace jxc
