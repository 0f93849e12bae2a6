#include "sector/classes.hpp"

#include <array>

#include "sector/reverse_traffic_channel.hpp"
#include "sector/sector.hpp"

namespace vorlan {

namespace {

constexpr std::array kClasses{
    ClassEntry{"SB_PROT_RevTrafficChannel", &SB_PROT_RevTrafficChannel::info,
               [](Platform& platform) -> Ref<Object> { return make<SB_PROT_RevTrafficChannel>(platform); }},
    ClassEntry{"SB_Sector", &SB_Sector::info,
               [](Platform& platform) -> Ref<Object> { return make<SB_Sector>(platform); }},
};

}  // namespace

std::span<const ClassEntry> sector_classes() noexcept { return kClasses; }

}  // namespace vorlan
