#include "session/lookups/lists.h"

#include "base/text.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

void FillCombo(const std::string& sql, ListBox& list, int width, bool withKey) {
    list.Clear();
    for (Recordset row(Conn(), sql); !row.AtEnd(); row.MoveNext()) {
        const std::string first = row[size_t{0}].AsText();
        list.items.push_back(withKey ? PadRight(first, width) + row[size_t{1}].AsText() : first);
    }
}

void FillDistinctCombo(const std::string& table, ListBox& list, const std::string& fields,
                       const std::string& where, const std::string& tail, bool twoColumns) {
    list.Clear();
    const std::string sql = "select distinct " + fields + " from " + table +
                            (where.empty() ? "" : " Where " + where) + " " + tail;
    for (Recordset row(Conn(), sql); !row.AtEnd(); row.MoveNext()) {
        const std::string second = row[size_t{1}].AsText();
        list.items.push_back(twoColumns ? row[size_t{0}].AsText() + "\t" + second : second);
    }
}

std::string BriefStatement(const std::string& briefType) {
    return "select * from briefDetail where briefType=" + InQuotes(briefType) + " Order By briefcode";
}

void FillBriefCombo(ListBox& list, const std::string& briefType, bool withCode) {
    if (briefType.empty())
        return;
    for (Recordset row(Conn(), BriefStatement(briefType)); !row.AtEnd(); row.MoveNext()) {
        const std::string name = row["BriefName"].AsText();
        list.items.push_back(withCode ? row["BriefCode"].AsText() + "\t" + name : name);
    }
}

int ComboIndexByLeftValue(const ListBox& list, std::int64_t value, int width) {
    for (size_t i = 0; i < list.items.size(); ++i)
        if (Val(MidText(list.items[i], 1, width)) == static_cast<double>(value))
            return static_cast<int>(i);
    return -1;
}

int ComboIndexByMidValue(const ListBox& list, std::int64_t value, int start) {
    if (value == 0)
        return -1;
    for (size_t i = 0; i < list.items.size(); ++i)
        if (Val(MidText(list.items[i], start)) == static_cast<double>(value))
            return static_cast<int>(i);
    return -1;
}

int ComboIndexByText(const ListBox& list, const std::string& text) {
    if (text.empty())
        return -1;
    for (size_t i = 0; i < list.items.size(); ++i)
        if (list.items[i] == text)
            return static_cast<int>(i);
    return -1;
}

} // namespace jxc
