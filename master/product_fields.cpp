// The fields of one product: what they are called, what they offer, how they show it.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "forms/column_dictionary.h"
#include "forms/edit_filter.h"
#include "master/frmCp.h"
#include "session/audit/audit.h"
#include "session/company/picture_file.h"
#include "session/dialect.h"
#include "session/lookups/find_by_text.h"
#include "session/lookups/lists.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kUnitBytes = 8;
constexpr int kListBytes = 50; // of a location, category or place of origin that is typed

std::vector<FieldLabel*> Labels(frmCp& s) {
    std::vector<FieldLabel*> labels{
        &s.lblCpCode, &s.lblCpName, &s.lblCpGG, &s.lblCpUnit, &s.lblCpBarCode, &s.lblCpSlMin,  &s.lblCpSlMax,
        &s.lblCkName, &s.lblCpCw,   &s.lblCpZy, &s.lblCpCd,   &s.lblKhName,    &s.lblCpPicture};
    for (FieldLabel& label : s.lblCpPrice)
        labels.push_back(&label);
    return labels;
}

void TakeCaption(Control& control, const std::string& field) {
    if (const std::string caption = GetFieldCaption("tJXC_Cp", field);
        caption != kNoCaption && !Trim(caption).empty())
        control.caption = caption;
}

void NameQuery(frmCp& s) {
    s.chkCpCode2.caption = s.lblCpCode.caption;
    s.chkCpName2.caption = s.lblCpName.caption + "/" + s.lblCpGG.caption;
    s.chkCpBarCode2.caption = s.lblCpBarCode.caption;
    s.chkCpCk2.caption = s.lblCkName.caption;
    s.chkCpCw2.caption = s.lblCpCw.caption;
    s.chkCpZy2.caption = s.lblCpZy.caption;
    s.chkCpCd2.caption = s.lblCpCd.caption;
    s.chkCpGys2.caption = s.lblKhName.caption;
    for (size_t price = 0; price < std::size(s.chkPrice2); ++price)
        s.chkPrice2[price].caption = s.lblCpPrice[price].caption;
}

std::string InForm(const std::string& text, int decimals) {
    return FormatFixed(IsNumericText(text) ? Val(text) : 0, decimals);
}

void ShowFigure(TextBox& box, const Value& stored, int decimals) {
    box.text = FormatFixed(stored.AsDouble(), decimals);
}

// A stored warehouse that is no longer offered stays what it is.
void ShowWarehouse(frmCp& s, const std::string& name) {
    if (!name.empty() && ComboIndexByText(s.cboCkName, name) < 0)
        s.cboCkName.items.push_back(name);
    s.cboCkName.SetText(name);
}

void ShowSupplier(frmCp& s, const std::string& name, std::int64_t id) {
    s.txtKhSeek.text.clear();
    s.cboKh.Clear();
    if (!name.empty())
        s.cboKh.Show(name, id);
}

void ShowTexts(frmCp& s, const Recordset& row) {
    s.txtCpCode.text = row["fCpCode"].AsText();
    s.txtCpName.text = row["fCpName"].AsText();
    s.txtCpGG.text = row["fCpGG"].AsText();
    s.cboCpUnit.SetText(row["fCpUnit"].AsText());
    s.txtCpBarCode.text = row["fCpBarCode"].AsText();
    ShowWarehouse(s, row["fCkName"].AsText());
    s.cboCpCw.SetText(row["fCpCw"].AsText());
    s.cboCpZy.SetText(row["fCpZy"].AsText());
    s.cboCpCd.SetText(row["fCpCd"].AsText());
    s.txtCpPicture.text = row["fCpPicture"].AsText();
}

// The limit just typed is the one that is meant: the other follows it.
void KeepLimitsInOrder(const frmCp& s, const TextBox& typed, TextBox& other) {
    if (Val(s.txtCpSlMax.text) < Val(s.txtCpSlMin.text))
        other.text = typed.text;
}

