// The document's customer: search, choice, card fields, delivery addresses.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "session/audit/audit.h"
#include "session/dialect.h"
#include "session/lookups/lists.h"
#include "session/session.h"

namespace jxc {

namespace {

// The kind as messages name it; card kinds are those of the type row's fSetKhType.
std::string KindText(std::int64_t kind) {
    return kind == Partner::Supplier    ? "“供应商”"
           : kind == Partner::Dealer    ? "“销售商”"
           : kind == Partner::Consignee ? "“代销商”"
                                        : "";
}

std::string AddressesStatement(std::int64_t id) {
    return "select fKhAdd from tJXC_KhAdd Where fKhID = " + std::to_string(id) + " Order by fKhAdd";
}

std::string CardStatement(std::int64_t id) {
    return "select fID,name,compname,CompAdd,postcode,CompCode,telphone,handphone,fax,E_mail,http,fType0 "
           "from cards where fID=" +
           std::to_string(id);
}

std::vector<std::string> ReadAddresses(std::int64_t id) {
    std::vector<std::string> addresses;
    if (id > 0)
        for (Recordset row(Conn(), AddressesStatement(id)); !row.AtEnd(); row.MoveNext())
            addresses.push_back(row["fKhAdd"].AsText());
    return addresses;
}

// What is typed stays.
void OfferAddresses(frmDj02& s, std::vector<std::string> addresses) {
    const std::string shown = s.cboKhAdd.text;
    s.cboKhAdd.Clear();
    s.cboKhAdd.items = std::move(addresses);
    s.cboKhAdd.text = shown;
}

// The card's fields, nothing in them when there is no such card.
void FillCardFields(frmDj02& s, const Recordset& card) {
    ClearCardFields(s);
    if (card.AtEnd())
        return;
    s.cboKhAdd.text = s.cboKhAdd.tag = card["CompAdd"].AsText();
    s.txtName.text = card["name"].AsText();
    s.txtPostcode.text = card["postcode"].AsText();
    s.txtTelphone.text = card["telphone"].AsText();
    s.txtHandphone.text = card["handphone"].AsText();
    s.txtFax.text = card["fax"].AsText();
    s.txtE_mail.text = card["E_mail"].AsText();
    s.txtHttp.text = card["http"].AsText();
}

Recordset CardOf(std::int64_t id) {
    return Recordset(Conn(), CardStatement(id));
}

bool ConfirmAddress(const frmDj02& s, const char* verb, const std::string& address) {
    return AskOkCancel(s.title, s.cboKhList.CompanyName() + "：" + verb + "该" + s.lblKh.caption +
                                    s.lblKhAdd.caption + "\n\n" + address + " ？");
}

Recordset StoredAddress(std::int64_t id, const std::string& address) {
    return Recordset(Conn(),
                     "select distinct fKhID,fKhAdd from tJXC_KhAdd Where fKhID = " + std::to_string(id) +
                         " And fKhAdd=" + InQuotes(address),
                     Access::Write);
}

} // namespace

void ClearCardFields(frmDj02& s) {
    s.cboKhAdd.text.clear();
    for (TextBox* box :
         {&s.txtName, &s.txtPostcode, &s.txtTelphone, &s.txtHandphone, &s.txtFax, &s.txtE_mail, &s.txtHttp})
        box->text.clear();
}

void SeekCustomer(frmDj02& s) {
    if (Trim(s.txtKhSeek.text).empty() || !IsEditing(s.InHand()))
        return;
    if (s.cboKhList.Seek(s.txtKhSeek.text) == 0) {
        Warn(s.title, "未有符合条件的" + s.lblKh.caption + "资料！");
        ClearCardFields(s);
        OfferAddresses(s, {});
        return;
    }
    RefreshCustomer(s);
    s.MoveFocus(&s.cboKhList);
}

void RefreshCustomer(frmDj02& s) {
    s.txtKhSeek.tag.clear();
    const std::int64_t id = s.CustomerId();
    const ReadAhead ahead(Conn(), {{CardStatement(id)}, {AddressesStatement(id)}});
    const Recordset card = CardOf(id);
    FillCardFields(s, card);
    OfferAddresses(s, ReadAddresses(id));
    if (card.AtEnd())
        return;
    const std::int64_t kind = card["fType0"].AsLong();
    if (kind != Partner::Any && kind != s.type.fSetKhType) {
        Warn(s.title,
             "提示：客户类型不符。\n\n[" + card["compname"].AsText() + "] 是 " + KindText(kind) + "！");
        ClearCardFields(s);
    }
}

void ClearCustomer(frmDj02& s) {
    s.cboKhList.Clear();
    s.cboKhAdd.Clear();
    s.txtKhSeek.text.clear();
    s.txtKhSeek.tag.clear();
    ClearCardFields(s);
}

// All is read before anything is shown: a failure leaves the customer as it was.
void ShowCustomer(frmDj02& s, std::int64_t id) {
    if (id <= 0)
        return ClearCustomer(s);
    const std::string sql = "select fID,CompCode,compname from cards Where fID = " + std::to_string(id);
    const ReadAhead ahead(Conn(), {{sql}, {CardStatement(id)}, {AddressesStatement(id)}});
    const Recordset row(Conn(), sql), card = CardOf(id);
    std::vector<std::string> addresses = ReadAddresses(id);
    ClearCustomer(s);
    if (row.AtEnd()) {
        s.txtKhSeek.tag = std::to_string(id);
        s.txtKhSeek.text = "(" + std::to_string(id) + ") - Error";
        return;
    }
    s.cboKhList.Show(row["compname"].AsText(), id);
    FillCardFields(s, card);
    OfferAddresses(s, std::move(addresses));
}

void SaveAddress(frmDj02& s) {
    const std::int64_t id = s.CustomerId();
    const std::string address = Trim(s.cboKhAdd.text);
    if (id < 1 || address.empty() || ComboIndexByText(s.cboKhAdd, address) >= 0)
        return;
    if (!s.cboKhAdd.items.empty() && !ConfirmAddress(s, "保存", address))
        return;
    Transaction transaction(Conn());
    Recordset stored = StoredAddress(id, address);
    if (stored.AtEnd()) {
        stored.AddNew();
        stored.Set("fKhID", id);
        stored.Set("fKhAdd", address);
        WriteAudit({"新增", "tJXC_KhAdd", std::to_string(id), s.cboKhList.CompanyName(), "", JsonOf(stored)});
        stored.Update();
    }
    transaction.Commit();
    s.cboKhAdd.items.insert(s.cboKhAdd.items.begin(), address);
    s.cboKhAdd.SetIndex(0);
}

void DeleteAddress(frmDj02& s) {
    const std::int64_t id = s.CustomerId();
    const std::string address = Trim(s.cboKhAdd.text);
    const int at = ComboIndexByText(s.cboKhAdd, address);
    if (id < 1 || address.empty() || at < 0 || !ConfirmAddress(s, "删除", address))
        return;
    Transaction transaction(Conn());
    Recordset stored = StoredAddress(id, address);
    if (!stored.AtEnd()) {
        WriteAudit({"删除", "tJXC_KhAdd", std::to_string(id), s.cboKhList.CompanyName(), JsonOf(stored), ""});
        stored.Delete();
    }
    transaction.Commit();
    s.cboKhAdd.items.erase(s.cboKhAdd.items.begin() + at);
    s.cboKhAdd.SetIndex(s.cboKhAdd.items.empty() ? -1 : 0);
}

} // namespace jxc
