// Documents in the preview: their paper, their template changed beside the pages, several together, and printing at once.
#include <QPdfWriter>
#include <QPrinter>

#include "documents/frmDj01.h"
#include "tests/windows/recorded_paper.h"
#include "tests/windows/window_fixture.h"
#include "view/page_browser.h"
#include "view/page_printer.h"
#include "view/print_queues.h"

namespace jxc::test {

namespace {

// A printer that prints into files.
class FilePrinter : public PrintQueues {
  public:
    bool Has(const QString& printer) const override { return printer == name; }
    void Print(const QString& printer, const Paper& paper) const override {
        if (broken)
            throw std::runtime_error("打印机“" + S(printer) + "”不能打印。");
        QPrinter device(QPrinter::HighResolution);
        device.setOutputFileName(folder.filePath(QString::number(++printed) + ".pdf"));
        device.setPageLayout(paper.Layout());
        PrintOn(device, paper);
    }
    int PagesOf(int job) const {
        return static_cast<int>(
            QByteArray::fromStdString(FileText(S(folder.filePath(QString::number(job) + ".pdf"))))
                .count("/Type /Page\n"));
    }
    QString name = "仓库激光机";
    bool broken = false;
    mutable int printed = 0;
    QTemporaryDir folder;
};

class DocumentPaper : public Windows {
  protected:
    DocumentPaper() { QSettings("lzJxc", "jxc").clear(); }

