// One page of paper at a time, drawn when it is shown, with what turns the pages and changes their size.
#pragma once

#include <QWidget>

#include "view/paper.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace jxc {

class SheetView;

class PageBrowser : public QWidget {
  public:
    explicit PageBrowser(const Paper& paper, QWidget* parent = nullptr);

    // Other pages, which must live until the next; the same place and size as far as they have it.
    void Take(const Paper& paper);
    const Paper& Shown() const { return *paper_; }

    void Turn(int page); // to the nearest that there is
    void TurnBy(int pages) { Turn(page_ + pages); }
    void TurnToLast() { Turn(paper_->PageCount()); }
    void Zoom(int steps);
    // The largest size at which the whole width is seen in so many pixels, the natural one at most.
    void FitInto(int width);
    // Where the commands for the pages stand; further ones go behind.
    QHBoxLayout& Bar() { return *bar_; }

  private:
    void AddButtons();

    const Paper* paper_;
    SheetView* sheet_;
    QScrollArea* area_;
    QHBoxLayout* bar_;
    QLabel* place_;
    QPushButton *toFirst_ = nullptr, *toPrevious_ = nullptr, *toNext_ = nullptr, *toLast_ = nullptr;
    int page_ = 1;
    int zoom_ = 2; // natural size
};

} // namespace jxc
