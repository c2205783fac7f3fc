// The selected documents of the list on paper. Each is loaded as the entry screen would show it, so that both print the
// same.

#include <algorithm>
#include <set>

#include "base/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "documents/document_list.h"
#include "session/lookups/book.h"
#include "session/messages.h"
#include "session/printing/template_draft.h"

namespace jxc {

namespace {

const std::string kStep = "正在准备打印";

struct Selected {
    int type = 0;
    std::int32_t key = 0;
    std::string number;
};

// The list of lines names a document once a line.
std::vector<Selected> SelectedDocuments(frmDj01& s, const Grid& grid) {
    const int number = s.ListOf(&grid == &s.Grid2).Place("fInvNo");
    std::set<std::pair<int, std::int32_t>> seen;
    std::vector<Selected> documents;
    for (const int row : grid.SelectedRows()) {
        const auto type = static_cast<int>(grid.Cell(row, grid.ColumnCount() - 1).AsLong());
        const auto key = static_cast<std::int32_t>(grid.Cell(row, grid.ColumnCount()).AsLong());
        if (key > 0 && seen.emplace(type, key).second)
            documents.push_back({type, key, grid.Text(row, number)});
    }
    return documents;
}

// Throws what is in the way, as a text for people.
TemplatePrintJob JobOf(const Selected& document, bool closed) {
    if (!ReadStored(BookStem(document.type, closed), document.key).Exists())
        throw std::runtime_error("该[单号]已不存在!");
    frmDj02 entry; // not shown
    entry.Action = static_cast<int>(DocAction::Query);
    entry.invType = entry.OldType = document.type;
    entry.oldInvID = document.key;
    entry.JzState = closed ? 1 : 0;
    entry.Open();
    auto job = DesignedJob(entry, true);
    if (!job)
        throw std::runtime_error(GetResStr(kMsgNothingToPrint));
    if (const std::string fault = TemplateFault(*job, job->layout); !fault.empty())
        throw std::runtime_error(fault);
    return std::move(*job);
}

void TellLeftOut(const frmDj01& s, const std::vector<std::string>& leftOut) {
    constexpr size_t kMost = 20;
    if (leftOut.empty())
        return;
    std::string text = "有 " + std::to_string(leftOut.size()) + " 张单据没有打印：\n";
    for (size_t at = 0; at < std::min(leftOut.size(), kMost); ++at)
        text += "\n" + leftOut[at];
    Warn(s.title, leftOut.size() > kMost ? text + "\n……" : text);
}

} // namespace

void PrintSelected(frmDj01& s) {
    const Grid* grid = FrontGrid(s);
    const auto documents = grid ? SelectedDocuments(s, *grid) : std::vector<Selected>();
    if (documents.empty())
        return Warn(s.title, GetResStr(kMsgNothingToPrint));
    std::vector<TemplatePrintJob> jobs;
    std::vector<std::string> leftOut;
    {
        const ProgressEnds ends;
        for (size_t at = 0; at < documents.size(); ++at) {
            CurrentView().ShowProgress(kStep, static_cast<int>(at), static_cast<int>(documents.size()));
            if (CurrentView().StopAsked())
                return Inform(s.title, "打印已停止，没有单据打印。");
            try {
                jobs.push_back(JobOf(documents[at], ShowsClosedBook(s)));
            } catch (const std::runtime_error& error) {
                leftOut.push_back(documents[at].number + "：" + TextForPeople(s.title, error));
            }
        }
    }
    if (!jobs.empty()) {
        const auto unprinted = ComponentsInUse().printer->PrintAll(jobs);
        leftOut.insert(leftOut.end(), unprinted.begin(), unprinted.end());
    }
    TellLeftOut(s, leftOut);
}

} // namespace jxc
