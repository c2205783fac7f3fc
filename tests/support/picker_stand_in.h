// Stands in for the screen in which a person picks a product: notes by what it was asked, and picks.
#pragma once

#include <string>

#include "controls/screen.h"
#include "session/session.h"

namespace jxc::test {

class PickerStandIn {
  public:
    // The product that every opening picks, 0 for none.
    explicit PickerStandIn(std::int32_t picks);
    ~PickerStandIn();
    PickerStandIn(const PickerStandIn&) = delete;
    PickerStandIn& operator=(const PickerStandIn&) = delete;

    std::int32_t picks;
    int opened = 0;
    std::string CpCode, CpName, CpBarCode; // asked for last
};

} // namespace jxc::test
