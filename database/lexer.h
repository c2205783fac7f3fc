// Reads the text of a statement. One pass does what every call needs: it refuses what may not be sent (a
// second statement, a quote left open, characters the language does not have), lifts the literals out, and
// leaves a key under which the prepared statement is cached. Statements that differ only in their literals
// share a key.
//
// The language has no comments: "a--5" is a minus a negative number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jxc {

// A list stands for the literals of an In with two or more of one kind, commas and all: a list of any length
// is one parameter, and the statement the same.
enum class TokenKind { Word, Integer, Decimal, Text, Date, IntegerList, TextList, Symbol, End };

// A literal as the statement's text holds it: digits, what stands between the quotes ('' not yet undone),
// what stands between the two #, what stands between the parentheses of a list.
struct Literal {
    TokenKind kind;
    std::string_view text;
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view text;
    int literal =
        -1; // the place in LiftedStatement::literals; -1 for a word, a symbol or a literal left in the text
};

// Valid as long as the statement's text is.
struct LiftedStatement {
    std::string key; // the statement without its literals, a letter for the type of each
    std::vector<Literal> literals;
};

// Lifts `sql` into `lifted`, whose memory is used again; collects the tokens too when asked. Literals that
// shape the statement stay in it: the n of Top, lengths and styles of Convert, masks of Format, the column
// numbers of Order By, and whatever stands in an ALTER TABLE. Where a Group By or Order By holds literals,
// equal ones of the statement are one, so that its expressions are those of the select list. Throws
// DatabaseError.
void Lift(std::string_view sql, LiftedStatement& lifted, std::vector<Token>* tokens = nullptr);

// The literals of a list, which stand between its commas.
[[nodiscard]] std::vector<Literal> ListElements(std::string_view list);
// Whether the text is a mask of Format, such as yyyy-mm.
[[nodiscard]] bool IsDateMask(std::string_view text);
// 'it''s' without its quotes: it's.
[[nodiscard]] std::string UnquotedText(std::string_view insideQuotes);

} // namespace jxc
