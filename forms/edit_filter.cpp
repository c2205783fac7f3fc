#include "forms/edit_filter.h"

#include "base/text.h"
#include "controls/screen.h"
#include "controls/view.h"
#include "session/messages.h"

namespace jxc {

namespace {

// The box's text with `insert` in place of the selection.
std::u32string TextAfter(const EditBox& box, const std::u32string& insert) {
    std::u32string points = ToCodePoints(box.text);
    const size_t from = std::min(static_cast<size_t>(box.selStart), points.size());
    return points.replace(from, std::min(static_cast<size_t>(box.selLength), points.size() - from), insert);
}

// A point typed where the text has one already moves it here; the text is taken over if it is a number then.
void MovePoint(EditBox& box) {
    std::u32string points = ToCodePoints(box.text);
    const size_t old = points.find(U'.');
    points.erase(old, 1);
    size_t at = static_cast<size_t>(box.selStart);
    if (old < at)
        --at;
    points.insert(std::min(at, points.size()), 1, U'.');
    const std::string text = FromCodePoints(points);
    if (!IsNumericText(text))
        return;
    box.text = text;
    box.selStart = static_cast<int>(at) + 1;
    box.selLength = 0;
}

void FilterNumber(EditBox& box, int& keyCode, const std::u32string& insert) {
    const std::string after = FromCodePoints(TextAfter(box, insert));
    if (keyCode == 'E' || keyCode == 'e') {
        keyCode = 0;
    } else if (keyCode == '.' && box.selLength == 0 && box.text.find('.') != std::string::npos) {
        MovePoint(box);
        keyCode = 0;
    } else if (!IsNumericText(after)) {
        keyCode = 0;
    }
}

} // namespace

void EditKeyFilter(EditBox& box, int& keyCode, int maxBytes, bool numeric) {
    if (maxBytes == 0 || (keyCode > 0 && keyCode < 32 && keyCode != kPasteKey))
        return;
    const std::u32string insert = keyCode == kPasteKey ? ToCodePoints(ClipboardLine())
                                                       : std::u32string(1, static_cast<char32_t>(keyCode));
    const int rest = AnsiByteLength(FromCodePoints(TextAfter(box, U"")));
    if (rest + AnsiByteLength(FromCodePoints(insert)) > maxBytes) {
        if (keyCode == kPasteKey)
            Warn(box.screen.title, GetResStr(kMsgPasteTooLong));
        keyCode = 0;
        return;
    }
    if (numeric)
        FilterNumber(box, keyCode, insert);
}

void FilterKeys(TextBox& box, int maxBytes, bool numeric) {
    box.maxBytes = maxBytes;
    box.onKeyPress = [&box, maxBytes, numeric](int& keyCode) {
        EditKeyFilter(box, keyCode, maxBytes, numeric);
    };
}

bool CheckNoQuote(const std::string& text) {
    if (text.find('\'') == std::string::npos)
        return true;
    Warn("", GetResStr(kMsgQuote));
    return false;
}

} // namespace jxc
