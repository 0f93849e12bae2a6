// One proposal of the access network: a ConfigurationRequest with one attribute record, and the terminal's answer.
#pragma once

#include <string>
#include <string_view>

#include "sector/signalling.hpp"

namespace vorlan {

struct AttributeProposal {
  std::string_view request_label;
  std::string_view response_label;
  std::int16_t protocol_type;
  std::uint8_t transaction_id;
  std::string_view attribute_id;
  std::string_view record;  ///< Length, AttributeID and value
  /// The two ways in which the message collection is left behind.
  enum class Keeps : std::uint8_t {
    Request,        ///< the answer goes as soon as it is fetched
    RefusedAnswer,  ///< the request goes, and the answer if it accepts
  };
  Keeps keeps;
};

/// How the access terminal took a proposal.
struct ProposalOutcome {
  enum class Answer : std::uint8_t { None, OtherTransaction, Refused, Accepted };
  Answer answer = Answer::None;
  /// Of an accepted proposal, what the terminal names of it: Length, AttributeID, value or ValueID.
  std::string record = {};
};

/// When a proposal fails, for listings.
inline constexpr std::string_view kWithoutAnswer = "the terminal does not answer within 5 s";
inline constexpr std::string_view kWithOtherTransaction = "the terminal answers with another TransactionID";
inline constexpr std::string_view kWithRefusal = "the terminal does not accept what is proposed";

/// Waits 5 s for the ConfigurationResponse. What the test set's objects raise passes through.
ProposalOutcome propose(Signalling& signalling, const AttributeProposal& proposal);

}  // namespace vorlan
