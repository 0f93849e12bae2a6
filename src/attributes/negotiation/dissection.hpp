// Messages that carry attribute records, taken apart for people: every attribute by its name.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "attributes/attribute.hpp"
#include "attributes/negotiation/negotiation_message.hpp"
#include "automation/registry.hpp"

namespace vorlan {

/// The attribute classes of a registry.
class AttributeCatalogue {
 public:
  explicit AttributeCatalogue(const Registry& registry);

  /// An attribute that a record may be of.
  struct Candidate {
    const Attribute* attribute;
    std::size_t id_bits;
  };
  /// What a record may be, of the attributes of a protocol type (of all, if there is none): first those whose class
  /// takes the record. A record does not tell how wide its AttributeID is, so that there may be several.
  /// `accepted`: the record is one of a response, which holds a ValueID or a value.
  [[nodiscard]] std::vector<Candidate> candidates(std::string_view record, std::optional<int> protocol_type,
                                                  bool accepted) const;

 private:
  std::vector<Ref<Attribute>> attributes_;
};

/// The class of a message that carries attribute records, by its MessageID, which is the same in all protocols; null if
/// it is another message.
const NegotiationClass* carrier_of_records(std::string_view bits);

/// MessageID, TransactionID and attribute records. `protocol_type` is the number of the protocol over which the message
/// travels: it decides what an AttributeID means.
std::vector<DissectedField> dissect(const NegotiationClass& message, std::string_view bits,
                                    const AttributeCatalogue& catalogue, std::optional<int> protocol_type);

}  // namespace vorlan
