#include "session/lookups/find_by_text.h"

#include <optional>

#include "base/text.h"
#include "controls/screen.h"
#include "controls/view.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/lookups/database_routines.h"
#include "session/lookups/product_index.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kNameWidth = 80;  // of a customer list's row
constexpr int kMostCards = 101; // listed by one search

constexpr size_t kMostPicked = 500;     // listed of what is suggested
constexpr const char* kEveryCode = "*"; // the pattern
const std::string kProducts =
    "select fCpID,fCpCode,fCpName,fCpGG,fCpUnit,fCpBarCode,fCpPrice0,fCpPrice1,fCpPrice2,fCpPrice3 "
    " from tJXC_Cp "
    " Where fCpFlag<>1";

// What the picker shows at first.
struct Listed {
    std::string code = {}, name = {}, barCode = {}; // patterns; the first one given counts
    std::string keys = {};                          // "1,2,3": these products, where no pattern is given
};

// Lets the user pick among several hits; the statement of the product picked, nothing when none was.
std::optional<std::string> PickProduct(const Listed& listed) {
    session.SelectedProductID = 0;
    const ScreenToShow picker("frmCp"); // it may itself be below
    picker->SetProperty("CpCode", listed.code);
    picker->SetProperty("CpName", listed.name);
    picker->SetProperty("CpBarCode", listed.barCode);
    if (picker->HasProperty("CpIDs")) // a host's own picker may not know it
        picker->SetProperty("CpIDs", listed.keys);
    picker->SetProperty("CpNoEdit", 1);
    ShowModal(*picker);
    if (session.SelectedProductID == 0)
        return std::nullopt;
    return kProducts + " And fCpID = " + std::to_string(session.SelectedProductID) + " Order By fCpCode";
}

// The statements of a search by code: the exact code, how many have it in their codes, and the stock of the exact one.
struct ByCode {
    std::string exact, count, stock, barCode;
};

ByCode StatementsByCode(const std::string& code, const std::string& warehouse) {
    const std::string ofCode = " Inner Join tJXC_Cp c On c.fCpID=a.fCpID";
    const std::string isCode = "c.fCpFlag<>1 And c.fCpCode = " + InQuotes(code);
    return {
        kProducts + " And fCpCode = " + InQuotes(code) + " Order By fCpCode,fCpID Desc",
        "Select COUNT(*) "
        " From tJXC_Cp Where fCpFlag<>1 And fCpCode like " +
            InQuotes(LikePattern(code)),
        warehouse.empty()
            ? "select sum(a.fKcSl) as fKcSl from (tJXC_CkTj a Left Join tJXC_Ck b On a.fCkName=b.fCkName)" +
                  ofCode + " Where " + isCode + " And (b.fCkType2=0 Or b.fCkType2=1)"
            : "select a.fKcSl from tJXC_CkTj a" + ofCode + " Where " + isCode +
                  " And a.fCkName=" + InQuotes(warehouse),
        kProducts + " And fCpBarCode = " + InQuotes(code) + " Order By fCpCode,fCpID Desc"};
}

std::optional<std::string> StatementByBarCode(const std::string& code, const std::string& statement) {
    const size_t hits = Recordset(Conn(), statement).RecordCount();
    if (hits == 0)
        return std::nullopt;
    return hits == 1 ? std::optional(statement) : PickProduct({.barCode = code});
}

std::optional<std::string> StatementByCode(const std::string& code, const ByCode& statements,
                                           bool& byBarCode) {
    if (!Recordset(Conn(), statements.exact).AtEnd())
        return statements.exact;
    const ReadAhead ahead(Conn(), {{statements.count}, {statements.barCode}});
    const auto hits = Recordset(Conn(), statements.count)[size_t{0}].AsLong();
    byBarCode = hits == 0;
    if (byBarCode)
        return StatementByBarCode(code, statements.barCode);
    if (hits == 1)
        return kProducts + " And fCpCode like " + InQuotes(LikePattern(code));
    return PickProduct({.code = code});
}

std::string NameTests(const std::string& name) {
    std::string tests;
    for (const std::string& part : NameParts(name))
        tests += " And " + NameOrSpecTest(part);
    return tests;
}

