// What stands between a statement's text and an engine. A text is lifted (lexer.h), parsed (parser.h) and
// written down again for its engine by a StatementWriter. The base writes everything that the engines have in
// common; each engine's writer (sqlite_writer.cpp, postgres_writer.cpp) holds only what differs there, one
// function per difference.
//
// Three rewrites make the texts fast on indexes without changing their meaning (ranges.cpp):
//
//     left(f,n)='stem'                            keeps its test and adds the range of texts that begin with the stem
//     Year(f)=y And Month(f)=m                    becomes the range of the month
//     Convert(varchar(10),f,120) <= 'd', f<=#d#   become ranges of whole dates
//
// An update from a second table always takes its values grouped by the changed row, so that
// several matches give one value, the largest.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "database/statement_parameters.h"
#include "database/statement_tree.h"

namespace jxc {

struct Translation {
    std::string sql;
    std::vector<Parameter> parameters;
    bool givesRows = false;
    bool changesSchema = false;
    std::string table; // of an updatable select
};

// What a text is meant for.
enum class Purpose { Run, EditRows };

enum class ValueKind { Unknown, Integer, Number, Money, Text, Date };

class StatementWriter {
  public:
    virtual ~StatementWriter() = default;

    // For EditRows the statement must be a select from one table; the engine's row address comes as the first
    // column. Throws DatabaseError for what the language or the engine does not have.
    Translation Write(StatementTree& tree, Purpose purpose);

  protected:
    // The differences between the engines. Arguments are expressions already written.
    virtual std::string Placeholder(size_t number) const = 0;
    virtual std::string RowAddress() const = 0;          // "rowid", "ctid"
    virtual std::string ColumnType(bool text) const = 0; // of a column added at run time
    virtual std::string
    TextResult(const std::string& text) const = 0; // a computed text, compared without case
    virtual std::string SelectedText(const std::string& parameter) const = 0; // a text literal as a column
    virtual std::string Like(const std::string& value, const std::string& pattern) const = 0;
    virtual std::string Ordered(const std::string& value, bool descending) const = 0;
    virtual std::string Year(const std::string& date) const = 0;
    virtual std::string Month(const std::string& date) const = 0;
    virtual std::string DateText(const std::string& date,
                                 std::string_view mask) const = 0;    // mask in lower case
    virtual std::string IsNumeric(const std::string& text) const = 0; // 1 or 0
    virtual std::string Currency(const std::string& value) const = 0; // ccur: halves to even
    virtual std::string Money(const std::string& value) const = 0;    // convert(money): halves away from zero
    virtual std::string StoredMoney(const std::string& value) const = 0; // assigned to a money field
    virtual std::string Quotient(const std::string& dividend,
                                 const std::string& divisor) const = 0; // null by a divisor of 0
    // `value` among the elements of a list parameter, whose kind is that of `kind`.
    virtual Derivation ListForm() const = 0;
    virtual std::string InParameter(const std::string& value, const std::string& parameter, ValueKind kind,
                                    bool negated) const = 0;
    virtual bool HasHashDates() const = 0;
    // A chance to bring a From and its Where into a form that the engine plans well.
    virtual void Simplify(SourcePtr&, const NodePtr&) const {}

  private:
    using Targets = std::vector<const FieldDef*>;
    struct NamedTable {
        std::string alias;
        const TableDef* def;
    };

    std::string Select(SelectTree& select, const Targets& targets = {}, const std::string& firstColumn = "");
    std::string Items(SelectTree& select, const Targets& targets);
    std::string From(const Source& source);
    std::string Joined(const Source& source);
    std::string Insert(StatementTree& tree);
    std::string Update(StatementTree& tree);
    std::string UpdateFrom(StatementTree& tree);
    std::string Delete(StatementTree& tree);
    std::string AddColumn(const StatementTree& tree);
    std::string EditableSelect(StatementTree& tree);

    std::string Expression(const Node& node);
    std::string Written(const Node& node);
    std::string ExpressionAs(const Node& node, ValueKind wanted);
    std::string Compared(const Node& node, ValueKind kind);
    std::string Assigned(const Node& node, const FieldDef* target);
    std::string Literal(const Node& node);
    std::string Arithmetic(const Node& node);
    std::string Comparison(const Node& node);
    std::string Between(const Node& node);
    std::string In(const Node& node);
    std::string InLiterals(const Node& node, const Node& list);
    std::string Case(const Node& node);
    std::string Call(const Node& node);
    std::string Convert(const Node& node);
    std::string Conjunction(const Node& node);
    std::string Disjunction(const Node& node);

    // ranges.cpp: the rewrites for indexes; "" where none applies.
    std::string DayComparison(std::string_view op, const Node& left, const Node& literal);
    std::string DayBetween(const Node& node);
    std::string StemComparison(std::string_view op, const Node& left, const Node& literal);
    std::string MonthRange(const Node& year, const Node& month);
    const Node* DateColumnOf(const Node& node) const;

    std::string Lifted(Derivation derivation, ParameterType type, const Node& literal,
                       const Node* second = nullptr);
    std::string DateLiteral(const Node& literal, Derivation derivation);

    ValueKind KindOf(const Node& node) const;
    const NamedTable* OwnerOf(const Node& column) const; // null when no table around has such a field
    const FieldDef* FieldOf(const Node& column) const;
    std::string TableOf(const Node& column) const; // its qualifier, or the table that has the field
    // What tells an expression from another one of the same statement.
    std::string ShapeOf(const Node& node) const;
    void NoteShared(const SelectTree& select);
    std::string Grouping(const SelectTree& select);
    void OpenScope(const Source* source);
    void OpenScope(const StatementTree& tree);
    void CloseScope() { scopes_.pop_back(); }

    static void CollectTables(const Source& source, std::vector<NamedTable>& tables);

    std::vector<std::vector<NamedTable>> scopes_; // the tables that a column may belong to, innermost last
    // Of each select around: its grouping and sorting expressions with literals, by their shape, as they were
    // written first. Written again, with other parameters, they would be other expressions.
    std::vector<std::map<std::string, std::string>> shared_;
    std::vector<Parameter> parameters_;
};

// The expression below parentheses around it.
const Node& Bare(const Node& node);
// Conditions between one operator. Many stand in parentheses, groups of groups: an engine may not take a tree
// as deep as a statement is long.
std::string Chained(std::vector<std::string> terms, std::string_view separator);
// `inside` between `open` and a closing parenthesis.
std::string Enclosed(std::string_view open, std::string_view inside);
inline bool IsLifted(const Node& node) {
    return node.form == Node::Form::Literal && node.literal >= 0;
}

} // namespace jxc
