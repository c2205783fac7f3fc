// What leaves a grid and comes into it: files that other programs read, and the clipboard.
#include <clocale>

#include "documents/frmDj02.h"
#include "stock/frmCkKc.h"
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

// A part of a spreadsheet's file: its sheet, or the texts in it.
const char* const kSheet = "xl/worksheets/sheet1.xml";
const char* const kTexts = "xl/sharedStrings.xml";
std::string PartOf(const QString& file, const char* part) {
    QProcess unzip;
    unzip.start("unzip", {"-p", file, part});
    EXPECT_TRUE(unzip.waitForFinished());
    return unzip.readAllStandardOutput().toStdString();
}

// Texts that a spreadsheet would run, and such as break the lines of copies.
struct Hostile : Screen {
    Hostile() : Screen("Hostile") {
        Grid1.SetColumns({{.caption = "=摘要"}, {.caption = "金额", .type = CellType::Number}});
        Grid1.SetRowCount(static_cast<int>(texts.size()));
        for (int row = 1; row <= Grid1.RowCount(); ++row) {
            Grid1.FillCell(row, 1, texts[static_cast<size_t>(row - 1)]);
            Grid1.FillCell(row, 2, -1234.5);
        }
    }
    void Open() override {}
    const Texts texts{"=cmd|' /C calc'!A0",
                      "+1+1",
                      "-2+3",
                      "@SUM(1)",
                      "\tx",
                      "\ry",
                      "'=1",
                      "'平常",
                      "＝1",
                      "a\tb\nc\"d\"",
                      "\"",
                      "5-3",
                      "x;=cmd|' /C calc'!A0",
                      "x;\"-1\"",
                      "x;\t1;＠",
                      "y\n+1",
                      "a;b;5-3"};
    Grid Grid1{*this, "Grid1"};
};

// German numbers for this program, in a folder of the test's own; put back at the end.
class GermanNumbers {
  public:
    GermanNumbers() {
        const QStringList what{"-i", "de_DE", "-f", "UTF-8", folder_.filePath("de_DE.UTF-8")};
        if (QStandardPaths::findExecutable("localedef").isEmpty() ||
            QProcess::execute("localedef", what) != 0)
            return;
        setenv("LOCPATH", folder_.path().toUtf8().constData(), 1);
        inUse = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr;
        unsetenv("LOCPATH");
    }
    ~GermanNumbers() { std::setlocale(LC_NUMERIC, "C"); }
    bool inUse = false;

  private:
    QTemporaryDir folder_;
};

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
    EXPECT_EQ(FileText(S(Path("a.csv"))),
              "\xEF\xBB\xBF编码,品名,金额\r\nA1,\"螺丝,\"\"大\"\"\",1234.50\r\n007,,\r\n");
    EXPECT_THROW(SaveAsCsv(list.Grid1, Path("none/a.csv")), std::runtime_error);
}

TEST_F(GridFiles, Xlsx) {
    SaveAsXlsx(list.Grid1, "价格", Path("a.xlsx"));
    const std::string sheet = PartOf(Path("a.xlsx"), kSheet);
    EXPECT_NE(sheet.find("<c r=\"C3\" s=\"2\"><v>1234.5</v></c>"), std::string::npos) << sheet;
    EXPECT_NE(sheet.find("<c r=\"A4\" t=\"s\">"), std::string::npos) << sheet; // 007 is a text
    EXPECT_EQ(sheet.find("<v>7</v>"), std::string::npos) << sheet;             // of the hidden column
    const std::string texts = PartOf(Path("a.xlsx"), kTexts);
    for (const char* text : {"价格", "编码", "螺丝,\"大\"", "007"})
        EXPECT_NE(texts.find(text), std::string::npos) << text;
    EXPECT_THROW(SaveAsXlsx(list.Grid1, "价格", Path("none/a.xlsx")), std::runtime_error);
}

TEST_F(GridFiles, NumbersHaveTheirPointUnderAnyLanguage) {
    EXPECT_STREQ(std::localeconv()->decimal_point, "."); // although the application object takes the user's
    const GermanNumbers german;
    if (!german.inUse)
        GTEST_SKIP() << "localedef makes no de_DE here (package locales)";
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    SaveAsXlsx(list.Grid1, "价格", Path("a.xlsx"));
    const std::string sheet = PartOf(Path("a.xlsx"), kSheet);
    EXPECT_NE(sheet.find("<v>1234.5</v>"), std::string::npos) << sheet;
    EXPECT_EQ(sheet.find("width=\"10,"), std::string::npos) << sheet;
    EXPECT_STREQ(std::localeconv()->decimal_point, ","); // the program's own is left alone
}

// In a country with decimal commas the figures are the same: what is typed, stored, counted and shown again.
TEST_F(GridFiles, ReceiptBecomesStockUnderAnyLanguage) {
    const GermanNumbers german;
    if (!german.inUse)
        GTEST_SKIP() << "localedef makes no de_DE here (package locales)";
    EnterLines([&] {
        person.Click("txtKhSeek");
        person.Enter("G001");
        person.ClickCell("Grid2", 1, line::kCode);
        person.EnterEach({"CPF004", "12288", "6.50"});
        EXPECT_EQ(person.Cell("Grid2", 1, line::kAmount), "79,872.00");
        EXPECT_EQ(person.Text("txtSum"), "79872.00");
        for (const int key : {Qt::Key_Return, Qt::Key_Escape})
            person.Answer(key);
        person.Press(Qt::Key_F9);
    });
    person.Boxes();
    const int key = std::stoi(Rows("select max(fInvID) from tJXC_CkDj01")[0]);
    Open(13, 1, [&] { person.Press(Qt::Key_F9); }, {{"Action", 4}, {"invType", 1}, {"oldInvID", key}});
    EXPECT_EQ(person.Boxes().back(), "20261105RK001：单据审核完毕！");
    EXPECT_EQ(Rows("select fRkSl,fRkJe,fKcSL,fKcDj from tJXC_CkTj"), Texts{"12288|79872|12288|6.5"});
    Open(4, -1, [&] {
        person.Press(Qt::Key_F5);
        const Grid& stock = person.Shown<frmCkKc>().Grid1;
        std::string row;
        for (int column = 1; column <= stock.ColumnCount(); ++column)
            row += stock.ShownText(1, column) + "|";
        EXPECT_NE(row.find("12,288.00|"), std::string::npos) << row;
    });
    person.Boxes();
}

