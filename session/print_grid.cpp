#include "session/print_grid.h"

#include "session/session.h"

namespace jxc {

void PrintGrid(const Grid& grid, const std::string& title, const std::string& typeName,
               const std::string& amount, const FieldList& fields) {
    if (grid.RowCount() == 0)
        return;
    FieldList header = session.CompanyFieldList;
    header.insert(header.end(), fields.begin(), fields.end());
    ComponentsInUse().printer->Print(GridPrintJob{std::move(header), &grid, typeName, title, amount});
}

} // namespace jxc
