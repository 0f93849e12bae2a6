// The Python module `vorlan`.
#include "class_type.hpp"
#include "errors.hpp"
#include "interruptible_clock.hpp"
#include "listing.hpp"
#include "member_handle.hpp"
#include "object_type.hpp"
#include "simulator/simulated_clock.hpp"
#include "value_conversion.hpp"

namespace vorlan::python {

namespace {

constexpr const char* kText =
    R"(Conformance testing of 1xEV-DO access terminals: classes for air-interface messages, configuration attributes and
control of the emulated sector.

    m = vorlan.CreateObject("Vorlan.SB_Ses_MsgUATIAssignment")  # or vorlan.SB_Ses_MsgUATIAssignment()
    m.PRstr_MessageSequence = "00000001"

Fields are bit strings. Indexed properties take subscripts: p.X[1] = "0". Where every index may be left out, p.X is the
value itself in a condition, a comparison, a text, a number, and as an argument; p.X() is the plain value anywhere.
None is Nothing, vorlan.Null is Null, an argument that is left out (or vorlan.Empty) is Empty. Errors are
vorlan.AutomationError.

Any object can be handed in: its attributes, methods and subscripts are its members. The library holds it as long as it
needs it. A cycle that goes through an object of the library is not found by the garbage collector: set one of its
references to None.)";

struct NullType {};
struct EmptyType {};

void add_values(State& state, py::module_& module) {
  py::class_<NullType>(module, "NullType", "Type of Null.").def("__repr__", [](const NullType&) {
    return "vorlan.Null";
  });
  py::class_<EmptyType>(module, "EmptyType", "Type of Empty.").def("__repr__", [](const EmptyType&) {
    return "vorlan.Empty";
  });
  state.null = py::cast(NullType{}).release().ptr();
  state.empty = py::cast(EmptyType{}).release().ptr();
  module.attr("Null") = py::handle(state.null);
  module.attr("Empty") = py::handle(state.empty);

  const py::class_<ByRef> by_ref =
      py::class_<ByRef>(module, "ByRef", "An argument passed by reference: after the call, value is what it became.")
          .def(py::init([](py::object value) { return ByRef{std::move(value)}; }),
               py::arg("value") = py::handle(state.empty))
          .def_readwrite("value", &ByRef::value)
          .def("__repr__", [](const ByRef& self) { return py::str("vorlan.ByRef({!r})").format(self.value); });
  state.by_ref_type = reinterpret_cast<PyTypeObject*>(by_ref.ptr());
}

py::object create(State& state, const std::string& name) {
  PyObject* made = guarded(state, [&] { return wrap(state, state.registry.create(name, state.platform)); });
  if (made == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(made);
}

py::list class_names(const State& state) {
  py::list names;
  for (const Registry::Class& listed : state.registry.classes()) names.append(py::str(std::string(listed.name())));
  return names;
}

/// Classes become attributes when they are asked for: importing makes none of them.
py::object class_attribute(State& state, const py::module_& module, const std::string& name) {
  const Registry::Class* listed = name.find('.') == std::string::npos ? state.registry.find(name) : nullptr;
  if (listed == nullptr) throw py::attribute_error("module 'vorlan' has no attribute '" + name + "'");
  const py::handle type(reinterpret_cast<PyObject*>(class_type(state, listed->info()).type()));
  if (listed->name() == name) module.attr(name.c_str()) = type;
  return py::reinterpret_borrow<py::object>(type);
}

void add_functions(State& state, py::module_& module) {
  module.def(
      "CreateObject", [&state](const std::string& name) { return create(state, name); }, py::arg("name"),
      "Creates an object by its class's name; \"Vorlan.\" before it may be left out. An unknown class is error 429.");
  module.def(
      "classes", [&state] { return class_names(state); }, "The names of all classes.");
  module.attr("__getattr__") =
      py::cpp_function([&state, module](const std::string& name) { return class_attribute(state, module, name); },
                       py::name("__getattr__"));
  module.attr("__dir__") = py::cpp_function(
      [&state, module] {
        py::list names = class_names(state);
        for (const auto& entry : module.attr("__dict__").cast<py::dict>()) {
          if (!names.contains(entry.first)) names.append(entry.first);
        }
        return names;
      },
      py::name("__dir__"));
}

void fill(py::module_& module) {
  auto* state = new State{.registry = module_registry(), .platform = native_platform()};
  state->platform.clock = make_interruptible(state->platform.clock);
  simulator::offer_simulated_time(state->platform);
  module.doc() = kText;
  module.attr("__version__") = VORLAN_VERSION;
  add_values(*state, module);
  add_errors(*state, module);
  add_object_type(*state, module);
  add_member_types(*state);
  add_functions(*state, module);
}

}  // namespace

}  // namespace vorlan::python

PYBIND11_MODULE(vorlan, module) { vorlan::python::fill(module); }
