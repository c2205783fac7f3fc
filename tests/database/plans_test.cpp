// Nothing on the road of one document walks through a table that grows: not its entry, its number, its
// saving, its approval or its reversal. Proven by the engines' own plans of every statement that a clerk's work
// sends, with thousands of rows in the tables.
#include <regex>
#include <set>

#include "base/text.h"
#include "controls/gestures.h"
#include "database/engine.h"
#include "documents/frmDjTrades.h"
#include "documents/load_lines.h"
#include "session/lookups/database_routines.h"
#include "session/session.h"
#include "tests/support/openings.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

// 20000 documents of two lines in the stock book, the closed book and the orders, 20000 account entries, 20000 products in two
// warehouses, all under keys that the sample company does not use.
std::string FillingScript(bool postgres) {
    const std::string numbers =
        postgres ? "generate_series(100001, 120000) as n(i)"
                 : "(with recursive c(i) as (select 100001 union all select i + 1 from c where i < 120000) "
                   "select i from c) as n";
    const std::string text = postgres ? "cast(i as text)" : "i";
    const std::string date = postgres ? "timestamp '2003-01-01' + i % 200 * interval '1 day'"
                                      : "date('2003-01-01', (i % 200) || ' days')";
    std::string script;
    for (const std::string book : {"tJXC_CkDj", "tJXC_CkDj_Bak", "tJXC_CkHt"}) {
        script += "insert into " + book +
                  "01 (fInvID, fInvType, fInvNo, fInvDate, fInvSHR) select i, i % 7, 'R' || " + text + ", " +
                  date + ", 'x' from " + numbers + ";";
        for (const char* row : {"1", "2"})
            script += "insert into " + book +
                      "02 (fInvID, fInv1, fRowID, fInvNo, fInvDate, fCkName, fCpID, fInvSL, fInvSL2) "
                      "select i, 0, " +
                      row + ", 'R' || " + text + ", " + date + ", 'A', i % 20000 + 100001, 1, 1 from " +
                      numbers + ";";
    }
    script += "insert into tAccountDetail (fAcntNo, fInvID, fDate) select 'W' || " + text + ", 'R' || " +
              text + ", " + date + " from " + numbers + ";";
    script += "insert into tJXC_Cp (fCpID, fCpCode, fCpFlag) select i, 'P' || " + text + ", 0 from " +
              numbers + ";";
    for (const char* warehouse : {"'A'", "'B'"})
        script += "insert into tJXC_CkTj (fCpID, fCkName) select i, " + std::string(warehouse) + " from " +
                  numbers + ";";
    script += "insert into tJXC_CkTj_tmp (fCpID) select i from " + numbers + ";";
    script += "insert into tJXC_CpGys (fCpID, fInvNo) select i, 'R' || " + text + " from " + numbers + ";";
    script += "insert into cards (fID, CompCode) select i, 'K' || " + text + " from " + numbers + ";";
    return script;
}

const std::set<std::string> kGrowing{"tjxc_ckdj01",    "tjxc_ckdj02", "tjxc_ckht01",     "tjxc_ckht02",
                                     "taccountdetail", "tjxc_cktj",   "tjxc_cktj_tmp",   "tjxc_cp",
                                     "tjxc_cpgys",     "cards",       "tjxc_ckdj_bak01", "tjxc_ckdj_bak02"};

class Plans : public OnOpenCompany {
  protected:
    bool IsPostgres() const { return GetParam() == EngineKind::Postgres; }
    void Fill() { Conn().EngineInUse().ExecuteScript(FillingScript(IsPostgres())); }

