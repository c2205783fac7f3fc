#include "session/printing/print_grid.h"

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

std::vector<std::pair<std::string, std::string>> ShownHeader(const FieldList& header) {
    std::vector<std::pair<std::string, std::string>> shown;
    for (size_t i = 0; i + 1 < header.size(); i += 2) {
        if (header[i + 1].empty())
            continue;
        std::string key = header[i];
        if (key.size() > 2 && key.front() == '<' && key.back() == '>')
            key = key.substr(1, key.size() - 2);
        shown.emplace_back(std::move(key), header[i + 1]);
    }
    return shown;
}

} // namespace jxc
