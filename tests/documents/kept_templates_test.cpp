// Templates that the company keeps: changed by the supervisor, one a type and language, with a row of the trail.
#include <gtest/gtest.h>

#include "controls/gestures.h"
#include "database/engine.h"
#include "documents/frmDj02.h"
#include "session/audit/audit.h"
#include "session/company/company_version.h"
#include "session/printing/html_pages.h"
#include "session/printing/stored_templates.h"
#include "session/printing/template_draft.h"
#include "tests/support/clerk.h"

namespace jxc::test {

namespace {

class KeepingPrinter : public Printer {
  public:
    void Print(const GridPrintJob&) override {}
    void Print(const TemplatePrintJob& asked) override { job = asked; }
    std::optional<TemplatePrintJob> job;
};

const std::string kOwn =
    "<!--paper A5 8 8 8 8-->\n<!--header-->我们的单据 <单号>\n<!--row--><p><<品名规格>></p>";

class KeptTemplates : public OnOpenCompany {
  protected:
    void Begin() override {
        OnOpenCompany::Begin();
        auto printer = std::make_unique<KeepingPrinter>();
        printed = printer.get();
        before = std::exchange(ComponentsInUse().printer, std::move(printer));
        key = clerk->Save({.type = 1, .customer = "G001", .lines = {{"CPU001", 5, 400}}});
        clerk->view.boxes.clear();
    }
    void TearDown() override {
        ComponentsInUse().printer = std::move(before);
        OnOpenCompany::TearDown();
    }
    TemplatePrintJob Job() {
        printed->job.reset();
        clerk->Open(DocAction::Query, 1, key, [](frmDj02& s) { Click(s, s.cmdPrint2); });
        EXPECT_TRUE(printed->job);
        return *printed->job;
    }
    // Saves the text; what the box says, "" without one.
    std::string Saved(const std::string& text) {
        clerk->view.boxes.clear();
        TemplateDraft draft(Job());
        draft.text = text;
        draft.Save();
        return clerk->LastBox();
    }
    static Lines Trail() {
        return RowsOf(
            "Select fAction,fKey,fName From tJXC_Audit Where fTable='tJXC_PrintTemplate' Order By fID");
    }

