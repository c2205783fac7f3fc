// A document on paper by its template, whose bands are laid out by the toolkit's text engine, each alone, and put on pages
// here: the head of the document on the first, the headings of the lines on every one, no line on two pages, sums below,
// the foot at the bottom. A roll is one page as long as what stands on it.
#pragma once

#include <QTextDocument>

#include "session/printing/paper_template.h"
#include "view/paper.h"

namespace jxc {

class BandPaper : public Paper {
  public:
    // A TemplateError when the job's template cannot be printed. `logo` is the file of the company's picture, "" for none.
    explicit BandPaper(const TemplatePrintJob& job, const QString& logo = "");
    BandPaper(const TemplatePrintJob& job, const QString& logo, const QString& printed,
              const QPageLayout* layout);
    ~BandPaper() override;

    int PageCount() const override { return static_cast<int>(pages_.size()); }
    void DrawPage(QPainter& painter, int page) const override;
    std::unique_ptr<Paper> On(const QPageLayout& layout) const override;

  private:
    std::unique_ptr<QTextDocument> LaidOut(Band band, const TemplateData::Page& page, size_t line = 0) const;
    double HeightOf(Band band, const TemplateData::Page& page = {}, size_t line = 0) const; // in points
    double RoomForLines(bool first) const;
    void Paginate();
    void PutOnRoll(bool onPrintersPaper);
    double Draw(QPainter& painter, double top, Band band, const TemplateData::Page& page,
                size_t line = 0) const;

    const TemplatePrintJob job_;
    const QString logo_, printed_;
    const PaperTemplate template_;
    const TemplateData data_;
    std::vector<TemplateData::Page> pages_;
};

} // namespace jxc
