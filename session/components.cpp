#include "session/components.h"

#include "controls/screen.h"
#include "controls/view.h"
#include "session/printing/html_printer.h"
#include "session/session.h"

namespace jxc {

namespace {

class CodeListScreen : public CodeListEditor {
  public:
    std::string Edit(const std::string& table, const std::string& code, BriefKind kind) override {
        const ScreenToShow screen("frmBrief");
        screen->SetProperty("table", table);
        screen->SetProperty("code", code);
        screen->SetProperty("kind", static_cast<int>(kind));
        ShowModal(*screen);
        return screen->GetProperty("chosen").AsText();
    }
};

class TreeAsNotice : public TreePrinter {
  public:
    void Print(const std::string& title, const Tree& tree) override {
        std::string text;
        for (int node = 0; node < static_cast<int>(tree.nodes.size()); ++node)
            text += std::string(static_cast<size_t>(tree.DepthOf(node)) * 4, ' ') +
                    tree.nodes[static_cast<size_t>(node)].caption + "\n";
        CurrentView().ShowNotice(title, text);
    }
};

class NoticeOfView : public NoticeWindow {
  public:
    void Show(const std::string& report) override { CurrentView().ShowNotice(session.CompName, report); }
};

} // namespace

std::vector<std::string> Printer::PrintAll(const std::vector<TemplatePrintJob>& jobs) {
    for (const TemplatePrintJob& job : jobs)
        Print(job);
    return {};
}

Components& ComponentsInUse() {
    static Components components{std::make_unique<CodeListScreen>(), std::make_unique<HtmlPrinter>(),
                                 std::make_unique<TreeAsNotice>(), std::make_unique<NoticeOfView>(), nullptr};
    return components;
}

} // namespace jxc
