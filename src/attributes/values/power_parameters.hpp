// PowerParameters of the reverse traffic channel MAC protocol, subtype 3 (C.S0024-A 10.11.7): one attribute for each
// payload size. The twelve classes are one family; only the size in their names and some defaults differ.
#pragma once

#include <array>

#include "attributes/values/rtc_mac_values.hpp"
#include "codec/member_name.hpp"

namespace vorlan {

/// What differs. ValueID and AttributeID follow from the payload size index; values in 0.25 dB.
struct PowerParametersRow {
  std::uint16_t bits;         ///< payload size
  std::string_view value_id;  ///< the payload size index
  std::string_view lo_lat_pre = "00000000";
  std::string_view lo_lat_post = "00000000";
  std::string_view hi_cap;  ///< before and after the transition
};

// The high-capacity values are the standard's for sizes up to 1536 as far as they are known for certain.
inline constexpr PowerParametersRow kPowerParameters128{128, "00000001", "00001101", "00000011", "00000011"};
inline constexpr PowerParametersRow kPowerParameters256{.bits = 256, .value_id = "00000010", .hi_cap = "00001111"};
inline constexpr PowerParametersRow kPowerParameters512{.bits = 512, .value_id = "00000011", .hi_cap = "00011011"};
inline constexpr PowerParametersRow kPowerParameters768{.bits = 768, .value_id = "00000100", .hi_cap = "00100010"};
inline constexpr PowerParametersRow kPowerParameters1024{.bits = 1024, .value_id = "00000101", .hi_cap = "00100111"};
inline constexpr PowerParametersRow kPowerParameters1536{.bits = 1536, .value_id = "00000110", .hi_cap = "00101110"};
inline constexpr PowerParametersRow kPowerParameters2048{.bits = 2048, .value_id = "00000111", .hi_cap = "00110100"};
inline constexpr PowerParametersRow kPowerParameters3072{.bits = 3072, .value_id = "00001000", .hi_cap = "00111001"};
inline constexpr PowerParametersRow kPowerParameters4096{.bits = 4096, .value_id = "00001001", .hi_cap = "00111110"};
inline constexpr PowerParametersRow kPowerParameters6144{.bits = 6144, .value_id = "00001010", .hi_cap = "01000100"};
inline constexpr PowerParametersRow kPowerParameters8192{.bits = 8192, .value_id = "00001011", .hi_cap = "01001010"};
inline constexpr PowerParametersRow kPowerParameters12288{.bits = 12288, .value_id = "00001100", .hi_cap = "01010101"};

/// A text with the payload size behind it: "PRstr_HiCapT2PTransition" and 128.
template <MemberName Front, std::uint16_t kBits>
inline constexpr auto kSized = [] {
  constexpr std::size_t kDigits = kBits < 1000 ? 3 : kBits < 10000 ? 4 : 5;
  std::array<char, Front.view().size() + kDigits> text{};
  std::copy(Front.view().begin(), Front.view().end(), text.begin());
  std::size_t place = text.size();
  for (std::uint32_t rest = kBits; rest != 0; rest /= 10) text[--place] = static_cast<char>('0' + rest % 10);
  return text;
}();
template <MemberName Front, const PowerParametersRow& Row>
constexpr std::string_view sized() noexcept {
  constexpr auto& kText = kSized<Front, Row.bits>;
  return {kText.data(), kText.size()};
}

template <const PowerParametersRow& Row>
inline constexpr RecordField kPowerParametersFields[] = {
    {.name = "PRstr_ValueId",
     .bits = 8,
     .initial = Row.value_id,
     .wrong_length = "Length of <ValueId> field should be 8 bits.",
     .summary = "ValueID."},
    // A source that scripts know: it names a property that the class does not have.
    {.name = sized<"PRstr_LoLatT2PTransition", Row>(),
     .bits = 2,
     .initial = "10",
     .source_member = "PRstr_ProfileType",
     .summary = "Subpackets sent at the pre-transition ratio less one, low latency; 3: all."},
    fixed(sized<"PRstr_LoLatTerminationTarget", Row>(), 2, "10", nullptr, "Subpackets aimed at less one, low latency."),
    fixed(sized<"PRstr_HiCapT2PTransition", Row>(), 2, "11", nullptr,
          "Subpackets sent at the pre-transition ratio less one, high capacity; 3: all."),
    fixed(sized<"PRstr_HiCapTerminationTarget", Row>(), 2, "11", nullptr,
          "Subpackets aimed at less one, high capacity."),
    fixed(sized<"PRstr_T2PLoLatPreTransition", Row>(), 8, Row.lo_lat_pre, &kQuarterDb, "Low latency, before."),
    fixed(sized<"PRstr_T2PLoLatPostTransition", Row>(), 8, Row.lo_lat_post, &kQuarterDb, "Low latency, after."),
    fixed(sized<"PRstr_T2PHiCapPreTransition", Row>(), 8, Row.hi_cap, &kQuarterDb, "High capacity, before."),
    fixed(sized<"PRstr_T2PHiCapPostTransition", Row>(), 8, Row.hi_cap, &kQuarterDb, "High capacity, after."),
};
template <const PowerParametersRow& Row>
inline constexpr ValueSpec kValPowerParametersOf{
    .name = sized<"SB_Mac_ValPowerParameters", Row>(),
    .summary = sized<"A value of the PowerParameters of payload size ", Row>(),
    .clause = "10.11.7",
    .fields = kPowerParametersFields<Row>,
    .texts = RecordTexts::WithError,
    .set_operation = sized<"SetPowerParameters", Row>(),
    .builds_id_alone = true};

using SB_Mac_ValPowerParameters128 = ValueOf<kValPowerParametersOf<kPowerParameters128>>;
using SB_Mac_ValPowerParameters256 = ValueOf<kValPowerParametersOf<kPowerParameters256>>;
using SB_Mac_ValPowerParameters512 = ValueOf<kValPowerParametersOf<kPowerParameters512>>;
using SB_Mac_ValPowerParameters768 = ValueOf<kValPowerParametersOf<kPowerParameters768>>;
using SB_Mac_ValPowerParameters1024 = ValueOf<kValPowerParametersOf<kPowerParameters1024>>;
using SB_Mac_ValPowerParameters1536 = ValueOf<kValPowerParametersOf<kPowerParameters1536>>;
using SB_Mac_ValPowerParameters2048 = ValueOf<kValPowerParametersOf<kPowerParameters2048>>;
using SB_Mac_ValPowerParameters3072 = ValueOf<kValPowerParametersOf<kPowerParameters3072>>;
using SB_Mac_ValPowerParameters4096 = ValueOf<kValPowerParametersOf<kPowerParameters4096>>;
using SB_Mac_ValPowerParameters6144 = ValueOf<kValPowerParametersOf<kPowerParameters6144>>;
using SB_Mac_ValPowerParameters8192 = ValueOf<kValPowerParametersOf<kPowerParameters8192>>;
using SB_Mac_ValPowerParameters12288 = ValueOf<kValPowerParametersOf<kPowerParameters12288>>;

}  // namespace vorlan
