// Without OpenSSL's libcrypto: everything but the key exchange works.
#include "automation/error.hpp"
#include "simulator/security/diffie_hellman.hpp"

namespace vorlan::simulator {

namespace {

[[noreturn]] void refuse() {
  throw Error(ErrorNumber::CannotCreateObject, {}, "this simulator was built without OpenSSL's libcrypto");
}

}  // namespace

Octets public_key(int, std::span<const std::uint8_t>) { refuse(); }
Octets session_key(int, std::span<const std::uint8_t>, std::span<const std::uint8_t>) { refuse(); }
Octets draw_exponent(int) { refuse(); }
bool is_degenerate(int, std::span<const std::uint8_t>) { refuse(); }
Octets sha1(std::span<const std::uint8_t>) { refuse(); }
std::uint16_t draw_nonce() { refuse(); }

}  // namespace vorlan::simulator
