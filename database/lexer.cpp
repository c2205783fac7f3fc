#include "database/lexer.h"

#include <optional>

#include "base/text.h"
#include "database/connection.h"

namespace jxc {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Scanner {
  public:
    explicit Scanner(std::string_view sql) : sql_(sql) {}

    // Behind the parenthesis of an In: its literals, when they are two or more of one kind and nothing else.
    std::optional<Token> TakeList() {
        Scanner ahead = *this;
        const Token first = ahead.Next();
        if (first.kind != TokenKind::Integer && first.kind != TokenKind::Text)
            return {};
        const auto fits = [&](const Token& token) {
            return token.kind == first.kind && (token.kind != TokenKind::Integer || token.text.size() <= 18);
        };
        size_t end = ahead.at_, count = 1;
        bool all = fits(first);
        Token separator = ahead.Next();
        for (; all && separator.kind == TokenKind::Symbol && separator.text == ",";
             separator = ahead.Next()) {
            all = fits(ahead.Next());
            end = ahead.at_;
            ++count;
        }
        if (!all || count < 2 || separator.kind != TokenKind::Symbol || separator.text != ")")
            return {};
        const Token list{first.kind == TokenKind::Integer ? TokenKind::IntegerList : TokenKind::TextList,
                         sql_.substr(at_, end - at_)};
        at_ = end;
        afterName_ = false;
        return list;
    }

    Token Next() {
        while (at_ < sql_.size() && IsBlank(sql_[at_]))
            ++at_;
        if (at_ == sql_.size())
            return {};
        const char c = sql_[at_];
        if (IsLetter(c))
            return Word();
        if (IsDigit(c) || (c == '.' && at_ + 1 < sql_.size() && IsDigit(sql_[at_ + 1]) && !afterName_))
            return Number();
        if (c == '\'')
            return Text();
        if (c == '#')
            return Date();
        return Symbol(c);
    }

  private:
    Token Take(TokenKind kind, size_t start, size_t end) {
        afterName_ = kind == TokenKind::Word;
        return {kind, sql_.substr(start, end - start)};
    }

    Token Word() {
        const size_t start = at_;
        while (at_ < sql_.size() && (IsLetter(sql_[at_]) || IsDigit(sql_[at_])))
            ++at_;
        return Take(TokenKind::Word, start, at_);
    }

    void SkipDigits() {
        while (at_ < sql_.size() && IsDigit(sql_[at_]))
            ++at_;
    }

    Token Number() {
        const size_t start = at_;
        TokenKind kind = TokenKind::Integer;
        SkipDigits();
        if (at_ < sql_.size() && sql_[at_] == '.') {
            kind = TokenKind::Decimal;
            ++at_;
            SkipDigits();
        }
        if (at_ < sql_.size() && (sql_[at_] == 'e' || sql_[at_] == 'E')) {
            kind = TokenKind::Decimal;
            ++at_;
            if (at_ < sql_.size() && (sql_[at_] == '+' || sql_[at_] == '-'))
                ++at_;
            if (at_ == sql_.size() || !IsDigit(sql_[at_]))
                throw DatabaseError("SQL 语句有误：数值“" + std::string(sql_.substr(start, at_ - start)) +
                                    "”不完整。");
            SkipDigits();
        }
        if (at_ < sql_.size() && IsLetter(sql_[at_]))
            throw DatabaseError("SQL 语句有误：“" + std::string(sql_.substr(start, at_ + 1 - start)) +
                                "”既非数值亦非名称。");
        return Take(kind, start, at_);
    }

    Token Text() {
        const size_t start = ++at_;
        while (at_ < sql_.size()) {
            if (sql_[at_] != '\'') {
                ++at_;
            } else if (at_ + 1 < sql_.size() && sql_[at_ + 1] == '\'') {
                at_ += 2;
            } else {
                const Token text = Take(TokenKind::Text, start, at_);
                ++at_;
                return text;
            }
        }
        throw DatabaseError("SQL 语句有误：文本的单引号没有结束。");
    }

