// What leaves a grid and comes into it: files that other programs read, and the clipboard.
#include "documents/frmDj02.h"
#include "tests/windows/window_fixture.h"
#include "view/grid_menu.h"

namespace jxc::test {

namespace {

struct PriceList : Screen {
    PriceList() : Screen("PriceList") {
        Grid1.SetColumns({{.caption = "编码"},
                          {.caption = "品名"},
                          {.caption = "fID", .hidden = true},
                          {.caption = "金额", .type = CellType::Number}});
        Grid1.SetRowCount(2);
        int column = 0;
        for (const Value& cell : {Value("A1"), Value("螺丝,\"大\""), Value(7), Value(1234.5)})
            Grid1.FillCell(1, ++column, cell);
        Grid1.FillCell(2, 1, "007");
    }
    void Open() override {}
    Grid Grid1{*this, "Grid1"};
};

QByteArray Contents(const QString& file) {
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << S(file);
    return in.readAll();
}

// What a program writes about a file.
std::string Output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << S(program);
    return process.readAllStandardOutput().toStdString();
}

class GridFiles : public Windows {
  protected:
    QString Path(const char* name) const { return folder.filePath(name); }
    // Opens the entry of receipts, its first line in front.
    void EnterLines(const std::function<void()>& work) {
        Enter(1, [&] {
            person.ClickCell("Grid2", 1, line::kCode);
            work();
        });
    }
    QTemporaryDir folder;
    PriceList list;
};

TEST_F(GridFiles, Csv) {
    SaveAsCsv(list.Grid1, Path("a.csv"));
    EXPECT_EQ(Contents(Path("a.csv")).toStdString(),
              "\xEF\xBB\xBF编码,品名,金额\r\nA1,\"螺丝,\"\"大\"\"\",1234.50\r\n007,,\r\n");
    EXPECT_THROW(SaveAsCsv(list.Grid1, Path("none/a.csv")), std::runtime_error);
}

TEST_F(GridFiles, Xlsx) {
    SaveAsXlsx(list.Grid1, "价格", Path("a.xlsx"));
    const std::string sheet = Output("unzip", {"-p", Path("a.xlsx"), "xl/worksheets/sheet1.xml"});
    EXPECT_NE(sheet.find("<c r=\"C3\" s=\"2\"><v>1234.5</v></c>"), std::string::npos) << sheet;
    EXPECT_NE(sheet.find("<c r=\"A4\" t=\"s\">"), std::string::npos) << sheet; // 007 is a text
    EXPECT_EQ(sheet.find("<v>7</v>"), std::string::npos) << sheet;             // of the hidden column
    const std::string texts = Output("unzip", {"-p", Path("a.xlsx"), "xl/sharedStrings.xml"});
    for (const char* text : {"价格", "编码", "螺丝,\"大\"", "007"})
        EXPECT_NE(texts.find(text), std::string::npos) << text;
    EXPECT_THROW(SaveAsXlsx(list.Grid1, "价格", Path("none/a.xlsx")), std::runtime_error);
}

TEST_F(GridFiles, Pdf) {
    SaveAsPdf(list.Grid1, "价格", Path("a.pdf"));
    EXPECT_TRUE(Contents(Path("a.pdf")).startsWith("%PDF"));
    EXPECT_GT(Contents(Path("a.pdf")).size(), 1000);
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        return;
    const std::string text = Output("pdftotext", {Path("a.pdf"), "-"});
    for (const char* part : {"价格", "品名", "1,234.50"})
        EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
}

TEST_F(GridFiles, MenuSavesUnderTheNameGiven) {
    Save(1, true);
    Open(4, -1, [&] {
        person.Next([&] {
            person.Next([&] {
                auto& name = person.Find<QLineEdit>("fileNameEdit");
                name.setText(Path("stock"));
                person.Press(Qt::Key_Return);
            });
            person.Choose("存为 CSV...");
        });
        person.ClickCell("Grid1", 1, 1, Qt::RightButton);
        EXPECT_EQ(person.Boxes(), Texts{"已保存：" + S(Path("stock.csv"))});
    });
    EXPECT_NE(Contents(Path("stock.csv")).indexOf("\r\nCPU002,处理器 四核/4核8线程 3.3GHz,颗,总部仓,3.00,"),
              -1);
}

TEST_F(GridFiles, RangeIsCopied) {
    Save(1, true);
    Open(4, -1, [&] {
        person.ClickCell("Grid1", 1, 1);
        person.Press(Qt::Key_Down, Qt::ShiftModifier);
        person.Press(Qt::Key_C, Qt::ControlModifier);
    });
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith("CPU002\t处理器 四核/4核8线程 3.3GHz\t颗\t总部仓\t")) << S(lines[0]);
    EXPECT_TRUE(lines[1].startsWith("MEM002\t")) << S(lines[1]);
    EXPECT_EQ(lines[2], "");
}

TEST_F(GridFiles, BlockIsPastedAsIfTyped) {
    EnterLines([&] {
        // Code, name, unit, stock, quantity, reference price and price, as the grid shows them.
        QApplication::clipboard()->setText("cpu002\t\t\t\t10\t\t600\r\nMEM002\t\t\t\t20\t\t170.5\r\n");
        person.Press(Qt::Key_V, Qt::ControlModifier);
        const auto& grid = person.Shown<frmDj02>().Grid2;
        ASSERT_EQ(grid.RowCount(), 2);
        EXPECT_EQ(grid.Text(1, line::kCode) + " " + grid.Text(1, line::kName),
                  "CPU002 4核8线程 3.3GHz/处理器 四核");
        EXPECT_EQ(person.Cell("Grid2", 1, line::kAmount), "6,000.00");
        EXPECT_EQ(person.Cell("Grid2", 2, line::kAmount), "3,410.00");
        EXPECT_EQ(person.Text("txtSum"), "9410.00");
        EXPECT_EQ(person.Boxes(), Texts{});
    });
}

TEST_F(GridFiles, LinesGoFromOneDocumentToAnother) {
    EnterLines([&] {
        for (const char* cell : {"CPU002", "10", "600", "MEM002", "20", "170.5"})
            person.Enter(cell);
        person.ClickCell("Grid2", 1, line::kCode);
        person.Press(Qt::Key_Down, Qt::ShiftModifier);
        for (int column = line::kCode; column < line::kMemo1; ++column)
            person.Press(Qt::Key_Right, Qt::ShiftModifier);
        person.Press(Qt::Key_C, Qt::ControlModifier);
    });
    EnterLines([&] {
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.RowCount(), 2);
        EXPECT_EQ(person.Text("txtSum"), "9410.00");
    });
}

TEST_F(GridFiles, PastedLettersEndThePasting) {
    EnterLines([&] {
        QApplication::clipboard()->setText("CPU002\t\t\t\tzehn\t\t600\nMEM002");
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Boxes(), Texts{"“数量”只能输入数字。"});
        const auto& grid = person.Shown<frmDj02>().Grid2;
        EXPECT_EQ(grid.RowCount(), 1);
        EXPECT_EQ(grid.Text(1, line::kCode), "CPU002");
        EXPECT_EQ(person.Cell("Grid2", 1, line::kPrice), "620.00");
    });
}

} // namespace

} // namespace jxc::test
