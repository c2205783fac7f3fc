#include "session/company/picture_file.h"

#include <array>
#include <filesystem>
#include <fstream>

#include "base/text.h"
#include "session/session.h"

namespace jxc {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargest = 32u << 20; // bytes: a picture beyond that would hold up the screen

fs::path Beside() {
    return session.IsJet() ? fs::path(session.UserPath).parent_path() : fs::path(session.PowerPath);
}

// By its first bytes: a name says nothing.
bool IsPicture(const fs::path& file) {
    std::array<char, 8> head{};
    std::ifstream(file, std::ios::binary).read(head.data(), head.size());
    const std::string_view bytes(head.data(), head.size());
    return bytes == std::string_view("\x89PNG\r\n\x1a\n", 8) || bytes.starts_with("\xff\xd8\xff");
}

} // namespace

PictureFile FindPicture(const std::string& name) {
    const std::string typed = Trim(name);
    if (typed.empty())
        return {};
    std::error_code failed;
    const fs::path path(typed);
    const fs::path file = path.is_absolute() ? path : Beside() / path;
    if (!fs::is_regular_file(file, failed) || failed)
        return {"", "没有找到图片文件。"};
    if (fs::file_size(file, failed) > kLargest || failed)
        return {"", "图片文件过大，不予显示。"};
    if (!IsPicture(file))
        return {"", "不是 PNG 或 JPEG 图片。"};
    return {file.string(), ""};
}

std::string CompanyLogo() {
    for (const char* name : {"logo.png", "logo.jpg"})
        if (const PictureFile logo = FindPicture(name); !logo.file.empty())
            return logo.file;
    return "";
}

} // namespace jxc