    Token Date() {
        const size_t start = ++at_;
        const size_t end = sql_.find('#', start);
        if (end == std::string_view::npos)
            throw DatabaseError("SQL 语句有误：日期的“#”没有结束。");
        at_ = end + 1;
        return Take(TokenKind::Date, start, end);
    }

    Token Symbol(char c) {
        const size_t start = at_;
        const char next = at_ + 1 < sql_.size() ? sql_[at_ + 1] : '\0';
        if ((c == '<' && (next == '=' || next == '>')) || (c == '>' && next == '=')) {
            at_ += 2;
            return Take(TokenKind::Symbol, start, at_);
        }
        if (std::string_view("(),.*+-/&=<>").find(c) != std::string_view::npos) {
            ++at_;
            return Take(TokenKind::Symbol, start, at_);
        }
        if (c == ';')
            throw DatabaseError("SQL 语句有误：一次只能执行一条语句，不能含有分号。");
        size_t end = start + 1; // of a character of several bytes
        while (end < sql_.size() && (static_cast<unsigned char>(sql_[end]) & 0xC0) == 0x80)
            ++end;
        throw DatabaseError("SQL 语句有误：不能识别的字符“" + std::string(sql_.substr(start, end - start)) +
                            "”。");
    }

    std::string_view sql_;
    size_t at_ = 0;
    bool afterName_ = false;
};

// Tells which literals shape the statement and therefore stay in its text.
class ShapingLiterals {
  public:
    bool Contains(const Token& token) const {
        if (all_)
            return true;
        if (token.kind == TokenKind::Integer)
            return afterTop_ || columnOfOrder_ || afterVarchar_ == 2 || (afterComma_ && token.text == "120");
        return token.kind == TokenKind::Text && IsDateMask(token.text);
    }

    bool InListOfExpressions() const { return depthOfList_ >= 0; }
    bool AfterIn() const { return afterIn_ == 2; }

    void Pass(const Token& token) {
        const bool afterIn = afterIn_ == 1 && token.kind == TokenKind::Symbol && token.text == "(";
        afterIn_ = afterIn ? 2 : 0;
        afterTop_ = false;
        afterComma_ = false;
        columnOfOrder_ = false;
        if (token.kind == TokenKind::Word) {
            PassWord(token.text);
            return;
        }
        if (token.kind != TokenKind::Symbol) {
            afterVarchar_ = 0;
            return;
        }
        afterVarchar_ = afterVarchar_ == 1 && token.text == "(" ? 2 : 0;
        afterComma_ = token.text == ",";
        if (token.text == "(")
            ++depth_;
        if (token.text == ")" && --depth_ < depthOfList_)
            depthOfList_ = -1;
        columnOfOrder_ = afterComma_ && isOrder_ && depth_ == depthOfList_;
    }

  private:
    void PassWord(std::string_view word) {
        afterVarchar_ = 0;
        switch (word.size()) {
        case 2:
            columnOfOrder_ = isOrder_ && depth_ == depthOfList_ && EqualsNoCase(word, "by");
            afterIn_ = EqualsNoCase(word, "in") ? 1 : 0;
            break;
        case 3:
            afterTop_ = EqualsNoCase(word, "top");
            break;
        case 5:
            if (EqualsNoCase(word, "order") || EqualsNoCase(word, "group")) {
                depthOfList_ = depth_;
                isOrder_ = EqualsNoCase(word, "order");
            } else if (EqualsNoCase(word, "alter")) {
                all_ = true;
            } else if (EqualsNoCase(word, "union")) {
                depthOfList_ = -1;
            }
            break;
        case 6:
            if (EqualsNoCase(word, "having"))
                depthOfList_ = -1;
            break;
        case 7:
        case 8:
            if (EqualsNoCase(word, "varchar") || EqualsNoCase(word, "nvarchar"))
                afterVarchar_ = 1;
            break;
        default:
            break;
        }
    }

