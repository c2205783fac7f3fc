#include "host/check/stock_recount.h"

#include "base/text.h"

namespace jxc {

namespace {

bool PostsStock(const CheckedType& type) {
    return type.row.fSetTjType >= Statistics::Opening && type.row.fSetTjType < kQuantities &&
           type.row.fSetCrType1 != kNoChoice && type.row.fSetCkType1 >= WarehouseKind::Any;
}

// `day` is one more column to count by, or a text that is alike for all.
std::map<std::string, Recount> Count(const CheckedTypes& types, const std::string& day, Findings& findings) {
    const std::string value =
        "(case when abs(b.fInvSL)<1000000000000.0 And abs(b.fInvDJ)<1000000000000.0 And "
        "abs(b.fInvHbDl)<1000000000000.0 then b.fInvSL*b.fInvDJ*b.fInvHbDl else 0 end)";
    const Rows rows = findings.Ask("Select a.fInvType,b.fCkName,b.fCpID,b.fInvInOut,sum(b.fInvSL),sum(" +
                                   value + "),sum(abs(b.fInvSL)),sum(abs(" + value + "))" + day +
                                   " From tJXC_CkDj02 b Inner Join tJXC_CkDj01 a On a.fInvID=b.fInvID"
                                   " Where a.fInvSHR<>'' And a.fCkName<>''"
                                   " Group By a.fInvType,b.fCkName,b.fCpID,b.fInvInOut" +
                                   day);
    std::map<std::string, Recount> counted;
    for (size_t row = 0; row < rows.Count(); ++row) {
        const auto at = [&](size_t column) -> const Value& { return rows.At(row, column); };
        const auto type = types.find(static_cast<int>(at(0).AsLong()));
        if (type == types.end() || !PostsStock(type->second))
            continue;
        const int statistics = type->second.row.fSetTjType;
        const double sign =
            (at(3).AsLong() == Direction::In ? 1.0 : -1.0) * (statistics == Statistics::Issue ? -1 : 1);
        Counted& here =
            counted[day.empty() ? "" : at(8).AsText()][{LowerCase(at(1).AsText()), at(2).AsLong()}];
        here.warehouse = at(1).AsText();
        const auto add = [&](int field, size_t sum, size_t turnover) {
            here.figures[static_cast<size_t>(field)] += sign * at(sum).AsDouble();
            here.turnover[static_cast<size_t>(field)] += at(turnover).AsDouble();
        };
        add(statistics, 4, 6);
        if (statistics < kCounters - kQuantities)
            add(kQuantities + statistics, 5, 7);
    }
    return counted;
}

} // namespace

Recount CountLines(const CheckedTypes& types, Findings& findings) {
    return Count(types, "", findings)[""];
}

std::map<std::string, Recount> CountLinesByDay(const CheckedTypes& types, Findings& findings) {
    return Count(types, ",b.fInvDate", findings);
}

} // namespace jxc
