// The alarm's colours under sorting, and the document list: from a row into every action, its menus, the
// picker.
#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

constexpr int kAlarm = 5;
constexpr int kList = 11;

class Lists : public Windows {
  protected:
    // A row of the alarm: code, stock, colour of its figures.
    std::string AlarmRow(int row) {
        const QVariant colour =
            person.Find<QTableView>("Grid1").model()->index(row - 1, 4).data(Qt::BackgroundRole);
        return person.Cell("Grid1", row, 1) + " " + person.Cell("Grid1", row, 5) + " " +
               S(colour.value<QColor>().name());
    }
    Texts AlarmRows() { return {AlarmRow(1), AlarmRow(2), AlarmRow(3)}; }
    std::string Heading(int column) {
        return S(person.Find<QTableView>("Grid1").model()->headerData(column - 1, Qt::Horizontal).toString());
    }
    Texts Numbers() {
        Texts numbers;
        for (int row = 1; row <= person.Find<QTableView>("Grid1").model()->rowCount(); ++row)
            numbers.push_back(person.Cell("Grid1", row, 2));
        return numbers;
    }
    // What the entry screen is opened for from the list.
    void InEntry(const std::string& title, const std::string& number,
                 const std::function<void()>& work = {}) {
        person.Next([this, title, number, work] {
            EXPECT_EQ(S(person.Front().windowTitle()), title);
            EXPECT_EQ(person.Text("txtNo"), number);
            if (work)
                work();
        });
    }
};

TEST_F(Lists, AlarmColoursStayWithTheirRows) {
    Save({.type = 1,
          .customer = "G001",
          .lines = {{"CPU001", 50, 400}, {"CPU002", 20, 600}, {"CPU003", 4, 880}, {"MEM002", 10, 170}}},
         true);
    Open(kAlarm, -1, [&] {
        // Limits 5 to 40, 10 to 60, 10 to 60 and 30 to 200: the second is within.
        const std::string above = "CPU001 50.00 #c0ffff", below = "CPU003 4.00 #ffc0c0",
                          low = "MEM002 10.00 #ffc0c0";
        EXPECT_EQ(AlarmRows(), (Texts{above, below, low}));
        EXPECT_EQ(person.Find<QTableView>("Grid1").model()->rowCount(), 3);
        person.ClickHeading("Grid1", 5);
        EXPECT_EQ(Heading(5), "库存数↑");
        EXPECT_EQ(AlarmRows(), (Texts{below, low, above}));
        person.ClickHeading("Grid1", 5);
        EXPECT_EQ(Heading(5), "库存数↓");
        EXPECT_EQ(AlarmRows(), (Texts{above, low, below}));
        person.ClickHeading("Grid1", 1);
        EXPECT_EQ(Heading(5) + " " + Heading(1), "库存数 编码↑");
        EXPECT_FALSE(
            person.Find<QTableView>("Grid1").model()->index(0, 0).data(Qt::BackgroundRole).isValid());
    });
}

TEST_F(Lists, RowsAreOpenedChangedAndDeleted) {
    Save(1);
    Save(1);
    Open(kList, 1, [&] {
        EXPECT_EQ(Numbers(), (Texts{"20261105RK001", "20261105RK002"}));
        EXPECT_FALSE(person.Find<QTabWidget>("SSTab1").isTabEnabled(1)); // of the lines
        InEntry("入库单：查询", "20261105RK002");
        person.DoubleClickCell("Grid1", 2, 1);
        InEntry("入库单：查询", "20261105RK001");
        person.ClickCell("Grid1", 1, 2);
        person.Press(Qt::Key_Return);
        InEntry("入库单：修改", "20261105RK001", [&] {
            person.Click("txtNo");
            person.Press(Qt::Key_End);
            person.Press(Qt::Key_Backspace);
            person.Type("9");
            person.Answer(Qt::Key_Return);
            person.Answer(Qt::Key_Return);
            person.Answer(Qt::Key_Escape); // not printed
            person.Press(Qt::Key_F9);
        });
        person.Click("CmdAction(2)");
        EXPECT_EQ(person.Boxes(), (Texts{"入库单：修改：20261105RK001，确定？",
                                         "20261105RK001：单据修改完毕！", "打印本张单据？"}));
        EXPECT_EQ(Numbers(), (Texts{"20261105RK002", "20261105RK009"}));
        InEntry("入库单：删除", "20261105RK002", [&] { person.Click("cmdSave"); });
        person.ClickCell("Grid1", 1, 2);
        person.Click("CmdAction(3)");
        EXPECT_EQ(person.Boxes(),
                  (Texts{"入库单：删除：20261105RK002，确定？", "20261105RK002：单据删除完毕！"}));
        EXPECT_EQ(Numbers(), Texts{"20261105RK009"});
    });
    EXPECT_EQ(Rows("select fInvNo,fInvSHR from tJXC_CkDj01"), Texts{"20261105RK009|"});
}

