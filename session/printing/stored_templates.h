// The templates of printed documents that a company keeps, one a document type and language; a type without one is
// printed by its default.
#pragma once

#include <optional>
#include <string>

namespace jxc {

// The text that is kept for the type in the session's language, as it stands.
std::optional<std::string> StoredTemplate(int type);

// Keeps `text` for the type in the session's language or, without a text, goes back to the default; with a row of the
// trail under the type's `name`, in a transaction of its own. False when what is kept is not `expected`: another user has
// changed it, and nothing is written. The text is written as it is: see TemplateDraft, which refuses what cannot be printed.
bool KeepTemplate(int type, const std::string& name, const std::optional<std::string>& expected,
                  const std::optional<std::string>& text);

} // namespace jxc
