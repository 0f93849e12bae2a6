#include "sector/attribute_proposal.hpp"

#include "attributes/negotiation/configuration_messages.hpp"
#include "common/conversions.hpp"

namespace vorlan {

namespace {

constexpr std::size_t kOctet = 8;
constexpr std::int16_t kAnswerCode = 1;
constexpr std::int16_t kAnswerTimeOut = 5 * test_set::kTimeOutsPerSecond;

}  // namespace

ProposalOutcome propose(Signalling& signalling, const AttributeProposal& proposal) {
  using Answer = ProposalOutcome::Answer;
  const bool keeps_request = proposal.keeps == AttributeProposal::Keeps::Request;
  const std::string transaction_id = long_to_bin(proposal.transaction_id, 8);
  const Ref<Object> message = signalling.new_message_object();
  SB_MsgConfigurationRequest request;
  request.initialize();
  request.let_transaction_id(transaction_id);
  request.create_message(message, proposal.record);
  const bool answered = signalling.exchange({.label = proposal.request_label,
                                             .message = message,
                                             .protocol_type = proposal.protocol_type,
                                             .when_sent = test_set::kWhenSent,
                                             .answer_label = proposal.response_label,
                                             .answer_code = kAnswerCode,
                                             .time_out = kAnswerTimeOut});
  if (!keeps_request) signalling.remove_message(proposal.request_label);
  if (!answered) return {Answer::None};

  SB_MsgConfigurationResponse response;
  response.receive(signalling.message(proposal.response_label));
  if (keeps_request) signalling.remove_message(proposal.response_label);
  if (response.transaction_id() != transaction_id) return {Answer::OtherTransaction};
  const std::string_view record = response.record(proposal.attribute_id);
  // What is cut short by the message's end accepts nothing.
  if (record.empty() || record.size() != kOctet * (1 + small_value(record.substr(0, kOctet)))) return {Answer::Refused};
  if (!keeps_request) signalling.remove_message(proposal.response_label);
  return {Answer::Accepted, std::string(record)};
}

}  // namespace vorlan
