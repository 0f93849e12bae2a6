// A bare class with one property and one method that return a text: what the module's late binding is measured against.
#include <pybind11/pybind11.h>

#include <string>

namespace {

class Bare {
 public:
  [[nodiscard]] const std::string& sequence() const { return sequence_; }
  void set_sequence(const std::string& sequence) { sequence_ = sequence; }

 private:
  std::string sequence_ = "00000001";
};

}  // namespace

PYBIND11_MODULE(vorlan_baseline, module) {
  pybind11::class_<Bare>(module, "Bare")
      .def(pybind11::init())
      .def_property("PRstr_MessageSequence", &Bare::sequence, &Bare::set_sequence)
      .def("get_sequence", &Bare::sequence);
}
