#include "host/company/backup.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <functional>

#include "database/sqlite_engine.h"
#include "host/company_address.h"
#include "session/company/open_connection.h"

namespace jxc {

namespace {

const char* const kDamaged = ".damaged";

std::string Told(const std::vector<std::string>& faults) {
    std::string text;
    for (size_t i = 0; i < faults.size() && i < 3; ++i)
        text.append(i > 0 ? "；" : "").append(faults[i]);
    return faults.size() > 3 ? text + " 等 " + std::to_string(faults.size()) + " 处" : text;
}

// Opened to look only; a DatabaseError for what is no company at all.
std::vector<std::string> FaultsOf(const std::string& file) {
    Connection connection;
    OpenToRead(0, connection, file);
    return connection.EngineInUse().Faults();
}

void WriteToDisk(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0 || fsync(file) != 0) {
        const std::string reason = std::strerror(errno);
        if (file >= 0)
            close(file);
        throw DatabaseError("不能写入 " + path + "：" + reason);
    }
    close(file);
}

// A file in the making, beside the name that it gets when it is complete. Without Finish it goes.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const std::string& name)
        : path(name + "." + std::to_string(getpid()) + ".part") {}
    ~UnfinishedFile() {
        for (const char* ending : {"", "-wal", "-shm", "-journal"}) {
            std::error_code ignored;
            std::filesystem::remove(path + ending, ignored);
        }
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    // Gives the file its name, which must be free, for good.
    void Finish(const std::string& name) const {
        WriteToDisk(path);
        // A file system that cannot refuse names in use is asked beforehand.
        if (renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) != 0) {
            if (errno != EINVAL || std::filesystem::exists(name))
                throw DatabaseError("不能写入 " + name + "：" + std::strerror(errno));
            std::filesystem::rename(path, name);
        }
        WriteToDisk(std::filesystem::absolute(name).parent_path().string());
    }

    const std::string path;
};

void RequireFree(const std::string& file) {
    if (std::filesystem::exists(std::filesystem::symlink_status(file)))
        throw DatabaseError("文件已经存在：" + file);
}

void Copy(const std::string& source, const std::string& copy) {
    SqliteEngine(source, SqliteFile::Read).CopyTo(copy);
}

// The copy must be as sound as its source was.
void FinishSound(const UnfinishedFile& copy, const std::string& name,
                 const std::function<void(SqliteEngine&)>& prepare) {
    {
        SqliteEngine engine(copy.path, SqliteFile::Open);
        prepare(engine);
    }
    if (const auto faults = FaultsOf(copy.path); !faults.empty())
        throw DatabaseError("副本检查不符，没有保存：" + Told(faults));
    copy.Finish(name);
}

[[noreturn]] void KeepDamaged(const std::string& company, const std::string& file,
                              const std::vector<std::string>& faults) {
    const std::string name = file + kDamaged;
    RequireFree(name);
    const UnfinishedFile copy(name);
    Copy(company, copy.path);
    copy.Finish(name);
    throw DatabaseError("帐套已经损坏：" + Told(faults) + "。只另存为 " + name +
                        "，供修复之用，不能当作备份；请停止录入，从以前的备份恢复。");
}

} // namespace

void BackUpCompany(const std::string& company, const std::string& file) {
    if (DialectOf(company) != 0)
        throw DatabaseError("数据库服务器上的帐套，请用服务器的备份工具（pg_dump）备份。");
    RequireFree(file);
    if (const auto faults = FaultsOf(company); !faults.empty())
        KeepDamaged(company, file, faults);
    const UnfinishedFile copy(file);
    Copy(company, copy.path);
    FinishSound(copy, file, [](SqliteEngine& engine) { engine.Seal(); });
}

void RestoreCompany(const std::string& file, const std::string& company) {
    if (DialectOf(company) != 0)
        throw DatabaseError("备份文件只能恢复为帐套文件，不能恢复到数据库服务器。");
    RequireFree(company);
    if (const auto faults = FaultsOf(file); !faults.empty())
        throw DatabaseError("备份文件已经损坏，没有恢复：" + Told(faults));
    const UnfinishedFile copy(company);
    Copy(file, copy.path);
    FinishSound(copy, company, [](SqliteEngine& engine) { engine.Unseal(); });
}

} // namespace jxc
