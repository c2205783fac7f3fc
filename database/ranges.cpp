// The conditions that are written as ranges, so that an index on the field serves them.
#include "database/translation.h"

namespace jxc {

using Form = Node::Form;

// The date field that `node` is, or of which it is the yyyy-mm-dd text; null for anything else.
const Node* StatementWriter::DateColumnOf(const Node& node) const {
    const Node& bare = Bare(node);
    if (bare.form == Form::Convert && bare.text == "varchar" && bare.length == 10)
        return DateColumnOf(*bare.parts[0]);
    return bare.form == Form::Column && KindOf(bare) == ValueKind::Date ? &bare : nullptr;
}

// A date compared means the whole day: what happened at three in the afternoon of the 31st is not after the
// 31st.
std::string StatementWriter::DayComparison(std::string_view op, const Node& left, const Node& literal) {
    const Node* column = DateColumnOf(left);
    if (!column || (literal.literalKind != TokenKind::Text && literal.literalKind != TokenKind::Date))
        return "";
    const std::string field = Expression(*column);
    if (op == "<" || op == ">=")
        return field + " " + std::string(op) + " " + DateLiteral(literal, Derivation::Date);
    if (op == "<=")
        return field + " < " + DateLiteral(literal, Derivation::DayEnd);
    if (op == ">")
        return field + " >= " + DateLiteral(literal, Derivation::DayEnd);
    std::string day = "(" + field + " >= " + DateLiteral(literal, Derivation::Date);
    day += " and " + field + " < " + DateLiteral(literal, Derivation::DayEnd) + ")";
    return op == "=" ? day : "not " + day;
}

std::string StatementWriter::DayBetween(const Node& node) {
    const Node* column = DateColumnOf(*node.parts[0]);
    const Node &low = Bare(*node.parts[1]), &high = Bare(*node.parts[2]);
    if (!column || !IsLifted(low) || !IsLifted(high))
        return "";
    const std::string field = Expression(*column);
    std::string days = "(" + field + " >= " + DateLiteral(low, Derivation::Date);
    days += " and " + field + " < " + DateLiteral(high, Derivation::DayEnd) + ")";
    return node.negated ? "not " + days : days;
}

// left(f,n)='stem'
std::string StatementWriter::StemComparison(std::string_view op, const Node& left, const Node& literal) {
    const Node& call = Bare(left);
    if (op != "=" || literal.literalKind != TokenKind::Text || call.form != Form::Call ||
        call.text != "left" || call.parts.size() != 2 || call.parts[0]->form != Form::Column ||
        KindOf(*call.parts[0]) != ValueKind::Text)
        return "";
    const std::string field = Expression(*call.parts[0]);
    std::string sql = "(" + Expression(call) + " = " + Literal(literal);
    sql += " and " + field + " >= " + Literal(literal);
    return sql + " and " + field + " < " + Lifted(Derivation::PrefixEnd, ParameterType::Text, literal) + ")";
}

namespace {

// The date field of Year(f)=2003 or Month(f)=7; null when `node` is no such test.
const Node* PartTested(const Node& node, std::string_view part) {
    const Node& test = Bare(node);
    if (test.form != Form::Comparison || test.text != "=")
        return nullptr;
    const Node &call = Bare(*test.parts[0]), &literal = Bare(*test.parts[1]);
    if (call.form != Form::Call || call.text != part || call.parts.size() != 1 || !IsLifted(literal) ||
        literal.literalKind != TokenKind::Integer || call.parts[0]->form != Form::Column)
        return nullptr;
    return call.parts[0].get();
}

} // namespace

std::string StatementWriter::MonthRange(const Node& year, const Node& month) {
    const Node *yearOf = PartTested(year, "year"), *monthOf = PartTested(month, "month");
    if (!yearOf || !monthOf || !EqualsNoCase(yearOf->qualifier, monthOf->qualifier) ||
        !EqualsNoCase(yearOf->text, monthOf->text) || KindOf(*yearOf) != ValueKind::Date)
        return "";
    const Node &y = Bare(*Bare(year).parts[1]), &m = Bare(*Bare(month).parts[1]);
    const std::string field = Expression(*yearOf);
    std::string sql = "(" + field + " >= " + Lifted(Derivation::MonthStart, ParameterType::Date, y, &m);
    return sql + " and " + field + " < " + Lifted(Derivation::MonthEnd, ParameterType::Date, y, &m) + ")";
}

// The tests of a year are few; those of its month may stand anywhere behind or before.
std::string StatementWriter::Conjunction(const Node& node) {
    std::vector<std::string> terms(node.parts.size());
    std::vector<bool> written(node.parts.size());
    for (size_t i = 0; i < terms.size(); ++i) {
        if (written[i])
            continue;
        const bool isYear = PartTested(*node.parts[i], "year"), isMonth = PartTested(*node.parts[i], "month");
        for (size_t j = i + 1; (isYear || isMonth) && j < terms.size() && terms[i].empty(); ++j) {
            if (written[j])
                continue;
            terms[i] = isYear ? MonthRange(*node.parts[i], *node.parts[j])
                              : MonthRange(*node.parts[j], *node.parts[i]);
            written[j] = !terms[i].empty();
        }
        if (terms[i].empty())
            terms[i] = Expression(*node.parts[i]);
    }
    std::erase(terms, "");
    return Chained(terms, " and ");
}

} // namespace jxc
