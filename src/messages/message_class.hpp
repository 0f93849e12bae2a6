// A message's rows, made ready for use: names resolved, members listed. Made once per class, on first use.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "messages/message_spec.hpp"

namespace vorlan {

class MessageClass {
 public:
  explicit MessageClass(const MessageSpec& spec);
  MessageClass(const MessageClass&) = delete;
  MessageClass& operator=(const MessageClass&) = delete;

  static constexpr std::int16_t kNone = -1;

  /// What CreateMessage joins for a row.
  enum class Joins : std::uint8_t {
    Stored,
    Built,
    Viewed,
    ConfiguredText,  ///< a property of the configuration as it stands
    Configured,
  };

  /// A row with the fields that it names resolved to indices, and what every walk asks of it at hand.
  struct Field {
    const FieldSpec* spec;
    bool repeated = false;
    bool on_air = true;
    bool always = true;  ///< there, whatever other fields say
    Joins joins = Joins::Stored;
    std::int16_t width_field = kNone;
    std::int16_t present_field = kNone;
    std::int16_t present_other = kNone;
    std::int16_t also_one = kNone;
    std::int16_t same_as = kNone;  ///< where the value is stored, if not here
    bool two_names = false;        ///< two properties stand for the value
    std::int16_t slot = kNone;     ///< of the value: in the texts, or of the elements: in the lists
    std::int32_t offset = kNone;   ///< in every received message, where nothing before it varies
    std::string initial;
  };

  /// Adjacent rows that are repeated together, or that are not repeated at all.
  struct Group {
    std::uint16_t first;
    std::uint16_t end;
    bool repeated;
    bool stored_list = false;  ///< one row, always there, its elements sent as they are stored
    bool at_least_one = false;
    std::uint8_t times = 0;
    std::int16_t count = kNone;
    std::int16_t added_count = kNone;
  };

  enum class Action : std::uint8_t {
    MessageObject,
    MessageString,
    MessageId,
    ReceivedFlag,
    Field,
    Initialize,
    CreateMessage,
  };
  struct Member {
    Action action;
    std::uint16_t field;
    /// Where the text of a single field stands that a class which builds has stored as it was set; kNone for others.
    std::int16_t stored_text = kNone;
  };

  [[nodiscard]] const MessageSpec& spec() const noexcept { return *spec_; }
  [[nodiscard]] const ClassInfo& info() const noexcept { return info_; }
  [[nodiscard]] std::span<const Field> fields() const noexcept { return fields_; }
  [[nodiscard]] const Field& field(std::size_t index) const noexcept { return fields_[index]; }
  [[nodiscard]] std::span<const Group> groups() const noexcept { return groups_; }
  /// In the order of info().members().
  [[nodiscard]] const Member& member(std::size_t index) const noexcept { return members_[index]; }

  /// The lists, in order, whose number or width of elements follows from a field.
  [[nodiscard]] std::span<const std::uint16_t> sized_by(std::size_t field) const noexcept { return sized_by_[field]; }
  [[nodiscard]] const std::vector<std::string>& initial_texts() const noexcept { return initial_texts_; }
  [[nodiscard]] std::size_t lists() const noexcept { return lists_; }
  /// Whether CreateMessage has lists to count.
  [[nodiscard]] bool checks_counts() const noexcept { return checks_counts_; }
  /// The row that opens the optional tail; only messages that have one are asked.
  [[nodiscard]] std::size_t tail() const noexcept { return tail_; }
  /// Width of the MessageID of a message that the class builds or parses.
  [[nodiscard]] std::size_t id_bits() const noexcept;

 private:
  void resolve();
  void place();
  std::vector<MemberInfo> list_members();
  [[nodiscard]] std::vector<FieldInfo> list_fields() const;
  [[nodiscard]] std::vector<ErrorInfo> list_errors() const;

  const MessageSpec* spec_;
  std::vector<Field> fields_;
  std::vector<Group> groups_;
  std::vector<Member> members_;
  std::vector<std::vector<std::uint16_t>> sized_by_;
  std::vector<std::string> initial_texts_;
  std::size_t lists_ = 0;
  bool checks_counts_ = false;
  std::size_t tail_ = 0;
  ClassInfo info_;
};

/// The kinds of error that rows have texts for.
enum class Fault : std::uint8_t { WrongLength, EncoderMode, BeyondCount, GetBeyondCount, NotSet, Absent };

/// Behind the description of error 13, when a setter takes a text that is none.
inline constexpr std::string_view kNoBitString = "a bit string wanted";
/// Behind that of error 5, when an integer property is let.
inline constexpr std::string_view kNoSwitch = "0 or 1";

std::string source_of(const MessageSpec& message, std::string_view member);
std::string source_of(const MessageSpec& message, const FieldSpec& field, Fault fault);
std::string_view text_of(const MessageSpec& message, const FieldSpec& field, Fault fault);

}  // namespace vorlan
