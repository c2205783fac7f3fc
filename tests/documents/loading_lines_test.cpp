// Loading lines is whole or not at all, whichever statement fails, and costs a few statements however long the document is.
#include "base/text.h"
#include "controls/gestures.h"
#include "documents/load_lines.h"
#include "session/session.h"
#include "tests/support/clerk.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

constexpr int kManyLines = 700;

class LoadingLines : public OnOpenCompany {
  protected:
    // A new document with a line of its own and no customer, in which `act` loads.
    void Begin(int type, const std::function<void(frmDj02&)>& act) {
        DocumentInput input{.type = type, .warehouse = "总部仓", .lines = {{"KB001", 5}}};
        if (type == DocType::Assembly)
            input.warehouse = "生产仓", input.warehouse2 = "总部仓";
        clerk->Enter(input, act);
    }
    using OnOpenCompany::Begin;

    // Lines, customer and finished product as they stand.
    static std::string StateOf(const frmDj02& s) {
        std::string state = s.txtKhSeek.text + "|" + s.cboKhList.text + "|" + s.cboKhAdd.text + "|" +
                            s.txtCpCode.text + "|" + s.txtZkl.text + "|" + s.txtSum.text + "|" +
                            s.txtSum2.text;
        for (int row = 1; row <= s.Grid2.RowCount(); ++row) {
            state += "\n";
            for (int column = 1; column <= s.Grid2.ColumnCount(); ++column)
                state += s.Grid2.Text(row, column) + "|";
        }
        return state;
    }
    // `load` with its first statement failing, then with its second, until none is left to fail: everything is loaded, or
    // nothing and the person is told. Those that fail in vain were only read ahead.
    void FailAtEveryStatement(int type, BoxButton wish, const std::function<bool(frmDj02&)>& load) {
        clerk->view.AnswerWith([wish](const MessageBox&) { return wish; });
        std::string whole;
        Begin(type, [&](frmDj02& s) {
            const std::string before = StateOf(s);
            EXPECT_TRUE(load(s)) << clerk->LastBox();
            whole = StateOf(s);
            EXPECT_NE(whole, before);
        });
        size_t refused = 0;
        bool reached = true; // there was a statement of that number
        for (size_t failing = 1; reached; ++failing) {
            ASSERT_LT(failing, 60U);
            Begin(type, [&](frmDj02& s) {
                const std::string before = StateOf(s);
                clerk->view.boxes.clear();
                const Recorder recorder(failing);
                const bool loaded = load(s);
                reached = recorder.sent.size() >= failing;
                EXPECT_EQ(StateOf(s), loaded ? whole : before) << "statement " << failing;
                EXPECT_TRUE(loaded || clerk->LastBox() == "系统数据错误，操作已经取消！")
                    << "statement " << failing << ": " << clerk->LastBox();
                refused += loaded ? 0 : 1;
            });
        }
        EXPECT_GT(refused, 2U);
    }
    static bool LoadTyped(frmDj02& s, int type, const std::string& number) {
        for (int i = 0; i < std::ssize(s.cboInvType2.items); ++i)
            if (Val(s.cboInvType2.items[static_cast<size_t>(i)].substr(0, 3)) == type)
                s.cboInvType2.SetIndex(i);
        s.txtNo2.text = number;
        return LoadFromDocument(s);
    }
};
ON_BOTH_ENGINES(LoadingLines);

TEST_P(LoadingLines, TakesTheLinesOfADocumentWholeOrNotAtAll) {
    DocumentInput source = TypicalDocument(DocType::Receipt);
    source.number = "SRC1";
    ASSERT_NE(clerk->Save(source), 0);
    for (const BoxButton wish : {BoxButton::Yes, BoxButton::No})
        FailAtEveryStatement(DocType::Receipt, wish,
                             [](frmDj02& s) { return LoadTyped(s, DocType::Receipt, "SRC1"); });
}

TEST_P(LoadingLines, TakesTheBalanceOfAnOrderWholeOrNotAtAll) {
    DocumentInput source = TypicalDocument(DocType::PurchaseOrder);
    source.number = "SRC1";
    ASSERT_NE(clerk->Save(source), 0);
    FailAtEveryStatement(DocType::Receipt, BoxButton::No, [](frmDj02& s) {
        s.txtHtNo.text = "SRC1";
        return LoadFromOrder(s);
    });
}

TEST_P(LoadingLines, TakesPartsAndProductOfAKitWholeOrNotAtAll) {
    FailAtEveryStatement(DocType::Assembly, BoxButton::No, [](frmDj02& s) {
        s.txtTjCode.text = "ZZ001";
        return LoadFromKit(s);
    });
}

TEST_P(LoadingLines, ListsAStocktakeWholeOrNotAtAll) {
    Begin(DocType::Stocktake, [&](frmDj02& s) {
        const std::string before = StateOf(s);
        {
            const Recorder recorder(1);
            EXPECT_FALSE(StocktakeList(s, 0, {}));
        }
        EXPECT_EQ(clerk->LastBox(), "系统数据错误，操作已经取消！");
        EXPECT_EQ(StateOf(s), before);
        const Recorder recorder;
        EXPECT_TRUE(StocktakeList(s, 0, {}));
        EXPECT_EQ(recorder.sent.size(), 1U);
    });
}

TEST_P(LoadingLines, SendsTheSameFewStatementsForManyLines) {
    DocumentInput source = TypicalDocument(DocType::Receipt);
    source.number = "SRC1";
    const int key = clerk->Save(source);
    ASSERT_NE(key, 0);
    clerk->view.AnswerWith([](const MessageBox&) { return BoxButton::No; });
    const auto statements = [&](int rows) {
        size_t sent = 0;
        Begin(DocType::Receipt, [&](frmDj02& s) {
            const Recorder recorder;
            EXPECT_TRUE(LoadTyped(s, DocType::Receipt, "SRC1")) << clerk->LastBox();
            sent = recorder.sent.size();
            EXPECT_EQ(s.Grid2.RowCount(), rows);
        });
        return sent;
    };
    const size_t ofTwo = statements(2);
    Transaction transaction(Conn());
    for (int row = 3; row <= kManyLines; ++row) {
        const std::string product = std::to_string(5000 + row);
        Conn().Execute(
            "Insert Into tJXC_Cp (fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpPrice0,fCpFlag) Values (" + product +
            ",'P" + product + "','产品','','个',2,0)");
        Conn().Execute("Insert Into tJXC_CkDj02 (fInv1,fRowID,fInvID,fCpID,fInvSL,fInvDJ) Values (0," +
                       std::to_string(row) + "," + std::to_string(key) + "," + product + ",1,2)");
    }
    transaction.Commit();
    EXPECT_EQ(statements(kManyLines), ofTwo);
}

} // namespace

} // namespace jxc::test
