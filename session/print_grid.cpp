#include "session/print_grid.h"

#include "session/components.h"
#include "session/session.h"

namespace jxc {

void PrintGrid(const Grid& grid, const std::string& title, const std::string& typeName,
               const std::string& amount) {
    if (grid.RowCount() == 0)
        return;
    ComponentsInUse().printer->Print(GridPrintJob{session.CompanyFieldList, &grid, typeName, title, amount});
}

} // namespace jxc
