#include "session/html_printer.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <stdlib.h>

#include "controls/view.h"
#include "session/html_pages.h"
#include "session/session.h"

namespace jxc {

namespace {

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
    out << html;
    out.close();
    if (!out)
        throw std::runtime_error("打印文件 " + file.string() + " 无法写入。");
    CurrentView().OpenAddress(file.string());
}

} // namespace

void HtmlPrinter::Print(const GridPrintJob& job) {
    WriteAndOpen("grid", GridPage(job));
}

void HtmlPrinter::Print(const TemplatePrintJob& job) {
    WriteAndOpen("document", TemplatePage(job));
}

} // namespace jxc
