#include "parameters/parameter_reader.hpp"

#include <array>

#include "common/conversions.hpp"
#include "parameters/sector_name.hpp"

namespace vorlan {

namespace {

constexpr std::array<std::string_view, 6> kReadMembers{"", "GetInteger", "GetLong", "GetFloat", "GetBool", "GetString"};

std::string_view read_member(ReadAs read) noexcept { return kReadMembers[static_cast<std::size_t>(read)]; }

/// Whether the file holds a text for the key; a reader may raise an error of its own if not.
bool has_text(Object& reader, const KeyPlace& place, const std::string& file) {
  try {
    return !reader.call(read_member(ReadAs::String), place.section, place.key, file).to_text().empty();
  } catch (const Error& error) {
    if (concerns_file(error)) throw;
    return false;
  }
}

}  // namespace

KeyPlace loaded_place(const ParameterSpec& spec, int sector) noexcept {
  switch (spec.where) {
    case Where::Sector: break;
    case Where::BaseStation: return {sector_name(base_station_sector(sector)), spec.file_key()};
    case Where::Sector0:
    case Where::Sector0Only: return {sector_name(0), spec.file_key()};
    case Where::Automation: return {"Automation", spec.file_key()};
    case Where::Location: return {"Location", spec.file_key()};
  }
  return {sector_name(sector), spec.file_key()};
}

KeyPlace live_place(const ParameterSpec& spec, int sector) {
  if (spec.where == Where::Sector0Only && sector != 0) {
    raise("SB_GlobalParameters." + std::string(spec.name),
          std::string(spec.file_key()) +
              " value is BitSequence script specific and can be accesssed from SECTOR 0 only.");
  }
  if (!spec.live_key.empty()) return {sector_name(sector), spec.live_key};
  return loaded_place(spec, sector);
}

std::string invalid_label(const ParameterSpec& spec, int sector) {
  if (!spec.label.empty()) return std::string(spec.label);
  std::string label(spec.file_key());
  if (spec.where == Where::BaseStation) label.append(", ").append(sector_name(base_station_sector(sector)));
  return label;
}

bool concerns_file(const Error& error) noexcept {
  return error.is(ErrorNumber::FileNotFound) || error.is(ErrorNumber::FileAccess);
}

Value read_key(Object& reader, const ParameterSpec& spec, const KeyPlace& place, const std::string& file) {
  if (spec.may_be_missing() && !has_text(reader, place, file)) return spec.initial;
  return reader.call(read_member(spec.read_as()), place.section, place.key, file);
}

void check_range(const ParameterSpec& spec, const Value& read, std::string_view source, std::string_view text) {
  if (spec.range != nullptr && compare_numeric_text(read.to_text(), spec.range->limit) > 0) raise(source, text);
}

Value converted(const ParameterSpec& spec, const Value& read) {
  if (spec.bits == 0) return read.converted_to(spec.type());
  std::string bits = spec.to_bits != nullptr ? spec.to_bits(read, spec.bits) : dec_to_bin(read, spec.bits);
  // The conversion gives a negative number 32 bits: in a message, every field behind it would be misplaced.
  if (bits.size() != static_cast<std::size_t>(spec.bits)) {
    raise("SB_GeneralFunctions.LongToBin", "The given value: " + read.to_text() + " cannot be converted into " +
                                               std::to_string(spec.bits) + " bit length.");
  }
  return bits;
}

}  // namespace vorlan
