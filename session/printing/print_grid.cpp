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

std::string PlainKey(const std::string& key) {
    const bool bracketed = key.size() > 2 && key.front() == '<' && key.back() == '>';
    return bracketed ? key.substr(1, key.size() - 2) : key;
}

std::vector<std::pair<std::string, std::string>> ShownHeader(const FieldList& header) {
    std::vector<std::pair<std::string, std::string>> shown;
    for (size_t i = 0; i + 1 < header.size(); i += 2) {
        if (header[i + 1].empty())
            continue;
        shown.emplace_back(PlainKey(header[i]), header[i + 1]);
    }
    return shown;
}

} // namespace jxc
