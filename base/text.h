// Texts as users type and read them: UTF-8, leading-number conversion, display of numbers, lengths in bytes
// of the local code page (where a Chinese character counts 2). The decimal point is a point whatever the
// country's locale says: no number passes through the C library's formatting.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace jxc {

// The number at the start of `text` after blanks: sign, digits, point, exponent; 0 when there is none, infinite
// when it is too large for a number.
[[nodiscard]] double Val(std::string_view text);
// Whether the whole text, blanks around it apart, is one number.
[[nodiscard]] bool IsNumericText(std::string_view text);

[[nodiscard]] std::string Trim(std::string_view text);
// Only the letters A to Z change: codes and key words are ASCII.
[[nodiscard]] std::string UpperCase(std::string_view text);
[[nodiscard]] std::string LowerCase(std::string_view text);
[[nodiscard]] bool EqualsNoCase(std::string_view a, std::string_view b);

// `text` without outer blanks of any script (the wide one, the one that does not break) and without characters that
// nobody sees.
[[nodiscard]] std::string TrimAnyBlanks(std::string_view text);
// A number's text without the commas between its thousands. With commas elsewhere, "12,5" say, it is left as it is and
// is no number: nobody can tell which sign its writer means.
[[nodiscard]] std::string WithoutThousands(std::string_view text);
// The shortest decimal text that reads back as `number`, without exponent between 1e-7 and 1e15.
[[nodiscard]] std::string NumberText(double number);
// `number` with exactly `decimals` decimals, halves away from zero on its decimal text; "," between thousands
// on request. A value that rounds to zero shows no minus sign.
[[nodiscard]] std::string FormatFixed(double number, int decimals, bool thousands = false);
// Rounds to `decimals` decimals through the number's 15-digit decimal text, so that 0.00015 rounds as a
// person expects.
enum class Halves { ToEven, AwayFromZero };
[[nodiscard]] double RoundDecimal(double number, int decimals, Halves halves = Halves::AwayFromZero);
// a + b as a person adds decimal figures: without binary residue, so that 0.1 + 0.2 - 0.3 is 0 and what was
// added can be taken away again. Twelve decimals and 15 digits are kept.
[[nodiscard]] double AddDecimal(double a, double b);

// The code points of a UTF-8 text, and back.
[[nodiscard]] std::u32string ToCodePoints(std::string_view text);
[[nodiscard]] std::string FromCodePoints(std::u32string_view points);

// Bytes in the local code page: a Chinese character counts 2, a Latin one 1.
[[nodiscard]] int AnsiByteLength(std::string_view text);
// `text` cut before the character that passes `limit` bytes.
[[nodiscard]] std::string TruncateToBytes(std::string_view text, int limit);

// `text` padded with blanks or cut to `width` characters.
[[nodiscard]] std::string PadRight(std::string_view text, int width);
// Characters, not bytes: the part from the 1-based position on, at most `count` characters.
[[nodiscard]] std::string MidText(std::string_view text, int start, int count = -1);
[[nodiscard]] int CharacterCount(std::string_view text);

[[nodiscard]] std::vector<std::string> Split(std::string_view text, char separator);

// "a,b,c".
[[nodiscard]] std::string JoinedByCommas(const std::vector<std::string>& parts);

} // namespace jxc
