#include "cli/sector.hpp"

#include "automation/bind.hpp"

namespace vorlan::cli {

namespace {

class ConfiguredSector final : public BoundObject<ConfiguredSector> {
 public:
  ConfiguredSector(Ref<Object> parameters, std::string name)
      : parameters_(std::move(parameters)), name_(std::move(name)) {}

  [[nodiscard]] Ref<Object> parameters() const { return parameters_; }
  [[nodiscard]] std::string name() const { return name_; }

  static constexpr ClassInfo::Texts texts() { return {"ConfiguredSector", "A sector's configuration and name.", ""}; }
  static std::span<const BoundMember> members() {
    static constexpr BoundMember kMembers[] = {
        property<&ConfiguredSector::parameters>("PRobj_GlobalParameters", "The sector's configuration."),
        property<&ConfiguredSector::name>("PRstr_SectorName", "The sector's name."),
    };
    return kMembers;
  }

 private:
  Ref<Object> parameters_;
  std::string name_;
};

}  // namespace

Ref<Object> configured_sector(const Registry& registry, Platform& platform, const std::string& parameter_file,
                              const std::string& sector_name) {
  Ref<Object> parameters = registry.create("SB_GlobalParameters", platform);
  parameters->let("PRstr_FileName", parameter_file);
  parameters->call("Initialize", sector_name);
  return make<ConfiguredSector>(std::move(parameters), sector_name);
}

}  // namespace vorlan::cli
