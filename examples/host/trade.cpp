#include "trade.h"

#include "host/embedding.h"

void Trade(const std::string& company) {
    jxc::RegisterAllScreens(); // once
    jxc::lzJxc control;
    control.UserPath(company);
    control.SQLData(0); // 0: SQLite; any other value: PostgreSQL
    control.UserName("马文涛");
    control.ZgName("马文涛"); // the supervisor
    control.myPower("99999999");
    control.myType(1);   // document type 1, a receipt
    control.Refresh(13); // document entry
}
