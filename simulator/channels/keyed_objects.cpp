#include "simulator/channels/keyed_objects.hpp"

#include <algorithm>

namespace vorlan::simulator {

namespace {

constexpr BoundMember kMembers[] = {
    method<&KeyedCollection::item>("Item", "Key", "The object of a key, or of a number from 1 on; error 9 if none."),
    method<&KeyedCollection::remove>("Remove", "Key", "Drops an object; error 9 if there is none."),
    property<&KeyedCollection::count>("Count", "How many objects there are."),
    property<&KeyedCollection::keys>("Keys", "All keys, oldest first, as an array of texts."),
};

}  // namespace

std::span<const BoundMember> KeyedCollection::members() { return kMembers; }

std::size_t KeyedObjects::place_of(std::string_view key) const noexcept {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return equals_ignoring_case(entry.first, key); });
  return static_cast<std::size_t>(found - entries_.begin());
}

std::size_t KeyedObjects::index_of(const Value& key) const {
  const std::string* const text = key.as<std::string>();
  const std::size_t index =
      text != nullptr ? place_of(*text) : static_cast<std::size_t>(std::int32_t{key.to_integer()} - 1);
  if (index >= entries_.size()) {
    throw Error(ErrorNumber::SubscriptOutOfRange, {}, "nothing is called \"" + key.to_text() + '"');
  }
  return index;
}

Ref<Object> KeyedObjects::item(const Value& key) const { return entries_[index_of(key)].second; }

Ref<Object> KeyedObjects::find(std::string_view key) const {
  const std::size_t index = place_of(key);
  return index < entries_.size() ? entries_[index].second : nullptr;
}

void KeyedObjects::put(std::string key, Ref<Object> object) {
  const std::size_t index = place_of(key);
  if (index < entries_.size()) {
    entries_[index].second = std::move(object);
  } else {
    entries_.emplace_back(std::move(key), std::move(object));
  }
}

void KeyedObjects::remove(const Value& key) {
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index_of(key)));
}

Value KeyedObjects::keys() const {
  Value::Array keys;
  for (const Entry& entry : entries_) keys.emplace_back(entry.first);
  return keys;
}

}  // namespace vorlan::simulator