    // The table that a step reads as a whole, by its name or the alias that the statement gives it; "" for none.
    std::string Walked(const std::string& step, const std::string& sql) const {
        std::smatch found;
        if (!std::regex_search(step, found, std::regex(IsPostgres() ? "Seq Scan on (\\w+)" : "^SCAN (\\w+)")))
            return "";
        std::string name = LowerCase(found[1].str());
        if (kGrowing.contains(name))
            return name;
        const std::string text = LowerCase(sql);
        const std::regex aliased("(\\w+)\\s+(?:as\\s+)?" + name + "\\b");
        for (std::sregex_iterator at(text.begin(), text.end(), aliased), end; at != end; ++at)
            if (kGrowing.contains((*at)[1].str()))
                return (*at)[1].str();
        return "";
    }
    void ExpectNoWalk(const std::string& sql, const std::set<std::string>& butOf = {}) {
        const std::vector<std::string> plan = Conn().Plan(sql);
        for (const std::string& step : plan) {
            const std::string table = Walked(step, sql);
            EXPECT_TRUE(table.empty() || butOf.contains(table)) << table << " by " << sql << "\n"
                                                                << testing::PrintToString(plan);
        }
    }

    // What was sent, but for writes on single rows, whose addresses the engines gave.
    static std::set<std::string> Planned(const Recorder& recorder) {
        static const std::regex ours("^\\s*(select|update|delete|insert)\\b", std::regex::icase);
        static const std::regex onRow("\\$1\\b|\\?|ctid|rowid");
        std::set<std::string> planned;
        std::ranges::copy_if(recorder.sent, std::inserter(planned, planned.end()),
                             [](const std::string& sql) {
                                 return std::regex_search(sql, ours) && !std::regex_search(sql, onRow);
                             });
        return planned;
    }
    // A company filled a moment ago has no statistics on the server yet.
    void Analyze() {
        if (IsPostgres())
            Conn().EngineInUse().ExecuteScript("analyze");
    }

    // Enters a document, changes it, steps from it, approves and reverses it where its type can be, deletes it.
    void Live(const DocumentInput& input) {
        const int key = clerk->Save(input);
        ASSERT_NE(key, 0) << "type " << input.type << ": " << clerk->LastBox();
        clerk->Open(DocAction::Change, input.type, key, [&](frmDj02& s) { ClickSave(*clerk, s); });
        clerk->Open(DocAction::Query, input.type, key, [&](frmDj02& s) {
            Click(s, s.cmdPrevious);
            Click(s, s.cmdNext);
        });
        if (input.type < 20 || input.type > 29) {
            EXPECT_TRUE(clerk->Approve(input.type, key)) << "type " << input.type << ": " << clerk->LastBox();
            EXPECT_TRUE(clerk->Reverse(input.type, key)) << "type " << input.type << ": " << clerk->LastBox();
        }
        EXPECT_TRUE(clerk->Delete(input.type, key)) << "type " << input.type << ": " << clerk->LastBox();
    }
};
ON_BOTH_ENGINES(Plans);

TEST_P(Plans, OfOneDocumentWalkThroughNoTable) {
    Fill();
    const Recorder recorder;
    for (const int type : AllTypes())
        Live(TypicalDocument(type));
    ASSERT_NE(clerk->Save(TypicalDocument(23)), 0);
    DocumentInput receipt = TypicalDocument(1);
    receipt.order = One("Select fInvNo From tJXC_CkHt01 Where fInvType=23 And fInvID>120000");
    Live(receipt);
    const std::set<std::string> sent = Planned(recorder);
    const auto isSent = [&](const std::string& part) {
        return std::any_of(sent.begin(), sent.end(),
                           [&](const std::string& sql) { return sql.find(part) != std::string::npos; });
    };
    // Posting asks for its rows by lists of keys.
    for (const char* part : {"From tJXC_CkTj Where fCkName='总部仓' And fCpID In (", "Where b.fCpID In (",
                             "From tJXC_CkTj_tmp Where fCpID In (", "Update tJXC_CkHt02 Set fInvSL2=",
                             "Insert INTO tJXC_CpGys", "From tAccountDetail", "fCpCode = 'CPU002'"})
        EXPECT_TRUE(isSent(part)) << part;
    // Lists of keys do without statistics.
    for (const std::string& sql : sent)
        if (sql.find(" In (") != std::string::npos)
            ExpectNoWalk(sql);
    Analyze();
    for (const std::string& sql : sent)
        ExpectNoWalk(sql);
}

