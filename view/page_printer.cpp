#include "view/page_printer.h"

#include <stdexcept>

#include <QPdfWriter>
#include <QPrinter>

#include "session/company/picture_file.h"
#include "view/band_paper.h"
#include "view/grid_paper.h"
#include "view/paper_preview.h"
#include "view/qt_text.h"

namespace jxc {

void WritePdf(const Paper& paper, const QString& file) {
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(out.errorString()));
    {
        QPdfWriter writer(&out);
        writer.setPageLayout(paper.Layout());
        QPainter painter(&writer);
        for (int page = 1; page <= paper.PageCount(); ++page) {
            if (page > 1)
                writer.newPage();
            paper.DrawPage(painter, page);
        }
    }
    if (!out.commit())
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(out.errorString()));
}

void PrintOn(QPrinter& printer, const Paper& paper) {
    const QPageLayout layout = printer.pageLayout();
    const std::unique_ptr<Paper> changed = layout.isEquivalentTo(paper.Layout()) ? nullptr : paper.On(layout);
    const Paper& printed = changed ? *changed : paper;
    const int first = std::max(printer.fromPage(), 1);
    const int last =
        printer.toPage() > 0 ? std::min(printer.toPage(), printed.PageCount()) : printed.PageCount();
    QPainter painter(&printer);
    for (int page = first; page <= last; ++page) {
        if (page > first)
            printer.newPage();
        printed.DrawPage(painter, page);
    }
}

void PreviewPrinter::Print(const GridPrintJob& job) {
    PreviewPaper(GridPaper(job), job.title, QApplication::activeWindow());
}

void PreviewPrinter::Print(const TemplatePrintJob& job) {
    PreviewPaper(BandPaper(job, Q(CompanyLogo())), job.typeName, QApplication::activeWindow());
}

} // namespace jxc
