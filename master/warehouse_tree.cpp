// The list of warehouses: its statement, and the tree that the codes give.

#include "base/text.h"
#include "database/recordset.h"
#include "master/frmCk.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kCodeWidth = 15; // of a node's text, before the name

const std::string kRoot = "C";

std::string KindWanted(const frmCk& s) {
    for (size_t kind = 1; kind < std::size(s.optSelect); ++kind)
        if (s.optSelect[kind].value)
            return " And fCkType" + std::to_string(kind - 1) + "=1";
    return "";
}

std::string ListStatement(const frmCk& s) {
    return "select * from tJXC_Ck" + std::string(s.chkStopList.value ? " Where 1=1 " : " Where fCkFlag=0 ") +
           KindWanted(s) + s.filters.Condition() + " Order by fCkCode";
}

std::string IconOf(const Recordset& row) {
    if (row["fCkFlag"].AsLong() == 1)
        return "stopUse";
    for (const auto& [field, icon] :
         {std::pair("fCkType0", "store"), {"fCkType1", "storeLs"}, {"fCkType2", "storeDx"}})
        if (row[field].AsLong() == 1)
            return icon;
    return "storeSc";
}

bool BeginsWith(const std::string& code, const std::string& prefix) {
    return LowerCase(code).starts_with(LowerCase(prefix));
}

// The nearest node before it whose code the code begins with; every code begins with the root's empty one.
int ParentFor(const Tree& tree, const std::string& code) {
    int at = static_cast<int>(tree.nodes.size()) - 1;
    const auto codeOf = [&](int node) {
        return tree.nodes[static_cast<size_t>(node)].key.substr(kRoot.size());
    };
    while (at > 0 && !BeginsWith(code, codeOf(at)))
        at = tree.nodes[static_cast<size_t>(at)].parent;
    return at;
}

} // namespace

std::string WarehouseOf(const frmCk& s, int node) {
    if (node <= 0)
        return "";
    return MidText(s.TreeView1.nodes[static_cast<size_t>(node)].caption,
                   s.ChkNoCodeList.value ? 1 : kCodeWidth + 1);
}

void ListWarehouses(frmCk& s) {
    Recordset row(Conn(), ListStatement(s));
    Tree& tree = s.TreeView1;
    tree.nodes = {{.key = kRoot, .caption = session.CompName, .icon = "mycomp"}};
    tree.selected = -1;
    for (; !row.AtEnd(); row.MoveNext()) {
        const std::string code = row["fCkCode"].AsText();
        const std::string name = row["fCkName"].AsText();
        tree.nodes.push_back({.key = kRoot + code,
                              .caption = s.ChkNoCodeList.value ? name : PadRight(code, kCodeWidth) + name,
                              .parent = ParentFor(tree, code),
                              .icon = IconOf(row)});
        if (!session.OldName.empty() && EqualsNoCase(name, session.OldName))
            tree.selected = static_cast<int>(tree.nodes.size()) - 1;
    }
}

} // namespace jxc
