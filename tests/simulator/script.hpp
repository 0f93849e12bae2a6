// A simulated test set as a script uses it: through late-bound calls alone.
#pragma once

#include "simulator/message_object.hpp"
#include "simulator/simulated_clock.hpp"
#include "simulator/test_set.hpp"
#include "support/fake_platform.hpp"
#include "support/octets.hpp"
#include "support/raised.hpp"

namespace vorlan::test {

inline std::int16_t i16(int value) { return static_cast<std::int16_t>(value); }

struct Script {
  explicit Script(std::shared_ptr<Clock> clock = nullptr) {
    if (clock) fake.platform.clock = std::move(clock);
    simulator::offer_simulated_time(fake.platform);
    test_set = make<simulator::TestSet>(fake.platform);
    signalling = part("Signalling");
    terminal = part("AccessTerminal");
    trace = part("Trace");
  }

  Ref<Object> part(std::string_view name) { return test_set->get(name).to_object(); }
  /// Simulated, in milliseconds.
  [[nodiscard]] std::int64_t now() const { return fake.platform.clock->ticks().count(); }

  void send(int protocol, const std::string& hex, const std::string& label = "Message") {
    signalling->call("SendMessage", label, i16(3), bits_of(hex), i16(protocol), i16(0), i16(2), i16(40), i16(0));
  }
  Value filter(int message_id, int protocol) {
    return signalling->call("AddFilter", i16(message_id), i16(1), Ref<Object>(), i16(protocol), i16(1000));
  }
  /// The message in hexadecimal; empty if none came in time.
  std::string wait(const Value& filter, int time_out = 100, const std::string& label = "Answer") {
    return signalling->call("WaitForMessage", label, filter, i16(time_out)).to_boolean() ? message(label) : "";
  }
  std::string ask(int protocol, const std::string& hex, int answer_code, int time_out = 100) {
    const Value came = signalling->call("SendAndWait", "Request", i16(3), i16(1), received(hex), i16(protocol), i16(0),
                                        i16(2), i16(40), i16(-1), "Answer", i16(answer_code), i16(time_out));
    return came.to_boolean() ? message("Answer") : "";
  }
  std::string message(const std::string& label) {
    const Ref<Object> messages = signalling->get("Messages").to_object();
    return messages->call("Item", label).to_object()->get("Hex").to_text();
  }
  /// The latest thing that the terminal complains about; empty if there is none.
  std::string complaint() {
    const Value all = terminal->get("Complaints");
    const auto& texts = *all.as<Value::Array>();
    return texts.empty() ? "" : texts.back().to_text();
  }

  FakePlatform fake;
  Ref<Object> test_set;
  Ref<Object> signalling;
  Ref<Object> terminal;
  Ref<Object> trace;
};

}  // namespace vorlan::test
