#include "base/log.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>

namespace jxc {

namespace {

constexpr std::uintmax_t kMostBytes = 1 << 20;
constexpr int kGenerations = 3;

void Rotate(const std::string& file) {
    std::error_code ignored;
    if (std::filesystem::file_size(file, ignored) < kMostBytes || ignored)
        return;
    for (int older = kGenerations; older > 0; --older)
        std::filesystem::rename(older == 1 ? file : file + "." + std::to_string(older - 1),
                                file + "." + std::to_string(older), ignored);
}

std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local)};
}

std::string OneLine(std::string_view text) {
    std::string line(text);
    for (char& c : line)
        if (static_cast<unsigned char>(c) < ' ')
            c = ' ';
    return line;
}

} // namespace

std::string LogFile() {
    if (const char* named = std::getenv("JXC_LOG"))
        return named;
    const char* settings = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    if ((!settings || !*settings) && (!home || !*home))
        return "";
    const std::string folder = settings && *settings ? settings : std::string(home) + "/.config";
    return folder + "/lzJxc/jxc.log";
}

void Log(std::string_view subject, std::string_view text) {
    const std::string file = LogFile();
    if (file.empty())
        return;
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(file).parent_path(), ignored);
    Rotate(file);
    const int out = open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (out < 0)
        return;
    const std::string line = Now() + " [" + OneLine(subject) + "] " + OneLine(text) + "\n";
    const auto written = write(out, line.data(), line.size());
    static_cast<void>(written); // nobody is left to tell
    close(out);
}

} // namespace jxc
