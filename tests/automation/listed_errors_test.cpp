// The errors that every class of the registry lists.
#include "server/classes.hpp"
#include "support/listed.hpp"

namespace vorlan::test {
namespace {

/// Sources that name no member of their class, on purpose.
bool is_odd(std::string_view source) {
  constexpr std::string_view kOdd[] = {
      "", "SB_GeneralFunctions.LongToBin", "SB_GlobalParameters", "SB_GlobalParameters.InvalidParameter",
      "SB_Mac_MsgAccessParameters.CreateMessage()", "SB_Mac_MsgFixedModeXoff.PRobj_MessageObject",
      "SB_MsgConfigurationRequest.PRstr_Attrvalue", "TestSetMembers", "18_6_4.Negotiate_FTAP",
      "SB_DefaultSession.DefSessionNegotiation", "SB_Security.SendANKeyComplReceiveATKeyCompl",
      // A blank and a colon too many.
      "SB_PROT_RevTrafficChannel.NegotiateRateParametersAttribute ", "SB_Sector.DestoyFadingObjects:"};
  // As it stands in the values of all twelve powers.
  if (source.starts_with("SB_Mac_ValPowerParameters") && source.ends_with(".PRstr_ProfileType")) return true;
  return std::find(std::begin(kOdd), std::end(kOdd), source) != std::end(kOdd);
}

TEST(ListedErrors, NameAMemberOfTheClass) {
  const Registry registry(class_tables());
  for (const Registry::Class& cls : registry.classes()) {
    const ClassInfo& info = cls.info();
    for (const ErrorInfo& error : info.errors()) {
      const std::string_view source = error.source;
      const std::string_view member = source.substr(source.find('.') + 1);
      const auto members = info.members();
      EXPECT_TRUE(is_odd(source) || std::any_of(members.begin(), members.end(),
                                                [&](const MemberInfo& one) {
                                                  return stands_for(member, one.name) ||
                                                         equals_ignoring_case(member, one.name);
                                                }))
          << info.name() << " lists an error of " << source;
      EXPECT_FALSE(error.description.empty() || error.when.empty()) << source;
    }
  }
}

}  // namespace
}  // namespace vorlan::test
