#include "host/user_settings.h"

#include <algorithm>

#include "database/recordset.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

std::vector<RightPlace> RightPlaces() {
    std::vector<RightPlace> places{{1, "仓库：增加"}, {2, "仓库：修改"}, {3, "仓库：删除"}};
    const std::string caption = "Model_Name_" + std::to_string(session.Language);
    for (Recordset row(Conn(), "select SerialNo," + caption +
                                   " from tSysFunc Where NoUse_=0 And SerialNo>3 Order By SerialNo");
         !row.AtEnd(); row.MoveNext())
        places.push_back({static_cast<int>(row["SerialNo"].AsLong()), row[caption].AsText()});
    return places;
}

std::string AllRights() {
    return std::string(static_cast<size_t>(RightPlaces().back().position), '1');
}

bool NoUsers() {
    return Recordset(Conn(), "Select Top 1 fUserName From tHostUser").AtEnd();
}

void EnterFirstUser() {
    Transaction transaction(Conn());
    if (NoUsers() && !session.UserName.empty()) {
        Recordset row(Conn(), "select * from tHostUser", Access::Write);
        row.AddNew();
        row.Set("fUserName", session.UserName);
        row.Set("fPower", AllRights());
        row.Set("fSupervisor", 1);
        WriteAudit({"新增", "tHostUser", session.UserName, session.UserName, "", JsonOf(row)});
        row.Update();
    }
    transaction.Commit();
}

UserRights UserSettings(const std::string& user) {
    if (NoUsers())
        return {true, user, AllRights(), user};
    UserRights rights;
    const Recordset row(Conn(), "select * from tHostUser where fUserName=" + InQuotes(user));
    rights.known = !row.AtEnd();
    if (rights.known) {
        rights.user = row["fUserName"].AsText();
        rights.myPower = row["fPower"].AsText();
    }
    const Recordset supervisor(Conn(), "select fUserName from tHostUser where fSupervisor=1");
    if (!supervisor.AtEnd())
        rights.ZgName = supervisor["fUserName"].AsText();
    return rights;
}

} // namespace jxc
