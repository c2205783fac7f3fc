// Documents on paper by their templates: nothing cut, nothing lost, nothing beside the paper.
#include <cstdlib>

#include "base/text.h"
#include "documents/default_template.h"
#include "documents/document_model.h"
#include "settings/document_types.h"
#include "tests/windows/recorded_paper.h"
#include "tests/windows/window_fixture.h"
#include "view/band_paper.h"
#include "view/page_printer.h"

namespace jxc::test {

namespace {

const QString kTime = "2026-11-05 09:07";

// A document of the type with every column that its grid shows, as the entry screen hands it over.
struct Sheet {
    Sheet(const TypeRow& type, const std::string& paper, int lines, double beyond = 0) {
        Parameters parameters;
        parameters.memo1 = "备注";
        parameters.taxWay = TaxWay::OnTop;
        parameters.quantityDecimals = parameters.priceDecimals = 2;
        struct Lines : Screen {
            Lines() : Screen("Lines") {}
            void Open() override {}
            Grid Grid2{*this, "Grid2"};
        } screen;
        SetUpLineGrid(screen.Grid2, type, parameters, DocAction::Query);
        std::vector<PrintedColumn> columns;
        for (int place = 1; place <= screen.Grid2.ColumnCount(); ++place) {
            const GridColumn& column = screen.Grid2.Column(place);
            if (column.hidden || column.caption.empty() || place == line::kReference ||
                (place == line::kStock && !type.IsStocktake()) || place == line::kBalance)
                continue;
            columns.push_back({column.caption, column.width, column.type == CellType::Number, 11});
            job.columns.emplace_back("<<" + column.caption + ">>", "");
        }
        for (int at = 1; at <= lines; ++at) {
            std::vector<std::string>& cells = job.lines.emplace_back();
            for (const PrintedColumn& column : columns)
                cells.push_back(column.figure              ? FormatFixed(beyond + 1.5 * at, 2)
                                : column.caption == "编码" ? "L" + std::to_string(1000 + at)
                                : column.caption == "单位" ? "个"
                                                           : "处理器 <四核> & 八线程" + std::to_string(at));
        }
        job.typeName = type.fSetName;
        job.fields = {"<公司单位>", "远帆商贸有限公司", "<日期>",     "2026-11-05",
                      "<单号>",     "20261105RK001",    "<订单号>",   "20261101DD009",
                      "<金额合计>", "1234.05",          "<摘要>",     "采购",
                      "<货币>",     "RMB (1.0000)",     "<仓库>",     "总部仓",
                      "<仓库2>",    "零售门市",         "<客户单位>", "深圳市芯源电子有限公司",
                      "<送货地址>", "深圳市福田区",     "<邮编>",     "518000",
                      "<联系人>",   "林志强",           "<客户电话>", "0755-83330001",
                      "备注",       "请当面点清"};
        job.further = {"经手人", "张三", "审核人", "李四", "制单人", "王五", "成品", "PC001", "套数", "2台"};
        const TypeCaptions captions{"订单号", "金额合计", "货币", "送货地址"};
        job.layout = DefaultTemplate(type, paper, captions, columns);
    }
    TemplatePrintJob job;
};

std::string AllTexts(const std::vector<Printed>& page) {
    std::string texts;
    for (const Printed& part : page)
        texts += part.text + "\n";
    return texts;
}

std::string Without(std::string text, char c) {
    std::erase(text, c);
    return text;
}

QImage PictureOf(const Paper& paper, int page, int dpi) {
    const QPageLayout& layout = paper.Layout();
    QImage image(layout.fullRectPixels(dpi).size(), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dpi / 0.0254));
    image.setDotsPerMeterY(qRound(dpi / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(layout.paintRectPixels(dpi).topLeft());
    paper.DrawPage(painter, page);
    return image;
}

// Nothing is painted on the margins.
void ExpectCleanMargins(const Paper& paper, int page) {
    constexpr int kDpi = 72;
    const QImage image = PictureOf(paper, page, kDpi);
    const QRect inner = paper.Layout().paintRectPixels(kDpi).adjusted(-2, -2, 2, 2);
    int stained = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            stained += !inner.contains(x, y) && image.pixelColor(x, y) != QColor(Qt::white);
    EXPECT_EQ(stained, 0) << "page " << page;
}

// For people to look at: every default template as pictures, where JXC_PAPERS names a folder.
void KeepPicture(const Paper& paper, const std::string& name) {
    if (const char* folder = std::getenv("JXC_PAPERS"))
        for (int page = 1; page <= std::min(paper.PageCount(), 2); ++page)
            PictureOf(paper, page, 110)
                .save(Q(std::string(folder) + "/" + name + "-" + std::to_string(page) + ".png"));
}

class DesignedPaper : public testing::TestWithParam<std::string> {};

TEST_P(DesignedPaper, OfEveryTypeHoldsAllLinesUnderTheirHeadings) {
    constexpr int kLines = 24;
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes()) {
        const TypeRow type = TypeRowOf(shipped);
        SCOPED_TRACE(type.fSetName);
        const Sheet sheet(type, GetParam(), kLines, 12345678);
        const BandPaper paper(sheet.job, "", kTime, nullptr);
        KeepPicture(paper, GetParam() + "_" + std::to_string(type.fSetNo));
        const bool roll = GetParam() == "80";
        EXPECT_EQ(paper.PageCount() > 1, !roll);
        std::string all;
        for (int page = 1; page <= paper.PageCount(); ++page) {
            const auto printed = PageOf(paper, page);
            const std::string texts = AllTexts(printed);
            if (page == 1) {
                EXPECT_TRUE(Holds(printed, "12345679.50")) << "a figure is broken";
            }
            if (!roll) {
                EXPECT_NE(texts.find("编码"), std::string::npos) << page;
                EXPECT_NE(Without(texts, '\n')
                              .find("第 " + std::to_string(page) + " 页，共 " +
                                    std::to_string(paper.PageCount()) + " 页"),
                          std::string::npos);
            }
            if (page <= 2)
                ExpectCleanMargins(paper, page);
            all += texts;
        }
        const std::string joined = Without(all, '\n');
        for (int at = 1; at <= kLines; ++at)
            EXPECT_NE(joined.find(roll ? "八线程" + std::to_string(at) : "L" + std::to_string(1000 + at)),
                      std::string::npos)
                << at;
        EXPECT_NE(joined.find("20261105RK001"), std::string::npos);
        EXPECT_NE(joined.find("远帆商贸有限公司"), std::string::npos);
    }
}

// The file as another program reads it.
std::string TextOfPdf(const QString& file, int page) {
    QProcess reader;
    const QString number = QString::number(page);
    reader.start("pdftotext", {"-f", number, "-l", number, "-layout", file, "-"});
    reader.waitForFinished();
    return reader.readAllStandardOutput().toStdString();
}

TEST(DesignedFile, OfEveryTypeOnItsOwnPaperIsReadWholeByAnotherProgram) {
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "no pdftotext here (package poppler-utils)";
    constexpr int kLines = 40;
    const QTemporaryDir folder;
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes()) {
        const TypeRow type = TypeRowOf(shipped);
        SCOPED_TRACE(type.fSetName);
        const std::string size = DefaultPaper(type.fSetNo);
        const Sheet sheet(type, size, kLines);
        const BandPaper paper(sheet.job, "", kTime, nullptr);
        const QString file = folder.filePath(QString::number(type.fSetNo) + ".pdf");
        WritePdf(paper, file);
        const bool roll = size == "80";
        std::string all;
        for (int page = 1; page <= paper.PageCount(); ++page) {
            const std::string text = TextOfPdf(file, page);
            EXPECT_NE(text.find(roll ? "品名规格" : "编码"), std::string::npos)
                << "headings of page " << page;
            all += text;
        }
        EXPECT_EQ(TextOfPdf(file, paper.PageCount() + 1), "");
        EXPECT_EQ(paper.PageCount() > 1, !roll);
        EXPECT_NE(all.find("20261105RK001"), std::string::npos);
        EXPECT_NE(all.find("2026-11-05 09:07"), std::string::npos);
        for (int at = 1; at <= kLines; ++at) {
            const std::string named = roll ? FormatFixed(1.5 * at, 2) : "L" + std::to_string(1000 + at);
            EXPECT_NE(all.find(named), std::string::npos) << named;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Papers, DesignedPaper, testing::Values("A4", "A5", "241x140", "241x279", "80"),
                         [](const auto& info) { return "Paper" + info.param; });

TypeRow Shipped(int number) {
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes())
        if (shipped.fSetNo == number)
            return TypeRowOf(shipped);
    throw std::runtime_error("no such type");
}

// 7 lines of 1.50, 3.00 ... 10.50 are 42.00.
TEST(DesignedSheet, AddsUpPagesAndAll) {
    Sheet sheet(Shipped(2), "A4", 7);
    sheet.job.layout =
        "<!--paper A5 landscape 10 10 10 10--><!--header--><p><br><br><br><br><br><br><br><br><br></p>"
        "<!--row--><p><<数量>><br><br><br></p>"
        "<!--subtotal--><p>P<本页 数量>;C<累计 数量>;</p><!--total--><p>T<合计 数量>;<大写 金额合计></p>";
    const BandPaper paper(sheet.job, "", kTime, nullptr);
    ASSERT_GT(paper.PageCount(), 1);
    double carried = 0, lines = 0;
    for (int page = 1; page <= paper.PageCount(); ++page) {
        const std::string texts = Without(AllTexts(PageOf(paper, page)), '\n');
        const double ofPage = std::stod(texts.substr(texts.find('P') + 1));
        carried += ofPage;
        EXPECT_NEAR(std::stod(texts.substr(texts.find('C') + 1)), carried, 0.001);
        EXPECT_EQ(texts.find('T') != std::string::npos, page == paper.PageCount());
        lines += ofPage > 0 ? 1 : 0;
        if (page == paper.PageCount()) {
            EXPECT_NE(texts.find("T42.00;壹仟贰佰叁拾肆元零伍分"), std::string::npos) << texts;
        }
    }
    EXPECT_EQ(lines, paper.PageCount()); // no page without lines
    EXPECT_NEAR(carried, 42, 0.001);
}

// Neither a printer that has sheets only nor a receipt longer than any roll.
TEST(DesignedSheet, OfARollLosesNoLineOnOtherPaper) {
    const QPageLayout a4(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(40, 40, 40, 40));
    const Sheet brief(Shipped(5), "80", 3);
    EXPECT_EQ(BandPaper(brief.job, "", kTime, &a4).PageCount(), 1);
    constexpr int kLines = 700;
    const Sheet sheet(Shipped(5), "80", kLines);
    for (const QPageLayout* layout : {static_cast<const QPageLayout*>(nullptr), &a4}) {
        const BandPaper paper(sheet.job, "", kTime, layout);
        EXPECT_GT(paper.PageCount(), 1);
        std::string all;
        for (int page = 1; page <= paper.PageCount(); ++page) {
            all += AllTexts(PageOf(paper, page));
            ExpectCleanMargins(paper, page);
        }
        const std::string joined = Without(all, '\n');
        for (int at = 1; at <= kLines; ++at)
            EXPECT_NE(joined.find("八线程" + std::to_string(at)), std::string::npos) << at;
    }
}

TEST(DesignedSheet, ShowsTextAsTextAndKeepsColumnsUnderTheirHeadings) {
    Sheet sheet(Shipped(2), "A4", 2);
    sheet.job.lines[0][1] = "<script>alert(1)</script><b>" + std::string(120, 'x');
    const BandPaper paper(sheet.job, "", kTime, nullptr);
    const auto page = PageOf(paper, 1);
    const std::string texts = Without(AllTexts(page), '\n');
    EXPECT_NE(texts.find("<script>alert(1)</script><b>"), std::string::npos);
    // The long word of the first line widens no column: both lines' amounts end at one place.
    const Printed* first = Find(page, "1.50");
    const Printed* second = Find(page, "3.00");
    ASSERT_TRUE(first && second);
    EXPECT_NEAR(first->place.right(), second->place.right(), 0.5);
    const Printed* heading = Find(page, "数量");
    ASSERT_TRUE(heading);
    EXPECT_GT(first->place.right(), heading->place.left());
    EXPECT_LT(first->place.right(), Find(page, "单价")->place.left());
    ExpectCleanMargins(paper, 1);
}

TEST(DesignedSheet, CodesAreBarsWithAQuietZone) {
    Sheet sheet(Shipped(2), "A4", 1);
    sheet.job.layout = "<!--paper A4 10 10 10 10--><!--header--><p><img src=\"barcode:单号\" width=\"300\" "
                       "height=\"60\"></p>"
                       "<!--row--><p><<编码>></p>";
    const BandPaper paper(sheet.job, "", kTime, nullptr);
    constexpr int kDpi = 300;
    const QImage image = PictureOf(paper, 1, kDpi);
    const int y = qRound(10 / 25.4 * kDpi) + 60 * kDpi / 96 / 2;
    std::vector<int> runs; // of black and white in turn, from the first bar
    for (int x = 0, last = 0; x < image.width(); ++x) {
        const bool black = qGray(image.pixel(x, y)) < 128;
        if (runs.empty() && !black)
            continue;
        if (runs.empty() || black != last)
            runs.push_back(0);
        last = black;
        ++runs.back();
    }
    runs.pop_back(); // the paper behind the code
    ASSERT_GT(runs.size(), 30u);
    const int module = *std::min_element(runs.begin(), runs.end());
    for (const int run : runs)
        EXPECT_EQ(run % module, 0) << "bars are of whole modules";
    EXPECT_EQ(runs.front(), 2 * module); // each symbol of Code 128 begins with 211232, 211214 or 211412
    EXPECT_EQ(runs.back(), 2 * module);
}

} // namespace

} // namespace jxc::test
