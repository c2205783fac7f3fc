#include "host/window/first_company.h"

#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "host/window/main_window.h"
#include "host/window/window_program.h"
#include "host/window/window_script.h"
#include "host/window/windows_in_use.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr const char* kPassword = "yuan2026";

class Way {
  public:
    explicit Way(const QString& pictures) : pictures_(pictures) {}

    void Picture() {
        const QString name = QString("/first-%1.png").arg(++taken_);
        script_.Then([] {}); // what the last key did is painted
        if (!pictures_.isEmpty())
            script_.Picture(pictures_ + name);
    }
    // The window that must be in front now.
    void Meet(const QString& title) {
        script_.Then([] {});
        script_.Then([title] {
            const QWidget* window = WindowInFront();
            if (!window || !window->windowTitle().startsWith(title))
                throw std::runtime_error("应为窗口 " + S(title) + "，而不是 " +
                                         (window ? S(window->windowTitle()) : ""));
        });
    }
    void Enter(int times = 1) { script_.Press(Qt::Key_Return, Qt::NoModifier, times); }
    void Press(int key, int times = 1) { script_.Press(key, Qt::NoModifier, times); }
    void With(Qt::KeyboardModifier held, int key) { script_.Press(key, held); }
    void Type(const char* ascii) {
        script_.Type(ascii);
        Enter();
    }
    // By pinyin: its letters, and the blank that takes the first word offered.
    void Compose(const char* text, const char* pinyin) {
        script_.Compose(text, static_cast<int>(QString(pinyin).size()) + 1);
        Enter();
    }
    // Ends what has been done since the stage before.
    void EndStage(const char* name) {
        script_.Then([this, name] {
            stages_.push_back({name, script_.Keys() - counted_});
            counted_ = script_.Keys();
        });
    }
    std::vector<FirstCompanyStage> Run() {
        script_.Run();
        if (!script_.Failure().empty())
            throw std::runtime_error(script_.Failure());
        return stages_;
    }

  private:
    QString pictures_;
    int taken_ = 0;
    int counted_ = 0; // keys of the stages before
    std::vector<FirstCompanyStage> stages_;
    WindowScript script_;
};

void MakeCompany(Way& way) {
    way.With(Qt::AltModifier, Qt::Key_F);
    way.Press(Qt::Key_N);
    way.Meet("新建帐套");
    way.Compose("远山商行", "yuanshanshanghang");
    way.Enter(8); // period, decimals, currency, tax, cost and the warehouse stay as they are offered
    way.Compose("林远", "linyuan");
    way.Type(kPassword);
    way.Type(kPassword);
    way.Picture();
    way.Press(Qt::Key_F9);
    way.Meet("新建帐套");
    way.Enter(); // the file that is offered
    way.Meet("lzJxc 进销存 — 远山商行");
    way.Picture();
}

// Saving asks once and tells that it is done; the next one may be typed at once.
void EnterProduct(Way& way, const char* code, const char* name, const char* pinyin) {
    way.Type(code);
    way.Compose(name, pinyin);
    way.Enter(); // no specification
    way.Compose("个", "ge");
    way.Press(Qt::Key_F9);
    way.Enter(2);
}

void EnterProducts(Way& way) {
    way.Enter();
    way.Meet("产品");
    way.Press(Qt::Key_F2);
    EnterProduct(way, "P001", "茶杯", "chabei");
    EnterProduct(way, "P002", "茶壶", "chahu");
    way.Press(Qt::Key_Escape, 2); // out of adding
    way.Picture();
    way.Press(Qt::Key_Escape, 2);
}

void EnterSupplier(Way& way) {
    way.Meet("lzJxc");
    way.Enter();
    way.Meet("客户资料");
    way.Press(Qt::Key_F2);
    way.Type("G001");
    way.Compose("景山瓷厂", "jingshancichang");
    way.Press(Qt::Key_Down); // the kind: a supplier
    way.Press(Qt::Key_F9);
    way.Press(Qt::Key_Escape, 2);
    way.Picture();
    way.Press(Qt::Key_Escape, 2);
}

void EnterReceipt(Way& way) {
    way.Meet("lzJxc");
    way.Press(Qt::Key_Down); // there is no stock yet
    way.Enter();
    way.Meet("入库单：新增");
    way.Enter(3); // date, number, order
    way.Type("G001");
    way.Enter(8); // from the supplier found to the lines
    for (const char* cell : {"P001", "10", "12.5", "P002", "20", "3.2"})
        way.Type(cell);
    way.Picture();
    way.Press(Qt::Key_F9);
    way.Enter();                  // yes, it is to be saved
    way.Press(Qt::Key_Escape, 3); // not printed; out of the screen
}

void ApproveReceipt(Way& way) {
    way.Meet("lzJxc");
    way.Picture();
    way.Enter();
    way.Meet("入库单：审核");
    way.Enter(4); // the command, its question, that it is done, out
    way.Meet("lzJxc");
    way.Picture();
}

} // namespace

std::vector<FirstCompanyStage> PlayFirstCompany(MainWindow& window, const QString& pictures) {
    if (window.HasCompany())
        throw std::runtime_error("窗口中已有帐套。");
    Way way(pictures);
    MakeCompany(way);
    way.EndStage("新建帐套");
    EnterProducts(way);
    way.EndStage("产品");
    EnterSupplier(way);
    way.EndStage("供应商");
    EnterReceipt(way);
    way.EndStage("入库单");
    ApproveReceipt(way);
    way.EndStage("审核");
    return way.Run();
}

int TakeFirstPictures(const std::string& folder) {
    const WindowsInUse windows;
    std::filesystem::create_directories(folder);
    const QTemporaryDir place;
    MainWindow window;
    window.LeaveNoTrace();
    window.OfferNewCompaniesIn(place.path());
    window.show();
    std::cout << "图片存入 " << folder << "：" << std::endl;
    int keys = 0;
    for (const FirstCompanyStage& stage : PlayFirstCompany(window, Q(folder))) {
        std::cout << "  " << stage.name << "：按键 " << stage.keys << " 次" << std::endl;
        keys += stage.keys;
    }
    std::cout << "  共 " << keys << " 次" << std::endl;
    return 0;
}

} // namespace jxc
