#include "view/grid_paper.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "session/printing/print_grid.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr double kSize = 9;         // points of a text that nothing shrinks
constexpr double kLeastUpright = 7; // smaller than this, the page is turned
constexpr double kTitleSize = 15;
constexpr double kFootSize = 8;
constexpr double kFootHeight = 16;
constexpr double kLeastShare = 0.75; // of its size that a column may shrink before it gets wider
constexpr double kPadding = 2.5;     // left and right of a cell's text, at full size
constexpr double kRowPadding = 1.5;
constexpr int kPairsInRow = 3;
constexpr int kLongestFigure = 40; // characters
constexpr int kAmountRows = 2;

// Codes, numbers, dates: one word with a digit. What is cut from it nobody can guess.
bool IsFigure(const QString& text) {
    bool digit = false;
    for (const QChar character : text) {
        if (character.unicode() <= ' ' || character.unicode() > '~')
            return false;
        digit = digit || character.isDigit();
    }
    return digit && text.size() <= kLongestFigure;
}

} // namespace

GridPaper::GridPaper(const GridPrintJob& job, const QDateTime& printed)
    : GridPaper(job, printed, StandardPage(QPageLayout::Portrait)) {
    if (size_ >= kLeastUpright)
        return;
    layout_ = StandardPage(QPageLayout::Landscape);
    LayOut();
}

GridPaper::GridPaper(const GridPrintJob& job, const QDateTime& printed, const QPageLayout& layout)
    : Paper(layout), job_(job), printed_(printed) {
    MeasureColumns();
    LayOut();
}

std::unique_ptr<Paper> GridPaper::On(const QPageLayout& layout) const {
    return std::make_unique<GridPaper>(job_, printed_, layout);
}

QString GridPaper::CellText(int row, int column) const {
    if (job_.grid->Column(column).type == CellType::Check)
        return job_.grid->Number(row, column) != 0 ? "√" : "";
    return Q(job_.grid->ShownText(row, column)).simplified();
}

QString GridPaper::Caption(int column) const {
    return Q(job_.grid->Column(column).caption);
}

double GridPaper::WidestFigure(int column) const {
    const bool number = job_.grid->Column(column).type == CellType::Number;
    double widest = 0;
    for (int row = 1; row <= job_.grid->RowCount(); ++row)
        if (const QString text = CellText(row, column); number || IsFigure(text))
            widest = std::max(widest, plain_.Of(text));
    return widest;
}

void GridPaper::MeasureColumns() {
    const double character = plain_.Of("0") * kSize;
    for (int column = 1; column <= job_.grid->ColumnCount(); ++column) {
        if (job_.grid->Column(column).hidden)
            continue;
        const double figure = WidestFigure(column);
        const double wanted = std::max(job_.grid->Column(column).width, 1.0) * character;
        const double least = figure * kSize * kLeastShare;
        columns_.push_back(
            {.column = column, .wanted = std::max(wanted, least) + 2 * kPadding, .figure = figure});
    }
}

double GridPaper::WantedWidth() const {
    double width = 0;
    for (const PrintedColumn& column : columns_)
        width += column.wanted;
    return std::max(width, 1.0);
}

// Columns wider than the page shrink with their texts; narrower ones are spread over it.
void GridPaper::LayOut() {
    const double width = Area().width();
    const double stretch = width / WantedWidth();
    size_ = kSize * std::min(1.0, stretch);
    const double padding = kPadding * size_ / kSize;
    rowHeight_ = plain_.LineHeight() * size_ + 2 * kRowPadding;
    headingHeight_ = rowHeight_;
    double left = 0;
    for (PrintedColumn& column : columns_) {
        column.left = left;
        column.width = column.wanted * stretch;
        left += column.width;
        const double room = column.width - 2 * padding;
        column.size = column.figure > 0 ? std::min(size_, room / column.figure) : size_;
        headingHeight_ = std::max(headingHeight_, ParagraphHeight(Caption(column.column), size_, true, room) +
                                                      2 * kRowPadding);
    }
    headingHeight_ = std::min(headingHeight_, 4 * rowHeight_);
    LayOutHeader();
}

// Below the title the pairs stand three to a row and are wrapped, never cut.
void GridPaper::LayOutHeader() {
    pairs_.clear();
    headerHeight_ = bold_.LineHeight() * kTitleSize + 6;
    const double step = Area().width() / kPairsInRow;
    double tallest = 0;
    for (const auto& [name, value] : ShownHeader(job_.header)) {
        const QString text = Q(name + "：" + value);
        const size_t place = pairs_.size() % kPairsInRow;
        if (place == 0)
            headerHeight_ += std::exchange(tallest, 0);
        const double height = ParagraphHeight(text, kSize, false, step - 6);
        pairs_.push_back({text, {double(place) * step, headerHeight_, step - 6, height}});
        tallest = std::max(tallest, height);
    }
    headerHeight_ += tallest + 4;
}

