#include "simulator/protocol_controller.hpp"

namespace vorlan::simulator {

namespace {

using P = ProtocolController;

constexpr BoundMember kMembers[] = {
    property<&P::automatic, &P::set_automatic>("FTAPTestPktTxAutoOn",
                                               "Whether test packets are sent as soon as the terminal is ready."),
    property<&P::started, &P::set_started>("StartFTAPTestPktTx", "Starts or stops the forward test packets."),
};

}  // namespace

std::span<const BoundMember> ProtocolController::members() { return kMembers; }

}  // namespace vorlan::simulator
