// Printers, and which of them and which paper this user took last on this machine for what.
#pragma once

#include <QString>
#include <QStringList>

#include "view/paper.h"

class QPrinter;

namespace jxc {

// What printouts are remembered by.
QString SubjectOfType(int type);
QString SubjectOfGrid(const QString& title);

// "" before the first.
QString LastPrinter(const QString& subject);
void KeepLastPrinter(const QString& subject, const QString& printer);
QString LastPaper(const QString& subject);
void KeepLastPaper(const QString& subject, const QString& paper);

// The printers of the machine.
class PrintQueues {
  public:
    virtual ~PrintQueues() = default;
    virtual bool Has(const QString& printer) const;
    // All pages, at once. A std::runtime_error when the printer takes none.
    virtual void Print(const QString& printer, const Paper& paper) const;
};
// Those in use, the machine's until others are put in their place for its lifetime.
const PrintQueues& QueuesInUse();
class QueuesInPlace {
  public:
    explicit QueuesInPlace(const PrintQueues& queues);
    ~QueuesInPlace();
    QueuesInPlace(const QueuesInPlace&) = delete;
    QueuesInPlace& operator=(const QueuesInPlace&) = delete;

  private:
    const PrintQueues* before_;
};

// On the printer that was used last for the subject. What is in the way, a text for people; "" when it was printed.
QString PrintAtOnce(const QString& subject, const Paper& paper);

} // namespace jxc