void LeaveUnit(frmCp& s) {
    std::string unit = s.cboCpUnit.text;
    if (AnsiByteLength(unit) > kUnitBytes)
        unit = TruncateToBytes(unit, kUnitBytes);
    const bool known = std::ranges::any_of(s.cboCpUnit.items,
                                           [&](const std::string& item) { return EqualsNoCase(item, unit); });
    if (!unit.empty() && !known)
        s.cboCpUnit.items.push_back(unit);
    s.cboCpUnit.SetText(unit);
}

void SeekSupplier(frmCp& s) {
    if (s.cboKh.Seek(s.txtKhSeek.text) == 0)
        return Warn(s.title, "未有符合条件的客户资料！");
    s.MoveFocus(&s.cboKh);
}

// The entries of the field's code list are maintained where they are used, and it can be given another name, which the list
// takes over.
void WireCodeList(frmCp& s, FieldLabel& label, CodeListField& field) {
    label.onDoubleClick = [&field] {
        OpenBriefPicker("", field.codeList, BriefKind::EditEntries);
        field.Offer();
    };
    label.onRightClick = [&s, &label, &field] {
        if (!s.IsTyping() || !SetControlCaption(label, "tJXC_Cp"))
            return;
        Transaction transaction(Conn());
        WriteAudit({"改名", "Brief", field.codeList, label.caption, "", ""});
        Conn().Execute("Update brief Set BriefTypeName=" + InQuotes(label.caption) + " Where " +
                       LowerCaseOf("BriefType") + " = " + InQuotes(LowerCase(field.codeList)));
        transaction.Commit();
        NameQuery(s);
    };
    field.onKeyPress = [&field](int& keyCode) { EditKeyFilter(field, keyCode, kListBytes, false); };
}

} // namespace

void TakeCaptions(frmCp& s) {
    std::vector<Connection::Expected> captions;
    for (const FieldLabel* label : Labels(s))
        captions.push_back({CaptionStatement("tJXC_Cp", label->tag)});
    captions.push_back({CaptionStatement("tJXC_Cp", "fCpFlag")});
    const ReadAhead ahead(Conn(), captions);
    for (FieldLabel* label : Labels(s))
        TakeCaption(*label, label->tag);
    TakeCaption(s.chkCpFlag, "fCpFlag");
    NameQuery(s);
}

void OfferProductLists(frmCp& s) {
    FillDistinctCombo("tJXC_Cp", s.cboCpUnit, "'',fCpUnit", "fCpFlag=0", " Order By fCpUnit", false);
    FillDistinctCombo("tJXC_Ck", s.cboCkName, "fCkCode,fCkName", "fCkFlag=0", " Order By fCkCode", false);
    s.cboCkName.items.insert(s.cboCkName.items.begin(), ""); // a limit can be taken away again
    for (CodeListField* field : {&s.cboCpCw, &s.cboCpZy, &s.cboCpCd})
        field->Offer();
}

void ShowProduct(frmCp& s, std::int32_t id) {
    const Recordset row(Conn(), "select * from tJXC_Cp  where fCpID = " + std::to_string(id));
    if (row.AtEnd()) {
        session.SelectedProductID = 0; // what is gone is neither picked nor changed
        return ClearProduct(s);
    }
    session.SelectedProductID = static_cast<std::int32_t>(row["fCpID"].AsLong());
    ShowTexts(s, row);
    for (size_t price = 0; price < std::size(s.txtCpPrice); ++price)
        ShowFigure(s.txtCpPrice[price], row["fCpPrice" + std::to_string(price)], session.DeciDj);
    ShowFigure(s.txtCpSlMin, row["fCpSlMin"], session.DeciSl);
    ShowFigure(s.txtCpSlMax, row["fCpSlMax"], session.DeciSl);
    ShowSupplier(s, row["fKhName"].AsText(), row["fKhID"].AsLong());
    s.chkCpFlag.value = row["fCpFlag"].AsLong() == 1;
    s.oldCode = s.txtCpCode.text;
    s.oldName = s.txtCpName.text;
    s.asShown = ProductValues(s);
    ShowPicture(s);
}

