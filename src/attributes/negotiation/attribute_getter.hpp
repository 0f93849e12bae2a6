// The getters of messages that carry attribute records: a row each.
#pragma once

#include <string_view>

#include "attributes/attribute.hpp"

namespace vorlan {

/// One getter: it finds a record by its AttributeID and hands it to an object of the attribute's class.
struct AttributeGetter {
  std::string_view name;           ///< "PRobj_AttrMaxMACFlows"
  Ref<Attribute> (*make)();        ///< the object that it returns
  std::string_view searched = {};  ///< the AttributeID; none: the one that the object builds with
  /// The script may name the AttributeID, and with it the flow or reservation, by a second argument.
  bool takes_id = false;
  std::string_view attribute = {};  ///< what error texts call it; none: the name without "PRobj_Attr"
  std::string_view message = {};    ///< and its message: "Configuration Request"
  std::string_view source = {};     ///< of its errors; none: class, full stop, name
};

template <class T>
Ref<Attribute> make_attribute() {
  return make<T>();
}

}  // namespace vorlan
