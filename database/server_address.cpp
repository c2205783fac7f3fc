#include "database/server_address.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "base/text.h"
#include "database/database_error.h"
#include "database/postgres_line.h"

namespace jxc {

namespace {

constexpr std::string_view kUnreadable = "postgresql://...";

struct Setting {
    std::string name, value;
    bool secret;
};

size_t LengthOfScheme(std::string_view text) {
    for (const std::string_view scheme : {"postgresql://", "postgres://"})
        if (text.size() >= scheme.size() && EqualsNoCase(text.substr(0, scheme.size()), scheme))
            return scheme.size();
    return 0;
}

std::string WithPlainScheme(const std::string& address) {
    const size_t scheme = LengthOfScheme(address);
    return LowerCase(address.substr(0, scheme)) + address.substr(scheme);
}

// Behind the user's @ no other may stand: it would belong to a password that was written as it is, and the
// library would take what follows for the host or the database.
bool IsAmbiguous(std::string_view address) {
    const std::string_view place = address.substr(0, address.find('?')).substr(LengthOfScheme(address));
    const size_t at = place.find('@'), slash = place.find('/');
    return at != std::string_view::npos && (slash < at || place.find('@', at + 1) != std::string_view::npos);
}

// The settings that an address names; nothing when it cannot be read.
std::optional<std::vector<Setting>> SettingsOf(const std::string& address) {
    if (IsAmbiguous(address))
        return {};
    char* error = nullptr;
    const PostgresOptions options(PQconninfoParse(WithPlainScheme(address).c_str(), &error));
    const PostgresText reason(error); // which may hold a part of a password
    if (!options)
        return {};
    std::vector<Setting> settings;
    for (const PQconninfoOption* option = options.get(); option->keyword; ++option)
        if (option->val && *option->val)
            settings.push_back({option->keyword, option->val, std::string_view(option->dispchar) == "*"});
    return settings;
}

// Characters that mean something in an address stand as %xx, but for those of `plain`.
std::string Escaped(std::string_view text, std::string_view plain) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (isLetter || byte >= 0x80 || std::string_view("-._~").find(c) != std::string_view::npos ||
            plain.find(c) != std::string_view::npos)
            escaped += c;
        else
            escaped.append("%").append({kDigits[byte >> 4], kDigits[byte & 15]});
    }
    return escaped;
}

// "h1:1,h2:2" of hosts and ports; nothing where they do not fit before the path: sockets, or other counts.
std::optional<std::string> Hosts(const std::string& hosts, const std::string& ports) {
    const std::vector<std::string> names = Split(hosts, ',');
    const std::vector<std::string> numbers = ports.empty() ? std::vector<std::string>() : Split(ports, ',');
    if (hosts.find('/') != std::string::npos || (!numbers.empty() && numbers.size() != names.size()))
        return {};
    std::string text;
    for (size_t i = 0; i < names.size(); ++i) {
        const bool isNumber = names[i].find(':') != std::string::npos;
        text.append(i > 0 ? "," : "");
        text += isNumber ? "[" + Escaped(names[i], ":") + "]" : Escaped(names[i], "");
        if (!numbers.empty() && !numbers[i].empty())
            text += ":" + Escaped(numbers[i], "");
    }
    return text;
}

std::string AddressOf(std::string_view scheme, const std::vector<Setting>& settings) {
    std::map<std::string, std::string> place;
    std::vector<Setting> others;
    for (const Setting& setting : settings) {
        if (setting.secret)
            continue;
        const bool isPlace = setting.name == "user" || setting.name == "host" || setting.name == "port" ||
                             setting.name == "dbname";
        if (isPlace)
            place[setting.name] = setting.value;
        else
            others.push_back(setting);
    }
    std::string address(scheme);
    if (!place["user"].empty())
        address += Escaped(place["user"], "") + "@";
    if (const std::optional<std::string> hosts = Hosts(place["host"], place["port"]))
        address += *hosts;
    else
        for (const char* name : {"host", "port"})
            if (!place[name].empty())
                others.push_back({name, place[name], false});
    if (!place["dbname"].empty())
        address += "/" + Escaped(place["dbname"], "");
    char separator = '?';
    for (const Setting& setting : others) {
        address.append(1, separator).append(setting.name).append("=").append(Escaped(setting.value, "/,:"));
        separator = '&';
    }
    return address;
}

// The library's other form of an address, "host=... password=...", is no address here, but might be given.
bool IsListOfSettings(std::string_view text) {
    std::string plain = LowerCase(text);
    std::erase_if(plain, [](char c) { return c == ' ' || c == '\t'; });
    return plain.find("password=") != std::string::npos;
}

} // namespace

bool IsServerAddress(std::string_view text) {
    return LengthOfScheme(text) > 0;
}

std::string ShownAddress(const std::string& address) {
    if (!IsServerAddress(address))
        return IsListOfSettings(address) ? std::string(kUnreadable) : address;
    const std::optional<std::vector<Setting>> settings = SettingsOf(address);
    if (!settings)
        return std::string(kUnreadable);
    return AddressOf(LowerCase(address.substr(0, LengthOfScheme(address))), *settings);
}

std::string ReadableAddress(const std::string& address) {
    const bool readable =
        IsServerAddress(address) ? SettingsOf(address).has_value() : !IsListOfSettings(address);
    if (!readable)
        throw DatabaseError("数据库服务器的地址有误：应为 postgresql://用户名@主机/数据库，"
                            "其中用户名和密码中的 %、/、@ 等字符须写为 %25、%2F、%40。");
    return WithPlainScheme(address);
}

} // namespace jxc
