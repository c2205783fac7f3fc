// Prepared statements by their literal-free text. The number is bounded; the one used longest ago goes first.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <unordered_map>

#include "database/engine.h"

namespace jxc {

struct CachedStatement {
    std::unique_ptr<EngineStatement> handle;
    std::vector<Parameter> parameters;
    bool givesRows = false;
    bool changesSchema = false;
    std::string table; // of an updatable select
};

class StatementCache {
  public:
    explicit StatementCache(size_t capacity) : capacity_(capacity) {}

    // Null when there is none.
    CachedStatement* Find(const std::string& key) {
        const auto found = places_.find(key);
        if (found == places_.end())
            return nullptr;
        entries_.splice(entries_.begin(), entries_, found->second);
        return &found->second->statement;
    }

    CachedStatement& Add(const std::string& key, CachedStatement statement) {
        if (entries_.size() >= capacity_) {
            places_.erase(entries_.back().key);
            entries_.pop_back();
        }
        entries_.push_front({key, std::move(statement)});
        places_[key] = entries_.begin();
        return entries_.front().statement;
    }

    void Clear() {
        places_.clear();
        entries_.clear();
    }
    size_t Size() const { return entries_.size(); }

    // Scratch memory of the call at hand, kept from one statement to the next.
    LiftedStatement lifted;
    std::vector<Value> values;

  private:
    struct Entry {
        std::string key;
        CachedStatement statement;
    };

    size_t capacity_;
    std::list<Entry> entries_; // last used first
    std::unordered_map<std::string, std::list<Entry>::iterator> places_;
};

} // namespace jxc
