// The C++ twin of session.py:  vorlan_session [PARAMETER-FILE]
#include <cstdio>

#include "automation/error.hpp"
#include "session.hpp"

int main(int argc, char** argv) {
  using namespace vorlan;
  Platform platform = simulator::simulated_platform();
  const Ref<simulator::TestSet> test_set = make<simulator::TestSet>(platform);
  int status = 0;
  try {
    const auto parameters =
        examples::load_configuration(platform, argc > 1 ? argv[1] : "examples/sector.ini", "SECTOR 0");
    const Ref<SB_Sector> sector = examples::connect(platform, test_set, parameters);
    examples::run_session(platform, test_set, *sector);
  } catch (const Error& error) {
    std::fprintf(stderr, "error %d in %s: %s\n", error.number(), error.source().c_str(), error.description().c_str());
    status = 1;
  }
  std::printf("%s\n%s", test_set->trace()->get("Ladder").to_text().c_str(),
              test_set->test_report()->get("Text").to_text().c_str());
  return status;
}
