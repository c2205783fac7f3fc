// Who signs in to a company, and with which pass word.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace jxc {

// Asks for a user and, where `kept` holds the hash of his pass word, for that word; nothing when the person gives up, or
// after ten wrong words, which is told. The window answers while a word is tested.
std::optional<std::string> SignIn(QWidget* parent, const std::vector<std::string>& users,
                                  const std::string& preset, const std::map<std::string, std::string>& kept);

} // namespace jxc
