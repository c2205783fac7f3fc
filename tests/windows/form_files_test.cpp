// The forms fit their screens: a widget of the right kind for every control, no widget without one, and keys that mean
// one thing.
#include <QUiLoader>

#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "forms/record_editor.h"
#include "host/company_address.h"
#include "host/embedding.h"
#include "tests/windows/window_fixture.h"
#include "view/binding.h"
#include "view/screen_window.h"

namespace jxc::test {

namespace {

// Settings that a screen keeps without showing them.
const std::set<std::string> kNeverShown{"frmCkKc.chkPrice"};

std::vector<std::string> FormFiles() {
    std::vector<std::string> names;
    for (const QString& file : QDir(":/ui").entryList({"*.ui"}))
        names.push_back(S(QFileInfo(file).completeBaseName()));
    return names;
}

// Names that stand for no control: static texts, layout, the pages of tabs.
bool IsFurniture(const QString& name) {
    static const QRegularExpression furniture("^(label|layout|spacer|tab_)|^form$");
    return furniture.match(name).hasMatch();
}

std::vector<std::string> AllScreens() {
    RegisterAllScreens();
    return ScreenNames();
}

class Forms : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        ResetScreens();
        screen = FindScreen(GetParam());
        ASSERT_TRUE(screen);
        form = FormOf(*screen);
        ASSERT_TRUE(form);
    }
    bool HasRowMenu() const {
        return std::any_of(screen->Controls().begin(), screen->Controls().end(), [](const Control* control) {
            const auto* grid = dynamic_cast<const Grid*>(control);
            return grid && grid->rowMenu;
        });
    }
    Screen* screen = nullptr;
    std::unique_ptr<QWidget> form;
};
INSTANTIATE_TEST_SUITE_P(All, Forms, testing::ValuesIn(AllScreens()),
                         [](const auto& form) { return form.param; });

TEST_P(Forms, HoldAWidgetForEveryControl) {
    for (const Control* control : screen->Controls()) {
        if (control->kind == ControlKind::Frame && !screen->Arrange().IsEmpty())
            continue; // in a plain window its controls alone show what it is
        const bool inMenu = control->kind == ControlKind::Menu && HasRowMenu();
        const auto* widget = form->findChild<QWidget*>(Q(control->name));
        if (!widget && (inMenu || kNeverShown.contains(screen->name + "." + control->name)))
            continue;
        EXPECT_TRUE(widget) << control->name;
        EXPECT_TRUE(!widget || Fits(*control, *widget)) << control->name;
    }
}

TEST_P(Forms, NoneHasASecondWidgetOrNoControl) {
    std::set<QString> names;
    for (const QWidget* widget : form->findChildren<QWidget*>(Qt::FindChildrenRecursively)) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && screen->Find(S(name))) {
            EXPECT_TRUE(names.insert(name).second) << S(name);
        }
    }
}

// Enter and Tab lead through what a person fills in, then to saving, and to leaving last.
TEST(PlainForms, LeadFromFieldToFieldAndThenToTheCommands) {
    RegisterAllScreens();
    ResetScreens();
    const std::pair<const char*, const char*> orders[] = {
        {"frmHostCards",
         "txtSeek cmdSeek Grid1 txtCompCode txtCompName cboType0 txtName txtTelphone txtHomephone "
         "txtHandphone txtFax txtE_mail txtHttp txtPostcode txtCompAdd cmdSave cmdCancel cmdAdd "
         "cmdChange cmdDelete cmdQuit"},
        {"frmHostUsers", "Grid1 txtUserName chkSupervisor txtPassword chkNoPassword txtPassword2 Grid2 "
                         "cmdSave cmdCancel cmdAdd cmdChange cmdDelete cmdQuit"},
        {"frmRs_RptSet", "txtName txtItemNo Command3 CmdOk CmdCancel"},
        {"frmBrief", "Grid1 cmdOk cmdAdd cmdDelete cmdUp cmdDown cmdRename cmdCancel"},
        {"frmCkKc",
         "cboCk txtCpCode txtCpName DTPicker1 chkCk chkCpCode chkCpName chkKcBj chkNeg chkDetail chkDate "
         "optPrice(0) optPrice(1) optPrice(2) optPrice(3) cmdQuery cmdRefresh cmdPrint Grid1 cmdQuit"},
        {"frmJh02", "cboType cboKcType cboCk txtCpCode txtCpName cboCpZy2 cboCpCd2 txtKhSeek cboKhList "
                    "chkPrice chkDetail "
                    "chkCk chkCpCode chkCpName chkCpZy2 chkCpCd2 chkKhAll cmdQuery cmdSupplier cmdExecute "
                    "cmdPrint Grid1 cmdQuit"}};
    for (const auto& [name, order] : orders) {
        Screen& screen = *FindScreen(name);
        const std::unique_ptr<QWidget> form = FormOf(screen);
        std::string led;
        for (const QWidget* at = form->nextInFocusChain(); at != form.get(); at = at->nextInFocusChain())
            if (screen.Find(S(at->objectName())) && at->focusPolicy() & Qt::TabFocus)
                led += (led.empty() ? "" : " ") + S(at->objectName());
        EXPECT_EQ(led, order) << name;
    }
}