TEST_F(GridFiles, NoTextStartsAFormula) {
    const Hostile hostile;
    SaveAsCsv(hostile.Grid1, Path("a.csv"));
    EXPECT_EQ(
        FileText(S(Path("a.csv"))),
        "\xEF\xBB\xBF'=摘要,金额\r\n'=cmd|' /C calc'!A0,-1234.50\r\n'+1+1,-1234.50\r\n'-2+3,-1234.50\r\n"
        "'@SUM(1),-1234.50\r\n'\tx,-1234.50\r\n\"'\ry\",-1234.50\r\n''=1,-1234.50\r\n'平常,-1234.50\r\n"
        "'＝1,-1234.50\r\n\"a\tb\nc\"\"d\"\"\",-1234.50\r\n\"\"\"\",-1234.50\r\n5-3,-1234.50\r\n"
        "x;'=cmd|' /C calc'!A0,-1234.50\r\n\"x;'\"\"-1\"\"\",-1234.50\r\nx;'\t1;'＠,-1234.50\r\n"
        "\"y\n'+1\",-1234.50\r\na;b;5-3,-1234.50\r\n");
    SaveAsXlsx(hostile.Grid1, "=1+1", Path("a.xlsx"));
    const std::string sheet = PartOf(Path("a.xlsx"), kSheet);
    EXPECT_EQ(sheet.find("<f>"), std::string::npos);
    EXPECT_NE(sheet.find("<v>-1234.5</v>"), std::string::npos);
    const std::string texts = PartOf(Path("a.xlsx"), kTexts);
    EXPECT_NE(texts.find("<t>=cmd|' /C calc'!A0</t>"), std::string::npos) << texts;
    PriceList tooLong;
    tooLong.Grid1.FillCell(1, 1, std::string(40'000, 'x'));
    EXPECT_THROW(SaveAsXlsx(tooLong.Grid1, "价格", Path("b.xlsx")),
                 std::runtime_error); // nothing is left out
}

TEST_F(GridFiles, CopiedTextsComeBackAsTheyWere) {
    const Hostile hostile;
    const std::string copied = CopiedText(hostile.Grid1, WholeGrid(hostile.Grid1), false);
    EXPECT_TRUE(copied.starts_with("'=cmd|' /C calc'!A0\t-1234.50\n'+1+1\t-1234.50\n")) << copied;
    Hostile empty;
    empty.Grid1.SetRowCount(0);
    empty.Grid1.SetRowCount(static_cast<int>(hostile.texts.size()));
    empty.Grid1.selectedRow = 1;
    Texts back;
    PasteCells(empty.Grid1, PastedCells(copied), [&](int row, int column, const std::string& text) {
        EXPECT_TRUE(column == 1 || text == "-1234.50") << text;
        if (column == 1)
            back.push_back(text);
        return row == static_cast<int>(back.size());
    });
    EXPECT_EQ(back, hostile.texts);
}

TEST_F(GridFiles, Pdf) {
    SaveAsPdf(list.Grid1, "价格", Path("a.pdf"));
    EXPECT_TRUE(FileText(S(Path("a.pdf"))).starts_with("%PDF"));
    EXPECT_GT(FileText(S(Path("a.pdf"))).size(), 1000U);
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
    EXPECT_NE(FileText(S(Path("stock.csv"))).find("\r\nCPU002,处理器 四核/4核8线程 3.3GHz,颗,总部仓,3.00,"),
              std::string::npos);
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
        QApplication::clipboard()->setText(
            "cpu002\t\t\t\t10\t\t600\t\t\r\nMEM002\t\t\t\t20\t\t170.5\t\t\r\n");
        person.Press(Qt::Key_V, Qt::ControlModifier);
        const auto& grid = person.Shown<frmDj02>().Grid2;
        ASSERT_EQ(grid.RowCount(), 3); // the last one blank, for the next line
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
        person.EnterEach({"CPU002", "10", "600", "MEM002", "20", "170.5"});
        person.ClickCell("Grid2", 1, line::kCode);
        person.Press(Qt::Key_Down, Qt::ShiftModifier);
        for (int column = line::kCode; column < line::kMemo1; ++column)
            person.Press(Qt::Key_Right, Qt::ShiftModifier);
        person.Press(Qt::Key_C, Qt::ControlModifier);
    });
    EnterLines([&] {
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Boxes(), Texts{});
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.RowCount(), 3);
        EXPECT_EQ(person.Text("txtSum"), "9410.00");
    });
}

TEST_F(GridFiles, BlockThatDoesNotFitIsNotPasted) {
    EnterLines([&] {
        QApplication::clipboard()->setText("CPU002\t1\nMEM002\tzehn");
        person.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(person.Boxes(),
                  Texts{"粘贴的内容有 1 处不符，未粘贴任何内容：\n\n第 2 行：“数量”只能输入数字。（zehn）"});
        EXPECT_EQ(person.Shown<frmDj02>().Grid2.Text(1, line::kCode), "");
    });
}

} // namespace

} // namespace jxc::test
