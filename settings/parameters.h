// The one row of system parameters, as documents need it.
#pragma once

#include <string>

#include "base/date.h"

namespace jxc {

enum class TaxWay { None = 0, OnTop = 1, Contained = 2 };
enum class CostMethod { WeightedAverage = 0, MovingAverage = 1, WholeMoving = 2 };

struct Parameters {
    bool approveOnSave = false;        // fSysAuto1
    bool printOnSave = false;          // fSysAuto2
    bool quickPayment = false;         // fSysAuto3
    bool warnsOfNegativeStock = false; // fSysWarnKc
    CostMethod costMethod = CostMethod::WeightedAverage;
    Date periodStart = MakeDate(1900, 1, 1);
    Date periodEnd = MakeDate(1900, 1, 31);
    TaxWay taxWay = TaxWay::None;
    double taxRate = 0; // a fraction
    int quantityDecimals = 0;
    int priceDecimals = 0;
    int maxRows = 0;   // lines of a document, 0 for no limit
    std::string memo1; // captions of the two line memos, "" hides them
    std::string memo2;
    bool kits = false;                    // fSysFun3: kit templates are in use
    bool handlersFromSalespeople = false; // fSysFun10
};

// Reads the row; a DatabaseError in plain words when it is missing or holds no period.
Parameters ReadParameters();
std::string ParametersStatement();

} // namespace jxc