class FormFile : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(All, FormFile, testing::ValuesIn(FormFiles()),
                         [](const auto& form) { return form.param; });

// A screen that a plain window can show needs no file, and one with a file is not laid out twice.
TEST_P(FormFile, NamesControlsAndWidgetsThatAreThere) {
    Screen* screen = FindScreen(GetParam());
    ASSERT_TRUE(screen);
    EXPECT_TRUE(screen->Arrange().IsEmpty());
    const std::unique_ptr<QWidget> form = FormOf(*screen);
    QFile file(FormFileOf(GetParam()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString element = xml.name().toString();
        if (element == "widget") {
            const QString name = xml.attributes().value("name").toString();
            EXPECT_TRUE(IsFurniture(name) || screen->Find(S(name))) << S(name);
        } else if (element == "tabstop" || element == "cstring") { // the next field, and a label's buddy
            const QString named = xml.readElementText();
            EXPECT_TRUE(form->findChild<QWidget*>(named)) << S(named);
        }
    }
    EXPECT_FALSE(xml.hasError());
}

// Letters and function keys that two things in the window in front would answer.
Texts Clashes() {
    QMap<QString, QStringList> users;
    const auto add = [&](const QWidget* widget, const QString& caption, const QString& key) {
        if (!key.isEmpty() && widget->isVisible())
            users[key] << widget->objectName() + " " + caption;
    };
    const auto letter = [](const QString& caption) { return QKeySequence::mnemonic(caption).toString(); };
    for (const auto* button : Person::Front().findChildren<QAbstractButton*>()) {
        add(button, button->text(), letter(button->text()));
    }
    for (const auto* label : Person::Front().findChildren<QLabel*>())
        if (label->buddy())
            add(label, label->text(), letter(label->text()));
    for (const auto* group : Person::Front().findChildren<QGroupBox*>())
        add(group, group->title(), letter(group->title()));
    auto& window = dynamic_cast<ScreenWindow&>(Person::Front());
    for (const Control* control : window.Shown().Controls())
        if (const auto* command = dynamic_cast<const Command*>(control))
            if (const auto* button = Person::Front().findChild<QWidget*>(Q(command->name)))
                add(button, Q(command->caption), Q(command->shortcut));
    Texts clashes;
    for (auto user = users.cbegin(); user != users.cend(); ++user)
        if (user->size() > 1)
            clashes.push_back(S(user.key() + ": " + user->join(", ")));
    return clashes;
}

class Keys : public Windows {
  protected:
    void ExpectNone(const std::string& where) { EXPECT_EQ(Clashes(), Texts{}) << where; }
};

TEST_F(Keys, MeanOneThingInDocumentEntry) {
    const int key = Save(1);
    for (const int type : AllTypes())
        Enter(type, [&] {
            if (auto* card = person.Front().findChild<QWidget*>("cmdLoadKh2"); card->isVisible())
                person.Click("cmdLoadKh2");
            ExpectNone(std::to_string(type));
        });
    for (const int action : {0, 2, 3, 4, 5})
        Open(13, 1, [&] { ExpectNone(std::to_string(action)); }, {{"Action", action}, {"oldInvID", key}});
}

TEST_F(Keys, MeanOneThingInTheLists) {
    Save(1, true);
    for (const int mode : {1, 99, 201})
        Open(11, mode, [&] {
            for (int tab = 0; tab < 3; ++tab) {
                person.Find<QTabWidget>("SSTab1").setCurrentIndex(tab);
                ExpectNone(std::to_string(mode) + " " + std::to_string(tab));
            }
        });
    for (const int question : {4, 5, 6})
        Open(question, -1, [&] { ExpectNone(std::to_string(question)); });
}

TEST_F(Keys, MeanOneThingInTheOtherScreens) {
    const OpenCompany open(company.Address());
    for (const std::string& name : ScreenNames()) {
        Screen& screen = ScreenNamed(name);
        if (name == "frmDj01" || name == "frmDj02" || name == "frmCkKc")
            continue;
        person.Next([&] {
            ExpectNone(name);
            if (dynamic_cast<RecordEditor*>(&screen)) {
                person.Click("cmdChange");
                ExpectNone(name);
            }
        });
        ShowModal(screen);
    }
}

} // namespace

} // namespace jxc::test
