#include "host/check.h"

#include <optional>

#include "database/engine.h"
#include "host/check/checked_company.h"
#include "session/audit/audit.h"
#include "session/session.h"

namespace jxc {

std::vector<std::string> CheckEngine() {
    std::vector<std::string> lines;
    for (const std::string& fault : Conn().EngineInUse().Faults())
        lines.push_back("数据库已经损坏：" + fault + "；请停止录入，从备份恢复。");
    return lines;
}

std::vector<std::string> CheckCompany(std::vector<std::string>* notes) {
    Findings findings;
    // All parts see one state, and nobody waits for them.
    std::optional<ReadingTransaction> reading;
    if (!Conn().InTransaction())
        reading.emplace(Conn());
    const CheckedCompany company = ReadCompany(findings);
    CheckSettings(company, findings);
    CheckMasters(findings);
    for (const auto check :
         {CheckBooks, CheckPairs, CheckStock, CheckCosts, CheckOrders, CheckLedger, CheckSupplierHistory})
        check(company, findings);
    findings.Try([&] {
        for (const std::string& fault : AuditFaults(Conn()))
            findings.Add(fault);
    });
    if (notes)
        *notes = findings.Notes();
    return findings.Lines();
}

} // namespace jxc
