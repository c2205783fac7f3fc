// How statements are written for SQLite.
//
// Dates are texts 'yyyy-mm-dd', with ' hh:mm:ss' only when it is not midnight, so their parts are parts of
// the text and comparing them as texts is comparing dates. Functions lose the collation of their argument:
// computed texts name it.
#pragma once

#include "database/translation.h"

namespace jxc {

class SqliteWriter : public StatementWriter {
  protected:
    std::string Placeholder(size_t number) const override {
        return std::string("?").append(std::to_string(number));
    }
    std::string RowAddress() const override { return "rowid"; }
    std::string ColumnType(bool text) const override { return text ? "text collate nocase" : "integer"; }
    std::string TextResult(const std::string& text) const override { return "(" + text + " collate nocase)"; }
    std::string SelectedText(const std::string& parameter) const override { return parameter; }
    std::string Like(const std::string& value, const std::string& pattern) const override {
        return value + " like " + pattern;
    }
    std::string Ordered(const std::string& value, bool descending) const override {
        return descending ? value + " desc" : value;
    }
    std::string Year(const std::string& date) const override {
        return "cast(substr(" + date + ", 1, 4) as integer)";
    }
    std::string Month(const std::string& date) const override {
        return "cast(substr(" + date + ", 6, 2) as integer)";
    }
    std::string DateText(const std::string& date, std::string_view mask) const override;
    std::string IsNumeric(const std::string& text) const override { return "jxc_isnumeric(" + text + ")"; }
    std::string Currency(const std::string& value) const override { return "jxc_ccur(" + value + ")"; }
    std::string Money(const std::string& value) const override { return "jxc_money(" + value + ")"; }
    std::string StoredMoney(const std::string& value) const override { return "jxc_money(" + value + ")"; }
    std::string Quotient(const std::string& dividend, const std::string& divisor) const override {
        return dividend + " / " + divisor;
    }
    Derivation ListForm() const override { return Derivation::JsonList; }
    std::string InParameter(const std::string& value, const std::string& parameter, ValueKind,
                            bool negated) const override {
        return value + (negated ? " not" : "") + " in (select value from json_each(" + parameter + "))";
    }
    bool HasHashDates() const override { return true; }
    void Simplify(SourcePtr& from, const NodePtr& where) const override;
};

} // namespace jxc
