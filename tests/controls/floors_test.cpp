// The house stands: no folder includes from a floor above its own.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace {

TEST(Floors, IncludeDownwardsOnly) {
    const std::vector<std::string> floors{
        "base",  "database", "controls", "session",     "forms",    "settings", "master", "documents",
        "close", "stock",    "plans",    "performance", "analysis", "view",     "robot",  "host"};
    const std::filesystem::path root(JXC_ROOT);
    int files = 0;
    for (size_t floor = 0; floor < floors.size(); ++floor) {
        if (!std::filesystem::exists(root / floors[floor]))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / floors[floor])) {
            if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
                continue;
            ++files;
            std::ifstream file(entry.path());
            for (std::string line; std::getline(file, line);)
                for (size_t above = floor + 1; above < floors.size(); ++above)
                    EXPECT_FALSE(line.starts_with("#include \"" + floors[above] + "/"))
                        << entry.path() << ": " << line;
        }
    }
    EXPECT_GT(files, 100);
}

} // namespace
