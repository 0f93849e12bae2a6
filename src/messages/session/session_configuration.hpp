// Session Configuration Protocol messages (C.S0024-A 7.4) of the session layer, but for those that carry attributes.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

inline constexpr MessageSpec kConfigurationStart{
    .name = "SB_Ses_MsgConfigurationStart",
    .summary = "The access network opens the session configuration.",
    .clause = "7.4.6.2.1",
    .protocol = Protocol::SessionConfiguration,
    .id = "00000001",
    .not_initialized = "Class not initialized. Please call <Initialize> of ConfigurationStart Message first.",
};
using SB_Ses_MsgConfigurationStart = MessageOf<kConfigurationStart>;

inline constexpr FieldSpec kConfigurationCompleteFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .initial = "00000000",
     .wrong_length = "The length of <TransactionId> field should be 8 bits.",
     .in_encoder_mode = "Encoder and this PRstr_TransactionID cannot be used simultaneously",
     .summary = "TransactionID."},
    // A received token is on the air, but the property goes on telling the stored one.
    {.name = "PRstr_SessionConfigurationToken",
     .bits = 16,
     .initial = "0000000000000000",
     .read_stored = true,
     .wrong_length = "The length of <SessionConfigurationToken> field should be 16 bits.",
     .summary = "Token of the configuration agreed on; always the stored value."},
};
inline constexpr MessageSpec kConfigurationComplete{
    .name = "SB_Ses_MsgConfigurationComplete",
    .summary = "The sender has no more to negotiate.",
    .clause = "7.4.6.2.2",
    .protocol = Protocol::SessionConfiguration,
    .direction = Direction::Both,
    .id = "00000000",
    .fields = kConfigurationCompleteFields,
    .not_initialized = "Class not initialized. Please call <Initialize> of ConfigurationComplete Message first.",
    .not_set = "ConfigurationComplete message object not set. Please set property <PRobj_MessageObject> first.",
};
using SB_Ses_MsgConfigurationComplete = MessageOf<kConfigurationComplete>;

namespace session_configuration {
/// Computes the token when the configuration does not go on; a second argument of CreateMessage stands for everything
/// behind the TransactionID.
void create_soft_configuration_complete(const BuildContext& context, BitBuffer& bits);
inline constexpr ErrorRow kReplacedInEncoderMode{"SB_Ses_MsgSoftConfigurationComplete.CreateMessage",
                                                 "Encoder and this property cannot be used simultaneously",
                                                 "CreateMessage with AfterTransactionId in encoder mode"};
}  // namespace session_configuration

inline constexpr FieldSpec kSoftConfigurationCompleteFields[] = {
    {.name = "PRstr_TransactionID",
     .bits = 8,
     .initial = "00000000",
     .wrong_length = "The length of <TransactionId> field should be 8 bits.",
     .in_encoder_mode = "Encoder and this PRstr_TransactionID cannot be used simultaneously",
     .summary = "TransactionID."},
    {.name = "PRstr_PersonalityIndexStore",
     .bits = 4,
     .initial = "0000",
     .wrong_length = "The length of <PersonalityIndexStore> field should be 4 bits.",
     .summary = "Personality under which the configuration is stored."},
    {.name = "PRstr_Continue",
     .bits = 1,
     .initial = "0",
     .wrong_length = "The length of <Continue> field should be 1 bit.",
     .summary = "\"1\" if the negotiation goes on."},
    {.name = "PRstr_Commit",
     .bits = 1,
     .initial = "1",
     .present = is_zero("PRstr_Continue"),
     .wrong_length = "The length of <Commit> field should be 1 bit.",
     .summary = "\"1\" if the configuration is committed."},
    {.name = "PRstr_SessionConfigurationToken",
     .bits = 16,
     .starts_empty = true,
     .present = is_zero("PRstr_Continue"),
     .exposure = Exposure::GetOnly,
     .summary = "Twelve zeros and the committed personality."},
    {.name = "PRstr_CommitPersonalityIndexStore",
     .bits = 4,
     .starts_empty = true,
     .sent = false,
     .wrong_length = "The length of <CommitPersonalityIndexStore> field should be 4 bits.",
     .summary = "Personality to commit; empty: PersonalityIndexStore. Part of the token."},
};
inline constexpr std::string_view kSoftConfigurationCompleteArguments[] = {"AfterTransactionId"};
inline constexpr MessageSpec kSoftConfigurationComplete{
    .name = "SB_Ses_MsgSoftConfigurationComplete",
    .summary = "Closes the negotiation of one personality.",
    .clause = "7.4.6.2.5",
    .protocol = Protocol::SessionConfiguration,
    .direction = Direction::Both,
    .id = "00000010",
    .fields = kSoftConfigurationCompleteFields,
    .padded = true,
    .arguments = kSoftConfigurationCompleteArguments,
    .create = session_configuration::create_soft_configuration_complete,
    .not_initialized = "Class not initialized. Please call <Initialize> of SoftConfigurationComplete Message first.",
    .not_set = "SoftConfigurationComplete message object not set. Please set property <PRobj_MessageObject> first.",
    .further_errors = {&session_configuration::kReplacedInEncoderMode, 1},
};
using SB_Ses_MsgSoftConfigurationComplete = MessageOf<kSoftConfigurationComplete>;

}  // namespace vorlan
