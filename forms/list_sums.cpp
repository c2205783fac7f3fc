#include "forms/list_sums.h"

#include <utility>

#include "base/text.h"

namespace jxc {

ListSums::ListSums(std::vector<Figure> figures) : figures_(std::move(figures)), sums_(figures_.size()) {}

void ListSums::Add(size_t place, double amount) {
    sums_[place] = AddDecimal(sums_[place], amount);
}

std::string ListSums::Text(int rows) const {
    std::string text = "共 " + std::to_string(rows) + " 行";
    for (size_t place = 0; place < figures_.size(); ++place)
        text +=
            "　" + figures_[place].caption + " " + FormatFixed(sums_[place], figures_[place].decimals, true);
    return text;
}

} // namespace jxc
