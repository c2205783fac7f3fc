// A column's formula in the letters of a spreadsheet: a letter and # stand for that column of the current row
// ("J#*K#", "IF(D#<=1500,0,E#)"). Compiled once, evaluated for one row at a time.
#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace jxc {

// A formula that cannot be compiled; what() is text for people and names the place.
class FormulaError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class RowFormula {
  public:
    // Operators + - * / ^ and = <> < <= > >= (1 or 0), parentheses, IF(condition, then, else).
    explicit RowFormula(std::string_view text);
    ~RowFormula();
    RowFormula(RowFormula&&) noexcept;
    RowFormula& operator=(RowFormula&&) noexcept;

    // The columns it reads, from 1.
    const std::vector<int>& Reads() const;
    // The value for a row, whose cells `cell(column)` gives; 0 where arithmetic has no finite answer (a
    // division by 0).
    double Evaluate(const std::function<double(int column)>& cell) const;

  private:
    struct Compiled;
    std::unique_ptr<Compiled> compiled_;
};

} // namespace jxc
