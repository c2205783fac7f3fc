#include "host/company/new_company.h"

#include "host/company/table_writer.h"

namespace jxc {

namespace {

// A digit for each place up to the last module's.
std::string EveryRight(Connection& connection) {
    const Recordset last(connection, "select max(SerialNo) as fLast from tSysFunc");
    return std::string(static_cast<size_t>(last["fLast"].AsLong()), '1');
}

} // namespace

void FillNewCompany(Connection& connection, const NewCompany& company) {
    TableWriter(connection, "tJXC_Ck")
        .Add({{"fCkCode", company.warehouseCode},
              {"fCkName", company.warehouse},
              {"fCkMemo", ""},
              {"fCkType0", 1},
              {"fCkType1", 0},
              {"fCkType2", 0},
              {"fCkType3", 0},
              {"fCkFlag", 0},
              {"fZhID", 0},
              {"fKhID", 0}});
    const std::string rights = EveryRight(connection);
    TableWriter(connection, "tHostUser")
        .Add({{"fUserName", company.user},
              {"fPower", rights},
              {"fSupervisor", 1},
              {"fPassword", company.passwordHash}});
}

} // namespace jxc
