#include "host/company/sample_people.h"

#include "host/company/table_writer.h"

namespace jxc {

namespace {

struct Department {
    std::string_view code, name;
};
constexpr Department kDepartments[] = {
    {"10", "总经办"}, {"20", "销售部"}, {"30", "仓储部"}, {"40", "财务部"}};

struct Member {
    std::string_view code, name, department;
};
// Staff beside the salespeople.
constexpr Member kStaff[] = {{"R001", "马文涛", "总经办"},
                             {"R101", "宋小云", "仓储部"},
                             {"R102", "郝大力", "仓储部"},
                             {"R201", "姚静", "财务部"}};
// Who signs in.
constexpr Member kUsers[] = {{"U01", "马文涛", ""}, {"U02", "宋小云", ""}, {"U03", "姚静", ""}};

struct Salesperson {
    std::string_view code, name, superior; // no superior: the top
    int level;
    std::string_view mobile;
};
// Superiors stand before their people.
constexpr Salesperson kSalespeople[] = {
    {"Y001", "周启明", "", 5, "19900000501"},       {"Y002", "吴海燕", "周启明", 4, "19900000502"},
    {"Y003", "郑志刚", "周启明", 3, "19900000503"}, {"Y004", "孙丽", "吴海燕", 3, "19900000504"},
    {"Y005", "赵一鸣", "吴海燕", 3, "19900000505"}, {"Y006", "钱晓东", "吴海燕", 2, "19900000506"},
    {"Y007", "李思思", "郑志刚", 2, "19900000507"}, {"Y008", "冯波", "孙丽", 2, "19900000508"},
};

struct Level {
    int code;
    std::string_view name, note;
    double commission, reward; // of the group's sales; of same-level subordinates' sales
    bool bySubordinates, rewardSameLevel;
    double salesMin, salesMax;    // of the group in a month
    int anyLevel, anyCount;       // subordinates of a level among all
    int directLevel, directCount; // and among the direct ones
};
// Sales ranges do not touch: an amount belongs to one level.
constexpr Level kLevels[] = {
    {2, "业务员", "月销售不足五万", 0.01, 0, false, false, 0, 49999.99, 0, 0, 0, 0},
    {3, "高级业务员", "月销售五万以上", 0.015, 0.003, false, true, 50000, 199999.99, 0, 0, 0, 0},
    {4, "销售主管", "月销售二十万以上", 0.02, 0.004, false, true, 200000, 99999999, 0, 0, 0, 0},
    {5, "销售经理", "带出主管一名、直属高级业务员一名", 0.025, 0.005, true, true, 0, 0, 4, 1, 3, 1},
};

// Steps down from the top.
int DepthOf(std::string_view name) {
    for (const Salesperson& person : kSalespeople)
        if (person.name == name)
            return person.superior.empty() ? 0 : 1 + DepthOf(person.superior);
    throw std::out_of_range("no sample salesperson " + std::string(name));
}

void FillStaff(Connection& connection) {
    TableWriter departments(connection, "tRs_Bm"), staff(connection, "tRsBasic"),
        users(connection, "Employees");
    for (const Department& department : kDepartments)
        departments.Add({{"fname", department.name}, {"fcode", department.code}, {"fynxj", 0}});
    for (const Member& member : kStaff)
        staff.Add({{"fCode", member.code}, {"fName", member.name}, {"fBmName", member.department}});
    for (const Salesperson& person : kSalespeople)
        staff.Add({{"fCode", person.code}, {"fName", person.name}, {"fBmName", "销售部"}});
    for (const Member& user : kUsers)
        users.Add({{"employCode", user.code}, {"employee", user.name}});
    for (const Salesperson& person : kSalespeople)
        users.Add({{"employCode", person.code}, {"employee", person.name}});
}

void FillSalespeople(Connection& connection) {
    TableWriter people(connection, "tJXC_Yj_Jbr");
    for (const Salesperson& person : kSalespeople)
        people.Add({{"fCode", person.code},
                    {"fName", person.name},
                    {"fName2", person.superior},
                    {"fMemo", ""},
                    {"fFloor", DepthOf(person.name)},
                    {"fFlag", 0},
                    {"fJbCode", person.level},
                    {"fCardID", ""},
                    {"fAcntID", ""},
                    {"fCompadd", ""},
                    {"fPostcode", ""},
                    {"fTelephone", ""},
                    {"fHomephone", ""},
                    {"fHandphone", person.mobile},
                    {"fFax", ""},
                    {"fEmail", ""}});
}

void FillLevels(Connection& connection) {
    TableWriter levels(connection, "tJXC_Yj_SetJb");
    for (const Level& level : kLevels)
        levels.Add({{"fJbCode", level.code},
                    {"fJbName", level.name},
                    {"fJbMemo", level.note},
                    {"fJbRate1", level.commission},
                    {"fJbRate2", level.reward},
                    {"fJbSet1", level.bySubordinates ? 1 : 0},
                    {"fJbSet2", level.rewardSameLevel ? 1 : 0},
                    {"fJbMin", level.salesMin},
                    {"fJbMax", level.salesMax},
                    {"fJbCode1", level.anyLevel},
                    {"fJbCode2", level.directLevel},
                    {"fJbQty1", level.anyCount},
                    {"fJbQty2", level.directCount}});
}

} // namespace

void FillSamplePeople(Connection& connection) {
    FillStaff(connection);
    FillSalespeople(connection);
    FillLevels(connection);
}

} // namespace jxc
