#include "tests/close/closing.h"

#include "close/closing_screen.h"
#include "controls/gestures.h"
#include "session/period.h"
#include "session/session.h"

namespace jxc::test {

bool OnClosing::Run(const std::string& name, const std::function<void()>& before) {
    auto& screen = dynamic_cast<ClosingScreen&>(ScreenNamed(name));
    clerk->view.boxes.clear();
    const std::string month = One("select fSysDate from tJXC_InvSys");
    clerk->view.OnScreen(name, [&](Screen& s) {
        if (before)
            before();
        Click(s, screen.cmdStep);
        Conn().SetObserver(nullptr);
    });
    ShowModal(screen);
    Conn().SetObserver(nullptr);
    LoadPeriodSettings();
    return One("select fSysDate from tJXC_InvSys") != month;
}

void OnClosing::OneOfEach() {
    Approved({.type = 1,
              .customer = "G001",
              .lines = {{"CPU002", 90, 600}, {"MEM002", 90, 170}, {"MB001", 9, 365}}});
    for (const int type : {0, 1, -1, 2, -2, 3, 4, 5, -5, 6, -6, 7, -7, 31, 32})
        Approved(TypicalDocument(type));
}

namespace {

void AddRows(Lines& lines, const std::string& table, const std::string& order,
             const std::string& without = "") {
    const Rows rows = Conn().Query("select * from " + table + " Order By " + order);
    for (size_t row = 0; row < rows.Count(); ++row) {
        std::string text = table;
        for (size_t i = 0; i < rows.names.size(); ++i)
            if (rows.names[i] != without && rows.names[i] != "fmonth")
                text += " " + rows.names[i] + "=" + rows.At(row, i).AsText();
        lines.push_back(text);
    }
}

} // namespace

Lines AllBooks() {
    Lines books = Books();
    for (const auto& [table, order] : {std::pair{"tJXC_CkDj_Bak01", "fInvID"},
                                       {"tJXC_CkDj_Bak02", "fInvID,fInv1,fRowID,fCpID"},
                                       {"tJXC_CkTj_Bak", "fMonth,fCkName,fCpID"},
                                       {"tJXC_KhTj_Bak", "fMonth,fKhID,fCpID"},
                                       {"tJXC_InvSys", "fSysDate"}})
        AddRows(books, table, order);
    return books;
}

Lines OpenDocuments() {
    Lines documents;
    AddRows(documents, "tJXC_CkDj01", "fInvID", "fMonth");
    AddRows(documents, "tJXC_CkDj02", "fInvID,fInv1,fRowID", "fMonth");
    AddRows(documents, "tJXC_InvSys", "fSysDate");
    return documents;
}

} // namespace jxc::test
