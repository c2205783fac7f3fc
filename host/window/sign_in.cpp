#include "host/window/sign_in.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>

#include "controls/view.h"
#include "host/passwords.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kTries = 10;

// Beside the window's thread: the test is slow on purpose.
bool IsPasswordMeanwhile(const std::string& kept, const std::string& password) {
    bool right = false;
    const std::unique_ptr<QThread> test(QThread::create([&] { right = IsPassword(kept, password); }));
    QEventLoop loop;
    QObject::connect(test.get(), &QThread::finished, &loop, &QEventLoop::quit);
    test->start();
    loop.exec();
    test->wait();
    return right;
}

class SignInDialog : public QDialog {
  public:
    SignInDialog(QWidget* parent, const std::vector<std::string>& users, const std::string& preset,
                 const std::map<std::string, std::string>& kept)
        : QDialog(parent), kept_(kept) {
        setWindowTitle("登录");
        setObjectName("signIn");
        for (const std::string& user : users)
            users_->addItem(Q(user));
        users_->setObjectName("cboUser");
        users_->setCurrentText(Q(preset));
        password_->setEchoMode(QLineEdit::Password);
        password_->setMaxLength(kPasswordBytes);
        password_->setObjectName("txtPassword");
        told_->setMinimumWidth(220);
        ok_->button(QDialogButtonBox::Ok)->setText("确定(&O)");
        ok_->button(QDialogButtonBox::Cancel)->setText("取消(&C)");
        auto* rows = new QFormLayout(this);
        rows->addRow("用户(&U)：", users_);
        rows->addRow("密码(&P)：", password_);
        rows->addRow(told_);
        rows->addRow(ok_);
        connect(users_, &QComboBox::currentTextChanged, this, [this] { ShapeByUser(); });
        connect(ok_, &QDialogButtonBox::accepted, this, [this] { Try(); });
        connect(ok_, &QDialogButtonBox::rejected, this, &QDialog::reject);
        ShapeByUser();
        if (password_->isEnabled())
            password_->setFocus();
    }

    std::string User() const { return S(users_->currentText()); }
    bool HasFailed() const { return tries_ >= kTries; }

  private:
    bool AsksPassword() const { return kept_.contains(User()); }

    void ShapeByUser() {
        password_->clear();
        password_->setEnabled(AsksPassword());
        told_->setText(AsksPassword() ? "" : "该用户没有密码。");
    }

    void Try() {
        if (!AsksPassword())
            return accept();
        setEnabled(false); // one test at a time
        const bool right = IsPasswordMeanwhile(kept_.at(User()), S(password_->text()));
        setEnabled(true);
        if (right)
            return accept();
        if (++tries_ >= kTries)
            return reject();
        told_->setText("密码不正确，请重新输入！");
        password_->clear();
        password_->setFocus();
    }

    const std::map<std::string, std::string>& kept_;
    QComboBox* users_ = new QComboBox;
    QLineEdit* password_ = new QLineEdit;
    QLabel* told_ = new QLabel;
    QDialogButtonBox* ok_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    int tries_ = 0;
};

} // namespace

std::optional<std::string> SignIn(QWidget* parent, const std::vector<std::string>& users,
                                  const std::string& preset, const std::map<std::string, std::string>& kept) {
    SignInDialog dialog(parent, users, preset, kept);
    if (dialog.exec() == QDialog::Accepted)
        return dialog.User();
    if (dialog.HasFailed())
        Warn("登录", "密码连续 " + std::to_string(kTries) + " 次不正确，没有登录。");
    return std::nullopt;
}

} // namespace jxc
