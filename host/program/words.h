// The command line in Chinese: the words that the library puts around ours, and its complaints.
#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace jxc {

// Gives the help its Chinese words. Before commands and options are added: they take the words over.
void SpeakChinese(CLI::App& app);

// Why a command line was not understood, in the words of the help.
std::string ReasonOf(const CLI::ParseError& error);

} // namespace jxc
