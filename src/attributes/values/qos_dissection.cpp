// QoS profiles taken apart for people.
#include "attributes/dissection.hpp"
#include "attributes/values/qos_values.hpp"

namespace vorlan {

namespace {

constexpr std::uint32_t kOctet = 8;

std::string bracketed(std::size_t index) { return "[" + std::to_string(index) + "]"; }

constexpr std::uint32_t set_bits(std::span<const RecordField> fields, bool verbose) {
  std::uint32_t bits = 0;
  for (const RecordField& field : fields) {
    const bool there = field.only.kind == OnlyIf::Kind::Always || (field.only.kind == OnlyIf::Kind::One) == verbose;
    bits += there ? field.bits : 0U;
  }
  return bits;
}
constexpr std::uint32_t kTerse = set_bits(kQoSSetFields, false);
constexpr std::uint32_t kVerbose = set_bits(kQoSSetFields, true);
constexpr std::uint32_t kWithPacketSize = set_bits(kQoSSetWithPacketSizeFields, true);

/// The attribute set at a place, up to the octet in which it ends. `whole` ends with the profile.
DissectedField dissect_set(std::string_view whole, std::uint32_t at, std::uint32_t profile_start) {
  static const RecordClass kUsual{kQoSSetFields, {}};
  static const RecordClass kLater{kQoSSetWithPacketSizeFields, {}};
  constexpr std::uint32_t kVerbosePlace = 11;
  const std::uint32_t said = kOctet * static_cast<std::uint32_t>(small_value(slice(whole, {at, 4})));
  const bool verbose = slice(whole, {at + kVerbosePlace, 1}) == "1";
  const bool later = verbose && said >= kWithPacketSize;
  const std::uint32_t known = later ? kWithPacketSize : verbose ? kVerbose : kTerse;
  const auto up_to_octet = [&](std::uint32_t end) {
    return profile_start + (end - profile_start + kOctet - 1) / kOctet * kOctet;
  };
  const std::uint32_t end = std::min(up_to_octet(at + std::max(said, known)), static_cast<std::uint32_t>(whole.size()));

  DissectedField set{.first = at + std::size_t{1}};
  set.below = dissect(later ? kLater : kUsual, whole, {at, end - at});
  if (up_to_octet(at + said) < at + known) set.below.front().note = "less than its fields";
  DissectedField& last = set.below.back();
  if (end >= at + known + kOctet) last.name = "Unknown";
  return set;
}

std::vector<DissectedField> dissect_sets(std::string_view whole, Extent profile) {
  const std::string_view bits = whole.substr(0, profile.offset + std::size_t{profile.width});
  std::vector<DissectedField> tree{dissected_leaf("FlowPriority", nullptr, bits, {profile.offset, 4}),
                                   dissected_leaf("QoSAttribSetCount", nullptr, bits, {profile.offset + 4, 3})};
  auto at = profile.offset + 7;
  const std::size_t count = small_value(tree.back().bits);
  bool ended = false;
  for (std::size_t i = 0; i < count && !ended && at < bits.size(); ++i) {
    DissectedField set = dissect_set(bits, at, profile.offset);
    set.name = bracketed(i);
    ended = small_value(set.below.front().bits) == 0;
    if (ended) {
      set.below.resize(1);
      set.below.front().note = "ends the list";
    }
    const DissectedField& last = set.below.back();
    at = static_cast<std::uint32_t>(last.first - 1 + last.bits.size());
    tree.push_back(std::move(set));
  }
  if (at < bits.size()) {
    tree.push_back(dissected_leaf("Rest", nullptr, bits, {at, static_cast<std::uint32_t>(bits.size()) - at}));
  }
  return tree;
}

}  // namespace

std::vector<DissectedField> dissect_supported_profile(std::size_t type, std::string_view whole, Extent profile) {
  constexpr std::size_t kFlowProfileIDs = 2;
  constexpr std::uint32_t kIdBits = 16;
  std::vector<DissectedField> tree;
  if (type != kFlowProfileIDs) return tree;
  for (std::uint32_t at = 0; at < profile.width && profile.offset + at < whole.size(); at += kIdBits) {
    tree.push_back(dissected_leaf("FlowProfileID" + bracketed(at / kIdBits), &kHex, whole,
                                  {profile.offset + at, std::min(kIdBits, profile.width - at)}));
  }
  return tree;
}

std::vector<DissectedField> dissect_requested_profile(std::size_t type, std::string_view whole, Extent profile) {
  if (type == 1 && profile.width > 0) return dissect_sets(whole, profile);
  return dissect_supported_profile(type, whole, profile);
}

std::vector<DissectedField> dissect_granted_profile(std::size_t type, std::string_view whole, Extent profile) {
  if (type != 1 || profile.width != kOctet) return dissect_supported_profile(type, whole, profile);
  return {dissected_leaf("QoSAttribSetID", nullptr, whole, {profile.offset, 7}),
          dissected_leaf("Reserved", nullptr, whole, {profile.offset + 7, 1})};
}

}  // namespace vorlan
