// The preview of a document: on which paper, and by which template.

#include "controls/view.h"
#include "session/company/picture_file.h"
#include "session/printing/paper_template.h"
#include "session/printing/template_draft.h"
#include "view/band_paper.h"
#include "view/paper_preview.h"
#include "view/print_queues.h"
#include "view/qt_text.h"
#include "view/template_editor.h"

namespace jxc {

namespace {

constexpr int kTemplateToBeChanged = 3;

class DocumentPreview : public PreviewWindow {
  public:
    DocumentPreview(TemplatePrintJob job, std::unique_ptr<Paper> paper, QWidget* parent)
        : PreviewWindow(*paper, job.typeName, SubjectOfType(job.type), parent), job_(std::move(job)),
          paper_(std::move(paper)) {
        papers_->setObjectName("papers");
        papers_->setToolTip("纸张");
        for (const PaperSize& size : PaperSizes())
            papers_->addItem(Q(size.name));
        ShowPaper();
        QHBoxLayout& bar = Pages().Bar();
        const int place = bar.count() - 3; // before printing
        bar.insertWidget(place, new QLabel("纸张"));
        bar.insertWidget(place + 1, papers_);
        connect(papers_, &QComboBox::activated, this, [this] { ChoosePaper(S(papers_->currentText())); });
        if (job_.mode == kTemplateToBeChanged)
            AddTemplateCommand(place + 2);
        Pages().setFocus();
    }

  private:
    void AddTemplateCommand(int place) {
        auto* button = new QPushButton("模板(&T)...");
        button->setObjectName("template");
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this] { EditTemplate(); });
        Pages().Bar().insertWidget(place, button);
    }

    void ShowPaper() { papers_->setCurrentText(Q(PaperOf(job_.layout))); }

    // False when the template cannot be printed, which is told; the pages stay.
    bool Renew(const TemplatePrintJob& job) {
        try {
            auto paper = std::make_unique<BandPaper>(job, Q(CompanyLogo()));
            Pages().Take(*paper);
            paper_ = std::move(paper);
        } catch (const TemplateError& error) {
            Warn(job.typeName, UnprintableText(job, error.what()));
            return false;
        }
        job_ = job;
        return true;
    }

    void ChoosePaper(const std::string& paper) {
        TemplatePrintJob job = job_;
        job.layout = LayoutOn(job, paper);
        if (Renew(job))
            KeepLastPaper(SubjectOfType(job.type), Q(paper));
        ShowPaper();
    }

    void EditTemplate() {
        if (const auto changed = ChangeTemplate(job_, this); changed && Renew(*changed))
            KeepLastPaper(SubjectOfType(job_.type), Q(PaperOf(job_.layout)));
        ShowPaper();
        Pages().setFocus();
    }

    TemplatePrintJob job_;
    std::unique_ptr<Paper> paper_;
    QComboBox* papers_ = new QComboBox;
};

} // namespace

void PreviewDocument(const TemplatePrintJob& job, std::unique_ptr<Paper> paper, QWidget* parent) {
    DocumentPreview(job, std::move(paper), parent).exec();
}

} // namespace jxc
