// One emulated sector of the test set: channels, levels, fading, test packets and the session configuration that the
// access network opens.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "sector/session_memory.hpp"
#include "sector/signalling.hpp"
#include "sector/test_set_access.hpp"

namespace vorlan {

/// A script gives it the configuration and the test set's objects (TestSetObject says which property holds which),
/// then calls its operations. They act on the test set at once, raise what fails (error 1 with the texts of the
/// operation; what the test set's objects raise passes through) and undo nothing: what was configured stays.
class SB_Sector final : public BoundObject<SB_Sector> {
 public:
  explicit SB_Sector(Platform& platform) noexcept;

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;
  static std::vector<ErrorInfo> errors();

  /// The objects that a sector refers to. It owns none of them; empty at first.
  enum class Held : std::uint8_t {
    GlobalParameters,
    FChCollection,
    RCHCollection,
    AccChCollection,
    SubType1AccChCollection,
    SubType2AccChCollection,
    ForwardChannel,
    SubType1ForwardChannel,
    SubType2ForwardChannel,
    AccessChannel,
    SubType1AccessChannel,
    SubType2AccessChannel,
    RevTrafficChannel,
    SubType1RevTrafficChannel,
    SubType2RevTrafficChannel,
    EvSignalling,
    EvProtocolController,
    TestReport,
    TestSet,
    ParentTestSet,
    RadioChannelEmulator,
    RadioChannelVelocity,
    RadioChannelPaths,
    Count
  };
  template <Held H>
  [[nodiscard]] Ref<Object> object() const {
    return held(H);
  }
  template <Held H>
  void set_object(const Ref<Object>& object) {
    held(H) = object;
  }

  /// Error 1 while there is none.
  Ref<Object> global_parameters() const;
  void set_global_parameters(const Ref<Object>& parameters);
  /// "SECTOR 0" to "SECTOR 5"; the suffix of every channel key.
  [[nodiscard]] std::string sector_name() const { return sector_name_; }
  void set_sector_name(const std::string& name) { sector_name_ = name; }
  /// 0, 1 or 2, the physical layer subtype of the channels in use. Until it is let, that of the configuration's script
  /// personality.
  [[nodiscard]] std::int16_t current_subtype() const;
  void set_current_subtype(std::int16_t subtype) { current_subtype_ = subtype; }

  [[nodiscard]] bool expects_connection_request() const noexcept { return expects_connection_request_; }
  void set_expects_connection_request(bool expects) { expects_connection_request_ = expects; }
  [[nodiscard]] bool connection_request_received() const noexcept { return connection_request_received_; }
  void set_connection_request_received(bool received) { connection_request_received_ = received; }
  [[nodiscard]] Date connection_request_time() const noexcept { return connection_request_time_; }
  void set_connection_request_time(const Date& time) { connection_request_time_ = time; }
  [[nodiscard]] bool subtype2_configured() const noexcept { return subtype2_configured_; }
  void set_subtype2_configured(bool configured) { subtype2_configured_ = configured; }
  /// 0 to 255; 1 if none is remembered.
  [[nodiscard]] std::int16_t last_transaction_id() const;
  /// -1 if none is remembered.
  [[nodiscard]] std::int32_t preferred_cycle() const;
  void set_preferred_cycle(std::int32_t cycle);
  /// The low 32 bits of the configuration's UATI; error 6 above 2147483647.
  [[nodiscard]] std::int32_t access_terminal_identifier() const;

  // Channels.
  /// `argument` goes to the forward channel as it is. Returns the forward channel.
  Ref<Object> ConfigureFwdAndAccChannel(bool configure_access, const Value& argument);
  /// The same for the channels of the current subtype, 1 or 2.
  Ref<Object> ReConfigureFwdAndAccChannel(bool configure_access, const Value& argument);
  /// A forward channel that is given replaces the sector's own.
  bool ConfigureAccessChannel(const std::optional<Ref<Object>>& forward_channel);
  /// False if the current subtype is neither 1 nor 2.
  bool ReConfigureAccessChannel(const std::optional<Ref<Object>>& forward_channel);
  /// Waits at most 15 s for the terminal. False if it was acquired, but is not any more.
  bool AcquireReverseTrafficChannel();
  void Enable();
  /// Removes the sector's channels from the collections, as far as they are there.
  void CleanUp();

  // Levels. The check is made on the level before the step. Error 6 for a settle time of 33 s and more, raised when the
  // level has been changed.
  bool RaiseLevel(float step_db, std::int16_t settle_seconds);
  bool LowerLevel(float step_db, std::int16_t settle_seconds);

  // Session configuration.
  bool StartSessionNegotiationFromAN();
  /// `transaction_id` becomes the one that is sent.
  bool EndSessionNegotiationFromAN(std::int16_t& transaction_id);
  void ClearSessionInfo();
  /// Whether the bits are at most `maximum`; they are then rewritten in `width` bits (error 1 if they do not fit), and
  /// left alone otherwise.
  bool ValidateAndCorrectLength(std::string& bits, std::int32_t width, std::int32_t maximum);

