#include "view/paper_preview.h"

#include <QPrintDialog>
#include <QPrinter>

#include "controls/view.h"
#include "view/page_printer.h"
#include "view/print_queues.h"
#include "view/qt_text.h"
#include "view/save_dialog.h"

namespace jxc {

PreviewWindow::PreviewWindow(const Paper& paper, const std::string& title, QString subject, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint), title_(title),
      subject_(std::move(subject)), pages_(new PageBrowser(paper)) {
    setObjectName("preview");
    setWindowTitle(Q(title));
    resize(960, 680);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    AddCommands();
    AddKeys();
    pages_->FitInto(width());
    pages_->setFocus();
}

void PreviewWindow::AddCommands() {
    const auto add = [&](const char* name, const char* caption, auto action) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        pages_->Bar().addWidget(button);
    };
    add("print", "打印(&P)...", [this] { Print(); });
    add("pdf", "存为 PDF(&F)...", [this] { SavePdf(); });
    add("close", "关闭(&C)", [this] { accept(); });
}

void PreviewWindow::AddKeys() {
    const auto on = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    on(Qt::Key_PageDown, [this] { pages_->TurnBy(1); });
    on(Qt::Key_PageUp, [this] { pages_->TurnBy(-1); });
    on(Qt::CTRL | Qt::Key_Home, [this] { pages_->Turn(1); });
    on(Qt::CTRL | Qt::Key_End, [this] { pages_->TurnToLast(); });
    on(Qt::Key_Plus, [this] { pages_->Zoom(1); });
    on(Qt::Key_Minus, [this] { pages_->Zoom(-1); });
    on(QKeySequence::Print, [this] { Print(); });
    on(QKeySequence::Save, [this] { SavePdf(); });
}

// A file is no printer: printing at once would write over it.
void PreviewWindow::Print() {
    const Paper& paper = pages_->Shown();
    QPrinter printer(QPrinter::HighResolution);
    if (const QString last = LastPrinter(subject_); !last.isEmpty() && QueuesInUse().Has(last))
        printer.setPrinterName(last);
    printer.setPageLayout(paper.Layout());
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, paper.PageCount());
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!Attempt(title_, [&] { PrintOn(printer, paper); }))
        return;
    if (!subject_.isEmpty() && printer.outputFileName().isEmpty() && !printer.printerName().isEmpty())
        KeepLastPrinter(subject_, printer.printerName());
}

void PreviewWindow::SavePdf() {
    SaveTo(*this, title_, "存为 PDF", ".pdf",
           [this](const QString& file) { WritePdf(pages_->Shown(), file); });
}

void PreviewPaper(const Paper& paper, const std::string& title, QWidget* parent, const QString& subject) {
    PreviewWindow(paper, title, subject, parent).exec();
}

} // namespace jxc
