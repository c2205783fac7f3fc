#include "database/field_values.h"

#include <limits>

#include "base/text.h"
#include "database/connection.h"
#include "database/statement_parameters.h"
#include "database/storable_text.h"

namespace jxc {

namespace {

[[noreturn]] void Refuse(const FieldDef& field, const Value& value) {
    throw DatabaseError("字段 " + std::string(field.name) + " 不能存入“" + value.AsText() + "”。");
}

double Number(const FieldDef& field, const Value& value) {
    if (value.IsText() && !IsNumericText(value.AsText()))
        Refuse(field, value);
    const double number = value.AsDouble();
    if (!std::isfinite(number))
        throw DatabaseError("字段 " + std::string(field.name) + " 的数值超出范围。");
    return number;
}

template <typename Whole>
Value WholeNumber(const FieldDef& field, const Value& value) {
    const double number = Number(field, value);
    if (number < std::numeric_limits<Whole>::min() || number > std::numeric_limits<Whole>::max())
        throw DatabaseError("字段 " + std::string(field.name) + " 的数值超出范围。");
    return Value(static_cast<std::int64_t>(std::llrint(number)));
}

} // namespace

Value FieldValue(const FieldDef& field, Value value) {
    if (value.IsNull())
        return value;
    switch (field.type) {
    case FieldType::Long:
        return WholeNumber<std::int32_t>(field, value);
    case FieldType::Short:
        return WholeNumber<std::int16_t>(field, value);
    case FieldType::Double:
        return Value(Number(field, value));
    case FieldType::Money:
        return Value(RoundDecimal(Number(field, value), 4));
    case FieldType::Date: {
        const std::string date = value.IsText() ? NormalDate(value.AsText()) : "";
        if (date.empty())
            Refuse(field, value);
        return Value(date);
    }
    case FieldType::Text:
        break;
    }
    if (!value.IsText())
        return Value(value.AsText());
    RequireStorable(value.Text());
    return value;
}

} // namespace jxc
