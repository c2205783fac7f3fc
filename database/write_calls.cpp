// The functions of the language, and what kind of value an expression gives.
#include "database/connection.h"
#include "database/translation.h"

namespace jxc {

using Form = Node::Form;

namespace {

struct Function {
    const char* name;
    size_t least, most; // arguments
    ValueKind result;   // Unknown: that of the argument
};

constexpr Function kFunctions[] = {
    {"count", 1, 1, ValueKind::Integer},  {"sum", 1, 1, ValueKind::Unknown},
    {"max", 1, 1, ValueKind::Unknown},    {"min", 1, 1, ValueKind::Unknown},
    {"avg", 1, 1, ValueKind::Number},     {"abs", 1, 1, ValueKind::Unknown},
    {"left", 2, 2, ValueKind::Text},      {"mid", 2, 3, ValueKind::Text},
    {"substring", 3, 3, ValueKind::Text}, {"lcase", 1, 1, ValueKind::Text},
    {"lower", 1, 1, ValueKind::Text},     {"isnull", 1, 1, ValueKind::Integer},
    {"iif", 3, 3, ValueKind::Unknown},    {"isnumeric", 1, 1, ValueKind::Integer},
    {"year", 1, 1, ValueKind::Integer},   {"month", 1, 1, ValueKind::Integer},
    {"format", 2, 2, ValueKind::Text},    {"ccur", 1, 1, ValueKind::Money},
};

const Function& FunctionNamed(const Node& call) {
    for (const Function& function : kFunctions) {
        if (call.text != function.name)
            continue;
        if (call.parts.size() < function.least || call.parts.size() > function.most)
            throw DatabaseError("SQL 语句有误：函数“" + call.text + "”的参数个数不对。");
        return function;
    }
    throw DatabaseError("SQL 语句有误：不认识的函数“" + call.text + "”。");
}

} // namespace

std::string StatementWriter::Call(const Node& node) {
    FunctionNamed(node);
    const std::string& name = node.text;
    if (name == "iif") {
        std::string sql = "case when " + Expression(*node.parts[0]);
        sql += " then " + Expression(*node.parts[1]);
        return sql + " else " + Expression(*node.parts[2]) + " end";
    }
    if (name == "format") {
        const Node& mask = *node.parts[1];
        if (mask.form != Form::Literal || mask.literal >= 0)
            throw DatabaseError("SQL 语句有误：不认识的日期格式。");
        return DateText(Expression(*node.parts[0]), LowerCase(mask.text));
    }
    const std::string first = (node.distinct ? "distinct " : "") + Expression(*node.parts[0]);
    if (name == "isnull")
        return "(" + first + " is null)";
    if (name == "lcase" || name == "lower")
        return TextResult("lower(" + first + ")");
    if (name == "left")
        return TextResult("substr(" + first + ", 1, " + Expression(*node.parts[1]) + ")");
    if (name == "mid" || name == "substring") {
        std::string sql = "substr(" + first + ", " + Expression(*node.parts[1]);
        if (node.parts.size() == 3)
            sql += ", " + Expression(*node.parts[2]);
        return TextResult(sql + ")");
    }
    if (name == "isnumeric")
        return IsNumeric(first);
    if (name == "year")
        return Year(first);
    if (name == "month")
        return Month(first);
    if (name == "ccur")
        return Currency(first);
    return name + "(" + first + ")";
}

ValueKind StatementWriter::KindOf(const Node& node) const {
    switch (node.form) {
    case Form::Literal:
        return node.literalKind == TokenKind::Integer   ? ValueKind::Integer
               : node.literalKind == TokenKind::Decimal ? ValueKind::Number
               : node.literalKind == TokenKind::Date    ? ValueKind::Date
                                                        : ValueKind::Text;
    case Form::Column: {
        const FieldDef* field = FieldOf(node);
        if (!field)
            return ValueKind::Unknown;
        switch (field->type) {
        case FieldType::Date:
            return ValueKind::Date;
        case FieldType::Text:
            return ValueKind::Text;
        case FieldType::Money:
            return ValueKind::Money;
        case FieldType::Double:
            return ValueKind::Number;
        default:
            return ValueKind::Integer;
        }
    }
    case Form::Call: {
        const ValueKind result = FunctionNamed(node).result;
        return result != ValueKind::Unknown ? result : KindOf(*node.parts[node.text == "iif" ? 1 : 0]);
    }
    case Form::Convert:
        return node.text == "varchar" ? ValueKind::Text : ValueKind::Money;
    case Form::Negative:
    case Form::Parens:
        return KindOf(*node.parts[0]);
    case Form::Case:
        return KindOf(*node.parts[1]);
    case Form::Arithmetic: {
        const ValueKind left = KindOf(*node.parts[0]), right = KindOf(*node.parts[1]);
        if (node.text == "&" || (node.text == "+" && (left == ValueKind::Text || right == ValueKind::Text)))
            return ValueKind::Text;
        return left == ValueKind::Integer && right == ValueKind::Integer ? ValueKind::Integer
                                                                         : ValueKind::Number;
    }
    default:
        return ValueKind::Unknown;
    }
}

} // namespace jxc
