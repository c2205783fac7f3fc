// What paper costs: a document of many lines by its template, its pages counted and all of them written, and a list of
// many rows, until its first page is seen and until all is written. Memory only; no company.
//
//     build/release/bench/jxc_bench_paper
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "base/text.h"
#include "controls/screen.h"
#include "documents/default_template.h"
#include "settings/document_types.h"
#include "view/band_paper.h"
#include "view/grid_paper.h"
#include "view/page_printer.h"

namespace jxc::bench {

namespace {

double SecondsOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// As the preview draws it.
void DrawFirstPage(const Paper& paper) {
    constexpr int kDpi = 192;
    QImage image(paper.Layout().fullRectPixels(kDpi).size(), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(kDpi / 0.0254));
    image.setDotsPerMeterY(qRound(kDpi / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    paper.DrawPage(painter, 1);
}

TemplatePrintJob Receipt(int lines) {
    const std::vector<PrintedColumn> columns = {
        {"编码", 14, false, 0}, {"品名规格", 30, false, 0}, {"单位", 6, false, 0}, {"数量", 8, true, 10},
        {"单价", 8, true, 10},  {"金额", 10, true, 12},     {"备注", 16, false, 0}};
    TemplatePrintJob job;
    for (const PrintedColumn& column : columns)
        job.columns.emplace_back("<<" + column.caption + ">>", "");
    for (int at = 1; at <= lines; ++at)
        job.lines.push_back({"L" + std::to_string(100000 + at), "处理器 四核八线程 3.3GHz", "颗", "5.00",
                             "610.00", "3050.00", ""});
    for (const char* field : {"公司单位", "日期",   "单号",     "订单号",   "金额合计", "摘要",   "货币",
                              "仓库",     "仓库2",  "客户单位", "发货地址", "邮编",     "联系人", "客户电话",
                              "备注",     "经手人", "审核人",   "制单人",   "成品",     "套数"})
        job.fields.insert(job.fields.end(), {field, "20261105"});
    for (const DocumentTypeRow& shipped : DefaultDocumentTypes())
        if (shipped.fSetNo == DocType::Receipt) {
            const TypeRow type = TypeRowOf(shipped);
            job.typeName = type.fSetName;
            job.layout = DefaultTemplate(type, DefaultPaper(type.fSetNo),
                                         {"订单号", "金额合计", "货币", "发货地址"}, columns);
        }
    return job;
}

void MeasureDocument(int lines, const QString& file) {
    const TemplatePrintJob job = Receipt(lines);
    std::unique_ptr<BandPaper> paper;
    const double layOut = SecondsOf([&] { paper = std::make_unique<BandPaper>(job); });
    const double first = SecondsOf([&] { DrawFirstPage(*paper); });
    const double all = SecondsOf([&] { WritePdf(*paper, file); });
    std::printf("document of %6d lines: %4d pages, laid out in %6.2f s, first page %5.2f s, PDF %6.2f s\n",
                lines, paper->PageCount(), layOut, first, all);
}

struct List : Screen {
    explicit List(int rows) : Screen("List") {
        std::vector<GridColumn> columns{{.caption = "编码", .width = 12},
                                        {.caption = "品名规格", .width = 30}};
        for (int at = 0; at < 16; ++at)
            columns.push_back({.caption = "金额", .type = CellType::Number});
        Grid1.SetColumns(columns);
        Grid1.SetRowCount(rows);
        for (int row = 1; row <= rows; ++row) {
            Grid1.FillCell(row, 1, "L" + std::to_string(100000 + row));
            Grid1.FillCell(row, 2, "处理器 四核八线程 3.3GHz");
            for (int at = 3; at <= 18; ++at)
                Grid1.FillCell(row, at, 1.5 * row);
        }
    }
    void Open() override {}
    Grid Grid1{*this, "Grid1"};
};

void MeasureList(int rows, const QString& file) {
    const List list(rows);
    const GridPrintJob job{{}, &list.Grid1, "", "库存表", ""};
    std::unique_ptr<GridPaper> paper;
    const double first = SecondsOf([&] {
        paper = std::make_unique<GridPaper>(job);
        DrawFirstPage(*paper);
    });
    const double all = SecondsOf([&] { WritePdf(*paper, file); });
    std::printf("list of     %6d rows : %4d pages, first page seen in %5.2f s, PDF %6.2f s\n", rows,
                paper->PageCount(), first, all);
}

} // namespace

} // namespace jxc::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString file = folder.filePath("measured.pdf");
    for (const int lines : {10, 100, 1'000})
        jxc::bench::MeasureDocument(lines, file);
    for (const int rows : {1'000, 10'000})
        jxc::bench::MeasureList(rows, file);
    return 0;
}
