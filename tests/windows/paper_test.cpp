// Grids on paper, and the preview.
#include <set>

#include <QPrinter>

#include "tests/windows/recorded_paper.h"
#include "tests/windows/window_fixture.h"
#include "view/grid_paper.h"
#include "view/page_printer.h"
#include "view/paper_preview.h"

namespace jxc::test {

namespace {

// A list as long and as wide as is asked for: a number, a code, a long name, and amounts.
struct LongList : Screen {
    explicit LongList(int rows, int amounts = 1) : Screen("LongList") {
        std::vector<GridColumn> columns{{.caption = "编码", .width = 10},
                                        {.caption = "品名规格", .width = 16},
                                        {.caption = "内部", .hidden = true},
                                        {.caption = "选", .type = CellType::Check, .width = 4}};
        for (int i = 0; i < amounts; ++i)
            columns.push_back({.caption = "金额" + std::to_string(i), .type = CellType::Number});
        Grid1.SetColumns(columns);
        Grid1.SetRowCount(rows);
        for (int row = 1; row <= rows; ++row) {
            Grid1.FillCell(row, 1, "A" + std::to_string(100000 + row));
            Grid1.FillCell(row, 2, "处理器 四核八线程，带风扇，盒装，保修三年的那一种");
            Grid1.FillCell(row, 3, "不印" + std::to_string(row));
            Grid1.FillCell(row, 4, row % 2);
            for (int i = 0; i < amounts; ++i)
                Grid1.FillCell(row, 5 + i, row == 2 ? -12345678.9 : row * 1.5);
        }
    }
    void Open() override {}
    GridPrintJob Job(const std::string& amount = "") const {
        return {
            {"<单位>", "远帆商贸", "起始日期", "", "截止日期", "2026-11-30"}, &Grid1, "", "库存表", amount};
    }
    Grid Grid1{*this, "Grid1"};
};

const QDateTime kPrinted(QDate(2026, 11, 5), QTime(9, 7));

TEST(PaperOfGrid, EveryRowOnceUnderAHeadingOnEveryPage) {
    LongList list(120);
    const GridPaper paper(list.Job("1,234.50"), kPrinted);
    ASSERT_GT(paper.PageCount(), 2);
    int next = 1;
    for (int page = 1; page <= paper.PageCount(); ++page) {
        const auto printed = PageOf(paper, page);
        EXPECT_TRUE(Holds(printed, "品名规格")) << page;
        EXPECT_TRUE(Holds(printed, "第 " + std::to_string(page) + " 页，共 " +
                                       std::to_string(paper.PageCount()) + " 页"));
        EXPECT_TRUE(Holds(printed, "打印时间：2026-11-05 09:07"));
        EXPECT_EQ(Holds(printed, "单位：远帆商贸"), page == 1);
        EXPECT_EQ(Holds(printed, "金额合计：1,234.50"), page == paper.PageCount());
        const double bottom = Find(printed, "打印时间：2026-11-05 09:07")->place.top();
        while (const Printed* code = Find(printed, "A" + std::to_string(100000 + next))) {
            EXPECT_LT(code->place.bottom(), bottom);
            ++next;
        }
        for (const Printed& part : printed) {
            EXPECT_GE(part.place.left(), 0) << part.text;
            EXPECT_LE(part.place.right(), paper.Layout().paintRect(QPageLayout::Point).width() + 1)
                << part.text;
            EXPECT_EQ(part.text.find("不印"), std::string::npos);
            EXPECT_EQ(part.text.find("起始日期"), std::string::npos); // without a value
        }
    }
    EXPECT_EQ(next, 121);
    EXPECT_TRUE(Holds(PageOf(paper, 1), "√"));
}

// The row that has no room goes to the next page, and the amount goes with a heading, however the rows fall.
TEST(PaperOfGrid, AmountIsPrintedHoweverFullTheLastPageIs) {
    for (int rows = 1; rows <= 60; ++rows) {
        LongList list(rows);
        const GridPaper paper(list.Job("77.00"), kPrinted);
        const auto last = PageOf(paper, paper.PageCount());
        const Printed* amount = Find(last, "金额合计：77.00");
        ASSERT_TRUE(amount) << rows;
        EXPECT_LE(amount->place.bottom(), Find(last, "打印时间：2026-11-05 09:07")->place.top()) << rows;
    }
}

TEST(PaperOfGrid, FiguresAreWholeAndStandApartOnAnyWidth) {
    for (const int amounts : {1, 5, 16, 30}) {
        LongList list(3, amounts);
        const GridPaper paper(list.Job(), kPrinted);
        const auto page = PageOf(paper, 1);
        std::vector<QRectF> row;
        for (const Printed& part : page)
            if (part.text == "-12,345,678.90" || part.text == "A100002")
                row.push_back(part.place);
        ASSERT_EQ(row.size(), static_cast<size_t>(amounts) + 1);
        for (size_t i = 1; i < row.size(); ++i)
            EXPECT_GE(row[i].left(), row[i - 1].right()) << amounts << " columns, number " << i;
        const auto elided = std::count_if(page.begin(), page.end(), [](const Printed& part) {
            return part.text.size() > 3 && part.text.substr(part.text.size() - 3) == "…";
        });
        EXPECT_EQ(elided, 3) << amounts; // the long names
        EXPECT_EQ(paper.Layout().orientation(), amounts < 16 ? QPageLayout::Portrait : QPageLayout::Landscape)
            << amounts;
    }
}

TEST(PaperOfGrid, KeepsWidthsInProportionAndFillsThePage) {
    LongList list(1);
    list.Grid1.Column(1).width = 10;
    list.Grid1.Column(2).width = 30;
    const auto page = PageOf(GridPaper(list.Job(), kPrinted), 1);
    const double width = GridPaper(list.Job(), kPrinted).Layout().paintRect(QPageLayout::Point).width();
    EXPECT_NEAR(Find(page, "1.50")->place.right(), width, 6);
    const double code = Find(page, "编码")->place.center().x() * 2; // the first column's width
    EXPECT_NEAR(code / width, 10.0 / (10 + 30 + 4 + 8), 0.03);
}

class Preview : public Windows {};

// Counts the pages that are drawn.
class CountedPaper : public Paper {
  public:
    CountedPaper() : Paper(StandardPage(QPageLayout::Portrait)) {}
    int PageCount() const override { return 300; }
    void DrawPage(QPainter&, int page) const override { drawn.insert(page); }
    std::unique_ptr<Paper> On(const QPageLayout&) const override { return std::make_unique<CountedPaper>(); }
    mutable std::set<int> drawn;
};

TEST_F(Preview, DrawsThePageShownAndTurnsByKeys) {
    const CountedPaper paper;
    person.Next([&] {
        const auto place = [&] { return S(person.Find<QLabel>("place").text()); };
        const auto see = [&] { person.Front().grab(); };
        see();
        EXPECT_EQ(place(), "第 1 页，共 300 页");
        EXPECT_EQ(paper.drawn, (std::set{1}));
        person.Press(Qt::Key_PageDown);
        see();
        person.Press(Qt::Key_End, Qt::ControlModifier);
        see();
        EXPECT_EQ(place(), "第 300 页，共 300 页");
        person.Press(Qt::Key_PageDown);
        EXPECT_EQ(place(), "第 300 页，共 300 页");
        person.Press(Qt::Key_PageUp);
        see();
        person.Click("first");
        see();
        EXPECT_EQ(paper.drawn, (std::set{1, 2, 299, 300}));
        const int before = person.Find("sheet").width();
        person.Press(Qt::Key_Plus);
        EXPECT_GT(person.Find("sheet").width(), before);
        person.Press(Qt::Key_Escape);
    });
    PreviewPaper(paper, "库存表", nullptr);
}

TEST_F(Preview, SavesAndPrintsAllPages) {
    QTemporaryDir folder;
    LongList list(120);
    const GridPaper paper(list.Job("5.00"), kPrinted);
    const auto pages = [&](const QString& file) {
        return QByteArray::fromStdString(FileText(S(file))).count("/Type /Page\n");
    };
    WritePdf(paper, folder.filePath("a.pdf"));
    EXPECT_EQ(pages(folder.filePath("a.pdf")), paper.PageCount());
    EXPECT_THROW(WritePdf(paper, folder.filePath("none/a.pdf")), std::runtime_error);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(folder.filePath("b.pdf"));
    QPageLayout small(QPageSize(QPageSize::A5), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10));
    printer.setPageLayout(small);
    PrintOn(printer, paper); // on the paper that is in the printer
    EXPECT_EQ(pages(folder.filePath("b.pdf")), paper.On(printer.pageLayout())->PageCount());
    EXPECT_GT(pages(folder.filePath("b.pdf")), paper.PageCount());
}

} // namespace

} // namespace jxc::test
