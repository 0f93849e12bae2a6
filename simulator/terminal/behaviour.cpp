#include "simulator/terminal/behaviour.hpp"

#include <algorithm>

namespace vorlan::simulator {

namespace {

bool matches(int wanted, int actual) noexcept { return wanted == Behaviour::kAny || wanted == actual; }

void note(TerminalMessage& message, std::string_view text) {
  if (!message.note.empty()) message.note += ", ";
  message.note += text;
}

}  // namespace

void Behaviour::clear() noexcept {
  rules_.clear();
  refusals_.clear();
  cheat = Cheat::None;
}

bool Behaviour::refuses(int protocol, int attribute) const noexcept {
  return std::any_of(refusals_.begin(), refusals_.end(), [&](const Refusal& refusal) {
    return matches(refusal.protocol, protocol) && matches(refusal.attribute, attribute);
  });
}

bool Behaviour::alter(TerminalMessage& message) const {
  const int message_id = message.octets.empty() ? kAny : message.octets[0];
  for (const Rule& rule : rules_) {
    if (!matches(rule.protocol, message.protocol) || !matches(rule.message_id, message_id)) continue;
    switch (rule.fault) {
      case Fault::StaySilent: return false;
      case Fault::AnswerLate:
        message.delay += rule.delay;
        note(message, "late on purpose");
        break;
      case Fault::WrongTransactionId:
        if (message.octets.size() > 1) ++message.octets[1];
        note(message, "wrong TransactionID on purpose");
        break;
      case Fault::SendGarbage:
        message.octets = rule.octets;
        note(message, "garbage on purpose");
        break;
    }
  }
  return true;
}

}  // namespace vorlan::simulator
