#include "master/supplier_history.h"

#include "controls/view.h"
#include "session/session.h"

namespace jxc {

bool RefreshSupplierByDocument(const std::string& number, bool reversal) {
    const std::string statement = reversal
                                      ? "Delete From tJXC_CpGys Where fInvNo ='" + number + "' "
                                      : "Insert INTO tJXC_CpGys (fCpID,fKhID,fCpSl,fCpPrice,fInvDate,fInvNo)"
                                        " SELECT fCpID,fKhID,fInvSl,fInvDJ,fInvDate,fInvNo From tJXC_CkDj02 "
                                        "Where fInvNo ='" +
                                            number + "'";
    try {
        Conn().Tolerantly([&] { Conn().Execute(statement); });
        return true;
    } catch (const DatabaseError& error) {
        Warn("", std::string("刷新产品供应商错误：") + error.what());
        return false;
    }
}

} // namespace jxc
