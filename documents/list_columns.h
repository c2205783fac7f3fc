// The columns of the document list's two grids: documents and lines. Their places are fixed; a company may
// hide some of them by its column dictionary.
#pragma once

#include <span>
#include <string>

#include "documents/frmDj01.h"
#include "settings/parameters.h"

namespace jxc {

// What a column makes of its field.
enum class Show { Text, Day, Status, Product, Quantity, Price, Amount, Hidden };

struct ListColumn {
    const char* caption;
    const char* field;
    double width;
    Show show = Show::Text;
};
std::span<const ListColumn> ColumnsOf(bool lines);

// What a list is called in print and in the dictionary.
std::string ListKey(bool lines);

// The columns of both grids, with the company's decimals, memo captions and hidden columns; they have no rows
// then.
void SetUpListGrids(frmDj01& s, const Parameters& parameters);
// Lets the user choose the columns of the list in front. Columns that the dictionary does not have yet are
// written to it.
void ChooseColumns(frmDj01& s);

} // namespace jxc
