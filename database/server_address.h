// Addresses of servers, as people write them and as they are shown. Only here are they taken apart, by the
// rules of the server's own library.
#pragma once

#include <string>
#include <string_view>

namespace jxc {

// Whether the text is an address "postgresql://..." or "postgres://...", in any case, and not a file or host.
[[nodiscard]] bool IsServerAddress(std::string_view text);

// The address for people to see and for what is written down: without any password in it, otherwise one that
// leads to the same place. An address that may be read in two ways, so that a part of a password could stand
// elsewhere, and one that cannot be read at all, is shown as "postgresql://...". A file or host as it is.
[[nodiscard]] std::string ShownAddress(const std::string& address);

// The address as the server's library reads it. Throws DatabaseError, whose text does not quote it, where
// ShownAddress shows nothing of it.
[[nodiscard]] std::string ReadableAddress(const std::string& address);

} // namespace jxc
