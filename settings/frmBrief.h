// The built-in code list editor: a screen with one grid, in three kinds. Kind 1 lists the code lists to
// choose from, kind 2 the entries of one list to change, kind 5 the dictionary's columns of a table to select
// and order.
#pragma once

#include "controls/screen.h"
#include "forms/columns.h"
#include "session/components.h"

namespace jxc {

struct frmBrief : Screen {
    frmBrief();
    void Open() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;
    Arrangement Arrange() override;

    Grid Grid1{*this, "Grid1"};
    Button cmdAdd{*this, "cmdAdd", "增加(&A)"};
    Button cmdDelete{*this, "cmdDelete", "删除(&D)"};
    Button cmdUp{*this, "cmdUp", "上移(&U)"};
    Button cmdDown{*this, "cmdDown", "下移(&N)"};
    Button cmdRename{*this, "cmdRename", "改名(&M)"};
    Button cmdOk{*this, "cmdOk", "确定(&O)"};
    Button cmdCancel{*this, "cmdCancel", "取消(&C)"};

    // Properties, set before opening: a BriefKind, the dictionary's table or the list.
    std::int16_t kind = static_cast<std::int16_t>(BriefKind::ChooseList);
    std::string table;
    std::string code;
    // Property, left behind: the text chosen, "" for none.
    std::string chosen;

    Columns list{Grid1};
    std::string asOpened; // what the rows were, to be compared
    std::string stored;   // the entries that stood then

    bool Is(BriefKind wanted) const { return kind == static_cast<std::int16_t>(wanted); }
};

} // namespace jxc
