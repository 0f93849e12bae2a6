#include "server/com/com_error.hpp"

#include <utility>

#include "server/com/com_pointer.hpp"

namespace vorlan::com {

namespace {

constexpr std::uint32_t kAutomationFacility = 0x800A0000;

/// COM's codes for what the automation rules number.
constexpr std::pair<HRESULT, ErrorNumber> kRules[] = {
    {DISP_E_UNKNOWNNAME, ErrorNumber::MemberNotFound},
    {DISP_E_MEMBERNOTFOUND, ErrorNumber::MemberNotFound},
    {DISP_E_BADPARAMCOUNT, ErrorNumber::WrongArgumentCount},
    {DISP_E_PARAMNOTOPTIONAL, ErrorNumber::WrongArgumentCount},
    {DISP_E_TYPEMISMATCH, ErrorNumber::TypeMismatch},
    {DISP_E_BADVARTYPE, ErrorNumber::TypeMismatch},
    {DISP_E_OVERFLOW, ErrorNumber::Overflow},
    {DISP_E_BADINDEX, ErrorNumber::SubscriptOutOfRange},
    {E_INVALIDARG, ErrorNumber::InvalidCall},
};

/// Shown where the peer is gone.
constexpr HRESULT kGone[] = {RPC_E_DISCONNECTED, RPC_E_SERVER_DIED, RPC_E_SERVER_DIED_DNE,
                             static_cast<HRESULT>(0x800706BA),   // RPC_S_SERVER_UNAVAILABLE
                             static_cast<HRESULT>(0x800706BE)};  // RPC_S_CALL_FAILED

/// The system's text without the line's end; empty if it has none.
std::string known_text(HRESULT result) {
  wchar_t* made = nullptr;
  const DWORD size =
      FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                     nullptr, static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&made), 0, nullptr);
  std::string text = narrow_text({made, size});
  LocalFree(made);
  while (!text.empty() && (text.back() == '\r' || text.back() == '\n' || text.back() == ' ')) text.pop_back();
  return text;
}

/// Of an error that came without a text.
std::string description_of(std::int32_t number) {
  const bool is_automations = number >= 1 && number <= 0xFFFF;
  if (is_automations) return std::string(standard_description(static_cast<ErrorNumber>(number)));
  const std::string text = known_text(number);
  return text.empty() ? "Automation error" : "Automation error: " + text;
}

std::string taken(BSTR& text) {
  std::string result = narrow_text(view(text));
  SysFreeString(std::exchange(text, nullptr));
  return result;
}

void set_error_object(const Error& error) noexcept {
  ComPointer<ICreateErrorInfo> made;
  if (FAILED(CreateErrorInfo(made.out()))) return;
  try {
    made->SetGUID(IID_IDispatch);
    made->SetSource(wide_text(error.source()).data());
    made->SetDescription(wide_text(error.description()).data());
    made->SetHelpFile(wide_text(error.help_file()).data());
  } catch (const std::exception&) {
    return;
  }
  if (const auto info = made.as<IErrorInfo>(IID_IErrorInfo)) SetErrorInfo(0, info.get());
}

}  // namespace

SCODE scode_of(std::int32_t number) noexcept {
  if (number < 1 || number > 0xFFFF) return number;
  return static_cast<SCODE>(kAutomationFacility | static_cast<std::uint32_t>(number));
}

std::int32_t number_of(SCODE scode) noexcept {
  const auto bits = static_cast<std::uint32_t>(scode);
  const bool is_automations = bits > kAutomationFacility && bits <= (kAutomationFacility | 0xFFFFU);
  return is_automations ? static_cast<std::int32_t>(bits & 0xFFFFU) : scode;
}

HRESULT tell(const Error& error, EXCEPINFO* information) noexcept {
  set_error_object(error);
  if (information == nullptr) return DISP_E_EXCEPTION;
  *information = {};
  information->scode = scode_of(error.number());
  try {
    information->bstrSource = new_bstr(error.source());
    information->bstrDescription = new_bstr(error.description());
    if (!error.help_file().empty()) information->bstrHelpFile = new_bstr(error.help_file());
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch)
    // Without its texts, the number still tells.
  }
  return DISP_E_EXCEPTION;
}

Error error_of(HRESULT result, EXCEPINFO& information, std::string_view source) {
  if (result == DISP_E_EXCEPTION) {
    if (information.pfnDeferredFillIn != nullptr) information.pfnDeferredFillIn(&information);
    const std::string its_source = taken(information.bstrSource);
    std::string description = taken(information.bstrDescription);
    const std::string help_file = taken(information.bstrHelpFile);
    std::int32_t number = information.wCode != 0 ? information.wCode : number_of(information.scode);
    if (number == 0) number = result;  // an error without a number is none to a client
    if (description.empty()) description = description_of(number);
    return {number, its_source.empty() ? source : std::string_view(its_source), description, help_file};
  }
  for (const auto& [code, number] : kRules) {
    if (code == result) return Error(number, source);
  }
  for (const HRESULT gone : kGone) {
    if (gone == result) return {kServerGone, source, "The remote server machine does not exist or is unavailable"};
  }
  const std::int32_t number = number_of(result);
  return {number, source, description_of(number)};
}

std::string system_text(HRESULT result) {
  std::string text = known_text(result);
  return text.empty() ? "system error " + std::to_string(result) : text;
}

void fail(HRESULT result, std::string_view what) {
  const bool access = result == E_ACCESSDENIED;
  throw Error(access ? ErrorNumber::FileAccess : ErrorNumber::CannotCreateObject, "Vorlan",
              std::string(what) + ": " + system_text(result));
}

}  // namespace vorlan::com
