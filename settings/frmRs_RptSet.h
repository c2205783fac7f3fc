// A field of the column dictionary: its caption in the session's language and the code list it takes.
#pragma once

#include "controls/screen.h"
#include "forms/fields.h"

namespace jxc {

struct frmRs_RptSet : Screen {
    frmRs_RptSet();
    void Open() override;
    Arrangement Arrange() override;

    TextField txtName{*this, "txtName", "名称", 30};
    TextField txtItemNo{*this, "txtItemNo", "项目内容", 20}; // number of the code list, "" for none
    Button Command3{*this, "Command3", "查找项目内容"};
    Button CmdOk{*this, "CmdOk", "确定"};
    Button CmdCancel{*this, "CmdCancel", "取消"};

    // Set by the opener: the table, and the field by its name or, with Field "", by its present caption.
    std::string TabelName;
    std::string Field;
    std::string ModelName;
    int ItemEnable = 0; // of no effect: the row's own FEnabled decides
};

void RegisterSettingsScreens();

} // namespace jxc