std::vector<std::pair<std::string, Value>> ProductValues(const frmCp& s) {
    std::vector<std::pair<std::string, Value>> values{{"fCpCode", s.txtCpCode.text},
                                                      {"fCpName", s.txtCpName.text},
                                                      {"fCpGG", s.txtCpGG.text},
                                                      {"fCpUnit", s.cboCpUnit.text},
                                                      {"fCpBarCode", s.txtCpBarCode.text}};
    for (size_t price = 0; price < std::size(s.txtCpPrice); ++price)
        values.emplace_back("fCpPrice" + std::to_string(price), Val(s.txtCpPrice[price].text));
    values.insert(values.end(), {{"fCpSlMin", Val(s.txtCpSlMin.text)},
                                 {"fCpSlMax", Val(s.txtCpSlMax.text)},
                                 {"fCkName", s.cboCkName.text},
                                 {"fCpCw", s.cboCpCw.text},
                                 {"fCpZy", s.cboCpZy.text},
                                 {"fCpCd", s.cboCpCd.text},
                                 {"fKhName", s.cboKh.CompanyName()},
                                 {"fKhID", s.cboKh.Id()},
                                 {"fCpPicture", s.txtCpPicture.text},
                                 {"fCpFlag", s.chkCpFlag.value ? 1 : 0}});
    return values;
}

void ClearProduct(frmCp& s) {
    for (TextBox* box : {static_cast<TextBox*>(&s.txtCpCode), static_cast<TextBox*>(&s.txtCpName),
                         static_cast<TextBox*>(&s.txtCpGG), static_cast<TextBox*>(&s.txtCpBarCode),
                         static_cast<TextBox*>(&s.txtCpPicture)})
        box->text.clear();
    for (ListBox* list :
         {static_cast<ListBox*>(&s.cboCpUnit), &s.cboCkName, static_cast<ListBox*>(&s.cboCpCw),
          static_cast<ListBox*>(&s.cboCpZy), static_cast<ListBox*>(&s.cboCpCd)})
        list->SetText("");
    for (TextBox& box : s.txtCpPrice)
        box.text = "0.00";
    s.txtCpSlMin.text = s.txtCpSlMax.text = "0";
    s.chkCpFlag.value = false;
    ShowSupplier(s, "", 0);
    ShowPicture(s);
}

// A picture that cannot be shown is told beside the field: the text is kept whatever becomes of the file.
void ShowPicture(frmCp& s) {
    const PictureFile picture = FindPicture(s.txtCpPicture.text);
    s.imgPicture.file = picture.file;
    s.lblNoPicture.caption = picture.why;
}

void WireProductFields(frmCp& s) {
    const auto inForm = [](TextBox& box, const std::function<int()>& decimals) {
        box.onLeave = [&box, decimals] {
            box.text = InForm(box.text, decimals());
            return true;
        };
    };
    for (TextBox& box : s.txtCpPrice)
        inForm(box, [] { return session.DeciDj; });
    const auto limit = [&s](TextBox& box, TextBox& other) {
        box.onLeave = [&s, &box, &other] {
            box.text = InForm(box.text, session.DeciSl);
            KeepLimitsInOrder(s, box, other);
            return true;
        };
    };
    limit(s.txtCpSlMin, s.txtCpSlMax);
    limit(s.txtCpSlMax, s.txtCpSlMin);
    s.cboCpUnit.onLeave = [&s] {
        if (!CheckNoQuote(s.cboCpUnit.text))
            return false;
        LeaveUnit(s);
        return true;
    };
    s.txtKhSeek.onKey = [&s](const std::string& key) {
        if (key == "Enter")
            SeekSupplier(s);
    };
    s.txtCpPicture.onLeave = [&s] {
        if (!CheckNoQuote(s.txtCpPicture.text))
            return false;
        ShowPicture(s);
        return true;
    };
    WireCodeList(s, s.lblCpCw, s.cboCpCw);
    WireCodeList(s, s.lblCpZy, s.cboCpZy);
    WireCodeList(s, s.lblCpCd, s.cboCpCd);
}

} // namespace jxc
