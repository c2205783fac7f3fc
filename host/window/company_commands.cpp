// The company that the main window stands for: opened for a user, chosen, made, backed up.

#include <stdexcept>

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "host/company/backup.h"
#include "host/company_address.h"
#include "host/passwords.h"
#include "host/window/company_backups.h"
#include "host/window/company_users.h"
#include "host/window/first_steps_panel.h"
#include "host/window/main_window.h"
#include "host/window/recent_companies.h"
#include "host/window/sign_in.h"
#include "session/company/company_fields.h"
#include "session/period.h"
#include "session/session.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

const std::string kBackedUp = "备份完毕，并已检查可以读出：\n";

QString ShownName(const std::string& company) {
    return DialectOf(company) != 0 ? Q(WithoutPassword(company)) : QFileInfo(Q(company)).fileName();
}

std::string CompanyName() {
    const Recordset header(Conn(), "select * from myCompany");
    return header.AtEnd() ? "" : CompanyName(header);
}

// The screens offered follow from the rights of the user who is to sign in; the one before comes back.
class SignedInMeanwhile {
  public:
    SignedInMeanwhile(lzJxc& control, const CompanyFacts& facts)
        : control_(control), user_(session.UserName), rights_(session.myPower) {
        control.UserName(facts.user);
        control.myPower(facts.rights.myPower);
    }
    ~SignedInMeanwhile() {
        control_.UserName(user_);
        control_.myPower(rights_);
    }
    SignedInMeanwhile(const SignedInMeanwhile&) = delete;
    SignedInMeanwhile& operator=(const SignedInMeanwhile&) = delete;

  private:
    lzJxc& control_;
    std::string user_;
    std::string rights_;
};

} // namespace

// Everything is read before anything changes.
CompanyFacts MainWindow::ReadFacts(const std::string& company, const std::string& user) {
    const OpenCompany open(company);
    LoadPeriodSettings();
    CompanyFacts facts;
    facts.name = CompanyName();
    facts.users = CompanyUsers();
    facts.passwords = KeptPasswords();
    facts.user = user.empty() ? facts.users.front() : user;
    facts.rights = UserSettings(facts.user);
    if (!facts.rights.known)
        throw std::runtime_error("帐套中没有用户“" + facts.user + "”。");
    facts.user = facts.rights.user;
    if (session.PeriodStart && session.PeriodEnd)
        facts.period = IsoText(*session.PeriodStart) + " 至 " + IsoText(*session.PeriodEnd);
    for (const auto& [property, fact] : {std::pair("CompName", &facts.name),
                                         {"ZgName", &facts.rights.ZgName},
                                         {"myPower", &facts.rights.myPower}})
        if (const auto set = settings_.find(property); set != settings_.end())
            *fact = set->second;
    const SignedInMeanwhile asUser(control_, facts);
    facts.subjects = SubjectsOf();
    return facts;
}

bool MainWindow::OpenCompanyOf(const std::string& company, const std::string& user) {
    return OpenOrStay([&] { return TakeWithPassword(company, user); });
}

// `open` gives false when the person gives up. What goes wrong is told; the company before stays open then.
bool MainWindow::OpenOrStay(const std::function<bool()>& open) {
    const std::string passwordBefore = session.Password;
    bool taken = false;
    Attempt(S(windowTitle()), [&] { taken = open(); });
    if (taken)
        return true;
    control_.Password(passwordBefore);
    if (HasCompany())
        UseCompany(control_, company_);
    return false;
}

// A server that refuses the password is tried again as long as the person gives another. False when he gives up signing in.
bool MainWindow::TakeWithPassword(const std::string& company, const std::string& user) {
    for (;;) {
        try {
            CompanyFacts facts = ReadFacts(company, user);
            const bool goesOn = company == company_ && EqualsNoCase(facts.user, session.UserName);
            if (!goesOn && facts.passwords.contains(facts.user)) {
                const auto signedIn = SignIn(this, facts.users, facts.user, facts.passwords);
                if (!signedIn)
                    return false;
                facts = ReadFacts(company, *signedIn);
            }
            TakeCompany(company, std::move(facts));
            return true;
        } catch (const LoginError&) {
            if (!AskPassword(company))
                throw;
        }
    }
}

// The password of the server goes into the session only.
bool MainWindow::AskPassword(const std::string& company) {
    bool given = false;
    const QString password = QInputDialog::getText(this, "数据库密码", Q(WithoutPassword(company)),
                                                   QLineEdit::Password, "", &given);
    if (given)
        control_.Password(S(password));
    return given;
}

