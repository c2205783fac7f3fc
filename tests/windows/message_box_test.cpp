// What a message box shows of its message: the whole title, and the cause on demand.
#include <QTest>

#include "tests/windows/window_fixture.h"

namespace jxc::test {

namespace {

class MessageBoxes : public Windows {
  protected:
    // Has the box shown, looks at it and answers it by a key.
    BoxButton Show(const MessageBox& box, int key, const std::function<void(QMessageBox&)>& look) {
        qApp->removeEventFilter(&person); // who would answer it at once
        QTimer::singleShot(0, qApp, [&] {
            const QPointer<QMessageBox> shown(dynamic_cast<QMessageBox*>(&person.Front()));
            look(*shown);
            person.Press(key);
            EXPECT_FALSE(shown && shown->isVisible());
        });
        const BoxButton answer = CurrentView().ShowBox(box);
        qApp->installEventFilter(&person);
        return answer;
    }
};

TEST_F(MessageBoxes, TitlesAreNotCutByTheFrame) {
    for (const int characters : {4, 20, 45, 200}) {
        QString title(characters, QChar(0x5355));
        Show({S(title), "短"}, Qt::Key_Return, [&](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), title);
            const int needed = box.fontMetrics().horizontalAdvance(title) + 60;
            EXPECT_TRUE(box.width() >= needed || box.text().startsWith(title)) << characters;
            EXPECT_LT(box.width(), 1000);
        });
    }
}

TEST_F(MessageBoxes, LettersTypedAheadAreNoAnswer) {
    const MessageBox question{"入库单",
                              "单据尚未存盘，放弃所输入的内容？",
                              BoxIcon::Question,
                              {BoxButton::Save, BoxButton::Discard, BoxButton::Cancel},
                              "",
                              2};
    const BoxButton answer = Show(question, Qt::Key_Escape, [&](QMessageBox& box) {
        person.Type("DSCdsc123");
        QTest::qWait(200); // a button goes down before it answers
        EXPECT_TRUE(box.isVisible());
    });
    EXPECT_EQ(answer, BoxButton::Cancel);
}

TEST_F(MessageBoxes, WaitingIsGivenUpByItsButtonOnly) {
    qApp->removeEventFilter(&person);
    View& view = CurrentView();
    EXPECT_TRUE(view.KeepWaiting(3));
    EXPECT_EQ(person.Front().objectName(), "waiting");
    EXPECT_NE(S(person.Front().findChild<QLabel*>()->text()).find("：3 秒"), std::string::npos);
    person.Press(Qt::Key_Return); // of somebody who types on
    EXPECT_TRUE(view.KeepWaiting(4));
    person.Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(view.KeepWaiting(5));
    EXPECT_TRUE(view.KeepWaiting(-1));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(view.KeepWaiting(0)); // the next wait begins anew
    person.Press(Qt::Key_Escape);
    EXPECT_FALSE(view.KeepWaiting(1));
    view.KeepWaiting(-1);
    qApp->installEventFilter(&person);
}

TEST_F(MessageBoxes, DetailsAreShownOnDemandAndAreNoAnswer) {
    const MessageBox failure{
        "入库单", "存盘失败！", BoxIcon::Warning, {BoxButton::OK, BoxButton::Cancel}, "database is locked"};
    const BoxButton answer = Show(failure, Qt::Key_Escape, [&](QMessageBox& box) {
        auto& details = person.Find<QPlainTextEdit>("details");
        const int height = box.height();
        EXPECT_FALSE(details.isVisible());
        EXPECT_EQ(S(person.Find<QPushButton>("showDetails").text()), "详情(&D)");
        person.Click("showDetails");
        ASSERT_TRUE(box.isVisible());
        EXPECT_TRUE(details.isVisible());
        EXPECT_EQ(S(details.toPlainText()), "database is locked");
        QCoreApplication::processEvents();
        EXPECT_GT(box.height(), height);
        person.Click("showDetails");
        EXPECT_FALSE(details.isVisible());
    });
    EXPECT_EQ(answer, BoxButton::Cancel);
    Show({"入库单", "存盘失败！"}, Qt::Key_Return,
         [](QMessageBox& box) { EXPECT_FALSE(box.findChild<QWidget*>("details")); });
}

} // namespace

} // namespace jxc::test
