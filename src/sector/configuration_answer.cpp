#include "sector/configuration_answer.hpp"

#include <algorithm>

#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "sector/signalling.hpp"

namespace vorlan {

namespace {

constexpr std::size_t kOctet = 8;
constexpr std::size_t kValueIdBits = 8;

/// Simple attributes are numbered from the highest AttributeID downwards, complex ones from 0 upwards.
bool is_numbered_downwards(std::string_view id) { return id.front() == '1'; }
/// Of the session configuration protocol, 0x10NN are complex.
bool is_below_prior_session(std::string_view id) { return id.substr(0, kOctet) < "00010000"; }

constexpr AttributeNumbering kSessionConfiguration{16, 16, is_below_prior_session};
constexpr AttributeNumbering kEarly{8, 8, is_numbered_downwards};
constexpr AttributeNumbering kLater{16, 8, is_numbered_downwards};

}  // namespace

const AttributeNumbering& attribute_numbering(std::int16_t protocol_type, bool later_mac) {
  if (protocol_type == protocol_types::kSessionConfiguration) return kSessionConfiguration;
  return protocol_type == protocol_types::kReverseTrafficMac && later_mac ? kLater : kEarly;
}

std::string accepted_records(const NegotiationMessage& request, const AttributeNumbering& numbering) {
  std::string accepted;
  for (const Extent& place : request.index().records()) {
    const std::string_view record = slice(request.message_string(), place);
    const std::string_view content = record.substr(std::min(kOctet, record.size()));
    const std::string_view id = content.substr(0, numbering.id_bits);
    const bool simple = id.size() == numbering.id_bits && numbering.is_simple(id);
    const std::size_t chosen = numbering.id_bits + (simple ? numbering.simple_value_bits : kValueIdBits);
    if (record.size() != place.width || content.size() < chosen) {
      throw Error(ErrorNumber::TypeMismatch, {}, "an attribute record is cut short");
    }
    accepted += long_to_bin(static_cast<std::int32_t>(chosen / kOctet), kOctet);
    accepted += content.substr(0, chosen);
  }
  return accepted;
}

}  // namespace vorlan
