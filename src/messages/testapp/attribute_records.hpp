// Attribute records of the test applications (C.S0029): Length 8, AttributeID 8, value.
#pragma once

#include <string>
#include <string_view>

#include "messages/message_of.hpp"

namespace vorlan::testapp {

/// The records as people read them: "DRCValueFixedMode: DRCValue 3; LoopBackMode: LoopBackPersistence 1".
std::string ftap_records_text(std::string_view bits);
std::string rtap_records_text(std::string_view bits);
inline constexpr Meaning kFtapRecords{.text = ftap_records_text, .summary = "FTAP attribute records"};
inline constexpr Meaning kRtapRecords{.text = rtap_records_text, .summary = "RTAP attribute records"};

/// A record of a received message, found by its AttributeID behind the TransactionID: the first one, so many bits from
/// its Length on, or what the message has of them. Empty where there is none. The search steps from Length to Length,
/// however odd these are, until the message ends.
std::string idle_stats(const Message& message, std::size_t index);
std::string connected_stats(const Message& message, std::size_t index);
std::string first_sync_stats(const Message& message, std::size_t index);

/// The second argument of CreateMessage, as it stands.
void join_records(const BuildContext& context, BitBuffer& bits);
inline constexpr std::string_view kArguments[] = {"AttributeRecords"};

}  // namespace vorlan::testapp
