// Which class a received message belongs to, by protocol and MessageID.
#pragma once

#include <string_view>
#include <vector>

#include "automation/registry.hpp"
#include "messages/message_class.hpp"

namespace vorlan {

/// The message classes of a registry, in its order.
std::vector<const MessageClass*> message_classes(const Registry& registry);

/// The classes whose MessageID the bits begin with. `where` is a protocol's name, its type number ("0x10" or "16") or a
/// layer's name; error 5 for anything else. Several classes are left where a layer's protocols use the same number.
std::vector<const MessageClass*> identify(const Registry& registry, std::string_view where, std::string_view bits);

/// The constant MessageID of a class, or that of the air interface where the class holds none, as bits; the empty text
/// where the message has none.
std::string message_id_of(const MessageSpec& message);

}  // namespace vorlan
