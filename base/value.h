// A cell's or a field's value: nothing, a whole number, a number or a text. Grids and recordsets share it, so
// rows go from the database to the screen without conversion. Dates are texts 'yyyy-mm-dd' (with ' hh:mm:ss'
// when the time is not midnight).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace jxc {

class Value {
  public:
    Value() = default;
    Value(std::int64_t number) : held_(number) {}
    Value(int number) : held_(std::int64_t{number}) {}
    Value(double number) : held_(number) {}
    Value(std::string text) : held_(std::move(text)) {}
    Value(std::string_view text) : held_(std::string(text)) {}
    Value(const char* text) : held_(std::string(text)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(held_); }
    bool IsText() const { return std::holds_alternative<std::string>(held_); }
    bool IsLong() const { return std::holds_alternative<std::int64_t>(held_); }
    bool IsDouble() const { return std::holds_alternative<double>(held_); }
    bool IsNumber() const { return IsLong() || IsDouble(); }

    // The number; a text counts by its leading digits, nothing counts 0.
    double AsDouble() const;
    // The number rounded to the nearest whole one, halves to even.
    std::int64_t AsLong() const;
    // The text itself, of a value that IsText.
    const std::string& Text() const { return std::get<std::string>(held_); }
    // The text a user sees: a number in its shortest form ("800", "0.5"), nothing as "".
    std::string AsText() const;

    bool operator==(const Value&) const = default;

  private:
    std::variant<std::monostate, std::int64_t, double, std::string> held_;
};

} // namespace jxc
