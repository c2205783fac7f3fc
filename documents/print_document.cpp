// The document in hand on paper: its grid as the screen shows it, or its lines by a designed template.

#include <cmath>

#include "base/text.h"
#include "controls/view.h"
#include "documents/document_entry.h"
#include "documents/print_template.h"
#include "session/company/company_fields.h"
#include "session/messages.h"
#include "session/printing/print_grid.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kTemplateForPrinting = 1, kTemplateToBeChanged = 3;

// The collection begins anew with the company's header, as it is today.
void RefreshCompanyFields() {
    session.CompanyFieldList.clear();
    CompanyFields();
}

class Pairs {
  public:
    // `bracketed` keys are those of templates.
    explicit Pairs(bool bracketed) : bracketed_(bracketed) {}
    void Add(const std::string& caption, const std::string& value) {
        fields.push_back(bracketed_ ? "<" + caption + ">" : caption);
        fields.push_back(value);
    }
    FieldList fields;

  private:
    bool bracketed_;
};

std::string DateOf(const frmDj02& s) {
    return s.dtpInvDate.date ? IsoText(*s.dtpInvDate.date) : "";
}

void AddCard(Pairs& pairs, const frmDj02& s) {
    pairs.Add(s.lblKhAdd.caption, s.cboKhAdd.text);
    pairs.Add("邮编", s.txtPostcode.text);
    pairs.Add("联系人", s.txtName.text);
    pairs.Add("客户电话", s.txtTelphone.text);
    pairs.Add("客户手机", s.txtHandphone.text);
    pairs.Add("客户传真", s.txtFax.text);
    pairs.Add("电子邮件", s.txtE_mail.text);
    pairs.Add("网址", s.txtHttp.text);
}

FieldList GridFields(const frmDj02& s) {
    Pairs pairs(false);
    pairs.Add("日期", DateOf(s));
    pairs.Add("单号", s.Number());
    pairs.Add(s.lblHtNo.caption, s.txtHtNo.text);
    pairs.Add("摘要", s.cboInvMemo.text);
    pairs.Add(s.lblCkName.caption, s.cboCkName.text);
    pairs.Add(s.lblCkName2.caption, s.cboCkName2.text);
    pairs.Add(s.lblInvHb.caption, s.cboInvHb.text);
    pairs.Add("兑率", s.txtInvHbDl.text);
    pairs.Add(s.lblTaxRate.caption, s.txtTaxRate.text);
    if (s.type.HasCustomer())
        pairs.Add("客户单位", s.cboKhList.text);
    AddCard(pairs, s);
    pairs.Add("审核人", s.lblSHR.caption);
    pairs.Add("经手人", s.cboInvJbr.text);
    pairs.Add("备注", s.txtMemo.text);
    pairs.Add(s.lblSum.caption, s.txtSum.text);
    pairs.Add(s.lblSum2.caption, s.txtSum2.text);
    pairs.Add("退货否？", s.chkTh.value ? s.chkTh.caption : "");
    return pairs.fields;
}

FieldList TemplateFields(const frmDj02& s) {
    Pairs pairs(true);
    pairs.Add("日期", DateOf(s));
    pairs.Add("单号", s.Number());
    pairs.Add(s.lblHtNo.caption, s.txtHtNo.text);
    pairs.Add(s.lblSum.caption, s.txtSum.text);
    pairs.Add("摘要", s.cboInvMemo.text);
    const bool chosen = !s.cboInvHb.text.empty();
    pairs.Add(s.lblInvHb.caption, s.cboInvHb.text + (chosen ? " (" + s.txtInvHbDl.text + ")" : ""));
    pairs.Add("仓库", s.cboCkName.text);
    pairs.Add("仓库2", s.cboCkName2.text);
    pairs.Add("客户单位", s.cboKhList.text);
    AddCard(pairs, s);
    pairs.fields.insert(pairs.fields.end(), {"备注", s.txtMemo.text});
    return pairs.fields;
}

// What people sign for, beside what templates always had.
FieldList FurtherFields(const frmDj02& s) {
    const ProductFields& product = s.finishedProduct;
    return {"经手人",   s.cboInvJbr.text,
            "审核人",   s.lblSHR.caption,
            "制单人",   session.UserName,
            "客户邮编", s.txtPostcode.text, // the company has a postcode and an address of its own
            "客户网址", s.txtHttp.text,
            "成品",     product.code.text + " " + product.name.text,
            "套数",     s.txtInvSL.text + product.unit.text};
}

} // namespace

void PrintDocument(frmDj02& s) {
    RefreshCompanyFields();
    const std::string typeName = MidText(s.cboInvType.Chosen(), 4);
    PrintGrid(s.Grid2, s.type.fSetName, typeName, FormatFixed(std::fabs(Val(s.txtSum.text)), 2),
              GridFields(s));
}

std::optional<TemplatePrintJob> DesignedJob(frmDj02& s, bool closedToo) {
    RefreshCompanyFields();
    FieldList fields = session.CompanyFieldList;
    const FieldList own = TemplateFields(s);
    fields.insert(fields.end(), own.begin(), own.end());
    const bool supervisor = !session.UserName.empty() &&
                            EqualsNoCase(session.UserName, session.ZgName); // nobody is not the supervisor
    return TemplateJob({.mode = supervisor ? kTemplateToBeChanged : kTemplateForPrinting,
                        .title = s.type.fSetName,
                        .type = &s.type,
                        .number = s.Number(),
                        .closed = closedToo && s.JzState == 1,
                        .key = s.oldInvID,
                        .fields = std::move(fields),
                        .further = FurtherFields(s),
                        .captions = {.order = s.lblHtNo.caption,
                                     .total = s.lblSum.caption,
                                     .currency = s.lblInvHb.caption,
                                     .address = s.lblKhAdd.caption},
                        .shape = &s.Grid2});
}

void PrintDesigned(frmDj02& s, bool atOnce) {
    auto job = DesignedJob(s, false);
    if (!job)
        return Warn(s.title, GetResStr(kMsgNothingToPrint));
    job->atOnce = atOnce;
    ComponentsInUse().printer->Print(*job);
}

} // namespace jxc
