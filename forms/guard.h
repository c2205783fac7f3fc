// Why a record is not stored, as data: when, what the person is told, and where the focus goes then.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace jxc {

struct Refusal {
    std::string text;
    Control* focus = nullptr;
};
using MayRefuse = std::optional<Refusal>;

struct Guard {
    std::function<bool()> when;
    std::string text; // "{}" in it becomes what `of` gives
    Control* focus = nullptr;
    std::function<std::string()> of = {};
};

// The first guard that refuses, in their order. What one throws is thrown: a check that could not be made lets nothing
// pass.
[[nodiscard]] MayRefuse FirstRefusal(const std::vector<Guard>& guards);

// Warns of the refusal and moves the focus.
void TellRefusal(Screen& screen, const Refusal& refusal);

} // namespace jxc
