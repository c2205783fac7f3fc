// The main window: what it offers of a company, its last documents, another company, and a new one. Where it begins:
// last_company_test.cpp.
#include <QTest>

#include "host/window/company_backups.h"
#include "host/window/main_window.h"
#include "session/session.h"
#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class Main : public Windows {
  protected:
    void SetUp() override {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(window.OpenCompanyOf(company.Address(), ""));
    }
    // The items below a branch of the tree.
    Texts Branch(const QString& subject) const {
        Texts items;
        const auto found = window.findChild<QTreeWidget*>("screens")->findItems(subject, Qt::MatchExactly);
        for (int i = 0; !found.isEmpty() && i < found.front()->childCount(); ++i)
            items.push_back(S(found.front()->child(i)->text(0)));
        return items;
    }
    // What the person sees below a caption of the menu bar.
    Texts Menu(const QString& caption) {
        Texts captions;
        for (QAction* menu : window.menuBar()->actions())
            if (menu->text() == caption) {
                person.Next([&] { captions = person.MenuCaptions(); });
                person.Click(*window.menuBar(), window.menuBar()->actionGeometry(menu).center());
            }
        return captions;
    }
    MainWindow window;
};

TEST_F(Main, OffersTheDocumentTypesBySubject) {
    const Texts purchase{"计划采购单", "采购寻价单", "采购订单", "入库单", "入库退货单"};
    EXPECT_EQ(Branch("采购"), purchase);
    EXPECT_EQ(Menu("采购(&B)"), purchase);
    const Texts sale{"销售报价单", "销售订单",   "出库单",     "出库退货单", "零售单",
                     "零售退货单", "代销发货单", "代销退货单", "代销结算单", "代销结退单"};
    EXPECT_EQ(Branch("销售"), sale);
    EXPECT_EQ(Menu("销售(&S)"), sale);
    EXPECT_EQ(Branch("仓库"), (Texts{"期初单", "调库单", "盘点单", "生产组装单", "生产拆分单"}));
    EXPECT_EQ(S(window.windowTitle()).find("lzJxc 进销存 — "), 0U);
}

TEST_F(Main, MenuStartsAnEntry) {
    person.Next([&] { // the types of the subject
        for (int i = 0; i < 3; ++i)
            person.Press(Qt::Key_Down);
        person.Next([&] { // the ways into receipts
            person.Next([&] { EXPECT_EQ(S(person.Front().windowTitle()), "入库单：新增"); });
            person.Press(Qt::Key_N);
        });
        person.Press(Qt::Key_Right);
    });
    person.Press(Qt::Key_B, Qt::AltModifier);
}

TEST_F(Main, ShowsAndOpensTheLastDocuments) {
    Save(1);
    Save(1, true);
    window.SelectItem("入库单");
    const auto& last = person.Find<QTableWidget>("recentDocuments");
    ASSERT_EQ(last.rowCount(), 2); // the youngest first: 3 x 610 + 5 x 171.50
    EXPECT_EQ(S(last.item(0, 0)->text() + " " + last.item(0, 1)->text() + " " + last.item(0, 3)->text()),
              "2026-11-05 20261105RK002 2,687.50");
    EXPECT_EQ(S(last.item(0, 5)->text()) + S(last.item(1, 5)->text()), "马文涛");
    person.Next([&] { EXPECT_EQ(person.Text("txtNo"), "20261105RK001"); });
    person.Click(*last.viewport(), last.visualItemRect(last.item(1, 1)).center());
    person.Press(Qt::Key_Return);
    window.SelectItem("客户资料");
    EXPECT_FALSE(last.isVisible());
}

TEST_F(Main, TellsOfAMissingCompanyAndKeepsTheOneOpen) {
    const QString title = window.windowTitle();
    EXPECT_FALSE(window.OpenCompanyOf("/nowhere/none.db", ""));
    EXPECT_EQ(person.Boxes(), Texts{"数据库文件 /nowhere/none.db 不存在。"});
    EXPECT_EQ(window.windowTitle(), title);
    EXPECT_EQ(Branch("采购").size(), 5U);
    person.Next([&] { EXPECT_EQ(S(person.Front().windowTitle()), "库存统计"); });
    window.Start(*window.FindEntry("库存统计", "打开"));
}

