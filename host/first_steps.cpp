#include "host/first_steps.h"

#include <algorithm>

#include "database/recordset.h"
#include "session/lookups/book.h"
#include "settings/type_codes.h"

namespace jxc {

namespace {

bool HasAny(Connection& connection, const std::string& field, const std::string& fromWhere) {
    return !Recordset(connection, "Select Top 1 " + field + " From " + fromWhere).AtEnd();
}

// Stock documents come first: there, an approved one is found soonest.
bool IsAtWork(Connection& connection) {
    for (const int type : {DocType::Receipt, DocType::PurchaseOrder, DocType::Plan, DocType::Enquiry})
        if (HasAny(connection, "fInvID", BookStem(type, false) + "01 Where fInvSHR<>''"))
            return true;
    return HasAny(connection, "fInvID", BookStem(DocType::Receipt, true) + "01");
}

void ReadWaiting(Connection& connection, FirstSteps& steps) {
    const Recordset last(connection, "Select Top 1 fInvID,fInvType,fInvNo From " +
                                         BookStem(DocType::Receipt, false) + "01 Order By fInvID Desc");
    if (last.AtEnd())
        return;
    steps.waiting = static_cast<std::int32_t>(last["fInvID"].AsLong());
    steps.waitingType = static_cast<int>(last["fInvType"].AsLong());
    steps.waitingNumber = last["fInvNo"].AsText();
}

} // namespace

FirstSteps ReadFirstSteps(Connection& connection) {
    FirstSteps steps;
    steps.done = IsAtWork(connection);
    if (steps.done)
        return steps;
    steps.warehouse = HasAny(connection, "fCkName", "tJXC_Ck");
    steps.product = HasAny(connection, "fCpID", "tJXC_Cp");
    steps.card = HasAny(connection, "fID", "cards");
    steps.opening =
        HasAny(connection, "fInvID",
               BookStem(DocType::Opening, false) + "01 Where fInvType=" + std::to_string(DocType::Opening));
    ReadWaiting(connection, steps);
    return steps;
}

bool IsTaken(const FirstSteps& steps, FirstStep step) {
    switch (step) {
    case FirstStep::Warehouse:
        return steps.warehouse;
    case FirstStep::Product:
        return steps.product;
    case FirstStep::Card:
        return steps.card;
    case FirstStep::Opening:
        return steps.opening;
    default:
        return steps.done;
    }
}

FirstStep NextStep(const FirstSteps& steps) {
    if (steps.waiting != 0)
        return FirstStep::Document;
    for (const FirstStep step :
         {FirstStep::Warehouse, FirstStep::Product, FirstStep::Card, FirstStep::Opening})
        if (!IsTaken(steps, step))
            return step;
    return FirstStep::Document;
}

} // namespace jxc
