// The templates that a company begins with: a document of every type as a shop hands it to its customer, on any of the
// papers.
#pragma once

#include <string>
#include <vector>

#include "settings/type_row.h"

namespace jxc {

// A column of the lines as people see it at the screen.
struct PrintedColumn {
    std::string caption;
    double width = 0; // in characters
    bool figure = false;
    int longest = 0; // of figures, in characters: they are never broken
};

// The names under which the document's fields go that are captioned by its type.
struct TypeCaptions {
    std::string order, total, currency, address;
};

// The paper that a document of the type is handed over on: a receipt's roll for retail, A4 for orders and quotations, two
// to a fanfold page for what goes with goods.
std::string DefaultPaper(int type);

// The template's text for one of PaperSizes(). It names the columns given and those fields that such a document has.
std::string DefaultTemplate(const TypeRow& type, const std::string& paper, const TypeCaptions& captions,
                            const std::vector<PrintedColumn>& columns);

} // namespace jxc
