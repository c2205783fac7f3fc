// What the check of a company has found so far, and the way in which its parts ask: a statement that cannot be
// answered is a finding itself and stops no other.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "database/connection.h"

namespace jxc {

class Findings {
  public:
    // One line each: where, what is wrong, what to do. A note is a state that the screens themselves may leave.
    void Add(const std::string& line) { lines_.push_back(line); }
    void Note(const std::string& line) { notes_.push_back("提示：" + line); }

    // Looks something up; a DatabaseError of it becomes a finding.
    void Try(const std::function<void()>& look);
    // The rows of a statement; none, and a finding, when it fails.
    Rows Ask(const std::string& sql);

    const std::vector<std::string>& Lines() const { return lines_; }
    const std::vector<std::string>& Notes() const { return notes_; }

  private:
    std::vector<std::string> lines_;
    std::vector<std::string> notes_;
};

// A statement whose rows are violations. In `told`, {1} {2} ... stand for the row's columns.
struct Rule {
    std::string sql;
    std::string told;
};
void Run(const Rule& rule, Findings& findings);

// `text` with what belongs at its places, "{1}" or "{H}". What is filled in is not searched again: a document may
// have the number "{1}".
using Places = std::map<std::string, std::string>;
std::string Filled(const std::string& text, const Places& places);

// The five books: tables S01 and S02; the closed one repeats its keys month by month.
struct Book {
    std::string stem;
    bool closed = false;
    std::string Headers() const { return stem + "01"; }
    std::string Lines() const { return stem + "02"; }
    // "x.fInvID=y.fInvID", in the closed book of the same month too.
    std::string On(const std::string& x, const std::string& y) const;
    // ",fMonth" behind the key where it is needed.
    std::string Month() const { return closed ? ",fMonth" : ""; }
    // Whether its documents move stock: the open book and the closed one.
    bool IsOfStock() const { return stem.starts_with("tJXC_CkDj"); }
};
std::span<const Book> AllBooks();
const Book& StockBook();
const Book& ClosedBook();

// No figure of a shop is as large, in either direction.
constexpr double kAbsurdFigure = 1e15;

// Pieces of statements, alike on both engines: 1 where two fields differ, nothing being equal to nothing; for
// texts "" as well; a field with nothing as 0; a field that holds an absurd figure, and one that does.
std::string Differ(const std::string& x, const std::string& y);
std::string TextsDiffer(const std::string& x, const std::string& y);
std::string OrZero(const std::string& x);
std::string IsAbsurd(const std::string& x);
std::string IsPlausible(const std::string& x);
std::string SameDay(const std::string& x, const std::string& y);
// "1,2,-3"; a number that no type has for none.
std::string InList(const std::vector<int>& numbers);

// Fields that repeat others: the name that people know one by, and the piece of a statement that is above 0 where it
// does not.
struct Difference {
    const char* name;
    std::string differs;
};
// ",(a),(b)" as columns behind others, each within `function` where the rows are grouped.
std::string EachOf(std::span<const Difference> differences, const std::string& function = "");
// The condition that any differs.
std::string AnyOf(std::span<const Difference> differences);
// "单号、日期": the names of those that differ in a row whose columns from `firstColumn` on are EachOf's.
std::string WrongNames(std::span<const Difference> differences, const Rows& rows, size_t row,
                       size_t firstColumn);

// Whether two figures are the same but for rounding; no number is like no other.
bool Alike(double a, double b, double turnover = 0);

} // namespace jxc
