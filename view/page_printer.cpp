#include "view/page_printer.h"

#include <stdexcept>

#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTextDocument>

#include "session/html_pages.h"
#include "view/text.h"

namespace jxc {

namespace {

// Page numbers need more than one page; a document knows its pages only at the printer's size.
void PrintPage(const std::string& html, QPrinter& printer) {
    QTextDocument document;
    QFont font = QApplication::font();
    font.setPointSizeF(9);
    document.setDefaultFont(font);
    document.setHtml(Q(html));
    document.setPageSize(printer.pageRect(QPrinter::Point).size());
    document.print(&printer);
}

void SetUpPaper(QPrinter& printer) {
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
}

} // namespace

void PrintToPdf(const std::string& html, const QString& file) {
    if (QFile probe(file); !probe.open(QIODevice::WriteOnly))
        throw std::runtime_error("无法写入 " + S(file) + "：" + S(probe.errorString()));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    SetUpPaper(printer);
    PrintPage(html, printer);
}

void PreviewPage(const std::string& html, const std::string& title, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    SetUpPaper(printer);
    QPrintPreviewDialog preview(&printer, parent,
                                Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
    preview.setObjectName("preview");
    preview.setWindowTitle(Q(title));
    preview.resize(900, 680);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                     [&html](QPrinter* to) { PrintPage(html, *to); });
    preview.exec();
}

void PreviewPrinter::Print(const GridPrintJob& job) {
    PreviewPage(GridPage(job), job.title, QApplication::activeWindow());
}

void PreviewPrinter::Print(const TemplatePrintJob& job) {
    PreviewPage(TemplatePage(job), job.typeName, QApplication::activeWindow());
}

} // namespace jxc
