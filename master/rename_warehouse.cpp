#include "master/rename_warehouse.h"

#include "base/log.h"
#include "base/text.h"
#include "database/recordset.h"
#include "session/dialect.h"
#include "session/session.h"

namespace jxc {

namespace {

constexpr int kDecimalsSeen = 9; // what is less is the residue of sums, not stock

// Quantities and amounts. A price without a quantity is no stock.
constexpr const char* kStockFigures[] = {"fQcSl", "fQcJe", "fRkSl", "fRkJe", "fCkSl", "fCkJe",
                                         "fCkCb", "fDkSl", "fPdSl", "fKcSl", "fKcJe"};

bool IsZero(const Recordset& stock) {
    return std::ranges::all_of(kStockFigures, [&](const char* figure) {
        return RoundDecimal(stock[figure].AsDouble(), kDecimalsSeen) == 0;
    });
}

std::string StockOf(const std::string& name) {
    return "tJXC_CkTj Where fCkName=" + InQuotes(name);
}

int ProductsLeftUnder(const std::string& name) {
    int left = 0;
    for (Recordset stock(Conn(), "Select * From " + StockOf(name)); !stock.AtEnd(); stock.MoveNext())
        if (!IsZero(stock))
            ++left;
    return left;
}

void RenameIn(const std::string& table, const std::string& field, const std::string& oldName,
              const std::string& newName) {
    Conn().Execute("UPDATE " + table + " SET " + field + "=" + InQuotes(newName) + " WHERE " + field + "=" +
                   InQuotes(oldName));
}

void RenameEverywhere(const std::string& oldName, const std::string& newName) {
    if (!EqualsNoCase(oldName, newName)) // names are compared without case: these would be its own rows
        DropLeftoverStock(newName);
    RenameIn("tJXC_CkDj02", "fCkName", oldName, newName);
    RenameIn("tJXC_CkDj01", "fCkName", oldName, newName);
    RenameIn("tJXC_CkDj01", "fCkName2", oldName, newName);
    RenameIn("tJXC_CkTj", "fCkName", oldName, newName);
    RenameIn("tJXC_Cp", "fCkName", oldName, newName);
    Conn().Flush();
}

} // namespace

MayRefuse RefuseLeftoverStock(const std::string& oldName, const std::string& newName) {
    if (EqualsNoCase(oldName, newName))
        return std::nullopt;
    const int left = ProductsLeftUnder(newName);
    if (left == 0)
        return std::nullopt;
    return Refusal{"[" + newName + "] 名下还有 " + std::to_string(left) +
                   " 种产品的库存统计，不可改用该名称！"};
}

void DropLeftoverStock(const std::string& name) {
    Conn().Execute("Delete From " + StockOf(name));
}

bool RenameWarehouseEverywhere(const std::string& oldName, const std::string& newName) {
    try {
        Conn().Tolerantly([&] { RenameEverywhere(oldName, newName); });
        return true;
    } catch (const DatabaseError& error) {
        Log("SetCkChg", error.what());
        return false;
    }
}

bool SetCkChg(const std::string& oldName, const std::string& newName) {
    try {
        Transaction transaction(Conn());
        if (RefuseLeftoverStock(oldName, newName))
            return false;
        RenameEverywhere(oldName, newName);
        transaction.Commit();
        return true;
    } catch (const DatabaseError& error) {
        Log("SetCkChg", error.what());
        return false;
    }
}

} // namespace jxc