// The prices of years are at hand in a line.
TEST_P(Plans, OfLastTradesWalkThroughNoTable) {
    Fill();
    const Recorder recorder;
    for (const bool sales : {false, true})
        LastTrades({.product = 100007, .customer = 5, .sales = sales});
    Analyze();
    const std::set<std::string> sent = Planned(recorder);
    EXPECT_EQ(sent.size(), 8u); // the customer's and anybody's, of either book
    for (const std::string& sql : sent)
        ExpectNoWalk(sql);
}

// Neither does loading its lines from another document, open or closed, from an order or from a kit template.
TEST_P(Plans, OfALoadWalkThroughNoTable) {
    Fill();
    for (const int type : {DocType::Receipt, DocType::PurchaseOrder}) {
        DocumentInput source = TypicalDocument(type);
        source.number = "SRC" + std::to_string(type);
        ASSERT_NE(clerk->Save(source), 0);
    }
    Conn().Execute(
        "Update tJXC_CkDj01 Set fInvNo='GONE' Where fInvID=100007"); // the closed book has its number
    const Recorder recorder;
    clerk->view.AnswerWith([](const MessageBox&) { return BoxButton::No; });
    clerk->Enter({.type = DocType::Receipt, .warehouse = "总部仓"}, [&](frmDj02& s) {
        s.txtNo2.text = "SRC1";
        EXPECT_TRUE(PickDocumentLines(s, false, DocType::Receipt, "", s.txtNo2)) << clerk->LastBox();
        s.txtNo2.text = "R100007";
        EXPECT_TRUE(PickDocumentLines(s, false, 100007 % 7, "", s.txtNo2)) << clerk->LastBox();
        s.txtHtNo.text = "SRC23";
        EXPECT_TRUE(LoadFromOrder(s)) << clerk->LastBox();
        s.txtTjCode.text = "ZZ001";
        EXPECT_TRUE(LoadFromKit(s)) << clerk->LastBox();
    });
    Analyze();
    for (const std::string& sql : Planned(recorder))
        ExpectNoWalk(sql);
}

// Lists read what they list, and nothing else.
TEST_P(Plans, OfTheOtherScreensWalkThroughWhatTheyListOnly) {
    const std::map<std::string, std::set<std::string>> listed{
        {"frmCkKc", {"tjxc_cktj", "tjxc_cp"}},
        {"frmCp", {"tjxc_cp"}},
        {"frmHostCards", {"cards"}},
        // A plan is worked out from all products, their stock and all orders, once each.
        {"frmJh02", {"tjxc_cktj", "tjxc_cp", "tjxc_ckht01", "tjxc_ckht02", "tjxc_ckdj01", "tjxc_ckdj02"}}};
    Fill();
    Analyze();
    const int receipt = clerk->Save(TypicalDocument(1));
    for (const Opening& opening : Openings(receipt)) {
        const Recorder recorder;
        EXPECT_TRUE(Visit(*clerk, opening, [](Screen&) {}));
        const auto known = listed.find(opening.screen);
        for (const std::string& sql : Planned(recorder))
            ExpectNoWalk(sql, known == listed.end() ? std::set<std::string>{} : known->second);
    }
}

// Whether documents name a warehouse is asked before it is deleted.
TEST_P(Plans, OfAWarehouseInUseWalkThroughNoDocuments) {
    Fill();
    Analyze();
    ExpectNoWalk(CountStatement("tJXC_CkDj01", "fCkName='总部仓'"));
}

TEST_P(Plans, ShowAWalkWhereThereIsOne) {
    Fill();
    for (const char* sql : {"Select * From tJXC_CkDj02 Where fInvSL=3",
                            "Select a.fInvNo From tJXC_CkHt01 b Left Join tJXC_CkDj02 a On a.fInvID=b.fInvID "
                            "Where a.fInvSL=3"}) {
        const std::vector<std::string> plan = Conn().Plan(sql);
        EXPECT_TRUE(std::any_of(plan.begin(), plan.end(), [&](const std::string& step) {
            return !Walked(step, sql).empty();
        })) << testing::PrintToString(plan);
    }
}

} // namespace

} // namespace jxc::test
