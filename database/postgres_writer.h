// How statements are written for PostgreSQL.
//
// Texts are citext, which compares without case; functions and operators give plain text, so computed texts
// are cast back. Text parameters have no type of their own and take that of what they meet. Nulls come first,
// as they do on SQLite, and the backslash of a pattern is a character like any other.
#pragma once

#include "database/translation.h"

namespace jxc {

class PostgresWriter : public StatementWriter {
  protected:
    std::string Placeholder(size_t number) const override {
        return std::string("$").append(std::to_string(number));
    }
    std::string RowAddress() const override { return "ctid"; }
    std::string ColumnType(bool text) const override { return text ? "citext collate \"C\"" : "integer"; }
    std::string TextResult(const std::string& text) const override { return "cast(" + text + " as citext)"; }
    std::string SelectedText(const std::string& parameter) const override {
        return "cast(" + parameter + " as citext)";
    }
    std::string Like(const std::string& value, const std::string& pattern) const override {
        return value + " like " + pattern + " escape ''";
    }
    std::string Ordered(const std::string& value, bool descending) const override {
        return value + (descending ? " desc nulls last" : " nulls first");
    }
    std::string Year(const std::string& date) const override {
        return "cast(extract(year from " + date + ") as integer)";
    }
    std::string Month(const std::string& date) const override {
        return "cast(extract(month from " + date + ") as integer)";
    }
    std::string DateText(const std::string& date, std::string_view mask) const override {
        return "to_char(" + date + ", '" + std::string(mask) + "')";
    }
    std::string IsNumeric(const std::string& text) const override;
    std::string Currency(const std::string& value) const override;
    std::string Money(const std::string& value) const override {
        return "cast(" + value + " as numeric(19, 4))";
    }
    std::string StoredMoney(const std::string& value) const override { return value; }
    std::string Quotient(const std::string& dividend, const std::string& divisor) const override {
        return dividend + " / nullif(" + divisor + ", 0)";
    }
    Derivation ListForm() const override { return Derivation::ArrayList; }
    std::string InParameter(const std::string& value, const std::string& parameter, ValueKind kind,
                            bool negated) const override;
    bool HasHashDates() const override { return false; }
};

} // namespace jxc
