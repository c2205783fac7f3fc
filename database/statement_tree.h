// A statement of the system's language, taken apart. The parser builds it, a dialect writes it down for its
// engine.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "database/lexer.h"
#include "database/schema.h"

namespace jxc {

struct SelectTree;

// An expression or condition.
struct Node {
    enum class Form {
        Literal, // literal, or text when the literal stayed in the statement; a list only within In
        Null,
        Column,  // qualifier, text
        Star,    // qualifier
        Call,    // text: the function in lower case; parts: arguments
        Convert, // text: the target type in lower case, length; parts: value
        Negative,
        Not,
        Arithmetic, // text: + - * / &
        Comparison, // text: = <> < <= > >=
        Like,       // negated
        And,        // parts: two or more
        Or,         // the same
        IsNull,     // negated
        Between,    // negated; parts: value, low, high
        In,         // negated; parts: value, items; or select
        Case,       // parts: when, then, when, then ... and, with hasElse, the last
        Exists,
        Select, // a subselect as a value
        Parens,
    };

    Form form = Form::Null;
    TokenKind literalKind = TokenKind::End;
    int literal = -1;
    std::string text;
    std::string qualifier;
    int length = 0;
    bool negated = false;
    bool hasElse = false;
    bool distinct = false; // count(distinct x)
    std::vector<std::unique_ptr<Node>> parts;
    std::unique_ptr<SelectTree> select;
};
using NodePtr = std::unique_ptr<Node>;

// What a From holds: a table, a subselect, or two sources joined.
struct Source {
    enum class Form { Table, Subselect, Join, List };
    enum class JoinKind { Inner, Left, Right };

    Form form = Form::Table;
    JoinKind join = JoinKind::Inner;
    std::string table;
    std::string alias; // the table's own name when none is given
    const TableDef* def = nullptr;
    std::unique_ptr<SelectTree> select;
    std::unique_ptr<Source> left, right; // of a join or of a comma
    NodePtr on;
};
using SourcePtr = std::unique_ptr<Source>;

struct SelectTree {
    struct Item {
        NodePtr value;
        std::string alias;
    };
    struct Order {
        NodePtr value;
        bool descending = false;
    };

    bool distinct = false;
    std::string top;
    std::vector<Item> items;
    SourcePtr from;
    NodePtr where;
    std::vector<NodePtr> groupBy;
    NodePtr having;
    std::vector<Order> orderBy;
};

struct StatementTree {
    enum class Form { Select, Insert, Update, Delete, AddColumn };
    struct Assignment {
        std::string column;
        NodePtr value;
    };

    Form form = Form::Select;
    std::unique_ptr<SelectTree> select; // Select; Insert .. Select
    std::string table;                  // Insert, Update, Delete, AddColumn
    std::string alias;                  // Update, Delete; "" for none
    const TableDef* def = nullptr;
    std::vector<std::string> columns; // Insert; "" columns: all; AddColumn: the one
    std::vector<NodePtr> values;      // Insert .. Values
    std::vector<Assignment> assignments;
    SourcePtr from; // Update from a second table: all its sources, the changed one among them
    NodePtr where;
    bool columnIsText = false; // AddColumn
};

inline bool IsColumn(const Node& node) {
    return node.form == Node::Form::Column;
}
inline bool IsLiteral(const Node& node) {
    return node.form == Node::Form::Literal;
}

} // namespace jxc
