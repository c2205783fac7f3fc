#include "host/window/main_window.h"

#include <filesystem>

#include "controls/view.h"
#include "host/company/backup.h"
#include "host/company/create_company.h"
#include "host/company_address.h"
#include "host/editors/host_editors.h"
#include "host/user_settings.h"
#include "host/window/company_users.h"
#include "host/window/recent_documents.h"
#include "session/database/recordset.h"
#include "session/period.h"
#include "session/session.h"
#include "view/text.h"

namespace jxc {

namespace {

constexpr std::int16_t kEntryScreen = 13;
constexpr int kRecent = 8;          // companies
constexpr int kPatience = 150;      // milliseconds
constexpr int kNode = Qt::UserRole; // subject * 1000 + item of a tree node

QString WithoutMnemonic(const std::string& caption) {
    return Q(caption).remove(QRegularExpression("\\(&.\\)|&"));
}

QString ShownName(const std::string& company) {
    return DialectOf(company) != 0 ? Q(WithoutPassword(company)) : QFileInfo(Q(company)).fileName();
}

// In a window that is no dialog Enter does not press buttons by itself.
class CommandButton : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(event);
    }
};

std::string CompanyName() {
    const Recordset header(Conn(), "select * from myCompany");
    if (header.AtEnd())
        return "";
    return header["FullName"].AsText().empty() ? header["CompName"].AsText() : header["FullName"].AsText();
}

} // namespace

// Everything is read before anything changes. The rights of the screens offered are those of the user.
CompanyFacts MainWindow::ReadFacts(const std::string& company, const std::string& user) {
    const OpenCompany open(company);
    LoadPeriodSettings();
    CompanyFacts facts;
    facts.name = CompanyName();
    facts.users = CompanyUsers();
    facts.user = user.empty() ? facts.users.front() : user;
    facts.rights = UserSettings(facts.user);
    if (!facts.rights.known)
        throw std::runtime_error("帐套中没有用户“" + facts.user + "”。");
    if (session.PeriodStart && session.PeriodEnd)
        facts.period = IsoText(*session.PeriodStart) + " 至 " + IsoText(*session.PeriodEnd);
    const std::string userBefore = session.UserName;
    const std::string rightsBefore = session.myPower;
    control_.UserName(facts.user);
    control_.myPower(facts.rights.myPower);
    facts.subjects = SubjectsOf();
    control_.UserName(userBefore);
    control_.myPower(rightsBefore);
    return facts;
}

MainWindow::MainWindow() {
    setWindowTitle("lzJxc 进销存");
    setObjectName("mainWindow");
    resize(1024, 660);
    auto* splitter = new QSplitter;
    tree_ = new QTreeWidget;
    tree_->setObjectName("screens");
    tree_->setHeaderHidden(true);
    tree_->setMinimumWidth(220);
    splitter->addWidget(tree_);

    splitter->addWidget(CommandPage());
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);

    connect(tree_, &QTreeWidget::currentItemChanged, this, [this] { ShowItem(); });
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item->childCount() > 0)
            return;
        const int place = item->data(0, kNode).toInt();
        StartGuarded(subjects_[static_cast<size_t>(place / 1000)]
                         .items[static_cast<size_t>(place % 1000)]
                         .entries.front());
    });
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { NewDocument(); });
    BuildCompanyMenu();
    restoreGeometry(memory_.value("mainWindow").toByteArray());
}

// The right side: what the selected screen is for, its commands, and the last documents of its type.
QWidget* MainWindow::CommandPage() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(28, 24, 28, 24);
    heading_ = new QLabel;
    QFont large = heading_->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    large.setBold(true);
    heading_->setFont(large);
    heading_->setTextFormat(Qt::PlainText);
    purpose_ = new QLabel;
    purpose_->setWordWrap(true);
    commands_ = new QHBoxLayout;
    recentHeading_ = new QLabel("最近的单据（回车或双击打开）");
    patience_.setSingleShot(true);
    patience_.setInterval(kPatience);
    connect(&patience_, &QTimer::timeout, this, [this] { ShowDocuments(); });
    documents_ =
        new RecentDocuments([this](int type, std::int32_t key) { Guard([&] { OpenDocument(type, key); }); });
    auto* hint = new QLabel(
        "键盘：↑↓ 选择，回车打开，F6 新增单据，Alt 进入菜单；窗口中回车到下一栏，Esc 到退出按钮。");
    hint->setForegroundRole(QPalette::PlaceholderText);
    companyLine_ = new QLabel;
    companyLine_->setTextFormat(Qt::PlainText);
    layout->addWidget(heading_);
    layout->addWidget(purpose_);
    layout->addSpacing(16);
    layout->addLayout(commands_);
    layout->addSpacing(16);
    layout->addWidget(recentHeading_);
    layout->addWidget(documents_, 1);
    layout->addStretch();
    layout->addWidget(hint);
    layout->addWidget(companyLine_);
    return page;
}

