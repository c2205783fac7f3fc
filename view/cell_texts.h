// Texts of cells as other programs take them. A spreadsheet runs a text that begins as a formula does, also
// one from a file or the clipboard: such a text gets an apostrophe before it, as the common guidance says,
// and loses it again where it comes back.
#pragma once

#include <string>

namespace jxc {

// For texts, not for numbers: -5 that is a number stays one.
std::string HarmlessText(const std::string& text);
std::string OriginalText(const std::string& harmless);

// A text between separators: in quotes when it holds one, a quote or a line end.
std::string Quoted(const std::string& text, char separator);

} // namespace jxc
