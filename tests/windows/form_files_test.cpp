// The .ui files fit their screens: a widget of the right kind for every control, no widget without one, and
// keys that mean one thing.
#include <QUiLoader>

#include "documents/frmDj01.h"
#include "documents/frmDj02.h"
#include "forms/record_editor.h"
#include "host/company_address.h"
#include "host/screens.h"
#include "tests/windows/window_fixture.h"
#include "view/binding.h"

namespace jxc::test {

namespace {

// Settings that a screen keeps without showing them.
const std::set<std::string> kNeverShown{"frmCkKc.chkPrice"};

std::vector<std::string> Forms() {
    std::vector<std::string> names;
    for (const QString& file : QDir(":/ui").entryList({"*.ui"}))
        names.push_back(S(QFileInfo(file).completeBaseName()));
    return names;
}

std::unique_ptr<QWidget> LoadForm(const std::string& screen) {
    QFile file(FormOf(screen));
    QUiLoader loader;
    return std::unique_ptr<QWidget>(file.open(QIODevice::ReadOnly) ? loader.load(&file) : nullptr);
}

// Names that stand for no control: static texts, layout, the pages of tabs.
bool IsFurniture(const QString& name) {
    static const QRegularExpression furniture("^(label|layout|spacer|tab_)|^form$");
    return furniture.match(name).hasMatch();
}

class FormFiles : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        ResetScreens();
        form = LoadForm(GetParam());
        ASSERT_TRUE(form);
        screen = FindScreen(GetParam());
        ASSERT_TRUE(screen);
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
INSTANTIATE_TEST_SUITE_P(All, FormFiles, testing::ValuesIn(Forms()),
                         [](const auto& form) { return form.param; });

TEST_P(FormFiles, HoldAWidgetForEveryControl) {
    for (const Control* control : screen->Controls()) {
        const bool inMenu = control->kind == ControlKind::Menu && HasRowMenu();
        const auto* widget = form->findChild<QWidget*>(Q(control->name));
        if (!widget && (inMenu || kNeverShown.contains(screen->name + "." + control->name)))
            continue;
        EXPECT_TRUE(widget) << control->name;
        EXPECT_TRUE(!widget || Fits(*control, *widget)) << control->name;
    }
}

TEST_P(FormFiles, NameControlsAndWidgetsThatAreThere) {
    QFile file(FormOf(GetParam()));
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

TEST(Forms, AreThoseOfTheScreens) {
    EXPECT_EQ(Forms(), ScreenNames());
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
        add(button, button->text(), button->property("fkey").toString());
    }
    for (const auto* label : Person::Front().findChildren<QLabel*>())
        if (label->buddy())
            add(label, label->text(), letter(label->text()));
    for (const auto* group : Person::Front().findChildren<QGroupBox*>())
        add(group, group->title(), letter(group->title()));
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