void MainWindow::TakeCompany(const std::string& company, CompanyFacts facts) {
    company_ = company;
    ResetScreens();
    UseCompany(control_, company);
    ComponentsInUse().backups = std::make_unique<CompanyBackups>(company);
    control_.CompName(facts.name);
    control_.UserName(facts.user);
    control_.ZgName(facts.rights.ZgName);
    control_.myPower(facts.rights.myPower);
    subjects_ = std::move(facts.subjects);
    setWindowTitle("lzJxc 进销存 — " + Q(facts.name));
    companyLine_->setText("帐套：" + ShownName(company) + "    用户：" + Q(facts.user) + "    会计期间：" +
                          Q(facts.period));
    FillTree();
    BuildMenus();
    for (QAction* command : ofCompany_)
        command->setEnabled(true);
    if (!leavesNoTrace_)
        RecentCompanies(memory_).Remember(company);
    isAtWork_ = false;
    ShowFirstSteps();
    if (!isAtWork_)
        firstSteps_->FocusNext();
}

// A user who was renamed or went away is followed by the company's first.
void MainWindow::ReopenCompany() {
    const std::vector<std::string> users = [&] {
        const OpenCompany open(company_);
        return CompanyUsers();
    }();
    const bool stays = std::find(users.begin(), users.end(), session.UserName) != users.end();
    OpenCompanyOf(company_, stays ? session.UserName : users.front());
}

void MainWindow::ShowRecent() {
    recent_->clear();
    for (const QString& company : RecentCompanies(memory_).List())
        recent_->addAction(ShownName(S(company)), this, [this, company] { OpenCompanyOf(S(company), ""); })
            ->setToolTip(company);
    recent_->setEnabled(!recent_->isEmpty());
}

void MainWindow::ChooseCompany() {
    QDialog window(this);
    window.setWindowTitle("打开帐套");
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("帐套文件，或数据库服务器上的地址（postgresql://…）："));
    auto* address = new QLineEdit(Q(WithoutPassword(company_)));
    address->setObjectName("companyAddress");
    address->setMinimumWidth(460);
    auto* browse = new QPushButton("浏览(&B)...");
    auto* line = new QHBoxLayout;
    line->addWidget(address);
    line->addWidget(browse);
    layout->addLayout(line);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton("打开(&O)", QDialogButtonBox::AcceptRole);
    buttons->addButton("取消(&C)", QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(browse, &QPushButton::clicked, &window, [&] {
        const QString file =
            QFileDialog::getOpenFileName(&window, "打开帐套", address->text(), "帐套 (*.db);;所有文件 (*)");
        if (!file.isEmpty())
            address->setText(file);
    });
    connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    if (window.exec() == QDialog::Accepted && !address->text().trimmed().isEmpty())
        OpenCompanyOf(S(address->text().trimmed()), "");
}

void MainWindow::BackUp() {
    if (DialectOf(company_) != 0)
        return Inform(S(windowTitle()), kBackedUp + CompanyBackups(company_).BackUp());
    const QString name =
        QFileInfo(Q(company_)).completeBaseName() + QDate::currentDate().toString("-yyyyMMdd") + ".db";
    QFileDialog dialog(this, "备份帐套", QDir::homePath() + "/" + name, "帐套 (*.db)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::string file = S(dialog.selectedFiles().front());
    BackUpCompany(company_, file);
    Inform(S(windowTitle()), kBackedUp + file);
}

void MainWindow::Restore() {
    const bool file = HasCompany() && DialectOf(company_) == 0;
    const QString folder = file ? QFileInfo(Q(company_)).absolutePath() : QDir::homePath();
    const QString copies = folder + "/" + kBackupFolder;
    const QString backup = QFileDialog::getOpenFileName(this, "从备份恢复：选择备份文件",
                                                        QDir(copies).exists() ? copies : folder,
                                                        "帐套 (*.db);;所有文件 (*)", nullptr);
    if (backup.isEmpty())
        return;
    QFileDialog dialog(this, "恢复为新的帐套文件",
                       folder + "/" + QFileInfo(backup).completeBaseName() + "-恢复.db", "帐套 (*.db)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // what is there is never written over
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::string restored = S(dialog.selectedFiles().front());
    RestoreCompany(S(backup), restored);
    Inform(S(windowTitle()), "备份已恢复为：\n" + restored + "\n\n原帐套没有改动。");
    OpenCompanyOf(restored, "");
}

void MainWindow::ChangeUser() {
    const CompanyFacts facts = ReadFacts(company_, session.UserName);
    if (const auto user = SignIn(this, facts.users, facts.user, facts.passwords))
        TakeCompany(company_, ReadFacts(company_, *user));
}

} // namespace jxc
