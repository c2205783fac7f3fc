// The requests that work on a screen.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "controls/screen.h"
#include "controls/view.h"

namespace jxc {

// A request that does not fit: an unknown operation, a missing or wrong part.
class RequestError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Parts of a request; a RequestError when they are missing or of the wrong kind.
std::string TextOf(const nlohmann::json& request, const std::string& part);
std::int64_t NumberOf(const nlohmann::json& request, const std::string& part);
Value ValueOf(const nlohmann::json& request, const std::string& part); // text, number, flag (1 or 0) or null
bool EqualsButton(const std::string& name, BoxButton button);

// Performs the request on the screen; the reply's value, null for none.
nlohmann::json ServeScreen(Screen& screen, const nlohmann::json& request);
// The operations that it knows.
std::vector<std::string> ScreenOperations();

} // namespace jxc
