// Texts of cells as other programs take them. A spreadsheet runs a text that begins as a formula does, also
// one from a file or the clipboard: such a text gets an apostrophe before it, as the common guidance says,
// and loses it again where it comes back.
#pragma once

#include <string>

namespace jxc {

// For texts, not for numbers: -5 that is a number stays one.
std::string HarmlessText(const std::string& text);
std::string OriginalText(const std::string& harmless);

// A text of a file that separates by commas, safe also where it is read by semicolons: a formula sign behind a
// semicolon or a line end within the text gets an apostrophe before it. Such a file is not read back.
std::string HarmlessWithin(const std::string& text);

// A text between separators: in quotes when it holds one, a quote or a line end.
std::string Quoted(const std::string& text, char separator);

} // namespace jxc
