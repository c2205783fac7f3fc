// The parts of a kit template as lines, and its product as the finished one.

#include "base/text.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "documents/document_entry.h"
#include "documents/figure_bounds.h"
#include "documents/load_lines.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

// The key of the template picked, its code in the field; nothing when none was.
std::optional<std::int64_t> PickKit(TextBox& code) {
    const SelectedProductStays stays;
    const ScreenToShow kits("frmCpTj");
    kits->SetProperty("TjID", 0);
    kits->SetProperty("CpTjSelect", 1);
    ShowModal(*kits);
    if (kits->GetProperty("CpTjSelect").AsLong() == 0)
        return std::nullopt;
    code.text = kits->GetProperty("TjCode").AsText();
    return kits->GetProperty("TjID").AsLong();
}

std::optional<std::int64_t> KitOfCode(frmDj02& s) {
    const Recordset found(Conn(),
                          "Select fTjID From tJXC_CpTj01 Where fTjCode=" + InQuotes(s.txtTjCode.text));
    if (!found.AtEnd())
        return found[size_t{0}].AsLong();
    Warn(s.title, "套件编号 " + s.txtTjCode.text + " 不存在 ！");
    s.txtTjCode.SelectAll();
    s.MoveFocus(&s.txtTjCode);
    return std::nullopt;
}

// How many kits; one where the field says nothing sensible. Nothing, with a message, when it is out of bounds.
std::optional<double> KitsToLoad(frmDj02& s) {
    double kits = Val(s.txtInvSL2.text);
    if (Reaches(kits, below::kQuantity)) {
        Warn(s.title, BoundText("套数", below::kQuantity));
        s.MoveFocus(&s.txtInvSL2);
        return std::nullopt;
    }
    if (kits <= 0)
        kits = 1;
    s.txtInvSL2.text = NumberText(kits);
    return kits;
}

std::string PartsStatement(const frmDj02& s, std::int64_t kit, double kits) {
    const std::string price = PriceField(s.type.fSetDjType2);
    return "Select a.fCpPjID as fCpID,a.fCpPjSL * " + NumberText(kits) +
           " as fInvSL, b.fCpCode,b.fCpName,b.fCpGG,b.fCpUnit,b.fCpFlag,0 as fKhID," +
           (price.empty() ? "0" : price) + " as fInvDJ," + NumberText(Val(s.txtTaxRate.text)) +
           " as fInvTaxRate,'' as fInvOther1,'' as fInvOther2, 0 as fInvSL2 from tJXC_CpTj02 a Left Join "
           "tJXC_Cp b On a.fCpPjID=b.fCpID  where a.fTjID = " +
           std::to_string(kit) + " Order By a.fRowID";
}

std::string ProductOfKitStatement(std::int64_t kit) {
    return "Select fCpID From tJXC_CpTj01 Where fTjID=" + std::to_string(kit);
}

// What the template says of its product, read before any line is touched.
struct KitProduct {
    std::int64_t id = 0; // 0: the template names none
    bool inUse = false;
    std::string code = {}, name = {}, unit = {};
};

KitProduct ReadKitProduct(std::int64_t kit) {
    KitProduct product;
    if (const Recordset named(Conn(), ProductOfKitStatement(kit)); !named.AtEnd())
        product.id = named[size_t{0}].AsLong();
    if (product.id == 0)
        return product;
    const Recordset row(Conn(), "select fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpBarCode from tJXC_Cp  Where "
                                "fCpFlag<>1 And fCpID=" +
                                    std::to_string(product.id));
    product.inUse = !row.AtEnd();
    if (product.inUse) {
        product.code = row["fCpCode"].AsText();
        product.name = NameAndSpec(row["fCpName"].AsText(), row["fCpGG"].AsText());
        product.unit = row["fCpUnit"].AsText();
    }
    return product;
}

void ShowKitProduct(frmDj02& s, const KitProduct& product, double kits) {
    if (product.id == 0)
        return Warn(s.title, "套件产品不存在！");
    if (!product.inUse) {
        s.finishedProduct.Clear();
        return Warn(s.title, "该套件产品资料已不存在！");
    }
    s.finishedProduct.Show(static_cast<std::int32_t>(product.id), product.code, product.name, product.unit);
    if (KitQuantity(s) != kits)
        CurrentView().Signal("调入的是 " + NumberText(kits) + " 套的配件，成品套数是 " + s.txtInvSL.text +
                             "：请核对。");
}

} // namespace

bool LoadFromKit(frmDj02& s) {
    s.txtTjCode.text = TrimAnyBlanks(s.txtTjCode.text);
    return LoadsWhole(s, [&] {
        const auto kit = s.txtTjCode.text.empty() ? PickKit(s.txtTjCode) : KitOfCode(s);
        const auto kits = kit ? KitsToLoad(s) : std::nullopt;
        if (!kits)
            return false;
        const KitProduct product = s.type.IsKit() ? ReadKitProduct(*kit) : KitProduct{};
        const Loaded loaded = LoadLines(s, PartsStatement(s, *kit, *kits), true);
        if (loaded == Loaded::Nothing)
            return false;
        if (s.type
                .IsKit()) { // what the lines stand for now: another number of pieces changes them from there
            s.txtInvSL.tag = NumberText(loaded == Loaded::Added ? Val(s.txtInvSL.tag) + *kits : *kits);
            ShowKitProduct(s, product, *kits);
        }
        return true;
    });
}

} // namespace jxc
