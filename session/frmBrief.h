// The built-in code list editor: a screen with one grid, in three kinds. Kind 1 lists the code lists to
// choose from, kind 2 the entries of one list to change, kind 5 the dictionary's columns of a table to select
// and order.
#pragma once

#include "controls/grid.h"
#include "controls/screen.h"
#include "session/components.h"

namespace jxc {

struct frmBrief : Screen {
    frmBrief();
    void Open() override;
    std::string UnsavedWork() const override;
    void SaveWork() override;

    Grid Grid1{*this, "Grid1"};
    Button cmdAdd{*this, "cmdAdd", "增加(&A)"};
    Button cmdDelete{*this, "cmdDelete", "删除(&D)"};
    Button cmdUp{*this, "cmdUp", "上移(&U)"};
    Button cmdDown{*this, "cmdDown", "下移(&N)"};
    Button cmdRename{*this, "cmdRename", "改名(&M)"};
    Button cmdOk{*this, "cmdOk", "确定(&O)"};
    Button cmdCancel{*this, "cmdCancel", "取消(&C)"};

    // Set before opening.
    BriefKind kind = BriefKind::ChooseList;
    std::string table;
    std::string code;
    // Left behind: the text chosen, "" for none.
    std::string chosen;

    std::string asOpened; // what the rows were, to be compared
};

class CodeListScreen : public CodeListEditor {
  public:
    std::string Edit(const std::string& table, const std::string& code, BriefKind kind) override;
};

} // namespace jxc
