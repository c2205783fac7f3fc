#include "host/editors/frmHostCompany.h"

#include "session/period.h"
#include "session/session.h"

namespace jxc {

namespace {

const char* const kHeader = "select * from myCompany";
const char* const kStart = "select * from SystemSets";

// The first row, or a new one.
Recordset RowToWrite(const char* statement) {
    Recordset row(Conn(), statement, Access::Write);
    if (row.AtEnd())
        row.AddNew();
    return row;
}

} // namespace

frmHostCompany::frmHostCompany() : RecordEditor("frmHostCompany", "公司资料") {
    Hold(txtFullName, "FullName", "公司全称", 80);
    Hold(txtCompName, "CompName", "公司简称", 40).required = true;
    Hold(txtProvince, "Province", "省份", 20);
    Hold(txtCityname, "cityname", "城市", 20);
    Hold(txtCompadd, "compadd", "地址", 80);
    Hold(txtPostcode, "postcode", "邮编", 10);
    Hold(txtTelphone, "Telphone", "电话", 30);
    Hold(txtFax, "fax", "传真", 30);
    Hold(txtHttp, "http", "网址", 80);
    Hold(txtE_Mail, "E_Mail", "电邮", 50);
    Hold(txtCompTax, "CompTax", "税号", 40);
    Hold(txtCompAcnt, "CompAcnt", "帐号", 60);
    dtpCompDate.caption = "启用日期";
}

void frmHostCompany::Load() {
    ShowFields(*this, Recordset(Conn(), kHeader));
    const Recordset start(Conn(), kStart);
    dtpCompDate.date = start.AtEnd() ? std::nullopt : ParseDate(start["CompDate"].AsText());
}

MayRefuse frmHostCompany::Refuse() {
    if (MayRefuse empty = RefuseEmptyField(*this))
        return empty;
    if (!dtpCompDate.date)
        return Refusal{"[启用日期]不能为空值！", &dtpCompDate};
    LoadPeriodSettings();
    if (session.PeriodEnd && *dtpCompDate.date > *session.PeriodEnd)
        return Refusal{"[启用日期]不能晚于本期（至 " + IsoText(*session.PeriodEnd) + "）！", &dtpCompDate};
    return std::nullopt;
}

void frmHostCompany::Store() {
    Recordset header = RowToWrite(kHeader);
    WriteFields(*this, header);
    header.Update();
    Recordset start = RowToWrite(kStart);
    start.Set("CompDate", IsoText(*dtpCompDate.date));
    start.Update();
}

void frmHostCompany::ShapeByMode() {
    dtpCompDate.enabled = mode == EditorMode::Change;
}

} // namespace jxc
