#include "session/rights.h"

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/company/open_connection.h"
#include "session/dialect.h"
#include "session/messages.h"
#include "session/session.h"

namespace jxc {

namespace {

void OpenIfClosed() {
    if (!session.Conn)
        session.Conn = std::make_unique<Connection>();
    if (!session.Conn->IsOpen())
        OpenOfSession(*session.Conn);
}

} // namespace

Module GetModule(const std::string& moduleName) {
    OpenIfClosed();
    const std::string captionField = "Model_Name_" + std::to_string(session.Language);
    const Recordset row(Conn(), "select SerialNo,model_Name," + captionField +
                                    ",SecondPass,password from tSysFunc" +
                                    " Where NoUse_=0 And (Model_Name = " + InQuotes(moduleName) + " or " +
                                    captionField + " = " + InQuotes(moduleName) + ")");
    if (row.AtEnd())
        return {};
    Module module;
    module.serial = static_cast<int>(Val(row["SerialNo"].AsText()));
    module.name = row["model_Name"].AsText();
    module.caption = row[captionField].AsText();
    if (Val(row["SecondPass"].AsText()) == 1)
        module.password = row["password"].AsText();
    return module;
}

namespace {

enum class Answer { Granted, Refused, NotInUse };

Answer AskRight(const std::string& moduleName, int offset, int& result) {
    result = 1;
    if (session.UserName.empty())
        return Answer::NotInUse;
    if (moduleName.empty())
        return Answer::Granted;
    const int serial = GetModule(moduleName).serial;
    if (serial == 0)
        return Answer::NotInUse;
    const bool everyone = serial == -1;
    if (serial < -1 || (!everyone && Val(MidText(session.myPower, serial + offset, 1)) == 0))
        return Answer::Refused;
    result = serial + offset;
    return Answer::Granted;
}

} // namespace

int ModuleRight(const std::string& moduleName, int offset) {
    int result = 0;
    const Answer answer = AskRight(moduleName, offset, result);
    if (answer == Answer::Refused)
        Warn("", GetResStr(kMsgNoRight));
    return answer == Answer::Granted ? result : 0;
}

bool HasModuleRight(const std::string& moduleName, int offset) {
    int result = 0;
    return AskRight(moduleName, offset, result) == Answer::Granted;
}

} // namespace jxc