int GridPaper::RowsOn(int page) const {
    const double room = Area().height() - kFootHeight - headingHeight_ - (page == 1 ? headerHeight_ : 0);
    return std::max(page == 1 ? 0 : kAmountRows, static_cast<int>(room / rowHeight_));
}

int GridPaper::RowsBefore(int page) const {
    return page == 1 ? 0 : RowsOn(1) + (page - 2) * RowsOn(2);
}

// The amount needs the room of rows, and is not torn.
int GridPaper::PageCount() const {
    const int rows = job_.grid->RowCount() + (job_.amount.empty() ? 0 : kAmountRows);
    return rows <= RowsOn(1) ? 1 : 1 + (rows - RowsOn(1) + RowsOn(2) - 1) / RowsOn(2);
}

void GridPaper::DrawPage(QPainter& painter, int page) const {
    PointPainter on(painter);
    double top = page == 1 ? DrawHeader(on) : 0;
    top = DrawHeadings(on, top);
    const int first = RowsBefore(page) + 1;
    const int last = std::min(job_.grid->RowCount(), RowsBefore(page) + RowsOn(page));
    for (int row = first; row <= last; ++row, top += rowHeight_)
        DrawRow(on, row, top);
    if (page == PageCount() && !job_.amount.empty()) {
        const QString text = Q(kAmountCaption + std::string("：") + job_.amount);
        on.SetFont(kSize, true);
        on.Text(Area().width() - bold_.Of(text) * kSize, top + 4 + bold_.Ascent() * kSize, text);
    }
    DrawFoot(on, page);
}

// Below the header.
double GridPaper::DrawHeader(PointPainter& on) const {
    on.SetFont(kTitleSize, true);
    on.Paragraph({0, 0, Area().width(), bold_.LineHeight() * kTitleSize}, Qt::AlignHCenter, Q(job_.title));
    on.SetFont(kSize);
    for (const HeaderPair& pair : pairs_)
        on.Paragraph(pair.place, Qt::AlignLeft, pair.text);
    return headerHeight_;
}

// Below the heading row.
double GridPaper::DrawHeadings(PointPainter& on, double top) const {
    const double padding = kPadding * size_ / kSize;
    on.Fill({0, top, Area().width(), headingHeight_}, QColor(0xe8, 0xe8, 0xe8));
    on.Line(0, top, Area().width(), top);
    on.SetFont(size_, true);
    for (const PrintedColumn& column : columns_) {
        on.Paragraph({column.left + padding, top, column.width - 2 * padding, headingHeight_},
                     Qt::AlignCenter, Caption(column.column));
        on.Line(column.left, top, column.left, top + headingHeight_, 0.25);
    }
    on.Line(Area().width(), top, Area().width(), top + headingHeight_, 0.25);
    on.Line(0, top + headingHeight_, Area().width(), top + headingHeight_);
    return top + headingHeight_;
}

void GridPaper::DrawRow(PointPainter& on, int row, double top) const {
    const double padding = kPadding * size_ / kSize;
    const double baseline = top + kRowPadding + plain_.Ascent() * size_;
    for (const PrintedColumn& column : columns_) {
        on.Line(column.left, top, column.left, top + rowHeight_, 0.25);
        const double room = column.width - 2 * padding;
        const GridColumn& settings = job_.grid->Column(column.column);
        QString text = CellText(row, column.column);
        if (settings.type != CellType::Number && !IsFigure(text))
            text = plain_.Elided(text, room / column.size);
        const double spare = room - plain_.Of(text) * column.size;
        const bool right = settings.type == CellType::Number || settings.alignment == Alignment::Right;
        const bool middle = settings.type == CellType::Check || settings.alignment == Alignment::Center;
        on.SetFont(column.size);
        on.Text(column.left + padding + (right ? spare : middle ? spare / 2 : 0), baseline, text);
    }
    on.Line(Area().width(), top, Area().width(), top + rowHeight_, 0.25);
    on.Line(0, top + rowHeight_, Area().width(), top + rowHeight_, 0.25);
}

void GridPaper::DrawFoot(PointPainter& on, int page) const {
    const double width = Area().width();
    const double baseline = Area().height() - 4;
    const QString pages = PlaceText(page, PageCount());
    const QString printed = "打印时间：" + printed_.toString("yyyy-MM-dd HH:mm");
    const double pagesLeft = (width - plain_.Of(pages) * kFootSize) / 2;
    on.SetFont(kFootSize);
    on.Text(0, baseline, plain_.Elided(Q(job_.title), (pagesLeft - 6) / kFootSize));
    on.Text(pagesLeft, baseline, pages);
    on.Text(width - plain_.Of(printed) * kFootSize, baseline, printed);
}

} // namespace jxc