    bool all_ = false;
    bool afterTop_ = false;
    bool afterComma_ = false;
    int afterVarchar_ = 0; // 1 behind the word, 2 behind its parenthesis
    int afterIn_ = 0;      // 1 behind the word, 2 behind its parenthesis
    int depth_ = 0;
    int depthOfList_ = -1;       // depth of the Group By or Order By that is open
    bool isOrder_ = false;       // it is an Order By
    bool columnOfOrder_ = false; // a number here names a column of the result
};

std::string_view Marker(const Token& token) {
    switch (token.kind) {
    case TokenKind::Integer:
        return "?i";
    case TokenKind::Decimal:
        return "?d";
    case TokenKind::Date:
        return "?t";
    case TokenKind::IntegerList:
        return "?I";
    case TokenKind::TextList:
        return "?S";
    default:
        return "?s";
    }
}

// The place of an equal literal before; -1 when there is none.
int PlaceOfEqual(const std::vector<Literal>& literals, const Token& token) {
    for (size_t i = 0; i < literals.size(); ++i)
        if (literals[i].kind == token.kind && literals[i].text == token.text)
            return static_cast<int>(i);
    return -1;
}

// Lifts with equal literals as one, or each for itself: false when that will not do, because a list of
// expressions holds literals.
bool LiftOnce(std::string_view sql, LiftedStatement& lifted, std::vector<Token>* tokens, bool merge) {
    lifted.key.clear();
    lifted.literals.clear();
    if (tokens)
        tokens->clear();
    Scanner scanner(sql);
    ShapingLiterals shaping;
    const auto next = [&] {
        if (shaping.AfterIn())
            if (const std::optional<Token> list = scanner.TakeList())
                return *list;
        return scanner.Next();
    };
    for (Token token = next(); token.kind != TokenKind::End; token = next()) {
        const bool isLiteral = token.kind != TokenKind::Word && token.kind != TokenKind::Symbol;
        if (token.kind == TokenKind::Integer && token.text.size() > 9)
            token.kind = TokenKind::Decimal; // an integer parameter has 32 bits
        if (isLiteral && !shaping.Contains(token)) {
            if (shaping.InListOfExpressions() && !merge && !lifted.literals.empty())
                return false;
            token.literal = merge ? PlaceOfEqual(lifted.literals, token) : -1;
            if (token.literal >= 0) {
                lifted.key.append("?=").append(std::to_string(token.literal));
            } else {
                token.literal = static_cast<int>(lifted.literals.size());
                lifted.literals.push_back({token.kind, token.text});
                lifted.key += Marker(token);
            }
        } else if (token.kind == TokenKind::Text) {
            lifted.key.append("'").append(token.text).append("'");
        } else {
            lifted.key += token.text;
        }
        lifted.key += ' ';
        shaping.Pass(token);
        if (tokens)
            tokens->push_back(token);
    }
    return true;
}

} // namespace

void Lift(std::string_view sql, LiftedStatement& lifted, std::vector<Token>* tokens) {
    if (!LiftOnce(sql, lifted, tokens, false))
        LiftOnce(sql, lifted, tokens, true);
}

std::vector<Literal> ListElements(std::string_view list) {
    std::vector<Literal> elements;
    Scanner scanner(list);
    for (Token token = scanner.Next(); token.kind != TokenKind::End; token = scanner.Next())
        if (token.kind != TokenKind::Symbol)
            elements.push_back({token.kind, token.text});
    return elements;
}

bool IsDateMask(std::string_view text) {
    return EqualsNoCase(text, "yyyy-mm") || EqualsNoCase(text, "yyyymm") ||
           EqualsNoCase(text, "yyyy-mm-dd") || EqualsNoCase(text, "yyyymmdd");
}

std::string UnquotedText(std::string_view insideQuotes) {
    std::string text;
    text.reserve(insideQuotes.size());
    for (size_t at = 0; at < insideQuotes.size(); ++at) {
        text += insideQuotes[at];
        if (insideQuotes[at] == '\'')
            ++at;
    }
    return text;
}

} // namespace jxc
