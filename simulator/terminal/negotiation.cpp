#include "simulator/terminal/negotiation.hpp"

#include <algorithm>

#include "common/octets.hpp"

namespace vorlan::simulator {

namespace {

constexpr int kSessionConfiguration = 18;
constexpr int kKeyExchange = 5;
constexpr int kSKeyLength = 0;

// Of the session configuration protocol.
constexpr int kComplete = 0x00;
constexpr int kStart = 0x01;
constexpr int kSoftComplete = 0x02;
// Of every protocol.
constexpr int kRequest = 0x50;
constexpr int kResponse = 0x51;
constexpr int kUpdateRequest = 0x52;
constexpr int kUpdateAccept = 0x53;
constexpr int kUpdateReject = 0x54;

constexpr std::size_t kRecords = 2;  // where they begin

std::uint8_t octet(int value) noexcept { return static_cast<std::uint8_t>(value); }

}  // namespace

Negotiation::Negotiation(Link& link)
    : order{kSessionConfiguration, 19, 4, 14},
      proposals{
          // Key exchange: Diffie-Hellman or default. Application subtypes: default packet, test application.
          {kSessionConfiguration, parse_hex("06 0005 0001 0000  08 1001 00 02 0002 0003")},
          // Signalling, packet application, test application, unused.
          {19, parse_hex("0A 00 00 0000 0002 0003 FFFF")},
          // RateParameters: the default transition probabilities.
          {4, parse_hex("0A 01 00 30 10 08 08 10 10 20 FF")},
          // SupportedCDMAChannels: band class 0 without subclasses.
          {14, parse_hex("05 04 00 01 00 00")},
      },
      link_(&link) {}

void Negotiation::reset() {
  state_ = State::Idle;
  subtypes_.clear();
  session_key_length_ = 768;
}

int Negotiation::subtype(int protocol) const {
  const auto found = subtypes_.find(protocol);
  return found == subtypes_.end() ? 0 : found->second;
}

bool Negotiation::receive(int protocol, std::span<const std::uint8_t> octets) {
  if (octets.empty()) return false;
  const int message_id = octets[0];
  if (protocol == kSessionConfiguration && message_id == kStart) {
    start();
    return true;
  }
  const bool completes = protocol == kSessionConfiguration && (message_id == kComplete || message_id == kSoftComplete);
  if (!completes && message_id != kRequest && message_id != kResponse && message_id != kUpdateRequest) return false;
  if (octets.size() < kRecords) {
    link_->complain("too short for a TransactionID");
  } else if (completes) {
    finish(octets);
  } else if (message_id == kRequest) {
    answer(protocol, octets);
  } else if (message_id == kResponse) {
    take_response(protocol, octets);
  } else {
    answer_update(protocol, octets);
  }
  return true;
}

void Negotiation::start() {
  reset();
  state_ = State::Proposing;
  proposed_ = 0;
  propose_next();
}

void Negotiation::propose_next() {
  pending_ = transaction_id++;
  if (proposed_ == order.size()) {
    state_ = State::AnsweringAN;
    completed_with_ = pending_;
    link_->send(kSessionConfiguration, {octet(kComplete), pending_});
    return;
  }
  const int protocol = order[proposed_];
  Octets request{octet(kRequest), pending_};
  if (const auto found = proposals.find(protocol); found != proposals.end()) {
    request.insert(request.end(), found->second.begin(), found->second.end());
  }
  link_->send(protocol, std::move(request));
}

void Negotiation::take_response(int protocol, std::span<const std::uint8_t> octets) {
  if (state_ != State::Proposing || proposed_ == order.size() || order[proposed_] != protocol) {
    link_->complain("a ConfigurationResponse that no ConfigurationRequest waits for");
    return;
  }
  if (octets[1] != pending_) {
    link_->complain("TransactionID " + std::to_string(octets[1]) + " where " + std::to_string(pending_) +
                    " is waited for");
    return;
  }
  check_response(protocol, octets.subspan(kRecords));
  ++proposed_;
  propose_next();
}

void Negotiation::check_response(int protocol, std::span<const std::uint8_t> octets) {
  const int id_octets = attribute_id_octets(protocol, subtype(protocol));
  const auto answers = parse_records(octets, id_octets);
  const auto found = proposals.find(protocol);
  const auto proposed =
      found == proposals.end() ? std::vector<AttributeRecord>() : parse_records(found->second, id_octets);
  if (!answers || !proposed) {
    link_->complain("a record that runs past the end of the message");
    return;
  }
  for (const AttributeRecord& answer : *answers) {
    const AttributeRule rule = attribute_rule(protocol, subtype(protocol), answer.id);
    const bool good = std::any_of(proposed->begin(), proposed->end(), [&](const AttributeRecord& one) {
      return one.id == answer.id && picks_from(rule, one, answer.value);
    });
    if (good) {
      agree(protocol, answer.id, answer.value);
    } else {
      const Octets id{octet(answer.id >> 8), octet(answer.id)};
      link_->complain("attribute " + octets_text(std::span(id).last(static_cast<std::size_t>(id_octets))) +
                      " is answered with something that was not proposed");
    }
  }
}

void Negotiation::answer(int protocol, std::span<const std::uint8_t> octets) {
  const int id_octets = attribute_id_octets(protocol, subtype(protocol));
  const auto proposed = parse_records(octets.subspan(kRecords), id_octets);
  if (!proposed) {
    link_->complain("a record that runs past the end of the message");
    return;
  }
  Octets response{octet(kResponse), octets[1]};
  for (const AttributeRecord& record : *proposed) {
    const auto value = accepted_value(attribute_rule(protocol, subtype(protocol), record.id), record);
    if (value.empty() || link_->behaviour().refuses(protocol, record.id)) continue;
    append_record(response, record.id, id_octets, value);
    agree(protocol, record.id, value);
  }
  link_->send(protocol, std::move(response));
}

void Negotiation::answer_update(int protocol, std::span<const std::uint8_t> octets) {
  const auto records = parse_records(octets.subspan(kRecords), attribute_id_octets(protocol, subtype(protocol)));
  const bool good = records && std::none_of(records->begin(), records->end(), [&](const AttributeRecord& record) {
                      return link_->behaviour().refuses(protocol, record.id);
                    });
  if (!records) link_->complain("a record that runs past the end of the message");
  link_->send(protocol, {octet(good ? kUpdateAccept : kUpdateReject), octets[1]});
}

void Negotiation::agree(int protocol, int attribute, std::span<const std::uint8_t> value) {
  constexpr int kLastProtocolType = 0xFF;
  if (protocol == kSessionConfiguration && attribute <= kLastProtocolType && value.size() == 2) {
    subtypes_[attribute] = number16(value);
  }
  if (protocol == kKeyExchange && attribute == kSKeyLength && value.size() == 1) {
    session_key_length_ = value[0] == 0 ? 768 : 1024;
  }
}

void Negotiation::finish(std::span<const std::uint8_t> octets) {
  if (state_ != State::AnsweringAN) {
    link_->complain("a ConfigurationComplete before the terminal's own");
  } else if (octets[1] != completed_with_) {
    link_->complain("TransactionID " + std::to_string(octets[1]) +
                    " where that of the terminal's ConfigurationComplete, " + std::to_string(completed_with_) +
                    ", is waited for");
  } else {
    state_ = State::Open;
  }
}

}  // namespace vorlan::simulator
