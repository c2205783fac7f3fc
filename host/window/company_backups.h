// Copies of the company that the main window stands for, written before a month is closed.
#pragma once

#include <string>

#include <QString>

#include "session/components.h"

namespace jxc {

// Beside the company's file.
inline const QString kBackupFolder = "备份";

// A company in a file is copied into the folder 备份 beside it while others work on; one on a server by pg_dump into the
// folder "lzJxc 备份" of the user's documents. The name tells company, day and time. A copy has its name only when it is
// whole and could be read back; it is the owner's alone, and nothing half written stays.
class CompanyBackups : public BackupKeeper {
  public:
    explicit CompanyBackups(const std::string& company);
    // The same into another folder.
    CompanyBackups(std::string company, QString folder);
    std::string BackUp() override;

    // A DatabaseError where the file is no whole dump of a company.
    static void RequireSoundDump(const QString& file);

  private:
    QString NewName() const;
    void Dump(const QString& file) const;

    const std::string company_;
    const QString folder_;
};

} // namespace jxc
