// The server with one class more: a probe that waits, fails and dies when it is told to.
#include <csignal>
#include <cstdio>
#include <cstring>

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "server/classes.hpp"
#include "server/dbus/serve.hpp"
#include "simulator/classes.hpp"

namespace {

using namespace vorlan;

class Probe final : public BoundObject<Probe> {
 public:
  explicit Probe(Platform& platform) : clock_(platform.clock) {}

  static constexpr ClassInfo::Texts texts() { return {"Probe", "What tests need & <nobody else>.", ""}; }
  static std::span<const BoundMember> members();

  Value echo(const Value& value) { return value; }
  void change(Value& value, std::int16_t& number, std::string& text) {
    value = Value(std::string("changed"));
    number = static_cast<std::int16_t>(number + 1);
    text += "!";
  }
  void wait(std::int32_t seconds) { clock_->sleep(std::chrono::seconds(seconds)); }
  [[noreturn]] void fail(std::int32_t number, const std::string& source, const std::string& description) {
    throw Error(number, source, description, "help.chm");
  }
  Value call(const Ref<Object>& object, const std::string& member, Value argument) {
    return object->call(member, std::move(argument));
  }
  [[noreturn]] void crash() { std::raise(SIGKILL), std::abort(); }
  void spin() {
    for (volatile bool on = true; on;) continue;
  }
  [[nodiscard]] Value held() const { return held_; }
  void set_held(const Value& value) { held_ = value; }
  [[nodiscard]] std::string element(std::int16_t index, std::optional<std::string> suffix) const {
    return std::to_string(index) + text_ + suffix.value_or("");
  }
  void set_element(std::int16_t index, std::optional<std::string> suffix, const std::string& text) {
    text_ = std::to_string(index) + suffix.value_or("") + text;
  }
  [[nodiscard]] std::string octets() const { return "a\xFF"; }
  [[nodiscard]] Date day() const { return {2.5}; }
  std::int32_t count() { return ++count_; }

 private:
  std::shared_ptr<Clock> clock_;
  Value held_;
  std::string text_;
  std::int32_t count_ = 0;
};

std::span<const BoundMember> Probe::members() {
  static constexpr std::array kMembers{
      method<&Probe::echo>("Echo", "value", "Gives back what it is given"),
      method<&Probe::change>("Change", "value, number, text", "Changes its arguments"),
      method<&Probe::wait>("Wait", "seconds", "Waits"),
      method<&Probe::fail>("Fail", "number, source, description", "Raises an error"),
      method<&Probe::call>("CallObject", "object, member, argument", "Calls a method of an object"),
      method<&Probe::crash>("Crash", "", "Ends the process"),
      method<&Probe::spin>("Spin", "", "Never comes back"),
      property<&Probe::held, &Probe::set_held>("Held", "Any value"),
      property<&Probe::element, &Probe::set_element>("Element", "An indexed text", "index, suffix"),
      property<&Probe::octets>("Octets", "A text that is not UTF-8"),
      property<&Probe::day>("Day", "A date"),
      property<&Probe::count>("Count", "How often it has been read"),
  };
  return kMembers;
}

}  // namespace

int main(int count, char** words) try {
  static constexpr std::array kProbe{
      ClassEntry{"Probe", &Probe::info, [](Platform& platform) -> Ref<Object> { return make<Probe>(platform); }}};
  const auto own = class_tables();
  std::vector<ClassTable> tables(own.begin(), own.end());
  tables.push_back({"VorlanSim", simulator::classes()});
  tables.push_back({"Test", kProbe});
  // As the command line reads them: serve --worker ... --front ... --front-process ...
  dbus::ServeOptions options;
  for (int i = 2; i + 1 < count; i += 2) {
    if (std::strcmp(words[i], "--worker") == 0) options.worker = words[i + 1];
    if (std::strcmp(words[i], "--front") == 0) options.front = words[i + 1];
    if (std::strcmp(words[i], "--front-process") == 0) options.front_process = std::atoi(words[i + 1]);
  }
  dbus::serve(Registry(tables), options);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