    KeepingPrinter* printed = nullptr;
    std::unique_ptr<Printer> before;
    int key = 0;
};
ON_BOTH_ENGINES(KeptTemplates);

TEST_P(KeptTemplates, AreKeptChangedAndGivenUp) {
    const std::string shipped = Job().layout;
    EXPECT_FALSE(Job().own);
    const auto books = Books();
    EXPECT_EQ(Saved(kOwn), "");
    EXPECT_EQ(Job().layout, kOwn);
    EXPECT_EQ(Job().own, kOwn);
    const std::string quoted = kOwn + "<!--total-->It's '100%' \\ {0} ? :x 元";
    EXPECT_EQ(Saved(quoted), "");
    EXPECT_EQ(Job().layout, quoted);
    EXPECT_NE(TemplatePage(Job()).find("It's '100%'"), std::string::npos);

    TemplateDraft draft(Job());
    EXPECT_TRUE(draft.Restore());
    EXPECT_EQ(clerk->LastBox(), "恢复默认模板？本公司的模板将被删除。");
    EXPECT_EQ(draft.text, shipped);
    EXPECT_FALSE(draft.IsChanged());
    EXPECT_EQ(Job().layout, shipped);
    EXPECT_EQ(One("Select Count(*) From tJXC_PrintTemplate"), "0");
    EXPECT_TRUE(draft.Restore()); // nothing is kept any more, and nothing is written
    EXPECT_EQ(Trail(), (Lines{"新增|1|入库单", "修改|1|入库单", "删除|1|入库单"}));
    EXPECT_TRUE(AuditFaults(Conn()).empty());
    EXPECT_EQ(Changes(books, Books()), Lines());
}

TEST_P(KeptTemplates, AreOfATypeAndALanguage) {
    EXPECT_EQ(Saved(kOwn), "");
    EXPECT_FALSE(StoredTemplate(2));
    session.Language = 1;
    EXPECT_FALSE(StoredTemplate(1));
    EXPECT_TRUE(KeepTemplate(1, "入庫單", std::nullopt, "traditional"));
    session.Language = 0;
    EXPECT_EQ(StoredTemplate(1), kOwn);
    EXPECT_EQ(One("Select Count(*) From tJXC_PrintTemplate"), "2");
}

TEST_P(KeptTemplates, RefusesWhatCannotBePrinted) {
    EXPECT_EQ(Saved("<!--paper A4--><!--header--><没有><!--row-->x"), "打印模板使用了未知的字段“<没有>”。");
    EXPECT_EQ(Saved("<!--paper A4--><!--row-->x<!--row-->y"), "打印模板中的标记“row”出现了两次。");
    EXPECT_EQ(Saved("<!--paper A4--><!--header-->x"), "打印模板没有产品行，即 <!--row--> 后面的内容。");
    EXPECT_EQ(Saved("<!--paper A4--><!--row--><img src=\"file:///etc/passwd\">"),
              "打印模板要求打开“file:///etc/passwd”：图片只能是 logo、barcode:字段 或 qrcode:字段。");
    EXPECT_EQ(Saved("<!--paper A4--><!--row--><script>x</script>"),
              "打印模板中不能使用“<script”：模板不得打开其它文件或程序。");
    EXPECT_EQ(One("Select Count(*) From tJXC_PrintTemplate"), "0");
    EXPECT_EQ(Trail(), Lines());
}

TEST_P(KeptTemplates, AreChangedByTheSupervisorAlone) {
    TemplateDraft draft(Job());
    draft.text = kOwn;
    const std::string supervisor = std::exchange(session.ZgName, "另一人");
    EXPECT_FALSE(draft.Save());
    EXPECT_EQ(clerk->LastBox(), "您无权进入!");
    EXPECT_EQ(Job().mode, 1);
    session.ZgName = supervisor;
    EXPECT_EQ(One("Select Count(*) From tJXC_PrintTemplate"), "0");
}

TEST_P(KeptTemplates, OfTwoUsersTheSecondIsAsked) {
    TemplateDraft mine(Job());
    mine.text = kOwn;
    EXPECT_EQ(Saved(kOwn + "<!--footer-->theirs"), "");
    std::vector<std::string> asked;
    BoxButton answer = BoxButton::No;
    clerk->view.AnswerWith([&](const MessageBox& box) {
        asked.push_back(box.text);
        return answer;
    });
    EXPECT_FALSE(mine.Save());
    EXPECT_EQ(asked, (Lines{"该模板在您打开以后已被其他用户修改。\n\n要用您的覆盖吗？"}));
    EXPECT_EQ(StoredTemplate(1), kOwn + "<!--footer-->theirs");
    EXPECT_EQ(mine.text, kOwn); // nothing typed is lost
    answer = BoxButton::Yes;
    EXPECT_TRUE(mine.Save());
    EXPECT_EQ(StoredTemplate(1), kOwn);
    mine.text += " ";
    asked.clear();
    EXPECT_TRUE(mine.Save()); // what it kept itself is no other's
    EXPECT_TRUE(asked.empty());
    // A default that the other went back to is a change too.
    ASSERT_TRUE(KeepTemplate(1, "入库单", kOwn + " ", std::nullopt));
    answer = BoxButton::No;
    EXPECT_FALSE(mine.Save());
    EXPECT_EQ(asked.size(), 1u);
}

// By hand in the database, or because a caption was changed: it is not printed, and nothing else in its place.
TEST_P(KeptTemplates, OneThatBecameUnprintableIsToldAndCanBeGivenUp) {
    EXPECT_EQ(Saved(kOwn), "");
    Do("Update tJXC_PrintTemplate Set fText='<!--paper A5--><!--header--><旧名><!--row-->x'");
    const TemplatePrintJob job = Job();
    const std::string fault = TemplateFault(job, job.layout);
    EXPECT_EQ(fault, "打印模板使用了未知的字段“<旧名>”。");
    EXPECT_THROW(static_cast<void>(TemplatePage(job)), std::runtime_error);
    EXPECT_EQ(
        UnprintableText(job, fault),
        "打印模板使用了未知的字段“<旧名>”。\n\n单据没有打印。请系统主管在打印预览的“模板”中改正本公司的模板，"
        "或恢复默认模板。");
    TemplateDraft draft(job);
    EXPECT_TRUE(draft.Restore());
    EXPECT_EQ(TemplateFault(Job(), Job().layout), "");
}

// What the database refuses is told, and the text stays.
TEST_P(KeptTemplates, AFailureIsTold) {
    TemplateDraft draft(Job());
    draft.text = kOwn;
    Conn().EngineInUse().ExecuteScript("drop table tJXC_PrintTemplate");
    EXPECT_FALSE(draft.Save());
    EXPECT_FALSE(clerk->view.boxes.empty());
    EXPECT_EQ(draft.text, kOwn);
    EXPECT_TRUE(draft.IsChanged());
}

TEST_P(KeptTemplates, ACompanyOfVersion3GainsTheirTable) {
    Conn().EngineInUse().ExecuteScript("drop table tJXC_PrintTemplate");
    Conn().EngineInUse().SetVersion(3);
    Conn().ForgetCatalogue();
    EXPECT_FALSE(StoredTemplate(1)); // as for a user who may not complete the tables
    RaiseCompany(Conn());
    EXPECT_EQ(Conn().EngineInUse().Version(), kCompanyVersion);
    EXPECT_EQ(Saved(kOwn), "");
    EXPECT_EQ(StoredTemplate(1), kOwn);
}

TEST_P(KeptTemplates, PaperIsChosenByTheirFirstLine) {
    TemplateDraft draft(Job());
    EXPECT_EQ(draft.Paper(), (PaperChoice{"241x140", false, {8, 16, 6, 16}}));
    draft.TakePaper({"A4", false, {1, 2, 3, 4}}); // an untouched default becomes the paper's own
    EXPECT_EQ(draft.text, Job().defaultOn("A4"));
    draft.TakePaper({"A4", true, {5, 5.5, 5, 0}});
    EXPECT_EQ(draft.text.substr(0, draft.text.find('\n')), "<!--paper A4 landscape 5 5.5 5 0-->");
    const std::string upright = Job().defaultOn("A4");
    EXPECT_EQ(draft.text.substr(draft.text.find('\n')), upright.substr(upright.find('\n')));
    draft.text = "x";
    draft.TakePaper({"A5", false, {1, 1, 1, 1}});
    EXPECT_EQ(draft.text, "<!--paper A5 1 1 1 1-->\nx");
    draft.text = "<!--row-->x<!-- paper A4 -->y";
    draft.TakePaper({"A5", false, {1, 1, 1, 1}});
    EXPECT_EQ(draft.text, "<!--row-->x<!--paper A5 1 1 1 1-->y");
    EXPECT_EQ(LayoutOn(Job(), "A5"), Job().defaultOn("A5"));
    EXPECT_EQ(Saved(kOwn), "");
    EXPECT_EQ(LayoutOn(Job(), "A5"), kOwn);
    EXPECT_EQ(LayoutOn(Job(), "80"), Job().defaultOn("80"));
}

TEST_P(KeptTemplates, EveryKeyThatIsOfferedIsKnown) {
    TemplateDraft draft(Job());
    std::string header, row;
    for (const std::string& key : draft.Keys())
        (key.starts_with("<<") ? row : header) += key;
    draft.text = "<!--paper A4--><!--header-->" + header + "<!--row-->" + row;
    EXPECT_EQ(draft.Fault(), "");
    draft.text = "<!--paper A4-->\n<!--header-->\n<p>\n<没有></p><!--row-->x";
    EXPECT_EQ(draft.LineOf(draft.Fault()), 4);
}

TEST_P(KeptTemplates, UnsavedTextIsAskedAbout) {
    TemplateDraft draft(Job());
    EXPECT_TRUE(draft.MayClose());
    draft.text = kOwn;
    BoxButton answer = BoxButton::Cancel;
    clerk->view.AnswerWith([&](const MessageBox&) { return answer; });
    EXPECT_FALSE(draft.MayClose());
    answer = BoxButton::Discard;
    EXPECT_TRUE(draft.MayClose());
    EXPECT_FALSE(draft.WasKept());
    answer = BoxButton::Save;
    EXPECT_TRUE(draft.MayClose());
    EXPECT_EQ(StoredTemplate(1), kOwn);
}

} // namespace

} // namespace jxc::test
