// What each state lets be done with a document, told by its refusals.
#include <gtest/gtest.h>

#include <map>

#include "documents/document_state.h"
#include "session/session.h"

namespace jxc::test {

namespace {

const std::vector<DocAction> kActions{DocAction::Query,  DocAction::New,     DocAction::Change,
                                      DocAction::Delete, DocAction::Approve, DocAction::Reverse};

// A state's row in one text, an action a word: - allowed, else the beginning of the refusal.
std::string RefusalsOf(DocState state) {
    static const std::map<std::string, std::string> words{
        {"", "-"},
        {"请选择修改单据！", "choose"},
        {"请选择删除单据！", "choose"},
        {"请选择审核单据！", "choose"},
        {"该[单号]已不存在!", "gone"},
        {"该单据已经审核！", "approved"},
        {"该单据尚未审核！", "open"},
        {"反审核：必须是“系统管理员”或者是该单据原“审核人”，才能够操作！", "other"},
        {"该单据所对应的“挂帐凭证”已经审核，不能进行单据反审核操作！\n\n须先在《资金管理系统》的 "
         "[客户往来帐]/[内部资金帐] 中，反审核该单据的“挂帐凭证”。",
         "entry"},
        {"该单据已被其他用户修改，请重新打开！", "changed"},
        {"单据日期：不能小于本期起始日期 2026-11-01！", "date"}};
    std::string row;
    for (const DocAction action : kActions) {
        const std::string refusal = RefusalIn(state, action, MakeDate(2026, 11, 1));
        const auto word = words.find(refusal);
        row += (row.empty() ? "" : " ") + (word == words.end() ? refusal : word->second);
    }
    return row;
}

std::string Ticks(const std::function<bool(DocAction)>& holds) {
    std::string row;
    for (const DocAction action : kActions)
        row += holds(action) ? 'x' : '.';
    return row;
}
std::string OfferedBy(DocState state) {
    return Ticks([&](DocAction action) { return IsOfferedByList(state, action); });
}
std::string SavedIn(DocState state) {
    return Ticks([&](DocAction action) { return CanBeSaved(state, action); });
}

TEST(DocumentState, RefusesWhatItDoesNotAllow) {
    // query, new, change, delete, approve, reverse
    EXPECT_EQ(RefusalsOf(DocState::NotChosen), "- - choose choose choose -");
    EXPECT_EQ(RefusalsOf(DocState::Gone), "gone gone gone gone gone gone");
    EXPECT_EQ(RefusalsOf(DocState::Open), "- - - - - open");
    EXPECT_EQ(RefusalsOf(DocState::Approved), "- - approved approved approved -");
    EXPECT_EQ(RefusalsOf(DocState::ApprovedByOther), "- - approved approved approved other");
    EXPECT_EQ(RefusalsOf(DocState::EntryChecked), "- - approved approved approved entry");
    EXPECT_EQ(RefusalsOf(DocState::Changed), "- - changed changed changed changed");
    EXPECT_EQ(RefusalsOf(DocState::BeforePeriod), "- date date date date date");
    EXPECT_EQ(RefusalsOf(DocState::Closed), "- - - - - -");
}

TEST(DocumentState, EnablesCommands) {
    for (const DocState state : {DocState::NotChosen, DocState::Open, DocState::Approved,
                                 DocState::ApprovedByOther, DocState::Changed, DocState::BeforePeriod})
        EXPECT_EQ(OfferedBy(state), "xxxxxx"); // refused when clicked
    EXPECT_EQ(OfferedBy(DocState::Closed), "x.....");
    EXPECT_EQ(SavedIn(DocState::NotChosen), ".xxxxx");
    EXPECT_EQ(SavedIn(DocState::Open), ".xxxxx");
    EXPECT_EQ(SavedIn(DocState::Approved), ".xxx.x");
    EXPECT_EQ(SavedIn(DocState::ApprovedByOther), ".xxx.x");
}

TEST(DocumentState, GoesByWhoApproved) {
    session.ZgName = "主管";
    session.UserName = "王芳";
    EXPECT_EQ(StateByApprover(""), DocState::Open);
    EXPECT_EQ(StateByApprover("王芳"), DocState::Approved);
    EXPECT_EQ(StateByApprover("李强"), DocState::ApprovedByOther);
    session.UserName = "主管";
    EXPECT_EQ(StateByApprover("李强"), DocState::Approved);
    session.UserName = session.ZgName = "";
}

} // namespace

} // namespace jxc::test
