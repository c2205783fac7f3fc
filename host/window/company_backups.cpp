#include "host/window/company_backups.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "database/database_error.h"
#include "database/postgres_line.h"
#include "database/server_address.h"
#include "host/company/backup.h"
#include "host/company_address.h"
#include "session/session.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

constexpr int kPatience = 100; // milliseconds between two looks at the window

QString FolderOf(const std::string& company) {
    return DialectOf(company) == 0
               ? QFileInfo(Q(company)).absolutePath() + "/" + kBackupFolder
               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/lzJxc 备份";
}

// What libpq understands of the address: `where` tells the database without the password, which other users of the
// machine could read among a program's arguments.
struct ServerPlace {
    std::string where, password, database;
};

ServerPlace PlaceOf(const std::string& company) {
    const PostgresOptions options(PQconninfoParse(ReadableAddress(company).c_str(), nullptr));
    if (!options)
        throw DatabaseError("不能读出数据库服务器的地址。");
    ServerPlace place{.where = {}, .password = session.Password, .database = "company"};
    for (const PQconninfoOption* option = options.get(); option->keyword; ++option) {
        if (!option->val)
            continue;
        const std::string keyword = option->keyword;
        if (keyword == "password") {
            place.password = option->val;
            continue;
        }
        if (keyword == "dbname")
            place.database = option->val;
        place.where += keyword + "='";
        for (const char* c = option->val; *c; ++c)
            place.where += *c == '\'' || *c == '\\' ? std::string("\\") + *c : std::string(1, *c);
        place.where += "' ";
    }
    return place;
}

// What the program writes. The window is painted meanwhile, and takes no work.
QByteArray Run(const QString& program, const QStringList& arguments, const std::string& password = "") {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!password.empty())
        environment.insert("PGPASSWORD", Q(password));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForStarted())
        throw DatabaseError("没有找到程序 " + S(program) +
                            "：备份服务器上的帐套，须在本机安装 PostgreSQL 客户端程序。");
    while (!process.waitForFinished(kPatience) && process.state() != QProcess::NotRunning)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw DatabaseError(S(program) + "：" +
                            S(QString::fromUtf8(process.readAllStandardError()).trimmed()));
    return process.readAllStandardOutput();
}

// Gone unless it becomes the copy.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const QString& name) : file_(name) {
        if (!file_.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner))
            throw DatabaseError("无法写入 " + S(name) + "：" + S(file_.errorString()));
        file_.close();
    }
    ~UnfinishedFile() {
        if (!file_.fileName().isEmpty())
            file_.remove();
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    void BecomeCopy(const QString& name) {
        if (!QFile::rename(file_.fileName(), name))
            throw DatabaseError("无法写入 " + S(name) + "。");
        file_.setFileName("");
    }

  private:
    QFile file_;
};

} // namespace

CompanyBackups::CompanyBackups(const std::string& company) : CompanyBackups(company, FolderOf(company)) {}

CompanyBackups::CompanyBackups(std::string company, QString folder)
    : company_(std::move(company)), folder_(std::move(folder)) {}

QString CompanyBackups::NewName() const {
    const bool server = DialectOf(company_) != 0;
    const QString name = server ? Q(PlaceOf(company_).database) : QFileInfo(Q(company_)).completeBaseName();
    const QString stem = folder_ + "/" + name + QDateTime::currentDateTime().toString("-yyyyMMdd-HHmmss");
    const QString ending = server ? ".dump" : ".db";
    QString file = stem + ending;
    for (int more = 2; QFile::exists(file); ++more)
        file = stem + "-" + QString::number(more) + ending;
    return file;
}

std::string CompanyBackups::BackUp() {
    if (!QDir().mkpath(folder_))
        throw DatabaseError("不能建立备份文件夹 " + S(folder_) + "。");
    const QString file = NewName();
    if (DialectOf(company_) == 0)
        BackUpCompany(company_, S(file));
    else
        Dump(file);
    return S(file);
}

void CompanyBackups::Dump(const QString& file) const {
    const ServerPlace place = PlaceOf(company_);
    UnfinishedFile unfinished(file + ".part");
    Run("pg_dump",
        {"--format=custom", "--no-owner", "--no-password", "--file=" + file + ".part",
         "--dbname=" + Q(place.where)},
        place.password);
    RequireSoundDump(file + ".part");
    unfinished.BecomeCopy(file);
}

void CompanyBackups::RequireSoundDump(const QString& file) {
    // Written out as statements every block of the dump is unpacked: what is cut off or damaged does not pass.
    const QString nowhere = QStringLiteral("--file=/dev/null");
    Run("pg_restore", {nowhere, file});
    static const QRegularExpression data("TABLE DATA \\S+ tjxc_invsys ",
                                         QRegularExpression::CaseInsensitiveOption);
    if (!data.match(QString::fromUtf8(Run("pg_restore", {"--list", file}))).hasMatch())
        throw DatabaseError("备份文件中没有帐套的数据：" + S(file));
}

} // namespace jxc
