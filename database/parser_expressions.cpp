#include "database/parser_base.h"

namespace jxc {

using Form = Node::Form;

NodePtr MakeNode(Form form, NodePtr first, NodePtr second) {
    auto node = std::make_unique<Node>();
    node->form = form;
    if (first)
        node->parts.push_back(std::move(first));
    if (second)
        node->parts.push_back(std::move(second));
    return node;
}

NodePtr ExpressionParser::Condition() {
    NodePtr left = AndChain();
    if (!AtWord("or"))
        return left;
    NodePtr node = MakeNode(Form::Or, std::move(left));
    const Nesting nesting(*this, kOperand);
    while (TakeWord("or"))
        node->parts.push_back(AndChain());
    return node;
}

NodePtr ExpressionParser::AndChain() {
    NodePtr left = Negation();
    if (!AtWord("and"))
        return left;
    NodePtr node = MakeNode(Form::And, std::move(left));
    const Nesting nesting(*this, kOperand);
    while (TakeWord("and"))
        node->parts.push_back(Negation());
    return node;
}

NodePtr ExpressionParser::Negation() {
    if (!TakeWord("not"))
        return Comparison();
    const Nesting nesting(*this, kParenthesis);
    return MakeNode(Form::Not, Negation());
}

NodePtr ExpressionParser::Comparison() {
    NodePtr left = Sum();
    const Nesting nesting(*this, kOperand);
    for (const std::string_view op : {"=", "<>", "<=", ">=", "<", ">"}) {
        if (TakeSymbol(op)) {
            NodePtr node = MakeNode(Form::Comparison, std::move(left), Sum());
            node->text += op;
            return node;
        }
    }
    if (TakeWord("is")) {
        const bool negated = TakeWord("not");
        ExpectWord("null");
        NodePtr node = MakeNode(Form::IsNull, std::move(left));
        node->negated = negated;
        return node;
    }
    const bool negated = TakeWord("not");
    if (TakeWord("like")) {
        NodePtr node = MakeNode(Form::Like, std::move(left), Sum());
        node->negated = negated;
        return node;
    }
    if (TakeWord("between")) {
        NodePtr low = Sum();
        ExpectWord("and");
        NodePtr node = MakeNode(Form::Between, std::move(left), std::move(low));
        node->parts.push_back(Sum());
        node->negated = negated;
        return node;
    }
    if (TakeWord("in"))
        return InList(std::move(left), negated);
    if (negated)
        Refuse();
    return left;
}

NodePtr ExpressionParser::InList(NodePtr value, bool negated) {
    NodePtr node = MakeNode(Form::In, std::move(value));
    node->negated = negated;
    ExpectSymbol("(");
    if (AtWord("select")) {
        node->select = Select();
    } else if (!AtSymbol(")")) {
        do
            node->parts.push_back(Sum());
        while (TakeSymbol(","));
    }
    ExpectSymbol(")");
    return node;
}

NodePtr ExpressionParser::Sum() {
    NodePtr left = Product();
    int terms = 1;
    while (AtSymbol("+") || AtSymbol("-") || AtSymbol("&")) {
        std::string op(Take().text);
        RequireShort(++terms);
        const Nesting nesting(*this, kOperand);
        left = MakeNode(Form::Arithmetic, std::move(left), Product());
        left->text = std::move(op);
    }
    return left;
}

NodePtr ExpressionParser::Product() {
    NodePtr left = Signed();
    int terms = 1;
    while (AtSymbol("*") || AtSymbol("/")) {
        std::string op(Take().text);
        RequireShort(++terms);
        const Nesting nesting(*this, kOperand);
        left = MakeNode(Form::Arithmetic, std::move(left), Signed());
        left->text = std::move(op);
    }
    return left;
}

NodePtr ExpressionParser::Signed() {
    if (!AtSymbol("-") && !AtSymbol("+"))
        return Primary();
    const Nesting nesting(*this, kParenthesis);
    if (TakeSymbol("-"))
        return MakeNode(Form::Negative, Signed());
    TakeSymbol("+");
    return Signed();
}

NodePtr ExpressionParser::Primary() {
    switch (Here().kind) {
    case TokenKind::Word:
        return Named();
    case TokenKind::Symbol:
        if (AtSymbol("("))
            return Parenthesised();
        if (TakeSymbol("*"))
            return MakeNode(Form::Star);
        Refuse();
    case TokenKind::End:
        Refuse();
    default:
        return LiteralNode();
    }
}

NodePtr ExpressionParser::LiteralNode() {
    const Token& token = Take();
    NodePtr node = MakeNode(Form::Literal);
    node->literalKind = token.kind;
    node->literal = token.literal;
    node->text = token.text;
    return node;
}

NodePtr ExpressionParser::Parenthesised() {
    const Nesting nesting(*this, kParenthesis);
    ExpectSymbol("(");
    NodePtr node;
    if (AtWord("select")) {
        node = MakeNode(Form::Select);
        node->select = Select();
    } else {
        node = MakeNode(Form::Parens, Condition());
    }
    ExpectSymbol(")");
    return node;
}

NodePtr ExpressionParser::Named() {
    for (const char* reserved :
         {"select", "from",   "where", "group", "order", "having", "and",   "or", "on",      "set",  "by",
          "join",   "values", "then",  "else",  "end",   "when",   "union", "as", "between", "like", "in"})
        if (AtWord(reserved))
            Refuse();
    if (TakeWord("null"))
        return MakeNode(Form::Null);
    if (AtWord("case"))
        return CaseWhen();
    if (AtWord("exists") && AtSymbol("(", 1)) {
        Take();
        ExpectSymbol("(");
        NodePtr node = MakeNode(Form::Exists);
        node->select = Select();
        ExpectSymbol(")");
        return node;
    }
    if (AtSymbol("(", 1))
        return AtWord("convert") ? ConvertCall() : Call();
    NodePtr node = MakeNode(Form::Column);
    node->text = ExpectName();
    if (TakeSymbol(".")) {
        node->qualifier = std::move(node->text);
        node->text.clear();
        if (TakeSymbol("*"))
            node->form = Form::Star;
        else
            node->text = ExpectName();
    }
    return node;
}

NodePtr ExpressionParser::Call() {
    const Nesting nesting(*this, kCall);
    NodePtr node = MakeNode(Form::Call);
    node->text = LowerCase(ExpectName());
    ExpectSymbol("(");
    node->distinct = TakeWord("distinct");
    if (!AtSymbol(")")) {
        do
            node->parts.push_back(Condition());
        while (TakeSymbol(","));
    }
    ExpectSymbol(")");
    return node;
}

// convert(money,x), convert(smallmoney,x), convert(varchar(n),x,120)
NodePtr ExpressionParser::ConvertCall() {
    const Nesting nesting(*this, kCall);
    ExpectWord("convert");
    ExpectSymbol("(");
    NodePtr node = MakeNode(Form::Convert);
    node->text = LowerCase(ExpectName());
    if (node->text == "varchar") {
        ExpectSymbol("(");
        if (Here().kind != TokenKind::Integer)
            Refuse();
        node->length = static_cast<int>(Val(Take().text));
        ExpectSymbol(")");
    } else if (node->text != "money" && node->text != "smallmoney") {
        throw DatabaseError("SQL 语句有误：不支持转换为“" + node->text + "”。");
    }
    ExpectSymbol(",");
    node->parts.push_back(Sum());
    if (node->text == "varchar") {
        ExpectSymbol(",");
        if (Here().text != "120")
            Refuse();
        Take();
    }
    ExpectSymbol(")");
    return node;
}

NodePtr ExpressionParser::CaseWhen() {
    const Nesting nesting(*this, kCall);
    ExpectWord("case");
    NodePtr node = MakeNode(Form::Case);
    while (TakeWord("when")) {
        node->parts.push_back(Condition());
        ExpectWord("then");
        node->parts.push_back(Sum());
    }
    if (node->parts.empty())
        Refuse();
    if (TakeWord("else")) {
        node->hasElse = true;
        node->parts.push_back(Sum());
    }
    ExpectWord("end");
    return node;
}

} // namespace jxc
