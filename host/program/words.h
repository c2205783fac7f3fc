// The command line in Chinese: the words that the library puts around ours, and its complaints.
#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace jxc {

// Gives the help of the program, or of a command, its Chinese words. Before options are added: they take them over.
void SpeakChinese(CLI::App& app);

// Why the program's command line was not understood, in the words of the help.
std::string ReasonOf(const CLI::App& app, const CLI::ParseError& error);

} // namespace jxc
