#include "session/lookups/text_index.h"

#include <algorithm>
#include <cstring>

#include "base/folding.h"
#include "base/text.h"
#include "session/lookups/pinyin.h"

namespace jxc {

namespace {

constexpr char kFieldEnd = '\x1f', kRowEnd = '\x1e'; // no text holds them
constexpr size_t kDeadBytesKept = 1 << 20;

// By which field a row is found, in the order of the fields in it.
constexpr int kCode = 0, kBarCode = 1, kName = 2, kSpec = 3;
// How good a hit is, the best first.
enum Goodness { kExactCode, kCodeStart, kPartOfCode, kPartOfName, kPinyin };

std::string Folded(std::string_view text) {
    std::string folded = FoldText(text);
    std::ranges::replace_if(
        folded, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return folded;
}

std::string RowText(const IndexedTexts& texts) {
    std::string row = Folded(texts.code);
    row.append(1, kFieldEnd).append(Folded(texts.barCode));
    const std::string name = Folded(texts.name);
    row.append(1, kFieldEnd).append(name);
    row.append(1, kFieldEnd).append(Folded(texts.spec));
    for (const std::string& initials : PinyinInitials(name))
        row.append(1, kFieldEnd).append(initials);
    return row + kRowEnd;
}

} // namespace

void TextIndex::Append(std::int64_t id, std::string_view text) {
    rowOf_[id] = rows_.size();
    rows_.push_back({texts_.size(), id, true});
    texts_ += text;
}

void TextIndex::Set(std::int64_t id, const IndexedTexts& texts) {
    Remove(id);
    Append(id, RowText(texts));
}

void TextIndex::Remove(std::int64_t id) {
    const auto known = rowOf_.find(id);
    if (known == rowOf_.end())
        return;
    rows_[known->second].live = false;
    deadBytes_ += TextOf(known->second).size();
    rowOf_.erase(known);
    if (deadBytes_ > kDeadBytesKept && deadBytes_ > texts_.size() / 2)
        DropDead();
}

void TextIndex::Clear() {
    *this = TextIndex();
}

void TextIndex::DropDead() {
    TextIndex kept;
    for (size_t row = 0; row < rows_.size(); ++row)
        if (rows_[row].live)
            kept.Append(rows_[row].id, TextOf(row));
    *this = std::move(kept);
}

std::string_view TextIndex::TextOf(size_t row) const {
    const size_t end = row + 1 < rows_.size() ? rows_[row + 1].start : texts_.size();
    return std::string_view(texts_).substr(rows_[row].start, end - rows_[row].start);
}

std::string_view TextIndex::CodeOf(size_t row) const {
    const std::string_view text = TextOf(row);
    return text.substr(0, text.find(kFieldEnd));
}

// The row that holds the place, which stands at `from` or behind: mostly near by.
size_t TextIndex::RowAt(size_t place, size_t from) const {
    size_t step = 1;
    while (from + step < rows_.size() && rows_[from + step].start <= place) {
        from += step;
        step *= 2;
    }
    const auto first = rows_.begin() + static_cast<std::ptrdiff_t>(from);
    const auto last = rows_.begin() + static_cast<std::ptrdiff_t>(std::min(from + step, rows_.size()));
    const auto behind =
        std::upper_bound(first, last, place, [](size_t at, const Row& row) { return at < row.start; });
    return static_cast<size_t>(behind - rows_.begin()) - 1;
}

// The row's first hit is its best one: its fields stand in that order.
int TextIndex::Grade(size_t row, size_t place, size_t length) const {
    const auto start = texts_.begin() + static_cast<std::ptrdiff_t>(rows_[row].start);
    const auto field = std::count(start, texts_.begin() + static_cast<std::ptrdiff_t>(place), kFieldEnd);
    switch (field) {
    case kCode:
        if (place > rows_[row].start)
            return kPartOfCode;
        return texts_[place + length] == kFieldEnd ? kExactCode : kCodeStart;
    case kBarCode:
        return kPartOfCode;
    case kName:
    case kSpec:
        return kPartOfName;
    default:
        return kPinyin;
    }
}

TextIndex::Hits TextIndex::Find(std::string_view typed, size_t most) const {
    struct Hit {
        int grade;
        size_t row;
    };
    const std::string sought = Trim(Folded(typed));
    Hits hits;
    if (sought.empty() || most == 0)
        return hits;
    const auto better = [this](const Hit& a, const Hit& b) {
        return a.grade != b.grade ? a.grade < b.grade : CodeOf(a.row) < CodeOf(b.row);
    };
    std::vector<Hit> best; // a heap, its worst in front
    size_t at = 0, row = 0;
    while (at < texts_.size()) {
        const void* found = memmem(texts_.data() + at, texts_.size() - at, sought.data(), sought.size());
        if (!found)
            break;
        const auto place = static_cast<size_t>(static_cast<const char*>(found) - texts_.data());
        row = RowAt(place, row);
        at = rows_[row].start + TextOf(row).size();
        if (!rows_[row].live)
            continue;
        ++hits.count;
        const Hit hit{Grade(row, place, sought.size()), row};
        if (best.size() == most && !better(hit, best.front()))
            continue;
        if (best.size() == most) {
            std::ranges::pop_heap(best, better);
            best.pop_back();
        }
        best.push_back(hit);
        std::ranges::push_heap(best, better);
    }
    std::ranges::sort_heap(best, better);
    for (const Hit& hit : best)
        hits.ids.push_back(rows_[hit.row].id);
    return hits;
}

} // namespace jxc
