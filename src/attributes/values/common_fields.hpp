// Rows that value records of several protocols share.
#pragma once

#include "attributes/values/value_of.hpp"
#include "codec/meanings.hpp"

namespace vorlan {

inline constexpr RecordField kValueIdField{
    .name = "PRstr_ValueId", .bits = 8, .summary = "ValueID, by which a response names the value that it accepts."};

/// Fills the last octet up; only a received record has it to be read.
inline constexpr RecordField kReservedField{.name = "PRstr_Reserved",
                                            .width = to_octet(),
                                            .settable = false,
                                            .summary = "The bits that fill the last octet up."};

inline constexpr Code kRPCSteps[] = {{0, "0.5 dB"}, {1, "1 dB"}};
inline constexpr Meaning kRPCStep{.codes = kRPCSteps, .summary = "0.5 or 1 dB"};

/// A row of fixed width. Initial values are the defaults of the standard; fields without one start as zeros.
constexpr RecordField fixed(std::string_view name, std::uint16_t bits, std::string_view initial = {},
                            const Meaning* meaning = nullptr, std::string_view summary = {}) {
  return {.name = name, .bits = bits, .initial = initial, .meaning = meaning, .summary = summary};
}

}  // namespace vorlan
