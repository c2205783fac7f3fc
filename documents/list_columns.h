// The columns of the document list's two grids: documents and lines. A company chooses which are shown, in which order
// and under which captions, by its column dictionary.
#pragma once

#include <string>

#include "documents/frmDj01.h"
#include "settings/parameters.h"

namespace jxc {

// What a list is called in print and in the dictionary.
std::string ListKey(bool lines);

// The columns of both grids, with the company's decimals, captions and order; they have no rows then.
void SetUpListGrids(frmDj01& s, const Parameters& parameters);
// What a list adds up while it is filled: amounts in home currency, of lines the quantities before them.
ListSums SumsOfList(bool lines);
// Lets the user choose the columns of the list in front.
void ChooseListColumns(frmDj01& s);

} // namespace jxc
