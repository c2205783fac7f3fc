// A warehouse's new name in everything that names it: documents and their lines, stock, products.
#pragma once

#include <string>

#include "forms/guard.h"

namespace jxc {

// The rename cascade, in a transaction of its own. False, with nothing changed and nothing said, when it fails or when
// stock that is not zero lies under the new name.
[[nodiscard]] bool SetCkChg(const std::string& oldName, const std::string& newName);

// The same inside the caller's transaction, undone alone when it fails.
[[nodiscard]] bool RenameWarehouseEverywhere(const std::string& oldName, const std::string& newName);

// Stock of a warehouse that is gone may have stayed under the new name, and would become this one's: refused unless it
// is zero. `oldName` is "" for a warehouse that is new.
[[nodiscard]] MayRefuse RefuseLeftoverStock(const std::string& oldName, const std::string& newName);

// Takes away the stock rows under a name that no warehouse has, once they are known to be zero. In the caller's
// transaction.
void DropLeftoverStock(const std::string& name);

} // namespace jxc
