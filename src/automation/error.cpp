#include "automation/error.hpp"

namespace vorlan {

std::string_view standard_description(ErrorNumber number) noexcept {
  switch (number) {
    case ErrorNumber::Failed: break;
    case ErrorNumber::InvalidCall: return "Invalid procedure call or argument";
    case ErrorNumber::Overflow: return "Overflow";
    case ErrorNumber::SubscriptOutOfRange: return "Subscript out of range";
    case ErrorNumber::TypeMismatch: return "Type mismatch";
    case ErrorNumber::FileNotFound: return "File not found";
    case ErrorNumber::FileAccess: return "Path/File access error";
    case ErrorNumber::ObjectNotSet: return "Object variable or With block variable not set";
    case ErrorNumber::InvalidUseOfNull: return "Invalid use of Null";
    case ErrorNumber::CannotCreateObject: return "ActiveX component can't create object";
    case ErrorNumber::MemberNotFound: return "Object doesn't support this property or method";
    case ErrorNumber::WrongArgumentCount: return "Wrong number of arguments or invalid property assignment";
  }
  return "Application-defined or object-defined error";
}

namespace {

std::string with_detail(std::string_view description, std::string_view detail) {
  std::string text(description);
  if (!detail.empty()) text.append(": ").append(detail);
  return text;
}

}  // namespace

Error::Error(std::int32_t number, std::string_view source, std::string_view description, std::string_view help_file)
    : number_(number), source_(source), description_(description), help_file_(help_file) {}

Error::Error(ErrorNumber number, std::string_view source, std::string_view detail)
    : number_(static_cast<std::int32_t>(number)),
      source_(source),
      description_(with_detail(standard_description(number), detail)) {}

void Error::set_source_if_empty(std::string_view source) {
  if (source_.empty()) source_ = source;
}

void raise(std::string_view source, std::string_view description, std::string_view help_file) {
  throw Error(static_cast<std::int32_t>(ErrorNumber::Failed), source, description, help_file);
}

Error ErrorRow::error() const {
  if (number != ErrorNumber::Failed) return Error(number, source, text);
  return {static_cast<std::int32_t>(number), source, text};
}

void raise(const ErrorRow& row) { throw row.error(); }

}  // namespace vorlan
