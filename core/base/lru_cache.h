// LRUCache: a map of at most `capacity` entries that drops the least recently used one when an
// insert goes beyond it. Looking a key up and inserting it both make it the most recently used;
// inserting a key already present replaces its value. Every operation is O(1) on average.
// Not thread-safe; pointers from `find` stay valid until their entry is evicted or removed.
#pragma once

#include <cstddef>
#include <functional>
#include <iterator>
#include <list>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tindra {

template <class Key, class Value, class Hash = std::hash<Key>, class KeyEqual = std::equal_to<Key>>
class LRUCache {
 public:
  // A capacity of 0 gives a cache that keeps nothing.
  explicit LRUCache(std::size_t capacity) : capacity_(capacity) {}

  std::size_t capacity() const { return capacity_; }
  std::size_t size() const { return entries_.size(); }
  bool empty() const { return entries_.empty(); }

  // The value for `key`, now the most recently used; nullptr (and no change) when absent.
  Value* find(const Key& key) {
    const auto found = index_.find(key);
    if (found == index_.end()) return nullptr;
    markMostRecent(found->second);
    return &found->second->second;
  }

  // Whether `key` is present, without changing the order.
  bool contains(const Key& key) const { return index_.contains(key); }

  // Stores `value` under `key` as the most recently used entry (replacing an existing value), then
  // evicts the least recently used entry if the cache holds more than `capacity`.
  void insert(const Key& key, Value value) {
    if (const auto found = index_.find(key); found != index_.end()) {
      found->second->second = std::move(value);
      markMostRecent(found->second);
      return;
    }
    entries_.emplace_back(key, std::move(value));
    index_.emplace(key, std::prev(entries_.end()));
    if (entries_.size() > capacity_) evictLeastRecent();
  }

  // Removes `key`; false when it was absent.
  bool remove(const Key& key) {
    const auto found = index_.find(key);
    if (found == index_.end()) return false;
    entries_.erase(found->second);
    index_.erase(found);
    return true;
  }

  void clear() {
    index_.clear();
    entries_.clear();
  }

  // The keys from least to most recently used.
  std::vector<Key> order() const {
    std::vector<Key> keys;
    keys.reserve(entries_.size());
    for (const auto& entry : entries_) keys.push_back(entry.first);
    return keys;
  }

 private:
  using Entries = std::list<std::pair<Key, Value>>;  // least recently used first

  void markMostRecent(typename Entries::iterator entry) {
    entries_.splice(entries_.end(), entries_, entry);
  }

  void evictLeastRecent() {
    index_.erase(entries_.front().first);
    entries_.pop_front();
  }

  std::size_t capacity_;
  Entries entries_;
  std::unordered_map<Key, typename Entries::iterator, Hash, KeyEqual> index_;
};

}  // namespace tindra
