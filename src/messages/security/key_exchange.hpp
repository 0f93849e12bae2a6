// Diffie-Hellman Key Exchange Protocol messages (C.S0024-400-C 2.6) of the security layer.
#pragma once

#include <concepts>
#include <utility>

#include "codec/meanings.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace key_exchange {
inline constexpr Code kResults[] = {{0, "signatures differ"}, {1, "verified"}};
inline constexpr Meaning kResult{.codes = kResults, .summary = "verified or not"};
inline constexpr Meaning kSystemTime{.unit = "s", .scale = 0.08, .summary = "80 ms, the low 16 bits of the time"};
/// Whether a public key is as wide as a session key: 768 or 1024 bits.
constexpr bool is_key_length(std::integral auto bits) noexcept {
  return std::cmp_equal(bits, 768) || std::cmp_equal(bits, 1024);
}
void check_public_key(const Message& message, std::size_t index, std::string_view value);
}  // namespace key_exchange

inline constexpr FieldSpec kKeyRequestFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of <TransactionId> field should be 8 bits.",
     .summary = "TransactionID of the exchange."},
    {.name = "PRstr_Timeout",
     .bits = 8,
     .wrong_length = "Length of <Timeout> field should be 8 bits.",
     .meaning = &kSeconds,
     .summary = "What the access network needs to compute the session key."},
    {.name = "PRstr_ANPubKey",
     .starts_empty = true,
     .width = rest_of_message(),
     .accepts = Accepts::WholeOctets,
     .check = key_exchange::check_public_key,
     .wrong_length = "Length of <ANPubKey> field should be 768 or 1024 bits.",
     .meaning = &kHex,
     .summary = "The access network's public key, as wide as the session key: 768 or 1024 bits."},
};
inline constexpr MessageSpec kKeyRequest{
    .name = "SB_Sec_MsgKeyRequest",
    .summary = "The access network opens a key exchange with its public key.",
    .clause = "400-C 2.6",
    .protocol = Protocol::KeyExchange,
    .id = "00000000",
    .fields = kKeyRequestFields,
    .not_initialized = "Class not initialized. Please call <Initialize> of KeyRequest Message first.",
};
using SB_Sec_MsgKeyRequest = MessageOf<kKeyRequest>;

inline constexpr FieldSpec kKeyResponseFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the KeyRequest."},
    {.name = "PRstr_Timeout",
     .bits = 8,
     .meaning = &kSeconds,
     .summary = "What the access terminal needs to compute the session key."},
    {.name = "PRstr_ATPubKey",
     .width = rest_of_message(),
     .meaning = &kHex,
     .summary = "The access terminal's public key: the rest of the message."},
};
inline constexpr MessageSpec kKeyResponse{
    .name = "SB_Sec_MsgKeyResponse",
    .summary = "The access terminal answers with its public key.",
    .clause = "400-C 2.6",
    .protocol = Protocol::KeyExchange,
    .direction = Direction::Parsed,
    .id_value = 0x01,
    .has_id_value = true,
    .fields = kKeyResponseFields,
    .not_set = "KeyResponse message object set to nothing. Please set PRobj_MessageObject property first.",
};
using SB_Sec_MsgKeyResponse = MessageOf<kKeyResponse>;

inline constexpr FieldSpec kANKeyCompleteFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of <TransactionId> field should be 8 bits.",
     .summary = "That of the KeyRequest."},
    {.name = "PRstr_Nonce",
     .bits = 16,
     .wrong_length = "Length of <Nonce> field should be 16 bits.",
     .meaning = &kHex,
     .summary = "Random bits that are signed."},
    {.name = "PRstr_TimeStampShort",
     .bits = 16,
     .wrong_length = "Length of <TimeStampShort> field should be 16 bits.",
     .meaning = &key_exchange::kSystemTime,
     .summary = "When the signature was made; the terminal completes it to 64 bits, which are signed."},
    {.name = "PRstr_KeySignature",
     .bits = 160,
     .wrong_length = "Length of <KeySignature> field should be 160 bits.",
     .meaning = &kHex,
     .summary = "SHA-1 over session key, TransactionID, Nonce and the 64-bit time."},
};
inline constexpr MessageSpec kANKeyComplete{
    .name = "SB_Sec_MsgANKeyComplete",
    .summary = "The access network shows by a signature that it holds the session key.",
    .clause = "400-C 2.6",
    .protocol = Protocol::KeyExchange,
    .id = "00000010",
    .fields = kANKeyCompleteFields,
    .not_initialized = "Class not initialized. Please call <Initialize> of ANKeyComplete Message first.",
};
using SB_Sec_MsgANKeyComplete = MessageOf<kANKeyComplete>;

inline constexpr FieldSpec kATKeyCompleteFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the ANKeyComplete."},
    {.name = "PRstr_Result",
     .bits = 1,
     .meaning = &key_exchange::kResult,
     .summary = "\"1\" if the access terminal finds the signature right."},
    {.name = "PRstr_Reserved", .bits = 7, .summary = "Zeros."},
};
// No blank between the two sentences: scripts know the text so.
inline constexpr MessageSpec kATKeyComplete{
    .name = "SB_Sec_MsgATKeyComplete",
    .summary = "The access terminal tells whether the access network's signature is right.",
    .clause = "400-C 2.6",
    .protocol = Protocol::KeyExchange,
    .direction = Direction::Parsed,
    .id_value = 0x03,
    .has_id_value = true,
    .fields = kATKeyCompleteFields,
    .not_set = "ATKey message Object Set To Nothing.Please set PRobj_MessageObject property first.",
};
using SB_Sec_MsgATKeyComplete = MessageOf<kATKeyComplete>;

}  // namespace vorlan