    std::string PageText() const {
        const auto& pages = *static_cast<PageBrowser*>(person.Find("area").parentWidget());
        std::string text;
        for (const Printed& part : PageOf(pages.Shown(), 1))
            text += part.text;
        return text;
    }
    static void Wait(int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }
    static std::string Fault() { return S(Person::Find<QLabel>("fault").text()); }
    static void Look(const char* name) {
        if (const char* folder = std::getenv("JXC_PAPERS"))
            Person::Front().grab().save(Q(std::string(folder) + "/" + name + ".png"));
    }
    // A stored receipt in its preview.
    void Preview(const std::function<void()>& work) {
        const int key = receipt ? receipt : (receipt = Save(1));
        Open(13, 1,
             [&] {
                 person.Next(work);
                 person.Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
             },
             {{"Action", 0}, {"oldInvID", key}});
    }
    int receipt = 0;
};

TEST_F(DocumentPaper, TheTemplateIsChangedBesideItsPagesByKeys) {
    Preview([&] {
        Look("preview");
        person.Next([&] {
            Look("editor");
            auto& text = person.Find<QPlainTextEdit>("text");
            EXPECT_EQ(person.Focus(), "text");
            EXPECT_NE(PageText().find("20261105RK001"), std::string::npos);
            // A key more, from the list, at the cursor.
            person.Press(Qt::Key_End, Qt::ControlModifier);
            person.Type("Checked: ");
            person.Press(Qt::Key_K, Qt::AltModifier);
            EXPECT_EQ(person.Focus(), "keys");
            person.Find<QListWidget>("keys").setCurrentRow(person.Find<QListWidget>("keys").row(
                person.Find<QListWidget>("keys").findItems("<经手人>", Qt::MatchExactly).at(0)));
            person.Press(Qt::Key_Return);
            EXPECT_EQ(person.Focus(), "text");
            EXPECT_TRUE(text.toPlainText().endsWith("Checked: <经手人>"));
            EXPECT_EQ(PageText().find("Checked"), std::string::npos) << "not on each key";
            Wait(600);
            EXPECT_NE(PageText().find("Checked"), std::string::npos);
            EXPECT_EQ(Fault(), "");
            // A fault leaves the pages and is told with its line.
            person.Press(Qt::Key_Return);
            text.insertPlainText("<没有>");
            Wait(600);
            EXPECT_NE(PageText().find("Checked"), std::string::npos);
            EXPECT_EQ(Fault(), "第 " + std::to_string(text.document()->blockCount()) +
                                   " 行：打印模板使用了未知的字段“<没有>”。");
            Look("editor-fault");
            person.Press(Qt::Key_S, Qt::AltModifier);
            EXPECT_EQ(person.Boxes(), (Texts{"打印模板使用了未知的字段“<没有>”。"}));
            EXPECT_TRUE(Rows("Select fText From tJXC_PrintTemplate").empty());
            person.Press(Qt::Key_Z, Qt::ControlModifier);
            Wait(600);
            EXPECT_EQ(Fault(), "");
            person.Press(Qt::Key_S, Qt::AltModifier);
        });
        person.Press(Qt::Key_T, Qt::AltModifier);
        EXPECT_NE(PageText().find("Checked"), std::string::npos) << "the preview shows what was kept";
    });
    EXPECT_EQ(Rows("Select fSetNo,fLanguage From tJXC_PrintTemplate"), (Texts{"1|0"}));
    EXPECT_EQ(Rows("Select fAction From tJXC_Audit Where fTable='tJXC_PrintTemplate'"), (Texts{"新增"}));
    // Back to the default.
    Preview([&] {
        EXPECT_NE(PageText().find("Checked"), std::string::npos);
        person.Next([&] {
            person.Press(Qt::Key_D, Qt::AltModifier);
            EXPECT_EQ(person.Boxes(), (Texts{"恢复默认模板？本公司的模板将被删除。"}));
            EXPECT_EQ(PageText().find("Checked"), std::string::npos);
            person.Press(Qt::Key_Escape);
        });
        person.Press(Qt::Key_T, Qt::AltModifier);
        EXPECT_EQ(PageText().find("Checked"), std::string::npos);
    });
    EXPECT_TRUE(Rows("Select fText From tJXC_PrintTemplate").empty());
}

TEST_F(DocumentPaper, UnsavedTextIsAskedAboutAndPaperIsChosenInTheEditor) {
    Preview([&] {
        person.Next([&] {
            auto& text = person.Find<QPlainTextEdit>("text");
            person.Find<QCheckBox>("landscape").click();
            EXPECT_TRUE(text.toPlainText().startsWith("<!--paper 241x140 landscape 8 16 6 16-->"));
            person.Find<QDoubleSpinBox>("margin0").setValue(9.5);
            EXPECT_TRUE(text.toPlainText().startsWith("<!--paper 241x140 landscape 9.5 16 6 16-->"));
            person.Press(Qt::Key_Escape); // Enter means cancel
            EXPECT_EQ(person.Boxes(), (Texts{"模板尚未存盘，放弃所作的修改？"}));
            EXPECT_EQ(S(person.Front().objectName()), "templateEditor");
            person.Find<QPlainTextEdit>("text").undo();
            person.Find<QPlainTextEdit>("text").undo();
            person.Press(Qt::Key_Escape);
            EXPECT_EQ(person.Boxes(), Texts());
        });
        person.Press(Qt::Key_T, Qt::AltModifier);
        EXPECT_EQ(S(person.Front().objectName()), "preview");
    });
}

TEST_F(DocumentPaper, OthersThanTheSupervisorChangeNoTemplate) {
    control.ZgName("另一人");
    Preview([&] {
        EXPECT_FALSE(person.Front().findChild<QPushButton*>("template"));
        EXPECT_TRUE(person.Front().findChild<QComboBox*>("papers"));
    });
}

TEST_F(DocumentPaper, WorkThatAsksCanBeStopped) {
    int asked = 0;
    bool stopped = false;
    Enter(1, [&] {
        person.Next([&] { person.Find<QPushButton>("stop").click(); });
        const ProgressEnds ends;
        for (; !stopped && asked < 500; ++asked) {
            CurrentView().ShowProgress("正在排版", asked, 500);
            stopped = CurrentView().StopAsked();
            QThread::msleep(10);
        }
    });
    EXPECT_TRUE(stopped);
    EXPECT_GT(asked, 1);
}

TEST_F(DocumentPaper, IsRememberedForTheTypeOnThisMachine) {
    Preview([&] {
        auto& papers = person.Find<QComboBox>("papers");
        EXPECT_EQ(papers.currentText(), "241x140");
        const auto width = [&] { return person.Find("sheet").width(); };
        const int before = width();
        papers.setFocus();
        person.Press(Qt::Key_Home);
        EXPECT_EQ(papers.currentText(), "A4");
        EXPECT_LT(width(), before);
    });
    EXPECT_EQ(LastPaper(SubjectOfType(1)), "A4");
    Preview([&] {
        EXPECT_EQ(person.Find<QComboBox>("papers").currentText(), "A4");
        EXPECT_NE(PageText().find("20261105RK001"), std::string::npos);
    });
}

TEST_F(DocumentPaper, AnUnprintableTemplateIsToldAndCanBeMended) {
    receipt = Save(1);
    ExecuteOnCompany(company.Address(), "Insert Into tJXC_PrintTemplate (fSetNo,fLanguage,fText) Values "
                                        "(1,0,'<!--paper A4--><!--header--><旧名><!--row-->x')");
    Preview([&] {
        EXPECT_EQ(S(person.Front().objectName()), "templateEditor");
        EXPECT_EQ(Fault(), "第 1 行：打印模板使用了未知的字段“<旧名>”。");
        person.Next([&] { EXPECT_NE(PageText().find("20261105RK001"), std::string::npos); });
        person.Press(Qt::Key_D, Qt::AltModifier);
        person.Press(Qt::Key_Escape);
    });
    const Texts boxes = person.Boxes();
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].substr(0, boxes[0].find('\n')), "打印模板使用了未知的字段“<旧名>”。");
}

