// Complex attributes of the connection, session and stream layers (C.S0024-A 8.5, 8.7, 5.4, 6).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/con_values.hpp"
#include "attributes/values/ses_str_values.hpp"

namespace vorlan {

/// The ValueID of the first received value record that offers a band class, and in it a subclass unless that is empty;
/// the empty text if none does. Error 1 before a record is received.
std::string supported_channels_value_id(ComplexAttribute& attribute, std::span<const Value> arguments);

inline constexpr std::string_view kSupportedChannelsArguments[] = {"BandClass", "BandSubClass"};
inline constexpr AttributeSearch kSupportedChannelsSearch{
    "ReturnValIDSupp", kSupportedChannelsArguments, supported_channels_value_id,
    "The ValueID of the first received value record that offers a band class, and in it a subclass."};

inline constexpr ComplexAttributeSpec kAttrPrefCtrlChannelCycle{
    .name = "SB_Con_AttrPrefCtrlChannelCycle",
    .summary = "PreferredControlChannelCycle",
    .clause = "8.5",
    .id = 0x00,
    .values = &ValueOf<kValPrefCtrlChannelCycle>::shared_class,
    .wrong_record = kWrongConnectionRecord,
    .wrong_length = kWrongOldLength};
using SB_Con_AttrPrefCtrlChannelCycle = ComplexAttributeOf<kAttrPrefCtrlChannelCycle>;

inline constexpr ComplexAttributeSpec kAttrSlottedMode{.name = "SB_Con_AttrSlottedMode",
                                                       .summary = "SlottedMode",
                                                       .clause = "8.5",
                                                       .id = 0x01,
                                                       .values = &ValueOf<kValSlottedMode>::shared_class,
                                                       .wrong_record = kWrongConnectionRecord,
                                                       .wrong_length = kWrongOldLength};
using SB_Con_AttrSlottedMode = ComplexAttributeOf<kAttrSlottedMode>;

inline constexpr ComplexAttributeSpec kAttrPagingMask{.name = "SB_Con_AttrPagingMask",
                                                      .summary = "PagingMask",
                                                      .clause = "8.5",
                                                      .id = 0x02,
                                                      .values = &ValueOf<kValPagingMask>::shared_class,
                                                      .wrong_record = kWrongConnectionRecord,
                                                      .wrong_length = kWrongOldLength};
using SB_Con_AttrPagingMask = ComplexAttributeOf<kAttrPagingMask>;

inline constexpr ComplexAttributeSpec kAttrSearchParameters{.name = "SB_Con_AttrSearchParameters",
                                                            .summary = "SearchParameters",
                                                            .clause = "8.7",
                                                            .id = 0x00,
                                                            .values = &ValueOf<kValSearchParameters>::shared_class,
                                                            .wrong_record = kWrongConnectionRecord,
                                                            .wrong_length = kWrongOldLength};
using SB_Con_AttrSearchParameters = ComplexAttributeOf<kAttrSearchParameters>;

inline constexpr ComplexAttributeSpec kAttrSetMgmSameChnlParameter{
    .name = "SB_Con_AttrSetMgmSameChnlParameter",
    .summary = "SetManagementSameChannelParameters",
    .clause = "8.7",
    .id = 0x01,
    .values = &ValueOf<kValSetMgmSameChnlParameter>::shared_class,
    .wrong_record = kWrongConnectionRecord,
    .wrong_length = kWrongOldLength};
using SB_Con_AttrSetMgmSameChnlParameter = ComplexAttributeOf<kAttrSetMgmSameChnlParameter>;

inline constexpr ComplexAttributeSpec kAttrSetMgmDiffChnlParameter{
    .name = "SB_Con_AttrSetMgmDiffChnlParameter",
    .summary = "SetManagementDifferentChannelParameters",
    .clause = "8.7",
    .id = 0x02,
    .values = &ValueOf<kValSetMgmDiffChnlParameters>::shared_class,
    .wrong_record = kWrongConnectionRecord,
    .wrong_length = kWrongOldLength,
    .source = "SB_Con_AttrSetMgmtDiffChnlParameters"};
using SB_Con_AttrSetMgmDiffChnlParameter = ComplexAttributeOf<kAttrSetMgmDiffChnlParameter>;

inline constexpr ComplexAttributeSpec kAttrSuppCDMAChannels{.name = "SB_Con_AttrSuppCDMAChannels",
                                                            .summary = "SupportedCDMAChannels",
                                                            .clause = "8.7",
                                                            .id = 0x04,
                                                            .values = &ValueOf<kValSuppCDMAChannels>::shared_class,
                                                            .search = &kSupportedChannelsSearch,
                                                            .wrong_record = kWrongConnectionRecord};
using SB_Con_AttrSuppCDMAChannels = ComplexAttributeOf<kAttrSuppCDMAChannels>;

inline constexpr ComplexAttributeSpec kAttrPriorSession{.name = "SB_Ses_AttrPriorSession",
                                                        .summary = "PriorSession",
                                                        .clause = "5.4.7",
                                                        .id = 0x1000,
                                                        .id_bits = 16,
                                                        .values = &ValueOf<kValPriorSession>::shared_class,
                                                        .wrong_record = kWrongRecord};
using SB_Ses_AttrPriorSession = ComplexAttributeOf<kAttrPriorSession>;

inline constexpr ComplexAttributeSpec kAttrStreamConfig{.name = "SB_Str_AttrStreamConfig",
                                                        .summary = "StreamConfiguration",
                                                        .clause = "6",
                                                        .id = 0x00,
                                                        .values = &ValueOf<kValStreamConfig>::shared_class,
                                                        .wrong_record = kWrongRecord,
                                                        .wrong_length = kWrongOldLength};
using SB_Str_AttrStreamConfig = ComplexAttributeOf<kAttrStreamConfig>;

}  // namespace vorlan