// What is suggested for a text that no code, or no name, is like: "1,2,3", "" when the picker's own search finds some.
std::string KeysSuggested(const std::string& typed, bool byName) {
    const std::string tests = byName ? NameTests(typed) : " And fCpCode like " + InQuotes(LikePattern(typed));
    if (HasRows("tJXC_Cp", "fCpFlag<>1" + tests))
        return "";
    std::string keys;
    const ProductSuggestions found = SuggestProducts(typed, "", "", kMostPicked);
    if (found.more)
        CurrentView().Signal("找到的产品太多，只列出其中 " + std::to_string(kMostPicked) +
                             " 种，请输入得更详细些。");
    for (const SuggestedProduct& product : found.rows)
        keys += (keys.empty() ? "" : ",") + std::to_string(product.id);
    return keys;
}

std::optional<std::string> StatementByName(const std::string& name) {
    const std::string statement = kProducts + NameTests(name) + " Order By fCpCode";
    const size_t hits = Recordset(Conn(), statement).RecordCount();
    if (hits == 0)
        return std::nullopt;
    return hits == 1 ? std::optional(statement) : PickProduct({.name = name});
}

} // namespace

std::string NameOrSpecTest(const std::string& typed) {
    const std::string pattern = InQuotes(LikePattern(typed));
    return "(fCpName like " + pattern + " Or fCpGG like " + pattern + ")";
}

std::vector<std::string> NameParts(const std::string& typed) {
    std::string plain = typed;
    const std::string wide = "，";
    for (size_t at = plain.find(wide); at != std::string::npos; at = plain.find(wide))
        plain.replace(at, wide.size(), ",");
    std::vector<std::string> parts = Split(plain, ',');
    parts.resize(std::min<size_t>(parts.size(), 2));
    return parts;
}

SelectedProductStays::SelectedProductStays() : selected_(session.SelectedProductID) {}

SelectedProductStays::~SelectedProductStays() {
    session.SelectedProductID = selected_;
}

std::string PickProductCode(const std::string& typed, bool byName) {
    const SelectedProductStays elsewhere;
    const bool asked = !typed.empty() && typed.find('\'') == std::string::npos; // no product's text has one
    Listed listed;
    if (!asked)
        listed.code = kEveryCode;
    else if (listed.keys = KeysSuggested(typed, byName); listed.keys.empty())
        (byName ? listed.name : listed.code) = typed;
    const auto statement = PickProduct(listed);
    if (!statement)
        return "";
    const Recordset row(Conn(), *statement);
    return row.AtEnd() ? "" : row["fCpCode"].AsText();
}

std::vector<Connection::Expected> ProductStatements(const std::string& code, const std::string& warehouse) {
    const ByCode statements = StatementsByCode(code, warehouse);
    return {{statements.exact}, {statements.stock}};
}

std::int32_t FindProduct(ProductSought& sought) {
    if (sought.code.empty() && sought.name.empty())
        return 0;
    const bool byCode = !sought.code.empty();
    const ByCode statements = byCode ? StatementsByCode(sought.code, sought.warehouse) : ByCode{};
    // A line's code costs one waiting for a server.
    const ReadAhead ahead(Conn(), byCode ? ProductStatements(sought.code, sought.warehouse)
                                         : std::vector<Connection::Expected>{});
    bool byBarCode = false;
    const auto statement =
        byCode ? StatementByCode(sought.code, statements, byBarCode) : StatementByName(sought.name);
    if (!statement)
        return 0;
    const Recordset row(Conn(), *statement);
    if (row.AtEnd())
        return 0;
    const auto id = static_cast<std::int32_t>(row["fCpID"].AsLong());
    const std::string typedCode = sought.code;
    sought.code = row["fCpCode"].AsText();
    sought.name = row["fCpName"].AsText();
    sought.spec = row["fCpGG"].AsText();
    sought.unit = row["fCpUnit"].AsText();
    sought.barCode = row["fCpBarCode"].AsText();
    sought.byBarCode = byBarCode && EqualsNoCase(sought.barCode, typedCode);
    for (int i = 0; i < 4; ++i)
        sought.price[i] = row["fCpPrice" + std::to_string(i)].AsDouble();
    if (sought.stock < 0)
        return id;
    if (*statement != statements.exact || row.RecordCount() > 1) {
        sought.stock = GetStockQty(sought.warehouse, id);
    } else {
        const Recordset stock(Conn(), statements.stock);
        sought.stock = stock.AtEnd() ? 0 : stock["fKcSl"].AsDouble();
    }
    return id;
}

