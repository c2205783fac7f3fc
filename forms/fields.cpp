#include "forms/fields.h"

#include "forms/edit_filter.h"
#include "session/dialect.h"
#include "session/lookups/lists.h"

namespace jxc {

TextField::TextField(Place place, std::string name, std::string caption, int maxBytes, bool numeric)
    : TextBox(place, std::move(name)) {
    this->caption = std::move(caption);
    FilterKeys(*this, maxBytes, numeric);
    onLeave = [this] { return CheckNoQuote(text); };
}

DigitsField::DigitsField(Place place, std::string name, std::string caption, int digits)
    : TextBox(place, std::move(name)) {
    this->caption = std::move(caption);
    maxBytes = digits;
    onKeyPress = [this, digits](int& keyCode) {
        EditKeyFilter(*this, keyCode, digits, true);
        if (keyCode >= ' ' && (keyCode < '0' || keyCode > '9'))
            keyCode = 0;
    };
}

ListField::ListField(Place place, std::string name, bool editable)
    : ListBox(place, std::move(name), editable) {
    onLeave = [this] { return ComboIndexByText(*this, text) >= 0 || CheckNoQuote(text); };
}

FixedList::FixedList(Place place, std::string name, std::string caption, std::vector<std::string> choices)
    : ListBox(place, std::move(name)) {
    this->caption = std::move(caption);
    items = std::move(choices);
    SetIndex(0);
}

std::string DateRange::Test(const std::string& column) const {
    const std::optional<Date> from = first.date ? first.date : last.date;
    if (!from)
        return "";
    if (!first.date || !last.date)
        return DayTest(column, " = ", *from, DayForm::Iso);
    return DayTest(column, " Between ", *from, DayForm::Iso) + " And " + DayLiteral(*last.date, DayForm::Iso);
}

} // namespace jxc
