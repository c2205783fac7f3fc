// Every screen that is registered, on both engines: it opens, each of its commands can be pressed, and whichever
// statement fails on the way, the person is told, nothing stays half done and the screen works on.
#include "session/session.h"
#include "tests/support/openings.h"
#include "tests/support/recorder.h"

namespace jxc::test {

namespace {

class EveryScreen : public OnOpenCompany {
  protected:
    // No fault of the program was told, and the connection is fit for the next work.
    void ExpectSound(const std::string& where) {
        for (const MessageBox& box : clerk->view.boxes)
            EXPECT_EQ(box.text.find("程序出现内部错误"), std::string::npos) << where << "\n" << box.details;
        EXPECT_NO_THROW({
            Transaction transaction(Conn());
            EXPECT_EQ(Conn().Query("Select Count(*) From tJXC_InvSys").At(0, 0).AsLong(), 1);
        }) << where;
    }
    // `work` with its first statement failing, then with its second, until none is left to fail.
    void FailEach(const std::string& where, const std::function<void()>& work) {
        for (size_t failing = 1;; ++failing) {
            ASSERT_LT(failing, 500u) << where;
            size_t sent = 0;
            {
                const Recorder recorder(failing);
                EXPECT_NO_THROW(work()) << where << ", statement " << failing;
                sent = recorder.sent.size();
            }
            ExpectSound(where + ", statement " + std::to_string(failing));
            if (sent < failing)
                return;
        }
    }
};
ON_BOTH_ENGINES(EveryScreen);

TEST_P(EveryScreen, OpensAndTakesEveryCommand) {
    const int receipt = clerk->Save(TypicalDocument(1));
    for (const Opening& opening : Openings(receipt))
        for (const bool agreed : {false, true})
            for (const std::string& command : CommandsOf(*clerk, opening)) {
                const std::string where = opening.screen + " " + command;
                clerk->view.AnswerWith([agreed](const MessageBox& box) {
                    return agreed ? box.buttons.front() : box.buttons.back();
                });
                EXPECT_TRUE(Visit(*clerk, opening, [&](Screen& screen) { PressCommand(screen, command); }))
                    << where;
                ExpectSound(where);
            }
}

// The statements of opening are counted too: a failure there may leave the command disabled, as a person would find it.
TEST_P(EveryScreen, SurvivesTheFailureOfAnyStatement) {
    const int receipt = clerk->Save(TypicalDocument(1));
    for (const Opening& opening : Openings(receipt)) {
        FailEach(opening.screen, [&] { Visit(*clerk, opening, [](Screen&) {}); });
        for (const std::string& command : CommandsOf(*clerk, opening))
            FailEach(opening.screen + " " + command,
                     [&] { Visit(*clerk, opening, [&](Screen& screen) { PressCommand(screen, command); }); });
    }
}

} // namespace

} // namespace jxc::test
