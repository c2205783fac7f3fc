#include "session/printing/html_printer.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <stdexcept>

#include "controls/view.h"
#include "session/printing/html_pages.h"
#include "session/session.h"

namespace jxc {

namespace {

// Printouts hold the company's figures: only this user can read them, and they go when the program ends, until when
// another program shows them.
class Printouts {
  public:
    ~Printouts() {
        std::error_code ignored;
        for (const std::filesystem::path& path : made_)
            std::filesystem::remove_all(path, ignored);
    }

    void Write(const std::string& name, const std::string& html) {
        const std::filesystem::path file = SheetFolder() / (name + ".html");
        made_.insert(file);
        const int out = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
        const bool written = out >= 0 && fchmod(out, 0600) == 0 &&
                             write(out, html.data(), html.size()) == static_cast<ssize_t>(html.size());
        if (out >= 0)
            close(out);
        if (!written)
            throw std::runtime_error("打印文件 " + file.string() + " 无法写入。");
        CurrentView().OpenAddress(file.string());
    }

  private:
    // Without a folder of the host, a new one.
    std::filesystem::path PrivateFolder() {
        if (private_.empty()) {
            std::string name = (std::filesystem::temp_directory_path() / "jxc-print-XXXXXX").string();
            if (!mkdtemp(name.data()))
                throw std::runtime_error("无法建立打印目录 " + name + "。");
            private_ = name;
            made_.insert(private_);
        }
        return private_;
    }
    std::filesystem::path SheetFolder() {
        const std::filesystem::path base =
            session.PowerPath.empty() ? PrivateFolder() : std::filesystem::path(session.PowerPath);
        std::filesystem::path folder = base / "Sheet";
        std::filesystem::create_directories(folder);
        return folder;
    }

    std::filesystem::path private_;
    std::set<std::filesystem::path> made_;
};

void WriteAndOpen(const std::string& name, const std::string& html) {
    static Printouts printouts;
    printouts.Write(name, html);
}

} // namespace

void HtmlPrinter::Print(const GridPrintJob& job) {
    WriteAndOpen("grid", GridPage(job));
}

void HtmlPrinter::Print(const TemplatePrintJob& job) {
    WriteAndOpen("document", TemplatePage(job));
}

std::vector<std::string> HtmlPrinter::PrintAll(const std::vector<TemplatePrintJob>& jobs) {
    WriteAndOpen("documents", TemplatePages(jobs));
    return {};
}

} // namespace jxc
