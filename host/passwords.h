// The pass words of users. Kept as Argon2id hashes, made slow on purpose; the word itself is nowhere.
#pragma once

#include <map>
#include <string>

namespace jxc {

constexpr int kPasswordBytes = 64; // of a pass word that is typed

// The hash to be kept; some tenths of a second and 64 MiB. "" for "", which is no pass word. A std::runtime_error when the
// memory is not to be had.
[[nodiscard]] std::string HashOfPassword(const std::string& password);

// Whether the word is the one whose hash is kept. As slow.
[[nodiscard]] bool IsPassword(const std::string& kept, const std::string& password);

// The hashes of the users of the session's company, by name; those without a pass word are not among them, nor is one whom
// the server itself has let in under the same name.
[[nodiscard]] std::map<std::string, std::string> KeptPasswords();
// The hash kept for the user of the session's company; "" for one without a pass word, and for one whom the server itself
// has let in under the same name.
[[nodiscard]] std::string KeptPassword(const std::string& user);

// Replaces it, in a transaction of its own, with its row in the trail.
void KeepPassword(const std::string& user, const std::string& hash);

} // namespace jxc
