// What stands below a list: how many rows it has and what their figures add up to. It is added up while the list is filled,
// so it costs no question of its own.
#pragma once

#include <string>
#include <vector>

namespace jxc {

class ListSums {
  public:
    struct Figure {
        std::string caption;
        int decimals = 2;
    };
    explicit ListSums(std::vector<Figure> figures = {});

    // To the figure of that place. Sums of decimals have no binary residue.
    void Add(size_t place, double amount);
    // "共 15 行　数量合计 1,234.00　金额合计 5,678.00"
    [[nodiscard]] std::string Text(int rows) const;

  private:
    std::vector<Figure> figures_;
    std::vector<double> sums_;
};

} // namespace jxc
