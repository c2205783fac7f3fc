// The windows of the sample company, each in a telling state, as pictures.

#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "host/window/main_window.h"
#include "host/window/sample_company_file.h"
#include "host/window/window_program.h"
#include "host/window/window_script.h"
#include "host/window/windows_in_use.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

class PictureBook {
  public:
    PictureBook(MainWindow& window, const QString& folder) : window_(window), folder_(folder) {}

    void Take(const QString& name) {
        script_.Picture(folder_ + "/" + name + ".png");
        script_.Then([name] { std::cout << "  " << S(name) << ".png" << std::endl; });
    }
    // Opens a screen from the main window. The steps behind it run in that screen.
    void Open(const QString& item, const QString& entry) {
        script_.Then([this, item, entry] {
            window_.SelectItem(item);
            const MenuEntry* found = window_.FindEntry(item, entry);
            if (!found)
                throw std::runtime_error("主窗口没有 " + S(item) + "/" + S(entry));
            window_.Start(*found);
        });
        script_.Then([] {}); // the screen has opened and painted
    }
    // A line of a document by keys alone.
    void Line(const QString& code, const QString& quantity, const QString& price) {
        for (const QString& cell : {code, quantity, price}) {
            if (cell.isEmpty())
                continue;
            script_.Type(cell);
            script_.Press(Qt::Key_Return);
        }
    }
    void To(const QString& control) {
        script_.Then([control] {
            auto* widget = WindowInFront()->findChild<QWidget*>(control);
            if (!widget)
                throw std::runtime_error("没有 " + S(control));
            widget->setFocus();
        });
    }
    // Shows a page of the window and takes its picture.
    void TakePage(int page, const QString& name) {
        script_.Then([page] { WindowInFront()->findChild<QTabWidget*>()->setCurrentIndex(page); });
        Take(name);
    }
    void Choose(const QString& list, const QString& item) {
        script_.Then([list, item] {
            auto* box = WindowInFront()->findChild<QComboBox*>(list);
            const int index = box ? box->findText(item) : -1;
            if (index < 0)
                throw std::runtime_error(S(list) + " 没有 " + S(item));
            box->setCurrentIndex(index);
        });
    }

    WindowScript& Script() { return script_; }

  private:
    MainWindow& window_;
    QString folder_;
    WindowScript script_;
};

void ReceiptPictures(PictureBook& book) {
    WindowScript& script = book.Script();
    book.Open("入库单", "新增");
    book.Choose("cboCkName", "总部仓");
    book.To("txtKhSeek");
    script.Type("G001");
    script.Press(Qt::Key_Return);
    book.To("Grid2");
    book.Line("CPU002", "20", "615");
    book.Line("MEM002", "50", "170");
    book.Line("CPF004", "100", "6.5");
    script.Click("cmdLoadKh2");
    book.Take("receipt");
    book.To("Grid2");
    script.Press(Qt::Key_Up, Qt::NoModifier, 3);
    script.Press(Qt::Key_T, Qt::ControlModifier);
    book.Take("trades");
    script.Press(Qt::Key_Escape);
    script.Press(Qt::Key_Return);
    script.Click("cmdZy");
    book.Take("summaries");
    script.Press(Qt::Key_Escape);
    script.Press(Qt::Key_Return);
    script.Click("cmdSave");
    book.Take("save-question");
    script.Click("OK");
    book.Take("print-question");
    script.Click("Yes");
    book.Take("print-preview");
    script.Press(Qt::Key_Escape);
    script.Click("cmdQuit");
}

void OtherDocuments(PictureBook& book) {
    WindowScript& script = book.Script();
    book.Open("生产组装单", "新增");
    book.Choose("cboCkName", "生产仓");
    book.Choose("cboCkName2", "总部仓");
    book.To("Grid2");
    book.Line("CPU002", "1", "");
    book.Take("assembly");
    script.Press(Qt::Key_Return);
    script.Type("ZZZ"); // no product: told at the foot
    script.Press(Qt::Key_Return);
    book.Take("mistyped");
    script.Click("cmdQuit");
    book.Take("leave-question");
    script.Click("Discard");
    book.Open("盘点单", "新增");
    book.Choose("cboCkName", "总部仓");
    book.To("Grid2");
    book.Line("CPU002", "18", "");
    book.Line("MEM002", "40", "");
    book.Take("stocktake");
    script.Click("cmdQuit");
    script.Click("Discard");
}

