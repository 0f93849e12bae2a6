// The Diffie-Hellman key exchange of the simulated test set and its terminal: arithmetic, and what they refuse. Whole
// exchanges are run by the tests of the security objects.
#ifdef VORLAN_KEY_EXCHANGE

#include <gtest/gtest.h>

#include "common/octets.hpp"
#include "script.hpp"
#include "simulator/security/diffie_hellman.hpp"

namespace vorlan::test {

namespace {

using simulator::parse_hex;

TEST(KeyExchange, TerminalRefusesBadMessages) {
  Script script;
  EXPECT_EQ(script.ask(5, "02 2A 00 00 00 00", 3), "");
  EXPECT_EQ(script.complaint(), "ANKeyComplete before KeyRequest");
  const auto key = script.part("Security")->call("GetANPublicKey", i16(1024)).to_object();
  EXPECT_EQ(key->get("Length").to_integer(), 1024);
  EXPECT_EQ(script.ask(5, "00 2A 07 " + key->get("Hex").to_text(), 1), "");
  EXPECT_EQ(script.complaint(), "KeyRequest has no public key of the 768 bits agreed upon");
  EXPECT_EQ(script.ask(5, "00 2A 07 " + octets_text(simulator::Octets(96, 0xFF)), 1), "");
  EXPECT_EQ(script.complaint(), "the access network's public key is degenerate");
}

TEST(KeyExchange, SecurityObjectTakesThingsInTheirOrder) {
  Script script;
  const auto security = script.part("Security");
  EXPECT_EQ(error_number([&] { security->call("SetATPublicKey", received("02")); }), 5);
  EXPECT_EQ(error_number([&] { security->call("GetKeySignature", i16(0)); }), 5);
  EXPECT_EQ(error_number([&] { security->call("GetANPublicKey", i16(512)); }), 5);
  security->call("GetANPublicKey", i16(768));
  EXPECT_EQ(error_number([&] { security->call("SetATPublicKey", received("02")); }), 5) << "8 bits";
  EXPECT_EQ(error_number([&] { security->call("SetATPublicKey", Ref<Object>()); }), 91);
  EXPECT_NE(security->get("Nonce").to_text() + security->get("Nonce").to_text(),
            security->get("Nonce").to_text() + security->get("Nonce").to_text());
}

// p - 1 of both moduli.
constexpr std::string_view kHighest768 =
    "FFFFFFFFFFFFFFFFC90FDAA22168C234C4C6628B80DC1CD129024E088A67CC74020BBEA63B139B22514A08798E3404DD"
    "EF9519B3CD3A431B302B0A6DF25F14374FE1356D6D51C245E485B576625E7EC6F44C42E9A63A3620FFFFFFFFFFFFFFFE";
constexpr std::string_view kHighest1024 =
    "FFFFFFFFFFFFFFFFC90FDAA22168C234C4C6628B80DC1CD129024E088A67CC74020BBEA63B139B22514A08798E3404DD"
    "EF9519B3CD3A431B302B0A6DF25F14374FE1356D6D51C245E485B576625E7EC6F44C42E9A637ED6B0BFF5CB6F406B7ED"
    "EE386BFB5A899FA5AE9F24117C4B1FE649286651ECE65381FFFFFFFFFFFFFFFE";

TEST(KeyExchange, Arithmetic) {
  for (const int bits : {768, 1024}) {
    const std::size_t size = static_cast<std::size_t>(bits / 8);
    simulator::Octets small(size);
    small[size - 2] = 0x01;
    EXPECT_EQ(simulator::public_key(bits, std::vector<std::uint8_t>{8}), small) << "2^8, leading zeros kept";
    simulator::Octets highest = simulator::public_key(bits, std::vector<std::uint8_t>{0});
    EXPECT_TRUE(simulator::is_degenerate(bits, highest)) << "2^0 is 1";
    highest = parse_hex(bits == 768 ? kHighest768 : kHighest1024);
    EXPECT_TRUE(simulator::is_degenerate(bits, highest)) << "p - 1";
    --highest.back();
    EXPECT_FALSE(simulator::is_degenerate(bits, highest)) << "p - 2";
    EXPECT_EQ(simulator::session_key(bits, highest, std::vector<std::uint8_t>{8}), small) << "(-2)^8";
  }
  EXPECT_EQ(octets_text(simulator::sha1(parse_hex("61 62 63"))),
            "A9 99 3E 36 47 06 81 6A BA 3E 25 71 78 50 C2 6C 9C D0 D8 9D");
  // SHA-1 of 01 | 2A | 1234 | 0000000000056789.
  EXPECT_EQ(octets_text(simulator::key_signature(parse_hex("01"), 0x2A, 0x1234, 0x56789)),
            "E8 57 B5 59 0D 47 69 60 CE 02 1E E4 7A 05 97 A9 42 68 6A A6");
  EXPECT_EQ(simulator::long_time_stamp(0x50010, 0xFFF0), 0x4FFF0U) << "the low half has gone round";
  EXPECT_EQ(simulator::long_time_stamp(0x50010, 0x0010), 0x50010U);
}

}  // namespace

}  // namespace vorlan::test

#endif