TEST_F(Lists, DocumentsAreApprovedAndReversed) {
    Save(1);
    Open(kList, 1, [&] {
        const auto choose = [&](const char* item) {
            person.Next([this, item] { person.Choose(item); });
            person.ClickCell("Grid1", 1, 2, Qt::RightButton);
            return person.Boxes();
        };
        EXPECT_EQ(choose("单据反审核"), Texts{"该单据尚未审核！"});
        person.Next([&] {
            InEntry("入库单：审核", "20261105RK001", [&] { person.Press(Qt::Key_F9); });
            person.Choose("单据审核");
        });
        person.ClickCell("Grid1", 1, 2, Qt::RightButton);
        EXPECT_EQ(person.Boxes(),
                  (Texts{"20261105RK001：单据审核，系统将同时进行库存数刷新、往来帐处理等操作，确定？",
                         "20261105RK001：单据审核完毕！"}));
        EXPECT_EQ(person.Shown<frmDj01>().Grid1.Text(1, 11), "王芳");
        person.Click("CmdAction(3)");
        EXPECT_EQ(person.Boxes(), Texts{"该单据已经审核！"});
        person.Next([&] {
            InEntry("入库单：反审核", "20261105RK001", [&] {
                person.Answer(Qt::Key_Escape); // thought better of it
                person.Press(Qt::Key_F9);
                EXPECT_EQ(Rows("select fInvSHR from tJXC_CkDj01"), Texts{"王芳"});
                person.Press(Qt::Key_F9);
            });
            person.Choose("单据反审核");
        });
        person.ClickCell("Grid1", 1, 2, Qt::RightButton);
        const std::string question =
            "20261105RK001：单据反审核，系统将同时进行库存数刷新、往来帐处理等操作，确定？";
        EXPECT_EQ(person.Boxes(), (Texts{question, question, "20261105RK001：单据反审核完毕！"}));
        EXPECT_EQ(person.Shown<frmDj01>().Grid1.Text(1, 11), "");
    });
    EXPECT_EQ(Rows("select fInvSHR from tJXC_CkDj01"), Texts{""});
}

TEST_F(Lists, RightButtonOffersTheConversionsOfTheRow) {
    const std::vector<std::pair<int, Texts>> menus{
        {20, {"产生：询价单", "产生：采购订单", "产生：入库单"}},
        {21, {"生成：采购订单", "生成：入库单", "转为：报价单"}},
        {22, {"生成：销售订单", "生成：出库单", "生成：代销发货单", "转为：询价单"}},
        {23, {"生成：入库单", "转为：销售订单"}},
        {24, {"生成：出库单", "生成：代销发货单", "转为：采购订单"}},
        {1, {"生成：出库单", "生成：代销发货单", "产生：入库退货单"}},
        {2, {"产生：出库退货单"}},
        {6, {"产生：代销退货单"}},
        {3, {}},
    };
    Save(1, true); // stock to issue
    for (const auto& [type, conversions] : menus) {
        if (type != 1)
            Save(type);
        Texts all = conversions;
        all.insert(all.end(), {"单据审核", "单据反审核", "", "复制选定", "复制全部", "", "打印预览...",
                               "存为 PDF...", "存为 Excel...", "存为 CSV..."});
        Open(kList, type, [&, type = type] {
            Texts shown;
            person.Next([&] { shown = person.MenuCaptions(); });
            person.ClickCell("Grid1", 1, 2, Qt::RightButton);
            EXPECT_EQ(shown, all) << type;
        });
    }
    Open(kList, 1, [&] {
        person.Next([&] {
            InEntry("入库退货单：新增", "", // numbered when the date is left
                    [&] {
                        EXPECT_EQ(person.Cell("Grid2", 1, line::kQuantity), "-3.00");
                        person.Answer(Qt::Key_Return);
                        person.Answer(Qt::Key_Escape);
                        person.Press(Qt::Key_F9);
                    });
            person.Choose("产生：入库退货单");
        });
        person.ClickCell("Grid1", 1, 2, Qt::RightButton);
        EXPECT_EQ(person.Boxes(),
                  (Texts{"入库退货单：新增：20261105RK002，确定？", "单据新增完毕。打印本张单据？"}));
        EXPECT_EQ(Numbers(), (Texts{"20261105RK001", "20261105RK002"}));
    });
}

TEST_F(Lists, PickerAnswersADoubleClickWithTheNumber) {
    Save(1);
    Save(1);
    const auto pick = [&](const std::function<void()>& how) {
        Open(kList, 201, [&] {
            person.Click("cmdList");
            how();
            EXPECT_FALSE(QApplication::activeModalWidget());
        });
        return ScreenNamed("frmDj01").GetProperty("DjCode").AsText();
    };
    EXPECT_EQ(pick([&] { person.DoubleClickCell("Grid1", 2, 2); }), "20261105RK002");
    EXPECT_EQ(pick([&] {
                  person.ClickCell("Grid1", 1, 2);
                  person.Press(Qt::Key_Return);
              }),
              "20261105RK001");
    EXPECT_EQ(pick([&] { person.Front().close(); }), "");
}

} // namespace

} // namespace jxc::test
