// The negotiation that all protocol objects of the security layer share.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "attributes/simple_attribute.hpp"
#include "automation/class_info.hpp"
#include "sector/signalling.hpp"
#include "security/security_protocol.hpp"

namespace vorlan {

/// The way to the access terminal that the protocol objects of one session share, TransactionIDs included.
struct SecurityLink {
  TestSetAccess access;
  Ref<Object> signalling;
  Ref<Object> messages;
  std::uint8_t next_transaction_id = 0;

  [[nodiscard]] Signalling open() const { return {access, signalling, messages}; }
};

inline constexpr ErrorRow kWrongArgument{{},
                                         "Invalid argument type or value not of expected type.",
                                         "an argument is Nothing, of another type or out of range"};
inline constexpr ErrorRow kWrongSubtype{
    {}, "a subtype is 0 to 65535", "a subtype out of range", ErrorNumber::InvalidCall};

/// Error 1: an argument of another kind than is due.
[[noreturn]] void refuse_argument(std::string_view source);
/// The object that an argument of Initialize is; error 1 for anything else, Nothing included.
Ref<Object> object_argument(const Value& argument, std::string_view source);
/// The number that it is; the same error for anything that is no number, and nothing for one that no Long holds.
std::optional<std::int32_t> number_argument(const Value& argument, std::string_view source);
/// A link of its own, for a protocol object that a script initialises; a configuration names the test set's members.
std::shared_ptr<SecurityLink> new_link(const Value& signalling, const Value& messages,
                                       const std::optional<Ref<Object>>& configuration, std::string_view source);

/// The texts of a proposal that fails.
struct ProposalTexts {
  std::string unanswered;
  std::string other_transaction;
  std::string rejected;
};
void list_errors(std::vector<ErrorInfo>& list, std::string_view source, const ProposalTexts& texts);

/// One attribute with one value.
struct SecurityProposal {
  std::string_view source;
  std::int16_t protocol_type;
  const SimpleAttribute& attribute;
  ProposalTexts texts;
};

/// Proposes the attribute to the access terminal. Error 1 if it does not answer, answers to another TransactionID, or
/// does not name this very value.
void negotiate(SecurityLink& link, const SecurityProposal& proposal);

/// How the texts about a protocol's subtype name the protocol.
struct SubtypeNames {
  std::string_view proposed;
  std::string_view mismatched;
  std::string_view rejected;
  std::string_view separator;
};
ProposalTexts subtype_texts(const SubtypeNames& names, std::string_view subtype);
/// Proposes a subtype, 0 to 65535 (error 5 otherwise), of a protocol type.
void negotiate_subtype(SecurityLink& link, std::string_view source, std::int16_t protocol_type, std::int32_t subtype,
                       const SubtypeNames& names);
/// The texts about the length of a key, which is called "SKeyLength" in most and "SKey Length" where it is refused.
ProposalTexts key_length_texts(std::string_view name, std::string_view refused_name, std::string_view length);

/// What NegotiateProtocolSubtype does, for people.
inline constexpr std::string_view kProposesSubtype =
    "Proposes the protocol, or another subtype of it; True if accepted";

/// The part of a protocol object that is the same in every class.
class ProtocolNegotiation {
 public:
  explicit ProtocolNegotiation(const SecurityProtocol& protocol) noexcept : protocol_(&protocol) {}

  void initialize(std::shared_ptr<SecurityLink> link) noexcept { link_ = std::move(link); }
  [[nodiscard]] bool is_initialized() const noexcept { return link_ != nullptr; }
  /// Error 1, in the protocol's own words, before initialize().
  [[nodiscard]] std::shared_ptr<SecurityLink> link(std::string_view source) const;
  /// The protocol's own subtype if none is given. True, or an error.
  bool negotiate_subtype(std::optional<std::int32_t> subtype) const;
  /// "SB_PROT_GenericSecurity.Initialize"
  [[nodiscard]] std::string source(std::string_view member) const;
  /// Of a class that has such a part, with those of its own operations.
  static std::vector<ErrorInfo> errors(const SecurityProtocol& protocol, const std::vector<ErrorInfo>& own = {});
  static void list_uninitialized(std::vector<ErrorInfo>& list, const SecurityProtocol& protocol,
                                 std::string_view source);

 private:
  const SecurityProtocol* protocol_;
  std::shared_ptr<SecurityLink> link_;
};

}  // namespace vorlan
