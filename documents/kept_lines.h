// The lines of a grid as they stood, to be put back when what should replace them fails.
#pragma once

#include <vector>

#include "controls/grid.h"

namespace jxc {

class KeptLines {
  public:
    explicit KeptLines(Grid& grid);
    void PutBack();

  private:
    Grid& grid_;
    std::vector<std::vector<Value>> rows_;
    int selectedRow_, selectedColumn_;
};

} // namespace jxc
