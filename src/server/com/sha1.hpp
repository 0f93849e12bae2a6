// SHA-1, for identifiers that follow from a name. It protects nothing.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace vorlan::com {

std::array<std::uint8_t, 20> sha1(std::span<const std::uint8_t> message);

}  // namespace vorlan::com
