#include "sector/sector.hpp"

#include "common/conversions.hpp"
#include "common/remembered_values.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

namespace {

constexpr std::size_t kAtiBits = 32;

}  // namespace

SB_Sector::SB_Sector(Platform& platform) noexcept : platform_(&platform) {}

Ref<Object> SB_Sector::global_parameters() const {
  if (!held(Held::GlobalParameters)) raise(sector_errors::kNoParameters);
  return held(Held::GlobalParameters);
}

void SB_Sector::set_global_parameters(const Ref<Object>& parameters) {
  held(Held::GlobalParameters) = parameters;
  test_set_.reset();
}

const Ref<Object>& SB_Sector::existing(Held channel) const {
  if (!held(channel)) raise(sector_errors::kNoChannel);
  return held(channel);
}

Value SB_Sector::setting(std::string_view property) const { return global_parameters()->get(property, ""); }

TestSetAccess SB_Sector::test_set() {
  if (!test_set_) {
    const Ref<Object> parameters = held(Held::GlobalParameters);
    TestSetAccess named = parameters ? TestSetAccess::named_by(*parameters) : TestSetAccess();
    // A script's own configuration may have replaced itself while it was asked.
    if (held(Held::GlobalParameters) != parameters) return named;
    test_set_ = std::move(named);
  }
  return *test_set_;
}

std::int16_t SB_Sector::current_subtype() const {
  if (current_subtype_) return *current_subtype_;
  if (!held(Held::GlobalParameters)) return 0;
  const std::int16_t personality = setting("PRint_ScriptPersonality").to_integer();
  if (personality <= 0) return 0;
  return global_parameters()->call("Get_PhyLaySubType", "", personality).to_integer();
}

std::int16_t SB_Sector::last_transaction_id() const { return memory().last_transaction_id(1); }
std::int32_t SB_Sector::preferred_cycle() const { return memory().preferred_cycle(); }
void SB_Sector::set_preferred_cycle(std::int32_t cycle) { memory().remember_preferred_cycle(cycle); }

std::int32_t SB_Sector::access_terminal_identifier() const {
  const std::string uati = setting("PRstr_UATI").to_text();
  const std::size_t skipped = uati.size() < kAtiBits ? 0 : uati.size() - kAtiBits;
  const std::int32_t ati = bin_to_long(std::string_view(uati).substr(skipped));
  trace("Sector_1x::lngATI ---------------------------- index = " + std::to_string(ati));
  return ati;
}

void SB_Sector::ClearSessionInfo() {
  reset_remembered_values(*platform_->settings);
  memory().forget_preferred_cycle();
}

bool SB_Sector::ValidateAndCorrectLength(std::string& bits, std::int32_t width, std::int32_t maximum) {
  const std::int32_t value = bin_to_long(bits);
  if (value > maximum) return false;
  bits = long_to_bin(value, width);
  return true;
}

void SB_Sector::Enable() { apply(); }

void SB_Sector::log(std::string_view line) { test_set().call(Role::ReportLine, held(Held::TestReport), line); }
void SB_Sector::trace(std::string_view line) const { platform_->debug->write_line(line); }

void SB_Sector::apply() {
  const Ref<Object>& own = held(Held::TestSet);
  test_set().call(Role::Apply, own ? own : held(Held::ParentTestSet), test_set::kAtOnce, Ref<Object>(),
                  test_set::kAllParts);
}

}  // namespace vorlan