void Lists(PictureBook& book) {
    WindowScript& script = book.Script();
    book.Open("仓库单据查询", "打开");
    book.Take("filters");
    script.Click("cmdList");
    book.Take("list");
    book.To("Grid1");
    script.Press(Qt::Key_Down, Qt::NoModifier, 13);
    script.Press(Qt::Key_F2);
    book.Take("document");
    script.Click("cmdQuit");
    script.Press(Qt::Key_Escape);
    script.Press(Qt::Key_Return);
    book.Open("出库单", "明细列表");
    script.Click("cmdList");
    book.Take("lines");
    script.Press(Qt::Key_Escape);
    script.Press(Qt::Key_Return);
}

void Queries(PictureBook& book) {
    WindowScript& script = book.Script();
    for (const auto& [item, name] : {std::pair("库存统计", "stock"),
                                     {"库存报警", "alarm"},
                                     {"成本核算统计", "cost"},
                                     {"月底结转", "month-close"},
                                     {"反结转", "month-reversal"}}) {
        book.Open(item, "打开");
        book.Take(name);
        script.Click("cmdQuit");
    }
}

void Plans(PictureBook& book) {
    WindowScript& script = book.Script();
    book.Open("采购计划", "打开");
    book.Take("purchase-plan");
    script.Click("cmdQuit");
    book.Open("生产计划", "打开");
    script.Press(Qt::Key_Return); // no kit is on order
    book.Choose("cboType", "库存限额-库存数");
    script.Click("cmdQuery");
    book.Take("production-plan");
    script.Click("cmdQuit");
}

void MasterData(PictureBook& book) {
    WindowScript& script = book.Script();
    book.Open("系统参数", "打开");
    book.Take("parameters");
    book.TakePage(1, "types");
    book.TakePage(2, "modules");
    script.Click("cmdClose");
    script.Then([] {
        if (auto* discard = WindowInFront()->findChild<QAbstractButton*>("Discard"))
            discard->click(); // the preset of the modules may differ from what is stored
    });
    book.Open("产品资料", "打开");
    book.Take("products");
    book.TakePage(1, "product");
    book.TakePage(2, "product-query");
    script.Click("cmdQuit");
    book.Open("仓库资料", "打开");
    script.Press(Qt::Key_Down);
    script.Press(Qt::Key_Down);
    book.Take("warehouses");
    script.Press(Qt::Key_Return);
    script.Press(Qt::Key_F4);
    book.Take("warehouse");
    script.Click("cmdCancel");
    book.TakePage(2, "warehouses-query");
    script.Click("cmdQuit");
    book.Open("产品套件", "打开");
    book.Take("kits");
    script.Press(Qt::Key_Return);
    script.Press(Qt::Key_F4);
    book.Take("kit");
    script.Click("cmdCancel");
    book.TakePage(2, "kits-query");
    script.Click("cmdQuit");
}

void Editors(PictureBook& book) {
    WindowScript& script = book.Script();
    for (const auto& [item, name] : {std::pair("客户资料", "cards"),
                                     {"货币", "moneys"},
                                     {"内部资金帐户", "accounts"},
                                     {"公司资料", "company"},
                                     {"用户与权限", "users"},
                                     {"操作日志", "trail"},
                                     {"修改密码", "password"}}) {
        book.Open(item, "打开");
        book.Take(name);
        script.Click("cmdQuit");
    }
}

} // namespace

int TakePictures(const std::string& folder) {
    const WindowsInUse windows;
    std::filesystem::create_directories(folder);
    const QTemporaryDir place;
    const std::string company = S(place.filePath("样例公司.db"));
    MakeSampleCompany(company);
    std::cout << "图片存入 " << folder << "：" << std::endl;
    MainWindow window;
    window.LeaveNoTrace();
    window.show();
    if (!window.OpenCompanyOf(company, ""))
        throw std::runtime_error("不能打开样例公司。");
    PictureBook book(window, Q(folder));
    book.Script().Then([&window] { window.SelectItem("入库单"); });
    book.Take("main");
    ReceiptPictures(book);
    OtherDocuments(book);
    Lists(book);
    Queries(book);
    Plans(book);
    MasterData(book);
    Editors(book);
    book.Script().Run();
    if (!book.Script().Failure().empty())
        throw std::runtime_error(book.Script().Failure());
    return 0;
}

} // namespace jxc
