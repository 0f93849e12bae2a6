#include "common/general_functions.hpp"

#include <algorithm>
#include <array>
#include <limits>

#include "common/ansi_code.hpp"
#include "common/band_class.hpp"
#include "common/conversions.hpp"
#include "common/script_log.hpp"
#include "common/sector_identity.hpp"

namespace vorlan {

namespace {

using F = SB_GeneralFunctions;

constexpr std::array kMembers{
    method<&F::MsgToBinString>("MsgToBinString", "message", "The bits of a message object, as many as its Length says"),
    method<&F::BinStringToMsg>("BinStringToMsg", "bits, message",
                               "Fills the octets of a message object from a bit string; Length is left alone"),
    method<&F::LongToBin>("LongToBin", "value, width", "A number as a bit string of this width"),
    method<&F::DecToBin>("DecToBin", "value, width", "Any number as a bit string of this width"),
    method<&F::CompliDecToBin>("CompliDecToBin", "value, width", "Two's complement of a negative number"),
    method<&F::Find2sCompliment>("Find2sCompliment", "bits, width", "Two's complement of a bit string"),
    method<&F::BinToDec>("BinToDec", "bits", "The value of a bit string as a 16-bit number"),
    method<&F::BinToLong>("BinToLong", "bits", "The value of a bit string as a 32-bit number"),
    method<&F::BinToDouble>("BinToDouble", "bits", "The value of a bit string of up to 63 significant bits"),
    method<&F::DoubleToBin>("DoubleToBin", "value, width", "A whole number of up to 64 bits as a bit string"),
    method<&F::HexToBin>("HexToBin", "text, width", "Hexadecimal text as a bit string of this width"),
    method<&F::BinToHex>("BinToHex", "bits, spacing", "A bit string as hexadecimal text, digits in pairs"),
    method<&F::DecToHex>("DecToHex", "value, digits", "A number as hexadecimal text behind 0x"),
    method<&F::AddPadding>("AddPadding", "bits", "A bit string padded with zeros to whole octets"),
    method<&F::ConvertAsctoBinary>("ConvertAsctoBinary", "text", "The character codes of a text, 8 bits each"),
    method<&F::StringValCmp>("StringValCmp", "a, b", "Compares two numbers of any length: -1, 0 or 1"),
    method<&F::IsValidNumber>("IsValidNumber", "value, checkUpper, upper, checkLower, lower",
                              "Whether a value is a number within its bounds"),
    method<&F::ConvertIntToText>("ConvertIntToText", "number", "The English word for a number from 0 to 16"),
    method<&F::ConvertSecsToHrMinSecs>("ConvertSecsToHrMinSecs", "seconds", "A duration in words"),
    method<&F::TimeStamp>("TimeStamp", "", "The local date and time"),
    method<&F::GetString>("GetString", "rootKey, keyPath, valueName", "A text of the system's registry"),
    method<&F::LogScriptHeader>("LogScriptHeader", "report, script, description, accessTerminal, sector",
                                "Writes a script's header to the test report"),
    method<&F::LogScriptResult>("LogScriptResult", "report, script, result, seconds",
                                "Writes PASS, FAIL or INCONCLUSIVE to the test report"),
    method<&F::LogScriptSpecificParameters>("LogScriptSpecificParameters", "report, names, values",
                                            "Writes names and values of a script's parameters to the test report"),
    method<&F::LogInformation>("LogInformation", "report, text", "Writes a text to the test report, line by line"),
    method<&F::CalculateCentreFrequency>("CalculateCentreFrequency", "bandClass, channelNumber, forwardLink",
                                         "The centre frequency of a carrier in MHz"),
    method<&F::IsNewSector>("IsNewSector", "sectorID, subnetMask, sectorSignature",
                            "Whether a sector is not the one configured last"),
};

constexpr std::array<std::string_view, 17> kWords{"Zero",   "One",      "Two",      "Three",   "Four",   "Five",
                                                  "Six",    "Seven",    "Eight",    "Nine",    "Ten",    "Eleven",
                                                  "Twelve", "Thirteen", "Fourteen", "Fifteen", "Sixteen"};

constexpr std::int32_t kNumberTooLarge = -2147221503;
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

char hex_digit(std::string_view bits) { return kHexDigits[static_cast<std::size_t>(bin_to_long(bits))]; }

void pad_in_front(std::string& text, std::size_t length) {
  if (text.size() < length) text.insert(0, length - text.size(), '0');
}

}  // namespace

ClassInfo::Texts F::texts() noexcept {
  return {.name = "SB_GeneralFunctions",
          .summary = "Conversions between bit strings, numbers, texts and message objects; script log; frequencies",
          .clause = ""};
}
std::span<const BoundMember> F::members() noexcept { return kMembers; }

std::string F::MsgToBinString(const Ref<Object>& message) { return message_to_bits(deref(message, {})); }
void F::BinStringToMsg(std::string& bits, Ref<Object>& message) { bits_to_message(bits, deref(message, {})); }

std::string F::LongToBin(std::int32_t& value, std::int32_t& width) {
  // The sign takes a place of its own, and the caller is told so.
  if (value < 0) {
    if (width == std::numeric_limits<std::int32_t>::min()) throw Error(ErrorNumber::Overflow);
    --width;
  }
  return long_to_bin(value, width);
}

std::string F::DecToBin(const Value& value, std::int32_t& width) {
  std::int32_t number = value.to_long();
  return LongToBin(number, width);
}

std::string F::CompliDecToBin(double& value, std::int32_t& width) {
  if (value == 0) return DecToBin(Value(0), width);
  value = -value;
  std::string bits = DecToBin(Value(value), width);
  bits.resize(std::min(bits.size(), static_cast<std::size_t>(std::max(width, 0))));
  for (char& bit : bits) bit = bit == '0' ? '1' : '0';
  std::int32_t complement = round_to_long(bin_to_long(bits) + 1.0);
  return LongToBin(complement, width);
}

std::string F::Find2sCompliment(const std::string& bits, std::int32_t width) { return find_2s_complement(bits, width); }

std::int16_t F::BinToDec(std::string& bits) { return bin_to_dec(bits); }
std::int32_t F::BinToLong(std::string& bits) { return bin_to_long(bits); }

double F::BinToDouble(const std::string& bits) {
  constexpr std::size_t kLongest = 63;
  const std::size_t cut = bits.size() - std::min(bits.size(), kLongest);
  if (bits.find('1') < cut) return 0;
  double sum = 0;
  double weight = 1;
  for (std::size_t i = bits.size(); i > cut; --i, weight *= 2) {
    const char digit = bits[i - 1];
    if (digit < '0' || digit > '9') return 0;
    sum += weight * (digit - '0');
  }
  return sum;
}

std::string F::DoubleToBin(double value, std::int16_t width) { return double_to_bin(value, width); }

std::string F::HexToBin(std::string& text, std::int32_t& width) {
  text.erase(0, text.find_first_not_of('0'));
  return hex_to_bin(text, width);
}

std::string F::BinToHex(const std::string& bits, bool& spacing) {
  const auto first = bits.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  std::string_view rest(bits);
  rest = rest.substr(first, bits.find_last_not_of(' ') - first + 1);
  std::string text;
  try {
    if (const std::size_t leading = rest.size() % 4; leading != 0) {
      text += hex_digit(rest.substr(0, leading));
      rest.remove_prefix(leading);
    }
    for (; !rest.empty(); rest.remove_prefix(4)) {
      text += hex_digit(rest.substr(0, 4));
      if (spacing) text += ' ';
      spacing = !spacing;
    }
  } catch (const Error&) {
    return {};
  }
  return text;
}

std::string F::DecToHex(std::int32_t& value, std::int32_t digits) {
  std::string text;
  for (auto rest = static_cast<std::uint32_t>(value); rest != 0 || text.empty(); rest /= 16) {
    text.insert(text.begin(), kHexDigits[rest % 16]);
  }
  if (value < 0 && digits < 0) throw Error(ErrorNumber::InvalidCall);
  if (digits > std::numeric_limits<std::int16_t>::max()) throw Error(ErrorNumber::Overflow);
  const auto wanted = static_cast<std::size_t>(std::max(digits, 0));
  if (text.size() < wanted) text.insert(0, wanted - text.size(), value < 0 ? 'F' : '0');
  if (value < 0) text.erase(0, text.size() - wanted);
  return "0x" + text;
}

std::string F::AddPadding(std::string& bits) {
  add_padding(bits);
  return bits;
}

std::string F::ConvertAsctoBinary(std::string& text) {
  std::string bits;
  bits.reserve(text.size() * 8);
  for (std::string_view rest = text; !rest.empty();) bits += long_to_bin(take_ansi_code(rest), 8);
  return bits;
}

std::int32_t F::StringValCmp(std::string& a, std::string& b) {
  pad_in_front(a, b.size());
  pad_in_front(b, a.size());
  return compare_numeric_text(a, b);
}

bool F::IsValidNumber(const Value& value, bool check_upper, std::int32_t upper, bool check_lower, std::int32_t lower) {
  if (!value.is_numeric()) return false;
  const double number = value.to_double();
  return !(check_upper && number > upper) && !(check_lower && number < lower);
}

std::string F::ConvertIntToText(std::int16_t number) {
  if (number < 0 || number >= static_cast<std::int16_t>(kWords.size())) {
    // The one source that scripts know without the class's name.
    throw Error(kNumberTooLarge, "ConvertIntToText", "The number to be converted to text is too large.");
  }
  return std::string(kWords[static_cast<std::size_t>(number)]);
}

std::string F::ConvertSecsToHrMinSecs(std::int32_t seconds) { return duration_text(seconds); }

std::string F::TimeStamp() {
  const LocalTime now = platform_->clock->local_time();
  const auto text = [](int number) { return std::to_string(number); };
  return text(now.day) + "-" + platform_->clock->month_name(now.month) + "-" + text(now.year) + " " + text(now.hour) +
         "." + text(now.minute) + "." + text(now.second);
}

std::string F::GetString(std::int32_t root_key, const std::string& key_path, const std::string& value_name) {
  return platform_->registry->read(root_key, key_path, value_name).value_or("");
}

void F::LogScriptHeader(const Ref<Object>& report, const std::string& script, const std::string& description,
                        const std::optional<std::string>& access_terminal, const std::optional<std::string>& sector) {
  ScriptLog(report).header({script, description, TimeStamp(), access_terminal, sector});
}

void F::LogScriptResult(const Ref<Object>& report, const std::string& script, const Value& result,
                        const std::optional<std::int32_t>& seconds) {
  const auto word = ScriptLog::result_word(result);
  if (!word) raise("SB_GeneralFunctions.LogScriptResult", "The result should be PASS, FAIL or INCONCLUSIVE.");
  ScriptLog(report).result(script, *word, TimeStamp(), seconds ? duration_text(*seconds) : std::string());
}

void F::LogScriptSpecificParameters(const Ref<Object>& report, const Value& names, const Value& values) {
  ScriptLog(report).parameters(names, values);
}

void F::LogInformation(const Ref<Object>& report, const std::string& text) { ScriptLog(report).information(text); }

double F::CalculateCentreFrequency(std::int16_t band_class, std::int32_t channel_number,
                                   const std::optional<bool>& forward_link) {
  const auto frequency = centre_frequency(band_class, channel_number, forward_link.value_or(true));
  if (frequency) return *frequency;
  const std::string band = "band class " + std::to_string(band_class);
  raise("SB_GeneralFunctions.CalculateCentreFrequency",
        is_known_band_class(band_class)
            ? "The channel number " + std::to_string(channel_number) + " is not valid in " + band + "."
            : "The frequencies of " + band + " are not known.");
}

bool F::IsNewSector(const std::string& sector_id, const std::string& subnet_mask, const std::string& sector_signature) {
  return is_new_sector(*platform_->settings, {sector_id, subnet_mask, sector_signature});
}

}  // namespace vorlan
