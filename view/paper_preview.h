// The preview of what is printed: one page at a time, with the page keys; printing and saving as PDF from there.
#pragma once

#include <string>

#include <QDialog>

#include "session/components.h"
#include "view/page_browser.h"

namespace jxc {

// Its window is named "preview". PgUp and PgDn turn the pages, Ctrl+Home and Ctrl+End go to the first and last, + and -
// change the size, Ctrl+P prints, Ctrl+S saves a PDF, Esc closes.
class PreviewWindow : public QDialog {
  public:
    // The printer is remembered for `subject`: see print_queues.h.
    PreviewWindow(const Paper& paper, const std::string& title, QString subject, QWidget* parent);

  protected:
    PageBrowser& Pages() { return *pages_; }

  private:
    void AddCommands();
    void AddKeys();
    void Print();
    void SavePdf();

    const std::string title_;
    const QString subject_;
    PageBrowser* pages_;
};

// Modal.
void PreviewPaper(const Paper& paper, const std::string& title, QWidget* parent, const QString& subject = "");
// A document, on any of the papers and, for who may change it, with its template. Modal.
void PreviewDocument(const TemplatePrintJob& job, std::unique_ptr<Paper> paper, QWidget* parent);

} // namespace jxc