double GetStockQty(const std::string& warehouse, std::int32_t fCpID) {
    if (fCpID == 0)
        return 0;
    const std::string id = std::to_string(fCpID);
    const std::string statement = warehouse.empty() ? "select sum(a.fKcSl) as fKcSl from tJXC_CkTj a"
                                                      " Left Join tJXC_Ck b On a.fCkName=b.fCkName"
                                                      " Where a.fCpID=" +
                                                          id + " And (b.fCkType2=0 Or b.fCkType2=1)"
                                                    : "select fKcSl from tJXC_CkTj Where fCpID=" + id +
                                                          " And fCkName=" + InQuotes(warehouse);
    const Recordset row(Conn(), statement);
    return row.AtEnd() ? 0 : row["fKcSl"].AsDouble();
}

std::string StockQtysStatement(const std::string& warehouse, std::span<const std::int64_t> products) {
    return warehouse.empty() ? "select a.fCpID,sum(a.fKcSl) as fKcSl from tJXC_CkTj a"
                               " Left Join tJXC_Ck b On a.fCkName=b.fCkName"
                               " Where a.fCpID" +
                                   InKeys(products) + " And (b.fCkType2=0 Or b.fCkType2=1) Group By a.fCpID"
                             : "select fCpID,fKcSl from tJXC_CkTj Where fCpID" + InKeys(products) +
                                   " And fCkName=" + InQuotes(warehouse);
}

std::map<std::int64_t, double> GetStockQtys(const std::string& warehouse,
                                            std::span<const std::int64_t> products) {
    std::map<std::int64_t, double> stock;
    for (Recordset row(Conn(), StockQtysStatement(warehouse, products)); !row.AtEnd(); row.MoveNext())
        stock[row[size_t{0}].AsLong()] = row["fKcSl"].AsDouble();
    return stock;
}

std::string NameAndSpec(const std::string& name, const std::string& spec) {
    return spec.empty() ? name : spec + "/" + name;
}

int FindCustomerCard(ListBox& list, const std::string& text) {
    const std::string key = UpperCase(text);
    if (key.empty())
        return 0;
    std::string where = "CompCode = " + InQuotes(key);
    if (DbCount("cards", where) < 1) {
        const std::string pattern = InQuotes(LikePattern(text));
        where = "(CompCode like " + pattern + " or CompName like " + pattern + ") And CompName <> ''";
    }
    Recordset row(Conn(), "select fID,CompCode,compname,name,telphone,homephone,handphone,fax,"
                          "E_mail,HomeEmail,http,HomeHttp "
                          "from cards "
                          " Where " +
                              where + " Order by compname,name,fID Desc");
    list.Clear();
    for (; !row.AtEnd() && list.items.size() < kMostCards; row.MoveNext())
        list.items.push_back(CustomerRow(row["compname"].AsText(), row["fID"].AsLong()));
    list.SetIndex(list.items.empty() ? -1 : 0);
    return static_cast<int>(list.items.size());
}

std::string CustomerRow(const std::string& companyName, std::int64_t id) {
    return PadRight(companyName.empty() ? "（空）" : companyName, kNameWidth) + std::to_string(id);
}

std::string CustomerNameOf(const std::string& row) {
    return Trim(MidText(row, 1, kNameWidth));
}

std::int64_t CustomerIdOf(const std::string& row) {
    return static_cast<std::int64_t>(Val(MidText(row, kNameWidth + 1)));
}

std::string WarehouseFilter(int kind, const std::string& base) {
    static const char* const filters[] = {"",
                                          " And fCkType0=1",
                                          " And fCkType1=1",
                                          " And fCkType2=1",
                                          " And fCkType3=1",
                                          " And not fCkType2=1"};
    const bool known = kind >= 0 && kind < static_cast<int>(std::size(filters));
    return base + (known ? std::string(" where fCkFlag<>1") + filters[kind] : "");
}

} // namespace jxc