TEST_F(DocumentPaper, PrintsAtOnceOnThePrinterUsedLast) {
    FilePrinter printer;
    const QueuesInPlace inPlace(printer);
    receipt = Save(1);
    const auto atOnce = [&](bool previewed) {
        Open(13, 1,
             [&] {
                 if (previewed)
                     person.Next([&] { EXPECT_EQ(S(person.Front().objectName()), "preview"); });
                 person.Press(Qt::Key_P, Qt::ControlModifier | Qt::AltModifier);
             },
             {{"Action", 0}, {"oldInvID", receipt}});
        return person.Boxes();
    };
    EXPECT_EQ(atOnce(true), (Texts{"本机还没有打印过这种单据，请先在打印预览中选择打印机。"}));
    KeepLastPrinter(SubjectOfType(1), "已拆除");
    EXPECT_EQ(atOnce(true), (Texts{"上次使用的打印机“已拆除”已不存在，请在打印预览中另选打印机。"}));
    KeepLastPrinter(SubjectOfType(1), printer.name);
    EXPECT_EQ(printer.printed, 0);
    EXPECT_EQ(atOnce(false), Texts());
    EXPECT_EQ(printer.printed, 1);
    EXPECT_EQ(printer.PagesOf(1), 1);
    printer.broken = true;
    EXPECT_EQ(atOnce(true), (Texts{"打印机“仓库激光机”不能打印。"}));
}

TEST_F(DocumentPaper, SelectedDocumentsOfTheListArePreviewedTogether) {
    Save(1);
    Save(1);
    Save(1);
    Open(11, 1, [&] {
        person.ClickCell("Grid1", 1, 1);
        person.Press(Qt::Key_Down, Qt::ShiftModifier);
        const auto marked = [&] { return person.Shown<frmDj01>().Grid1.SelectedRows(); };
        EXPECT_EQ(marked(), (std::vector{1, 2}));
        person.Press(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(marked(), (std::vector{1, 2, 3}));
        person.ClickHeading("Grid1", 2);
        EXPECT_EQ(marked(), (std::vector{1, 2, 3}));
        person.Press(Qt::Key_Down);
        EXPECT_EQ(marked().size(), 1u);
        person.Press(Qt::Key_A, Qt::ControlModifier);
        Look("list");
        person.Next([&] {
            Look("batch");
            EXPECT_EQ(S(person.Front().windowTitle()), "批量打印：3 张单据");
            EXPECT_EQ(S(person.Find<QLabel>("place").text()), "第 1 页，共 3 页");
            const auto& pages = *static_cast<PageBrowser*>(person.Find("area").parentWidget());
            std::string all;
            for (int page = 1; page <= 3; ++page)
                for (const Printed& part : PageOf(pages.Shown(), page))
                    all += part.text;
            for (const char* number : {"20261105RK001", "20261105RK002", "20261105RK003"})
                EXPECT_NE(all.find(number), std::string::npos);
            QTemporaryDir folder;
            WritePdf(pages.Shown(), folder.filePath("all.pdf"));
            EXPECT_EQ(
                QByteArray::fromStdString(FileText(S(folder.filePath("all.pdf")))).count("/Type /Page\n"), 3);
        });
        person.Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    });
}

} // namespace

} // namespace jxc::test
