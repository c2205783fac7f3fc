// The companies that the person worked on last, the latest first, as addresses without passwords. They are kept among
// the program's settings. The program's own sample company is none of them: who looked at it comes back to his own.
#pragma once

#include <string>

#include <QSettings>
#include <QStringList>

namespace jxc {

class RecentCompanies {
  public:
    explicit RecentCompanies(QSettings& memory) : memory_(memory) {}

    QStringList List() const;
    // The one to begin with; "" for none.
    std::string Last() const;
    // Puts it first. A file is found again from whatever folder the program is started in; a password is not written
    // down: the server's own file of passwords, or the person, gives it again.
    void Remember(const std::string& company);

  private:
    QSettings& memory_;
};

} // namespace jxc