TEST_F(Main, NewCompanyTakesItsFirstCard) {
    const QTemporaryDir folder;
    const std::string file = S(folder.filePath("远山商行.db"));
    window.OfferNewCompaniesIn(folder.path());
    person.Next([&] {
        person.Next([&] {
            person.Compose("远山/商行");
            for (int i = 0; i < 9; ++i)
                person.Press(Qt::Key_Return);
            EXPECT_EQ(person.Focus(), "txtUserName");
            person.Press(Qt::Key_F9);
            EXPECT_EQ(person.Boxes(), Texts{"[用户]不能为空值！"});
            EXPECT_EQ(person.Focus(), "txtUserName");
            person.Compose("林远");
            person.Next([&] {
                auto& name = person.Find<QLineEdit>("fileNameEdit");
                EXPECT_EQ(S(name.text()), "远山_商行.db"); // what no file is called gives way
                name.setText(Q(file));
                person.Press(Qt::Key_Return);
            });
            person.Press(Qt::Key_F9);
        });
        person.Press(Qt::Key_N);
    });
    person.Press(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(person.Boxes(), Texts{});
    EXPECT_EQ(S(window.windowTitle()), "lzJxc 进销存 — 远山/商行");
    EXPECT_EQ(session.UserName + session.ZgName, "林远林远"); // signed in, and asked for no pass word
    EXPECT_EQ(person.Focus(), "stepProduct");
    window.SelectItem("客户资料");
    person.Next([&] {
        person.Press(Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(person.Focus(), "txtCompCode");
        person.Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(person.Boxes(), Texts{"[编号]不能为空值！"});
        person.Enter("K'001");
        EXPECT_EQ(person.Boxes(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"});
        person.Press(Qt::Key_A, Qt::ControlModifier);
        person.Enter("K001");
        person.Compose("远山商行");
        person.Press(Qt::Key_Return);
        person.Press(Qt::Key_Down); // the kind: a supplier
        person.Press(Qt::Key_Return);
        person.Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(person.Focus(), "txtCompCode"); // the next card
        for (int i = 0; i < 4; ++i) // to the cancel button, out of the card; to the quit button, out
            person.Press(Qt::Key_Escape);
        EXPECT_FALSE(QApplication::activeModalWidget());
    });
    person.Find("screens").setFocus();
    person.Press(Qt::Key_Return);
    EXPECT_EQ(person.Boxes(), Texts{});
    const jxc::Rows cards = QueryCompany(file, "select CompCode,CompName,fType0 from cards");
    ASSERT_EQ(cards.Count(), 1U);
    EXPECT_EQ(cards.At(0, 0).AsText() + cards.At(0, 1).AsText() + cards.At(0, 2).AsText(), "K001远山商行1");
}

// Each step back leads to what was typed, and nothing is left behind.
// The way back: from a copy to a company of its own, and the one before as it was. What is no copy is refused.
TEST_F(Main, RestoresACopyAsACompanyOfItsOwn) {
    QTemporaryDir folder;
    const std::string copy = CompanyBackups(company.Address(), folder.path()).BackUp();
    const QString restored = folder.path() + "/back.db";
    Save(1); // after the copy
    const auto restore = [&](const QString& from) {
        person.Next([&, from] {
            person.Next([&, from] {
                person.Find<QLineEdit>("fileNameEdit").setText(from);
                person.Next([&] {
                    person.Find<QLineEdit>("fileNameEdit").setText(restored);
                    person.Press(Qt::Key_Return);
                });
                person.Press(Qt::Key_Return);
            });
            person.Press(Qt::Key_T);
        });
        person.Press(Qt::Key_F, Qt::AltModifier);
    };
    QFile broken(folder.path() + "/broken.db");
    ASSERT_TRUE(QFile::copy(Q(copy), broken.fileName()));
    broken.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(broken.resize(broken.size() / 2));
    restore(broken.fileName());
    ASSERT_EQ(person.Boxes().size(), 1U);
    EXPECT_FALSE(QFile::exists(restored));
    EXPECT_EQ(Rows("select count(*) from tJXC_CkDj01"), Texts{"1"});

    restore(Q(copy));
    EXPECT_EQ(person.Boxes(), Texts{"备份已恢复为：\n" + S(restored) + "\n\n原帐套没有改动。"});
    EXPECT_EQ(session.UserPath, S(restored));
    EXPECT_EQ(QueryCompany(S(restored), "select count(*) from tJXC_CkDj01").At(0, 0).AsText(), "0");
    EXPECT_EQ(Rows("select count(*) from tJXC_CkDj01"), Texts{"1"});
}

TEST_F(Main, NewCompanyThatCannotBeWrittenIsNotLost) {
    const QTemporaryDir folder;
    QFile taken(folder.filePath("taken.db"));
    ASSERT_TRUE(taken.open(QFile::WriteOnly));
    taken.close();
    const QString title = window.windowTitle();
    window.OfferNewCompaniesIn(folder.path());
    const auto fileNamed = [&](const QString& name) { // in the window that opens next
        person.Next([&, name] {
            person.Find<QLineEdit>("fileNameEdit").setText(name);
            person.Press(Qt::Key_Return);
        });
    };
    person.Next([&] {
        person.Compose("远山");
        person.Find("txtUserName").setFocus();
        person.Compose("林远");
        person.Press(Qt::Key_F9);
    });
    fileNamed(taken.fileName());
    person.Next([&] { // the same again: another file
        EXPECT_EQ(person.Boxes(), Texts{"文件已经存在，请另取名称：" + S(taken.fileName())});
        EXPECT_EQ(person.Text("txtCompName") + person.Text("txtUserName"), "远山林远");
        person.Press(Qt::Key_F9);
    });
    fileNamed("/proc/none.db");
    person.Next([&] {
        const Texts told = person.Boxes();
        ASSERT_EQ(told.size(), 1U);
        EXPECT_NE(told[0].find("/proc/none.db"), std::string::npos) << told[0];
        EXPECT_EQ(person.Text("txtCompName") + person.Text("txtUserName"), "远山林远");
        person.Press(Qt::Key_F9);
    });
    person.Next([&] { person.Press(Qt::Key_Escape); }); // no file after all
    person.Next([&] {                                   // nor a company
        EXPECT_EQ(person.Text("txtCompName"), "远山");
        person.Answer(Qt::Key_D);
        person.Click("cmdQuit");
        EXPECT_EQ(person.Boxes(), Texts{"帐套尚未建立，放弃所作的填写？"});
    });
    window.NewCompany();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"taken.db"});
    EXPECT_EQ(QFileInfo(taken.fileName()).size(), 0);
    EXPECT_EQ(window.windowTitle(), title);
    EXPECT_EQ(session.UserPath, company.Address());
}

// A program that is started in another folder tomorrow must find the company again; what a tour opens is nobody's work.
TEST_F(Main, RemembersWhereACompanyIsAndNothingElse) {
    const QString folder = QDir::currentPath();
    const QFileInfo file(Q(company.Address()));
    QDir::setCurrent(file.absolutePath());
    ASSERT_TRUE(window.OpenCompanyOf(S(file.fileName()), ""));
    QDir::setCurrent(folder);
    const auto recent = [] { return QSettings("lzJxc", "jxc").value("recent").toStringList(); };
    EXPECT_EQ(S(recent().value(0)), S(file.absoluteFilePath()));
    QSettings("lzJxc", "jxc").setValue("recent", QStringList{"/kept.db"});
    MainWindow tour;
    tour.LeaveNoTrace();
    ASSERT_TRUE(tour.OpenCompanyOf(company.Address(), ""));
    EXPECT_EQ(recent(), QStringList{"/kept.db"});
}

// What a host says of the user and the company stands above what the company says, for each company that is opened.
TEST_F(Main, StandsOverWhatTheCompanySaysOfItsUsers) {
    const std::string user = session.UserName;
    EXPECT_EQ(session.ZgName, user);
    EXPECT_NE(window.FindEntry("用户与权限", "打开"), nullptr);
    EXPECT_NE(window.FindEntry("客户资料", "打开"), nullptr);
    window.StandOver({{"ZgName", "张三"}, {"myPower", "0000"}, {"CompName", "分店"}});
    for (int times = 0; times < 2; ++times) {
        ASSERT_TRUE(window.OpenCompanyOf(company.Address(), ""));
        EXPECT_EQ(session.UserName, user);
        EXPECT_EQ(session.ZgName, "张三");
        EXPECT_EQ(session.myPower, "0000");
        EXPECT_EQ(S(window.windowTitle()), "lzJxc 进销存 — 分店");
        EXPECT_EQ(window.FindEntry("客户资料", "打开"), nullptr); // that right is missing
        const Texts master = Branch("资料");
        EXPECT_EQ(std::count(master.begin(), master.end(), "客户资料"), 0);
        EXPECT_EQ(std::count(master.begin(), master.end(), "货币"), 1); // needs none
        EXPECT_EQ(Menu("资料(&D)"), master);
    }
    window.StandOver({});
    ASSERT_TRUE(window.OpenCompanyOf(company.Address(), ""));
    EXPECT_EQ(session.ZgName, user);
    EXPECT_NE(window.FindEntry("客户资料", "打开"), nullptr);
    EXPECT_EQ(person.Boxes(), Texts{});
}

} // namespace

} // namespace jxc::test
