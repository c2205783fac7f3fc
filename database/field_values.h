// Values on their way into fields: the kind of each field is enforced here, in the same way for both engines.
#pragma once

#include "base/value.h"
#include "database/schema.h"

namespace jxc {

// `value` as the field holds it: whole numbers rounded and within the field's bits, money with four decimals,
// dates normal, a number in a text field as its text. Null stays null. A wrong kind is a DatabaseError that
// names the field.
[[nodiscard]] Value FieldValue(const FieldDef& field, Value value);

} // namespace jxc