MainWindow::~MainWindow() {
    memory_.setValue("mainWindow", saveGeometry());
}

void MainWindow::Guard(const std::function<void()>& command) {
    try {
        command();
    } catch (const std::exception& error) {
        Warn(S(windowTitle()), error.what());
    }
}

void MainWindow::BuildCompanyMenu() {
    QMenu* company = menuBar()->addMenu("帐套(&F)");
    company->addAction("打开帐套(&O)...", QKeySequence::Open, this,
                       [this] { Guard([this] { ChooseCompany(); }); });
    company->addAction("新建帐套(&N)...", this, [this] { Guard([this] { NewCompany(); }); });
    recent_ = company->addMenu("最近的帐套(&R)");
    connect(recent_, &QMenu::aboutToShow, this, [this] { ShowRecent(); });
    company->addSeparator();
    company->addAction("更换用户(&U)...", this, [this] { Guard([this] { ChangeUser(); }); });
    company->addAction("备份(&B)...", this, [this] { Guard([this] { BackUp(); }); });
    company->addSeparator();
    company->addAction("退出(&X)", QKeySequence::Quit, this, [this] { close(); });
    QMenu* help = menuBar()->addMenu("帮助(&H)");
    help->addAction("关于(&A)", this, [this] { About(); });
}

bool MainWindow::OpenCompanyOf(const std::string& company, const std::string& user) {
    const std::string passwordBefore = session.Password;
    for (;;) {
        try {
            TakeCompany(company, ReadFacts(company, user));
            return true;
        } catch (const std::exception& error) {
            const bool asks =
                DialectOf(company) != 0 && std::string(error.what()).find("拒绝登录") != std::string::npos;
            if (asks && AskPassword(company))
                continue;
            control_.Password(passwordBefore);
            Warn(S(windowTitle()), error.what());
            return false;
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
    Remember(company);
}

// A password is not written down: the server's own file of passwords, or the person, gives it again.
void MainWindow::Remember(const std::string& company) {
    const QString address = Q(WithoutPassword(company));
    QStringList recent = memory_.value("recent").toStringList();
    recent.removeAll(address);
    recent.prepend(address);
    memory_.setValue("recent", recent.mid(0, kRecent));
}

void MainWindow::FillTree() {
    const QSignalBlocker silent(tree_);
    tree_->clear();
    for (size_t subject = 0; subject < subjects_.size(); ++subject) {
        auto* branch = new QTreeWidgetItem(tree_, {WithoutMnemonic(subjects_[subject].caption)});
        branch->setFlags(Qt::ItemIsEnabled);
        for (size_t item = 0; item < subjects_[subject].items.size(); ++item) {
            auto* leaf = new QTreeWidgetItem(branch, {Q(subjects_[subject].items[item].caption)});
            leaf->setData(0, kNode, static_cast<int>(subject * 1000 + item));
        }
    }
    tree_->expandAll();
    if (QTreeWidgetItem* first = tree_->topLevelItem(0); first && first->childCount() > 0)
        tree_->setCurrentItem(first->child(0));
    ShowItem();
    tree_->setFocus();
}

void MainWindow::BuildMenus() {
    for (QAction* menu : subjectMenus_)
        delete menu->menu();
    subjectMenus_.clear();
    QAction* help = menuBar()->actions().back();
    for (const Subject& subject : subjects_) {
        auto* menu = new QMenu(Q(subject.caption), this);
        for (const MenuItemRow& item : subject.items) {
            if (item.entries.size() == 1) {
                menu->addAction(Q(item.caption), this,
                                [this, entry = item.entries.front()] { StartGuarded(entry); });
                continue;
            }
            QMenu* ways = menu->addMenu(Q(item.caption));
            for (const MenuEntry& entry : item.entries)
                ways->addAction(Q(entry.caption), this, [this, entry] { StartGuarded(entry); });
        }
        subjectMenus_.push_back(menuBar()->insertMenu(help, menu));
    }
}

void MainWindow::ShowItem() {
    while (QLayoutItem* old = commands_->takeAt(0)) {
        delete old->widget();
        delete old;
    }
    const MenuItemRow* shown = SelectedItem();
    if (!shown)
        return;
    const MenuItemRow& item = *shown;
    heading_->setText(Q(item.caption));
    purpose_->setText(Q(item.purpose));
    QWidget* before = tree_;
    for (const MenuEntry& entry : item.entries) {
        auto* button = new CommandButton(Q(entry.caption));
        button->setMinimumSize(150, 34);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        connect(button, &QPushButton::clicked, this, [this, entry] { StartGuarded(entry); });
        commands_->addWidget(button);
        setTabOrder(before, button);
        before = button;
    }
    commands_->addStretch();
    patience_.start();
}

const MenuItemRow* MainWindow::SelectedItem() const {
    QTreeWidgetItem* node = tree_->currentItem();
    if (!node || !node->parent())
        return nullptr;
    const int place = node->data(0, kNode).toInt();
    return &subjects_[static_cast<size_t>(place / 1000)].items[static_cast<size_t>(place % 1000)];
}

// Reading them waits until the person stays on an item: each step of the arrow keys would open the company.
void MainWindow::ShowDocuments() {
    const MenuItemRow* item = SelectedItem();
    const bool hasDocuments =
        item && std::any_of(item->entries.begin(), item->entries.end(),
                            [](const MenuEntry& entry) { return entry.action == kEntryScreen; });
    recentHeading_->setVisible(hasDocuments);
    documents_->setVisible(hasDocuments);
    if (hasDocuments)
        Guard([&] { documents_->Show(item->entries.front().myType); });
}

void MainWindow::OpenDocument(int type, std::int32_t key) {
    control_.Refresh(kEntryScreen,
                     {{"Action", 0}, {"invType", type}, {"OldType", 0}, {"oldInvID", key}, {"JzState", 0}});
    ShowDocuments();
}

void MainWindow::StartGuarded(const MenuEntry& entry) {
    Guard([this, entry] { Start(entry); });
}

void MainWindow::Start(const MenuEntry& entry) {
    if (!entry.screen.empty()) {
        OpenHostEditor(entry.screen);
        if (entry.screen == "frmHostCompany" || entry.screen == "frmHostUsers")
            ReopenCompany();
        return;
    }
    control_.myType(entry.myType);
    control_.Refresh(entry.action);
    ShowDocuments();
}

void MainWindow::NewDocument() {
    const MenuItemRow* item = SelectedItem();
    if (!item)
        return;
    for (const MenuEntry& entry : item->entries)
        if (entry.action == kEntryScreen)
            return StartGuarded(entry);
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

const MenuEntry* MainWindow::FindEntry(const QString& itemCaption, const QString& entryCaption) const {
    for (const Subject& subject : subjects_)
        for (const MenuItemRow& item : subject.items)
            for (const MenuEntry& entry : item.entries)
                if (Q(item.caption) == itemCaption && WithoutMnemonic(entry.caption) == entryCaption)
                    return &entry;
    return nullptr;
}

void MainWindow::SelectItem(const QString& item) {
    const auto found = tree_->findItems(item, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        return;
    tree_->setCurrentItem(found.front());
    patience_.stop();
    ShowDocuments();
}

void MainWindow::ShowRecent() {
    recent_->clear();
    for (const QString& company : memory_.value("recent").toStringList())
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

void MainWindow::NewCompany() {
    QString file =
        QFileDialog::getSaveFileName(this, "新建帐套", QDir::homePath() + "/我的公司.db", "帐套 (*.db)");
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += ".db";
    if (QFileInfo::exists(file))
        throw std::runtime_error("文件已经存在，请另取名称：" + S(file));
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        CreateCompany(0, S(file), CompanyKind::Default);
    } catch (const std::exception&) {
        QApplication::restoreOverrideCursor();
        throw;
    }
    QApplication::restoreOverrideCursor();
    if (OpenCompanyOf(S(file), ""))
        Inform(S(windowTitle()), "帐套已建立。请先在[资料]中输入公司、仓库、产品与客户。");
}

void MainWindow::BackUp() {
    if (DialectOf(company_) != 0)
        return BackUpCompany(company_, ""); // says what serves instead
    const QString name =
        QFileInfo(Q(company_)).completeBaseName() + QDate::currentDate().toString("-yyyyMMdd") + ".db";
    QFileDialog dialog(this, "备份帐套", QDir::homePath() + "/" + name, "帐套 (*.db)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::string file = S(dialog.selectedFiles().front());
    BackUpCompany(company_, file);
    Inform(S(windowTitle()), "备份完毕，并已检查可以读出：\n" + file);
}

void MainWindow::ChangeUser() {
    QStringList users;
    for (const std::string& user : ReadFacts(company_, session.UserName).users)
        users << Q(user);
    const QString user = ChosenUser(users);
    if (!user.isEmpty())
        OpenCompanyOf(company_, S(user));
}

QString MainWindow::ChosenUser(const QStringList& users) {
    QInputDialog dialog(this);
    dialog.setWindowTitle("更换用户");
    dialog.setLabelText("用户：");
    dialog.setComboBoxItems(users);
    dialog.setTextValue(Q(session.UserName));
    dialog.setOkButtonText("确定(&O)");
    dialog.setCancelButtonText("取消(&C)");
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

void MainWindow::About() {
    Inform("关于", "lzJxc 进销存 0.1\n\n采购、销售、库存。单机帐套用 SQLite，多用户帐套用 PostgreSQL。");
}

} // namespace jxc
