// The program's main window: the host around the module. It knows the company and the user, offers the
// screens by subject, sets the properties of lzJxc and calls Refresh.
#pragma once

#include <map>

#include <QDir>
#include <QMainWindow>
#include <QSettings>
#include <QTimer>

#include "host/property_settings.h"
#include "host/user_settings.h"
#include "host/window/screen_menu.h"
#include "session/lzjxc.h"

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
class QHBoxLayout;

namespace jxc {

class FirstStepsPanel;
class RecentDocuments;
enum class FirstStep;

// What the host reads of a company when it opens it for a user.
struct CompanyFacts {
    std::string name;
    std::string period;
    std::vector<std::string> users;
    std::map<std::string, std::string> passwords; // hashes, of the users who have one
    std::string user;
    UserRights rights;
    std::vector<Subject> subjects;
};

// Whether a company's file is not there; of a server that is known only when it is opened.
bool IsGone(const std::string& company);

class MainWindow : public QMainWindow {
  public:
    MainWindow();
    ~MainWindow() override;

    // Opens a company as `user`, "" for its first one. Failures are told in a box; false then, and the
    // company before stays open.
    bool OpenCompanyOf(const std::string& company, const std::string& user);
    // Asks for what a new company needs, and for its file; makes it and opens it for its first user. Who goes back at the
    // file, or whose file cannot be written, which is told, finds again what he typed.
    void NewCompany();
    // Where the file of a new company is offered; the person's home without it.
    void OfferNewCompaniesIn(const QString& folder) { newCompanies_ = folder; }
    // Opens the company that the person worked on last. One that is gone is asked for; where none is opened the
    // person is asked whether he wants the sample, else the window stands without a company. Who has not worked on any
    // yet gets the sample.
    void OpenLastCompany(const std::string& user);
    // Opens the program's own sample company, which is made on first use.
    void OpenSample(const std::string& user);
    // The supervisor, rights and company name given here are set whatever the company says of its users and itself;
    // other properties the caller sets himself.
    void StandOver(PropertySettings settings) { settings_ = std::move(settings); }
    // What is opened from now on is not among the companies that the person worked on.
    void LeaveNoTrace() { leavesNoTrace_ = true; }
    bool HasCompany() const { return !company_.empty(); }

    void Start(const MenuEntry& entry);
    // The entry of an item by captions, without the mnemonics; null when there is none.
    const MenuEntry* FindEntry(const QString& item, const QString& entry) const;
    void SelectItem(const QString& item);

  private:
    void BuildMenus();
    void BuildCompanyMenu();
    void StandWithoutCompany();
    bool FindCompany(const std::string& company);
    bool WantsSample();
    CompanyFacts ReadFacts(const std::string& company, const std::string& user);
    void TakeCompany(const std::string& company, CompanyFacts facts);
    bool TakeWithPassword(const std::string& company, const std::string& user);
    bool AskPassword(const std::string& company);
    void ReopenCompany();
    void StartGuarded(const MenuEntry& entry);
    QWidget* CommandPage();
    void FillTree();
    const MenuItemRow* SelectedItem() const; // null when a subject is selected
    void ShowItem();
    void ShowDocuments();
    void NewDocument();
    // `action` as the entry screen knows it: 0 shows the document.
    void OpenDocument(int type, std::int32_t key, int action = 0);
    void ShowFirstSteps();
    void Take(FirstStep step);
    void SelectType(int type);
    void ShowRecent();
    void ChooseCompany();
    bool OpenOrStay(const std::function<bool()>& open);
    QString FileOfNewCompany(const std::string& name);
    void BackUp();
    // A backup becomes a company of its own, which is opened; the one it was taken of stays as it is.
    void Restore();
    void ChangeUser();
    void About();
    // Runs a command of the window; what it throws is told.
    void Guard(const std::function<void()>& command);

    lzJxc control_;
    QSettings memory_{"lzJxc", "jxc"};
    PropertySettings settings_;
    std::string company_;
    bool leavesNoTrace_ = false;
    QString newCompanies_ = QDir::homePath();
    std::vector<Subject> subjects_;
    QTreeWidget* tree_ = nullptr;
    FirstStepsPanel* firstSteps_ = nullptr;
    bool isAtWork_ = true; // the company needs no first steps any more, which it never does again
    QLabel* heading_ = nullptr;
    QLabel* purpose_ = nullptr;
    QHBoxLayout* commands_ = nullptr;
    QLabel* recentHeading_ = nullptr;
    RecentDocuments* documents_ = nullptr;
    QLabel* companyLine_ = nullptr;
    QMenu* recent_ = nullptr;
    std::vector<QAction*> ofCompany_; // commands that need an open company
    QTimer patience_;
    std::vector<QAction*> subjectMenus_;
};

} // namespace jxc
