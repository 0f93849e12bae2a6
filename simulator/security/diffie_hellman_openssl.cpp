// With OpenSSL's libcrypto.
#include <openssl/bn.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <memory>

#include "automation/error.hpp"
#include "simulator/security/diffie_hellman.hpp"

namespace vorlan::simulator {

namespace {

template <auto Free>
struct Freed {
  template <class T>
  void operator()(T* thing) const noexcept {
    Free(thing);
  }
};
// An exponent and what is made of it leave nothing behind.
using Number = std::unique_ptr<BIGNUM, Freed<BN_clear_free>>;
using Context = std::unique_ptr<BN_CTX, Freed<BN_CTX_free>>;

void demand(bool done) {
  if (!done) throw Error(ErrorNumber::InvalidCall, {}, "the arithmetic library failed");
}

Number demand(BIGNUM* number) {
  demand(number != nullptr);
  return Number(number);
}

/// The moduli of the protocol are those of the first two Oakley groups.
Number modulus(int key_bits) {
  check_key_length(key_bits);
  return demand(key_bits == 768 ? BN_get_rfc2409_prime_768(nullptr) : BN_get_rfc2409_prime_1024(nullptr));
}

Number number(std::span<const std::uint8_t> octets) {
  return demand(BN_bin2bn(octets.data(), static_cast<int>(octets.size()), nullptr));
}

Number small_number(BN_ULONG value) {
  Number result = demand(BN_new());
  demand(BN_set_word(result.get(), value) == 1);
  return result;
}

Octets octets(const Number& value, int key_bits) {
  Octets result(static_cast<std::size_t>(key_bits / 8));
  demand(BN_bn2binpad(value.get(), result.data(), static_cast<int>(result.size())) >= 0);
  return result;
}

Octets power(int key_bits, const Number& base, std::span<const std::uint8_t> exponent) {
  const Number p = modulus(key_bits);
  const Number secret = number(exponent);
  BN_set_flags(secret.get(), BN_FLG_CONSTTIME);
  const Number result = demand(BN_new());
  const Context context(BN_CTX_new());
  demand(context != nullptr);
  demand(BN_mod_exp(result.get(), base.get(), secret.get(), p.get(), context.get()) == 1);
  return octets(result, key_bits);
}

}  // namespace

Octets public_key(int key_bits, std::span<const std::uint8_t> exponent) {
  return power(key_bits, small_number(2), exponent);
}

Octets session_key(int key_bits, std::span<const std::uint8_t> peer, std::span<const std::uint8_t> exponent) {
  return power(key_bits, number(peer), exponent);
}

Octets draw_exponent(int key_bits) {
  const Number p = modulus(key_bits);
  const Number range = demand(BN_dup(p.get()));
  demand(BN_sub_word(range.get(), 2) == 1);
  const Number exponent = demand(BN_new());
  demand(BN_priv_rand_range(exponent.get(), range.get()) == 1);  // 0 to p - 3
  demand(BN_add_word(exponent.get(), 1) == 1);
  return octets(exponent, key_bits);
}

bool is_degenerate(int key_bits, std::span<const std::uint8_t> key) {
  const Number value = number(key);
  const Number highest = modulus(key_bits);
  demand(BN_sub_word(highest.get(), 1) == 1);
  return BN_is_zero(value.get()) || BN_is_one(value.get()) || BN_cmp(value.get(), highest.get()) >= 0;
}

Octets sha1(std::span<const std::uint8_t> octets) {
  Octets digest(EVP_MAX_MD_SIZE);
  unsigned int size = 0;
  demand(EVP_Digest(octets.data(), octets.size(), digest.data(), &size, EVP_sha1(), nullptr) == 1);
  digest.resize(size);
  return digest;
}

std::uint16_t draw_nonce() {
  Octets octets(2);
  demand(RAND_bytes(octets.data(), 2) == 1);
  return static_cast<std::uint16_t>(number16(octets));
}

}  // namespace vorlan::simulator
