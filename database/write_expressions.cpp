#include "database/connection.h"
#include "database/translation.h"

namespace jxc {

using Form = Node::Form;

std::string Enclosed(std::string_view open, std::string_view inside) {
    std::string text(open);
    text += inside;
    text += ')';
    return text;
}

std::string Chained(std::vector<std::string> terms, std::string_view separator) {
    constexpr size_t kSideBySide = 100;
    while (terms.size() > kSideBySide) {
        std::vector<std::string> groups;
        for (size_t from = 0; from < terms.size(); from += kSideBySide) {
            const auto first = terms.begin() + static_cast<std::ptrdiff_t>(from);
            const auto count = static_cast<std::ptrdiff_t>(std::min(kSideBySide, terms.size() - from));
            groups.push_back(Enclosed("(", Chained({first, first + count}, separator)));
        }
        terms = std::move(groups);
    }
    std::string sql;
    for (size_t i = 0; i < terms.size(); ++i)
        sql.append(i > 0 ? separator : "").append(terms[i]);
    return sql;
}

const Node& Bare(const Node& node) {
    return node.form == Form::Parens ? Bare(*node.parts[0]) : node;
}

std::string StatementWriter::Expression(const Node& node) {
    if (shared_.empty() || shared_.back().empty())
        return Written(node);
    const auto shared = shared_.back().find(ShapeOf(node));
    if (shared == shared_.back().end())
        return Written(node);
    if (shared->second.empty())
        shared->second = Written(node);
    return shared->second;
}

std::string StatementWriter::Written(const Node& node) {
    switch (node.form) {
    case Form::Literal:
        return Literal(node);
    case Form::Null:
        return "null";
    case Form::Column:
        return node.qualifier.empty() ? node.text : node.qualifier + "." + node.text;
    case Form::Star:
        return node.qualifier.empty() ? "*" : node.qualifier + ".*";
    case Form::Call:
        return Call(node);
    case Form::Convert:
        return Convert(node);
    case Form::Negative:
        return Enclosed("(- ", Expression(*node.parts[0]));
    case Form::Not:
        return "not " + Expression(*node.parts[0]);
    case Form::Arithmetic:
        return Arithmetic(node);
    case Form::Comparison:
        return Comparison(node);
    case Form::Like: {
        const std::string like = Like(Expression(*node.parts[0]), Expression(*node.parts[1]));
        return node.negated ? Enclosed("not (", like) : like;
    }
    case Form::And:
        return Conjunction(node);
    case Form::Or:
        return Disjunction(node);
    case Form::IsNull:
        return Enclosed("(", Expression(*node.parts[0]) + (node.negated ? " is not null" : " is null"));
    case Form::Between:
        return Between(node);
    case Form::In:
        return In(node);
    case Form::Case:
        return Case(node);
    case Form::Exists:
        return Enclosed("exists (", Select(*node.select));
    case Form::Select:
        return Enclosed("(", Select(*node.select));
    case Form::Parens:
        return Enclosed("(", Expression(*node.parts[0]));
    }
    return "";
}

std::string StatementWriter::Lifted(Derivation derivation, ParameterType type, const Node& literal,
                                    const Node* second) {
    parameters_.push_back({derivation, type, literal.literal, second ? second->literal : 0});
    return Placeholder(parameters_.size());
}

std::string StatementWriter::DateLiteral(const Node& literal, Derivation derivation) {
    if (literal.literalKind == TokenKind::Date && !HasHashDates())
        throw DatabaseError("SQL 语句有误：日期 #" + literal.text + "# 应置于单引号之间。");
    return Lifted(derivation, ParameterType::Date, literal);
}

std::string StatementWriter::Literal(const Node& node) {
    if (node.literal < 0)
        return node.literalKind == TokenKind::Text ? "'" + node.text + "'" : node.text;
    switch (node.literalKind) {
    case TokenKind::Date:
        return DateLiteral(node, Derivation::Date);
    case TokenKind::Integer:
        return Lifted(Derivation::Literal, ParameterType::Integer, node);
    case TokenKind::Decimal:
        return Lifted(Derivation::Literal, ParameterType::Decimal, node);
    default:
        return Lifted(Derivation::Literal, ParameterType::Text, node);
    }
}

namespace {

bool IsList(const Node& node) {
    return node.form == Form::Literal &&
           (node.literalKind == TokenKind::IntegerList || node.literalKind == TokenKind::TextList);
}

} // namespace

// An expression next to a value of the wanted kind: a literal is read as that kind.
std::string StatementWriter::ExpressionAs(const Node& node, ValueKind wanted) {
    const Node& bare = Bare(node);
    if (IsLifted(bare)) {
        const bool isNumber =
            bare.literalKind == TokenKind::Integer || bare.literalKind == TokenKind::Decimal;
        if (wanted == ValueKind::Date && !isNumber)
            return DateLiteral(bare, Derivation::Date);
        if (wanted == ValueKind::Text && isNumber)
            return Lifted(Derivation::AsText, ParameterType::Text, bare);
    }
    return Expression(node);
}

// The other side of a comparison. A text that is no number is unlike every number.
std::string StatementWriter::Compared(const Node& node, ValueKind kind) {
    const Node& bare = Bare(node);
    const bool isNumber = kind == ValueKind::Integer || kind == ValueKind::Number || kind == ValueKind::Money;
    if (isNumber && IsLifted(bare) && bare.literalKind == TokenKind::Text)
        return Lifted(Derivation::Number, ParameterType::Decimal, bare);
    return ExpressionAs(node, kind);
}

// An expression as a column of a result, which may become the field `target`.
std::string StatementWriter::Assigned(const Node& node, const FieldDef* target) {
    const ValueKind wanted = !target                           ? ValueKind::Unknown
                             : target->type == FieldType::Date ? ValueKind::Date
                             : target->type == FieldType::Text ? ValueKind::Text
                                                               : ValueKind::Number;
    std::string value = ExpressionAs(node, wanted);
    if (IsLifted(Bare(node)) && parameters_.back().type == ParameterType::Text &&
        (wanted == ValueKind::Text || wanted == ValueKind::Unknown))
        return SelectedText(value);
    return target && target->type == FieldType::Money ? StoredMoney(value) : value;
}

std::string StatementWriter::Arithmetic(const Node& node) {
    const Node &left = *node.parts[0], &right = *node.parts[1];
    if (node.text == "/") {
        const std::string dividend = Expression(left);
        return Quotient(dividend, Expression(right));
    }
    if (KindOf(node) != ValueKind::Text)
        return Expression(left) + " " + node.text + " " + Expression(right);
    const auto part = [&](const Node& side) {
        std::string text = ExpressionAs(side, ValueKind::Text);
        return IsLifted(Bare(side)) ? SelectedText(text) : text;
    };
    const std::string first = part(left);
    return TextResult("(" + first + " || " + part(right) + ")");
}

std::string StatementWriter::Comparison(const Node& node) {
    const Node *left = node.parts[0].get(), *right = node.parts[1].get();
    std::string op = node.text;
    if (IsLifted(Bare(*left)) && !IsLifted(Bare(*right))) {
        std::swap(left, right);
        if (op != "=" && op != "<>")
            op[0] = op[0] == '<' ? '>' : '<';
    }
    if (IsLifted(Bare(*right))) {
        if (std::string range = DayComparison(op, *left, Bare(*right)); !range.empty())
            return range;
        if (std::string range = StemComparison(op, *left, Bare(*right)); !range.empty())
            return range;
    }
    const std::string first = Expression(*left);
    return first + " " + op + " " + Compared(*right, KindOf(*left));
}

std::string StatementWriter::Between(const Node& node) {
    if (std::string range = DayBetween(node); !range.empty())
        return range;
    const ValueKind kind = KindOf(*node.parts[0]);
    std::string sql = Expression(*node.parts[0]) + (node.negated ? " not between " : " between ");
    sql += Compared(*node.parts[1], kind);
    sql += " and ";
    return sql + Compared(*node.parts[2], kind);
}

std::string StatementWriter::In(const Node& node) {
    if (!node.select && node.parts.size() == 1)
        return node.negated ? "(1 = 1)" : "(1 = 0)"; // nothing is in an empty list
    if (!node.select && node.parts.size() == 2 && IsList(*node.parts[1]))
        return InLiterals(node, *node.parts[1]);
    std::string sql = Expression(*node.parts[0]) + (node.negated ? " not in (" : " in (");
    if (node.select)
        return sql + Select(*node.select) + ")";
    const ValueKind kind = KindOf(*node.parts[0]);
    for (size_t i = 1; i < node.parts.size(); ++i) {
        if (i > 1)
            sql += ", ";
        sql += Compared(*node.parts[i], kind);
    }
    return sql + ")";
}

// Whole numbers stay whole next to any number.
std::string StatementWriter::InLiterals(const Node& node, const Node& list) {
    const ValueKind left = KindOf(*node.parts[0]);
    const bool isWhole = list.literalKind == TokenKind::IntegerList;
    ValueKind kind = left;
    Derivation element = Derivation::Literal;
    if (left == ValueKind::Date && !isWhole) {
        element = Derivation::Date;
    } else if (left == ValueKind::Text || (left == ValueKind::Unknown && !isWhole)) {
        kind = ValueKind::Text;
        element = Derivation::AsText;
    } else {
        kind = isWhole ? ValueKind::Integer : ValueKind::Number;
        element = isWhole ? Derivation::Literal : Derivation::Number;
    }
    const std::string value = Expression(*node.parts[0]);
    const std::string parameter = Lifted(ListForm(), ParameterType::Text, list);
    parameters_.back().element = element;
    return InParameter(value, parameter, kind, node.negated);
}

std::string StatementWriter::Case(const Node& node) {
    std::string sql = "case";
    for (size_t i = 0; i + 1 < node.parts.size(); i += 2) {
        sql += " when " + Expression(*node.parts[i]);
        sql += " then " + Expression(*node.parts[i + 1]);
    }
    if (node.hasElse)
        sql += " else " + Expression(*node.parts.back());
    return sql + " end";
}

std::string StatementWriter::Convert(const Node& node) {
    const std::string value = Expression(*node.parts[0]);
    if (node.text != "varchar")
        return Money(value);
    if (node.length != 7 && node.length != 10)
        throw DatabaseError("SQL 语句有误：日期只能转换为 7 或 10 位文本。");
    return DateText(value, node.length == 7 ? "yyyy-mm" : "yyyy-mm-dd");
}

std::string StatementWriter::Disjunction(const Node& node) {
    std::vector<std::string> terms;
    for (const NodePtr& part : node.parts)
        terms.push_back(Expression(*part));
    return Chained(std::move(terms), " or ");
}

const StatementWriter::NamedTable* StatementWriter::OwnerOf(const Node& column) const {
    for (auto scope = scopes_.rbegin(); scope != scopes_.rend(); ++scope)
        for (const NamedTable& table : *scope) {
            if (!table.def || (!column.qualifier.empty() && !EqualsNoCase(table.alias, column.qualifier)))
                continue;
            if (FindField(*table.def, column.text))
                return &table;
        }
    return nullptr;
}

const FieldDef* StatementWriter::FieldOf(const Node& column) const {
    const NamedTable* owner = OwnerOf(column);
    return owner ? FindField(*owner->def, column.text) : nullptr;
}

std::string StatementWriter::TableOf(const Node& column) const {
    const NamedTable* owner = column.qualifier.empty() ? OwnerOf(column) : nullptr;
    return owner ? owner->alias : column.qualifier;
}

} // namespace jxc
