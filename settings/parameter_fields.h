// The fields of parameters that are asked for when a company is made, and later where they are set.
#pragma once

#include "forms/fields.h"
#include "forms/guard.h"
#include "settings/parameters.h"

namespace jxc {

struct TaxWayField : FixedList {
    TaxWayField(Place place, std::string name)
        : FixedList(place, std::move(name), "计税方式", {"0.不计税", "1.营业税", "2.增值税"}) {}
    TaxWay Way() const { return static_cast<TaxWay>(Index()); }
};

struct CostMethodField : FixedList {
    CostMethodField(Place place, std::string name)
        : FixedList(place, std::move(name), "成本核算", {"0.加权平均法", "1.移动平均法", "2.整体移动法"}) {}
    CostMethod Method() const { return static_cast<CostMethod>(Index()); }
};

// A fraction of 1; 13 typed for 13 % would be thirteen times the amount.
struct TaxRateField : TextField {
    TaxRateField(Place place, std::string name) : TextField(place, std::move(name), "税率", 8, true) {}
    Guard MustBeAFraction();
};

} // namespace jxc
