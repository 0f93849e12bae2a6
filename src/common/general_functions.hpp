// The stateless toolbox of scripts: bit strings, numbers, texts, the script's log and carrier frequencies.
#pragma once

#include "automation/bind.hpp"
#include "platform/platform.hpp"

namespace vorlan {

/// Many arguments are taken by reference, since scripts declare them so; those that change are named. Errors of every
/// member: 6 (overflow) and 13 (type mismatch) for what does not fit, 91 for a Nothing, and those named here.
class SB_GeneralFunctions final : public BoundObject<SB_GeneralFunctions> {
 public:
  explicit SB_GeneralFunctions(Platform& platform) noexcept : platform_(&platform) {}

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;

  /// `Length` bits of a message object. Every octet is read once, the one past the end included.
  std::string MsgToBinString(const Ref<Object>& message);
  /// Fills the octets of a message object; `Length` is left alone. Error 6 above 32767 bits.
  void BinStringToMsg(std::string& bits, Ref<Object>& message);

  /// Error 1 if a value from 0 on does not fit. A negative value gives the 32-bit pattern without leading zeros behind
  /// its sign, and lowers `width` by one.
  std::string LongToBin(std::int32_t& value, std::int32_t& width);
  /// The same with any number.
  std::string DecToBin(const Value& value, std::int32_t& width);
  /// Two's complement of a negative value; the sign of `value` changes.
  std::string CompliDecToBin(double& value, std::int32_t& width);
  /// Two's complement of the rightmost `width` bits. Error 5 for a negative width.
  std::string Find2sCompliment(const std::string& bits, std::int32_t width);
  /// Digits other than 0 and 1 count with their own value.
  std::int16_t BinToDec(std::string& bits);
  /// Error 1 for a character other than 0 and 1.
  std::int32_t BinToLong(std::string& bits);
  /// Up to 63 significant bits; 0 for what is not a number or too large, never an error.
  double BinToDouble(const std::string& bits);
  /// A whole number from 0 to below 2^width; an empty text for any other, never an error.
  std::string DoubleToBin(double value, std::int16_t width);
  /// Exactly `width` bits, excess high ones dropped; leading zeros are removed from `text`. Error 1 for a character
  /// that is no digit, 5 for a negative width.
  std::string HexToBin(std::string& text, std::int32_t& width);
  /// Digits in capitals, a blank after every second one; `spacing` says whether one follows the first whole digit, and
  /// is inverted with every digit. An empty text for what is no bit string, never an error.
  std::string BinToHex(const std::string& bits, bool& spacing);
  /// "0x" and at least so many digits. A negative value is cut to `digits`; a positive one is not.
  std::string DecToHex(std::int32_t& value, std::int32_t digits);
  /// Pads to whole octets, at the end; `bits` is padded as well.
  std::string AddPadding(std::string& bits);
  /// 8 bits for each character, in the character set Windows-1252. Error 1 for a character outside it.
  std::string ConvertAsctoBinary(std::string& text);
  /// Compares two numbers of any length; the shorter text is padded with zeros in front.
  std::int32_t StringValCmp(std::string& a, std::string& b);
  bool IsValidNumber(const Value& value, bool check_upper, std::int32_t upper, bool check_lower, std::int32_t lower);
  /// "Zero" to "Sixteen"; error -2147221503 for any other number.
  std::string ConvertIntToText(std::int16_t number);
  /// "1 Hours, 2 Minutes and 5 Seconds."; error 6 above 32767 minutes.
  std::string ConvertSecsToHrMinSecs(std::int32_t seconds);
  /// Local date and time, as "5-Nov-2026 9.7.3".
  std::string TimeStamp();
  /// A text of the system's registry; empty if the key does not open, one NUL character if the value cannot be read.
  std::string GetString(std::int32_t root_key, const std::string& key_path, const std::string& value_name);

  void LogScriptHeader(const Ref<Object>& report, const std::string& script, const std::string& description,
                       const std::optional<std::string>& access_terminal, const std::optional<std::string>& sector);
  /// PASS, FAIL or INCONCLUSIVE (a Boolean means the first two), else error 1.
  void LogScriptResult(const Ref<Object>& report, const std::string& script, const Value& result,
                       const std::optional<std::int32_t>& seconds);
  /// A name and a value, or an array of each (error 9 if they are not of equal length).
  void LogScriptSpecificParameters(const Ref<Object>& report, const Value& names, const Value& values);
  void LogInformation(const Ref<Object>& report, const std::string& text);

  /// In MHz, by C.S0057; the forward link unless `forward_link` is false. Error 1 for a band class that is not known
  /// and a channel number that is not valid in it.
  double CalculateCentreFrequency(std::int16_t band_class, std::int32_t channel_number,
                                  const std::optional<bool>& forward_link);
  /// Whether this sector is another one than the sector remembered in the settings store.
  bool IsNewSector(const std::string& sector_id, const std::string& subnet_mask, const std::string& sector_signature);

 private:
  Platform* platform_;
};

}  // namespace vorlan
