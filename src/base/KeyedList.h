#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/FatalError.h"
#include "base/Text.h"

namespace quendle {

// The ordered container of all collections of objects, states, frames, sounds and scripts: keeps
// insertion order, is read by index from 1 or by key, ignores case in keys.
template <class T>
class KeyedList {
 public:
  struct Entry {
    std::string key;  // a blank one is a key like any other
    T value;
  };

  // `noun` names the kind of entry in messages, such as "state".
  explicit KeyedList(const char* noun = "entry") : noun_(noun) {}

  // Appends under a key. A key that is present is fatal; `place` tells where the entry stands.
  void Add(T value, std::string key, FilePlace place = {}) {
    if (Find(key) != nullptr) {
      throw FatalError(std::string("there are two ") + noun_ + " entries named \"" + key + "\"",
                       std::move(place));
    }
    entries_.push_back({std::move(key), std::move(value)});
  }
  // Appends under a key that may be present already; Find gives the last.
  void AddRepeatable(T value, std::string key) {
    entries_.push_back({std::move(key), std::move(value)});
  }

  std::size_t Count() const { return entries_.size(); }
  bool Empty() const { return entries_.empty(); }

  // By index from 1. An index outside the list is fatal.
  T& Item(std::size_t index) { return entries_[Checked(index)].value; }
  const T& Item(std::size_t index) const { return entries_[Checked(index)].value; }
  // By position from 0, for walks that have looked at Count.
  const T& At(std::size_t position) const { return entries_[position].value; }
  const std::string& KeyOf(std::size_t index) const { return entries_[Checked(index)].key; }

  // By key; the last match wins, nothing without one.
  T* Find(std::string_view key) { return const_cast<T*>(std::as_const(*this).Find(key)); }
  const T* Find(std::string_view key) const {
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
      if (EqualsNoCase(entry->key, key)) return &entry->value;
    }
    return nullptr;
  }
  // By key; a key that isn't there is fatal, and the message names the nearest one.
  T& Item(std::string_view key) {
    if (T* found = Find(key)) return *found;
    throw FatalError(std::string("there is no ") + noun_ + " named \"" + std::string(key) + "\"" +
                     DidYouMean(key, Keys()));
  }

  void RemoveAt(std::size_t index) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
  }
  // Removes the first entry of that key; without one nothing happens.
  void Remove(std::string_view key) {
    for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
      if (EqualsNoCase(entry->key, key)) {
        entries_.erase(entry);
        return;
      }
    }
  }
  void Clear() { entries_.clear(); }

  std::vector<std::string> Keys() const {
    std::vector<std::string> keys;
    for (const Entry& entry : entries_) keys.push_back(entry.key);
    return keys;
  }

  auto begin() { return entries_.begin(); }
  auto end() { return entries_.end(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

 private:
  std::size_t Checked(std::size_t index) const {
    if (index < 1 || index > entries_.size()) {
      throw FatalError(std::string("there is no ") + noun_ + " number " + std::to_string(index) +
                       " in a list of " + std::to_string(entries_.size()));
    }
    return index - 1;
  }

  const char* noun_;
  std::vector<Entry> entries_;
};

}  // namespace quendle