  // Fading.
  /// km/h.
  [[nodiscard]] std::int16_t reference_velocity() const noexcept { return reference_velocity_; }
  void set_reference_velocity(std::int16_t velocity) { reference_velocity_ = velocity; }
  /// 1 to 8; any other number connects no path.
  [[nodiscard]] std::int16_t path_count() const noexcept { return path_count_; }
  void set_path_count(std::int16_t count) { path_count_ = count; }
  void EnableFading();
  /// dB and microseconds; what is Null or left out stays as it is. Error 9 for a path that is not connected.
  void SetGainAndDelay(std::int16_t path, const Value& gain, const Value& delay);
  void DestoyFadingObjects();

  // Forward test application.
  /// Whether NegotiateFTAP has test packets sent as soon as the terminal is ready; at first it does.
  [[nodiscard]] bool automatic_test_packets() const noexcept { return automatic_test_packets_; }
  void set_automatic_test_packets(bool automatic) { automatic_test_packets_ = automatic; }
  /// Which attributes to propose; their values come from the configuration.
  bool NegotiateFTAP(bool drc_value, bool drc_cover, bool ack_channel_bit, bool loop_back_persistence);
  bool SendFTAPClearStats();
  void EnableFTAPTestPktFlow();
  void DisableFTAPTestPktFlow();

 private:
  [[nodiscard]] const Ref<Object>& held(Held which) const noexcept { return held_[static_cast<std::size_t>(which)]; }
  [[nodiscard]] Ref<Object>& held(Held which) noexcept { return held_[static_cast<std::size_t>(which)]; }
  /// Error 91 for Nothing.
  [[nodiscard]] const Ref<Object>& existing(Held channel) const;
  /// A property of the configuration, as it was loaded.
  [[nodiscard]] Value setting(std::string_view property) const;
  /// The test set's members; their names are read once for each configuration. By value: an object of the script may
  /// give the sector another configuration while it is called.
  TestSetAccess test_set();
  Signalling signalling() { return {test_set(), held(Held::EvSignalling)}; }
  [[nodiscard]] SessionMemory memory() const noexcept { return SessionMemory(*platform_->settings); }
  void log(std::string_view line);
  void trace(std::string_view line) const;
  void apply();

  [[nodiscard]] std::string role_label() const;
  void configure_forward_channel(std::int16_t subtype, const Value& argument);
  void configure_access_channel(std::int16_t subtype, const Ref<Object>& forward_channel);
  Ref<Object> configure_channels(std::int16_t subtype, bool configure_access, const Value& argument,
                                 const ErrorRow& forward_failed, const ErrorRow& access_failed);
  /// The step's error, if any, goes to the debugger's output, and the row's is raised instead. A wait that the script
  /// has cancelled stays what it is.
  template <class F>
  auto or_raise(const ErrorRow& failed, F&& step) const;
  /// Personality 1 is tested on the channels of the current subtype, any other on those of subtype 0. Nothing if the
  /// current subtype has no channels of its own.
  [[nodiscard]] std::optional<std::int16_t> tested_subtype() const;
  [[nodiscard]] Ref<Object> reverse_channel(std::int16_t subtype) const;

  enum class Step : std::uint8_t { Raise, Lower };
  bool change_level(Step direction, float step_db, std::int16_t settle_seconds);

  /// False if a request cannot be answered.
  bool answer_configuration_requests(Signalling& signalling, std::span<const Value> filters);
  /// Nothing if it cannot be built.
  [[nodiscard]] std::optional<std::string> response_to(std::int16_t protocol_type, std::string_view request,
                                                       bool& later_mac) const;
  /// Whether the configuration asks for reverse traffic channel MAC subtype 3, until a session agrees on another.
  [[nodiscard]] bool uses_later_mac() const;
  void await_configuration_complete(Signalling& signalling, const Value& filter);

  std::string next_ftap_transaction_id();
  Ref<Object> stats_clear_request(Signalling& signalling);
  [[nodiscard]] std::string ftap_attributes(const std::array<bool, 4>& wanted) const;
  void clear_ftap_stats(Signalling& signalling, const Ref<Object>& request, std::int16_t stream,
                        std::string_view source);
  void switch_test_packets(bool on, int first_point);

  Platform* platform_;
  std::array<Ref<Object>, static_cast<std::size_t>(Held::Count)> held_;
  std::optional<TestSetAccess> test_set_;
  std::string sector_name_ = "SECTOR 0";
  std::optional<std::int16_t> current_subtype_;
  bool expects_connection_request_ = false;
  bool connection_request_received_ = false;
  Date connection_request_time_;
  bool subtype2_configured_ = false;

  std::int16_t reference_velocity_ = 0;
  std::int16_t path_count_ = 0;
  std::vector<Ref<Object>> paths_;

  bool automatic_test_packets_ = true;
  std::uint8_t ftap_transaction_id_ = 0;
};

template <class F>
auto SB_Sector::or_raise(const ErrorRow& failed, F&& step) const {
  try {
    return std::forward<F>(step)();
  } catch (const Error& error) {
    if (error.number() == kCancelled) throw;
    trace(std::string(failed.source) + " --- " + error.source() + ": " + error.description());
    raise(failed);
  }
}

}  // namespace vorlan
