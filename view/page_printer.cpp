#include "view/page_printer.h"

#include <algorithm>
#include <stdexcept>

#include <QPdfWriter>
#include <QPrinter>

#include "controls/view.h"
#include "session/company/picture_file.h"
#include "session/printing/paper_template.h"
#include "session/printing/template_draft.h"
#include "view/band_paper.h"
#include "view/grid_paper.h"
#include "view/paper_preview.h"
#include "view/paper_stack.h"
#include "view/print_queues.h"
#include "view/qt_text.h"
#include "view/template_editor.h"

namespace jxc {

void WritePdf(const Paper& paper, const QString& file) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(out.errorString()));
    {
        QPdfWriter writer(&out);
        writer.setPageLayout(paper.LayoutOf(1));
        QPainter painter(&writer);
        for (int page = 1; page <= paper.PageCount(); ++page) {
            if (page > 1) {
                writer.setPageLayout(paper.LayoutOf(page));
                writer.newPage();
            }
            paper.DrawPage(painter, page);
        }
    }
    if (!out.commit())
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(out.errorString()));
}

// A printer that was set to other paper than is asked for gets everything on its own.
void PrintOn(QPrinter& printer, const Paper& paper) {
    const QPageLayout layout = printer.pageLayout();
    const std::unique_ptr<Paper> changed = layout.isEquivalentTo(paper.Layout()) ? nullptr : paper.On(layout);
    const Paper& printed = changed ? *changed : paper;
    const int first = std::max(printer.fromPage(), 1);
    const int last =
        printer.toPage() > 0 ? std::min(printer.toPage(), printed.PageCount()) : printed.PageCount();
    if (!changed)
        printer.setPageLayout(printed.LayoutOf(first));
    QPainter painter(&printer);
    if (!painter.isActive())
        throw std::runtime_error("打印机“" + S(printer.printerName()) + "”不能打印。");
    for (int page = first; page <= last; ++page) {
        if (page > first) {
            if (!changed)
                printer.setPageLayout(printed.LayoutOf(page));
            printer.newPage();
        }
        printed.DrawPage(painter, page);
    }
}

namespace {

constexpr int kTemplateToBeChanged = 3;

std::unique_ptr<Paper> PaperFor(const TemplatePrintJob& job) {
    return std::make_unique<BandPaper>(job, Q(CompanyLogo()));
}

// On the paper that was chosen last for the type on this machine.
TemplatePrintJob OnLastPaper(TemplatePrintJob job) {
    const std::string last = S(LastPaper(SubjectOfType(job.type)));
    if (job.defaultOn && std::ranges::find(PaperSizes(), last, &PaperSize::name) != PaperSizes().end() &&
        !(job.own && PaperOf(*job.own).empty())) // one that cannot be read is told, not passed over
        job.layout = LayoutOn(job, last);
    return job;
}

// The company's own template cannot be printed: who may change it is shown it.
void MendTemplate(const TemplatePrintJob& job, const std::string& fault) {
    Warn(job.typeName, UnprintableText(job, fault));
    if (job.own && job.mode == kTemplateToBeChanged)
        if (const auto mended = ChangeTemplate(job, QApplication::activeWindow()))
            PreviewPrinter().Print(*mended);
}

} // namespace

void PreviewPrinter::Print(const GridPrintJob& job) {
    PreviewPaper(GridPaper(job), job.title, QApplication::activeWindow(), SubjectOfGrid(Q(job.title)));
}

void PreviewPrinter::Print(const TemplatePrintJob& asked) {
    const TemplatePrintJob job = OnLastPaper(asked);
    std::unique_ptr<Paper> paper;
    try {
        paper = PaperFor(job);
    } catch (const TemplateError& error) {
        return MendTemplate(job, error.what());
    }
    if (job.atOnce) {
        const QString hindrance = PrintAtOnce(SubjectOfType(job.type), *paper);
        if (hindrance.isEmpty())
            return CurrentView().Signal(job.typeName + " " + job.number + " 已送往打印机。");
        Inform(job.typeName, S(hindrance));
    }
    PreviewDocument(job, std::move(paper), QApplication::activeWindow());
}

std::vector<std::string> PreviewPrinter::PrintAll(const std::vector<TemplatePrintJob>& jobs) {
    std::vector<std::unique_ptr<Paper>> papers;
    std::vector<std::string> unprinted;
    {
        const ProgressEnds ends;
        for (size_t at = 0; at < jobs.size(); ++at) {
            CurrentView().ShowProgress("正在排版", static_cast<int>(at), static_cast<int>(jobs.size()));
            if (CurrentView().StopAsked()) {
                Inform("批量打印", "打印已停止，没有单据打印。");
                return {};
            }
            try {
                papers.push_back(PaperFor(OnLastPaper(jobs[at])));
            } catch (const TemplateError& error) {
                unprinted.push_back(jobs[at].number + "：" + error.what());
            }
        }
    }
    const std::string title = "批量打印：" + std::to_string(papers.size()) + " 张单据";
    if (!papers.empty())
        PreviewPaper(PaperStack(std::move(papers)), title, QApplication::activeWindow(),
                     SubjectOfType(jobs.front().type));
    return unprinted;
}

} // namespace jxc
