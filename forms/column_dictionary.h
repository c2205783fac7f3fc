// The host's dictionary of fields: captions in both languages, and which columns of a table a list shows, in
// what order, width and form. A customer renames fields and chooses columns there. All routines work on the
// session's connection; a dictionary without the caption column of the session's language is a DatabaseError.
#pragma once

#include <string>

#include <vector>

#include "forms/columns.h"
#include "session/components.h"

namespace jxc {

// How the dictionary codes a column's cells and alignment; any other cell type is text, any other alignment
// left.
constexpr int kDictionaryText = 0, kDictionaryNumber = 2, kDictionaryTick = 10;
constexpr int kDictionaryLeft = 0, kDictionaryRight = 1, kDictionaryCenter = 2;

// The caption of a field in the session's language, names in any case; kNoCaption when the dictionary has no
// such row: the label keeps the caption it has then.
std::string GetFieldCaption(const std::string& table, const std::string& field);
std::string CaptionStatement(const std::string& table, const std::string& field);
inline const std::string kNoCaption = "\t";

// The dictionary's field with the captions of the session's language.
std::string CaptionField();

// Gives the grid the table's selected columns, from the column `firstColumn` (1 or more) on, and behind them
// a hidden one for the row's key, which the caller fills. The grid is emptied and locked. The result is the
// columns' fields, "a,b,c"; "" when none is selected.
std::string SetupGridColumns(const std::string& table, Grid& grid, int firstColumn);
// Keeps the widths of the columns that SetupGridColumns made, for all users, and says so. `fields` is what it gave.
void SaveGridColumnWidths(const std::string& table, const Grid& grid, int firstColumn,
                          const std::string& fields);
// Adds the columns that the dictionary does not have yet behind those that it has. Opens a transaction.
void CompleteDictionary(const std::string& table, const std::vector<Column>& shipped);

// A screen's columns as the company wants them: first those that its dictionary has, in its order and under its
// captions, then the others; keys stay last.
std::vector<Column> CompanysColumns(const std::string& table, std::vector<Column> shipped);
// Lets the user choose among the columns, which are written to the dictionary as far as they are missing there. False
// when nothing was chosen. Opens a transaction of its own.
[[nodiscard]] bool ChooseColumns(const std::string& table, const std::vector<Column>& shipped);

// Opens the code list editor in use; see CodeListEditor for the arguments and the text that comes back.
std::string OpenBriefPicker(const std::string& table, const std::string& code, BriefKind kind);

// Lets the user rename a field and choose its code list: what session.RptSetResult holds afterwards.
void OpenFieldSettings(const std::string& table, const std::string& field);

// Lets the user rename the field that the label's tag names, and choose its code list. True when the label
// has taken a new caption.
bool SetControlCaption(Label& control, const std::string& table);

} // namespace jxc
