#include "controls/cell_block.h"

#include <algorithm>

namespace jxc {

CellBlock ReadCells(std::string_view text) {
    CellBlock block;
    std::vector<std::string> row(1);
    bool quoted = false;
    const auto endRow = [&] {
        if (std::any_of(row.begin(), row.end(), [](const std::string& cell) { return !cell.empty(); }))
            block.push_back(row);
        row.assign(1, "");
    };
    for (size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        std::string& cell = row.back();
        const bool cellBegins = at == 0 || text[at - 1] == '\t' || text[at - 1] == '\n';
        if (quoted && c == '"' && text.substr(at + 1, 1) == "\"")
            cell += text[++at];
        else if (quoted && c == '"')
            quoted = false;
        else if (quoted)
            cell += c;
        else if (c == '"' && cellBegins && text.find('"', at + 1) != std::string_view::npos)
            quoted = true;
        else if (c == '\t')
            row.emplace_back();
        else if (c == '\n')
            endRow();
        else if (c != '\r')
            cell += c;
    }
    endRow();
    return block;
}

} // namespace jxc
