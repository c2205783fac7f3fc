#include "master/master_screens.h"

#include "master/frmCk.h"
#include "master/frmCp.h"
#include "master/frmCpTj.h"
#include "session/screen_entries.h"

namespace jxc {

void RegisterMasterScreens() {
    AddScreen({.name = "frmCk",
               .make = [] { return std::make_unique<frmCk>(); },
               .calls = {{1}},
               .menu = {{"资料(&D)", "仓库资料", "仓库的名称与用途。", 1}},
               .module = "mnuJxcSysCk"});
    AddScreen({.name = "frmCp",
               .make = [] { return std::make_unique<frmCp>(); },
               .calls = {{2, [](Screen& screen) { screen.SetProperty("CpNoEdit", 0); }}},
               .menu = {{"资料(&D)", "产品资料", "产品的编码、名称、价格与库存限额。", 2}},
               .module = "mnuJxcSysCp"});
    AddScreen({.name = "frmCpTj",
               .make = [] { return std::make_unique<frmCpTj>(); },
               .calls = {{3, [](Screen& screen) { screen.SetProperty("CpTjSelect", 0); }}},
               .menu = {{"资料(&D)", "产品套件", "组装与拆卸的配件清单。", 3}},
               .module = "mnuJxcSysCp"});
}

} // namespace jxc
