// What would be lost if the screen were left now.

#include "base/text.h"
#include "documents/document_entry.h"

namespace jxc {

std::string TypedWork(const frmDj02& s) {
    std::string work;
    const auto add = [&](const std::string& text) { work.append(text).push_back('\x1f'); };
    const bool followsDate = s.InHand() == DocAction::New && s.txtNo.text == s.madeNumber;
    add(followsDate ? "" : s.txtNo.text);
    add(s.dtpInvDate.date ? IsoText(*s.dtpInvDate.date) : "");
    for (const EditBox* box : std::initializer_list<const EditBox*>{
             &s.txtHtNo, &s.cboCkName, &s.cboCkName2, &s.cboKhList, &s.cboKhAdd, &s.cboInvHb, &s.txtInvHbDl,
             &s.txtTaxRate, &s.txtZkl, &s.cboInvMemo, &s.cboInvJbr, &s.txtCpCode, &s.txtInvSL, &s.txtSsSf,
             &s.txtMemo})
        add(box->text);
    add(s.chkFlag.value ? "1" : "");
    for (int row = 1; row <= s.Grid2.RowCount(); ++row) {
        if (s.Grid2.Text(row, line::kCode).empty())
            continue;
        for (const int column : {line::kCode, line::kCounted, line::kQuantity, line::kPrice, line::kTaxRate,
                                 line::kMemo1, line::kMemo2, line::kBalance})
            add(s.Grid2.ShownText(row, column));
    }
    return work;
}

} // namespace jxc
