// The one way in which anything fails: an automation error.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace vorlan {

/// Numbers of the errors that the automation rules themselves define.
enum class ErrorNumber : std::int32_t {
  Failed = 1,  ///< raised on purpose by a class; its description is part of the interface
  InvalidCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  FileAccess = 75,
  ObjectNotSet = 91,
  InvalidUseOfNull = 94,
  CannotCreateObject = 429,
  MemberNotFound = 438,
  WrongArgumentCount = 450,
};

/// The standard description of an error number, for example "Overflow" for 6.
std::string_view standard_description(ErrorNumber number) noexcept;

/// An automation error as a script sees it: number, source and description, seldom a help file.
class Error : public std::exception {
 public:
  Error(std::int32_t number, std::string_view source, std::string_view description, std::string_view help_file = {});
  /// An error of the automation rules with its standard description, followed by ": " and the detail, if any.
  explicit Error(ErrorNumber number, std::string_view source = {}, std::string_view detail = {});

  [[nodiscard]] std::int32_t number() const noexcept { return number_; }
  [[nodiscard]] const std::string& source() const noexcept { return source_; }
  [[nodiscard]] const std::string& description() const noexcept { return description_; }
  [[nodiscard]] const std::string& help_file() const noexcept { return help_file_; }
  [[nodiscard]] bool is(ErrorNumber number) const noexcept { return number_ == static_cast<std::int32_t>(number); }
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

  /// Names the source of an error that was raised too deep down to know it; a source already named stays.
  void set_source_if_empty(std::string_view source);

 private:
  std::int32_t number_;
  std::string source_;
  std::string description_;
  std::string help_file_;
};

/// Raises error number 1, the number of every error that a class raises on purpose.
[[noreturn]] void raise(std::string_view source, std::string_view description, std::string_view help_file = {});

/// An error as a row of a class's tables: raised and listed from there.
struct ErrorRow {
  std::string_view source;  ///< none in an error of the automation rules: the member that was called
  std::string_view text;    ///< the description; of an error of the automation rules, the detail behind it
  std::string_view when;    ///< for listings: "CreateMessage before Initialize"
  ErrorNumber number = ErrorNumber::Failed;

  /// The same error of another source.
  [[nodiscard]] constexpr ErrorRow from(std::string_view other) const noexcept { return {other, text, when, number}; }
  [[nodiscard]] Error error() const;
};
[[noreturn]] void raise(const ErrorRow& row);

}  // namespace vorlan
