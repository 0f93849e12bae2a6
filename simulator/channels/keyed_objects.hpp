// Objects by key, as a test set's collections hold them.
#pragma once

#include "automation/bind.hpp"

namespace vorlan::simulator {

/// Keys are compared without regard to case; objects keep the order in which they came.
class KeyedObjects {
 public:
  /// By key, or by number from 1 on. Error 9 if there is none.
  [[nodiscard]] Ref<Object> item(const Value& key) const;
  /// Nothing if there is none.
  [[nodiscard]] Ref<Object> find(std::string_view key) const;
  /// Replaces the object of that key.
  void put(std::string key, Ref<Object> object);
  /// Error 9 if there is none.
  void remove(const Value& key);

  [[nodiscard]] std::int16_t count() const noexcept { return static_cast<std::int16_t>(entries_.size()); }
  /// An array of texts.
  [[nodiscard]] Value keys() const;

 private:
  using Entry = std::pair<std::string, Ref<Object>>;
  [[nodiscard]] std::size_t index_of(const Value& key) const;
  /// As many as there are if there is none.
  [[nodiscard]] std::size_t place_of(std::string_view key) const noexcept;

  std::vector<Entry> entries_;
};

/// A collection without more to it: sent and received messages by label, fading paths.
class KeyedCollection final : public BoundObject<KeyedCollection> {
 public:
  Ref<Object> item(const Value& key) const { return objects.item(key); }
  void remove(const Value& key) { objects.remove(key); }
  [[nodiscard]] std::int16_t count() const noexcept { return objects.count(); }
  [[nodiscard]] Value keys() const { return objects.keys(); }

  static constexpr ClassInfo::Texts texts() {
    return {"KeyedCollection", "A simulated test set's objects by key: messages by label, fading paths.", ""};
  }
  static std::span<const BoundMember> members();

  KeyedObjects objects;
};

}  // namespace vorlan::simulator
