// The walk along the tokens that the parts of the parser share.
#pragma once

#include <span>

#include "base/text.h"
#include "database/connection.h"
#include "database/statement_tree.h"

namespace jxc {

class TokenWalk {
  public:
    explicit TokenWalk(std::span<const Token> tokens) : tokens_(tokens) {}

  protected:
    const Token& Here(size_t ahead = 0) const {
        static const Token end;
        return at_ + ahead < tokens_.size() ? tokens_[at_ + ahead] : end;
    }
    bool AtWord(std::string_view word, size_t ahead = 0) const {
        return Here(ahead).kind == TokenKind::Word && EqualsNoCase(Here(ahead).text, word);
    }
    bool AtSymbol(std::string_view symbol, size_t ahead = 0) const {
        return Here(ahead).kind == TokenKind::Symbol && Here(ahead).text == symbol;
    }
    const Token& Take() { return tokens_[at_++]; }
    bool TakeWord(std::string_view word) { return AtWord(word) && (++at_, true); }
    bool TakeSymbol(std::string_view symbol) { return AtSymbol(symbol) && (++at_, true); }
    void ExpectWord(std::string_view word) {
        if (!TakeWord(word))
            Refuse();
    }
    void ExpectSymbol(std::string_view symbol) {
        if (!TakeSymbol(symbol))
            Refuse();
    }
    std::string ExpectName() {
        if (Here().kind != TokenKind::Word)
            Refuse();
        return std::string(Take().text);
    }
    bool AtEnd() const { return at_ >= tokens_.size(); }
    // Held while a part of the statement is read that others wait for: what stands before an operator, a
    // sign, a parenthesis. An engine remembers what waits in a stack of 100 symbols, and both are spared
    // statements that need more; `symbols` is what the part before takes there as it is written down.
    class Nesting {
      public:
        Nesting(TokenWalk& walk, int symbols) : walk_(walk), symbols_(symbols) {
            walk_.waiting_ += symbols_;
            if (walk_.waiting_ > kMostWaiting)
                throw DatabaseError("SQL 语句有误：括号嵌套太深。");
        }
        ~Nesting() { walk_.waiting_ -= symbols_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

      private:
        TokenWalk& walk_;
        int symbols_;
    };
    static constexpr int kOperand = 2, kParenthesis = 2, kCall = 5, kSubselect = 10;
    // Sums and products are trees as deep as they are long.
    static void RequireShort(int terms) {
        if (terms > kLongestSum)
            throw DatabaseError("SQL 语句有误：算式太长。");
    }
    [[noreturn]] void Refuse() const {
        if (AtEnd())
            throw DatabaseError("SQL 语句有误：语句不完整。");
        throw DatabaseError("SQL 语句有误：“" + std::string(Here().text) + "”附近。");
    }

  private:
    static constexpr int kMostWaiting = 80;
    static constexpr int kLongestSum = 200;

    std::span<const Token> tokens_;
    size_t at_ = 0;
    int waiting_ = 0;
};

// Expressions and conditions.
class ExpressionParser : public TokenWalk {
  public:
    using TokenWalk::TokenWalk;
    virtual ~ExpressionParser() = default;

  protected:
    NodePtr Condition();
    NodePtr Sum();
    virtual std::unique_ptr<SelectTree> Select() = 0;

  private:
    NodePtr AndChain();
    NodePtr Negation();
    NodePtr Comparison();
    NodePtr Product();
    NodePtr Signed();
    NodePtr Primary();
    NodePtr LiteralNode();
    NodePtr Named();
    NodePtr Call();
    NodePtr ConvertCall();
    NodePtr CaseWhen();
    NodePtr Parenthesised();
    NodePtr InList(NodePtr value, bool negated);
};

NodePtr MakeNode(Node::Form form, NodePtr first = nullptr, NodePtr second = nullptr);

} // namespace jxc
