#include "session/lookups/card_index.h"

#include <map>

#include "session/lookups/database_routines.h"
#include "session/lookups/kept_index.h"
#include "session/session.h"

namespace jxc {

namespace {

KeptIndex& TheIndex() {
    static KeptIndex index(kNotedCards, "Select fID,CompCode,'',CompName,name From cards Where CompName<>''");
    return index;
}

} // namespace

CardSuggestions SuggestCards(const std::string& typed, size_t most) {
    const TextIndex::Hits hits = TheIndex().UpToDate().Find(typed, most);
    CardSuggestions found;
    found.more = hits.count > hits.ids.size();
    if (hits.ids.empty())
        return found;
    const Rows rows =
        Conn().Query("Select fID,CompCode,CompName,name From cards Where fID" + InKeys(hits.ids));
    std::map<std::int64_t, size_t> rowOf;
    for (size_t row = 0; row < rows.Count(); ++row)
        rowOf[rows.At(row, 0).AsLong()] = row;
    for (const std::int64_t id : hits.ids)
        if (const auto known = rowOf.find(id); known != rowOf.end())
            found.rows.push_back({id, rows.At(known->second, 1).AsText(), rows.At(known->second, 2).AsText(),
                                  rows.At(known->second, 3).AsText()});
    return found;
}

} // namespace jxc
