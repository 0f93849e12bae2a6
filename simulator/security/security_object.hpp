// The security object of the simulated test set: it does the arithmetic of the key exchange.
#pragma once

#include "automation/bind.hpp"
#include "simulator/simulation.hpp"

namespace vorlan::simulator {

class SecurityObject final : public BoundObject<SecurityObject> {
 public:
  explicit SecurityObject(std::shared_ptr<Simulation> simulation) : simulation_(std::move(simulation)) {}

  Ref<Object> an_public_key(std::int16_t key_length);
  void set_at_public_key(Ref<Object> key);
  std::string nonce();
  [[nodiscard]] std::string time_stamp_short() const;
  [[nodiscard]] std::string key_signature(std::int16_t transaction_id) const;
  [[nodiscard]] std::string session_key() const;
  [[nodiscard]] bool keys_agree() const;

  static constexpr ClassInfo::Texts texts() {
    return {"Security", "The security object of a simulated test set: keys and signatures of the key exchange.",
            "C.S0024-400-C 2.6"};
  }
  static std::span<const BoundMember> members();

 private:
  std::shared_ptr<Simulation> simulation_;
};

}  // namespace vorlan::simulator
