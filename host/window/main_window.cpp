#include "host/window/main_window.h"

#include "controls/view.h"
#include "host/window/command_button.h"
#include "host/window/first_steps_panel.h"
#include "host/window/recent_documents.h"
#include "session/screen_entries.h"
#include "session/session.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr std::int16_t kEntryScreen = 13;
constexpr int kPatience = 150;      // milliseconds
constexpr int kNode = Qt::UserRole; // subject * 1000 + item of a tree node

} // namespace

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
    StandWithoutCompany();
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
    firstSteps_ = new FirstStepsPanel([this](FirstStep step) { Guard([&] { Take(step); }); });
    layout->addWidget(firstSteps_);
    layout->addSpacing(8);
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

void MainWindow::StandWithoutCompany() {
    heading_->setText("没有打开帐套");
    purpose_->setText("请在菜单[帐套]中打开或新建帐套（Ctrl+O 打开）。");
    recentHeading_->hide();
    documents_->hide();
    for (QAction* command : ofCompany_)
        command->setEnabled(false);
}

MainWindow::~MainWindow() {
    if (!leavesNoTrace_)
        memory_.setValue("mainWindow", saveGeometry());
}

void MainWindow::Guard(const std::function<void()>& command) {
    Attempt(S(windowTitle()), command);
}

void MainWindow::BuildCompanyMenu() {
    QMenu* company = menuBar()->addMenu("帐套(&F)");
    company->addAction("打开帐套(&O)...", QKeySequence::Open, this,
                       [this] { Guard([this] { ChooseCompany(); }); });
    company->addAction("新建帐套(&N)...", this, [this] { Guard([this] { NewCompany(); }); });
    recent_ = company->addMenu("最近的帐套(&R)");
    connect(recent_, &QMenu::aboutToShow, this, [this] { ShowRecent(); });
    company->addSeparator();
    ofCompany_ = {company->addAction("更换用户(&U)...", this, [this] { Guard([this] { ChangeUser(); }); }),
                  company->addAction("备份(&B)...", this, [this] { Guard([this] { BackUp(); }); })};
    company->addAction("从备份恢复(&T)...", this, [this] { Guard([this] { Restore(); }); });
    company->addSeparator();
    company->addAction("退出(&X)", QKeySequence::Quit, this, [this] { close(); });
    QMenu* help = menuBar()->addMenu("帮助(&H)");
    help->addAction("关于(&A)", this, [this] { About(); });
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

void MainWindow::OpenDocument(int type, std::int32_t key, int action) {
    control_.Refresh(
        kEntryScreen,
        {{"Action", action}, {"invType", type}, {"OldType", 0}, {"oldInvID", key}, {"JzState", 0}});
    ShowDocuments();
    ShowFirstSteps();
}

void MainWindow::StartGuarded(const MenuEntry& entry) {
    Guard([this, entry] { Start(entry); });
}

void MainWindow::Start(const MenuEntry& entry) {
    if (!entry.screen.empty()) {
        OpenByName(entry.screen);
        if (entry.screen == "frmHostCompany" || entry.screen == "frmHostUsers")
            return ReopenCompany();
        return ShowFirstSteps();
    }
    control_.myType(entry.myType);
    control_.Refresh(entry.action);
    ShowDocuments();
    ShowFirstSteps();
}

void MainWindow::NewDocument() {
    const MenuItemRow* item = SelectedItem();
    if (!item)
        return;
    for (const MenuEntry& entry : item->entries)
        if (entry.action == kEntryScreen)
            return StartGuarded(entry);
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

void MainWindow::About() {
    Inform("关于", "lzJxc 进销存 0.1\n\n采购、销售、库存。单机帐套用 SQLite，多用户帐套用 PostgreSQL。");
}

} // namespace jxc
