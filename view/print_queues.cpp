#include "view/print_queues.h"

#include <stdexcept>

#include <QPrinter>
#include <QPrinterInfo>

#include "view/page_printer.h"
#include "view/qt_text.h"

namespace jxc {

namespace {

const PrintQueues kOfTheMachine;
const PrintQueues* inUse = &kOfTheMachine;

QString Remembered(const QString& what, const QString& subject) {
    return QSettings("lzJxc", "jxc").value(what + "/" + subject).toString();
}

void Remember(const QString& what, const QString& subject, const QString& value) {
    QSettings("lzJxc", "jxc").setValue(what + "/" + subject, value);
}

} // namespace

QString SubjectOfType(int type) {
    return "type" + QString::number(type);
}

QString SubjectOfGrid(const QString& title) {
    return "grid " + QString(title).replace('/', ' ');
}

QString LastPrinter(const QString& subject) {
    return Remembered("printer", subject);
}

void KeepLastPrinter(const QString& subject, const QString& printer) {
    Remember("printer", subject, printer);
}

QString LastPaper(const QString& subject) {
    return Remembered("paper", subject);
}

void KeepLastPaper(const QString& subject, const QString& paper) {
    Remember("paper", subject, paper);
}

bool PrintQueues::Has(const QString& printer) const {
    return QPrinterInfo::availablePrinterNames().contains(printer);
}

void PrintQueues::Print(const QString& printer, const Paper& paper) const {
    QPrinter device(QPrinterInfo::printerInfo(printer), QPrinter::HighResolution);
    device.setPageLayout(paper.Layout());
    PrintOn(device, paper);
}

const PrintQueues& QueuesInUse() {
    return *inUse;
}

QueuesInPlace::QueuesInPlace(const PrintQueues& queues) : before_(std::exchange(inUse, &queues)) {}

QueuesInPlace::~QueuesInPlace() {
    inUse = before_;
}

QString PrintAtOnce(const QString& subject, const Paper& paper) {
    const QString printer = LastPrinter(subject);
    if (printer.isEmpty())
        return "本机还没有打印过这种单据，请先在打印预览中选择打印机。";
    if (!QueuesInUse().Has(printer))
        return "上次使用的打印机“" + printer + "”已不存在，请在打印预览中另选打印机。";
    try {
        QueuesInUse().Print(printer, paper);
    } catch (const std::runtime_error& error) {
        return Q(error.what());
    }
    return "";
}

} // namespace jxc
