// The document in hand on paper: its header as captioned fields, its lines as the grid shows them.

#include <cmath>

#include "base/text.h"
#include "documents/document_entry.h"
#include "session/printing/print_grid.h"

namespace jxc {

void PrintDocument(frmDj02& s) {
    FieldList fields;
    const auto add = [&fields](const std::string& key, const std::string& value) {
        fields.push_back(key);
        fields.push_back(value);
    };
    add("日期", s.dtpInvDate.date ? IsoText(*s.dtpInvDate.date) : "");
    add("单号", s.Number());
    add(s.lblHtNo.caption, s.txtHtNo.text);
    add("摘要", s.cboInvMemo.text);
    add(s.lblCkName.caption, s.cboCkName.text);
    add(s.lblCkName2.caption, s.cboCkName2.text);
    add(s.lblInvHb.caption, s.cboInvHb.text);
    add("兑率", s.txtInvHbDl.text);
    if (s.type.HasCustomer())
        add("客户单位", s.cboKhList.text);
    add(s.lblKhAdd.caption, s.cboKhAdd.text);
    add("审核人", s.lblSHR.caption);
    add("经办人", s.cboInvJbr.text);
    add(s.lblSum.caption, s.txtSum.text);
    const std::string typeName = MidText(s.cboInvType.Chosen(), 4);
    PrintGrid(s.Grid2, s.type.fSetName, typeName, FormatFixed(std::fabs(Val(s.txtSum.text)), 2), fields);
}

} // namespace jxc
