// The process-wide values that the host's properties fill, and the connection. Screens read them directly;
// there is one thread, and modal screens give the only ordering needed.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/date.h"
#include "database/connection.h"

namespace jxc {

struct Session {
    // Filled by the properties of lzJxc.
    std::string UserPath;
    std::string Password;
    std::string UserID;
    std::string Default;
    std::int16_t SQLData = 0;  // 0: the Jet form of statements, any other value: the SQL Server form
    std::string DateDelimiter; // "#" or "'", set with SQLData and again when the company is opened
    std::string CompName;
    std::string UserName; // the signed-in user: enters, approves
    std::string ZgName;   // the supervisor
    std::string OldName;
    std::string myPower = "0000"; // one digit per position, "0" no right
    std::int16_t myType = -1;
    bool CopyRight = false;
    std::string PowerPath;
    std::string myModel;
    std::int16_t Language = 0; // 0 simplified, 1 traditional Chinese

    // Filled by Refresh.
    std::unique_ptr<Connection> Conn;
    std::vector<std::string> CompanyFieldList; // key, value, key, value ...

    // Filled by LoadPeriodSettings and LoadSystemStartDate.
    std::int16_t SysDay = 0;
    std::optional<Date> SysDate;
    std::optional<Date> PeriodStart;
    std::optional<Date> PeriodEnd;
    std::int16_t DeciSl = 0;
    std::int16_t DeciDj = 0;
    std::uint8_t CostWay = 0;
    std::optional<Date> SystemStartDate;

    // Left behind by screens for their callers.
    std::int32_t SelectedProductID = 0;
    std::string RptSetResult;

    bool IsJet() const { return SQLData == 0; }
};

extern Session session;

// The open connection; a DatabaseError when there is none.
Connection& Conn();

} // namespace jxc
